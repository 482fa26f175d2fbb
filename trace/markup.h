// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

// Texts of others inside files of ours.
namespace tavorno {

/// Bytes that are no UTF-8 become "?".
std::string Utf8_Valido(const std::string& testo);

/// UTF-8 made fit for text and attributes of XML; what XML cannot hold becomes "?".
std::string In_Xml(const std::string& testo);

/// A cell of a table of values separated by ";". One that a spreadsheet would take for a formula
/// gets an apostrophe.
std::string In_Csv(const std::string& testo);

std::size_t Lunghezza_Utf8(const std::string& testo);
/// The first characters, not bytes.
std::string Primi_Utf8(const std::string& testo, std::size_t quanti);

}  // namespace tavorno
