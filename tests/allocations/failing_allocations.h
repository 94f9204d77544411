#pragma once

#include <cstddef>

namespace quillhue {

/// Lets allocations of this program fail, from its construction to its destruction.
class FailingAllocations {
 public:
  /// Lets allocation number `at` fail, counting from 0. If `lasting`, all later ones fail too.
  FailingAllocations(int at, bool lasting);
  FailingAllocations(const FailingAllocations&) = delete;
  FailingAllocations& operator=(const FailingAllocations&) = delete;
  ~FailingAllocations();

  /// Whether the latest object let an allocation fail, and how many allocations there were.
  [[nodiscard]] static bool hasFailed();
  [[nodiscard]] static int made();
};

/// Measures how much memory the program allocates after the construction.
class PeakMemory {
 public:
  PeakMemory();
  [[nodiscard]] std::size_t bytes() const;

 private:
  std::size_t before_;
};

}  // namespace quillhue
