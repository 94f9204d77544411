#pragma once

#include <chrono>
#include <cstdint>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace quillhue::cli {

/// Lines about files whose reading or writing may surprise the user.
struct Notes {
  /// Don't write them, or any progress, to standard error.
  bool quiet = false;
  /// Waiting to be added to the next JSON object.
  std::vector<std::string> lines;
};

/// A file that was read or written.
struct FileRecord {
  std::string file{};
  /// Its name in the list of the verb formats.
  std::string format{};
  std::uint64_t bytes = 0;
  /// Pixels of an image; 0 if only its palette was read or written.
  std::uint64_t width = 0;
  std::uint64_t height = 0;
  /// Entries of the palette, if there is one.
  std::optional<std::int32_t> entries{};
};

/// The files that a verb has read and written.
struct FileLog {
  /// Write a line about each to standard error.
  bool verbose = false;
  /// Waiting to be added to the next JSON object.
  std::vector<FileRecord> read;
  std::vector<FileRecord> written;
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
  /// The time after which a line in `err` shows how far a long job is; nothing if `err` is not a terminal.
  std::optional<std::chrono::milliseconds> progressDelay{};
  Notes notes{};
  FileLog files{};
  /// The colors to use if colors are asked for, whether `out` is a terminal or not.
  TerminalColors possibleColors = TerminalColors::direct;
};

inline constexpr std::chrono::milliseconds kProgressDelay{1000};

/// The tool's exit status. The verb diff has two of its own.
enum ExitStatus : int { kDone = 0, kRefused = 1, kWrongUsage = 2, kDifferent = 1, kTrouble = 2 };

}  // namespace quillhue::cli
