// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trace/drawing_parts.h"
#include "trace/signal.h"
#include "trace/time_scale.h"
#include "trace/wave.h"

namespace tavorno {

/// Where a wave is drawn: its row and its stretch of the sheet.
struct Posto_Onda {
  double Sinistra, Destra;  ///< of the waves on the sheet
  double Alto, Basso;       ///< of the stroke, without the row's margins
};

struct Tinte_Onda {
  Tinta_Tempi Linea, Chiara;
};
Tinte_Onda Tinte_Di(Area area);

/// Strokes of one wave up to the moment `fine`.
void Traccia_Bit(Disegno_Tempi& disegno, const Onda& onda, const Vista_Tempi& vista,
                 std::int64_t fine, const Posto_Onda& posto, const Tinte_Onda& tinte);
void Traccia_Curva(Disegno_Tempi& disegno, const Onda& onda, const Vista_Tempi& vista,
                   std::int64_t fine, const Posto_Onda& posto, const Tinte_Onda& tinte,
                   double minimo, double massimo);
void Traccia_Valori(Disegno_Tempi& disegno, const Segnale& segnale, const Onda& onda,
                    const Vista_Tempi& vista, std::int64_t fine, const Posto_Onda& posto,
                    const Tinte_Onda& tinte, double per_lettera);
/// A tick in each column in which something happens.
void Traccia_Attivita(Disegno_Tempi& disegno, const Onda& onda, const Vista_Tempi& vista,
                      std::int64_t fine, const Posto_Onda& posto, Tinta_Tempi tinta);

}  // namespace tavorno
