#include "pictures/sample_rows.h"

#include <algorithm>
#include <utility>

#include "core/coverage.h"

namespace quillhue {

namespace {

std::optional<Palette> paletteOf(const std::optional<PictureColors>& colors, const PaletteEntry& blank) {
  if (!colors) {
    return {};
  }
  Palette palette = colors->palette;
  for (std::size_t i = 0; i < colors->coverage.size(); ++i) {
    if (colors->coverage[i] < kHalfCovered) {
      const auto index = static_cast<std::int32_t>(i);
      palette.setEntry(index, blended(palette.entry(index), blank, colors->coverage[i]));
    }
  }
  return palette;
}

}  // namespace

std::size_t SampleFormat::samplesPerPixel() const {
  constexpr std::array<std::size_t, 5> kSamples{1, 1, 3, 3, 4};
  return kSamples[static_cast<std::size_t>(kind)] + (hasAlpha ? 1 : 0);
}

SampleRows::SampleRows(std::int32_t width, std::int32_t height, SampleFormat format, PaletteEntry blank,
                       const std::optional<PictureColors>& colors)
    : format_(format),
      blank_(blank),
      image_(width, height, paletteOf(colors, blank)),
      scaled_(std::size_t{format.maximum} + 1),
      samples_(static_cast<std::size_t>(width) * format.samplesPerPixel()) {
  // Rounds to the nearest byte.
  for (std::uint32_t sample = 0; sample < scaled_.size(); ++sample) {
    scaled_[sample] = static_cast<std::uint8_t>((sample * 255 + format.maximum / 2U) / format.maximum);
  }
  for (std::size_t i = 0; colors && i < colors->coverage.size(); ++i) {
    image_.transparentIndexes().set(i, colors->coverage[i] < kHalfCovered);
  }
  if (format.hasAlpha) {
    image_.addTransparency();
  }
}

void SampleRows::setTransparentColor(const TransparentColor& color) {
  transparent_ = color;
  for (std::uint16_t& sample : transparent_->samples) {
    sample = static_cast<std::uint16_t>(std::uint32_t{sample} * format_.maximum / color.maximum);
  }
  image_.addTransparency();
}

void SampleRows::store(std::int32_t y, PictureBytes bytes, Columns columns) {
  const std::size_t pixels =
      (static_cast<std::size_t>(image_.width()) - columns.first + columns.step - 1) / columns.step;
  unpack(bytes, pixels * format_.samplesPerPixel());
  if (format_.kind == SampleKind::index) {
    storeIndexes(y, columns);
  } else {
    storeColors(y, columns);
  }
}

void SampleRows::unpack(PictureBytes bytes, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    unsigned sample = 0;
    if (format_.bits == 16) {
      const unsigned first = bytes[2 * i];
      const unsigned second = bytes[2 * i + 1];
      sample = format_.isLittleEndian ? second << 8 | first : first << 8 | second;
    } else {
      const std::size_t bit = i * format_.bits;
      sample = static_cast<unsigned>(bytes[bit / 8]) >> (8 - format_.bits - bit % 8) & ((1U << format_.bits) - 1);
    }
    samples_[i] = static_cast<std::uint16_t>(std::min<unsigned>(sample, format_.maximum));
  }
}

void SampleRows::storeIndexes(std::int32_t y, Columns columns) {
  const auto row = image_.row(y);
  const std::uint16_t* sample = samples_.data();
  for (std::size_t x = columns.first; x < row.size(); x += columns.step) {
    row[x] = static_cast<std::uint8_t>(*sample++);
  }
}

PaletteEntry SampleRows::colorOf(std::span<const std::uint16_t> samples) const {
  const auto byteOf = [&](std::size_t place) { return scaled_[samples[place]]; };
  switch (format_.kind) {
    case SampleKind::color:
      return {byteOf(0), byteOf(1), byteOf(2)};
    case SampleKind::reversedColor:
      return {byteOf(2), byteOf(1), byteOf(0)};
    case SampleKind::ink: {
      const std::uint32_t light = 255U - byteOf(3);
      return {dividedBy255((255U - byteOf(0)) * light), dividedBy255((255U - byteOf(1)) * light),
              dividedBy255((255U - byteOf(2)) * light)};
    }
    default:
      return {byteOf(0), byteOf(0), byteOf(0)};
  }
}

std::uint8_t SampleRows::coverageOf(std::span<const std::uint16_t> samples) const {
  if (transparent_) {
    // Only gray and color images have such a color.
    const auto& wanted = transparent_->samples;
    const auto at = [&](std::size_t place) { return samples[std::min(place, samples.size() - 1)]; };
    const bool isReversed = format_.kind == SampleKind::reversedColor;
    return at(isReversed ? 2 : 0) == wanted[0] && at(1) == wanted[1] && at(isReversed ? 0 : 2) == wanted[2] ? 0 : 255;
  }
  return scaled_[samples.back()];
}

void SampleRows::storeColors(std::int32_t y, Columns columns) {
  const auto row = image_.row(y);
  const std::size_t step = format_.samplesPerPixel();
  std::span<const std::uint16_t> samples(samples_);
  for (std::size_t x = columns.first; 3 * x < row.size(); x += columns.step, samples = samples.subspan(step)) {
    const auto pixel = samples.first(step);
    PaletteEntry color = colorOf(pixel);
    if (image_.hasTransparency()) {
      const std::uint8_t coverage = coverageOf(pixel);
      if (coverage < kHalfCovered) {
        color = blended(color, blank_, coverage);
        image_.transparentRow(y)[x] = 1;
      }
    }
    row[3 * x] = color.blue;
    row[3 * x + 1] = color.green;
    row[3 * x + 2] = color.red;
  }
}

}  // namespace quillhue
