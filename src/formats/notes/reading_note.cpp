#include "formats/notes/reading_note.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include "formats/notes/format_notes.h"
#include "formats/readers/palette_readers.h"
#include "formats/standard/standard_formats.h"

namespace quillhue {

namespace {

constexpr std::array kPaletteNotes{&kActNotes,  &kCsvNotes, &kGifNotes, &kGimpNotes,
                                   &kJascNotes, &kMapNotes, &kTgaNotes, &kXcfNotes};
constexpr std::array kImageNotes{&kBitmapImageNotes, &kClipboardImageNotes, &kPcxImageNotes};

std::string explain(const PaletteReader& reader, const ReaderInput& input) {
  const auto found = std::ranges::find(kPaletteNotes, reader.name, &PaletteNotes::reader);
  return found == kPaletteNotes.end() ? std::string() : (*found)->explain(input);
}

const Palette* paletteIn(const ReadResult& reading) {
  const auto* const file = reading ? std::get_if<FilePalette>(&*reading) : nullptr;
  return file == nullptr ? nullptr : &file->palette;
}

std::string compareEntries(const Palette& standard, const Palette& palette) {
  if (standard.getSize() != palette.getSize()) {
    return textOfParts("the file has ", standard.getSize(), " entries; read as ", palette.getSize());
  }
  std::int32_t different = 0;
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    different += palette.entry(i) == standard.entry(i) ? 0 : 1;
  }
  return textOfParts(different, " of ", palette.getSize(), " entries are read with other colors than the file has");
}

// The format has no standard reader, or that reader refuses the file.
std::optional<ReadingNote> noteDefaultAlone(const ReaderInput& input, const ReadResult& reading) {
  const PaletteReader* const reader = findPaletteReader(input);
  std::string text = reader == nullptr || !reading ? std::string() : explain(*reader, input);
  return text.empty() ? std::nullopt : std::optional(ReadingNote{std::move(text), false});
}

}  // namespace

std::optional<ReadingNote> notePaletteReading(const ReaderInput& input, const ReadResult& reading) try {
  const PaletteReader* const standard = findStandardReader(input);
  if (standard == &kStandardBitmapReader) {
    return noteBitmapPalette(input.source, reading);
  }
  if (standard == nullptr) {
    return noteDefaultAlone(input, reading);
  }
  const ReadResult other = standard->read(input);
  if (!other) {
    return noteDefaultAlone(input, reading);
  }
  const Palette* const standardPalette = paletteIn(other);
  const Palette* const palette = paletteIn(reading);
  if (standardPalette != nullptr && palette != nullptr && *palette == *standardPalette) {
    return std::nullopt;
  }
  std::string text = explain(*standard, input);
  if (text.empty() && standardPalette != nullptr && palette != nullptr) {
    text = compareEntries(*standardPalette, *palette);
  }
  return ReadingNote{std::move(text), true};
} catch (const std::bad_alloc&) {
  return std::nullopt;
}

std::optional<ReadingNote> noteImageReading(ByteSource& source, bool isLoaded) {
  const auto notes = std::ranges::find_if(kImageNotes, [&](const ImageNotes* row) { return row->matches(source); });
  const bool isKnown = notes != kImageNotes.end();
  if (isLoaded) {
    return isKnown ? (*notes)->compare(source) : std::nullopt;
  }
  const StandardLoader* const loader = findStandardLoader(source);
  if (loader == nullptr || !guardedLoad(source, [&] { return loader->load(source, {}); })) {
    return std::nullopt;
  }
  return ReadingNote{isKnown ? (*notes)->explainRefusal(source) : std::string(), true};
}

}  // namespace quillhue
