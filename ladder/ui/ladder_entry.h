// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <functional>
#include <string>

class QLabel;
class QLineEdit;

namespace tavorno {

/// Where an instruction is typed, below its symbol, with what the line checker says of it.
class Campo_Scala : public QFrame {
 public:
  explicit Campo_Scala(QWidget* sopra);

  std::function<void(const QString& testo)> Confermato;  ///< Enter on what is accepted
  std::function<void()> Lasciato;                        ///< Esc, or the focus went elsewhere

  /// `istr`: what operands alone mean; "" for a contact. `tutto`: selected, so that typing replaces
  /// it.
  void Apri(const QPoint& posto, const QString& testo, const std::string& istr, bool tutto);
  void Chiudi();
  bool Aperto() const { return isVisible(); }
  /// Says why what was accepted by itself cannot stand there.
  void Rifiuta(const QString& motivo);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Esamina();
  void Racconta(const QString& testo, bool errore);

  QLineEdit* testo_;
  QLabel* detto_;
  std::string istr_;
  bool accettato_ = false;
  QPoint posto_;
};

}  // namespace tavorno
