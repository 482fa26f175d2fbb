// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QProcess>
#include <utility>

#include "widgets/desktop_motion.h"

namespace tavorno {

/// A session bus of its own with a settings portal that tells these settings, until the end of a
/// test.
class Portale : public QDBusVirtualObject {
 public:
  Voci_Scrivania Voci;
  int Domande = 0;

  explicit Portale(Voci_Scrivania voci) : Voci(std::move(voci)) {
    demone_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"),
                   QStringLiteral("--print-address=1")});
    EXPECT_TRUE(demone_.waitForReadyRead()) << "dbus-daemon does not start";
    const QByteArray indirizzo = demone_.readLine().trimmed();
    qputenv(variabile, indirizzo);
    qDBusRegisterMetaType<Voci_Scrivania>();
    auto bus = QDBusConnection::connectToBus(QString::fromLatin1(indirizzo), nome);
    EXPECT_TRUE(bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this));
    EXPECT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
  }
  ~Portale() override {
    QDBusConnection::disconnectFromBus(nome);
    if (c_era_)
      qputenv(variabile, prima_);
    else
      qunsetenv(variabile);
    demone_.kill();
    demone_.waitForFinished();
  }

  QString introspect(const QString& /*path*/) const override { return {}; }
  bool handleMessage(const QDBusMessage& domanda, const QDBusConnection& bus) override {
    if (domanda.member() != QStringLiteral("ReadAll")) return false;
    ++Domande;
    return bus.send(domanda.createReply(QVariant::fromValue(Voci)));
  }

 private:
  static constexpr const char* variabile = "DBUS_SESSION_BUS_ADDRESS";
  inline static const QString nome = QStringLiteral("portale");
  bool c_era_ = qEnvironmentVariableIsSet(variabile);
  QByteArray prima_ = qgetenv(variabile);
  QProcess demone_;
};

}  // namespace tavorno
