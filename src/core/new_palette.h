#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

#include "core/generators.h"
#include "core/settings.h"

namespace quillhue {

/// The rules of the dialog that asks what a new palette is to be like, without the dialog.

/// What is to be made; tells the dialog's title and fields.
enum class NewPaletteKind : std::uint8_t {
  /// A greyscale palette, or an existing one that is resized: the size only.
  sizeOnly,
  /// Size and Windows colors.
  blank,
  /// Size, Windows colors and levels.
  rgb,
};

/// The dialog's fields. Those that the kind has not are ignored.
struct NewPaletteFields {
  std::int32_t size = 1;
  bool windowsColors = false;
  RgbLevels levels{};
};

[[nodiscard]] constexpr bool asksWindowsColors(NewPaletteKind kind) { return kind != NewPaletteKind::sizeOnly; }
[[nodiscard]] constexpr bool asksLevels(NewPaletteKind kind) { return kind == NewPaletteKind::rgb; }

[[nodiscard]] std::string_view newPaletteTitle(NewPaletteKind kind);

/// What the fields hold when the dialog opens.
[[nodiscard]] NewPaletteFields newPaletteFields(const AppSettings& settings);

/// The smallest size that holds the chosen colors, at least 1, and the text that shows it beside the size.
[[nodiscard]] std::int32_t minimumPaletteSize(NewPaletteKind kind, const NewPaletteFields& fields);
[[nodiscard]] std::string minimumSizeText(NewPaletteKind kind, const NewPaletteFields& fields);

/// OK: brings the size into 1 .. kMaxPaletteSize and the levels into their range, stores what the kind asks for in
/// the settings, and gives the fields back; or else the message that says why the size is too small. The settings
/// are stored in either case. A level of 256 is stored as 0, since the settings have one byte for it.
[[nodiscard]] std::expected<NewPaletteFields, std::string_view> acceptNewPalette(NewPaletteKind kind,
                                                                                 NewPaletteFields fields,
                                                                                 AppSettings& settings);

/// The palette that accepted fields describe, at its kind's rules; `blank` fills what the colors leave.
[[nodiscard]] Palette createNewPalette(NewPaletteKind kind, const NewPaletteFields& fields, PaletteEntry blank);

}  // namespace quillhue
