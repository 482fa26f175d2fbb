// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "panel/documents/help_folder.h"
#include "widgets/text.h"

namespace tavorno {

/// A program folder with a few help pages, and a page beside them that must never be read.
class Pagine_Di_Prova : public ::testing::Test {
 protected:
  Pagine_Di_Prova() {
    QDir(Radice()).mkpath(Q("HTML/Panel"));
    guida.Dir_Help = Radice() + Q("/HTML/");
    guida.Dir_Panel = Radice() + Q("/HTML/Panel/");
    Scrivi("HTML/Index.htm",
           "<html><head><title>Indice</title></head><body><p>Benvenuto, studente.</p>"
           "<a href=\"Panel/US-00.htm\">primo</a> <a name=\"fine\">fine</a></body></html>");
    Scrivi("HTML/SET_IST.htm", "<title>Istruzioni</title><p>Il timer TON conta.</p>");
    Scrivi("HTML/Index-AWL.htm", "<title>Linguaggio</title><p>Pila logica</p>");
    Scrivi("HTML/Panel/US-00.htm", "<title>00 Marcia</title><p>Il motore gira.</p>");
    Scrivi("HTML/Senza.htm", "<p>nessun titolo</p>");
    Scrivi("segreto.htm", "<title>Segreto</title><p>PAROLA_SEGRETA</p>");
    QImage(7, 5, QImage::Format_RGB32).save(Radice() + Q("/segreto.png"));
    QImage(9, 6, QImage::Format_RGB32).save(guida.Dir_Help + Q("buona.png"));
  }

  QString Radice() const { return cartella_.path(); }

  void Scrivi(const char* nome, const QByteArray& testo) {
    QFile file(Radice() + '/' + Q(nome));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(testo);
  }

  Guida guida;

 private:
  QTemporaryDir cartella_;
};

}  // namespace tavorno
