// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

/// Of the timing diagram: the names of the signals stand left of `inizio_asse`, below
/// `fine_testata`. In the units of the drawing.
inline constexpr double inizio_asse = 166, fine_testata = 86;

}  // namespace tavorno
