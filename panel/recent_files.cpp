// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/recent_files.h"

#include <QFileInfo>
#include <QSettings>

#include "widgets/file_choice.h"

namespace tavorno {

namespace {

constexpr char chiave_elenco[] = "progetti/recenti";
constexpr char chiave_cartella[] = "progetti/cartella";

}  // namespace

void File_Recenti::Ricorda_In(QSettings& dove) {
  dove_ = &dove;
  elenco_ = dove.value(QLatin1String(chiave_elenco)).toStringList().mid(0, Quanti);
  Ricorda_Cartella(dove.value(QLatin1String(chiave_cartella)).toString());
}

void File_Recenti::Usato(const QString& file) {
  const QString intero = QFileInfo(file).absoluteFilePath();
  elenco_.removeAll(intero);
  elenco_.prepend(intero);
  elenco_ = elenco_.mid(0, Quanti);
  if (dove_ == nullptr) return;
  dove_->setValue(QLatin1String(chiave_elenco), elenco_);
  dove_->setValue(QLatin1String(chiave_cartella), Cartella_Ricordata());
}

QStringList File_Recenti::Elenco() const {
  QStringList presenti;
  for (const QString& file : elenco_)
    if (QFileInfo(file).isFile()) presenti << file;
  return presenti;
}

}  // namespace tavorno
