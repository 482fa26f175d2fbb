// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "recorder/session.h"

namespace tavorno {

/// The result of a compile as one JSON object with the keys listing, errors, boxes, diagnostics and
/// prog. Each of the diagnostics tells severity (error, warning), block, line and column in the
/// block's text (from 1), length, row of the CPU (from 0), status, text and message; prog has every
/// field of every compiled line by its name.
std::string Rapporto_Json(const Seduta& seduta);

}  // namespace tavorno
