// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// Source texts are bytes of Windows-1252, one per character; captions and messages are UTF-8. These
// functions are the only border between the two.
namespace tavorno {

/// The five bytes that the code page leaves empty become the control characters of the same number,
/// and come back from them, so every byte survives the way there and back.
std::string A_Utf8(std::string_view byte);

/// A character that the code page lacks, and every byte that is no UTF-8, becomes "?".
std::string Da_Utf8(std::string_view utf8);

/// Capitals of the code page, accented letters included.
std::string Maiuscole(std::string_view byte);

}  // namespace tavorno
