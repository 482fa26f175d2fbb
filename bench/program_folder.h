// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace tavorno {

/// The folder of the running program: what it brings along lies below it. Empty when the system
/// does not tell.
std::filesystem::path Cartella_Programma();

}  // namespace tavorno
