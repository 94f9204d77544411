#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/palette.h"
#include "support/palettes.h"
#include "ui/support/dialog.h"
#include "ui/support/program.h"
#include "ui/support/registry.h"
#include "ui/support/windows.h"

namespace quillhue {

/// A test of the program as it is on its first start.
class UiTest : public testing::Test {
 protected:
  UiTest() { store(std::nullopt); }

  /// A palette file in the scratch folder, which a plain Save may overwrite when it has fewer than 256 entries; its
  /// full name.
  [[nodiscard]] std::wstring paletteFile(const std::string& name, const Palette& palette) const;
  /// Saves the document, which has a file, and reads that.
  [[nodiscard]] static Palette savedPalette(const Program& program, const std::wstring& file);
  [[nodiscard]] static Palette paletteIn(const std::wstring& file);

  ScratchFolder folder_;
};

/// `size` colors that differ from one another, from black, from white and from what windows are painted with.
[[nodiscard]] Palette brightPalette(std::int32_t size);

}  // namespace quillhue
