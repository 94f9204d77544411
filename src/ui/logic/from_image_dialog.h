#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace quillhue {

/// Rules of the dialog that asks how to make a palette from an image. `distinctColors` is the number of different
/// colors in the image.

/// Returns the sentence that gives the number of colors.
[[nodiscard]] std::string colorsFoundText(std::uint64_t distinctColors);

/// Returns the proposed size: one entry for each color, but at most 256.
[[nodiscard]] std::int32_t proposedSize(std::uint64_t distinctColors);

/// Returns whether a palette can hold all colors.
[[nodiscard]] bool canUseAllColors(std::uint64_t distinctColors);

/// The answer of FileQuestions::askPaletteFromImage, or a message if the size typed in the dialog is not
/// 1 .. kMaxPaletteSize. A size without a value was not a number.
using FromImageAnswer = std::expected<std::int32_t, std::string_view>;
/// Answer of "Use all colors": the larger of the size and the number of colors. Needs canUseAllColors().
[[nodiscard]] FromImageAnswer useAllColors(std::optional<std::int32_t> size, std::uint64_t distinctColors);
/// Answer of "Reduce colors": the size, negated.
[[nodiscard]] FromImageAnswer reduceColors(std::optional<std::int32_t> size);

}  // namespace quillhue
