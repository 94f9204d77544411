// Parts of the product that scripts/benchmark.sh needs in addition to the tool:
//   quillhue_bench_peers make FOLDER                     images and palettes for all programs
//   quillhue_bench_peers time IMAGE.bmp PALETTE MODE     CPU seconds of the remapping alone
//   quillhue_bench_peers judge IMAGE.bmp PALETTE [ANSWER.ppm]
//     the share of pixels in which the answer, the product's own without a file, is not a nearest entry
// A PALETTE is any palette file.

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "bench/images.h"
#include "bench/no_progress.h"
#include "bench/palettes.h"
#include "core/utf8.h"
#include "formats/files.h"
#include "formats/images/image_loaders.h"
#include "formats/palette_file.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"
#include "remap/remap.h"

namespace {

using namespace quillhue;
using Bytes = std::vector<std::uint8_t>;

void save(const std::filesystem::path& file, const Bytes& content) {
  if (!writeFile(toFileName(file), content)) {
    throw std::runtime_error("cannot write " + file.string());
  }
}

// Returns a binary portable pixmap of the colors, from top left to bottom right.
Bytes pixmapOf(std::size_t width, std::size_t height, const std::vector<PaletteEntry>& colors) {
  const std::string header = "P6\n" + std::to_string(width) + ' ' + std::to_string(height) + "\n255\n";
  Bytes file(header.begin(), header.end());
  file.reserve(header.size() + 3 * colors.size());
  for (const PaletteEntry& color : colors) {
    file.insert(file.end(), {color.red, color.green, color.blue});
  }
  return file;
}

std::vector<PaletteEntry> colorsOf(const WorkImage& image) {
  std::vector<PaletteEntry> colors;
  const auto pixels = image.pixels();
  for (std::size_t i = 0; i < pixels.size(); i += 3) {
    colors.push_back({pixels[i + 2], pixels[i + 1], pixels[i]});
  }
  return colors;
}

void saveImage(const std::filesystem::path& folder, const std::string& name, const WorkImage& image) {
  save(folder / (name + ".bmp"), bench::bitmapOf(image));
  save(folder / (name + ".ppm"),
       pixmapOf(static_cast<std::size_t>(image.width()), static_cast<std::size_t>(image.height()), colorsOf(image)));
}

void savePalette(const std::filesystem::path& folder, const std::string& name, const Palette& palette) {
  save(folder / (name + ".gpl"), composePaletteFile(palette, kGimpWriter.format, {}).value());
  std::vector<PaletteEntry> colors = entriesOf(palette);
  save(folder / (name + ".ppm"), pixmapOf(colors.size(), 1, colors));
  // For programs that need 256 entries in a square. Repeating the last color adds no color.
  colors.resize(256, colors.back());
  save(folder / (name + "-square.ppm"), pixmapOf(16, 16, colors));
}

void make(const std::filesystem::path& folder) {
  for (const bench::ImageSize size : {bench::kLarge, bench::kMedium}) {
    saveImage(folder, nameOf(size), bench::photoLikeImage(size));
  }
  saveImage(folder, "smooth", bench::smoothImage(bench::kLarge));
  saveImage(folder, "pixel-art", bench::pixelArtImage(bench::kLarge));
  saveImage(folder, "noise", bench::noiseImage(bench::kLarge));
  for (const bench::BenchPalette& row : bench::benchPalettes()) {
    savePalette(folder, std::string(row.name), row.create(bench::kLarge));
  }
  savePalette(folder, "wide-256", bench::withCorners(bench::benchPalettes()[1].create(bench::kLarge)));
}

WorkImage loadFile(const std::string& file) { return loadImage(*openFile(fromUtf8(file)).value()).value(); }

Palette loadPalette(const std::string& file) {
  const std::wstring name = fromUtf8(file);
  const auto source = openFile(name).value();
  return std::get<FilePalette>(readPalette({*source, name}).value()).palette;
}

RemappedImage remapped(const WorkImage& image, const Palette& palette, RemapMode mode) {
  RemappedImage result;
  bench::NoProgress progress;
  remapImage(image, palette, {mode, {}, {}}, result, progress);
  return result;
}

RemapMode modeOf(const std::string& mode) {
  if (mode != "nearest" && mode != "dither") {
    throw std::runtime_error(mode + " is neither nearest nor dither");
  }
  return mode == "dither" ? RemapMode::dither : RemapMode::nearest;
}

void printTime(const std::string& imageFile, const std::string& paletteFile, const std::string& mode) {
  const WorkImage image = loadFile(imageFile);
  const Palette palette = loadPalette(paletteFile);
  const std::clock_t start = std::clock();
  const RemappedImage result = remapped(image, palette, modeOf(mode));
  std::cout << static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC << '\n';
}

std::vector<PaletteEntry> ownAnswer(const WorkImage& image, const Palette& palette) {
  RemappedImage result = remapped(image, palette, RemapMode::nearest);
  std::vector<PaletteEntry> colors;
  for (std::int32_t y = 0; y < result.height(); ++y) {
    std::ranges::transform(result.row(y), std::back_inserter(colors),
                           [&](std::uint8_t index) { return palette.entry(index); });
  }
  return colors;
}

// The pixels are the last bytes of a pixmap, because its header may have any length.
std::vector<PaletteEntry> loadAnswer(const std::string& file, std::size_t pixels) {
  const auto source = openFile(fromUtf8(file)).value();
  if (source->size() < 3 * pixels) {
    throw std::runtime_error(file + " is too short");
  }
  const Bytes bytes = source->bytes(source->size() - 3 * pixels, 3 * pixels);
  std::vector<PaletteEntry> colors;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    colors.push_back({bytes[i], bytes[i + 1], bytes[i + 2]});
  }
  return colors;
}

std::int32_t distance(const PaletteEntry& a, const PaletteEntry& b) {
  const auto square = [](std::int32_t difference) { return difference * difference; };
  return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

// An entry is right if it is as near as the nearest one, whatever its index. A color that is not in the palette is
// wrong, however near.
void printFaults(const std::string& imageFile, const std::string& paletteFile, const std::string* answerFile) {
  const WorkImage image = loadFile(imageFile);
  const Palette palette = loadPalette(paletteFile);
  const std::vector<PaletteEntry> pixels = colorsOf(image);
  const std::vector<PaletteEntry> entries = entriesOf(palette);
  const std::vector<PaletteEntry> answers =
      answerFile != nullptr ? loadAnswer(*answerFile, pixels.size()) : ownAnswer(image, palette);
  std::size_t faults = 0;
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    std::int32_t least = distance(pixels[i], entries.front());
    bool isEntry = false;
    for (const PaletteEntry& entry : entries) {
      least = std::min(least, distance(pixels[i], entry));
      isEntry = isEntry || entry == answers[i];
    }
    faults += isEntry && distance(pixels[i], answers[i]) == least ? 0 : 1;
  }
  std::cout << static_cast<double>(faults) / static_cast<double>(pixels.size()) << '\n';
}

}  // namespace

int main(int argumentCount, char** arguments) try {
  const std::vector<std::string> words(arguments + 1, arguments + argumentCount);
  if (words.size() == 2 && words[0] == "make") {
    make(words[1]);
  } else if (words.size() == 4 && words[0] == "time") {
    printTime(words[1], words[2], words[3]);
  } else if ((words.size() == 3 || words.size() == 4) && words[0] == "judge") {
    printFaults(words[1], words[2], words.size() == 4 ? &words[3] : nullptr);
  } else {
    std::cerr << "quillhue_bench_peers make FOLDER | time IMAGE PALETTE MODE | judge IMAGE PALETTE [ANSWER]\n";
    return 2;
  }
  return 0;
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
