#include "remap/kernel_diffusion.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quillhue {

namespace {

// Without clamping, a target stays within this distance of 0, so that its distances to all colors fit into 32 bits.
constexpr float kReach = 1 << 14;

__m128 channelsOf(std::uint32_t pixel) {
  const __m128i zero = _mm_setzero_si128();
  const __m128i bytes = _mm_cvtsi32_si128(static_cast<std::int32_t>(pixel));
  return _mm_cvtepi32_ps(_mm_unpacklo_epi16(_mm_unpacklo_epi8(bytes, zero), zero));
}

EightColors eightTimes(__m128i target) {
  const auto all = [](__m128i channel) { return Lanes{channel, channel}; };
  return {all(_mm_shuffle_epi32(target, 0x00)), all(_mm_shuffle_epi32(target, 0x55)),
          all(_mm_shuffle_epi32(target, 0xAA))};
}

}  // namespace

KernelDiffusion::KernelDiffusion(const DitherInput& input, const DitherOptions& options, RemappedImage& result)
    : input_(input),
      options_(options),
      result_(result),
      pixels_(input),
      least_(_mm_set1_ps(options.clampsErrors ? 0 : -kReach)),
      greatest_(_mm_set1_ps(options.clampsErrors ? 255 : kReach)) {
  const DiffusionKernel& kernel = options.kernel != nullptr ? *options.kernel : diffusionKernels().front();
  const auto divisor = static_cast<float>(kernel.divisor * DitherOptions::kFullStrength);
  for (std::size_t row = 0; row < kernel.weights.size(); ++row) {
    const auto& weights = kernel.weights[row];
    for (std::size_t place = 0; place < weights.size(); ++place) {
      const std::int32_t percentage = weights[place] * options.strength;
      if (percentage != 0) {
        const std::int32_t column = static_cast<std::int32_t>(place) - DiffusionKernel::kReach;
        shares_.push_back(
            {column, static_cast<std::int32_t>(row), _mm_set1_ps(static_cast<float>(percentage) / divisor)});
      }
    }
  }
  errors_.fill(ErrorRow(static_cast<std::size_t>(result.width())));
}

void KernelDiffusion::remapRow(std::int32_t y) {
  const auto pixels = pixels_.row(y);
  const auto indexes = result_.row(y);
  const std::int32_t rowsInCell = input_.limits.gridHeight - y % input_.limits.gridHeight;
  const auto beyond = std::ranges::find_if(shares_, [&](const Share& share) { return share.row >= rowsInCell; });
  const std::span shares(shares_.begin(), beyond);
  const bool isReversed = options_.isSerpentine && y % 2 != 0;
  for (std::size_t done = 0; done < pixels.size(); ++done) {
    const std::size_t x = isReversed ? pixels.size() - 1 - done : done;
    if (pixels_.isMarked(pixels[x])) {
      indexes[x] = pixels_.markedIndex();
      continue;
    }
    const __m128 sum = _mm_add_ps(channelsOf(pixels[x]), errors_[0][x].channels);
    const __m128 target = _mm_max_ps(_mm_min_ps(sum, greatest_), least_);
    const std::size_t index = lowHalfOf<0>(input_.find(eightTimes(_mm_cvtps_epi32(target))));
    indexes[x] = static_cast<std::uint8_t>(index);
    spread({_mm_sub_ps(target, channelsOf(pixelOf(input_.colors[index])))}, x, shares, isReversed ? -1 : 1);
  }
  std::ranges::fill(errors_[0], Error{_mm_setzero_ps()});
  std::ranges::rotate(errors_, errors_.begin() + 1);
}

// Passes an error on to the neighbors that are inside the image and in the same cell of the grid.
void KernelDiffusion::spread(const Error& error, std::size_t x, std::span<const Share> shares, std::ptrdiff_t step) {
  const auto width = static_cast<std::ptrdiff_t>(errors_[0].size());
  const auto column = static_cast<std::ptrdiff_t>(x);
  const std::ptrdiff_t first = column - column % input_.limits.gridWidth;
  const std::ptrdiff_t end = std::min<std::ptrdiff_t>(first + input_.limits.gridWidth, width);
  for (const Share& share : shares) {
    const std::ptrdiff_t neighbor = column + step * share.column;
    if (neighbor >= first && neighbor < end) {
      __m128& sum = errors_[static_cast<std::size_t>(share.row)][static_cast<std::size_t>(neighbor)].channels;
      sum = _mm_add_ps(sum, _mm_mul_ps(error.channels, share.factor));
    }
  }
}

}  // namespace quillhue
