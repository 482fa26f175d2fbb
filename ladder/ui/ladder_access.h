// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavorno {

/// Lets screen readers find the networks and symbols of every `Vista_Scala`: a list of networks,
/// each with its symbols as items in words. To be called once or more often.
void Offri_Schemi_Ai_Lettori();

}  // namespace tavorno
