// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <optional>

namespace tavorno {

/// Where the help pages lie and which one to show. Directories end in a separator.
struct Guida {
  QString Dir_Help;
  QString Dir_Panel;
  QString Url_Help;
};

/// Scheme of the addresses whose page is a search: "cerca:" and the words.
inline constexpr char Schema_Cerca[] = "cerca";

enum class Luogo {
  Dentro,   ///< a file of the help folders
  Manca,    ///< a name inside the help folders that is no file
  Fuori,    ///< on this computer, outside the help folders
  Esterno,  ///< not on this computer
};

/// Where an address leads once links, ".." and percent signs are taken into account. Only what is
/// `Dentro` may be read.
Luogo Dove(const Guida& guida, const QUrl& url);

/// The address that a text typed or handed over means: a search, a file address, a path, or the
/// name of a page with or without its extension, in capitals or not. Not valid for an empty text.
QUrl Indirizzo_Da_Testo(const Guida& guida, const QString& testo);

/// The same address for the eyes: a plain path, or "cerca:" and the words.
QString Testo_Indirizzo(const QUrl& url);

QUrl Url_Cerca(const QString& parole);
QString Parole_Cercate(const QUrl& url);

/// The file of an address; nothing when it is not `Dentro`, unreadable or beyond 16 MiB.
std::optional<QByteArray> Leggi(const Guida& guida, const QUrl& url);

/// Paths of all pages of the help folders, sorted by name, those of `Dir_Help` first.
QStringList Pagine(const Guida& guida);

}  // namespace tavorno
