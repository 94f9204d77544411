#include "ui/logic/from_image_dialog.h"

#include <algorithm>

#include "core/palette.h"

namespace quillhue {

namespace {

constexpr std::uint64_t kMostProposed = 256;

FromImageAnswer checkSize(std::optional<std::int32_t> size) {
  if (!size || *size < 1 || *size > kMaxPaletteSize) {
    return std::unexpected("The palette size must be a number from 1 to 1024.");
  }
  return *size;
}

}  // namespace

std::string colorsFoundText(std::uint64_t distinctColors) {
  std::string text = std::to_string(distinctColors);
  text += distinctColors == 1 ? " different color" : " different colors";
  text += " found in the image.";
  return text;
}

std::int32_t proposedSize(std::uint64_t distinctColors) {
  return static_cast<std::int32_t>(std::min(distinctColors, kMostProposed));
}

bool canUseAllColors(std::uint64_t distinctColors) { return distinctColors <= kMaxPaletteSize; }

FromImageAnswer useAllColors(std::optional<std::int32_t> size, std::uint64_t distinctColors) {
  FromImageAnswer answer = checkSize(size);
  if (answer) {
    answer = std::max(*answer, static_cast<std::int32_t>(distinctColors));
  }
  return answer;
}

FromImageAnswer reduceColors(std::optional<std::int32_t> size) {
  FromImageAnswer answer = checkSize(size);
  if (answer) {
    answer = -*answer;
  }
  return answer;
}

}  // namespace quillhue
