#include "ui/win32/clipboard.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quillhue {

namespace {

// Locks a block of global memory, so that its bytes do not move.
class LockedMemory {
 public:
  explicit LockedMemory(HGLOBAL memory)
      : memory_(memory), data_(static_cast<std::uint8_t*>(GlobalLock(memory))), size_(GlobalSize(memory)) {}
  LockedMemory(const LockedMemory&) = delete;
  LockedMemory& operator=(const LockedMemory&) = delete;
  ~LockedMemory() {
    if (data_ != nullptr) {
      GlobalUnlock(memory_);
    }
  }

  // Empty if the handle is not such a block.
  [[nodiscard]] std::span<std::uint8_t> bytes() const { return {data_, data_ == nullptr ? 0 : size_}; }

 private:
  HGLOBAL memory_;
  std::uint8_t* data_;
  std::size_t size_;
};

}  // namespace

GlobalMemory globalCopy(std::span<const std::uint8_t> bytes) {
  GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, bytes.size()));
  const LockedMemory locked(memory.get());
  if (bytes.empty() || locked.bytes().size() < bytes.size()) {
    return {};
  }
  std::ranges::copy(bytes, locked.bytes().begin());
  return memory;
}

ClipboardAccess::ClipboardAccess(HWND owner) {
  // Remote desktops and clipboard histories open the clipboard for a fraction of a second after each change.
  constexpr int kTries = 50;
  constexpr DWORD kPauseMilliseconds = 10;
  for (int i = 0; i < kTries && !open_; ++i) {
    if (i > 0) {
      Sleep(kPauseMilliseconds);
    }
    open_ = OpenClipboard(owner) != 0;
  }
}

ClipboardAccess::~ClipboardAccess() {
  if (open_) {
    CloseClipboard();
  }
}

void ClipboardAccess::empty() {
  if (open_) {
    EmptyClipboard();
  }
}

bool ClipboardAccess::put(LogicalPalette palette) {
  // A null handle would announce delayed rendering.
  const bool taken = open_ && palette && SetClipboardData(CF_PALETTE, palette.get()) != nullptr;
  if (taken) {
    palette.release();
  }
  return taken;
}

bool ClipboardAccess::put(UINT format, std::span<const std::uint8_t> bytes) { return put(format, globalCopy(bytes)); }

bool ClipboardAccess::put(UINT format, GlobalMemory memory) {
  const bool taken = open_ && memory && SetClipboardData(format, memory.get()) != nullptr;
  if (taken) {
    memory.release();
  }
  return taken;
}

HPALETTE ClipboardAccess::palette() const { return static_cast<HPALETTE>(data(CF_PALETTE)); }

std::optional<std::vector<std::uint8_t>> ClipboardAccess::bytes(UINT format) const {
  const HANDLE block = data(format);
  if (block == nullptr) {
    return std::nullopt;
  }
  const LockedMemory memory(block);
  return std::vector<std::uint8_t>(memory.bytes().begin(), memory.bytes().end());
}

bool ClipboardAccess::putText(const std::wstring& text) {
  // Includes the terminating zero.
  return put(CF_UNICODETEXT,
             {reinterpret_cast<const std::uint8_t*>(text.c_str()), (text.size() + 1) * sizeof(wchar_t)});
}

std::optional<std::wstring> ClipboardAccess::text(std::size_t maxLength) const {
  const HANDLE block = data(CF_UNICODETEXT);
  if (block == nullptr) {
    return std::nullopt;
  }
  const LockedMemory memory(block);
  const std::span<const std::uint8_t> bytes = memory.bytes();
  // Looks at one character more, which shows that the text is longer.
  std::wstring text(std::min(bytes.size() / sizeof(wchar_t), maxLength + 1), L'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
  text.resize(std::min(text.find(L'\0'), text.size()));
  return text.size() > maxLength ? std::nullopt : std::optional(std::move(text));
}

HANDLE ClipboardAccess::data(UINT format) const { return open_ ? GetClipboardData(format) : nullptr; }

}  // namespace quillhue
