// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QPixmap>
#include <QStaticText>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "plants/host/drawings.h"
#include "plants/plant.h"
#include "plc/entries.h"
#include "widgets/screen_reader.h"

namespace tavorno {

/// Draws any plant from its figures and its drawings, and turns mouse and keyboard into the hand of
/// the user: Tab goes from one thing that can be operated to the next, Space presses and releases
/// it, Return clicks it twice, the arrow keys and the wheel turn an up/down.
///
/// What travels glides from one tick of the physics to the next, and what runs is drawn running:
/// both by the view alone, which the physics does not know.
class Quadro : public QWidget, public Per_Lettori {
 public:
  /// `file`: the plant's drawings. The plant must outlive its picture.
  Quadro(Impianto& impianto, const QString& file, QWidget* sopra = nullptr);
  ~Quadro() override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint() * 0.4; }

  /// The topmost visible figure that can be operated there; nullptr for none. Pixels of the widget.
  Figura* Figura_A(const QPointF& punto) const;
  /// Where a figure stands now, in pixels of the widget.
  QRectF Posto(const Figura& figura) const;
  /// Where a figure is drawn at this moment of its way, in pixels of the widget.
  QRectF Posto_Mostrato(const Figura& figura) const;
  /// The id of the group that draws a figure now.
  static QString Gruppo(const Figura& figura);

  /// Lets the user's hand in, and tells whether the plant felt it. At first straight to the plant.
  std::function<bool(const Atto&)> Mano;
  /// What keeps the hand on a figure from the plant, or the plant from the CPU; empty for nothing.
  std::function<QString(const Figura&)> Ostacolo;

  static constexpr int Ritmo = 20;  ///< ms between two drawings at least

  /// Lets time pass for what moves, and plans the drawing of what changed.
  void Avanza(int ms);
  /// Something is on its way or runs, so that drawings follow each other.
  bool Si_Muove() const;
  /// Still pictures: what travels jumps, what runs stands. Until somebody chooses, here or in the
  /// menu of an earlier picture, it is as the desktop asks for.
  void Riduci_Animazioni(bool ridotte);
  bool Animazioni_Ridotte() const { return ridotte_; }

  /// The addresses of the inputs and outputs that a figure stands for: "I0.3", "AIW0".
  QStringList Morsetti_Di(const Figura& figura) const;
  /// Marks the visible figures that stand for one of these addresses; an empty list marks none.
  void Indica(const QStringList& morsetti);
  /// Marks the figures whose input has a fault in its wire: their contact says one thing and the
  /// terminal hears another.
  void Segna_Guasti(const QStringList& morsetti);
  /// The pointer or the keys are on a part with these addresses now; an empty list is none.
  std::function<void(const QStringList& morsetti)> Indicata;

  // picture_words.cpp: the pieces are the figures with a name or something to operate, in drawing
  // order; those that are hidden say so.
  Letto Leggi(int pezzo) const override;
  int Pezzi() const override { return static_cast<int>(letti_.size()); }
  int Pezzo_A_Fuoco() const override;
  std::optional<Numero_Letto> Leggi_Numero(int pezzo) const override;
  void Metti_Numero(int pezzo, double valore) override;
  void Esegui(int pezzo) override;

  /// Asks for the file to save to, "svg" or "png"; an empty name is none.
  std::function<QString(const QString& tipo)> Chiedi_File = [this](const QString& tipo) {
    return Chiedi_Con_Finestra(tipo);
  };
  /// The picture as it is now, as the text of an SVG file.
  QString Come_Svg() const;
  /// The same as points, `scala` times as large as at 100 %.
  QImage Come_Immagine(double scala) const;

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void leaveEvent(QEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void keyReleaseEvent(QKeyEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void showEvent(QShowEvent* evento) override;
  void hideEvent(QHideEvent* evento) override;
  bool focusNextPrevChild(bool avanti) override;
  bool event(QEvent* evento) override;

 private:
  struct Vista {
    Figura* Di;
    QRectF A_Riposo;  ///< twips: where its drawing stands in the file
    QRectF Ultimo;    ///< pixels: where it was drawn last
    QRectF Ora;       ///< twips: where it is drawn, on its way to where it stands
    QRectF Partenza;
    int Durata = 0;     ///< ms of its way
    int Trascorsi = 0;  ///< and what of them has passed
    qint64 Cambiata = -10000;
    qint64 Mossa = -10000;
    int Fase = 0;
    QString Gruppo_Ora;
    const Disegni::Pezzo* Disegno = nullptr;  ///< of this group; nullptr for none
    std::vector<std::size_t> Con;             ///< the figures with which it moves
    QStaticText Scritta;
    bool Grassa = false;   ///< its text
    QStringList Morsetti;  ///< addresses that it stands for
  };

  bool Tocca(const Vista& vista, const QPointF& punto) const;
  QString Detto(const Figura& figura) const;
  double Scala() const;
  QPointF Origine() const;
  bool Si_Opera(const Figura& figura) const;
  bool Gira(const Figura& figura, int passi);
  bool Forza(const Figura& figura);
  void Rispondi(const Figura& figura);
  void Spiega(const Figura& figura, const QString& perche);
  void Avvisa(const QRect& posto, const QString& testo);
  bool Fai(Cosa che, const Figura& figura, double valore = 0);
  static constexpr double Affondo = 10;  ///< twips by which what is pressed sinks
  QSize Punti_Di_Schermo() const;
  bool Tela_Buona() const;
  void Misura_Da_Capo();
  void Metti_Gruppo(Vista& vista);
  void Rifai(const std::vector<QRect>& zone);
  void Ridisegna(const Figura& figura);
  void Disegna_Figure(QPainter& pittore, double scala, const QRect& dove);
  void Disegna_Figura(QPainter& pittore, Vista& vista, double scala);
  void Disegna_Mano(QPainter& pittore);
  QRectF Cornice(const Figura& figura) const;
  QTransform Posa(const Vista& vista, double scala) const;
  QRectF Occupato(const Vista& vista) const;
  QRectF Sporca(Vista& vista);
  QRectF Segnato(const Vista& vista);
  void Nota(Vista& vista);
  bool Corre(const Vista& vista) const;
  const Vista* Vista_Di(const QString& nome) const;
  bool E_Indicata(const Vista& vista) const;
  void Monta_Voci();
  void Scegli_Letti();
  Figura& Figura_Letta(int pezzo) const {
    return *viste_[letti_[static_cast<std::size_t>(pezzo)]].Di;
  }
  QString Stato_Detto(const Figura& figura) const;
  void Annuncia_Aspetto(const Vista& vista);
  void Ferma(bool ridotte);
  void Senti_Scrivania();
  void Ricorda_Scelta();
  void Salva(const QString& tipo);
  QString Chiedi_Con_Finestra(const QString& tipo);
  /// `mano`: `mouse_` or `spazio_`.
  void Premi(Figura*& mano, Figura& figura);
  void Rilascia(Figura*& mano, bool sopra);
  void Passa_Sopra(Figura* figura);
  void Punta(const Figura* figura);
  static QStringList Leggi_Morsetti(const Figura& figura);
  void Disegna_Indicate(QPainter& pittore);
  void Disegna_Guasti(QPainter& pittore);
  template <class Quali>
  Figura* In_Cima(const QPointF& punto, Quali quali) const;
  std::vector<Vista*> Operabili();
  void Metti_Fuoco(const Figura& figura, bool in_vista);
  Vista* A_Fuoco();

  Impianto& impianto_;
  mutable Disegni disegni_;
  std::vector<Vista> viste_;  // in drawing order
  QPixmap sfondo_;            // what stands still, for the present size
  QPixmap tela_;              // the picture as it is now, without the marks of the hand
  QFont carattere_;
  std::vector<std::size_t> letti_;  // those that screen readers are told of
  Annunci_Parchi annunci_;
  QTimer ritmo_;
  QElapsedTimer orologio_;
  qint64 tempo_ = 0;  // of the view, ms
  bool ridotte_ = false;
  QAction* riduci_ = nullptr;    // its tick
  bool scelto_ = false;          // somebody has chosen between moving and still pictures
  QString fuoco_;                // name of the figure that the keyboard operates
  bool fuoco_in_vista_ = false;  // its frame would cross labels, so it waits for a key
  Figura* sopra_ = nullptr;      // under the pointer
  QStringList indicati_;         // addresses whose parts are marked
  QStringList puntati_;          // addresses that `Indicata` was told last
  QStringList guasti_;           // addresses whose wire has a fault
  bool senza_effetto_ = false;   // since the last press nothing has changed
  bool tasto_giu_ = false;       // of the mouse
  std::optional<std::pair<QRect, QString>> da_dire_;  // once it is let go
  // Held down. There are two, so that a hand on each can hold two buttons at once.
  Figura* mouse_ = nullptr;
  Figura* spazio_ = nullptr;
};

}  // namespace tavorno
