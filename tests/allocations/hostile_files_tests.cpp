#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include "allocations/failing_allocations.h"
#include "formats/files.h"
#include "formats/image_limits.h"
#include "formats/images/image_loaders.h"
#include "formats/readers/palette_readers.h"
#include "formats/standard/standard_formats.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

/// A file in memory that counts the bytes read from it, as a measure of time.
class CountingSource final : public ByteSource {
 public:
  explicit CountingSource(const Bytes& content) : ByteSource(content.size()), content_(content) {}

  [[nodiscard]] std::uint64_t read() const { return read_; }

 private:
  std::size_t readStored(std::uint64_t offset, std::span<std::uint8_t> out) override {
    read_ += out.size();
    std::copy_n(content_.begin() + static_cast<std::ptrdiff_t>(offset), out.size(), out.begin());
    return out.size();
  }

  const Bytes& content_;
  std::uint64_t read_ = 0;
};

// Calls `check` with each sample's name and content. Replaces numbers of the header by the largest and by small ones,
// and appends bytes that claim the same sizes.
template <typename Check>
void forEachHostileFile(Check check) {
  constexpr std::size_t kHeader = 72;
  constexpr std::size_t kLength = 40'000;
  for (const char* folder : {"samples", "standard"}) {
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
      std::ifstream stream(file.path(), std::ios::binary);
      const std::string stored{std::istreambuf_iterator(stream), std::istreambuf_iterator<char>()};
      const Bytes sample = bytesOf(stored);
      const std::wstring name = toFileName(file.path());
      for (const std::uint8_t value : std::to_array<std::uint8_t>({0, 1, 0x7F, 0xFF})) {
        for (std::size_t at = 0; at < std::min(kHeader, sample.size()); ++at) {
          Bytes hostile = sample;
          std::fill_n(hostile.begin() + static_cast<std::ptrdiff_t>(at),
                      std::min<std::size_t>(at % 4 == 0 ? 4 : 2, sample.size() - at), value);
          hostile.resize(std::max(kLength, sample.size()), value);
          SCOPED_TRACE(file.path().string() + ", " + std::to_string(value) + " at " + std::to_string(at));
          check(name, hostile);
        }
      }
    }
  }
}

void readWithinBounds(const PaletteReader* reader, std::size_t mostMemory, const std::wstring& name,
                      const Bytes& file) {
  CountingSource source(file);
  if (reader != nullptr) {
    const PeakMemory memory;
    static_cast<void>(reader->read({source, name}));
    EXPECT_LE(memory.bytes(), mostMemory) << reader->name;
    EXPECT_LE(source.read(), kMaxReaderPasses * file.size()) << reader->name;
  }
}

TEST(HostileFiles, StayWithinTheBoundsOfReaders) {
  forEachHostileFile([](const std::wstring& name, const Bytes& file) {
    CountingSource source(file);
    const ReaderInput input{source, name};
    readWithinBounds(findPaletteReader(input), kMaxReaderMemory, name, file);
    // An image is loaded before a palette is made from it.
    const bool isImage = findStandardLoader(source) != nullptr;
    readWithinBounds(findStandardReader(input),
                     isImage ? kMaxStandardPixelBytes * kMaxImagePixels + kMaxLoaderMemory : kMaxReaderMemory, name,
                     file);
  });
}

// Returns how much of the pixels' memory was written and not only promised by the system.
std::size_t touchedBytes(std::span<const std::uint8_t> pixels) {
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto first = reinterpret_cast<std::uintptr_t>(pixels.data()) / page * page;
  const std::uintptr_t end = (reinterpret_cast<std::uintptr_t>(pixels.data()) + pixels.size() + page - 1) / page * page;
  std::vector<unsigned char> resident((end - first) / page);
  EXPECT_EQ(mincore(reinterpret_cast<void*>(first), end - first, resident.data()), 0);
  return static_cast<std::size_t>(std::ranges::count_if(resident, [](unsigned char each) { return (each & 1) != 0; })) *
         page;
}

// Returns how many bytes of pixels result from each byte of the file.
std::uint64_t loadWithinBounds(const Bytes& file) {
  CountingSource source(file);
  const PeakMemory memory;
  const auto image = loadImage(source);
  EXPECT_LE(source.read(), kMaxReaderPasses * file.size());
  if (!image) {
    EXPECT_LE(memory.bytes(), 3 * kMaxImagePixels + kMaxLoaderMemory);
    return 0;
  }
  EXPECT_LE(memory.bytes(), image->pixels().size() + kMaxLoaderMemory);
  const std::size_t touched = touchedBytes(image->pixels());
  EXPECT_LE(touched, kMaxPixelBytesPerFileByte * file.size() + 3 * kMaxImageSide);
  return touched / file.size();
}

void loadStandardWithinBounds(const Bytes& file) {
  CountingSource source(file);
  if (findStandardLoader(source) == nullptr) {
    return;
  }
  const PeakMemory memory;
  const auto image = loadStandardImage(source, {});
  const std::size_t pixels =
      image ? static_cast<std::size_t>(image->width()) * static_cast<std::size_t>(image->height()) : kMaxImagePixels;
  EXPECT_LE(memory.bytes(), kMaxStandardPixelBytes * pixels + kMaxLoaderMemory);
  EXPECT_LE(source.read(), kMaxReaderPasses * file.size());
}

TEST(HostileFiles, StayWithinTheBoundsOfLoaders) {
  forEachHostileFile([](const std::wstring& /*name*/, const Bytes& file) {
    loadWithinBounds(file);
    loadStandardWithinBounds(file);
  });
  // The largest image, made of the longest runs only, in bytes and in planes.
  for (const char* form : {"PBM ", "ILBM"}) {
    Bytes file = bytesOf("FORM....");
    for (const std::string& part :
         {std::string(form), std::string("BMHD....\xFF\xFF\x0F\xFF....\x08\0\1.BODY....", 28)}) {
      std::ranges::copy(part, std::back_inserter(file));
    }
    file[6] = 0x76;
    file[7] = 0x38;
    while (file.size() < 400'000) {
      file.insert(file.end(), {0x81, 0});
    }
    EXPECT_GE(loadWithinBounds(file), kMaxPixelBytesPerFileByte - 4) << form;
  }
}

}  // namespace
}  // namespace quillhue
