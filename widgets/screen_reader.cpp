// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/screen_reader.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QWidget>
#include <QWindow>
#include <map>
#include <utility>

namespace tavorno {

namespace {

constexpr char proprieta_titolo[] = "titolo_letto";
constexpr char classe_di_base[] = "QWidget";

/// Numbers and actions, which widgets and pieces have alike.
class Lettore : public QAccessibleValueInterface {
 public:
  Lettore(Per_Lettori& fonte, int pezzo) : fonte_(fonte), vivo_(fonte.Vivo()), pezzo_(pezzo) {}

  QVariant currentValue() const override { return Numero().Valore; }
  void setCurrentValue(const QVariant& valore) override {
    if (Vivo()) fonte_.Metti_Numero(pezzo_, valore.toDouble());
  }
  QVariant maximumValue() const override { return Numero().Massimo; }
  QVariant minimumValue() const override { return Numero().Minimo; }
  QVariant minimumStepSize() const override { return Numero().Passo; }

  bool Vivo() const { return !vivo_.expired(); }
  bool Ha_Numero() const { return Vivo() && fonte_.Leggi_Numero(pezzo_).has_value(); }
  Letto Ora() const { return Vivo() ? fonte_.Leggi(pezzo_) : Letto{}; }
  int Pezzi() const { return Vivo() ? fonte_.Pezzi() : 0; }
  QString Testo(QAccessible::Text quale) const {
    const Letto letto = Ora();
    switch (quale) {
      case QAccessible::Name:
        return letto.Nome;
      case QAccessible::Description:
      case QAccessible::Help:
        return letto.Aiuto;
      case QAccessible::Value:
        return Ha_Numero() ? QString::number(Numero().Valore) : QString();
      default:
        return {};
    }
  }
  QStringList Azioni() const {
    const QString azione = Ora().Azione;
    return azione.isEmpty() ? QStringList() : QStringList{azione};
  }
  void Fai(const QString& azione) {
    if (!azione.isEmpty() && azione == Ora().Azione) fonte_.Esegui(pezzo_);  // alive, with a name
  }

 private:
  Numero_Letto Numero() const {
    return Ha_Numero() ? *fonte_.Leggi_Numero(pezzo_) : Numero_Letto{};
  }

  Per_Lettori& fonte_;
  std::weak_ptr<const bool> vivo_;
  int pezzo_;
};

/// A piece of a widget. The widget's interface owns it.
class Pezzo_Letto : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Pezzo_Letto(QWidget& widget, Per_Lettori& fonte, int pezzo)
      : widget_(widget), lettore_(fonte, pezzo), pezzo_(pezzo) {}

  bool isValid() const override { return lettore_.Vivo(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return widget_.window()->windowHandle(); }
  QAccessible::Role role() const override { return lettore_.Ora().Ruolo; }
  QString text(QAccessible::Text quale) const override { return lettore_.Testo(quale); }
  void setText(QAccessible::Text /*quale*/, const QString& /*testo*/) override {}
  QRect rect() const override {
    const QRect posto = lettore_.Ora().Posto;
    return {widget_.mapToGlobal(posto.topLeft()), posto.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State stato = lettore_.Ora().Stato;
    stato.invisible = stato.invisible || !widget_.isVisible();
    stato.disabled = !widget_.isEnabled();
    return stato;
  }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&widget_);
  }
  QAccessibleInterface* child(int /*indice*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*figlio*/) const override { return -1; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  void* interface_cast(QAccessible::InterfaceType tipo) override {
    if (tipo == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    if (tipo == QAccessible::ValueInterface && lettore_.Ha_Numero())
      return static_cast<QAccessibleValueInterface*>(&lettore_);
    return nullptr;
  }
  QStringList actionNames() const override { return lettore_.Azioni(); }
  void doAction(const QString& azione) override { lettore_.Fai(azione); }
  QStringList keyBindingsForAction(const QString& /*azione*/) const override { return {}; }

  int Quale() const { return pezzo_; }

 private:
  QWidget& widget_;
  Lettore lettore_;
  int pezzo_;
};

class Widget_Letto : public QAccessibleWidget {
 public:
  Widget_Letto(QWidget& widget, Per_Lettori& fonte)
      : QAccessibleWidget(&widget), fonte_(fonte), lettore_(fonte, Per_Lettori::Tutto) {}
  ~Widget_Letto() override {
    for (const auto& pezzo : pezzi_) QAccessible::deleteAccessibleInterface(pezzo.second);
  }
  Widget_Letto(const Widget_Letto&) = delete;
  Widget_Letto& operator=(const Widget_Letto&) = delete;

  QAccessible::Role role() const override { return lettore_.Ora().Ruolo; }
  QString text(QAccessible::Text quale) const override {
    const QString testo = lettore_.Testo(quale);
    return testo.isEmpty() ? QAccessibleWidget::text(quale) : testo;
  }
  QAccessible::State state() const override {
    QAccessible::State stato = QAccessibleWidget::state();
    const QAccessible::State suo = lettore_.Ora().Stato;
    stato.checkable = suo.checkable;
    stato.checked = suo.checked;
    stato.pressed = suo.pressed;
    stato.expandable = suo.expandable;
    stato.expanded = suo.expanded;
    stato.collapsed = suo.collapsed;
    return stato;
  }
  int childCount() const override {
    return lettore_.Pezzi() > 0 ? lettore_.Pezzi() : QAccessibleWidget::childCount();
  }
  QAccessibleInterface* child(int indice) const override {
    if (lettore_.Pezzi() == 0) return QAccessibleWidget::child(indice);
    return indice < 0 || indice >= lettore_.Pezzi() ? nullptr : Pezzo(indice);
  }
  int indexOfChild(const QAccessibleInterface* figlio) const override {
    if (lettore_.Pezzi() == 0) return QAccessibleWidget::indexOfChild(figlio);
    const auto* pezzo = dynamic_cast<const Pezzo_Letto*>(figlio);
    return pezzo == nullptr ? -1 : pezzo->Quale();
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    if (lettore_.Pezzi() == 0) return QAccessibleWidget::childAt(x, y);
    for (int i = lettore_.Pezzi() - 1; i >= 0; --i) {
      QAccessibleInterface* pezzo = Pezzo(i);
      if (!pezzo->state().invisible && pezzo->rect().contains(x, y)) return pezzo;
    }
    return nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    const int pezzo = lettore_.Vivo() ? fonte_.Pezzo_A_Fuoco() : Per_Lettori::Tutto;
    return pezzo == Per_Lettori::Tutto ? QAccessibleWidget::focusChild() : Pezzo(pezzo);
  }
  void* interface_cast(QAccessible::InterfaceType tipo) override {
    if (tipo == QAccessible::ValueInterface)
      return lettore_.Ha_Numero() ? static_cast<QAccessibleValueInterface*>(&lettore_) : nullptr;
    return QAccessibleWidget::interface_cast(tipo);
  }
  QStringList actionNames() const override {
    return lettore_.Azioni() + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& azione) override {
    if (lettore_.Azioni().contains(azione))
      lettore_.Fai(azione);
    else
      QAccessibleWidget::doAction(azione);
  }

 private:
  QAccessibleInterface* Pezzo(int indice) const {
    QAccessible::Id& pezzo = pezzi_[indice];
    if (pezzo == 0)
      pezzo = QAccessible::registerAccessibleInterface(new Pezzo_Letto(*widget(), fonte_, indice));
    return QAccessible::accessibleInterface(pezzo);
  }

  Per_Lettori& fonte_;
  Lettore lettore_;
  mutable std::map<int, QAccessible::Id> pezzi_;
};

class Etichetta_Letta : public QAccessibleWidget {
 public:
  explicit Etichetta_Letta(QLabel& etichetta)
      : QAccessibleWidget(&etichetta, QAccessible::StaticText), etichetta_(etichetta) {}

  QString text(QAccessible::Text quale) const override {
    if (quale != QAccessible::Name) return QAccessibleWidget::text(quale);
    return QStringLiteral("%1 %2").arg(etichetta_.accessibleName(), etichetta_.text());
  }

 private:
  QLabel& etichetta_;
};

/// A plain widget is a window as long as it stands by itself; in a dock it is a part of another
/// one.
class Finestra_Letta : public QAccessibleWidget {
 public:
  explicit Finestra_Letta(QWidget& widget) : QAccessibleWidget(&widget) {}

  QAccessible::Role role() const override {
    return widget()->isWindow() ? QAccessible::Window : QAccessibleWidget::role();
  }
};

/// Asked for each class of an object, from its own to those below.
QAccessibleInterface* Crea(const QString& classe, QObject* oggetto) {
  auto* widget = qobject_cast<QWidget*>(oggetto);
  if (widget == nullptr) return nullptr;
  if (auto* fonte = dynamic_cast<Per_Lettori*>(oggetto)) return new Widget_Letto(*widget, *fonte);
  auto* etichetta = qobject_cast<QLabel*>(oggetto);
  if (etichetta != nullptr && etichetta->property(proprieta_titolo).isValid())
    return new Etichetta_Letta(*etichetta);
  return classe == QLatin1String(classe_di_base) ? new Finestra_Letta(*widget) : nullptr;
}

void Presentati() {
  static const bool presentati = [] {
    QAccessible::installFactory(Crea);
    return true;
  }();
  static_cast<void>(presentati);
}

}  // namespace

Per_Lettori::Per_Lettori() {
  Presentati();
}

void Intitola(QLabel& etichetta, const QString& titolo) {
  Presentati();
  etichetta.setProperty(proprieta_titolo, true);
  // A reader that listens already has it as the plain label that it was until now.
  QAccessibleInterface* prima = QAccessible::queryAccessibleInterface(&etichetta);
  if (prima != nullptr && dynamic_cast<Etichetta_Letta*>(prima) == nullptr)
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(prima));
  etichetta.setAccessibleName(titolo);  // with a name, its changes are read and not announced
}

void Annuncia_Nome(QWidget& widget, int pezzo) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent evento(&widget, QAccessible::NameChanged);
  evento.setChild(pezzo);
  QAccessible::updateAccessibility(&evento);
}

void Annuncia_Spunta(QWidget& widget) {
  if (!QAccessible::isActive()) return;
  QAccessible::State cambiato;
  cambiato.checked = true;
  QAccessibleStateChangeEvent evento(&widget, cambiato);
  QAccessible::updateAccessibility(&evento);
}

void Annuncia_Numero(QWidget& widget, double valore) {
  if (!QAccessible::isActive()) return;
  QAccessibleValueChangeEvent evento(&widget, valore);
  QAccessible::updateAccessibility(&evento);
}

void Annuncia_Fuoco(QWidget& widget, int pezzo) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent evento(&widget, QAccessible::Focus);
  evento.setChild(pezzo);
  QAccessible::updateAccessibility(&evento);
}

Annunci_Parchi::Annunci_Parchi(QWidget& widget)
    : Annuncia([&widget](int pezzo) { Annuncia_Nome(widget, pezzo); }) {
  pausa_.setSingleShot(true);
  pausa_.setInterval(Pausa);
  pausa_.callOnTimeout(&widget, [this] {
    for (const int pezzo : std::exchange(cambiati_, {})) Annuncia(pezzo);
  });
}

void Annunci_Parchi::Cambiato(int pezzo) {
  if (!Ascoltato()) return;
  cambiati_.insert(pezzo);
  if (!pausa_.isActive()) pausa_.start();
}

}  // namespace tavorno
