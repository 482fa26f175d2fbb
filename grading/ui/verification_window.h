// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "grading/verification.h"
#include "plants/exercises.h"

class QBoxLayout;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTableWidget;

namespace tavorno {

class Foglio_Tempi;

/// How the verdict reaches the program and the other windows.
struct Legami_Verifica {
  /// The program in the CPU; empty: there is none, and `perche` says so in Italian.
  std::function<std::optional<Stesura>(std::string& perche)> Programma;
  std::string Script;  ///< file of the exercise's script
  std::function<void(const Caso_Verificato&)> Guarda;
  std::function<void()> Mostra_Aiuto;
};

/// "Verifica": the program in the CPU is examined with the script of its exercise, on a CPU and a
/// plant of its own and on another thread, so that the running one goes on.
class FrmVerifica : public QWidget {
 public:
  FrmVerifica(const Esercizio& esercizio, Legami_Verifica legami);

  /// From the beginning, with the program as it is in the CPU now.
  void Avvia();
  bool In_Corso() const { return lavoro_ != nullptr; }
  const std::vector<Caso_Verificato>& Casi() const { return casi_; }

  /// Takes in what has been played meanwhile; its timer does it 20 times a second.
  void Guarda_Lavoro();

 private:
  void Crea_Testa(QBoxLayout& posti);
  void Crea_Tasti(QBoxLayout& posti);
  void Crea_Tabella();
  void Annulla();
  void Aggiungi(const Caso_Verificato& caso);
  void Fine();
  void Mostra_In_Corso();
  void Di(const QString& testo, bool buono);
  void Mostra_Caso();
  void Guarda_Caso();
  const Caso_Verificato* Scelto() const;

  const Esercizio& esercizio_;
  Legami_Verifica legami_;
  std::vector<Caso_Verificato> casi_;
  QLabel* etEsito_;
  QProgressBar* avanzamento_;
  QPushButton *cmdVerifica_ = nullptr, *cmdAnnulla_ = nullptr, *cmdGuarda_ = nullptr,
              *cmdChiudi_ = nullptr;
  QTableWidget* tabella_;
  QPlainTextEdit* rilievi_;
  Foglio_Tempi* tempi_;
  QTimer sguardo_;
  std::unique_ptr<Verifica_In_Corso> lavoro_;
};

}  // namespace tavorno
