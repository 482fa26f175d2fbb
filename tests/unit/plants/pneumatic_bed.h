// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plant_bed.h"
#include "plants/pneumatic_bench.h"
#include "plc/clock.h"

namespace tavorno::prova {

/// What a test expects of one cylinder, as the bench's sheet tells it.
struct Prova_Cilindro {
  const Schema_Pneumatico* Schema;
  int Numero;
  int Periodo;  // ms of a tick
  const char* Pistone;
  float Arretrato, Esteso;
  const char* Valvola;
  float Left_Set, Left_Reset;
  const char *Micro_Meno, *Micro_Piu;
  int Ingresso_Meno, Ingresso_Piu;
  int Aria, Set, Reset;  // positions of the outputs; 0 for a valve without a second coil
  const char *Cmd_Set, *Cmd_Reset;
};

// clang-format off
inline const std::vector<Prova_Cilindro> cilindri = {
    {&Schema_Pist_1,      0, 40, "imgPA",  420, 1080, "imgV1",  690,  300, "imgS",  "imgD",  2, 3, 1, 2, 3, "CmdV1a", "cmdV1b"},
    {&Schema_CicloQ,      0, 40, "imgPA",  420, 1080, "imgV1",  690,  300, "imgS",  "imgD",  5, 6, 1, 2, 3, "CmdV1a", "cmdV1b"},
    {&Schema_CicloQ,      1, 40, "imgP2", 2490, 3150, "imgV2", 2790, 2400, "imgS2", "imgD2", 7, 8, 1, 4, 5, "cmdV2a", "cmdV2b"},
    {&Schema_Pist_3,      0, 40, "imgV1",  360, 1030, "imgE1",  630,  240, "imga0", "imga1", 1, 2, 1, 2, 3, "CmdV1a", "cmdV1b"},
    {&Schema_Pist_3,      1, 40, "imgV2", 2580, 3250, "imgE2", 2830, 2450, "imgb0", "Imgb1", 3, 4, 1, 4, 5, "cmdV2a", "cmdV2b"},
    {&Schema_Pist_3,      2, 40, "imgV3", 4800, 5470, "imgE3", 5070, 4680, "imgc0", "imgc1", 5, 6, 1, 6, 7, "cmdV3a", "cmdV3b"},
    {&Schema_Pist_4,      0, 80, "imgV1",  480, 1150, "imgE1",  750,  360, "imga0", "imga1", 1, 2, 9, 1, 2, "CmdV1a", "cmdV1b"},
    {&Schema_Pist_4,      1, 80, "imgV2", 2700, 3370, "imgE2", 2965, 2565, "imgb0", "Imgb1", 3, 4, 9, 3, 4, "cmdV2a", "cmdV2b"},
    {&Schema_Pist_4,      2, 80, "imgV3",  480, 1150, "imgE3",  750,  360, "imgc0", "imgc1", 5, 6, 9, 5, 6, "cmdV3a", "cmdV3b"},
    {&Schema_Pist_4,      3, 80, "imgV4", 2700, 3370, "imgE4", 2970, 2580, "imgd0", "imgd1", 7, 8, 9, 7, 8, "cmdV4a", "cmdV4b"},
    {&Schema_ctr_Pist_32, 0, 40, "imgV1",  360, 1030, "imgE1",  630,  240, "imga0", "imga1", 1, 2, 1, 2, 0, "CmdV1a", ""},
    {&Schema_ctr_Pist_32, 1, 40, "imgV2", 2580, 3250, "imgE2", 2830, 2450, "imgb0", "Imgb1", 3, 4, 1, 3, 0, "cmdV2a", ""},
    {&Schema_ctr_Pist_32, 2, 40, "imgV3", 4800, 5470, "imgE3", 5070, 4680, "imgc0", "imgc1", 5, 6, 1, 4, 0, "cmdV3a", ""},
};
// clang-format on

inline constexpr Colore verde = Tavolozza(10), rosso = Tavolozza(12);

/// A bench with its own virtual clock, and short words for what tests ask.
struct Banco_Aria {
  explicit Banco_Aria(const Schema_Pneumatico& schema) : Macchina(schema, Tempo) {}

  float Left(const std::string& nome) { return Macchina.Disegno[nome].Left; }
  Colore Linea(const std::string& nome) { return Macchina.Disegno[nome].FillColor; }
  std::string Vede(const std::string& nome) { return Picture(Macchina, nome); }
  /// Energises the outputs of a list, and no others.
  void Eccita(const std::vector<int>& posizioni) { Macchina.Stato_Q(Uscite(posizioni)); }

  Orologio Tempo;
  Banco_Pneumatico Macchina;
};

/// A test over all cylinders of all benches.
class Ogni_Cilindro : public ::testing::TestWithParam<Prova_Cilindro> {
 public:
  std::string Linee_Piu() const { return "linP(" + std::to_string(riga.Numero) + ")"; }
  std::string Linee_Meno() const { return "linM(" + std::to_string(riga.Numero) + ")"; }
  bool Bistabile() const { return riga.Reset != 0; }
  /// Both limit switches, minus first.
  std::string Micro() const {
    return {Ingresso(banco.Macchina, riga.Ingresso_Meno),
            Ingresso(banco.Macchina, riga.Ingresso_Piu)};
  }
  /// The limit switches as shown.
  std::string Spie() { return banco.Vede(riga.Micro_Meno) + " " + banco.Vede(riga.Micro_Piu); }
  float Posizione() { return banco.Left(riga.Pistone); }
  void Tick(int quanti = 1) { banco.Tempo.Avanza(quanti * riga.Periodo); }
  /// Air, and the coil that extends.
  void Fuori() { banco.Eccita({riga.Aria, riga.Set}); }
  /// Air, and the coil that retracts, or the spring.
  void Dentro() { banco.Eccita({riga.Aria, Bistabile() ? riga.Reset : riga.Aria}); }

  /// How many cylinders tick after a let of the outputs: a spring is called with "0" at every let,
  /// and lets its piston tick at the end where it stands.
  int Avviati() const { return Bistabile() ? 1 : 3; }

  const Prova_Cilindro riga = GetParam();
  Banco_Aria banco{*riga.Schema};
};

inline std::string Nome_Cilindro(const ::testing::TestParamInfo<Prova_Cilindro>& info) {
  const Prova_Cilindro& riga = info.param;
  const char* banco = riga.Schema == &Schema_Pist_1   ? "Us04"
                      : riga.Schema == &Schema_CicloQ ? "Us05"
                      : riga.Schema == &Schema_Pist_3 ? "Us06"
                      : riga.Schema == &Schema_Pist_4 ? "Us07"
                                                      : "Us15";
  return std::string(banco) + static_cast<char>('A' + riga.Numero);
}

}  // namespace tavorno::prova
