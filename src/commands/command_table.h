#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "commands/command_ids.h"
#include "commands/command_target.h"
#include "core/document.h"
#include "core/settings.h"

namespace quillhue {

/// The catalogue of commands: the one table from which menus, accelerators, dispatch and the tool's steps take them.

/// The part of the program that a command is for.
enum class CommandScope : std::uint8_t {
  /// Both screens.
  application,
  /// The editor, whichever tab is active.
  editor,
  /// Only while this tab is active, or one of the two.
  valuesTab,
  effectsTab,
  paletteTabs,
};

/// What a command needs beside its scope to have an effect.
enum class CommandNeed : std::uint8_t {
  nothing,
  undoStep,
  redoStep,
  currentEntry,
  /// A current entry on the tab "Edit Values", where cutting, copying, pasting and clearing act on it alone.
  clipboardEntry,
};

/// A key that does the same as a menu item; a key of 0 means none.
struct Accelerator {
  bool control = false;
  bool shift = false;
  /// The system's virtual key: for a letter its capital.
  std::int32_t key = 0;

  friend bool operator==(const Accelerator&, const Accelerator&) = default;
};
inline constexpr std::int32_t kDeleteKey = 0x2E;

/// As a menu shows it: "Ctrl+Shift+S", "Del".
[[nodiscard]] std::string acceleratorText(const Accelerator& accelerator);

/// Whether the key edits the text of a field that has the focus, as everywhere in the system, instead of the palette:
/// Ctrl+Z, X, C, V, A and Del.
[[nodiscard]] bool editsText(const Accelerator& accelerator);

/// What a command on the palette works with.
struct PaletteCommandInput {
  PaletteDocument& document;
  AppSettings& settings;
  /// The channels that it may change.
  ChannelMask mask = kAllChannels;
  /// Any index that is no entry means none.
  std::int32_t currentEntry = -1;
};

struct Command {
  std::int32_t id = 0;
  CommandScope scope = CommandScope::application;
  CommandNeed need = CommandNeed::nothing;
  /// With a & before the letter that chooses it in its menu.
  std::string_view text{};
  Accelerator accelerator{};
  /// The tool's step, and behind a blank its argument: "reverse", "sort intensity". Empty for a command that is none.
  std::string_view step{};
  /// One of the two carries it out: on the palette, or by the screen.
  void (*change)(const PaletteCommandInput& input) = nullptr;
  void (*act)(CommandTarget& target, std::int32_t id) = nullptr;
};

/// All commands, by id.
[[nodiscard]] std::span<const Command> commands();
/// Null for an id that no command has.
[[nodiscard]] const Command* findCommand(std::int32_t id);

/// The command of a step of the tool and its argument, if it takes one; null when there is none.
[[nodiscard]] const Command* findStep(std::string_view step, std::string_view argument = {});
/// The arguments of a step of the tool, in the order of the table.
[[nodiscard]] std::vector<std::string> stepArguments(std::string_view step);

/// The command's text, and behind a tab its accelerator if it has one.
[[nodiscard]] std::string menuText(const Command& command);

/// The active tab of the editor; none on the intro screen.
enum class ActiveTab : std::uint8_t { none, values, effects, use };

/// What decides about commands.
struct CommandState {
  ActiveTab tab = ActiveTab::none;
  bool canUndo = false;
  bool canRedo = false;
  /// The active tab shows the palette, and its current entry is one of the palette's.
  bool hasCurrentEntry = false;
};

/// Whether a command of this scope has an effect while the tab is active. Otherwise it does nothing, wherever it comes
/// from.
[[nodiscard]] bool isHandled(CommandScope scope, ActiveTab tab);
[[nodiscard]] bool isMet(CommandNeed need, const CommandState& state);
/// Whether a menu offers it. A command that is sent all the same is carried out as far as it can be.
[[nodiscard]] bool isEnabled(const Command& command, const CommandState& state);

/// The command whose radio mark shows the selection mode.
[[nodiscard]] constexpr std::int32_t commandOf(SelectionMode mode) {
  return command_id::kFreeSelection + static_cast<std::int32_t>(mode);
}

}  // namespace quillhue
