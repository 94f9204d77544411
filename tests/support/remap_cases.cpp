#include "support/remap_cases.h"

#include <algorithm>
#include <array>

#include "support/literal_remap.h"
#include "support/stopping_progress.h"

namespace quillhue {

namespace {

// Returns a value at a border of cells of 16, or beside one.
std::uint8_t atBorder(CaseBytes& bytes) {
  return static_cast<std::uint8_t>(std::clamp(16 * bytes.upTo(16) + bytes.upTo(2) - 1, 0, 255));
}

DitherOptions ditherOptionsFrom(CaseBytes& bytes) {
  constexpr std::array kSides{2, 4, 8, 16};
  constexpr std::array kStrengths{0, 1, 50, 99, 100, 100, 100};
  DitherOptions options;
  options.kernel = bytes.upTo(7) == 7 ? nullptr : &diffusionKernels()[bytes.upTo(6)];
  options.isSerpentine = bytes.upTo(1) != 0;
  options.clampsErrors = bytes.upTo(1) != 0;
  options.strength = bytes.anyOf(kStrengths);
  options.matrixSide = bytes.anyOf(kSides);
  return options;
}

RemapOptions optionsFrom(CaseBytes& bytes) {
  constexpr std::array kModes{RemapMode::dither, RemapMode::dither, RemapMode::nearest, RemapMode::maintain,
                              RemapMode::ordered};
  // Sides out of range count as the nearest ones inside.
  constexpr std::array kSides{1, 2, 3, 4, 5, 7, 64, 1000, 5000, -5, 0};
  RemapOptions options;
  options.mode = bytes.anyOf(kModes);
  if (bytes.upTo(2) == 0) {
    options.protectedEntry = bytes.upTo(40) - 1;
  }
  if (bytes.upTo(2) == 0) {
    const std::int32_t width = bytes.anyOf(kSides);
    options.protectGrid = {width, bytes.anyOf(kSides)};
  }
  if (bytes.upTo(1) != 0) {
    options.dither = ditherOptionsFrom(bytes);
  }
  options.match = bytes.upTo(3) == 3 ? ColorMatch::oklab : ColorMatch::rgb;
  return options;
}

// Mostly small; some images are longer than the longest side of a grid.
WorkImage imageFrom(const Palette& palette, CaseBytes& bytes) {
  constexpr std::int32_t kMostPixels = 4096;
  constexpr std::array kSides{1, 2, 3, 4, 5, 6, 17, 18, 21, 29, 40, 70, 1010};
  const std::int32_t width = bytes.anyOf(kSides);
  const std::int32_t height = std::min(bytes.anyOf(kSides), kMostPixels / width);
  const std::size_t run = bytes.upTo(3) != 0 ? 1U + bytes.upTo(3) : 60U * (1U + bytes.next());
  const std::size_t kind = bytes.upTo(12);
  if (kind > 10) {
    WorkImage image(width, height, paletteOf(kind == 11 ? 16 : 256, bytes.anyOf(colorKinds()), bytes));
    std::ranges::generate(image.pixels(), [&] { return bytes.upTo(image.palette()->getSize() - 1); });
    return image;
  }
  // Colors of the palette itself, alone and among others.
  const MakeColor own = [&](CaseBytes& source) { return palette.entry(source.next() % palette.getSize()); };
  const MakeColor mixed = [&](CaseBytes& source) {
    return source.upTo(2) == 0 ? palette.entry(palette.getSize() / 2) : source.colorUpTo(255);
  };
  return imageOf(width, height, run, kind == 9 ? own : kind == 10 ? mixed : colorKinds()[kind], bytes);
}

}  // namespace

MakeColor always(PaletteEntry color) {
  return [color](CaseBytes& /*bytes*/) { return color; };
}

const std::vector<MakeColor>& colorKinds() {
  static const std::vector<MakeColor> kinds{
      [](CaseBytes& bytes) { return bytes.colorUpTo(255); },
      [](CaseBytes& bytes) {
        const std::uint8_t red = bytes.upTo(1);
        return PaletteEntry{red, 128, bytes.upTo(2)};
      },
      [](CaseBytes& bytes) {
        const std::uint8_t red = atBorder(bytes);
        const std::uint8_t green = atBorder(bytes);
        return PaletteEntry{red, green, atBorder(bytes)};
      },
      [](CaseBytes& bytes) { return bytes.colorUpTo(20); },
      [](CaseBytes& bytes) {
        const auto [red, green, blue] = bytes.colorUpTo(20);
        return PaletteEntry{static_cast<std::uint8_t>(~red), static_cast<std::uint8_t>(~green),
                            static_cast<std::uint8_t>(~blue)};
      },
      [](CaseBytes& bytes) {
        const std::uint8_t red = bytes.upTo(9);
        return PaletteEntry{red, 255, bytes.upTo(200)};
      },
      always({1, 2, 3}),
      [](CaseBytes& bytes) {
        const std::uint8_t level = bytes.next();
        return PaletteEntry{level, level, level};
      },
      [](CaseBytes& bytes) {
        const std::uint8_t level = bytes.upTo(254);
        return PaletteEntry{level, level, static_cast<std::uint8_t>(level + bytes.upTo(1))};
      },
  };
  return kinds;
}

Palette paletteOf(std::int32_t size, const MakeColor& make, CaseBytes& bytes) {
  Palette palette = createPalette(size);
  for (std::int32_t i = 0; i < size; ++i) {
    palette.setEntry(i, make(bytes));
  }
  return palette;
}

WorkImage imageOf(std::int32_t width, std::int32_t height, std::size_t run, const MakeColor& make, CaseBytes& bytes) {
  WorkImage image(width, height, {});
  const auto pixels = image.pixels();
  PaletteEntry color;
  for (std::size_t i = 0; i < pixels.size(); i += 3) {
    if (i / 3 % run == 0) {
      color = make(bytes);
    }
    std::ranges::copy(std::array{color.blue, color.green, color.red}, pixels.subspan(i).begin());
  }
  return image;
}

std::string differenceOf(Remapper& remapper, const WorkImage& image, const Palette& palette,
                         const RemapOptions& options, int reports) {
  RemappedImage result;
  RemappedImage expected;
  StoppingProgress progress(reports);
  StoppingProgress expectedProgress(reports);
  const bool isDone = remapper.remap(image, options, result, progress);
  if (isDone != literalRemap(image, palette, options, expected, expectedProgress)) {
    return "another end";
  }
  if (!std::ranges::equal(result.rows(), expected.rows())) {
    return "other indexes";
  }
  return progress.reports() == expectedProgress.reports() ? "" : "other reports";
}

std::string differenceOf(CaseBytes& bytes) {
  constexpr std::array kSizes{1, 2, 3, 16, 17, 24, 25, 50, 100, 216, 255, 256, 300, 1024};
  const std::int32_t size = bytes.anyOf(kSizes);
  const Palette palette = paletteOf(size, bytes.anyOf(colorKinds()), bytes);
  Remapper remapper(palette);
  std::string difference;
  // The remapper keeps its tables from one image to the next.
  for (int images = 1 + bytes.upTo(2); images > 0 && difference.empty(); --images) {
    const RemapOptions options = optionsFrom(bytes);
    const int reports = bytes.upTo(3) == 0 ? 1 + bytes.upTo(5) : 1000;
    difference = differenceOf(remapper, imageFrom(palette, bytes), palette, options, reports);
  }
  return difference;
}

}  // namespace quillhue
