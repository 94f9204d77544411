// The input is a file. Every reader of the catalogue reads it, under every name that matters to one, whether it is of
// its format or not; from an image of true colors palettes are made.

#include <vector>

#include "formats/image_colors.h"
#include "formats/readers/palette_readers.h"
#include "fuzz_target.h"

namespace {

using namespace quillhue;

void makePalettes(const TrueColorBitmap& bitmap, std::size_t size) {
  const ImageColors colors(bitmap);
  require(colors.distinctCount() >= 1 && colors.distinctCount() <= bitmap.pixelCount(),
          "distinct colors in the pixels");
  const auto entries = static_cast<std::int32_t>(1 + size % kMaxPaletteSize);
  require(colors.exactPalette(entries, {}).getSize() == entries, "an exact palette of the size asked for");
  require(colors.reducedPalette(entries, {}).getSize() == entries, "a reduced palette of the size asked for");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  MemorySource source(std::vector(data, data + size));
  for (const wchar_t* name : {L"x", L"x.map", L"x.tga", L"x.act", L"x.pal", L"x.col"}) {
    (void)findPaletteReader({source, name});
  }
  for (const PaletteReader* reader : paletteReaders()) {
    const ReadResult result = reader->read({source, L"x"});
    if (!result) {
      require(!textOf(result.error()).empty(), "a text for every failure");
    } else if (const auto* bitmap = std::get_if<TrueColorBitmap>(&*result)) {
      if (reader->matches({source, L"x"})) {
        makePalettes(*bitmap, size);
      }
    } else {
      const std::int32_t entries = std::get<FilePalette>(*result).palette.getSize();
      require(entries >= 1 && entries <= kMaxPaletteSize, "1 to 1024 entries");
    }
  }
  return 0;
}
