// SPDX-License-Identifier: GPL-3.0-or-later
// What reports are written with.
#include <gtest/gtest.h>

#include "grading/reports.h"
#include "grading/sha256.h"
#include "trace/markup.h"

namespace tavorno::prova {

TEST(Sha256, IsThatOfTheStandard) {
  EXPECT_EQ(Sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(Sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(Sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
  EXPECT_EQ(Sha256(std::string(1'000'000, 'a')),
            "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Markup, TextsOfOthersStayHarmless) {
  EXPECT_EQ(In_Xml("<a b=\"c\">&\x01\n\xff"), "&lt;a b=&quot;c&quot;&gt;&amp;?\n?");
  EXPECT_EQ(In_Csv("=1+1"), "'=1+1");
  EXPECT_EQ(In_Csv("a;\"b\"\n"), "\"a;\"\"b\"\" \"");
  EXPECT_EQ(Utf8_Valido("è\xc3(\xed\xa0\x80\xf4\x90\x80\x80€"), "è?(???????€");
  EXPECT_EQ(Lunghezza_Utf8("perché"), 6);
  EXPECT_EQ(Primi_Utf8("perché no", 6), "perché");
  EXPECT_EQ(Primi_Utf8("è", 5), "è");
}

TEST(Marks, AreWrittenInItalian) {
  EXPECT_EQ(Testo_Punti(0), "0");
  EXPECT_EQ(Testo_Punti(10), "10");
  EXPECT_EQ(Testo_Punti(2.5), "2,5");
  EXPECT_EQ(Testo_Punti(0.25), "0,25");
}

}  // namespace tavorno::prova
