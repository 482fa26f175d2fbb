// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/file_choice.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace tavorno {

namespace {

// Of the process, as the folder that one works in is.
QString& Cartella() {
  static QString cartella = QDir::homePath();
  return cartella;
}

QString Ricordato(const QString& file) {
  if (!file.isEmpty()) Ricorda_Cartella(QFileInfo(file).absolutePath());
  return file;
}

}  // namespace

QString Cartella_Ricordata() {
  return Cartella();
}

void Ricorda_Cartella(const QString& cartella) {
  if (!cartella.isEmpty() && QFileInfo(cartella).isDir()) Cartella() = cartella;
}

QString Chiedi_Dove_Salvare(QWidget* sopra, const QString& titolo, const QString& filtro,
                            const QString& proposta) {
  return Ricordato(
      QFileDialog::getSaveFileName(sopra, titolo, QDir(Cartella()).filePath(proposta), filtro));
}

QString Chiedi_Che_Aprire(QWidget* sopra, const QString& titolo, const QString& filtro) {
  return Ricordato(QFileDialog::getOpenFileName(sopra, titolo, Cartella(), filtro));
}

}  // namespace tavorno
