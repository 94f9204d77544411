#include "cli/progress_line.h"

#include <utility>

namespace quillhue::cli {

ProgressLine::ProgressLine(Console& console, std::string unit, std::size_t total)
    : console_(console),
      rest_(" of " + std::to_string(total) + ' ' + std::move(unit) + " done"),
      isWanted_(console.progressDelay && !console.notes.quiet && total > 1),
      due_(std::chrono::steady_clock::now() + console.progressDelay.value_or(std::chrono::seconds(1))) {}

void ProgressLine::update(std::size_t done) {
  if (!isWanted_ || std::chrono::steady_clock::now() < due_) {
    return;
  }
  std::string line = std::to_string(done) + rest_;
  if (line != line_) {
    line_ = std::move(line);
    console_.err << '\r' << line_ << std::flush;
  }
}

void ProgressLine::clear() {
  if (!line_.empty()) {
    console_.err << '\r' << std::string(line_.size(), ' ') << '\r' << std::flush;
    line_.clear();
  }
}

}  // namespace quillhue::cli
