// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

/// While one lives, the first SIGINT or SIGTERM (on Windows, Ctrl+C) is a wish to stop that
/// `Chiesta` tells of; a second one ends the process at once.
class Interruzione {
 public:
  Interruzione();
  ~Interruzione();
  Interruzione(const Interruzione&) = delete;
  Interruzione& operator=(const Interruzione&) = delete;

  static bool Chiesta();
};

}  // namespace tavorno
