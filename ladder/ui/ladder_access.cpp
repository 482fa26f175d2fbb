// SPDX-License-Identifier: GPL-3.0-or-later
#include "ladder/ui/ladder_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <map>
#include <utility>

#include "ladder/ui/ladder_view.h"

namespace tavorno {

namespace {

/// A network, or a symbol of one. It holds numbers only and asks the view for the rest, so that one
/// that a reader keeps for long is invalid and no danger.
class Voce_Schema : public QAccessibleInterface {
 public:
  Voce_Schema(const Vista_Scala& vista, int rete, int simbolo)
      : vista_(vista), rete_(rete), simbolo_(simbolo) {}

  bool isValid() const override {
    const auto& reti = vista_.Foglio().Reti();
    return rete_ < static_cast<int>(reti.size()) && simbolo_ < Rete().Simboli();
  }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return vista_.window()->windowHandle(); }
  QAccessible::Role role() const override {
    return simbolo_ < 0 ? QAccessible::List : QAccessible::ListItem;
  }
  QString text(QAccessible::Text quale) const override {
    return isValid() && quale == QAccessible::Name ? vista_.In_Parole_Di(rete_, simbolo_)
                                                   : QString();
  }
  void setText(QAccessible::Text /*quale*/, const QString& /*testo*/) override {}
  QRect rect() const override {
    if (!isValid()) return {};
    const QRect posto = vista_.Posto(rete_, simbolo_);
    return {vista_.viewport()->mapToGlobal(posto.topLeft()), posto.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State stato;
    stato.selectable = stato.focusable = true;
    stato.selected = stato.focused =
        vista_.Rete_Scelta() == rete_ && vista_.Scelto() == simbolo_ && vista_.hasFocus();
    stato.invalid = !isValid();
    return stato;
  }
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int indice) const override;
  int childCount() const override { return simbolo_ < 0 && isValid() ? Rete().Simboli() : 0; }
  int indexOfChild(const QAccessibleInterface* figlio) const override {
    return static_cast<const Voce_Schema*>(figlio)->simbolo_;
  }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

  int Rete_Sua() const { return rete_; }

 private:
  const Rete_Foglio& Rete() const {
    return vista_.Foglio().Reti()[static_cast<std::size_t>(rete_)];
  }

  const Vista_Scala& vista_;
  int rete_, simbolo_;
};

class Schema_Accessibile : public QAccessibleWidget {
 public:
  explicit Schema_Accessibile(Vista_Scala& vista)
      : QAccessibleWidget(&vista, QAccessible::List), vista_(vista) {}
  ~Schema_Accessibile() override {
    for (const auto& voce : voci_) QAccessible::deleteAccessibleInterface(voce.second);
  }
  Schema_Accessibile(const Schema_Accessibile&) = delete;
  Schema_Accessibile& operator=(const Schema_Accessibile&) = delete;

  int childCount() const override { return static_cast<int>(vista_.Foglio().Reti().size()); }
  QAccessibleInterface* child(int indice) const override {
    return indice < 0 || indice >= childCount() ? nullptr : Voce(indice, -1);
  }
  int indexOfChild(const QAccessibleInterface* figlio) const override {
    return static_cast<const Voce_Schema*>(figlio)->Rete_Sua();
  }
  QAccessibleInterface* focusChild() const override {
    return vista_.Rete_Scelta() < 0 ? nullptr : Voce(vista_.Rete_Scelta(), vista_.Scelto());
  }
  QAccessibleInterface* Voce(int rete, int simbolo) const {
    QAccessible::Id& voce = voci_[{rete, simbolo}];
    if (voce == 0)
      voce = QAccessible::registerAccessibleInterface(new Voce_Schema(vista_, rete, simbolo));
    return QAccessible::accessibleInterface(voce);
  }

 private:
  Vista_Scala& vista_;
  mutable std::map<std::pair<int, int>, QAccessible::Id> voci_;
};

Schema_Accessibile* Schema_Di(const Vista_Scala& vista) {
  return static_cast<Schema_Accessibile*>(
      QAccessible::queryAccessibleInterface(const_cast<Vista_Scala*>(&vista)));
}

QAccessibleInterface* Voce_Schema::parent() const {
  return simbolo_ < 0 ? Schema_Di(vista_) : Schema_Di(vista_)->Voce(rete_, -1);
}

QAccessibleInterface* Voce_Schema::child(int indice) const {
  return indice < 0 || indice >= childCount() ? nullptr : Schema_Di(vista_)->Voce(rete_, indice);
}

QAccessibleInterface* Crea(const QString& /*classe*/, QObject* oggetto) {
  auto* vista = dynamic_cast<Vista_Scala*>(oggetto);
  return vista == nullptr ? nullptr : new Schema_Accessibile(*vista);
}

}  // namespace

void Offri_Schemi_Ai_Lettori() {
  static const bool offerti = [] {
    QAccessible::installFactory(Crea);
    return true;
  }();
  static_cast<void>(offerti);
}

}  // namespace tavorno
