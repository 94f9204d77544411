#include "effects/effects.h"

#include <array>
#include <cstddef>

namespace quillhue {

namespace {

constexpr std::array kEffects{
    &kAndEffect,      &kOrEffect,       &kXorEffect,    &kBrightnessEffect, &kMultBrightnessEffect,
    &kColorEffect,    &kContrastEffect, &kGammaEffect,  &kMaxEffect,        &kMinEffect,
    &kNegativeEffect, &kQuantiseEffect, &kRotateEffect, &kPasteEffect,      &kTwistEffect,
};

}  // namespace

std::span<const EffectDescription* const> effects() { return kEffects; }

const EffectDescription& effectOf(std::int32_t index) {
  const auto at = static_cast<std::size_t>(index);
  return at < kEffects.size() ? *kEffects[at] : kColorEffect;
}

Effect& createEffect(std::int32_t index, std::int32_t paletteSize, std::unique_ptr<Effect>& slot) {
  const EffectDescription& description = effectOf(index);
  const ValueRange range = description.followsPaletteSize ? ValueRange{-paletteSize, paletteSize} : description.range;
  slot = description.create(range, description.defaultValue);
  return *slot;
}

}  // namespace quillhue
