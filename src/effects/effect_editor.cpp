#include "effects/effect_editor.h"

#include <utility>

#include "effects/effects.h"

namespace quillhue {

EffectEditor::EffectEditor(const DocumentSlot& slot, AppSettings& settings, PaletteClipboard& clipboard)
    : slot_(slot), settings_(settings), clipboard_(clipboard), output_(slot.document()->getPalette()) {
  reset();
  readClipboard();
}

void EffectEditor::choose(std::int32_t index) {
  settings_.effect = static_cast<std::uint8_t>(index);
  reset();
  readClipboard();
}

void EffectEditor::setValue(std::int32_t value) { effect_->setValue(effect_->range().clamp(value)); }

void EffectEditor::reset() { createEffect(settings_.effect, document().getSize(), effect_); }

bool EffectEditor::readClipboard() {
  if (!effectOf(settings_.effect).readsClipboard) {
    return true;
  }
  auto found = clipboard_.get();
  if (!found && found.error() == NoPalette::unavailable) {
    return false;
  }
  pasted_ = std::move(found).value_or(std::vector<PaletteEntry>{});
  return true;
}

const Palette& EffectEditor::preview(ChannelMask mask) {
  output_ = document().getPalette();
  effect_->apply({.palette = document().getPalette(), .clipboard = pasted_}, mask, output_);
  return output_;
}

void EffectEditor::apply(ChannelMask mask) {
  document().recordColors();
  if (!readClipboard()) {
    return;
  }
  const Palette& changed = preview(mask);
  for (std::int32_t index = 0; index < changed.getSize(); ++index) {
    document().setColor(index, changed.entry(index));
  }
  reset();
}

}  // namespace quillhue
