#pragma once

#include <cstdint>

#include "remap/remap.h"

namespace quillhue {

/// Remaps images onto a palette with one entry for transparent pixels.
class TransparentRemapper {
 public:
  /// Of the palette's first kMaxUsedEntries entries, at least two, `transparentEntry` is for the transparent pixels.
  TransparentRemapper(const Palette& palette, std::int32_t transparentEntry);

  /// Makes `result` from `image` in the mode nearest or dither: transparent pixels get the transparent entry, and all
  /// others what Remapper gives them on the palette without it. Until this is done `result` has indexes of that
  /// palette. Otherwise as Remapper::remap.
  bool remap(const WorkImage& image, RemapOptions options, RemappedImage& result, RemapProgress& progress);

 private:
  std::vector<PaletteEntry> colors_;
  std::int32_t entry_;
  Remapper opaque_;
};

}  // namespace quillhue
