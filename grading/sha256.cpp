// SPDX-License-Identifier: GPL-3.0-or-later
// FIPS 180-4.
#include "grading/sha256.h"

#include <array>
#include <bit>
#include <cstdint>

namespace tavorno {

namespace {

using Stato = std::array<std::uint32_t, 8>;

constexpr std::array<std::uint32_t, 64> costanti = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

void Mescola(Stato& stato, std::string_view blocco) {
  std::array<std::uint32_t, 64> w{};
  for (std::size_t n = 0; n < 64; ++n)
    w[n / 4] = w[n / 4] << 8 | static_cast<unsigned char>(blocco[n]);
  for (std::size_t n = 16; n < 64; ++n) {
    const std::uint32_t s0 = std::rotr(w[n - 15], 7) ^ std::rotr(w[n - 15], 18) ^ (w[n - 15] >> 3);
    const std::uint32_t s1 = std::rotr(w[n - 2], 17) ^ std::rotr(w[n - 2], 19) ^ (w[n - 2] >> 10);
    w[n] = w[n - 16] + s0 + w[n - 7] + s1;
  }
  auto [a, b, c, d, e, f, g, h] = stato;
  for (std::size_t n = 0; n < 64; ++n) {
    const std::uint32_t s1 = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
    const std::uint32_t t1 = h + s1 + ((e & f) ^ (~e & g)) + costanti[n] + w[n];
    const std::uint32_t s0 = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
    const std::uint32_t t2 = s0 + ((a & b) ^ (a & c) ^ (b & c));
    h = g, g = f, f = e, e = d + t1, d = c, c = b, b = a, a = t1 + t2;
  }
  const Stato giro = {a, b, c, d, e, f, g, h};
  for (std::size_t n = 0; n < giro.size(); ++n) stato[n] += giro[n];
}

}  // namespace

std::string Sha256(std::string_view byte) {
  Stato stato = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  std::string coda(byte.substr(byte.size() / 64 * 64));
  for (std::size_t n = 0; n + 64 <= byte.size(); n += 64) Mescola(stato, byte.substr(n, 64));
  coda += '\x80';
  while (coda.size() % 64 != 56) coda += '\0';
  const std::uint64_t bit = byte.size() * 8;
  for (int spazio = 56; spazio >= 0; spazio -= 8) coda += static_cast<char>(bit >> spazio);
  for (std::size_t n = 0; n < coda.size(); n += 64)
    Mescola(stato, std::string_view(coda).substr(n, 64));
  std::string testo;
  for (const std::uint32_t parola : stato) {
    for (int spazio = 28; spazio >= 0; spazio -= 4)
      testo += "0123456789abcdef"[parola >> spazio & 15];
  }
  return testo;
}

}  // namespace tavorno
