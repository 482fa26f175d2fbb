// SPDX-License-Identifier: GPL-3.0-or-later
// What is seen, as a file.
#include <QBuffer>
#include <QImage>
#include <QPainter>

#include "awl/file_io.h"
#include "recorder/ui/diagram_window.h"
#include "widgets/colours.h"
#include "widgets/file_choice.h"
#include "widgets/text.h"

namespace tavorno {

namespace {

constexpr double finezza = 2;  // of a saved image, times its size at 100 %
constexpr const char* titolo = "Diagramma dei tempi";

QString Filtro(const QString& tipo) {
  return tipo == u"svg"   ? QStringLiteral("Disegni (*.svg *.SVG)")
         : tipo == u"png" ? QStringLiteral("Immagini (*.png *.PNG)")
                          : QStringLiteral("Registrazioni (*.vcd *.VCD)");
}

}  // namespace

static QString Chiedi_Dove(QWidget* sopra, const QString& tipo) {
  return Chiedi_Dove_Salvare(sopra, QStringLiteral("Salva il diagramma"), Filtro(tipo));
}

void FrmTempi::Salva_Come(const QString& tipo) {
  const QString scelto = Chiedi_File ? Chiedi_File(tipo) : Chiedi_Dove(this, tipo);
  if (scelto.isEmpty()) return;
  const QString file =
      scelto.endsWith('.' + tipo, Qt::CaseInsensitive) ? scelto : scelto + '.' + tipo;
  QString perche;
  if (Salva(file, tipo, perche))
    Di("Salvato in " + file);
  else
    Avvisa({"Errore!",
            Utf8("Il diagramma non si può salvare in\n" + file + '\n' + perche),
            Icona::Critica,
            Tasti::Ok,
            {}});
}

bool FrmTempi::Salva(const QString& file, const QString& tipo, QString& perche) {
  // All rows, those that are scrolled away too.
  Misura_Disegno misura = tela_->Misura();
  misura.Scorrimento = 0;
  misura.Alta = Misura_Disegno::Asse + diagramma_.Alto() + 1;

  std::string byte;
  if (tipo == u"svg") {
    byte = Come_Svg(Disegna(diagramma_, misura), misura, titolo);
  } else if (tipo == u"png") {
    QImage immagine((QSizeF(misura.Larga, misura.Alta) * finezza).toSize(), QImage::Format_RGB32);
    immagine.setDevicePixelRatio(finezza);
    immagine.fill(colori::Bianco);
    QPainter pittore(&immagine);
    pittore.setFont(font());
    Dipingi(pittore, Disegna(diagramma_, misura), colori::Carta);
    pittore.end();
    QBuffer dentro;
    dentro.open(QIODevice::WriteOnly);
    immagine.save(&dentro, "PNG");
    byte = dentro.data().toStdString();
  } else {
    std::vector<std::size_t> numeri;
    for (const Segnale& segnale : diagramma_.Mostrati())
      numeri.push_back(*registrazione_.Cerca(segnale.Indirizzo));
    byte =
        Testo_Vcd(registrazione_.Ritaglio(numeri, registrazione_.Inizio(), registrazione_.Fine()));
  }
  const std::string errore = Scrivi_File(Utf8(file), byte);
  perche = Q(errore);
  return errore.empty();
}

}  // namespace tavorno
