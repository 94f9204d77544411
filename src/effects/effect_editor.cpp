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
  const auto chosen = static_cast<std::uint8_t>(index);
  std::unique_ptr<Effect> next;
  createEffect(chosen, document().getSize(), next);
  readClipboard(effectOf(chosen));
  settings_.effect = chosen;
  effect_ = std::move(next);
}

void EffectEditor::setValue(std::int32_t value) { effect_->setValue(effect_->range().clamp(value)); }

void EffectEditor::reset() { createEffect(settings_.effect, document().getSize(), effect_); }

bool EffectEditor::readClipboard() { return readClipboard(effectOf(settings_.effect)); }

bool EffectEditor::readClipboard(const EffectDescription& effect) {
  if (!effect.readsClipboard) {
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
  // Everything that can fail comes before the document changes.
  auto saved = document().saveColors();
  if (!readClipboard()) {
    document().record(std::move(saved));
    return;
  }
  std::unique_ptr<Effect> next;
  createEffect(settings_.effect, document().getSize(), next);
  const Palette& changed = preview(mask);
  document().record(std::move(saved));
  for (std::int32_t index = 0; index < changed.getSize(); ++index) {
    document().setColor(index, changed.entry(index));
  }
  effect_ = std::move(next);
}

}  // namespace quillhue
