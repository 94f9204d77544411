#pragma once

#include <istream>
#include <ostream>

namespace quillhue::cli {

/// The tool's streams: data goes to `out`, everything else to `err`. All are binary.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  /// True if `out` can show 24-bit colors (SGR 38;2 and 48;2 of ISO 8613-6).
  bool colors = false;
  /// Characters per line of `out`.
  int columns = 80;
  bool isTerminal = false;
  /// True if `err` is a terminal, on which a line can show how far a long job is.
  bool showsProgress = false;
};

/// The tool's exit status. The verb diff has two of its own.
enum ExitStatus : int { kDone = 0, kRefused = 1, kWrongUsage = 2, kDifferent = 1, kTrouble = 2 };

}  // namespace quillhue::cli
