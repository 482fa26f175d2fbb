// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/stirred_tank.h"

namespace tavorno {

/// US-12: two products, each with pump and valve, and a valve that drains by gravity. Steam is a
/// picture only.
class ctr_Mis2 : public Serbatoio_Agitato {
 public:
  explicit ctr_Mis2(Orologio& orologio);

 private:
  void Comanda(int uscita, bool eccitata) override;
};

}  // namespace tavorno
