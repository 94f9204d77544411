#include "system/interruption.h"

#include <array>
#include <atomic>
#include <csignal>

namespace quillhue {

namespace {

constexpr std::array kSignals{SIGINT, SIGTERM};

// A signal handler can access only globals.
std::atomic<bool> isInterrupted;
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void noteInterrupt(int /*signal*/) { isInterrupted = true; }

void handle(int signal, void (*handler)(int)) {
  struct sigaction action{};
  action.sa_handler = handler;
  action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
  sigaction(signal, &action, nullptr);
}

}  // namespace

Interruption::Interruption() {
  isInterrupted = false;
  for (const int signal : kSignals) {
    // A program that was started in the background ignores interrupts, and goes on doing so.
    struct sigaction before{};
    if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) {
      handle(signal, noteInterrupt);
    }
  }
}

Interruption::~Interruption() {
  for (const int signal : kSignals) {
    struct sigaction now{};
    if (sigaction(signal, nullptr, &now) == 0 && now.sa_handler == noteInterrupt) {
      handle(signal, SIG_DFL);
    }
  }
}

bool Interruption::isRequested() const { return isInterrupted; }

}  // namespace quillhue
