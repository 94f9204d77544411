// Remapping images onto palettes: the product compared with the plain loops that define the result, on the same pixels.
// Names are KIND/SIDE/MODE/PALETTE/SIZE. Compare medians of CPU time with both sides interleaved:
//   --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true

#include <benchmark/benchmark.h>

#include <array>
#include <string>

#include "bench/images.h"
#include "bench/no_progress.h"
#include "bench/palettes.h"
#include "remap/remap.h"
#include "support/literal_remap.h"

namespace {

using namespace quillhue;

constexpr bench::ImageSize kOnePixel{1, 1};

struct Side {
  std::string name;
  decltype(remapImage)* remap;
};
const std::array<Side, 2> kSides{{{"literal", literalRemap}, {"product", remapImage}}};

struct Work {
  std::string name;
  RemapOptions options;
};
const Work kNearest{"nearest", {}};
const Work kDither{"dither", {RemapMode::dither, {}, {}}};
const std::array<Work, 2> kProtecting{{{"dither-protecting-color", {RemapMode::dither, 0, {}}},
                                       {"dither-protecting-grid", {RemapMode::dither, {}, ProtectGrid{}}}}};

using GetImage = const WorkImage& (*)(bench::ImageSize size);

void add(const std::string& prefix, const Side& side, const Work& work, const bench::BenchPalette& palette,
         GetImage getImage, bench::ImageSize size) {
  std::string name = prefix;
  for (const std::string_view part : {std::string_view(side.name), std::string_view(work.name), palette.name}) {
    (name += '/') += part;
  }
  auto* const registered = benchmark::RegisterBenchmark(
      (name + '/' + nameOf(size)).c_str(), [&side, &palette, getImage, size, options = work.options](auto& state) {
        const WorkImage& image = getImage(size);
        const Palette colors = palette.create(size);
        bench::NoProgress progress;
        for (auto unused : state) {
          RemappedImage result;
          side.remap(image, colors, options, result, progress);
          benchmark::DoNotOptimize(result);
        }
      });
  registered->Unit(benchmark::kMillisecond);
  // Takes seconds.
  if (&side == &kSides.front() && size.width == bench::kLarge.width) {
    registered->Iterations(1);
  }
}

[[maybe_unused]] const bool kRegistered = [] {
  const auto& palettes = bench::benchPalettes();
  for (const Side& side : kSides) {
    for (const bench::BenchPalette& palette : palettes) {
      for (const Work& work : {kNearest, kDither}) {
        for (const bench::ImageSize size : {bench::kLarge, bench::kMedium, bench::kSmall}) {
          add("remap", side, work, palette, bench::photoLikeImage, size);
        }
        for (const bench::ImageSize size : {bench::kMedium, bench::kSmall}) {
          add("noise", side, work, palette, bench::noiseImage, size);
        }
      }
    }
    for (const Work& work : kProtecting) {
      for (const bench::ImageSize size : {bench::kLarge, bench::kMedium}) {
        add("remap", side, work, palettes[0], bench::photoLikeImage, size);
      }
    }
  }
  // The cost of a run before its first pixel.
  for (const bench::BenchPalette& palette : palettes) {
    for (const Work& work : {kNearest, kDither}) {
      add("setup", kSides[1], work, palette, bench::noiseImage, kOnePixel);
    }
  }
  return true;
}();

}  // namespace
