#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "cli/arguments.h"
#include "cli/input.h"
#include "cli/refusal.h"
#include "cli/tool_services.h"
#include "colormodes/channel_editor.h"
#include "commands/command_table.h"
#include "core/commands/ramp.h"
#include "core/document.h"

namespace quillhue::cli {

/// How one step is carried out. Options after the step set this.
struct StepModifiers {
  bool descending = false;
  const RampSpace* space = &rampSpaces().front();
};

/// The state that the steps of one call share.
struct EditSession {
  /// Selects all entries.
  EditSession(Palette palette, const InputOptions& inputOptions, Console& toolConsole);

  [[nodiscard]] PaletteDocument& document() const { return *slot.document(); }
  [[nodiscard]] PaletteCommandInput commandInput(std::int32_t currentEntry = -1) {
    return {.document = document(), .settings = tool.settings, .mask = mask, .currentEntry = currentEntry};
  }

  /// How steps read files.
  const InputOptions& input;
  Console& console;
  ToolServices tool;
  DocumentSlot slot;
  /// Channels that commands may change.
  ChannelMask mask = kAllChannels;
  /// The editor used by the preceding steps if they change channels, otherwise null.
  std::unique_ptr<ChannelEditor> channels;
  StepModifiers modifiers;
};

/// An operation on the palette. Refuses with one line that says what is allowed.
using StepResult = std::expected<void, std::string>;
using Step = std::function<StepResult(EditSession&)>;
using ParsedStep = std::expected<Step, std::string>;

/// An option of the verb edit that adds a step.
struct StepKind {
  const char* option;
  /// Name of the argument in help; null for an option without an argument.
  const char* argument;
  const char* help;
  /// Converts the argument to a step, or refuses it with a message that says what is allowed.
  ParsedStep (*parse)(const std::string& argument);
  /// The option of the step that this option modifies and must directly follow; null for a step. The parsed step then
  /// sets the modifiers of the other one.
  const char* modifies = nullptr;
};

[[nodiscard]] std::span<const StepKind> selectionSteps();
[[nodiscard]] std::span<const StepKind> colorSteps();
[[nodiscard]] std::span<const StepKind> entrySteps();
[[nodiscard]] std::span<const StepKind> structureSteps();
[[nodiscard]] std::span<const StepKind> documentSteps();

/// The steps on one subject.
struct StepGroup {
  const char* subject;
  std::span<const StepKind> (*kinds)();
};
[[nodiscard]] std::span<const StepGroup> stepGroups();

inline constexpr const char* kNothingToPaste =
    "The clipboard holds no palette. Put one there with --copy, --cut or --clipboard FILE.";

/// Makes a step from a command that can't be refused.
template <typename Command>
Step stepOf(Command command) {
  return [command](EditSession& session) -> StepResult {
    command(session);
    return {};
  };
}

/// Makes a step from a command of the catalogue.
[[nodiscard]] inline Step stepOf(const Command& command) {
  return [&command](EditSession& session) -> StepResult {
    command.change(session.commandInput());
    return {};
  };
}

/// Makes a step from a command that takes an entry. `number` is the entry's index as text.
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

/// Makes a step from a function that takes the entries of another palette file. `file` can't be standard input.
[[nodiscard]] ParsedStep fileStepOf(const std::string& file,
                                    std::function<StepResult(EditSession&, const std::vector<PaletteEntry>&)> use);

}  // namespace quillhue::cli
