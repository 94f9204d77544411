#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

#include "ui/services/halftone_palette.h"
#include "ui/support/saved_clipboard.h"
#include "ui/win32/clipboard.h"
#include "ui/win32/logical_palette.h"
#include "ui/win32/system.h"

namespace quillhue {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Creates an invisible window.
Window createOwner() {
  return Window(
      CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, GetModuleHandleW(nullptr), nullptr));
}

std::vector<PaletteEntry> colors(std::int32_t count) {
  std::vector<PaletteEntry> entries;
  for (std::int32_t i = 0; i < count; ++i) {
    entries.push_back({static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i / 256), 77});
  }
  return entries;
}

const auto* const kSavedClipboard = testing::AddGlobalTestEnvironment(new SavedClipboard);

TEST(ClipboardAccess, GivesThePaletteThatItTook) {
  const Window owner = createOwner();
  ClipboardAccess clipboard(owner.get());
  for (const std::int32_t count : {1, 256, 1024, 1025, 3000}) {
    clipboard.empty();
    EXPECT_TRUE(clipboard.put(createLogicalPalette(colors(count))));
    EXPECT_EQ(entriesOf(clipboard.palette()), colors(std::min(count, 1024))) << count;
    PALETTEENTRY first{};
    GetPaletteEntries(clipboard.palette(), 0, 1, &first);
    EXPECT_EQ(first.peFlags, PC_RESERVED);
  }
}

TEST(ClipboardAccess, APaletteWithoutEntriesLeavesItEmpty) {
  const Window owner = createOwner();
  ClipboardAccess clipboard(owner.get());
  clipboard.empty();
  EXPECT_TRUE(clipboard.put(createLogicalPalette(colors(1))));
  clipboard.empty();
  EXPECT_FALSE(clipboard.put(createLogicalPalette({})));
  EXPECT_EQ(CountClipboardFormats(), 0);
  EXPECT_EQ(clipboard.palette(), nullptr);
  EXPECT_TRUE(entriesOf(clipboard.palette()).empty());
}

TEST(ClipboardAccess, GivesBitmapsOfAnySize) {
  const Window owner = createOwner();
  for (const std::size_t size : {1U, 3U, 14U, 15U, 41U, 5000U}) {
    const Bytes block(size, 1);
    {
      ClipboardAccess clipboard(owner.get());
      clipboard.empty();
      EXPECT_EQ(clipboard.bytes(CF_DIB), std::nullopt);
      EXPECT_TRUE(clipboard.put(CF_DIB, block));
    }
    Bytes found = ClipboardAccess(owner.get()).bytes(CF_DIB).value_or(Bytes());
    ASSERT_GE(found.size(), size);
    found.resize(size);
    EXPECT_EQ(found, block);
  }
}

TEST(ClipboardAccess, HasNothingWhileAnotherHasIt) {
  const Window owner = createOwner();
  ClipboardAccess clipboard(owner.get());
  clipboard.empty();
  EXPECT_TRUE(clipboard.put(createLogicalPalette(colors(2))));
  std::thread([] {
    const Window otherOwner = createOwner();
    ClipboardAccess other(otherOwner.get());
    EXPECT_FALSE(other || other.palette() != nullptr || other.bytes(CF_DIB));
    other.empty();
    EXPECT_FALSE(other.put(createLogicalPalette(colors(1))));
  }).join();
  // The clipboard is still open here, with its old content.
  EXPECT_EQ(entriesOf(clipboard.palette()), colors(2));
}

TEST(HalftonePalette, GoesFromBlackToWhite) {
  const std::vector<PaletteEntry> entries = HalftonePalette().halftone();
  ASSERT_GE(entries.size(), 20U);
  ASSERT_LE(entries.size(), 1024U);
  EXPECT_EQ(entries.front(), (PaletteEntry{0, 0, 0}));
  EXPECT_EQ(entries.back(), (PaletteEntry{255, 255, 255}));
}

}  // namespace
}  // namespace quillhue
