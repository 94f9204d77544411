#pragma once

#include <cstdint>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace quillhue::cli {

/// Lines about files whose reading or writing may surprise the user.
struct Notes {
  /// Don't write them to standard error.
  bool quiet = false;
  /// Waiting to be added to the next JSON object.
  std::vector<std::string> lines;
};

/// The colors that a terminal shows: none, the usual 256, or any of 24 bits (SGR 38;2 and 48;2 of ISO 8613-6).
enum class TerminalColors : std::uint8_t { none, indexed, direct };

/// The tool's streams: data goes to `out`, everything else to `err`. All are binary.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  /// The colors to use in `out`.
  TerminalColors colors = TerminalColors::none;
  /// Characters per line of `out`.
  int columns = 80;
  bool isTerminal = false;
  /// True if `err` is a terminal, on which a line can show how far a long job is.
  bool showsProgress = false;
  Notes notes{};
  /// The colors to use if colors are asked for, whether `out` is a terminal or not.
  TerminalColors possibleColors = TerminalColors::direct;
};

/// The tool's exit status. The verb diff has two of its own.
enum ExitStatus : int { kDone = 0, kRefused = 1, kWrongUsage = 2, kDifferent = 1, kTrouble = 2 };

}  // namespace quillhue::cli
