// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tavorno {

/// SHA-256 of these bytes in 64 hexadecimal digits, as `sha256sum` prints it.
std::string Sha256(std::string_view byte);

}  // namespace tavorno
