#include "core/new_palette.h"

#include <algorithm>

namespace quillhue {

namespace {

std::int32_t clampLevel(std::int32_t level) { return std::clamp(level, kMinRgbLevel, kMaxRgbLevel); }

std::int32_t clampSize(std::uint32_t size) {
  return static_cast<std::int32_t>(std::clamp<std::uint32_t>(size, 1, kMaxPaletteSize));
}

RgbLevels clampLevels(const RgbLevels& levels) {
  return {clampLevel(levels[0]), clampLevel(levels[1]), clampLevel(levels[2])};
}

}  // namespace

std::string_view newPaletteTitle(NewPaletteKind kind) {
  return kind == NewPaletteKind::sizeOnly ? "Palette size" : "New palette properties";
}

NewPaletteFields newPaletteFields(const AppSettings& settings) {
  const auto& [red, green, blue] = settings.rgbLevels;
  return {clampSize(settings.paletteSize), settings.windowsColors, clampLevels({red, green, blue})};
}

std::int32_t minimumPaletteSize(NewPaletteKind kind, const NewPaletteFields& fields) {
  const std::int32_t levels = asksLevels(kind) ? levelProduct(clampLevels(fields.levels)) : 0;
  const std::int32_t extra = asksWindowsColors(kind) && fields.windowsColors ? kWindowsColors : 0;
  return std::max(1, levels + extra);
}

std::string minimumSizeText(NewPaletteKind kind, const NewPaletteFields& fields) {
  std::string text = "(min. ";
  text += std::to_string(minimumPaletteSize(kind, fields));
  text += ')';
  return text;
}

std::expected<NewPaletteFields, std::string_view> acceptNewPalette(NewPaletteKind kind, NewPaletteFields fields,
                                                                   AppSettings& settings) {
  fields.size = std::clamp(fields.size, 1, kMaxPaletteSize);
  fields.levels = clampLevels(fields.levels);
  settings.paletteSize = static_cast<std::uint32_t>(fields.size);
  if (asksWindowsColors(kind)) {
    settings.windowsColors = fields.windowsColors;
  }
  if (asksLevels(kind)) {
    std::ranges::transform(fields.levels, settings.rgbLevels.begin(),
                           [](std::int32_t level) { return static_cast<std::uint8_t>(level); });
  }
  if (fields.size < minimumPaletteSize(kind, fields)) {
    return std::unexpected(asksLevels(kind)
                               ? "The chosen palette size is not large enough to contain the specified colors."
                               : "The chosen palette size is not large enough to contain the Windows colors.");
  }
  return fields;
}

Palette createNewPalette(NewPaletteKind kind, const NewPaletteFields& fields, PaletteEntry blank) {
  switch (kind) {
    case NewPaletteKind::blank:
      return createBlankPalette(fields.size, fields.windowsColors, blank);
    case NewPaletteKind::rgb:
      return createRgbPalette(fields.size, fields.levels, fields.windowsColors, blank);
    case NewPaletteKind::sizeOnly:
      break;
  }
  return createGreyscalePalette(fields.size);
}

}  // namespace quillhue
