// SPDX-License-Identifier: GPL-3.0-or-later
// A hasty user: random clicks, keys, wheels and commands on all windows of the program, from a
// seed. Files come and go in a folder of its own; dialogs that could reach others are closed at
// once. Usage: monkey SEED STEPS. Status 0, or 70 when the CPU came to a fatal end, which programs
// may bring about; anything else is a fault.
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>

#include "assets/resources.h"
#include "panel/application.h"
#include "panel/child_windows.h"
#include "panel/run_driver.h"
#include "panel/safekeeping.h"
#include "panel/session_bar.h"
#include "panel/session_wires.h"
#include "recorder/recorder.h"
#include "tests/gui/support/foreign_focus.h"
#include "tests/support/temporary_folder.h"
#include "widgets/clear_style.h"
#include "widgets/message_box.h"
#include "widgets/text.h"

namespace {

using namespace tavorno;

struct Tasto {
  Qt::Key Quale;
  Qt::KeyboardModifiers Con = Qt::NoModifier;
};

constexpr Tasto tasti[] = {
    {Qt::Key_Return},
    {Qt::Key_Return},
    {Qt::Key_Tab},
    {Qt::Key_Escape},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_PageDown},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_Backspace},
    {Qt::Key_Delete},
    {Qt::Key_Space},
    {Qt::Key_F2},
    {Qt::Key_F5},
    {Qt::Key_F5, Qt::ShiftModifier},
    {Qt::Key_F6},
    {Qt::Key_F7},
    {Qt::Key_F8},
    {Qt::Key_F10},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Y, Qt::ControlModifier},
    {Qt::Key_1, Qt::ControlModifier},
    {Qt::Key_2, Qt::ControlModifier},
    {Qt::Key_3, Qt::ControlModifier},
    {Qt::Key_Space, Qt::ControlModifier},
    {Qt::Key_Return, Qt::ControlModifier},
};
constexpr const char* frammenti[] = {"LD I0.0", "= Q0.0", "TON T37,+5", "CALL SBR_0", "NETWORK 2",
                                     "//nota",  "JMP 1",  "LBL 1",      "MOVW 3,VW0", "x9,,/"};

/// A part under the hand. It may go with the press of a button or a key, and then there is nothing
/// to let go of.
class Parte_Viva {
 public:
  explicit Parte_Viva(QWidget* parte) : parte_(parte) {}

  void Clicca(Qt::MouseButton tasto, QPoint dove, bool doppio = false) const {
    if (parte_ && doppio) QTest::mouseDClick(parte_, tasto, {}, dove);
    if (parte_ && !doppio) QTest::mousePress(parte_, tasto, {}, dove);
    if (parte_) QTest::mouseRelease(parte_, tasto, {}, dove);
  }
  void Batti(Qt::Key tasto, Qt::KeyboardModifiers con) const {
    if (parte_) QTest::keyPress(parte_, tasto, con);
    if (parte_) QTest::keyRelease(parte_, tasto, con);
  }
  void Scrivi(const char* testo) const {
    for (; *testo != '\0' && parte_; ++testo) {
      QTest::keyPress(parte_, *testo);
      if (parte_) QTest::keyRelease(parte_, *testo);
    }
  }

 private:
  QPointer<QWidget> parte_;
};

class Scimmia : public QObject {
 public:
  Scimmia(unsigned seme, int passi, FrmPLC& pannello, Progetto& progetto,
          const std::filesystem::path& cartella)
      : caso_(seme), restano_(passi), pannello_(pannello), cartella_(cartella) {
    const Dialoghi dialoghi = {
        [](const Avviso& avviso) { return Mostra_Avviso(nullptr, avviso); },
        [this](const Richiesta_File& richiesta) { return Scegli_File(richiesta); }};
    progetto.Riserva = dialoghi;
    progetto.Chiedi = dialoghi;
    for (const auto& voce : std::filesystem::directory_iterator(TAVORNO_EXAMPLES)) {
      if (voce.path().extension() != ".AWL") continue;
      std::filesystem::copy_file(voce.path(), cartella_ / voce.path().filename());
      nomi_.push_back(voce.path().filename().string());
    }
    std::ranges::sort(nomi_);
    pannello_.installEventFilter(this);
    Prossimo();
  }

  int Fatti() const { return fatti_; }
  QString File_Di_Seduta() {
    return Uno_Di(8) == 0 ? QString()
                          : Q((cartella_ / ("s" + std::to_string(Uno_Di(3)) + ".seduta")).string());
  }

 protected:
  /// The program goes on until the steps are done.
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::Close && restano_ > 0) {
      evento->ignore();
      return true;
    }
    return QObject::eventFilter(oggetto, evento);
  }

 private:
  unsigned Uno_Di(std::size_t quanti) {
    return static_cast<unsigned>(caso_() % std::max<std::size_t>(quanti, 1));
  }
  template <class Elenco>
  auto& Preso(Elenco& elenco) {
    return elenco[Uno_Di(std::size(elenco))];
  }

  /// A new event each, so that it comes inside of dialogs as well.
  void Prossimo() {
    QTimer::singleShot(0, this, [this] {
      if (restano_ > 0) {
        --restano_;
        Prossimo();
        Fa();
        ++fatti_;
        for (const std::string& nome : Con_Un_Fuoco_D_Altri())
          qFatal("a focus that has left it: %s", nome.c_str());
      } else {
        Finisci();
      }
    });
  }
  /// Out of all dialogs, then the panel's own end, with its question answered.
  void Finisci() {
    QTimer::singleShot(0, this, [this] { Finisci(); });
    if (QWidget* sopra = QApplication::activePopupWidget()) {
      sopra->close();
    } else if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      QAbstractButton* no = box->button(QMessageBox::No);
      (no != nullptr ? no : box->buttons().constFirst())->click();
    } else if (QWidget* modale = QApplication::activeModalWidget()) {
      modale->close();
    } else {
      pannello_.close();
    }
  }

  std::optional<File_Scelto> Scegli_File(const Richiesta_File& richiesta) {
    if (Uno_Di(8) == 0) return std::nullopt;
    const bool testo = richiesta.Filtro.find("TXT") != std::string::npos;
    const std::string nome = richiesta.Salva ? "s" + std::to_string(Uno_Di(4)) : Preso(nomi_);
    const std::string titolo = richiesta.Salva ? nome + (testo ? ".TXT" : ".AWL") : nome;
    return File_Scelto{(cartella_ / titolo).string(), titolo};
  }

  QWidget* Finestra() {
    if (QWidget* sopra = QApplication::activePopupWidget()) return sopra;
    if (QWidget* modale = QApplication::activeModalWidget()) return modale;
    QWidgetList aperte;
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
      if (finestra->isVisible() && finestra->isWindow()) aperte << finestra;
    }
    std::ranges::sort(aperte, {}, [](const QWidget* w) { return w->objectName(); });
    return aperte.isEmpty() ? nullptr : aperte[static_cast<int>(Uno_Di(aperte.size()))];
  }

  void Fa() {
    QWidget* finestra = Finestra();
    if (finestra == nullptr) return;
    if (qobject_cast<QFileDialog*>(finestra) != nullptr || finestra->inherits("QPrintDialog")) {
      finestra->close();
      return;
    }
    QWidgetList parti = finestra->findChildren<QWidget*>();
    parti.removeIf([](const QWidget* w) { return !w->isVisible() || w->size().isEmpty(); });
    parti << finestra;
    QWidget* parte = parti[static_cast<int>(Uno_Di(parti.size()))];
    const QPoint dove(static_cast<int>(Uno_Di(parte->width())),
                      static_cast<int>(Uno_Di(parte->height())));
    const Qt::MouseButton tasto = Uno_Di(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    const Parte_Viva viva(parte);
    switch (Uno_Di(16)) {
      case 0:
        viva.Clicca(Qt::LeftButton, dove);
        viva.Clicca(Qt::LeftButton, dove, true);
        break;
      case 1:
        QTest::mousePress(parte, tasto, {}, dove);
        break;
      case 2:
        QTest::mouseRelease(parte, tasto, {}, dove);
        break;
      case 3: {
        QWheelEvent ruota(dove, parte->mapToGlobal(dove), {}, {0, Uno_Di(2) == 0 ? 120 : -120},
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(parte, &ruota);
        break;
      }
      case 4:
      case 5:
        Comanda(*finestra);
        break;
      case 6:
        viva.Scrivi(Preso(frammenti));
        break;
      case 7:
      case 8:
      case 9: {
        const Tasto& scelto = Preso(tasti);
        finestra->activateWindow();
        viva.Batti(scelto.Quale, scelto.Con);
        break;
      }
      case 10:
        if (finestra != &pannello_ && Uno_Di(4) == 0)
          finestra->close();
        else
          finestra->resize(finestra->size() + QSize(static_cast<int>(Uno_Di(41)) - 20,
                                                    static_cast<int>(Uno_Di(41)) - 20));
        break;
      default:
        viva.Clicca(tasto, dove);
    }
  }
  /// A command of the window's menus and bars, "Termina" too. A menu closes before what was chosen
  /// in it begins.
  void Comanda(QWidget& finestra) {
    QList<QAction*> voci = finestra.findChildren<QAction*>();
    voci.removeIf([](const QAction* v) { return !v->isEnabled() || v->menu() != nullptr; });
    if (voci.isEmpty()) return;
    const QPointer<QAction> voce = voci[static_cast<int>(Uno_Di(voci.size()))];
    if (finestra.windowType() == Qt::Popup) finestra.close();
    if (voce) voce->trigger();
  }

  std::mt19937 caso_;
  int restano_, fatti_ = 0;
  FrmPLC& pannello_;
  std::filesystem::path cartella_;
  std::vector<std::string> nomi_;
};

}  // namespace

int main(int argc, char** argv) {
  const auto seme = static_cast<unsigned>(argc > 1 ? std::atoi(argv[1]) : 1);
  const int passi = argc > 2 ? std::atoi(argv[2]) : 1000;
  const prova::Cartella_Temporanea cartella;
  for (const char* variabile : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
    qputenv(variabile, cartella.string().c_str());
  QDir::setCurrent(Q(cartella.string()));
  Applicazione applicazione(argc, argv);
  Applicazione::setStyle(new Stile_Chiaro);
  Applicazione::setQuitOnLastWindowClosed(false);
  Apri_Risorse();

  Orologio orologio;
  Plc plc(orologio);
  Progetto progetto(plc, {});
  const Iscrizione messaggi =
      plc.Hook.Mostra.Ascolta([](const Avviso& avviso) { Mostra_Avviso(nullptr, avviso); });
  Registratore registratore(plc);
  const Iscrizione programmi =
      progetto.Programma_Cambiato.Ascolta([&registratore] { registratore.Programma_Nuovo(); });
  Guida guida{QStringLiteral(TAVORNO_HELP "/"), QStringLiteral(TAVORNO_HELP "/Panel/"), {}};
  FrmPLC pannello(plc, progetto);
  Guida_Corsa corsa(plc, [&pannello] { pannello.Aggiorna(); });
  Finestre finestre(pannello, plc, progetto, guida);
  Salvaguardia salvaguardia(progetto, pannello, finestre, cartella / "stato");
  Barra_Seduta seduta(pannello, plc, registratore, corsa);
  Collega_Seduta(seduta, finestre, registratore);
  pannello.show();
  Scimmia scimmia(seme, passi, pannello, progetto, cartella);
  seduta.Chiedi_File = [&scimmia](bool) { return scimmia.File_Di_Seduta(); };
  applicazione.Fine_Fatale = [&](const Fatale& fatale) {
    salvaguardia.Scrivi_Ora();
    std::printf("seed %u: a fatal end after %d steps: %s\n", seme, scimmia.Fatti(),
                Rapporto_Fine(fatale, plc).c_str());
    std::fflush(stdout);
    std::filesystem::current_path("/");
    std::error_code nessuno;
    std::filesystem::remove_all(cartella, nessuno);
  };
  const int stato = Applicazione::exec();
  std::printf("seed %u: %d steps\n", seme, scimmia.Fatti());
  return stato == 0 && scimmia.Fatti() == passi ? 0 : 1;
}
