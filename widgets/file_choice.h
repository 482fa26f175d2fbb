// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QFileDialog;
class QWidget;

// All file dialogs begin where the last one of the session ended.
namespace tavorno {

/// The folder of the file that was chosen last; the home folder at first.
QString Cartella_Ricordata();
/// `cartella` is ignored when it is no folder.
void Ricorda_Cartella(const QString& cartella);

/// Makes the library's dialog what one expects: a list with whole headers, and a name that counts
/// as it was typed. Called before it shows; a dialog of the desktop is left as it is.
void Ritocca(QFileDialog& dialogo);

/// Ask for a file, with a filter as QFileDialog reads it; empty: none was chosen. `proposta` is the
/// name offered.
QString Chiedi_Dove_Salvare(QWidget* sopra, const QString& titolo, const QString& filtro,
                            const QString& proposta = {});
QString Chiedi_Che_Aprire(QWidget* sopra, const QString& titolo, const QString& filtro);

}  // namespace tavorno
