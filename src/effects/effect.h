#pragma once

#include <cstdint>
#include <span>

#include "core/palette.h"
#include "core/value_range.h"

namespace quillhue {

/// The open palette, which an effect reads and never changes, and the clipboard's palette for the effect that blends it
/// in: empty when there is none.
struct EffectInput {
  const Palette& palette;
  std::span<const PaletteEntry> clipboard{};
};

/// A computation of new colors for the selected entries, with one number as its parameter.
class Effect {
 public:
  Effect(ValueRange range, std::int32_t value) : range_(range), value_(value) {}
  Effect(const Effect&) = delete;
  Effect& operator=(const Effect&) = delete;
  virtual ~Effect() = default;

  /// Computes the channels in `mask` of the selected entries into `output`, which is as large as the input's palette
  /// and already holds its colors: what the effect does not reach may stay unwritten. The value is in its range.
  virtual void apply(const EffectInput& input, ChannelMask mask, Palette& output) const = 0;

  [[nodiscard]] const ValueRange& range() const { return range_; }
  [[nodiscard]] std::int32_t getMinimum() const { return range_.minimum; }
  [[nodiscard]] std::int32_t getMaximum() const { return range_.maximum; }
  [[nodiscard]] std::int32_t getValue() const { return value_; }
  /// Stores any value; the range is its caller's to keep.
  void setValue(std::int32_t value) { value_ = value; }

 private:
  ValueRange range_;
  std::int32_t value_;
};

/// An effect that gives each channel a new value whatever the other entries are.
class ChannelEffect : public Effect {
 public:
  using Effect::Effect;

  void apply(const EffectInput& input, ChannelMask mask, Palette& output) const override;

 private:
  /// The new value of one channel in `mask`, brought into 0..255 if it is outside; `color` is the whole entry.
  [[nodiscard]] virtual std::int32_t transform(std::int32_t value, const PaletteEntry& color,
                                               ChannelMask mask) const = 0;
};

}  // namespace quillhue
