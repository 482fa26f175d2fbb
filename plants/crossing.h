// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plants/plant.h"

namespace tavorno {

/// US-16: lights for vehicles and pedestrians at a crossing, and a call button on each side. It has
/// no life of its own: the sequence is the program's.
class ctr_Semaf1 : public Impianto {
 public:
  ctr_Semaf1();

 private:
  void Applica_Uscite() override;
};

}  // namespace tavorno
