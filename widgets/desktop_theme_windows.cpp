// SPDX-License-Identifier: GPL-3.0-or-later
// clang-format off
#include <windows.h>
// clang-format on
#include <QAbstractNativeEventFilter>
#include <QApplication>

#include "widgets/dark_choice.h"
#include "widgets/desktop_theme.h"

namespace tavorno {

namespace {

void Metti(bool scura) {
  // An empty palette gives the system's own back.
  QApplication::setPalette(scura ? Tavolozza_Scura() : QPalette());
}

/// Every top-level window is told of a change; the first that tells it counts.
class Ascolto_Scrivania : public QObject, public QAbstractNativeEventFilter {
 public:
  explicit Ascolto_Scrivania(QObject* sopra) : QObject(sopra) {
    if (scura_) Metti(true);
    qApp->installNativeEventFilter(this);
  }

  bool nativeEventFilter(const QByteArray& /*tipo*/, void* messaggio, qintptr* /*esito*/) override {
    if (static_cast<const MSG*>(messaggio)->message != WM_SETTINGCHANGE) return false;
    const bool scura = Vuole_Scuro(Leggi_Scelta());
    if (scura == scura_) return false;
    scura_ = scura;
    // The windows take their new colours when the system's message is through.
    QMetaObject::invokeMethod(
        this, [this] { Metti(scura_); }, Qt::QueuedConnection);
    return false;
  }

 private:
  bool scura_ = Vuole_Scuro(Leggi_Scelta());
};

}  // namespace

void Segui_Scrivania() {
  new Ascolto_Scrivania(qApp);
}

}  // namespace tavorno
