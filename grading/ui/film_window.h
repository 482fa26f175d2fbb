// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "grading/outcome.h"
#include "recorder/recorder.h"

class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QSlider;

namespace tavorno {

/// "Guarda": a case of a grading is played in the windows of the CPU and of its plant, from its
/// beginning to the moment of its first finding, where it holds. The recorder shows the film
/// already; this window moves it. When it closes the present comes back.
class FrmGuarda : public QWidget {
 public:
  FrmGuarda(Registratore& registratore, const Plc& plc, const Caso& caso);

  /// All windows show what the CPU is now; `passo`: its line too, since it does not just play.
  std::function<void(bool passo)> Specchia;
  /// The window has closed, and the present is back.
  std::function<void()> Chiusa;
  std::function<void()> Mostra_Aiuto;

  /// At the moment of the finding.
  bool In_Fondo() const;
  bool In_Moto() const { return ritmo_.isActive(); }

  /// Plays on by so much real time; its timer does it 25 times a second.
  void Avanza(double ms);

  static constexpr int Periodo = 40;  ///< ms between two pictures

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  QPushButton* Tasto(const char* nome, const char* testo, const char* tasti, const char* cosa,
                     std::function<void()> fai);
  void Crea_Riga_Tempo(QBoxLayout& posti);
  void Crea_Riga_Passi(QBoxLayout& posti);
  void Parti();
  void Ferma();
  void Da_Capo();
  bool Vai(const std::function<bool()>& mossa);
  void Passo(const std::function<bool()>& mossa);
  void Vai_A(std::int64_t ms);
  void Mostra_Posto();
  std::int64_t Trascorso() const { return plc_.Tempo.Adesso() - registratore_.Primo().Ms; }
  std::int64_t Durata() const { return registratore_.Presente().Ms - registratore_.Primo().Ms; }

  Registratore& registratore_;
  const Plc& plc_;
  QString rilievo_;
  QLabel *etRilievo_, *etPosto_;
  QSlider* tempo_ = nullptr;
  QComboBox* velocita_ = nullptr;
  QPushButton* cmdVai_ = nullptr;
  QTimer ritmo_, guardia_;
  QElapsedTimer orologio_;
  double resto_ = 0;       // of a millisecond of the film, not played yet
  bool arrivato_ = false;  // at the end, or where the program ends for good
  bool chiusa_ = false;
};

}  // namespace tavorno
