// Commands and effects on a palette of 1024 selected entries, with their undo records. Each record is undone, so that
// the history stays short.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "cli/tool_services.h"
#include "core/commands/colors.h"
#include "core/commands/order.h"
#include "core/commands/selection.h"
#include "effects/effect_editor.h"

namespace {

using namespace quillhue;

// A document of random colors, all selected.
struct Bench {
  std::stringstream nothing;
  cli::Console console{nothing, nothing, nothing};
  cli::ToolServices tool{console};
  DocumentSlot slot;

  Bench();
};

Palette randomPalette() {
  std::minstd_rand random(1);
  Palette palette = createPalette(kMaxPaletteSize);
  for (const Channel channel : kChannels) {
    std::ranges::generate(palette.channel(channel), [&] { return static_cast<std::uint8_t>(random() >> 8); });
  }
  std::ranges::fill(palette.selected(), 1);
  return palette;
}

Bench::Bench() { slot.replaceDocument({.palette = randomPalette()}, tool.services); }

void command(benchmark::State& state, void (*run)(PaletteDocument& document)) {
  const Bench bench;
  for (auto unused : state) {
    run(*bench.slot.document());
    bench.slot.document()->undo();
  }
}

void effect(benchmark::State& state) {
  Bench bench;
  EffectEditor editor(bench.slot, bench.tool.settings, bench.tool.services.clipboard);
  editor.choose(static_cast<std::int32_t>(state.range(0)));
  for (auto unused : state) {
    benchmark::DoNotOptimize(editor.preview(kAllChannels));
  }
}

}  // namespace

BENCHMARK_CAPTURE(command, gradient, [](PaletteDocument& document) { gradient(document, kAllChannels); });
BENCHMARK_CAPTURE(command, bright_gradient, [](PaletteDocument& document) { brightGradient(document, kAllChannels); });
BENCHMARK_CAPTURE(command, sort_intensity, [](PaletteDocument& document) { sortByIntensity(document, kAllChannels); });
BENCHMARK_CAPTURE(command, sort_red,
                  [](PaletteDocument& document) { sortByChannel(document, Channel::red, kAllChannels); });
BENCHMARK_CAPTURE(command, sort_outside_mask,
                  [](PaletteDocument& document) { sortByChannel(document, Channel::red, 6); });
BENCHMARK_CAPTURE(command, sort_deviation, [](PaletteDocument& document) { sortByDeviation(document, kAllChannels); });
BENCHMARK_CAPTURE(command, select_redundant, selectRedundant);
BENCHMARK(effect)->DenseRange(0, 14);
