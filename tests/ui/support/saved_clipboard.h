#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

#include "ui/win32/clipboard.h"
#include "ui/win32/handle.h"
#include "ui/win32/logical_palette.h"

namespace quillhue {

/// Restores the user's clipboard at the end of the tests: text, bitmaps, palettes and other blocks of memory.
class SavedClipboard final : public testing::Environment {
 public:
  void SetUp() override {
    // The data of these formats is not a block of memory but another handle: a bitmap, metafile or palette.
    constexpr std::array<UINT, 4> kHandles{CF_BITMAP, CF_METAFILEPICT, CF_PALETTE, CF_ENHMETAFILE};
    const ClipboardAccess clipboard(nullptr);
    for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format)) {
      if (std::ranges::find(kHandles, format) == kHandles.end()) {
        blocks_.emplace_back(format, clipboard.bytes(format).value_or(std::vector<std::uint8_t>()));
      }
    }
    palette_ = entriesOf(clipboard.palette());
  }
  void TearDown() override {
    const Window owner(CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr));
    ClipboardAccess clipboard(owner.get());
    clipboard.empty();
    for (const auto& [format, block] : blocks_) {
      static_cast<void>(clipboard.put(format, block));
    }
    static_cast<void>(clipboard.put(createLogicalPalette(palette_)));
  }

 private:
  std::vector<std::pair<UINT, std::vector<std::uint8_t>>> blocks_;
  std::vector<PaletteEntry> palette_;
};

}  // namespace quillhue
