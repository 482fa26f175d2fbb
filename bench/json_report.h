// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "recorder/session.h"

namespace tavorno {

/// The result of a compile as one JSON object with the keys listing, errors, boxes and prog; prog
/// has every field of every compiled line by its name.
std::string Rapporto_Json(const Seduta& seduta);

}  // namespace tavorno
