// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Numbers written as texts and read from them. The decimal mark is always ".".
namespace tavorno {

/// Decimal digits with a leading blank, or the minus sign in its place: " 12", "-3".
std::string Numero_Con_Spazio(long long valore);

/// The picture formats of the panel: "0000#", "0.0#", "#0.0", "#0.00". Before the mark all places
/// from the leftmost "0" on are shown, behind it all up to the rightmost "0"; other places appear
/// when they are needed. Halves round away from zero.
std::string Formato(double valore, std::string_view figura);

/// The number at the beginning of a text: blanks, a sign, digits and a fraction; 0 without any.
/// Rounded to an integer, a half to the even neighbour; empty when that is not a 16-bit number.
std::optional<short> Numero_16(std::string_view testo);

/// The text as a whole is a non-negative decimal number ("00000101" is 101); empty if it is not.
/// Numbers beyond 32 bits count as not read.
std::optional<int> Numero_Decimale(std::string_view testo);

}  // namespace tavorno
