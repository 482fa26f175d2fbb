// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QUrl;

namespace tavorno {

struct Guida;

/// The page that stands where there is none to show: for an address that is missing, outside the
/// help folders, or not on this computer. HTML.
QString Pagina_Avviso(const Guida& guida, const QUrl& url);

/// The pages that hold `parole`; without words the list of all pages. HTML.
QString Pagina_Ricerca(const Guida& guida, const QString& parole);

}  // namespace tavorno
