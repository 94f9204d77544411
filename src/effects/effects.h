#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "effects/effect.h"

namespace quillhue {

/// A row of the catalogue: one effect.
struct EffectDescription {
  /// Name for scripts.
  std::string_view name;
  std::string_view label;
  /// Description of the parameter.
  std::string_view meaning;
  ValueRange range;
  std::int32_t defaultValue;
  std::unique_ptr<Effect> (*create)(ValueRange range, std::int32_t value);
  /// The range is -n .. n for a palette of n entries; `range` is not used.
  bool followsPaletteSize = false;
  /// The effect changes nothing unless the clipboard holds a palette.
  bool readsClipboard = false;
};

/// Creates an effect; the rows of the catalogue use this as `create`.
template <typename Kind>
std::unique_ptr<Effect> makeEffect(ValueRange range, std::int32_t value) {
  return std::make_unique<Kind>(range, value);
}

extern const EffectDescription kAndEffect;
extern const EffectDescription kOrEffect;
extern const EffectDescription kXorEffect;
extern const EffectDescription kBrightnessEffect;
extern const EffectDescription kMultBrightnessEffect;
extern const EffectDescription kColorEffect;
extern const EffectDescription kContrastEffect;
extern const EffectDescription kGammaEffect;
extern const EffectDescription kMaxEffect;
extern const EffectDescription kMinEffect;
extern const EffectDescription kNegativeEffect;
extern const EffectDescription kQuantiseEffect;
extern const EffectDescription kRotateEffect;
extern const EffectDescription kPasteEffect;
extern const EffectDescription kTwistEffect;

/// Returns all effects in the order of the list. An effect's position is its index.
[[nodiscard]] std::span<const EffectDescription* const> effects();

/// Returns the effect of an index, or Color if no effect has the index.
[[nodiscard]] const EffectDescription& effectOf(std::int32_t index);

/// Replaces the effect in `slot` with the effect of this index and its default value.
Effect& createEffect(std::int32_t index, std::int32_t paletteSize, std::unique_ptr<Effect>& slot);

}  // namespace quillhue
