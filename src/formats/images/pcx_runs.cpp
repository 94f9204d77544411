#include "formats/images/pcx_runs.h"

#include <emmintrin.h>

#include <algorithm>
#include <bit>

namespace quillhue {

namespace {

constexpr std::uint8_t kRun = 192;
constexpr std::size_t kMostRepeats = 63;
constexpr std::size_t kSixteen = 16;

using Sixteen = std::array<std::uint8_t, kSixteen>;

}  // namespace

std::size_t PcxRuns::decode(std::span<std::uint8_t> out) {
  const std::size_t wanted = out.size();
  while (!out.empty()) {
    if (repeats_ == 0) {
      out = out.subspan(decodeInside(out));
      if (out.empty() || !begin()) {
        break;
      }
    }
    const std::size_t count = std::min(repeats_, out.size());
    std::ranges::fill(out.first(count), value_);
    repeats_ -= count;
    out = out.subspan(count);
  }
  return wanted - out.size();
}

// Copies 16 bytes at a time, of which those up to the first run are valid. Writes each run as 16 bytes too, of which
// its length is valid, and more only if it is longer.
std::size_t PcxRuns::decodeInside(std::span<std::uint8_t> out) {
  constexpr std::size_t kRoom = kMostRepeats + kSixteen;
  const std::uint8_t* in = &block_[at_];
  const std::size_t stored = end_ - at_;
  if (stored < 2 * kSixteen || out.size() < 2 * kRoom) {
    return 0;
  }
  const std::uint8_t* const lastIn = in + (stored - 2 * kSixteen);
  std::uint8_t* to = out.data();
  std::uint8_t* const lastTo = to + (out.size() - 2 * kRoom);
  while (in <= lastIn && to <= lastTo) {
    Sixteen bytes;
    std::copy_n(in, kSixteen, bytes.begin());
    std::ranges::copy(bytes, to);
    const __m128i high = _mm_and_si128(std::bit_cast<__m128i>(bytes), _mm_set1_epi8(static_cast<char>(kRun)));
    const auto runs =
        static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(high, _mm_set1_epi8(static_cast<char>(kRun)))));
    const int literals = std::countr_zero(runs | 1U << kSixteen);
    in += literals;
    to += literals;
    for (; *in >= kRun && in <= lastIn && to <= lastTo; in += 2) {
      const std::size_t repeats = *in & kMostRepeats;
      std::fill_n(to, kSixteen, in[1]);
      if (repeats > kSixteen) {
        std::fill_n(to + kSixteen, kMostRepeats + 1 - kSixteen, in[1]);
      }
      to += repeats;
    }
  }
  at_ = end_ - static_cast<std::size_t>(lastIn + 2 * kSixteen - in);
  return static_cast<std::size_t>(to - out.data());
}

bool PcxRuns::begin() {
  do {
    if (isAtEnd()) {
      return false;
    }
    value_ = take();
    repeats_ = 1;
    if (value_ >= kRun) {
      repeats_ = value_ & kMostRepeats;
      // Past the end the byte is zero.
      value_ = isAtEnd() ? 0 : take();
    }
  } while (repeats_ == 0);
  return true;
}

bool PcxRuns::isAtEnd() {
  if (at_ == end_ && next_ < source_.size()) {
    at_ = 0;
    end_ = static_cast<std::size_t>(std::min<std::uint64_t>(kBlock, source_.size() - next_));
    source_.read(next_, std::span(block_).first(end_));
    next_ += end_;
  }
  return at_ == end_;
}

std::uint8_t PcxRuns::take() { return block_[at_++]; }

}  // namespace quillhue
