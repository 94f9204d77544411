#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "effects/effect.h"

namespace quillhue {

/// One effect of the catalogue.
struct EffectDescription {
  /// For scripts.
  std::string_view name;
  std::string_view label;
  /// The parameter in words.
  std::string_view meaning;
  ValueRange range;
  std::int32_t defaultValue;
  std::unique_ptr<Effect> (*create)(ValueRange range, std::int32_t value);
  /// The range is the palette's size both ways, and the one here is not used.
  bool followsPaletteSize = false;
  /// Without a palette on the clipboard it changes nothing.
  bool readsClipboard = false;
};

/// For the rows of the catalogue.
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

/// All effects, in the order of the list; an effect's place is its index.
[[nodiscard]] std::span<const EffectDescription* const> effects();

/// The effect of an index; any index without one gives Color.
[[nodiscard]] const EffectDescription& effectOf(std::int32_t index);

/// Destroys the effect in `slot`, then puts the one of the index there, with its default value.
Effect& createEffect(std::int32_t index, std::int32_t paletteSize, std::unique_ptr<Effect>& slot);

}  // namespace quillhue
