#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Returns a copy of the bytes in the form that the clipboard takes, or null if there are none or not enough memory.
[[nodiscard]] GlobalMemory globalCopy(std::span<const std::uint8_t> bytes);

/// Keeps the system's clipboard open, so that no other program can open it.
class ClipboardAccess {
 public:
  /// Waits up to half a second if another program has the clipboard open. `owner` becomes the owner of the data; if it
  /// is null, no data can be put.
  explicit ClipboardAccess(HWND owner);
  ClipboardAccess(const ClipboardAccess&) = delete;
  ClipboardAccess& operator=(const ClipboardAccess&) = delete;
  ~ClipboardAccess();

  /// Returns false if another program has the clipboard open. All other operations then do nothing or fail.
  [[nodiscard]] explicit operator bool() const { return open_; }

  void empty();
  /// Put a palette or a block of bytes on the clipboard. Return false on failure.
  [[nodiscard]] bool put(LogicalPalette palette);
  [[nodiscard]] bool put(UINT format, std::span<const std::uint8_t> bytes);
  [[nodiscard]] bool put(UINT format, GlobalMemory memory);

  /// Returns the palette on the clipboard, or null if there is none. It still belongs to the clipboard.
  [[nodiscard]] HPALETTE palette() const;
  /// Returns the block of this format, or nothing if there is none. The block may be longer than the data that was put,
  /// because the system may round its size up.
  [[nodiscard]] std::optional<std::vector<std::uint8_t>> bytes(UINT format) const;

  /// Puts text on the clipboard. Returns false on failure.
  [[nodiscard]] bool putText(const std::wstring& text);
  /// Returns the text, or nothing if there is none or it has more than `maxLength` characters.
  [[nodiscard]] std::optional<std::wstring> text(std::size_t maxLength) const;

 private:
  [[nodiscard]] HANDLE data(UINT format) const;

  bool open_ = false;
};

}  // namespace quillhue
