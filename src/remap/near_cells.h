#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "remap/color_candidates.h"
#include "remap/color_quad.h"

namespace quillhue {

/// Eight colors of a cell's list.
class NearGroup {
 public:
  static constexpr std::size_t kCount = 2 * ListedColors::kCount;

  /// Takes eight colors of `list` from the place `start` on. If the list ends before, repeats its first color, which
  /// changes no result.
  NearGroup(std::span<const PaletteEntry> colors, std::span<const std::uint8_t> list, std::size_t start) {
    for (std::size_t i = 0; i < kCount; ++i) {
      const std::uint8_t index = list[start + i < list.size() ? start + i : 0];
      colors_[i / ListedColors::kCount].set(i % ListedColors::kCount, keyStart<8>(colors[index], index), colors[index],
                                            index);
    }
  }

  /// Returns the lesser key of each of four pairs of colors.
  [[nodiscard]] __m128 keys(const ColorQuad& target) const {
    const auto keysOf = [&](const ListedColors& four) {
      return _mm_castsi128_ps(_mm_sub_epi32(four.starts(), four.products(target)));
    };
    return _mm_min_ps(keysOf(colors_[0]), keysOf(colors_[1]));
  }
  /// Returns the indexes of the colors with these keys.
  [[nodiscard]] static Lanes indexesOf(Lanes keys, const std::array<const NearGroup*, Lanes::kCount>& /*lists*/) {
    return keys & Lanes::all(255);
  }

 private:
  std::array<ListedColors, 2> colors_;
};

/// Divides the cube from -128 to 383 in each channel into 32 x 32 x 32 cells. It contains the colors of images and most
/// targets of error diffusion.
struct NearCells {
  using Group = NearGroup;
  static constexpr std::size_t kCount = std::size_t{1} << 15;
  static constexpr std::size_t kMostColors = 256;

  [[nodiscard]] static bool has(const EightColors& targets) {
    const EightColors fromLow = targets - EightColors::all(kLowest);
    return areZero(unsignedShiftRight(fromLow.blue | fromLow.green | fromLow.red, 9));
  }
  [[nodiscard]] static Lanes cellsOf(const EightColors& targets) {
    const EightColors fromLow = targets - EightColors::all(kLowest);
    const Lanes cell = Lanes::all(~15);
    return fromLow.blue >> 4 | (fromLow.green & cell) << 1 | (fromLow.red & cell) << 6;
  }
  /// Returns twice the targets, because keys contain 512 times a product and ListedColors gives 256 times.
  [[nodiscard]] static PairedColors prepared(const EightColors& targets) { return PairedColors(targets << 1); }

  [[nodiscard]] static ColorBox boxOf(std::size_t cell) {
    ColorBox box{};
    for (std::size_t channel = 0; channel < box.low.size(); ++channel) {
      box.low[channel] = static_cast<std::int32_t>(cell >> (5 * channel) & 31) * 16 + kLowest[channel];
      box.high[channel] = box.low[channel] + 15;
    }
    return box;
  }
  static void appendList(std::vector<NearGroup>& groups, std::span<const PaletteEntry> colors,
                         std::span<const std::uint8_t> list, std::size_t /*cell*/) {
    for (std::size_t start = 0; start < list.size(); start += NearGroup::kCount) {
      groups.emplace_back(colors, list, start);
    }
  }

 private:
  static constexpr ColorVector kLowest{-128, -128, -128};
};

}  // namespace quillhue
