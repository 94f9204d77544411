#pragma once

#include <istream>
#include <ostream>

namespace quillhue::cli {

/// Where the tool reads from and writes to: data to `out`, everything else to `err`. All are binary.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  /// `out` shows 24-bit colors (SGR 38;2 and 48;2 of ISO 8613-6).
  bool colors = false;
  /// Characters in a line of `out`.
  int columns = 80;
};

/// What the tool answers with when it ends.
enum ExitStatus : int { kDone = 0, kRefused = 1, kWrongUsage = 2 };

}  // namespace quillhue::cli
