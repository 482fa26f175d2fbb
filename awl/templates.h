// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The texts that the editor puts in by itself.
namespace tavorno {

std::string Testo_Nuovo_Main();
std::string Testo_Nuova_Procedura(const std::string& nome);
/// The short head in front of a procedure's imported text.
std::string Testa_Procedura(const std::string& nome);
std::string Testo_Network(int numero);

}  // namespace tavorno
