#pragma once

#include <cstdint>
#include <span>

#include "core/palette.h"
#include "core/value_range.h"

namespace quillhue {

/// The open palette, and the clipboard's palette for the effect that blends it in. `clipboard` is empty if there is
/// none. Effects never change their input.
struct EffectInput {
  const Palette& palette;
  std::span<const PaletteEntry> clipboard{};
};

/// Computes new colors for the selected entries. One number is the parameter.
class Effect {
 public:
  Effect(ValueRange range, std::int32_t value) : range_(range), value_(value) {}
  Effect(const Effect&) = delete;
  Effect& operator=(const Effect&) = delete;
  virtual ~Effect() = default;

  /// Computes the channels in `mask` of the selected entries into `output`. `output` has the size of the input's
  /// palette and already holds its colors, so unchanged entries need not be written. The value must be in its range.
  virtual void apply(const EffectInput& input, ChannelMask mask, Palette& output) const = 0;

  [[nodiscard]] const ValueRange& range() const { return range_; }
  [[nodiscard]] std::int32_t getMinimum() const { return range_.minimum; }
  [[nodiscard]] std::int32_t getMaximum() const { return range_.maximum; }
  [[nodiscard]] std::int32_t getValue() const { return value_; }
  /// Stores any value. The caller checks the range.
  void setValue(std::int32_t value) { value_ = value; }

 private:
  ValueRange range_;
  std::int32_t value_;
};

/// An effect that computes each channel independently of the other entries.
class ChannelEffect : public Effect {
 public:
  using Effect::Effect;

  void apply(const EffectInput& input, ChannelMask mask, Palette& output) const override;

 private:
  /// Returns the new value of one channel in `mask`. The caller clamps it to 0..255. `color` is the whole entry.
  [[nodiscard]] virtual std::int32_t transform(std::int32_t value, const PaletteEntry& color,
                                               ChannelMask mask) const = 0;
};

}  // namespace quillhue
