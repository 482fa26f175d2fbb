// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tavorno::prova {

/// The help folder of this build.
std::filesystem::path HelpFolder();
/// Every page of it.
std::vector<std::filesystem::path> HelpPages();

/// A file as it stands; throws when there is none.
std::string ReadFile(const std::filesystem::path& file);

/// The values of an attribute wherever it occurs in a tag of `page`: Attributes(page, "href").
std::vector<std::string> Attributes(const std::string& page, std::string_view name);

/// What stands between the tag `open` (written in full) and `close`, each time.
std::vector<std::string> Contents(const std::string& page, std::string_view open,
                                  std::string_view close);

}  // namespace tavorno::prova
