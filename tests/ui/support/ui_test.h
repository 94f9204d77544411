#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/palette.h"
#include "support/palettes.h"
#include "support/scratch_folder.h"
#include "ui/support/dialog.h"
#include "ui/support/editor.h"
#include "ui/support/registry.h"
#include "ui/support/windows.h"

namespace quillhue {

/// A test of the program in the state of its first start.
class UiTest : public testing::Test {
 protected:
  UiTest() { store({}); }

  /// Writes a palette file into the scratch folder and returns its full name. A plain Save may overwrite the file if it
  /// has fewer than 256 entries.
  [[nodiscard]] std::wstring paletteFile(const std::string& name, const Palette& palette) const;
  /// Opens the palette as own.pal, and closes the program that the last call opened.
  const Editor& open(const Palette& palette, int page = kValuesPage);
  [[nodiscard]] const Editor& editor() const { return *editor_; }

  ScratchFolder folder_;

 private:
  std::unique_ptr<Editor> editor_;
};

/// Returns `size` different colors that are neither black, white nor colors of windows.
[[nodiscard]] Palette brightPalette(std::int32_t size);

}  // namespace quillhue
