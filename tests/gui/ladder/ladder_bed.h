// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QPrinter>
#include <QtTest>
#include <QtWidgets>
#include <memory>
#include <string>

#include "awl/ui/main_window.h"
#include "awl/writer.h"
#include "ladder/to_list.h"
#include "ladder/ui/ladder_window.h"
#include "recorder/session.h"
#include "support/command.h"
#include "widgets/text.h"

namespace tavorno::prova {

/// The ladder's window beside the editor's, on a CPU with a virtual clock.
class Banco_Scala : public ::testing::Test {
 public:
  /// The editor with these lines as Main (LF between them), and the ladder.
  void Apri(const std::string& main, bool con_editor = true) {
    seduta.progetto.Scrivi_Main(A_Capo(main));
    seduta.progetto.Gestione_Voci(1);
    Mostra(con_editor);
  }
  void Mostra(bool con_editor) {
    if (con_editor) {
      editor = std::make_unique<FrmMain>(seduta.progetto, seduta.plc, Legami_Editor{});
      editor->show();
    }
    Legami_Scala legami;
    legami.Nome = [this](const std::string& operando) {
      return operando == "I0.0" ? nome_i00 : std::string();
    };
    legami.Modificabile = [this] { return editor != nullptr; };
    legami.Cursore = [this] { return editor ? editor->Posto_Cursore() : std::nullopt; };
    legami.Vai_A = [this](Posto_Riga posto) { editor->Vai_A(posto); };
    legami.Scrivi = [this](int testo, const std::string& byte) {
      editor->Scrivi_Testo(testo, byte);
    };
    legami.Annulla = [this](int testo, bool ripeti) { editor->Annulla_Testo(testo, ripeti); };
    Servizi_Scala servizi;
    servizi.Chiedi_File = [this](const QString& tipo) {
      chiesto = tipo;
      return file;
    };
    servizi.Avvisa = [this](const QString& testo) { avvisi << testo; };
    servizi.Scegli_Stampante = [this](QPrinter& stampante, QWidget*) {
      stampante.setOutputFormat(QPrinter::PdfFormat);
      stampante.setOutputFileName(file);
      return !file.isEmpty();
    };
    scala = std::make_unique<FrmScala>(seduta.plc, seduta.progetto, std::move(legami),
                                       std::move(servizi));
    scala->resize(900, 600);
    scala->show();
    scala->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(scala.get()));
    Vista().setFocus();
  }
  ~Banco_Scala() override {
    scala.reset();
    editor.reset();
  }

  static std::string A_Capo(std::string testo) {
    for (std::size_t n = 0; (n = testo.find('\n', n)) != std::string::npos; n += 2)
      testo.insert(n, "\r");
    return testo;
  }
  std::string Main() const {
    std::string testo = seduta.progetto.txtList;
    std::erase(testo, '\r');
    return testo;
  }
  Vista_Scala& Vista() const { return scala->Vista(); }
  std::string Scelto() const {
    const Rete_Foglio& rete =
        Vista().Foglio().Reti()[static_cast<std::size_t>(Vista().Rete_Scelta())];
    return Come_Testo(rete.Come.Riquadri[static_cast<std::size_t>(Vista().Scelto())].Passo);
  }
  QLineEdit& Campo() const { return *scala->findChild<QLineEdit*>("txtBattuta"); }
  QString Detto() const { return scala->findChild<QLabel*>("etDetto")->text(); }
  /// What it stands on, as painted.
  QColor Fondo_Detto() const {
    return scala->findChild<QLabel*>("etDetto")->grab().toImage().pixelColor(1, 1);
  }
  QString Stato() const { return scala->findChild<QLabel*>("etScelto")->text(); }
  bool Campo_Aperto() const { return Campo().isVisible(); }
  void Premi(Qt::Key tasto, Qt::KeyboardModifiers con = Qt::NoModifier) const {
    QTest::keyClick(&Vista(), tasto, con);
  }
  /// Types an instruction at the chosen symbol and confirms it.
  void Batti(const QString& testo) const {
    QTest::keyClick(&Vista(), testo.front().toLatin1());
    ASSERT_TRUE(Campo_Aperto()) << Utf8(Stato());
    QTest::keyClicks(&Campo(), testo.mid(1));
    QTest::keyClick(&Campo(), Qt::Key_Return);
    ASSERT_FALSE(Campo_Aperto()) << Utf8(testo) << ": " << Utf8(Detto());
  }
  void Comanda(const char* nome) const { Azione(*scala, QString::fromUtf8(nome)).trigger(); }

  /// Saves, reads back, compiles and loads as the editor would.
  void Compila() {
    Progetto& progetto = seduta.progetto;
    ASSERT_TRUE(seduta.Leggi(Byte_Di(progetto.Come_Sorgente(progetto.txtList))));
    progetto.Compila();
    ASSERT_EQ(progetto.Errori, 0) << progetto.Lista_Comp;
    scala->Aggiorna();
  }
  void Avvia() {
    seduta.plc.mnuPlcStep();
    seduta.plc.mnuPlcRun();
  }
  void Scansione(int ms = 1) {
    const auto finite = seduta.plc.N_Cicli;
    while (seduta.plc.PLC_Acceso && seduta.plc.N_Cicli == finite) seduta.plc.Esegui_Riga();
    seduta.orologio.Avanza(ms);
    scala->Aggiorna();
  }
  void Ingressi(const std::string& bit) { seduta.plc.SI[0].Stato_I(bit); }
  /// Whether a coil or contact with that operand is active in the picture.
  bool Attivo(const std::string& operando, int quale = 0) const {
    for (std::size_t n = 0; n < Vista().Foglio().Reti().size(); ++n) {
      const Rete_Foglio& rete = Vista().Foglio().Reti()[n];
      const Stato_Rete& stato = Vista().Stato(static_cast<int>(n));
      for (std::size_t k = 0; k < rete.Come.Riquadri.size(); ++k) {
        const Passo_Scala& passo = rete.Come.Riquadri[k].Passo;
        if (passo.Operandi.empty() || passo.Operandi.front() != operando || quale-- > 0) continue;
        return stato.Viva && stato.Flusso.Attivi[k];
      }
    }
    ADD_FAILURE() << operando << " is nowhere";
    return false;
  }

  Seduta seduta;
  std::unique_ptr<FrmMain> editor;
  std::unique_ptr<FrmScala> scala;
  std::string nome_i00;
  QString chiesto, file;
  QStringList avvisi;
};

}  // namespace tavorno::prova
