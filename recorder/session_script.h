// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "recorder/recorder.h"

namespace tavorno {

/// The hands of a session as a test case in Lua, UTF-8: what was operated and when, and behind the
/// last movement the outputs as they were, as checks. A script runs whole scans of a millisecond,
/// and so what hung on the very line that a hand moved at may come out differently.
std::string Script_Di(const Seduta_Registrata& registrazione);

}  // namespace tavorno
