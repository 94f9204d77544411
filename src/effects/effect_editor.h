#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/document.h"
#include "core/services.h"
#include "core/settings.h"
#include "effects/effect.h"
#include "effects/effects.h"

namespace quillhue {

/// Sets the chosen effect's parameter, previews the effect and applies it to the open palette. The slot must hold a
/// document as long as the editor lives.
class EffectEditor {
 public:
  /// Starts with the effect chosen in the settings.
  EffectEditor(const DocumentSlot& slot, AppSettings& settings, PaletteClipboard& clipboard);

  [[nodiscard]] const Effect& effect() const { return *effect_; }

  /// Chooses another effect, with its default value, and stores its index in the settings. The range of Rotate depends
  /// on the palette's size at the time of the call.
  void choose(std::int32_t index);
  /// A value outside the effect's range counts as the nearest one inside.
  void setValue(std::int32_t value);
  /// Restores the default value, and updates the range of Rotate.
  void reset();

  /// Reads the clipboard again if the effect uses it. Returns false if another program keeps the clipboard open; the
  /// palette read before then stays in use.
  bool readClipboard();

  /// Returns the palette that the effect gives, valid until the next call. Does not change the document.
  const Palette& preview(ChannelMask mask);
  /// Applies the effect to the document as one undo step, even if nothing changes, then restores the default value. If
  /// the effect needs the clipboard and can't open it, no color changes and the value is kept for another try.
  void apply(ChannelMask mask);

 private:
  [[nodiscard]] PaletteDocument& document() const { return *slot_.document(); }
  bool readClipboard(const EffectDescription& effect);

  const DocumentSlot& slot_;
  AppSettings& settings_;
  PaletteClipboard& clipboard_;
  std::unique_ptr<Effect> effect_;
  // The clipboard's palette as last read.
  std::vector<PaletteEntry> pasted_;
  Palette output_;
};

}  // namespace quillhue
