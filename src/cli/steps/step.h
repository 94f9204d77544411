#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>

#include "cli/arguments.h"
#include "cli/refusal.h"
#include "cli/tool_services.h"
#include "colormodes/channel_editor.h"
#include "commands/command_table.h"
#include "core/document.h"

namespace quillhue::cli {

/// What the steps of one call work on.
struct EditSession {
  /// All entries are selected.
  EditSession(Palette palette, Console& toolConsole);

  [[nodiscard]] PaletteDocument& document() const { return *slot.document(); }
  [[nodiscard]] PaletteCommandInput commandInput(std::int32_t currentEntry = -1) {
    return {.document = document(), .settings = tool.settings, .mask = mask, .currentEntry = currentEntry};
  }

  Console& console;
  ToolServices tool;
  DocumentSlot slot;
  /// The channels that commands may change.
  ChannelMask mask = kAllChannels;
  /// The editor of the steps before this one that change channels; null when another kind of step came between.
  std::unique_ptr<ChannelEditor> channels;
};

/// One thing that is done to the palette; refuses with a line that says what is allowed.
using StepResult = std::expected<void, std::string>;
using Step = std::function<StepResult(EditSession&)>;
using ParsedStep = std::expected<Step, std::string>;

/// An option of the verb edit that stands for a step.
struct StepKind {
  const char* option;
  /// What its argument is called; null for an option without.
  const char* argument;
  const char* help;
  /// Turns the argument into a step, or refuses it with what is allowed.
  ParsedStep (*parse)(const std::string& argument);
};

/// The steps by subject: which entries, which colors, exchange with the clipboard and the history, and single entries.
[[nodiscard]] std::span<const StepKind> selectionSteps();
[[nodiscard]] std::span<const StepKind> colorSteps();
[[nodiscard]] std::span<const StepKind> documentSteps();
[[nodiscard]] std::span<const StepKind> entrySteps();

inline constexpr const char* kNothingToPaste =
    "The clipboard holds no palette. Put one there with --copy, --cut or --clipboard FILE.";

/// A step of a command that refuses nothing.
template <typename Command>
Step stepOf(Command command) {
  return [command](EditSession& session) -> StepResult {
    command(session);
    return {};
  };
}

/// A step that carries out a command of the catalogue.
[[nodiscard]] inline Step stepOf(const Command& command) {
  return [&command](EditSession& session) -> StepResult {
    command.change(session.commandInput());
    return {};
  };
}

/// A step of a command that takes an entry, written as `number`.
template <typename Command>
ParsedStep entryStepOf(const std::string& number, Command command) {
  const auto entry = parseNumber(number);
  if (!entry) {
    return Refusal(number + " is not the index of an entry");
  }
  return [entry = *entry, command](EditSession& session) -> StepResult {
    if (auto checked = checkEntry(entry, session.document().getSize()); !checked) {
      return checked;
    }
    command(session, entry);
    return {};
  };
}

/// The same for a command of the catalogue.
[[nodiscard]] inline ParsedStep entryStepOf(const std::string& number, const Command& command) {
  return entryStepOf(
      number, [&command](EditSession& session, std::int32_t entry) { command.change(session.commandInput(entry)); });
}

}  // namespace quillhue::cli
