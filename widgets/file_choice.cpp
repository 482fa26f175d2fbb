// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/file_choice.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QTreeView>
#include <algorithm>

namespace tavorno {

namespace {

// Of the process, as the folder that one works in is.
QString& Cartella() {
  static QString cartella = QDir::homePath();
  return cartella;
}

// The library's widths are those of its English words.
void Allarga_Intestazioni(QFileDialog& dialogo, const QTreeView& elenco) {
  QHeaderView& testate = *elenco.header();
  for (int n = 0; n < testate.count(); ++n)
    testate.resizeSection(n, std::max(testate.sectionSize(n), testate.sectionSizeHint(n)));
  constexpr int accanto = 160;  // pixels that the list of places and the edges take
  const QSize misura = dialogo.sizeHint();
  dialogo.resize(std::max(misura.width(), testate.length() + accanto), misura.height());
}

// While one types a path the library selects each folder on the way, and takes what is selected for
// what is meant. Where its list of proposals has taken the focus it forgets to let go of the last.
void Conta_Il_Nome(QFileDialog& dialogo, const QTreeView& elenco) {
  const auto* nome = dialogo.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (nome == nullptr) return;
  QObject::connect(nome, &QLineEdit::textEdited, elenco.selectionModel(),
                   &QItemSelectionModel::clearSelection);
}

QString Chiedi(QFileDialog& dialogo) {
  Ritocca(dialogo);
  if (dialogo.exec() != QDialog::Accepted) return {};
  const QString file = dialogo.selectedFiles().value(0);
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

void Ritocca(QFileDialog& dialogo) {
  const auto* elenco = dialogo.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (elenco == nullptr) return;
  Allarga_Intestazioni(dialogo, *elenco);
  Conta_Il_Nome(dialogo, *elenco);
}

QString Chiedi_Dove_Salvare(QWidget* sopra, const QString& titolo, const QString& filtro,
                            const QString& proposta) {
  QFileDialog dialogo(sopra, titolo, Cartella(), filtro);
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setFileMode(QFileDialog::AnyFile);
  dialogo.selectFile(proposta);
  return Chiedi(dialogo);
}

QString Chiedi_Che_Aprire(QWidget* sopra, const QString& titolo, const QString& filtro) {
  QFileDialog dialogo(sopra, titolo, Cartella(), filtro);
  dialogo.setFileMode(QFileDialog::ExistingFile);
  return Chiedi(dialogo);
}

}  // namespace tavorno
