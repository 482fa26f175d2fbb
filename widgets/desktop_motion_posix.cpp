// SPDX-License-Identifier: GPL-3.0-or-later
// The settings portal speaks for all desktops. Only a session bus that runs is asked: none is
// started for this.
#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QFileInfo>

#include "widgets/desktop_motion.h"

namespace tavorno {

namespace {

QString Indirizzo_Bus() {
  const QString detto = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
  if (!detto.isEmpty()) return detto;
  const QString solito = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
  return QFileInfo::exists(solito) ? QStringLiteral("unix:path=") + solito : QString();
}

}  // namespace

void Chiedi_Se_Fermo(QObject& chi, const std::function<void(bool fermo)>& risposta) {
  const QString indirizzo = Indirizzo_Bus();
  if (indirizzo.isEmpty()) return;
  const QDBusConnection bus = QDBusConnection::connectToBus(indirizzo, indirizzo);
  if (!bus.isConnected()) return;
  qDBusRegisterMetaType<Voci_Scrivania>();
  auto domanda = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"),
                                                QStringLiteral("/org/freedesktop/portal/desktop"),
                                                QStringLiteral("org.freedesktop.portal.Settings"),
                                                QStringLiteral("ReadAll"));
  domanda << QStringList{QStringLiteral("org.freedesktop.appearance"),
                         QStringLiteral("org.gnome.desktop.interface"),
                         QStringLiteral("org.kde.kdeglobals.KDE")};
  auto* attesa = new QDBusPendingCallWatcher(bus.asyncCall(domanda), &chi);
  QObject::connect(attesa, &QDBusPendingCallWatcher::finished, &chi,
                   [risposta](QDBusPendingCallWatcher* finita) {
                     finita->deleteLater();
                     const QDBusPendingReply<Voci_Scrivania> detto = *finita;
                     if (detto.isValid()) risposta(Chiede_Fermo(detto.value()));
                   });
}

}  // namespace tavorno
