#pragma once

#include <cstdint>
#include <vector>

#include "remap/remap.h"

namespace quillhue {

/// Stops a run after a number of reports, and records the rows of each.
class StoppingProgress final : public RemapProgress {
 public:
  explicit StoppingProgress(int reports = 1000) : left_(reports) {}

  bool rowsDone(std::int32_t rows, const RemappedImage& /*result*/) override {
    reports_.push_back(rows);
    return --left_ > 0;
  }
  [[nodiscard]] const std::vector<std::int32_t>& reports() const { return reports_; }

 private:
  int left_;
  std::vector<std::int32_t> reports_;
};

}  // namespace quillhue
