#include "ui/logic/command_table.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/system_palettes.h"

namespace quillhue {

namespace {

namespace id = command_id;
using Handler = CommandHandler;
using Need = CommandNeed;

constexpr Accelerator control(char letter) { return {.control = true, .key = letter}; }

// All but the system palettes, which have their texts from their own table.
constexpr auto kCommands = std::to_array<Command>({
    {id::kNewBlank, Handler::application, Need::nothing, "&New blank palette...", control('N')},
    {id::kNewGreyscale, Handler::application, Need::nothing, "New &greyscale palette..."},
    {id::kNewRgb, Handler::application, Need::nothing, "New &RGB palette..."},
    {id::kOpen, Handler::application, Need::nothing, "&Open...", control('O')},
    {id::kSave, Handler::frame, Need::nothing, "&Save", control('S')},
    {id::kSaveAs, Handler::frame, Need::nothing, "Save &as...", {true, true, 'S'}},
    {id::kExit, Handler::application, Need::nothing, "E&xit"},

    {id::kUndo, Handler::frame, Need::undoStep, "&Undo", control('Z')},
    {id::kRedo, Handler::frame, Need::redoStep, "&Redo", control('Y')},
    {id::kCut, Handler::frame, Need::clipboardEntry, "Cu&t", control('X')},
    {id::kCopy, Handler::frame, Need::clipboardEntry, "&Copy", control('C')},
    {id::kPaste, Handler::frame, Need::clipboardEntry, "&Paste", control('V')},
    {id::kClear, Handler::frame, Need::clipboardEntry, "C&lear", {.key = kDeleteKey}},
    {id::kResize, Handler::frame, Need::nothing, "R&esize..."},
    {id::kCountColors, Handler::frame, Need::nothing, "C&ount colors"},
    {id::kAverageColor, Handler::frame, Need::nothing, "&Average color"},

    {id::kFreeSelection, Handler::effectsTab, Need::nothing, "Free selection"},
    {id::kRowSelection, Handler::effectsTab, Need::nothing, "Row selection", control('R')},
    {id::kRangeSelection, Handler::effectsTab, Need::nothing, "Range selection"},
    {id::kSelectAll, Handler::effectsTab, Need::nothing, "Select &all", control('A')},
    {id::kSelectNone, Handler::effectsTab, Need::nothing, "Select &none"},
    {id::kInvertSelection, Handler::effectsTab, Need::nothing, "&Invert selection", control('I')},
    {id::kSelectMatches, Handler::effectsTab, Need::currentEntry, "Select &matches"},
    {id::kSelectBrighter, Handler::effectsTab, Need::currentEntry, "Select &brighter"},
    {id::kSelectDarker, Handler::effectsTab, Need::currentEntry, "Select &darker"},
    {id::kSelectRedundant, Handler::effectsTab, Need::nothing, "Select &redundant"},

    {id::kGradient, Handler::effectsTab, Need::nothing, "&Gradient"},
    {id::kBrightGradient, Handler::effectsTab, Need::nothing, "&Bright gradient"},
    {id::kSwapRedGreen, Handler::effectsTab, Need::nothing, "&Red and green"},
    {id::kSwapGreenBlue, Handler::effectsTab, Need::nothing, "&Green and blue"},
    {id::kSwapBlueRed, Handler::effectsTab, Need::nothing, "&Blue and red"},
    {id::kReverse, Handler::effectsTab, Need::nothing, "&Reverse"},
    {id::kSortByIntensity, Handler::effectsTab, Need::nothing, "By &intensity"},
    {id::kSortByRed, Handler::effectsTab, Need::nothing, "By &red value"},
    {id::kSortByGreen, Handler::effectsTab, Need::nothing, "By &green value"},
    {id::kSortByBlue, Handler::effectsTab, Need::nothing, "By &blue value"},
    {id::kSortByDeviation, Handler::effectsTab, Need::nothing, "By &deviation"},

    {id::kReadMe, Handler::application, Need::nothing, "&Read me"},
    {id::kAbout, Handler::application, Need::nothing, "&About..."},

    {id::kEditColor, Handler::valuesTab, Need::currentEntry, "&Edit..."},
    {id::kFill, Handler::effectsTab, Need::currentEntry, "&Fill"},
    {id::kUseAsBlank, Handler::paletteTabs, Need::currentEntry, "Use as &blank color"},
});

std::vector<Command> allCommands() {
  std::vector<Command> all(kCommands.begin(), kCommands.end());
  for (const SystemPalette& palette : systemPalettes()) {
    all.push_back({palette.commandId, Handler::application, Need::nothing, palette.menuText});
  }
  std::ranges::sort(all, {}, &Command::id);
  return all;
}

}  // namespace

std::string acceleratorText(const Accelerator& accelerator) {
  std::string text;
  text += accelerator.control ? "Ctrl+" : "";
  text += accelerator.shift ? "Shift+" : "";
  if (accelerator.key == kDeleteKey) {
    text += "Del";
  } else if (accelerator.key != 0) {
    text += static_cast<char>(accelerator.key);
  }
  return text;
}

bool editsText(const Accelerator& accelerator) {
  constexpr std::array kTextCommands{id::kUndo, id::kCut, id::kCopy, id::kPaste, id::kClear, id::kSelectAll};
  return std::ranges::any_of(kTextCommands,
                             [&](std::int32_t command) { return findCommand(command)->accelerator == accelerator; });
}

std::span<const Command> commands() {
  static const std::vector<Command> kAll = allCommands();
  return kAll;
}

const Command* findCommand(std::int32_t id) {
  const auto all = commands();
  const auto found = std::ranges::find(all, id, &Command::id);
  return found == all.end() ? nullptr : &*found;
}

std::string menuText(const Command& command) {
  std::string text(command.text);
  if (command.accelerator.key != 0) {
    text += '\t' + acceleratorText(command.accelerator);
  }
  return text;
}

bool isHandled(CommandHandler handler, ActiveTab tab) {
  switch (handler) {
    case Handler::application:
      return true;
    case Handler::frame:
      return tab != ActiveTab::none;
    case Handler::valuesTab:
      return tab == ActiveTab::values;
    case Handler::effectsTab:
      return tab == ActiveTab::effects;
    case Handler::paletteTabs:
      return tab == ActiveTab::values || tab == ActiveTab::effects;
  }
  return false;
}

bool isMet(Need need, const CommandState& state) {
  switch (need) {
    case Need::nothing:
      return true;
    case Need::undoStep:
      return state.canUndo;
    case Need::redoStep:
      return state.canRedo;
    case Need::currentEntry:
      return state.hasCurrentEntry;
    case Need::clipboardEntry:
      return state.hasCurrentEntry || state.tab != ActiveTab::values;
  }
  return false;
}

bool isEnabled(const Command& command, const CommandState& state) {
  return isHandled(command.handler, state.tab) && isMet(command.need, state);
}

}  // namespace quillhue
