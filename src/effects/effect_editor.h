#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/document.h"
#include "core/services.h"
#include "core/settings.h"
#include "effects/effect.h"

namespace quillhue {

/// The chosen effect on the open palette: its parameter, its preview, and applying it. The slot holds a document as
/// long as an editor lives.
class EffectEditor {
 public:
  /// Starts with the effect of the settings.
  EffectEditor(const DocumentSlot& slot, AppSettings& settings, PaletteClipboard& clipboard);

  [[nodiscard]] const Effect& effect() const { return *effect_; }

  /// Another effect, of which the settings keep the index, with its default value. Rotate takes its range from the
  /// palette's size at this moment.
  void choose(std::int32_t index);
  /// A value outside the effect's range counts as the nearest one inside.
  void setValue(std::int32_t value);
  /// The default value again.
  void reset();

  /// Reads the clipboard again for an effect that uses it. False when another program keeps the clipboard open; then
  /// the palette read before stays in use.
  bool readClipboard();

  /// What the palette would become; valid until the next call. The document is not changed.
  const Palette& preview(ChannelMask mask);
  /// Changes the document, as one undo step, also when nothing changes; then the default value again. When the effect
  /// needs the clipboard and can't open it, no color changes and the value stays for another try.
  void apply(ChannelMask mask);

 private:
  [[nodiscard]] PaletteDocument& document() const { return *slot_.document(); }

  const DocumentSlot& slot_;
  AppSettings& settings_;
  PaletteClipboard& clipboard_;
  std::unique_ptr<Effect> effect_;
  // The clipboard's palette when it was last read.
  std::vector<PaletteEntry> pasted_;
  Palette output_;
};

}  // namespace quillhue
