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

/// The catalogue of commands: menus, accelerators, dispatch and the tool's steps all use this table.

/// The part of the program in which a command works.
enum class CommandScope : std::uint8_t {
  /// Both screens: intro and editor.
  application,
  /// The editor, whichever tab is active.
  editor,
  /// Only while this tab is active; paletteTabs means either of the two.
  valuesTab,
  effectsTab,
  paletteTabs,
};

/// The condition under which menus enable a command, in addition to its scope.
enum class CommandNeed : std::uint8_t {
  nothing,
  undoStep,
  redoStep,
  currentEntry,
  /// A current entry if the active tab is "Edit Values", where Cut, Copy, Paste and Clear change that entry alone.
  clipboardEntry,
};

/// The shortcut of a command. A key of 0 means none.
struct Accelerator {
  bool control = false;
  bool shift = false;
  /// The system's virtual key code. A letter's code is its capital.
  std::int32_t key = 0;

  friend bool operator==(const Accelerator&, const Accelerator&) = default;
};
inline constexpr std::int32_t kTabKey = 0x09;
inline constexpr std::int32_t kDeleteKey = 0x2E;
inline constexpr std::int32_t kF1Key = 0x70;

/// Returns the text that a menu shows: "Ctrl+Shift+S", "Del".
[[nodiscard]] std::string acceleratorText(const Accelerator& accelerator);

/// Whether the key edits text when an edit field has the focus, instead of changing the palette: Ctrl+Z, X, C, V, A and
/// Del.
[[nodiscard]] bool editsText(const Accelerator& accelerator);

/// The input of a command on the palette.
struct PaletteCommandInput {
  PaletteDocument& document;
  AppSettings& settings;
  /// Channels that the command may change.
  ChannelMask mask = kAllChannels;
  /// An index outside the palette means none.
  std::int32_t currentEntry = -1;
};

struct Command {
  std::int32_t id = 0;
  CommandScope scope = CommandScope::application;
  CommandNeed need = CommandNeed::nothing;
  /// Has & before the letter that selects it in its menu. Empty if the command is in no menu.
  std::string_view text{};
  Accelerator accelerator{};
  /// Another key, which no menu shows.
  Accelerator otherKey{};
  /// The tool's step, followed by a blank and the argument if it takes one: "reverse", "sort intensity". Empty if the
  /// tool does not have the command.
  std::string_view step{};
  /// One of these two carries out the command: `change` on the palette, or `act` by the screen.
  void (*change)(const PaletteCommandInput& input) = nullptr;
  void (*act)(CommandTarget& target, std::int32_t id) = nullptr;
};

/// Returns all commands in the order of their ids.
[[nodiscard]] std::span<const Command> commands();
/// Returns null if no command has the id.
[[nodiscard]] const Command* findCommand(std::int32_t id);

/// Returns the command of a step of the tool with this argument, or null. `argument` is empty for a step that takes
/// none.
[[nodiscard]] const Command* findStep(std::string_view step, std::string_view argument = {});
/// Returns the possible arguments of a step of the tool, in the order of the table.
[[nodiscard]] std::vector<std::string> stepArguments(std::string_view step);

/// Returns the command's text, followed by a tab and the accelerator if it has one.
[[nodiscard]] std::string menuText(const Command& command);

/// The editor's active tab, or none on the intro screen.
enum class ActiveTab : std::uint8_t { none, values, effects, use };

/// The state that decides which commands are enabled.
struct CommandState {
  ActiveTab tab = ActiveTab::none;
  bool canUndo = false;
  bool canRedo = false;
  /// Whether the active tab shows the palette and its current entry exists.
  bool hasCurrentEntry = false;
};

/// Whether a command of this scope has an effect while the tab is active. Otherwise it is ignored, whatever sent it.
[[nodiscard]] bool isHandled(CommandScope scope, ActiveTab tab);
[[nodiscard]] bool isMet(CommandNeed need, const CommandState& state);
/// Whether a menu enables the command. A disabled command that is sent anyway is carried out as far as possible.
[[nodiscard]] bool isEnabled(const Command& command, const CommandState& state);

/// Returns the command whose radio mark shows the selection mode.
[[nodiscard]] constexpr std::int32_t commandOf(SelectionMode mode) {
  return command_id::kFreeSelection + static_cast<std::int32_t>(mode);
}

}  // namespace quillhue
