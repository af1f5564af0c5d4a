// SPDX-License-Identifier: GPL-3.0-or-later
// What the fuzz targets share: each of them takes any bytes and checks what must be true of the answer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// The entry point of a target, called by libFuzzer or by corpus_main.cpp.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tallywick::fuzz {

/// Ends the program where a property does not hold, so that a fuzzer keeps the input.
inline void require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "not true: %s\n", property);
  std::abort();
}

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace tallywick::fuzz
