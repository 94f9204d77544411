#include "ui/used_file.h"

namespace quillhue {

namespace {

constexpr UINT kMilliseconds = 500;

}  // namespace

void UsedFile::note(const std::wstring& name) {
  passOn();
  name_ = name;
  SetTimer(window_.handle(), kTimer, kMilliseconds, nullptr);
}

void UsedFile::passOn() {
  KillTimer(window_.handle(), kTimer);
  if (const std::wstring name = std::exchange(name_, {}); !name.empty()) {
    use_(name);
  }
}

}  // namespace quillhue
