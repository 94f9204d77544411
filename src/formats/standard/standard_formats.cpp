#include "formats/standard/standard_formats.h"

#include <algorithm>
#include <array>

#include "formats/images/image_loaders.h"

namespace quillhue {

namespace {

constexpr std::array kReaders{
    &kStandardJascReader, &kStandardGimpReader, &kStandardXcfReader, &kStandardRiffReader, &kStandardBitmapReader,
    &kStandardGifReader,  &kStandardPcxReader,  &kStandardCsvReader, &kStandardTgaReader,
};

constexpr std::array kLoaders{&kStandardBitmapLoader, &kStandardClipboardLoader, &kStandardPcxLoader,
                              &kStandardGifLoader};

constexpr std::array kWriters{&kStandardJascWriter, &kStandardGimpWriter};

// Returns the first member that matches, or null.
template <typename Member, std::size_t kSize>
const Member* firstMatch(const std::array<const Member*, kSize>& members, auto& input) {
  const auto found = std::ranges::find_if(members, [&](const Member* member) { return member->matches(input); });
  return found == members.end() ? nullptr : *found;
}

}  // namespace

std::span<const PaletteReader* const> standardReaders() { return kReaders; }

const PaletteReader* findStandardReader(const ReaderInput& input) { return firstMatch(kReaders, input); }

const StandardLoader* findStandardLoader(ByteSource& source) { return firstMatch(kLoaders, source); }

ImageResult loadStandardImage(ByteSource& source, PaletteEntry blank) {
  const StandardLoader* const loader = findStandardLoader(source);
  return loader == nullptr ? loadImage(source) : guardedLoad(source, [&] { return loader->load(source, blank); });
}

std::span<const ExportFormat* const> standardWriters() { return kWriters; }

}  // namespace quillhue
