#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The entry that the fuzzer and the replaying main call with one input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quillhue {

/// Ends the program when something does not hold, so that the fuzzer keeps the input.
inline void require(bool holds, const char* what) {
  if (!holds) {
    std::fputs(what, stderr);
    std::abort();
  }
}

}  // namespace quillhue
