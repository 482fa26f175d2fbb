// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

namespace tavorno {

/// The lines of a text, each with its end; what follows the last end is a line too, unless empty.
std::vector<std::string_view> Linee_Intere(std::string_view testo);

/// A piece of the old text and what takes its place: a line for a line, or lines that come or go.
struct Tratto_Cambiato {
  std::string_view Vecchio;  ///< a view into the old text, empty but in its place for new lines
  std::string_view Nuovo;
};

/// What differs, from the top. Lines are matched so that one that was only written in another form
/// (blanks, commas, capitals) keeps its place. Both are the lines of one text each.
std::vector<Tratto_Cambiato> Tratti_Cambiati(const std::vector<std::string_view>& vecchie,
                                             const std::vector<std::string_view>& nuove);

}  // namespace tavorno
