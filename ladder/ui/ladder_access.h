// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

/// Lets screen readers find the networks and symbols of every `Vista_Scala`: a list of networks,
/// each with its symbols as items in words. Whoever shows such a view calls it first; once is
/// enough.
void Offri_Schemi_Ai_Lettori();

}  // namespace tavorno
