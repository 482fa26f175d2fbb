// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plants/plant.h"

namespace tavorno::prova {

/// Writes down the input text at every `Change` of a plant.
class Ascolto {
 public:
  explicit Ascolto(Impianto& impianto) {
    iscrizione_ =
        impianto.Change.Ascolta([this, &impianto] { Sentiti.push_back(impianto.Stato_I()); });
  }

  std::vector<std::string> Sentiti;

 private:
  Iscrizione iscrizione_;
};

inline char Ingresso(const Impianto& impianto, int posizione) {
  return impianto.Stato_I().at(static_cast<std::size_t>(posizione - 1));
}

/// The output text with the positions of a list at '1'.
inline std::string Uscite(const std::vector<int>& posizioni) {
  std::string testo(16, '0');
  for (const int posizione : posizioni) testo.at(static_cast<std::size_t>(posizione - 1)) = '1';
  return testo;
}

inline std::string Picture(Impianto& impianto, const std::string& nome) {
  return impianto.Disegno[nome].Picture;
}

/// A wire between the machine and the PLC, which is live as its terminal is, whatever that does.
inline bool Filo_Del_Plc(const Figura& figura) {
  return figura.Nome.starts_with("filoI(") || figura.Nome.starts_with("filoQ(");
}

/// The pictures, visibility and colours of the machine's figures, so that a test can say what must
/// not have changed.
inline std::vector<std::string> Aspetto(Impianto& impianto) {
  std::vector<std::string> righe;
  for (const Figura& figura : impianto.Disegno) {
    if (Filo_Del_Plc(figura)) continue;
    righe.push_back(figura.Nome + " " + figura.Picture() + " " +
                    (figura.Visible ? "visible " : "hidden ") + std::to_string(figura.FillColor()));
  }
  return righe;
}

struct Prova_Pulsante {
  const char* Nome;
  int Posizione;
  char Giu, Su;
  const char *Picture_Giu, *Picture_Su;
};

/// Press and release of a push button: its input, its pictures, one `Change` each, nothing else.
inline void Verifica_Pulsante(Impianto& impianto, const Prova_Pulsante& atteso) {
  Ascolto ascolto(impianto);
  const std::string riposo = impianto.Stato_I();
  const auto posto = static_cast<std::size_t>(atteso.Posizione - 1);
  ASSERT_EQ(riposo[posto], atteso.Su) << atteso.Nome;
  ASSERT_EQ(Picture(impianto, atteso.Nome), atteso.Picture_Su);
  std::string premuto = riposo;
  premuto[posto] = atteso.Giu;

  EXPECT_TRUE(impianto.Premi(atteso.Nome));
  EXPECT_EQ(impianto.Stato_I(), premuto) << atteso.Nome;
  EXPECT_EQ(Picture(impianto, atteso.Nome), atteso.Picture_Giu);
  EXPECT_TRUE(impianto.Rilascia(atteso.Nome));
  EXPECT_EQ(impianto.Stato_I(), riposo) << atteso.Nome;
  EXPECT_EQ(Picture(impianto, atteso.Nome), atteso.Picture_Su);
  EXPECT_EQ(ascolto.Sentiti, (std::vector{premuto, riposo})) << atteso.Nome;
}

/// Two clicks on a thermal relay: tripped, then reset.
inline void Verifica_Termico(Impianto& impianto, const char* nome, int posizione) {
  Ascolto ascolto(impianto);
  const std::string riposo = impianto.Stato_I();
  const auto posto = static_cast<std::size_t>(posizione - 1);
  ASSERT_EQ(riposo[posto], '1') << nome;
  EXPECT_EQ(impianto.Disegno[nome].ToolTip(), "Click per simulare intervento");
  EXPECT_EQ(Picture(impianto, nome), "ImgRTOF");
  std::string scattato = riposo;
  scattato[posto] = '0';

  EXPECT_TRUE(impianto.Clic(nome));
  EXPECT_EQ(impianto.Stato_I(), scattato) << nome;
  EXPECT_EQ(Picture(impianto, nome), "imgRTON");
  EXPECT_TRUE(impianto.Clic(nome));
  EXPECT_EQ(impianto.Stato_I(), riposo) << nome;
  EXPECT_EQ(Picture(impianto, nome), "ImgRTOF");
  EXPECT_EQ(ascolto.Sentiti, (std::vector{scattato, riposo})) << nome;
}

/// Output `posizione` alone lights lamp `nome` with `picture`, and changes nothing else.
inline void Verifica_Lampada(Impianto& impianto, int posizione, const std::string& nome,
                             const std::string& picture) {
  impianto.Stato_Q(Uscite({}));
  auto atteso = Aspetto(impianto);
  for (std::string& riga : atteso) {
    if (riga.starts_with(nome + " ")) riga.replace(nome.size() + 1, 7, picture);  // "imgLNot"
  }
  ASSERT_EQ(Picture(impianto, nome), "imgLNot");
  impianto.Stato_Q(Uscite({posizione}));
  EXPECT_EQ(Aspetto(impianto), atteso) << nome;
  impianto.Stato_Q(Uscite({}));
  EXPECT_EQ(Picture(impianto, nome), "imgLNot");
}

/// Every figure within an area of `larghezza` by `altezza` twips, and no two that
/// answer to the mouse one over the other.
inline void Verifica_Geometria(Impianto& impianto, float larghezza, float altezza) {
  for (const Figura& figura : impianto.Disegno) {
    EXPECT_GE(figura.Left, 0) << figura.Nome;
    EXPECT_GE(figura.Top, 0) << figura.Nome;
    EXPECT_LE(figura.Left + figura.Width, larghezza) << figura.Nome;
    EXPECT_LE(figura.Top + figura.Height, altezza) << figura.Nome;
    EXPECT_FALSE(figura.Operabile() && figura.ToolTip().empty()) << figura.Nome;
    for (const Figura& altra : impianto.Disegno) {
      if (&altra == &figura || !altra.Operabile() || !figura.Operabile()) continue;
      const bool sopra =
          figura.Left < altra.Left + altra.Width && altra.Left < figura.Left + figura.Width &&
          figura.Top < altra.Top + altra.Height && altra.Top < figura.Top + figura.Height;
      EXPECT_FALSE(sopra) << figura.Nome << " and " << altra.Nome;
    }
  }
}

}  // namespace tavorno::prova
