// SPDX-License-Identifier: GPL-3.0-or-later
#include "plc/subscription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include "plc/hooks.h"

namespace tavorno::prova {

using ::testing::ElementsAre;

/// Something that happens with a number, and what was heard of it.
class Subscription : public ::testing::Test {
 protected:
  Iscrizione Ascolta(int nome) {
    return annuncio.Ascolta([this, nome](int dato) { sentiti.push_back(nome * 10 + dato); });
  }

  Annuncio<int> annuncio;
  std::vector<int> sentiti;
};

TEST_F(Subscription, ListenersAreCalledInTheirOrderAndOneMayGoInFront) {
  const Iscrizione uno = Ascolta(1);
  const Iscrizione due = Ascolta(2);
  const Iscrizione tre =
      annuncio.Ascolta_Per_Primo([this](int dato) { sentiti.push_back(30 + dato); });
  annuncio(7);
  EXPECT_THAT(sentiti, ElementsAre(37, 17, 27));
}

TEST_F(Subscription, EndsWithItsListener) {
  EXPECT_FALSE(annuncio.Ascoltato());
  {
    const Iscrizione uno = Ascolta(1);
    EXPECT_TRUE(annuncio.Ascoltato());
  }
  annuncio(7);
  EXPECT_THAT(sentiti, ElementsAre());
  EXPECT_FALSE(annuncio.Ascoltato());
}

TEST_F(Subscription, ANewOneInItsPlaceEndsTheOld) {
  Iscrizione iscrizione = Ascolta(1);
  iscrizione = Ascolta(2);
  annuncio(7);
  EXPECT_THAT(sentiti, ElementsAre(27));
  Iscrizione spostata = std::move(iscrizione);
  annuncio(8);
  EXPECT_THAT(sentiti, ElementsAre(27, 28));
}

TEST_F(Subscription, MayOutliveWhatItListensTo) {
  auto breve = std::make_unique<Annuncio<>>();
  Iscrizione iscrizione = breve->Ascolta([] {});
  breve.reset();
  iscrizione.Termina();
}

TEST_F(Subscription, ListenerMayEndItselfAndOthersDuringARound) {
  Iscrizione seconda;
  Iscrizione prima;
  prima = annuncio.Ascolta([&](int) {
    sentiti.push_back(1);
    prima.Termina();
    seconda.Termina();
  });
  seconda = Ascolta(2);
  const Iscrizione terza = Ascolta(3);
  annuncio(7);
  annuncio(8);
  EXPECT_THAT(sentiti, ElementsAre(1, 37, 38));
}

TEST_F(Subscription, OneThatComesDuringARoundIsHeardFromTheNextOn) {
  std::vector<Iscrizione> nuove;
  const Iscrizione prima = annuncio.Ascolta([&](int) {
    if (nuove.empty()) {
      nuove.push_back(Ascolta(2));
      nuove.push_back(annuncio.Ascolta_Per_Primo([this](int) { sentiti.push_back(3); }));
    }
  });
  annuncio(7);
  EXPECT_THAT(sentiti, ElementsAre());
  annuncio(8);
  EXPECT_THAT(sentiti, ElementsAre(3, 28));
}

TEST_F(Subscription, RoundWithinARoundKeepsBothGoing) {
  const Iscrizione prima = annuncio.Ascolta([&](int dato) {
    sentiti.push_back(dato);
    if (dato < 2) annuncio(dato + 1);
  });
  const Iscrizione seconda = Ascolta(5);
  annuncio(0);
  EXPECT_THAT(sentiti, ElementsAre(0, 1, 2, 52, 51, 50));
}

TEST_F(Subscription, WhatAListenerThrowsComesOutAndTheNextRoundIsWhole) {
  bool lancia = true;
  const Iscrizione prima = annuncio.Ascolta([&](int) {
    if (lancia) throw std::runtime_error("no");
  });
  const Iscrizione seconda = Ascolta(2);
  EXPECT_THROW(annuncio(7), std::runtime_error);
  lancia = false;
  annuncio(8);
  EXPECT_THAT(sentiti, ElementsAre(28));
}

TEST_F(Subscription, YieldTakesTheSmallestNumberOfLinesAndOneWithoutListeners) {
  Ganci ganci;
  EXPECT_EQ(ganci.Cedi(), 1);
  int cessioni = 0;
  const Iscrizione molte = ganci.Ascolta_Cedi([&] { ++cessioni; }, 96);
  EXPECT_EQ(ganci.Cedi(), 96);
  {
    const Iscrizione poche = ganci.Ascolta_Cedi([&] { ++cessioni; }, 5);
    EXPECT_EQ(ganci.Cedi(), 5);
  }
  EXPECT_EQ(ganci.Cedi(), 96);
  EXPECT_EQ(cessioni, 4);
}

}  // namespace tavorno::prova
