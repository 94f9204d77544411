#pragma once

#include <cstdint>

#include "core/document.h"
#include "core/settings.h"

namespace quillhue {

/// What the commands of the tab "Apply Effects" work on.
struct PaletteCommandInput {
  PaletteDocument& document;
  AppSettings& settings;
  /// The channels whose boxes are ticked.
  ChannelMask mask = kAllChannels;
  /// Any index that is no entry for none.
  std::int32_t currentEntry = -1;
};

/// Carries out a command on selection or colors, of the selection mode or of the blank color. False for a command of
/// any other kind, which does nothing here.
bool runPaletteCommand(std::int32_t command, const PaletteCommandInput& input);

}  // namespace quillhue
