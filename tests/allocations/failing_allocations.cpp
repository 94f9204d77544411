#include "allocations/failing_allocations.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

// The program's own operators new and delete, and calloc and free, which the linker's option --wrap replaces.

namespace {

// The operators are global, so this is too.
struct {
  bool isActive = false;
  int at = 0;
  bool isLasting = false;
  int made = 0;
  std::size_t live = 0;
  std::size_t peak = 0;
} state;

bool fails() {
  const int number = state.isActive ? state.made++ : -1;
  return number >= 0 && (number == state.at || (state.isLasting && number > state.at));
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
  state.at = at;
  state.isLasting = lasting;
  state.made = 0;
  state.isActive = true;
}

FailingAllocations::~FailingAllocations() { state.isActive = false; }

bool FailingAllocations::hasFailed() { return state.made > state.at; }

int FailingAllocations::made() { return state.made; }

PeakMemory::PeakMemory() : before_(state.live) { state.peak = state.live; }

std::size_t PeakMemory::bytes() const { return state.peak - before_; }

}  // namespace quillhue
