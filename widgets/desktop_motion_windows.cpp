// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include "widgets/desktop_motion.h"

namespace tavorno {

void Chiedi_Se_Fermo(QObject& /*chi*/, const std::function<void(bool fermo)>& risposta) {
  BOOL muove = TRUE;
  if (SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &muove, 0) != 0)
    risposta(muove == FALSE);
}

}  // namespace tavorno
