// The distinct colors of a true-color bitmap: the product against the sorted list of all pixels that defines them. Both
// read the same file. Compare the medians of one run with both sides interleaved:
//   --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "formats/files.h"
#include "formats/image_colors.h"

namespace {

using namespace quillhue;

// A 24-bit bitmap with soft gradients, edges and some noise, always the same.
std::wstring photoLikeBitmap(std::uint32_t width, std::uint32_t height) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("quillhue-bench-" + std::to_string(width) + "x" + std::to_string(height) + ".bmp");
  if (std::filesystem::exists(path)) {
    return toFileName(path);
  }
  const auto le32 = [](std::uint32_t value) {
    return std::string{static_cast<char>(value), static_cast<char>(value >> 8), static_cast<char>(value >> 16),
                       static_cast<char>(value >> 24)};
  };
  std::ofstream file(path, std::ios::binary);
  file << "BM" << le32(0) << le32(0) << le32(54) << le32(40) << le32(width) << le32(height) << le32(0x180001)
       << std::string(24, '\0');
  std::minstd_rand random(1);
  std::string row((std::size_t{width} * 3 + 3) / 4 * 4, '\0');
  for (std::uint32_t y = 0; y < height; ++y) {
    for (std::uint32_t x = 0; x < width; ++x) {
      const double edge = (x / 400 + y / 300) % 2 == 0 ? 30 : 0;
      const std::array phases{0.9, 1.7, 2.3};
      for (std::size_t channel = 0; channel < phases.size(); ++channel) {
        const double wave = std::sin(x * phases[channel] / 500) + std::cos(y * phases[channel] / 700);
        const double noise = static_cast<double>(random() % 9) - 4;
        row[std::size_t{x} * 3 + channel] = static_cast<char>(std::clamp(110 + 45 * wave + edge + noise, 0.0, 255.0));
      }
    }
    file << row;
  }
  return toFileName(path);
}

std::uint64_t countSorted(const TrueColorBitmap& bitmap) {
  std::vector<ColorWord> words;
  words.reserve(bitmap.pixelCount());
  bitmap.forEachBlock([&](std::span<const ColorWord> block) { std::ranges::copy(block, std::back_inserter(words)); });
  std::ranges::sort(words, {},
                    [](ColorWord word) { return (word >> 8 & 0xFF) << 16 | (word & 0xFF) << 8 | (word >> 16 & 0xFF); });
  return static_cast<std::uint64_t>(std::unique(words.begin(), words.end()) - words.begin());
}

std::uint64_t countProduct(const TrueColorBitmap& bitmap) { return ImageColors(bitmap).distinctCount(); }

void runOn(benchmark::State& state, std::uint64_t (*count)(const TrueColorBitmap&)) {
  const auto width = static_cast<std::uint32_t>(state.range(0));
  const auto height = static_cast<std::uint32_t>(state.range(1));
  const std::wstring name = photoLikeBitmap(width, height);
  std::uint64_t colors = 0;
  for (auto _ : state) {
    const auto source = openFile(name).value();
    colors = count(TrueColorBitmap::open(*source).value());
  }
  state.counters["colors"] = static_cast<double>(colors);
}

void sortedList(benchmark::State& state) { runOn(state, countSorted); }
void product(benchmark::State& state) { runOn(state, countProduct); }

void reducedPalette(benchmark::State& state) {
  const std::wstring name = photoLikeBitmap(4096, 3072);
  for (auto _ : state) {
    const auto source = openFile(name).value();
    const ImageColors colors(TrueColorBitmap::open(*source).value());
    benchmark::DoNotOptimize(colors.reducedPalette(static_cast<std::int32_t>(state.range(0)), {}));
  }
}

BENCHMARK(sortedList)->Args({4096, 3072})->Unit(benchmark::kMillisecond);
BENCHMARK(product)->Args({4096, 3072})->Args({11585, 8632})->Unit(benchmark::kMillisecond);
BENCHMARK(reducedPalette)->Arg(16)->Arg(256)->Unit(benchmark::kMillisecond);

}  // namespace
