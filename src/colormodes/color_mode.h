#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "core/document.h"
#include "core/value_range.h"

namespace quillhue {

/// The three channels of a color model, in the order of their bars.
enum class Bar : std::uint8_t { left, middle, right };
inline constexpr std::array<Bar, 3> kBars{Bar::left, Bar::middle, Bar::right};

inline constexpr ValueRange kHueRange{0, 359};
inline constexpr ValueRange kByteRange{0, 255};
inline constexpr ValueRange kChromaRange{-128, 127};

struct ChannelDescription {
  std::string_view name;
  ValueRange range;
};
using ChannelDescriptions = std::array<ChannelDescription, 3>;

/// One number per channel, left to right.
using ChannelValues = std::array<std::int32_t, 3>;

/// Number of positions on a gradient bar, from the channel's minimum to its maximum.
inline constexpr std::int32_t kBarPositions = 256;
using BarColors = std::array<PaletteEntry, kBarPositions>;

/// Shows one entry of the open palette as three numbers of a color model, and writes changed numbers back. Each channel
/// has a gradient bar: the colors that the entry would have if only that channel moved along its range.
///
/// Models other than RGB and CMY do not convert exactly in both directions. They therefore keep the numbers that were
/// set, and only a setter rewrites the entry.
class ColorMode {
 public:
  /// Each call edits the document that `slot` holds at that time.
  ColorMode(const ChannelDescriptions& channels, const DocumentSlot& slot) : channels_(channels), slot_(slot) {}
  ColorMode(const ColorMode&) = delete;
  ColorMode& operator=(const ColorMode&) = delete;
  virtual ~ColorMode() = default;

  [[nodiscard]] std::int32_t getValue(Bar bar) const { return currentValues()[at(bar)]; }
  [[nodiscard]] std::int32_t getLeftValue() const { return getValue(Bar::left); }
  [[nodiscard]] std::int32_t getMiddleValue() const { return getValue(Bar::middle); }
  [[nodiscard]] std::int32_t getRightValue() const { return getValue(Bar::right); }

  /// Makes this the edited entry and derives the numbers from its color. The bars do not change. If there is no such
  /// entry, the color counts as black and the setters write nothing.
  void setEntry(std::int32_t index);
  [[nodiscard]] std::int32_t entryIndex() const { return entryIndex_; }

  /// Sets one number, which must be within the channel's range. Rebuilds the other two bars and writes the entry. Makes
  /// no record for undo.
  void setValue(Bar bar, std::int32_t value);
  void setLeftValue(std::int32_t value) { setValue(Bar::left, value); }
  void setMiddleValue(std::int32_t value) { setValue(Bar::middle, value); }
  void setRightValue(std::int32_t value) { setValue(Bar::right, value); }

  [[nodiscard]] const ValueRange& channelRange(Bar bar) const { return channels_[at(bar)].range; }
  /// Return a channel's bar, and the fixed strip beside it: the bar as it was when the mode was created.
  [[nodiscard]] const BarColors& bar(Bar bar) const { return bars_[at(bar)]; }
  [[nodiscard]] const BarColors& fixedStrip(Bar bar) const { return fixedStrips_[at(bar)]; }

  /// Returns the color that the entry would have if the channel had the value at `position`, 0 .. kBarPositions - 1,
  /// and the other two kept the numbers last set or derived.
  [[nodiscard]] PaletteEntry barColor(Bar bar, std::int32_t position) const;

 protected:
  [[nodiscard]] PaletteEntry entryColor() const;

 private:
  friend ColorMode& createColorMode(std::int32_t index, std::int32_t entry, const DocumentSlot& slot,
                                    std::unique_ptr<ColorMode>& mode);

  static constexpr std::size_t at(Bar bar) { return static_cast<std::size_t>(bar); }

  /// The model's conversions. All divisions truncate toward zero, and their order affects the result.
  [[nodiscard]] virtual ChannelValues toValues(const PaletteEntry& color) const = 0;
  [[nodiscard]] virtual PaletteEntry toColor(const ChannelValues& values) const = 0;
  /// Returns the numbers last set or derived. Exact models read them from the entry instead.
  [[nodiscard]] virtual ChannelValues currentValues() const { return values_; }

  void start(std::int32_t entry);
  void rebuildBar(Bar bar);

  const ChannelDescriptions& channels_;
  const DocumentSlot& slot_;
  std::int32_t entryIndex_ = 0;
  ChannelValues values_{};
  std::array<BarColors, kBars.size()> bars_{};
  std::array<BarColors, kBars.size()> fixedStrips_{};
};

}  // namespace quillhue
