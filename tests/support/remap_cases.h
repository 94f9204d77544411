#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "remap/remap.h"
#include "support/case_bytes.h"

namespace quillhue {

using MakeColor = std::function<PaletteEntry(CaseBytes& bytes)>;
MakeColor always(PaletteEntry color);
/// Kinds of colors that the search for the nearest one treats differently: spread, with duplicates, at the borders of
/// its cells, dark, bright, in a corner, all the same, greys, almost greys.
const std::vector<MakeColor>& colorKinds();
inline constexpr std::size_t kGreys = 7;

Palette paletteOf(std::int32_t size, const MakeColor& make, CaseBytes& bytes);
/// An image of direct colors, in runs of `run` pixels of the same color.
WorkImage imageOf(std::int32_t width, std::int32_t height, std::size_t run, const MakeColor& make, CaseBytes& bytes);

/// Remaps an image with the product and with the reference, both stopped after `reports` progress reports. Returns a
/// description of the first difference (the end, the indexes or the reports), or an empty text.
std::string differenceOf(Remapper& remapper, const WorkImage& image, const Palette& palette,
                         const RemapOptions& options, int reports = 1000);
/// The same for a case that the bytes describe.
std::string differenceOf(CaseBytes& bytes);

}  // namespace quillhue
