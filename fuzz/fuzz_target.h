#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Called by the fuzzer, or by the main that replays files, with one input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quillhue {

/// Ends the program if a condition does not hold, so that the fuzzer keeps the input.
inline void require(bool holds, const char* what) {
  if (!holds) {
    std::fputs(what, stderr);
    std::abort();
  }
}

}  // namespace quillhue
