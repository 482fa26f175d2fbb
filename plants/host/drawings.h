// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QHashFunctions>
#include <QPixmap>
#include <QRectF>
#include <QRgb>
#include <QString>
#include <QStringList>
#include <QSvgRenderer>
#include <map>
#include <memory>
#include <unordered_map>

#include "plants/scene.h"

class QPainter;

namespace tavorno {

/// The vector drawings of one plant: its own file with the symbols of the shared sheet put in. A
/// drawing is a group of the file by its id; where it says "currentColor" it takes the colour that
/// the plant gives it. Classes in the file tell what differs by colour and what moves:
/// - "solo-N", "non-N": only there while the figure has, or has not, the numbered colour N;
/// - "scorre", "torna": dashes run along the path, or back; they repeat after 90 or 180 twips;
/// - "gira", "gira-indietro": a group without a transform of its own turns about its origin and
///   looks the same after a third of a turn;
/// - "volta": a group turns about its upright axis, as blades seen from the side do.
/// Attributes of a group tell the rest; they are named at the functions that read them.
class Disegni {
 public:
  /// A group of the file, and what its attributes tell. It lives as long as the drawings.
  struct Pezzo {
    QString Id, Testo, Simboli;
    bool Colorato = false;  ///< it looks different in another colour
    bool Si_Muove = false;  ///< something in it moves
    QStringList Con;        ///< as `Con_Chi`
    QRectF Entro, Tocco;
    mutable QRectF Limiti;  ///< twips; null until they are asked for
    QString Nome, Rifiuto;
  };

  /// `file`: ":/plants/US-00.svg". A file that cannot be read leaves no drawing.
  explicit Disegni(const QString& file);

  bool Valido() const { return misura_.isValid(); }
  QRectF Misura() const { return misura_; }  ///< of the whole picture, twips
  bool Esiste(const QString& id) const { return pezzi_.contains(id); }
  /// nullptr when there is no such group.
  const Pezzo* Trova(const QString& id) const;
  /// Twips; kept, since finding them walks the drawing.
  QRectF Limiti(const Pezzo& pezzo) const;
  QRectF Limiti(const QString& id) const;  ///< null when there is no such group

  /// Phases until a moving drawing looks the same again.
  static constexpr int Fasi = 24;
  /// Figures ("data-con") with which it moves; empty when it moves as long as it is shown.
  QStringList Con_Chi(const QString& id) const;
  /// What of the picture it never leaves ("data-entro", twips); null without bounds.
  QRectF Entro(const QString& id) const;
  /// Where the hand reaches it besides its own place ("data-tocco", twips); null for nowhere.
  QRectF Tocco(const QString& id) const;
  /// Which device it is ("data-nome"), where its tool tip does not say.
  QString Nome(const QString& id) const;
  /// Why a press on it has no effect when it has none ("data-rifiuto").
  QString Rifiuto(const QString& id) const;

  /// Draws a group at its own place, moved and stretched by `posa`. `scala` is pixels per twip,
  /// without the factor of the screen. What is not stretched is drawn once and kept.
  void Disegna(QPainter& pittore, const Pezzo& pezzo, Colore colore, int fase, double scala,
               const QTransform& posa);

  /// The text of a group as it is drawn. Symbols that look like this only here are added to
  /// `proprie`, under names of their own; the others are what `Definizioni` has.
  QString Testo(const QString& id, Colore colore, int fase, QString& proprie) const;
  /// The definitions of all symbols that the groups of these ids refer to.
  QString Definizioni(const QStringList& ids) const;

 private:
  struct Chiave {
    const Pezzo* Di;
    QRgb Resa;  // our shade of its colour, and the number that it has
    Colore Tinto;
    int Fase;
    bool operator==(const Chiave&) const = default;
    friend std::size_t qHash(const Chiave& chiave, std::size_t seme) {
      return qHashMulti(seme, chiave.Di, chiave.Resa, chiave.Tinto, chiave.Fase);
    }
  };
  struct Tenuto {
    QPixmap Immagine;
    QPointF Posto;  ///< pixels of the unmoved drawing
  };
  struct Teso {
    Colore Tinto = 0;
    QRgb Resa = 0;  // our shade of it
    std::unique_ptr<QSvgRenderer> Disegno;
    QRectF Limiti;  // twips
  };

  void Leggi_Pezzi(const QString& testo);
  void Prepara(Pezzo& pezzo);
  std::unique_ptr<QSvgRenderer> Crea(const Pezzo& pezzo, Colore colore, int fase) const;
  Tenuto Tieni(const Pezzo& pezzo, Colore colore, int fase, double schermo);

  QRectF misura_;
  std::unique_ptr<QSvgRenderer> base_;
  std::map<QString, QString> simboli_;
  std::unordered_map<QString, Pezzo> pezzi_;
  std::map<const Pezzo*, Teso> tesi_;  // what is stretched is drawn anew each time
  QCache<Chiave, Tenuto> tenuti_;
  double scala_tenuti_ = 0;
  double schermo_tenuti_ = 0;
};

/// Our shade of a numbered colour; other colours stay as they are.
QColor Tinta(Colore colore);
/// The same for a text, dark enough to be read on our grounds.
QColor Tinta_Testo(Colore colore);

/// The face of all texts in a picture.
inline constexpr const char* Carattere_Disegni = "DejaVu Sans Condensed";
/// Whether a text is the letters of a device, as "M1", which are bold wherever they stand.
bool In_Grassetto(const QString& testo);

}  // namespace tavorno
