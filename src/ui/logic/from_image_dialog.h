#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace quillhue {

/// The rules of the dialog that asks how to make a palette from an image of so many different colors.

/// The count in words.
[[nodiscard]] std::string colorsFoundText(std::uint64_t distinctColors);

/// The size that is proposed: every color, but no more than 256.
[[nodiscard]] std::int32_t proposedSize(std::uint64_t distinctColors);

/// Whether a palette can hold them all.
[[nodiscard]] bool canUseAllColors(std::uint64_t distinctColors);

/// What FileQuestions::askPaletteFromImage answers for the size in the dialog, 1 .. kMaxPaletteSize, or else the
/// message that refuses it. Nothing stands for a size that is no number.
using FromImageAnswer = std::expected<std::int32_t, std::string_view>;
/// "Use all colors", while that can be: as many entries as there are colors, more where the size is.
[[nodiscard]] FromImageAnswer useAllColors(std::optional<std::int32_t> size, std::uint64_t distinctColors);
/// "Reduce colors".
[[nodiscard]] FromImageAnswer reduceColors(std::optional<std::int32_t> size);

}  // namespace quillhue
