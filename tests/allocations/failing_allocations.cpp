#include "allocations/failing_allocations.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <new>

// The program's own operators new and delete, and calloc and free, which the linker's option --wrap replaces.

namespace {

constexpr int kNever = std::numeric_limits<int>::max();

// The operators are global, so this is too.
struct {
  int left = kNever;
  bool isLasting = false;
  bool hasFailed = false;
  std::size_t live = 0;
  std::size_t peak = 0;
} state;

bool fails() {
  if (state.left == kNever) {
    return false;
  }
  if (state.left > 0) {
    --state.left;
    return false;
  }
  state.hasFailed = true;
  state.left = state.isLasting ? 0 : kNever;
  return true;
}

void* counted(void* memory) {
  state.live += malloc_usable_size(memory);
  state.peak = std::max(state.peak, state.live);
  return memory;
}

}  // namespace

void* operator new(std::size_t size) {
  void* const memory = fails() ? nullptr : std::malloc(std::max<std::size_t>(size, 1));
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return counted(memory);
}

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming): the linker prescribes the names.
extern "C" {
void* __real_calloc(std::size_t count, std::size_t size);
void* __wrap_calloc(std::size_t count, std::size_t size) {
  void* const memory = fails() ? nullptr : __real_calloc(count, size);
  return memory == nullptr ? nullptr : counted(memory);
}

void __real_free(void* memory);
void __wrap_free(void* memory) {
  state.live -= std::min(state.live, malloc_usable_size(memory));
  __real_free(memory);
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

namespace quillhue {

FailingAllocations::FailingAllocations(int at, bool lasting) {
  state.left = at;
  state.isLasting = lasting;
  state.hasFailed = false;
}

FailingAllocations::~FailingAllocations() { state.left = kNever; }

bool FailingAllocations::hasFailed() { return state.hasFailed; }

PeakMemory::PeakMemory() : before_(state.live) { state.peak = state.live; }

std::size_t PeakMemory::bytes() const { return state.peak - before_; }

}  // namespace quillhue
