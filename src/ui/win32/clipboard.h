#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The system's clipboard, which no other program gets while this lives.
class ClipboardAccess {
 public:
  /// Waits up to half a second while another program has it open. `owner` owns what is put there; nothing can be put
  /// without one.
  explicit ClipboardAccess(HWND owner);
  ClipboardAccess(const ClipboardAccess&) = delete;
  ClipboardAccess& operator=(const ClipboardAccess&) = delete;
  ~ClipboardAccess();

  /// False when another program has it. Then it can't be emptied, holds nothing, and takes nothing.
  [[nodiscard]] explicit operator bool() const { return open_; }

  void empty();
  /// Gives a palette or a block of bytes to the clipboard; false when it refuses them.
  [[nodiscard]] bool put(LogicalPalette palette);
  [[nodiscard]] bool put(UINT format, std::span<const std::uint8_t> bytes);

  /// The clipboard's own palette; null when it holds none.
  [[nodiscard]] HPALETTE palette() const;
  /// All of the block: at least what was put there, as the system may have rounded its size up.
  [[nodiscard]] std::optional<std::vector<std::uint8_t>> bytes(UINT format) const;

 private:
  [[nodiscard]] HANDLE data(UINT format) const;

  bool open_ = false;
};

}  // namespace quillhue
