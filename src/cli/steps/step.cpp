#include "cli/steps/step.h"

#include <algorithm>
#include <array>

namespace quillhue::cli {

EditSession::EditSession(Palette palette, const InputOptions& inputOptions, Console& toolConsole)
    : input(inputOptions), console(toolConsole), tool(toolConsole) {
  std::ranges::fill(palette.selected(), 1);
  slot.replaceDocument(std::move(palette), false, {}, palette_format::kNone, tool.services);
}

std::span<const StepGroup> stepGroups() {
  static constexpr std::array<StepGroup, 5> kGroups{{
      {"Choice", selectionSteps},
      {"Selected colors", colorSteps},
      {"Entries and channels", entrySteps},
      {"Whole entries", structureSteps},
      {"Clipboard and history", documentSteps},
  }};
  return kGroups;
}

}  // namespace quillhue::cli
