#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

#include "core/generators.h"
#include "core/settings.h"

namespace quillhue {

/// Rules of the dialog that creates or resizes a palette, independent of the window.

/// Selects the dialog's title and fields.
enum class NewPaletteKind : std::uint8_t {
  /// Size only: for a greyscale palette, or for resizing a palette.
  sizeOnly,
  /// Size and Windows colors.
  blank,
  /// Size, Windows colors and levels.
  rgb,
};

/// Values of the dialog's fields. Fields that the kind does not show are ignored.
struct NewPaletteFields {
  std::int32_t size = 1;
  bool windowsColors = false;
  RgbLevels levels{};
};

[[nodiscard]] constexpr bool asksWindowsColors(NewPaletteKind kind) { return kind != NewPaletteKind::sizeOnly; }
[[nodiscard]] constexpr bool asksLevels(NewPaletteKind kind) { return kind == NewPaletteKind::rgb; }

[[nodiscard]] std::string_view newPaletteTitle(NewPaletteKind kind);

/// Returns the initial values of the fields.
[[nodiscard]] NewPaletteFields newPaletteFields(const AppSettings& settings);

/// Return the smallest size that holds the chosen colors, at least 1, and the text that shows it beside the size field.
[[nodiscard]] std::int32_t minimumPaletteSize(NewPaletteKind kind, const NewPaletteFields& fields);
[[nodiscard]] std::string minimumSizeText(NewPaletteKind kind, const NewPaletteFields& fields);

/// Accepts the dialog's fields. Clamps the size to 1 .. kMaxPaletteSize and the levels to their range, stores the
/// fields that the kind shows in the settings, and returns all fields. If the size is too small for the colors, returns
/// the error message instead; the settings are stored anyway. A level of 256 is stored as 0, because the settings have
/// one byte for it.
[[nodiscard]] std::expected<NewPaletteFields, std::string_view> acceptNewPalette(NewPaletteKind kind,
                                                                                 NewPaletteFields fields,
                                                                                 AppSettings& settings);

/// Creates the palette that accepted fields describe. Entries without another color get `blank`.
[[nodiscard]] Palette createNewPalette(NewPaletteKind kind, const NewPaletteFields& fields, PaletteEntry blank);

}  // namespace quillhue
