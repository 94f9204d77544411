#include "cli/image_input.h"

#include <algorithm>
#include <new>
#include <unordered_map>
#include <utility>
#include <variant>

#include "cli/file_log.h"
#include "cli/file_reason.h"
#include "cli/input.h"
#include "cli/notes.h"
#include "cli/refusal.h"
#include "core/utf8.h"
#include "formats/images/image_loaders.h"
#include "formats/notes/reading_note.h"
#include "formats/readers/palette_readers.h"
#include "formats/standard/standard_formats.h"
#include "pictures/picture_file.h"
#include "pictures/png_file.h"

namespace quillhue::cli {

namespace {

// The name of an image's format, which is that of the palette reader for such files if there is one.
std::string_view formatNameOf(ByteSource& source, const std::string& file) {
  if (const PictureKind* const kind = findPictureKind(source)) {
    return kind->name;
  }
  const std::wstring name = fromUtf8(file);
  const PaletteReader* const reader = findPaletteReader({source, name});
  return reader == nullptr ? "image" : reader->name;
}

std::expected<WorkImage, std::string> loadPixels(ByteSource& source, const std::string& file, bool standard,
                                                 PaletteEntry blank, Console& console) {
  ImageResult image = standard ? loadStandardImage(source, blank) : loadImage(source);
  if (!image && image.error() == Failure::unrecognisedType && findPictureKind(source) != nullptr) {
    image = loadPicture(source, blank);
  } else if (!standard) {
    addReadingNote(console, file, noteImageReading(source, image.has_value()));
  }
  if (!image) {
    return refusalOf(image.error());
  }
  addRead(console, recordOf(file, formatNameOf(source, file), source.size(), *image));
  return std::move(*image);
}

// Only PNG files can have partly transparent entries.
bool hasPartCoverage(ByteSource& source) {
  if (findPictureKind(source) != &kPngPicture) {
    return false;
  }
  const auto png = readPngFile(source.bytes(0, static_cast<std::size_t>(source.size())));
  const std::optional<PictureColors> colors = png ? png->colors : std::nullopt;
  return colors &&
         std::ranges::any_of(colors->coverage, [](std::uint8_t coverage) { return coverage != 0 && coverage != 255; });
}

std::uint32_t keyOf(const PaletteEntry& color) {
  return static_cast<std::uint32_t>(color.red << 16 | color.green << 8 | color.blue);
}

void countIndexes(const WorkImage& image, ImageUse& use) {
  for (const std::uint8_t index : image.pixels()) {
    ++(index < use.pixels.size() ? use.pixels[index] : use.other);
  }
}

void countColors(const WorkImage& image, const Palette& palette, ImageUse& use) {
  std::unordered_map<std::uint32_t, std::size_t> entries;
  for (std::int32_t index = 0; index < palette.getSize(); ++index) {
    entries.try_emplace(keyOf(palette.entry(index)), static_cast<std::size_t>(index));
  }
  for (std::int32_t y = 0; y < image.height(); ++y) {
    const auto row = image.row(y);
    for (std::size_t x = 0; x < row.size() / 3; ++x) {
      if (image.isTransparent(y, x)) {
        ++use.transparent;
        continue;
      }
      const auto found = entries.find(keyOf({row[3 * x + 2], row[3 * x + 1], row[3 * x]}));
      ++(found == entries.end() ? use.other : use.pixels[found->second]);
    }
  }
}

}  // namespace

std::expected<WorkImage, std::string> readImage(const std::string& file, bool standard, PaletteEntry blank,
                                                Console& console) {
  const auto source = openSource(file, console);
  return source ? loadPixels(**source, file, standard, blank, console) : Refusal(openingFailure(source.error(), file));
}

std::expected<ImageFile, std::string> readImageFile(const std::string& file, bool standard, Console& console) try {
  auto source = openSource(file, console);
  if (!source) {
    return Refusal(openingFailure(source.error(), file));
  }
  auto image = loadPixels(**source, file, standard, {}, console);
  if (!image) {
    return Refusal(image.error());
  }
  std::optional<Palette> palette = image->palette();
  if (!palette) {
    return ImageFile{std::move(*image), {}};
  }
  const bool isPartlyTransparent = hasPartCoverage(**source);
  auto input = readInput(*std::move(source), file, {{}, standard}, nullptr);
  if (auto* const stored = input ? std::get_if<FilePalette>(&input->content) : nullptr) {
    palette = std::move(stored->palette);
  }
  return ImageFile{std::move(*image), std::move(palette), isPartlyTransparent};
} catch (const std::bad_alloc&) {
  return refusalOf(Failure::notEnoughMemory);
}

ImageUse countUse(const WorkImage& image, const Palette& palette) {
  ImageUse use{std::vector<std::uint64_t>(static_cast<std::size_t>(palette.getSize()))};
  if (image.palette()) {
    countIndexes(image, use);
  } else {
    countColors(image, palette, use);
  }
  return use;
}

}  // namespace quillhue::cli
