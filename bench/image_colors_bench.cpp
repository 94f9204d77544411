// The distinct colors of a true-color bitmap, and palettes made from them: the product compared with the reference, a
// sorted list of all pixels.
// Both read the same file. Compare the medians of one run with both sides interleaved:
//   --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "bench/images.h"
#include "formats/files.h"
#include "formats/image_colors.h"
#include "support/image_color_cases.h"

namespace {

using namespace quillhue;

std::vector<ColorWord> wordsOf(const TrueColorBitmap& bitmap) {
  std::vector<ColorWord> words;
  words.reserve(bitmap.pixelCount());
  bitmap.forEachBlock([&](std::span<const ColorWord> block) { std::ranges::copy(block, std::back_inserter(words)); });
  return words;
}

std::uint64_t countSorted(const TrueColorBitmap& bitmap) {
  std::vector<ColorWord> words = wordsOf(bitmap);
  std::ranges::sort(words, {},
                    [](ColorWord word) { return (word >> 8 & 0xFF) << 16 | (word & 0xFF) << 8 | (word >> 16 & 0xFF); });
  return static_cast<std::uint64_t>(std::unique(words.begin(), words.end()) - words.begin());
}

std::uint64_t countProduct(const TrueColorBitmap& bitmap) { return ImageColors(bitmap).distinctCount(); }

void runOn(benchmark::State& state, std::uint64_t (*count)(const TrueColorBitmap&)) {
  const std::wstring name =
      bench::bitmapFileOf({static_cast<std::int32_t>(state.range(0)), static_cast<std::int32_t>(state.range(1))});
  std::uint64_t colors = 0;
  for (auto unused : state) {
    const auto source = openFile(name).value();
    colors = count(TrueColorBitmap::open(*source).value());
  }
  state.counters["colors"] = static_cast<double>(colors);
}

void sortedList(benchmark::State& state) { runOn(state, countSorted); }
void product(benchmark::State& state) { runOn(state, countProduct); }

template <typename Reduce>
void reduceOn(benchmark::State& state, Reduce reduce) {
  const std::wstring name = bench::bitmapFileOf(bench::kLarge);
  for (auto unused : state) {
    const auto source = openFile(name).value();
    const TrueColorBitmap bitmap = TrueColorBitmap::open(*source).value();
    benchmark::DoNotOptimize(reduce(bitmap, static_cast<std::int32_t>(state.range(0))));
  }
}

void reduceLiteral(benchmark::State& state) {
  reduceOn(state,
           [](const TrueColorBitmap& bitmap, std::int32_t size) { return plainlyReduced(wordsOf(bitmap), size); });
}
void reduceProduct(benchmark::State& state) {
  reduceOn(state, [](const TrueColorBitmap& bitmap, std::int32_t size) {
    return ImageColors(bitmap).reducedPalette(size, {});
  });
}

BENCHMARK(sortedList)->Args({4096, 3072})->Unit(benchmark::kMillisecond);
BENCHMARK(product)->Args({4096, 3072})->Args({11585, 8632})->Unit(benchmark::kMillisecond);
BENCHMARK(reduceLiteral)->Name("reduce/literal")->Arg(16)->Arg(256)->Unit(benchmark::kMillisecond);
BENCHMARK(reduceProduct)->Name("reduce/product")->Arg(16)->Arg(256)->Unit(benchmark::kMillisecond);

}  // namespace
