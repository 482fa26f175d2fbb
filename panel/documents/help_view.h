// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>
#include <QUrl>
#include <functional>

#include "widgets/own_text.h"

namespace tavorno {

struct Guida;

/// Shows pages of the help folders and of nowhere else: whatever a page refers to outside them,
/// pictures and style sheets included, is not read.
class Vista_Aiuto : public QTextBrowser, public Testo_Proprio {
 public:
  explicit Vista_Aiuto(const Guida& guida, QWidget* sopra = nullptr);

  std::function<void()> Comincia;  ///< a page is about to be read
  /// Navigation finished, by a link or in the history as well; the page shown now.
  std::function<void(const QUrl&)> Finita;

  /// A page is being read.
  bool Occupata() const { return occupata_; }
  /// The page on screen. `source()` still names the page before while a navigation finishes.
  const QUrl& Pagina() const { return pagina_; }
  /// Title of the page, or its file's name when it has none.
  QString Titolo() const;
  /// Steps of text size, within sensible bounds.
  void Ingrandisci(int passi);
  void Grandezza_Normale();
  void Ingrandisci_Testo(double fattore) override;  ///< besides those steps

  QVariant loadResource(int tipo, const QUrl& nome) override;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType tipo) override;
  void wheelEvent(QWheelEvent* evento) override;

 private:
  QString Leggi_Pagina(const QUrl& url);
  QVariant Immagine(const QUrl& url) const;
  void Applica_Grandezza();

  const Guida& guida_;
  QUrl pagina_;
  bool occupata_ = false;
  const double corpo_ = font().pointSizeF();
  int ingrandimento_ = 0;  // points
  double proiezione_ = 1;
};

}  // namespace tavorno
