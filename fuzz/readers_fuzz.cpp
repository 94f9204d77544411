// The input is a file. It is read under every name that matters to a reader, and compared with the standard reading.
// Then every reader of the catalogues reads it, whether it is of its format or not.

#include <vector>

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

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillhue;
  MemorySource source(std::vector(data, data + size));
  for (const wchar_t* name :
       {L"x", L"x.map", L"x.csv", L"x.tga", L"x.act", L"x.pal", L"x.col", L"x.aco", L"x.txt", L"x.hex"}) {
    const ReaderInput input{source, name};
    const auto note = notePaletteReading(input, readPalette(input));
    require(!note || note->standardReads || !note->text.empty(), "a text or a way out in every note");
  }
  for (const PaletteReader* reader : paletteReaders()) {
    check(reader->read({source, size % 2 == 0 ? L"x.pal" : L"x.col"}));
  }
  for (const PaletteReader* reader : standardReaders()) {
    check(reader->read({source, L"x"}));
  }
  return 0;
}
