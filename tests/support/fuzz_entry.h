// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

// What a fuzzer calls with its bytes, and what the kept corpus is replayed through. Each aborts the
// process on a breach.
namespace tavorno::prova {

/// The bytes are a project file: read, saved, read again, compiled and run.
void Prova_Progetto(const std::uint8_t* dati, std::size_t quanti);

/// The bytes choose the lines of an accepted program, its memory and its inputs.
void Prova_Programma(const std::uint8_t* dati, std::size_t quanti);

}  // namespace tavorno::prova
