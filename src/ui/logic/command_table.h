#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/settings.h"
#include "ui/logic/command_ids.h"

namespace quillhue {

/// The commands of the menus: the one table that menus, accelerators, dispatch and tests take them from.

/// The part of the program that a command is for.
enum class CommandHandler : std::uint8_t {
  /// Both screens.
  application,
  /// The editor, whichever tab is active.
  frame,
  /// Only while this tab is active, or one of the two.
  valuesTab,
  effectsTab,
  paletteTabs,
};

/// What a command needs beside its handler to have an effect.
enum class CommandNeed : std::uint8_t {
  nothing,
  undoStep,
  redoStep,
  currentEntry,
  /// A current entry on the tab "Edit Values", where cutting, copying, pasting and clearing act on it alone.
  clipboardEntry,
};

/// A key that does the same as a menu item; a key of 0 stands for none.
struct Accelerator {
  bool control = false;
  bool shift = false;
  /// The system's virtual key: of a letter its capital.
  std::int32_t key = 0;

  friend bool operator==(const Accelerator&, const Accelerator&) = default;
};
inline constexpr std::int32_t kDeleteKey = 0x2E;

/// As it stands in a menu: "Ctrl+Shift+S", "Del".
[[nodiscard]] std::string acceleratorText(const Accelerator& accelerator);

/// Whether the key edits the text of a field that has the focus, as everywhere in the system, instead of the palette:
/// Ctrl+Z, X, C, V, A and Del.
[[nodiscard]] bool editsText(const Accelerator& accelerator);

struct Command {
  std::int32_t id;
  CommandHandler handler;
  CommandNeed need;
  /// With a & before the letter that chooses it in its menu.
  std::string_view text;
  Accelerator accelerator{};
};

/// All commands, by id.
[[nodiscard]] std::span<const Command> commands();
/// Null for an id that no command has.
[[nodiscard]] const Command* findCommand(std::int32_t id);

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

/// Whether there is anything that the command goes to. One that has no handler does nothing, wherever it comes from.
[[nodiscard]] bool isHandled(CommandHandler handler, ActiveTab tab);
[[nodiscard]] bool isMet(CommandNeed need, const CommandState& state);
/// Whether a menu offers it. A command that is sent all the same is up to its handler.
[[nodiscard]] bool isEnabled(const Command& command, const CommandState& state);

/// The command whose radio mark tells the selection mode.
[[nodiscard]] constexpr std::int32_t commandOf(SelectionMode mode) {
  return command_id::kFreeSelection + static_cast<std::int32_t>(mode);
}

}  // namespace quillhue
