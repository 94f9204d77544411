#pragma once

#include <cstddef>

namespace quillhue {

/// Lets allocations of this program fail, from its construction to its destruction.
class FailingAllocations {
 public:
  /// The allocation with the number `at` fails, counting from 0. If `lasting`, all later ones fail too.
  FailingAllocations(int at, bool lasting);
  FailingAllocations(const FailingAllocations&) = delete;
  FailingAllocations& operator=(const FailingAllocations&) = delete;
  ~FailingAllocations();

  [[nodiscard]] static bool hasFailed();
};

/// Measures the memory that the program allocates beyond what it had at the construction.
class PeakMemory {
 public:
  PeakMemory();
  [[nodiscard]] std::size_t bytes() const;

 private:
  std::size_t before_;
};

}  // namespace quillhue
