// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tavorno {

/// UTF-8 text as it stands between tags or in a quoted attribute.
std::string Html(std::string_view testo);

/// The text that `Html` was given: its four entities back as characters. For whoever reads a page
/// again.
std::string Da_Html(std::string_view testo);

/// `testo` with every `cerca` replaced.
std::string Sostituisci(std::string testo, std::string_view cerca, std::string_view con);

}  // namespace tavorno
