#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "cli/console.h"

namespace quillhue::cli {

/// The last line of a terminal, which shows how far a long job is. It appears only after the console's delay, so that
/// short jobs write nothing. The destructor clears it.
class ProgressLine {
 public:
  /// The line says "3 of `total` `unit` done".
  ProgressLine(Console& console, std::string unit, std::size_t total);
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  ~ProgressLine() { clear(); }

  /// The time at which the line may appear.
  [[nodiscard]] std::chrono::steady_clock::time_point due() const { return due_; }
  /// Shows the line if it is due.
  void update(std::size_t done);
  /// Makes room for other texts.
  void clear();

 private:
  Console& console_;
  std::string rest_;
  bool isWanted_;
  std::chrono::steady_clock::time_point due_;
  std::string line_;
};

}  // namespace quillhue::cli
