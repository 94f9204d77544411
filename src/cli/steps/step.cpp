#include "cli/steps/step.h"

#include <algorithm>

namespace quillhue::cli {

EditSession::EditSession(Palette palette, const InputOptions& inputOptions, Console& toolConsole)
    : input(inputOptions), console(toolConsole), tool(toolConsole) {
  std::ranges::fill(palette.selected(), 1);
  slot.replaceDocument(std::move(palette), false, {}, palette_format::kNone, tool.services);
}

}  // namespace quillhue::cli
