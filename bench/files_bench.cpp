// Loading images, compared with a plain read of the same bitmap in blocks of 1 MiB; writing bitmaps; reading palettes.
// Files are in the system's cache.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "bench/images.h"
#include "bench/palettes.h"
#include "core/generators.h"
#include "formats/bitmap_writer.h"
#include "formats/byte_sink.h"
#include "formats/files.h"
#include "formats/images/image_loaders.h"
#include "formats/readers/palette_readers.h"

namespace {

using namespace quillhue;
using bench::ImageSize;
using Bytes = std::vector<std::uint8_t>;

// Returns indexes for an image: the low bits of its greens. They change from pixel to pixel like those of a remapped
// photo.
Bytes indexesOf(const WorkImage& image) {
  Bytes indexes(image.pixels().size() / 3);
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    indexes[i] = static_cast<std::uint8_t>(image.pixels()[3 * i + 1] / 4);
  }
  return indexes;
}

Bytes indexedBitmap(ImageSize size, std::int32_t colors) {
  // The widths used here are multiples of 4, so rows need no padding.
  return composeBitmap({size.width, size.height, indexesOf(bench::photoLikeImage(size))},
                       createGreyscalePalette(colors), {});
}

Bytes bitmap8(ImageSize size) { return indexedBitmap(size, 256); }
Bytes bitmap4(ImageSize size) { return indexedBitmap(size, 16); }

// Returns a PCX file with runs as image editors write them, with 8 bits or three planes of 8 bits.
Bytes pcx(ImageSize size, std::size_t planes) {
  const WorkImage& image = bench::photoLikeImage(size);
  const auto width = static_cast<std::size_t>(size.width);
  Bytes file(128);
  const Bytes start{0x0A, 5, 1, 8};
  std::ranges::copy(start, file.begin());
  const auto u16 = [&file](std::size_t offset, std::int32_t value) {
    file[offset] = static_cast<std::uint8_t>(value);
    file[offset + 1] = static_cast<std::uint8_t>(value >> 8);
  };
  u16(8, size.width - 1);
  u16(10, size.height - 1);
  file[65] = static_cast<std::uint8_t>(planes);
  for (std::int32_t y = 0; y < size.height; ++y) {
    const auto row = image.row(y);
    for (std::size_t plane = 0; plane < planes; ++plane) {
      const auto at = [&](std::size_t x) { return row[3 * x + plane]; };
      for (std::size_t x = 0; x < width;) {
        std::size_t run = 1;
        while (run < 63 && x + run < width && at(x + run) == at(x)) {
          ++run;
        }
        if (run > 1 || at(x) >= 192) {
          file.push_back(static_cast<std::uint8_t>(192 + run));
        }
        file.push_back(at(x));
        x += run;
      }
    }
  }
  file.resize(file.size() + 769);
  return file;
}

Bytes pcx8(ImageSize size) { return pcx(size, 1); }
Bytes pcx24(ImageSize size) { return pcx(size, 3); }

// Returns an uncompressed LBM file of bytes or planes. Its size in the form is one that the loader accepts.
Bytes lbm(ImageSize size, std::string_view form) {
  ByteSink sink;
  const auto u16be = [&sink](std::size_t offset, std::int32_t value) {
    sink.bytes(offset, {static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)});
  };
  sink.text(0, "FORM");
  u16be(6, 0x7638);
  sink.text(8, form);
  sink.text(12, "BMHD");
  u16be(20, size.width);
  u16be(22, size.height);
  sink.u8(28, 8);
  sink.text(40, "BODY");
  sink.extend(48);
  Bytes file = sink.take();
  const Bytes body = indexesOf(bench::photoLikeImage(size));
  file.insert(file.end(), body.begin(), body.end());
  return file;
}

Bytes lbmChunky(ImageSize size) { return lbm(size, "PBM "); }
Bytes lbmPlanes(ImageSize size) { return lbm(size, "ILBM"); }
Bytes bitmap24(ImageSize size) { return bench::bitmapOf(bench::photoLikeImage(size)); }

struct ImageFile {
  std::string name;
  Bytes (*make)(ImageSize size);

  [[nodiscard]] std::wstring write(const benchmark::State& state) const {
    const ImageSize size{static_cast<std::int32_t>(state.range(0)), static_cast<std::int32_t>(state.range(1))};
    return bench::scratchFile(name + '-' + nameOf(size), [&] { return make(size); });
  }
};

// The minimum cost of reading pixels: into new memory of their size.
void plainRead(benchmark::State& state, const ImageFile& image) {
  constexpr std::size_t kBlock = std::size_t{1} << 20;
  const std::filesystem::path path = toPath(image.write(state));
  const std::size_t size = std::filesystem::file_size(path);
  for (auto unused : state) {
    // A vector would fill it with zeros first.
    const auto content = std::make_unique_for_overwrite<char[]>(size);  // NOLINT(modernize-avoid-c-arrays)
    std::filebuf file;
    file.pubsetbuf(nullptr, 0);
    file.open(path, std::ios::in | std::ios::binary);
    for (std::size_t done = 0; done < size; done += kBlock) {
      file.sgetn(&content[done], static_cast<std::streamsize>(std::min(kBlock, size - done)));
    }
    benchmark::DoNotOptimize(content.get());
  }
}

void loader(benchmark::State& state, const ImageFile& file) {
  const std::wstring name = file.write(state);
  for (auto unused : state) {
    auto image = loadImage(*openFile(name).value()).value();
    benchmark::DoNotOptimize(image);
  }
}

void bitmapWriter(benchmark::State& state) {
  const Bytes indexes = indexesOf(bench::photoLikeImage(bench::kLarge));
  const Palette palette = createGreyscalePalette(static_cast<std::int32_t>(state.range(0)));
  for (auto unused : state) {
    benchmark::DoNotOptimize(composeBitmap({bench::kLarge.width, bench::kLarge.height, indexes}, palette, {}));
  }
}

// Opening each sample and reading its palette.
[[maybe_unused]] const bool kReadersRegistered = [] {
  for (const auto& entry : std::filesystem::directory_iterator(QUILLHUE_SAMPLES)) {
    const std::string name = "reader/" + entry.path().filename().string();
    benchmark::RegisterBenchmark(name.c_str(), [file = toFileName(entry.path())](auto& state) {
      for (auto unused : state) {
        const auto source = openFile(file).value();
        benchmark::DoNotOptimize(readPalette({*source, file}));
      }
    });
  }
  return true;
}();

const ImageFile kPlain{"bitmap-24", bitmap24};
const std::array<ImageFile, 7> kFiles{{kPlain,
                                       {"bitmap-8", bitmap8},
                                       {"bitmap-4", bitmap4},
                                       {"pcx-8", pcx8},
                                       {"pcx-24", pcx24},
                                       {"lbm-chunky", lbmChunky},
                                       {"lbm-planes", lbmPlanes}}};

void add(const std::string& side, void (*run)(benchmark::State& state, const ImageFile& file), const ImageFile& file) {
  auto* const registered =
      benchmark::RegisterBenchmark((side + '/' + file.name).c_str(), [run, &file](auto& state) { run(state, file); });
  for (const ImageSize size : {bench::kLarge, bench::kMedium}) {
    registered->Args({size.width, size.height});
  }
  registered->Unit(benchmark::kMillisecond);
}

[[maybe_unused]] const bool kLoadersRegistered = [] {
  add("plain-read", plainRead, kPlain);
  for (const ImageFile& file : kFiles) {
    add("loader", loader, file);
  }
  return true;
}();

BENCHMARK(bitmapWriter)->Arg(16)->Arg(256)->Unit(benchmark::kMillisecond);

}  // namespace
