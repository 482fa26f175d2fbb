// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Lengths are described in twips. One scale turns them into the device-independent pixels of a
// window; a screen with more dots per pixel gets sharper pictures, not other numbers.
namespace tavorno {

inline constexpr int Twip_Per_Pixel = 10;

/// Pixels of a length in twips, rounded towards zero.
constexpr int Px(int twip) {
  return twip / Twip_Per_Pixel;
}

/// Twips of a length in pixels.
constexpr int Twip(int pixel) {
  return pixel * Twip_Per_Pixel;
}

}  // namespace tavorno
