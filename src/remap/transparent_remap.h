#pragma once

#include <cstdint>

#include "remap/remap.h"

namespace quillhue {

/// Remaps images onto a palette with one entry for transparent pixels.
class TransparentRemapper {
 public:
  /// `transparentEntry` is one of the palette's first kMaxUsedEntries entries, of which there are at least two.
  TransparentRemapper(const Palette& palette, std::int32_t transparentEntry);

  /// Makes `result` from `image` in the mode nearest or dither. Transparent pixels get the transparent entry. All
  /// others get the same color as from a Remapper for a palette without that entry; while the run goes on, `result`
  /// contains indexes into that palette. In all other respects it works like Remapper::remap.
  bool remap(const WorkImage& image, RemapOptions options, RemappedImage& result, RemapProgress& progress);

 private:
  std::vector<PaletteEntry> colors_;
  std::int32_t entry_;
  Remapper opaque_;
};

}  // namespace quillhue
