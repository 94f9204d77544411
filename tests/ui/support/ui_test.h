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

/// A test of the program as it is on its first start.
class UiTest : public testing::Test {
 protected:
  UiTest() { store({}); }

  /// A palette file in the scratch folder, which a plain Save may overwrite when it has fewer than 256 entries; its
  /// full name.
  [[nodiscard]] std::wstring paletteFile(const std::string& name, const Palette& palette) const;
  /// Opens the palette as own.pal, in place of what this has opened before.
  const Editor& open(const Palette& palette, int page = kValuesPage);
  [[nodiscard]] const Editor& editor() const { return *editor_; }

  ScratchFolder folder_;

 private:
  std::unique_ptr<Editor> editor_;
};

/// `size` colors that differ from one another, from black, from white and from what windows are painted with.
[[nodiscard]] Palette brightPalette(std::int32_t size);

}  // namespace quillhue
