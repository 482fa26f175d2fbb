// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "recorder/recorder.h"

// A session as a file; docs/session-format.md tells every byte of it.
namespace tavorno {

std::string Byte_Di(const Seduta_Registrata& registrazione);

/// Empty, and `motivo` says why in Italian, for what is no session, is one of a later version, is
/// damaged, or holds what no CPU could hold.
std::optional<Seduta_Registrata> Leggi_Registrazione(std::string_view byte, std::string& motivo);

/// From and to a file, with the same messages.
std::optional<Seduta_Registrata> Apri_Registrazione(const std::string& file, std::string& motivo);
/// Empty when it is written; else why not, and what stood there is whole.
std::string Salva_Registrazione(const std::string& file, const Seduta_Registrata& registrazione);

inline constexpr std::string_view Estensione_Seduta = ".seduta";

}  // namespace tavorno
