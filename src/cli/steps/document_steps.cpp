#include <array>

#include "cli/steps/step.h"
#include "core/commands/exchange.h"
#include "core/commands/statistics.h"

namespace quillhue::cli {

namespace {

PaletteClipboard& clipboardOf(EditSession& session) { return session.tool.services.clipboard; }

ParsedStep parseCopy(const std::string& /*argument*/) {
  return stepOf(
      [](EditSession& session) { static_cast<void>(copySelection(session.document(), clipboardOf(session))); });
}

ParsedStep parseCut(const std::string& /*argument*/) {
  return stepOf([](EditSession& session) {
    cutSelection(session.document(), session.mask, session.tool.settings.blank, clipboardOf(session));
  });
}

ParsedStep parseClear(const std::string& /*argument*/) {
  return stepOf(
      [](EditSession& session) { clearSelection(session.document(), session.mask, session.tool.settings.blank); });
}

ParsedStep parsePaste(const std::string& /*argument*/) {
  return [](EditSession& session) -> StepResult {
    if (!clipboardOf(session).get()) {
      return Refusal(kNothingToPaste);
    }
    pasteIntoSelection(session.document(), session.mask, clipboardOf(session));
    return {};
  };
}

ParsedStep parseClipboard(const std::string& argument) {
  return fileStepOf(argument, [](EditSession& session, const std::vector<PaletteEntry>& entries) -> StepResult {
    static_cast<void>(clipboardOf(session).put(entries));
    return {};
  });
}

ParsedStep parseResize(const std::string& argument) {
  const auto size = parseNumber(argument);
  if (!size || *size < 1 || *size > kMaxPaletteSize) {
    return Refusal(argument + " is not a size from 1 to " + std::to_string(kMaxPaletteSize));
  }
  return stepOf([size = *size](EditSession& session) { session.document().resize(size); });
}

ParsedStep parseUndo(const std::string& /*argument*/) {
  return [](EditSession& session) -> StepResult {
    if (!session.document().canUndo()) {
      return Refusal("There is no step to undo.");
    }
    session.document().undo();
    return {};
  };
}

ParsedStep parseRedo(const std::string& /*argument*/) {
  return [](EditSession& session) -> StepResult {
    if (!session.document().canRedo()) {
      return Refusal("There is no undone step to redo.");
    }
    session.document().redo();
    return {};
  };
}

ParsedStep parseBlank(const std::string& argument) {
  const auto color = parseColor(argument);
  if (!color) {
    return Refusal(refusedColor(argument));
  }
  return stepOf([color = *color](EditSession& session) { session.tool.settings.blank = color; });
}

ParsedStep parseCountColors(const std::string& /*argument*/) {
  return stepOf([](EditSession& session) { reportColorCount(session.document(), session.tool.services.messages); });
}

ParsedStep parseAverageColor(const std::string& /*argument*/) {
  return stepOf([](EditSession& session) { reportAverageColor(session.document(), session.tool.services.messages); });
}

constexpr std::array<StepKind, 11> kSteps{{
    {"--copy", nullptr, "Copy the selected entries to the tool's own clipboard", parseCopy},
    {"--cut", nullptr, "Copy the selected entries, then clear them", parseCut},
    {"--clear", nullptr, "Set the selected entries to the blank color", parseClear},
    {"--paste", nullptr, "Replace the selected entries, in order, with the colors on the clipboard", parsePaste},
    {"--clipboard", "FILE", "Put the palette of a file on the clipboard", parseClipboard},
    {"--resize", "N", "Change the number of entries; new entries get the blank color", parseResize},
    {"--undo", nullptr, "Undo the last step", parseUndo},
    {"--redo", nullptr, "Redo the step that was undone last", parseRedo},
    {"--blank", "COLOR", "The blank color for the following steps and for unused entries of OUT (initially 0,0,0)",
     parseBlank},
    {"--count-colors", nullptr, "Write the number of different colors to standard error", parseCountColors},
    {"--average-color", nullptr, "Write the mean of all entries to standard error", parseAverageColor},
}};

}  // namespace

std::span<const StepKind> documentSteps() { return kSteps; }

}  // namespace quillhue::cli
