#include "effects/effect_editor.h"

#include "effects/effects.h"

namespace quillhue {

EffectEditor::EffectEditor(const DocumentSlot& slot, AppSettings& settings, PaletteClipboard& clipboard)
    : slot_(slot), settings_(settings), clipboard_(clipboard), output_(slot.document()->getPalette()) {
  reset();
}

void EffectEditor::choose(std::int32_t index) {
  settings_.effect = static_cast<std::uint8_t>(index);
  reset();
}

void EffectEditor::setValue(std::int32_t value) { effect_->setValue(effect_->range().clamp(value)); }

void EffectEditor::reset() { createEffect(settings_.effect, document().getSize(), effect_); }

const Palette& EffectEditor::preview(ChannelMask mask) {
  output_ = document().getPalette();
  effect_->apply({document().getPalette(), clipboard_}, mask, output_);
  return output_;
}

void EffectEditor::apply(ChannelMask mask) {
  document().recordColors();
  const Palette& changed = preview(mask);
  for (std::int32_t index = 0; index < changed.getSize(); ++index) {
    document().setColor(index, changed.entry(index));
  }
  reset();
}

}  // namespace quillhue
