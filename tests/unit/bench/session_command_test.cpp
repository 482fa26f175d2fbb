// SPDX-License-Identifier: GPL-3.0-or-later
// `registra` and `rivivi`: a session as a file.
#include <gmock/gmock.h>

#include <fstream>

#include "command_bed.h"
#include "grading/grader.h"
#include "recorder/session_file.h"

namespace tavorno::prova {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class SessionCommand : public Banco_Comandi {
 public:
  std::string Cancello() const { return std::string(TAVORNO_EXAMPLES) + "/us09.AWL"; }
  std::string In_Cartella(const std::string& nome) const { return (cartella / nome).string(); }
  static std::string Leggi(const std::string& file) {
    std::ostringstream testo;
    testo << std::ifstream(file, std::ios::binary).rdbuf();
    return testo.str();
  }
  static void Scrivi(const std::string& file, const std::string& byte) {
    std::ofstream(file, std::ios::binary) << byte;
  }
  /// The changes alone, without the last line.
  std::string Cambi() const { return out.substr(0, out.find("Fine:")); }
  /// Records the gate with these hands.
  std::string Registra(const std::string& nome, const std::string& mani) {
    const std::string file = In_Cartella(nome);
    EXPECT_EQ(Comando({"registra", Cancello(), "--impianto", "9", "--ms", "9000", "--mani", mani,
                       "--uscita", file}),
              0)
        << err;
    return file;
  }
};

constexpr const char* apertura = "1000:premi:imgSB(0),1300:rilascia:imgSB(0),3000:clic:imgM";

TEST_F(SessionCommand, LivesAgainWithTheSameChangesAndTheSameTrace) {
  ASSERT_EQ(Comando({"esegui", Cancello(), "--impianto", "9", "--ms", "9000", "--mani", apertura,
                     "--vcd", In_Cartella("vera.vcd")}),
            0)
      << err;
  const std::string eseguiti = Cambi();
  EXPECT_THAT(eseguiti, HasSubstr("Q0.3"));
  const std::string seduta = Registra("s.seduta", apertura);
  EXPECT_EQ(Cambi(), eseguiti);
  ASSERT_EQ(Comando({"rivivi", seduta, "--vcd", In_Cartella("rifatta.vcd"), "--svg",
                     In_Cartella("rifatta.svg")}),
            0)
      << err;
  EXPECT_EQ(Cambi(), eseguiti);
  EXPECT_EQ(Leggi(In_Cartella("rifatta.vcd")), Leggi(In_Cartella("vera.vcd")));
  EXPECT_THAT(Leggi(In_Cartella("rifatta.svg")), HasSubstr("<svg"));
  EXPECT_LT(Leggi(seduta).size(), 60'000U);
}

TEST_F(SessionCommand, StopsAtATime) {
  const std::string seduta = Registra("s.seduta", apertura);
  ASSERT_EQ(Comando({"rivivi", seduta, "--fino-a", "1200"}), 0) << err;
  EXPECT_THAT(out, HasSubstr("Fine: 1200 ms"));
  EXPECT_THAT(out, HasSubstr("1000 ms  I1.2"));
}

TEST_F(SessionCommand, NamesTheFirstDifferenceOfTwoSessions) {
  const std::string una = Registra("una.seduta", apertura);
  const std::string uguale = Registra("uguale.seduta", apertura);
  const std::string altra =
      Registra("altra.seduta", "1000:premi:imgSB(0),1300:rilascia:imgSB(0),3005:clic:imgM");
  ASSERT_EQ(Comando({"rivivi", una, "--confronta", uguale}), 0) << out << err;
  EXPECT_THAT(out, StartsWith("Le due sedute sono uguali"));
  ASSERT_EQ(Comando({"rivivi", una, "--confronta", altra}), 1);
  EXPECT_THAT(out, StartsWith("Prima differenza a 3000 ms:"));
}

TEST_F(SessionCommand, ItsHandsMakeATestCaseThatThePreviousProgramPasses) {
  const std::string seduta = Registra("s.seduta", apertura);
  const std::string script = In_Cartella("seduta.lua");
  ASSERT_EQ(Comando({"rivivi", seduta, "--script", script}), 0) << err;
  EXPECT_THAT(Leggi(script), HasSubstr("premi(\"imgSB(0)\")"));
  Verifiche verifiche;
  verifiche.Script.push_back(Leggi_Sorgente(script));
  const Esito_Progetto esito = Esamina(Cancello(), verifiche);
  EXPECT_TRUE(esito.Superato()) << esito.Primo_Rilievo();
  EXPECT_EQ(esito.Casi.size(), 1U);
}

TEST_F(SessionCommand, RefusesWhatIsNoSessionAndSaysWhy) {
  const std::string seduta = Registra("s.seduta", apertura);
  const std::string buona = Leggi(seduta);
  const std::string cattiva = In_Cartella("cattiva.seduta");
  const auto motivo = [&](const std::string& byte) {
    Scrivi(cattiva, byte);
    EXPECT_EQ(Comando({"rivivi", cattiva}), 1);
    EXPECT_EQ(out, "");
    return err;
  };
  EXPECT_THAT(motivo("ORGANIZATION_BLOCK"), HasSubstr("non è una seduta registrata"));
  EXPECT_THAT(motivo("TAVORNO-SEDUTA 9\n" + buona), HasSubstr("della versione 9"));
  EXPECT_THAT(motivo(buona.substr(0, buona.size() / 2)), HasSubstr("rovinato"));
  EXPECT_THAT(motivo(buona + "x"), HasSubstr("rovinato"));
  Comando({"rivivi", In_Cartella("manca.seduta")});
  EXPECT_THAT(err, HasSubstr("non si può leggere"));
  // Whatever byte is another, the file is not taken.
  for (std::size_t n = 0; n < buona.size(); n += 1 + buona.size() / 97) {
    std::string rovinata = buona;
    rovinata[n] = static_cast<char>(rovinata[n] ^ 0x10);
    std::string perche;
    EXPECT_FALSE(Leggi_Registrazione(rovinata, perche)) << n;
    EXPECT_NE(perche, "");
  }
}

TEST_F(SessionCommand, NoReportReplacesASession) {
  const std::string seduta = Registra("s.seduta", apertura);
  const std::string buona = Leggi(seduta);
  const auto rifiutato = [&](std::vector<std::string> parole) {
    EXPECT_EQ(Comando(parole), 64) << err;
    EXPECT_EQ(Leggi(seduta), buona);
  };
  for (const char* opzione : {"--script", "--vcd", "--svg"}) {
    rifiutato({"rivivi", seduta, opzione, seduta});
    rifiutato({"rivivi", seduta, opzione, In_Cartella("./s.seduta")});
    rifiutato({"rivivi", seduta, opzione, In_Cartella("altra.seduta")});
    rifiutato({"rivivi", seduta, opzione, In_Cartella("progetto.AWL")});
  }
  rifiutato({"rivivi", seduta, "--vcd", In_Cartella("x.lua")});
  rifiutato({"rivivi", seduta, "--vcd", In_Cartella("x"), "--script", In_Cartella("x")});
  rifiutato({"registra", Cancello(), "--ms", "5", "--uscita", In_Cartella("x.lua")});
  rifiutato(
      {"registra", Cancello(), "--ms", "5", "--uscita", In_Cartella("x.seduta"), "--vcd", seduta});
}

TEST_F(SessionCommand, WantsAFileToRecordTo) {
  EXPECT_EQ(Comando({"registra", Cancello()}), 64);
  EXPECT_THAT(err, HasSubstr("--uscita"));
}

}  // namespace tavorno::prova
