// The input is a file. Every reader that recognizes it, under one of the names that matter, reads it; the result is
// compared with the standard reading. A standard reader that recognizes it reads it under one of the names. One more
// reader of the catalogues reads it whether it recognizes it or not.

#include <algorithm>
#include <array>
#include <expected>
#include <new>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "formats/color_list.h"
#include "formats/files.h"
#include "formats/notes/reading_note.h"
#include "formats/readers/palette_readers.h"
#include "formats/standard/standard_formats.h"
#include "fuzz_target.h"

namespace {

void check(const quillhue::ReadResult& result) {
  using namespace quillhue;
  if (!result) {
    require(!textOf(result.error()).empty(), "a text for every failure");
  } else if (const auto* bitmap = std::get_if<TrueColorBitmap>(&*result)) {
    require(bitmap->pixelCount() >= 1, "at least one pixel");
  } else if (const auto* file = std::get_if<FilePalette>(&*result)) {
    const std::int32_t entries = file->palette.getSize();
    require(entries >= 1 && entries <= kMaxPaletteSize, "1 to 1024 entries");
  }
}

// An image may need more memory than fuzzing grants.
quillhue::ReadResult readBy(const quillhue::PaletteReader& reader, const quillhue::ReaderInput& input) try {
  return reader.read(input);
} catch (const std::bad_alloc&) {
  return std::unexpected(quillhue::Failure::notEnoughMemory);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillhue;
  static constexpr std::array<const wchar_t*, 10> kNames{L"x",     L"x.map", L"x.csv", L"x.tga", L"x.act",
                                                         L"x.pal", L"x.col", L"x.aco", L"x.txt", L"x.hex"};
  MemorySource source(std::vector(data, data + size));
  const PaletteReader* last = nullptr;
  for (const wchar_t* name : kNames) {
    const ReaderInput input{source, name};
    const PaletteReader* const reader = findPaletteReader(input);
    if (reader != nullptr && reader != last) {
      // readPalette() finds the reader again, which takes long.
      const ReadResult result = last == nullptr ? readPalette(input) : readBy(*reader, input);
      check(result);
      const auto note = notePaletteReading(input, result);
      require(!note || note->standardReads || !note->text.empty(), "a text or a way out in every note");
      last = reader;
    }
  }
  const ReaderInput input{source, kNames[size % kNames.size()]};
  if (const PaletteReader* const reader = findStandardReader(input)) {
    check(readBy(*reader, input));
  }
  // Pasted text may be a list of colors.
  const std::string text(data, data + size);
  if (const auto colors = parseColorList(text)) {
    require(parseColorList(colorListText(*colors)) == colors, "the colors of a list of them");
  }
  // Reading a stream takes a buffer of 64 KiB, so only some inputs do.
  if (size % 64 == 0) {
    std::istringstream stream(text);
    const auto streamed = readStream(stream);
    std::vector<std::uint8_t> content(size);
    require(streamed && (*streamed)->size() == size, "a stream as long as the input");
    (*streamed)->read(0, content);
    require(std::ranges::equal(content, std::span(data, size)), "the bytes of the stream");
  }
  // The input's last byte chooses a reader that gets the file whether it matches or not.
  const std::size_t choice = size == 0 ? 0 : data[size - 1];
  const auto readers = choice % 2 == 0 ? paletteReaders() : standardReaders();
  check(readBy(*readers[choice / 2 % readers.size()], {source, kNames[choice % kNames.size()]}));
  return 0;
}
