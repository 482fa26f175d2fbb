// SPDX-License-Identifier: GPL-3.0-or-later
// What a plant looks like. What moves is in picture_motion.cpp, mouse and keys in
// picture_input.cpp.
#include "plants/host/picture_widget.h"

#include <QBackingStore>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "widgets/colours.h"
#include "widgets/text.h"
#include "widgets/twips.h"

namespace tavorno {

namespace {

QRectF Rettangolo(const Figura& figura) {
  return {figura.Left(), figura.Top(), figura.Width(), figura.Height()};
}

}  // namespace

Quadro::Quadro(Impianto& impianto, const QString& file, QWidget* sopra)
    : QWidget(sopra),
      impianto_(impianto),
      disegni_(file),
      carattere_(QLatin1String{Carattere_Disegni}),
      annunci_(*this) {
  carattere_.setPixelSize(120);  // twips
  setObjectName(QStringLiteral("Quadro"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  Ricorda_Scelta();
  Monta_Voci();
  for (Figura& figura : impianto_.Disegno) {
    Vista vista;
    vista.Di = &figura;
    vista.Scritta.setTextFormat(Qt::PlainText);
    vista.A_Riposo = vista.Ora = Rettangolo(figura);
    vista.Morsetti = Leggi_Morsetti(figura);
    viste_.push_back(vista);
  }
  for (Vista& vista : viste_) Metti_Gruppo(vista);
  Scegli_Letti();

  ritmo_.setInterval(Ritmo);
  ritmo_.setTimerType(Qt::PreciseTimer);
  ritmo_.callOnTimeout(this, [this] {
    Avanza(static_cast<int>(std::min<qint64>(orologio_.restart(), 1000)));
    if (!Si_Muove()) ritmo_.stop();
  });
  orologio_.start();
  impianto_.Disegno.Prendi_Cambiate();  // what the making of the plant changed; all is drawn anyway
  impianto_.Disegno.Cambiata = [this] {
    senza_effetto_ = false;
    if (!ritmo_.isActive() && isVisible()) ritmo_.start();
  };
}

Quadro::~Quadro() {
  impianto_.Disegno.Cambiata = nullptr;
}

QSize Quadro::sizeHint() const {
  return (disegni_.Misura().size() / Twip_Per_Pixel).toSize();
}

double Quadro::Scala() const {
  const QSizeF misura = disegni_.Misura().size();
  if (misura.isEmpty()) return 1.0 / Twip_Per_Pixel;
  return std::min(width() / misura.width(), height() / misura.height());
}

QPointF Quadro::Origine() const {
  const QSizeF disegno = disegni_.Misura().size() * Scala();
  return {(width() - disegno.width()) / 2, (height() - disegno.height()) / 2};
}

QRectF Quadro::Posto(const Figura& figura) const {
  const QRectF twip = Rettangolo(figura);
  return {Origine() + twip.topLeft() * Scala(), twip.size() * Scala()};
}

QRectF Quadro::Posto_Mostrato(const Figura& figura) const {
  const Vista* vista = Vista_Di(Q(figura.Nome));
  const QRectF twip = vista != nullptr ? vista->Ora : QRectF();
  return {Origine() + twip.topLeft() * Scala(), twip.size() * Scala()};
}

QString Quadro::Gruppo(const Figura& figura) {
  const QString nome = Q(figura.Nome);
  return figura.Picture().empty() ? nome : nome + '.' + Q(figura.Picture());
}

/// Finds what draws a figure now, so that drawing it needs no search.
void Quadro::Metti_Gruppo(Vista& vista) {
  vista.Gruppo_Ora = Gruppo(*vista.Di);
  vista.Disegno = disegni_.Trova(vista.Gruppo_Ora);
  vista.Con.clear();
  if (vista.Disegno == nullptr) return;
  for (const QString& nome : vista.Disegno->Con) {
    const Vista* altra = Vista_Di(nome);
    if (altra != nullptr) vista.Con.push_back(static_cast<std::size_t>(altra - viste_.data()));
  }
}

const Quadro::Vista* Quadro::Vista_Di(const QString& nome) const {
  for (const Vista& vista : viste_) {
    if (nome == QLatin1String(vista.Di->Nome.data(), static_cast<int>(vista.Di->Nome.size())))
      return &vista;
  }
  return nullptr;
}

// Where a figure paints now, with what its drawing has outside the figure's own rectangle.
QRectF Quadro::Occupato(const Vista& vista) const {
  if (!vista.Di->Visible()) return {};
  QRectF limiti = vista.A_Riposo;
  if (vista.Disegno != nullptr) limiti |= disegni_.Limiti(*vista.Disegno);
  const double scala = Scala();
  QTransform posa = Posa(vista, scala);
  const QRectF pixel(limiti.topLeft() * scala, limiti.size() * scala);
  const double affonda = vista.Di->Operabile() ? Affondo * scala : 0;
  return posa.mapRect(pixel).translated(Origine()).adjusted(-3, -3, 3, 3 + affonda);
}

QTransform Quadro::Posa(const Vista& vista, double scala) const {
  QTransform posa;
  posa.translate(vista.Ora.left() * scala, vista.Ora.top() * scala);
  if (vista.Ora.size() != vista.A_Riposo.size() && !vista.A_Riposo.isEmpty())
    posa.scale(vista.Ora.width() / vista.A_Riposo.width(),
               vista.Ora.height() / vista.A_Riposo.height());
  posa.translate(-vista.A_Riposo.left() * scala, -vista.A_Riposo.top() * scala);
  return posa;
}

// Pieces on the screen show what the last beat has drawn. What has changed since then would plan
// one more drawing from within each, so that they follow each other as fast as the plant changes.
void Quadro::paintEvent(QPaintEvent* evento) {
  const bool da_capo = !Tela_Buona();
  const bool intero = evento->region() == QRegion(rect());
  QPoint spostato;
  const bool sullo_schermo =
      backingStore() != nullptr && redirected(&spostato) == backingStore()->paintDevice();
  if (da_capo || intero || !sullo_schermo) Avanza(0);
  if (da_capo)
    Misura_Da_Capo();
  else if (intero)
    Rifai({rect()});
  QPainter pittore(this);
  pittore.drawPixmap(0, 0, tela_);
  pittore.setRenderHint(QPainter::Antialiasing);
  Disegna_Guasti(pittore);
  Disegna_Indicate(pittore);
  Disegna_Mano(pittore);
}

QSize Quadro::Punti_Di_Schermo() const {
  return (QSizeF(size()) * devicePixelRatioF()).toSize().expandedTo({1, 1});
}

/// Two screens may have as many dots for sizes that differ.
bool Quadro::Tela_Buona() const {
  return tela_.size() == Punti_Di_Schermo() && tela_.devicePixelRatio() == devicePixelRatioF();
}

// What stands still is one opaque picture, which is copied faster than anything is blended.
void Quadro::Misura_Da_Capo() {
  for (Vista& vista : viste_) vista.Ultimo = Occupato(vista);
  sfondo_ = QPixmap(Punti_Di_Schermo());
  sfondo_.setDevicePixelRatio(devicePixelRatioF());
  sfondo_.fill(colori::Quadro_Fondo);
  QPainter pittore(&sfondo_);
  pittore.translate(Origine());
  const Disegni::Pezzo* fondo = disegni_.Trova(QStringLiteral("fondo"));
  if (fondo != nullptr) disegni_.Disegna(pittore, *fondo, 0, 0, Scala(), {});
  pittore.end();
  tela_ = sfondo_.copy();
  tela_.setDevicePixelRatio(devicePixelRatioF());
  Rifai({rect()});
}

/// Draws anew what stands in these rectangles. One after the other, since
/// what is clipped to many of them at once is drawn several times as slowly.
void Quadro::Rifai(const std::vector<QRect>& zone) {
  if (!Tela_Buona()) {
    tela_ = QPixmap();  // even if it gets back its size: the next showing begins from nothing
    return;
  }
  QPainter pittore(&tela_);
  pittore.setRenderHint(QPainter::Antialiasing);
  for (const QRect& zona : zone) {
    pittore.setClipRect(zona);
    pittore.drawPixmap(0, 0, sfondo_);
    pittore.translate(Origine());
    Disegna_Figure(pittore, Scala(), zona);
    pittore.translate(-Origine());
  }
}

void Quadro::Disegna_Figure(QPainter& pittore, double scala, const QRect& dove) {
  for (Vista& vista : viste_) {
    if (vista.Di->Visible() && dove.intersects(vista.Ultimo.toAlignedRect()))
      Disegna_Figura(pittore, vista, scala);
  }
}

void Quadro::Disegna_Figura(QPainter& pittore, Vista& vista, double scala) {
  const Figura& figura = *vista.Di;
  const QRectF entro = vista.Disegno == nullptr ? QRectF() : vista.Disegno->Entro;
  if (!entro.isNull()) {
    pittore.save();
    pittore.setClipRect(QRectF(entro.topLeft() * scala, entro.size() * scala), Qt::IntersectClip);
  }
  QTransform posa = Posa(vista, scala);
  // What has no sunken drawing of its own sinks under the hand all the same.
  const bool premuta = &figura == mouse_ || &figura == spazio_;
  if (premuta) posa *= QTransform::fromTranslate(0, Affondo * scala);
  if (vista.Disegno != nullptr)
    disegni_.Disegna(pittore, *vista.Disegno, figura.FillColor(), vista.Fase, scala, posa);
  if (!entro.isNull()) pittore.restore();

  if (figura.Caption().empty()) return;
  // Laid out in twips, as the drawn texts are, and as large as they are at every scale. Its glyphs
  // are looked up once and not at each drawing.
  const QString testo = Q(figura.Caption());
  if (vista.Scritta.text() != testo) {
    vista.Grassa = In_Grassetto(testo);
    carattere_.setBold(vista.Grassa);
    vista.Scritta.setText(testo);
    vista.Scritta.prepare(QTransform::fromScale(scala, scala), carattere_);
  }
  if (carattere_.bold() != vista.Grassa) carattere_.setBold(vista.Grassa);
  pittore.setFont(carattere_);
  pittore.setPen(Tinta_Testo(figura.ForeColor()));
  const QSizeF grande = vista.Scritta.size();
  QPointF dove = vista.Ora.center() - QPointF(grande.width() / 2, grande.height() / 2);
  if (premuta) dove += QPointF(0, Affondo);
  const QTransform prima = pittore.transform();
  pittore.scale(scala, scala);
  pittore.drawStaticText(dove, vista.Scritta);
  pittore.setTransform(prima);
}

/// What a mark of the hand goes around: the drawing, where it leaves room in its figure. Labels
/// stand close to the figures.
QRectF Quadro::Cornice(const Figura& figura) const {
  const QRectF posto = Posto_Mostrato(figura).adjusted(1, 1, -1, -1);
  const Vista* vista = Vista_Di(Q(figura.Nome));
  if (vista->Disegno == nullptr) return posto;
  const double scala = Scala();
  const QRectF limiti = disegni_.Limiti(*vista->Disegno);
  const QRectF disegno =
      Posa(*vista, scala).mapRect(QRectF(limiti.topLeft() * scala, limiti.size() * scala));
  const QRectF dentro = posto.intersected(disegno.translated(Origine()).adjusted(-2, -2, 2, 2));
  constexpr double troppo_poco = 0.6;  // of the figure: a mere piece of it has a drawing
  const bool quasi_tutto = dentro.width() >= posto.width() * troppo_poco &&
                           dentro.height() >= posto.height() * troppo_poco;
  return quasi_tutto ? dentro : posto;
}

/// What the hand can reach and what the keys are on.
void Quadro::Disegna_Mano(QPainter& pittore) {
  const QColor segno_mano = colori::Segno_Mano;
  pittore.setBrush(Qt::NoBrush);
  if (sopra_ != nullptr && Si_Opera(*sopra_)) {
    QColor lieve = segno_mano;
    lieve.setAlphaF(0.55F);
    pittore.setPen(QPen(lieve, 1.5));
    pittore.drawRoundedRect(Cornice(*sopra_), 5, 5);
  }
  const Vista* fuoco = hasFocus() && fuoco_in_vista_ ? A_Fuoco() : nullptr;
  if (fuoco == nullptr) return;
  pittore.setPen(QPen(segno_mano, 2));
  pittore.drawRoundedRect(Cornice(*fuoco->Di), 4, 4);
}

}  // namespace tavorno
