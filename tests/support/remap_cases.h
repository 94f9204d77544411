#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "remap/remap.h"

namespace quillhue {

/// The bytes that a case is made of, in order, followed by zeros.
class CaseBytes {
 public:
  explicit CaseBytes(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}
  /// As many random bytes, the same for the same seed.
  CaseBytes(std::size_t count, std::uint32_t seed);

  std::uint8_t next() { return place_ < bytes_.size() ? bytes_[place_++] : 0; }
  /// A number from 0 to `limit`, at most 255.
  std::uint8_t upTo(int limit) { return static_cast<std::uint8_t>(next() % (limit + 1)); }
  PaletteEntry colorUpTo(int limit);
  [[nodiscard]] std::size_t left() const { return bytes_.size() - place_; }

 private:
  std::vector<std::uint8_t> bytes_;
  std::size_t place_ = 0;
};

using MakeColor = std::function<PaletteEntry(CaseBytes& bytes)>;
MakeColor always(PaletteEntry color);
/// Kinds of colors that the search for the nearest one treats differently: spread, with duplicates, at the borders of
/// its cells, dark, bright, in a corner, all alike, greys, nearly greys.
const std::vector<MakeColor>& colorKinds();
inline constexpr std::size_t kGreys = 7;

Palette paletteOf(std::int32_t size, const MakeColor& make, CaseBytes& bytes);
/// An image of direct colors, in runs of `run` pixels of the same color.
WorkImage imageOf(std::int32_t width, std::int32_t height, std::size_t run, const MakeColor& make, CaseBytes& bytes);

/// Remaps an image by the product and by the literal rules, both stopped after `reports` reports of progress. Returns
/// what differs: the end, the indexes or the reports; empty if nothing does.
std::string differenceOf(Remapper& remapper, const WorkImage& image, const Palette& palette,
                         const RemapOptions& options, int reports = 1000);
/// The same for a case that the bytes describe.
std::string differenceOf(CaseBytes& bytes);

}  // namespace quillhue
