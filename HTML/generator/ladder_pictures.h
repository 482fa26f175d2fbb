// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

namespace tavorno {

struct Istruzione;

/// Pictures by their file below "pictures/".
using Figure_Scala = std::map<std::string, std::string>;

/// A page whose programs in `<pre class="scala">` each stand beside their ladder diagram. `nome`
/// begins the names of the pictures, which are added to `figure`. Throws std::runtime_error for a
/// program that is no network which can be drawn.
std::string Affianca_Scala(const std::string& pagina, const std::string& nome,
                           Figure_Scala& figure);

/// The reference to the picture of an instruction's symbol, empty where it has none.
std::string Richiamo_Simbolo(const Istruzione& istruzione);
/// The pictures of the symbols of all instructions that a student can use.
Figure_Scala Figure_Simboli();

}  // namespace tavorno
