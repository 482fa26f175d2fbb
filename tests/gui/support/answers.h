// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <vector>

#include "awl/dialogs.h"

namespace tavorno {

/// Answers dialogs from a prepared list and keeps what was asked, so that no test waits for a user.
/// Without a prepared answer a box is answered Ok, or No where Yes and No are offered, and a file
/// dialog is cancelled.
struct Risponditore {
  std::deque<Risposta> Risposte;
  std::deque<std::optional<File_Scelto>> File;
  std::vector<Avviso> Avvisi;
  std::vector<Richiesta_File> Richieste;

  /// The dialogs to hand to a window; the answerer must outlive them.
  Dialoghi Come_Dialoghi();
};

}  // namespace tavorno
