#include "commands/command_table.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/commands/colors.h"
#include "core/commands/order.h"
#include "core/commands/selection.h"
#include "core/system_palettes.h"

namespace quillhue {

namespace {

namespace id = command_id;
using Scope = CommandScope;
using Need = CommandNeed;
using Input = const PaletteCommandInput&;

constexpr Accelerator control(char letter) { return {.control = true, .key = letter}; }

template <void (CommandTarget::*kAction)()>
void by(CommandTarget& target, std::int32_t /*id*/) {
  (target.*kAction)();
}

template <SelectionMode kMode>
void chooseMode(Input input) {
  input.settings.selectionMode = kMode;
}

template <void (*kCommand)(PaletteDocument& document)>
void onDocument(Input input) {
  kCommand(input.document);
}

template <void (*kCommand)(PaletteDocument& document, std::int32_t current)>
void withCurrent(Input input) {
  kCommand(input.document, input.currentEntry);
}

template <void (*kCommand)(PaletteDocument& document, ChannelMask mask)>
void onChannels(Input input) {
  kCommand(input.document, input.mask);
}

template <Channel kOne, Channel kOther>
void swap(Input input) {
  swapChannels(input.document, kOne, kOther);
}

template <Channel kKey>
void sortBy(Input input) {
  sortByChannel(input.document, kKey, input.mask);
}

// All commands except the system palettes, whose texts are in a table of their own.
constexpr auto kCommands = std::to_array<Command>({
    {.id = id::kNewBlank,
     .text = "&New blank palette...",
     .accelerator = control('N'),
     .act = [](CommandTarget& target, std::int32_t) { target.newPalette(NewPaletteKind::blank); }},
    {.id = id::kNewGreyscale,
     .text = "New &greyscale palette...",
     .act = [](CommandTarget& target, std::int32_t) { target.newPalette(NewPaletteKind::sizeOnly); }},
    {.id = id::kNewRgb,
     .text = "New &RGB palette...",
     .act = [](CommandTarget& target, std::int32_t) { target.newPalette(NewPaletteKind::rgb); }},
    {.id = id::kOpen, .text = "&Open...", .accelerator = control('O'), .act = by<&CommandTarget::openPalette>},
    {.id = id::kSave,
     .scope = Scope::editor,
     .text = "&Save",
     .accelerator = control('S'),
     .act = by<&CommandTarget::savePalette>},
    {.id = id::kSaveAs,
     .scope = Scope::editor,
     .text = "Save &as...",
     .accelerator = {.control = true, .shift = true, .key = 'S'},
     .act = by<&CommandTarget::savePaletteAs>},
    {.id = id::kExit, .text = "E&xit", .act = by<&CommandTarget::exit>},

    {.id = id::kUndo,
     .scope = Scope::editor,
     .need = Need::undoStep,
     .text = "&Undo",
     .accelerator = control('Z'),
     .act = by<&CommandTarget::undo>},
    {.id = id::kRedo,
     .scope = Scope::editor,
     .need = Need::redoStep,
     .text = "&Redo",
     .accelerator = control('Y'),
     .otherKey = {.control = true, .shift = true, .key = 'Z'},
     .act = by<&CommandTarget::redo>},
    {.id = id::kCut,
     .scope = Scope::editor,
     .need = Need::clipboardEntry,
     .text = "Cu&t",
     .accelerator = control('X'),
     .act = by<&CommandTarget::cut>},
    {.id = id::kCopy,
     .scope = Scope::editor,
     .need = Need::clipboardEntry,
     .text = "&Copy",
     .accelerator = control('C'),
     .act = by<&CommandTarget::copy>},
    {.id = id::kPaste,
     .scope = Scope::editor,
     .need = Need::clipboardEntry,
     .text = "&Paste",
     .accelerator = control('V'),
     .act = by<&CommandTarget::paste>},
    {.id = id::kClear,
     .scope = Scope::editor,
     .need = Need::clipboardEntry,
     .text = "C&lear",
     .accelerator = {.key = kDeleteKey},
     .act = by<&CommandTarget::clear>},
    {.id = id::kResize, .scope = Scope::editor, .text = "R&esize...", .act = by<&CommandTarget::resizePalette>},
    {.id = id::kCountColors, .scope = Scope::editor, .text = "C&ount colors", .act = by<&CommandTarget::countColors>},
    {.id = id::kAverageColor,
     .scope = Scope::editor,
     .text = "&Average color",
     .act = by<&CommandTarget::averageColor>},

    {.id = id::kFreeSelection,
     .scope = Scope::effectsTab,
     .text = "Free selection",
     .change = chooseMode<SelectionMode::free>},
    {.id = id::kRowSelection,
     .scope = Scope::effectsTab,
     .text = "Row selection",
     .accelerator = control('R'),
     .change = chooseMode<SelectionMode::row>},
    {.id = id::kRangeSelection,
     .scope = Scope::effectsTab,
     .text = "Range selection",
     .change = chooseMode<SelectionMode::range>},
    {.id = id::kSelectAll,
     .scope = Scope::effectsTab,
     .text = "Select &all",
     .accelerator = control('A'),
     .step = "select all",
     .change = onDocument<selectAll>},
    {.id = id::kSelectNone,
     .scope = Scope::effectsTab,
     .text = "Select &none",
     .step = "select none",
     .change = onDocument<selectNone>},
    {.id = id::kInvertSelection,
     .scope = Scope::effectsTab,
     .text = "&Invert selection",
     .accelerator = control('I'),
     .step = "select invert",
     .change = onDocument<invertSelection>},
    {.id = id::kSelectMatches,
     .scope = Scope::effectsTab,
     .need = Need::currentEntry,
     .text = "Select &matches",
     .step = "select matches",
     .change = withCurrent<selectMatches>},
    {.id = id::kSelectBrighter,
     .scope = Scope::effectsTab,
     .need = Need::currentEntry,
     .text = "Select &brighter",
     .step = "select brighter",
     .change = withCurrent<selectBrighter>},
    {.id = id::kSelectDarker,
     .scope = Scope::effectsTab,
     .need = Need::currentEntry,
     .text = "Select &darker",
     .step = "select darker",
     .change = withCurrent<selectDarker>},
    {.id = id::kSelectRedundant,
     .scope = Scope::effectsTab,
     .text = "Select &redundant",
     .step = "select redundant",
     .change = onDocument<selectRedundant>},

    {.id = id::kGradient,
     .scope = Scope::effectsTab,
     .text = "&Gradient",
     .step = "gradient",
     .change = onChannels<gradient>},
    {.id = id::kBrightGradient,
     .scope = Scope::effectsTab,
     .text = "&Bright gradient",
     .step = "bright-gradient",
     .change = onChannels<brightGradient>},
    {.id = id::kSwapRedGreen,
     .scope = Scope::effectsTab,
     .text = "&Red and green",
     .step = "swap rg",
     .change = swap<Channel::red, Channel::green>},
    {.id = id::kSwapGreenBlue,
     .scope = Scope::effectsTab,
     .text = "&Green and blue",
     .step = "swap gb",
     .change = swap<Channel::green, Channel::blue>},
    {.id = id::kSwapBlueRed,
     .scope = Scope::effectsTab,
     .text = "&Blue and red",
     .step = "swap br",
     .change = swap<Channel::blue, Channel::red>},
    {.id = id::kReverse,
     .scope = Scope::effectsTab,
     .text = "&Reverse",
     .step = "reverse",
     .change = onChannels<reverseSelection>},
    {.id = id::kSortByIntensity,
     .scope = Scope::effectsTab,
     .text = "By &intensity",
     .step = "sort intensity",
     .change = onChannels<sortByIntensity>},
    {.id = id::kSortByRed,
     .scope = Scope::effectsTab,
     .text = "By &red value",
     .step = "sort red",
     .change = sortBy<Channel::red>},
    {.id = id::kSortByGreen,
     .scope = Scope::effectsTab,
     .text = "By &green value",
     .step = "sort green",
     .change = sortBy<Channel::green>},
    {.id = id::kSortByBlue,
     .scope = Scope::effectsTab,
     .text = "By &blue value",
     .step = "sort blue",
     .change = sortBy<Channel::blue>},
    {.id = id::kSortByDeviation,
     .scope = Scope::effectsTab,
     .text = "By &deviation",
     .step = "sort deviation",
     .change = onChannels<sortByDeviation>},

    {.id = id::kReadMe, .text = "&Read me", .otherKey = {.key = kF1Key}, .act = by<&CommandTarget::showReadMe>},
    {.id = id::kAbout, .text = "&About...", .act = by<&CommandTarget::showAbout>},

    {.id = id::kEditColor,
     .scope = Scope::valuesTab,
     .need = Need::currentEntry,
     .text = "&Edit...",
     .act = by<&CommandTarget::editColor>},
    {.id = id::kFill,
     .scope = Scope::effectsTab,
     .need = Need::currentEntry,
     .text = "&Fill",
     .step = "fill",
     .change = [](Input input) { fill(input.document, input.mask, input.currentEntry); }},
    {.id = id::kUseAsBlank,
     .scope = Scope::paletteTabs,
     .need = Need::currentEntry,
     .text = "Use as &blank color",
     .step = "use-as-blank",
     .change = [](Input input) { useAsBlankColor(input.document, input.currentEntry, input.settings); }},

    {.id = id::kNextTab,
     .scope = Scope::editor,
     .otherKey = {.control = true, .key = kTabKey},
     .act = by<&CommandTarget::nextTab>},
    {.id = id::kPreviousTab,
     .scope = Scope::editor,
     .otherKey = {.control = true, .shift = true, .key = kTabKey},
     .act = by<&CommandTarget::previousTab>},
});

std::vector<Command> allCommands() {
  std::vector<Command> all(kCommands.begin(), kCommands.end());
  for (const SystemPalette& palette : systemPalettes()) {
    all.push_back({.id = palette.commandId,
                   .text = palette.menuText,
                   .act = [](CommandTarget& target, std::int32_t command) { target.newSystemPalette(command); }});
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

const Command* findStep(std::string_view step, std::string_view argument) {
  const std::string wanted = std::string(step) + (argument.empty() ? "" : " ") + std::string(argument);
  const auto all = commands();
  const auto found = std::ranges::find(all, wanted, &Command::step);
  return found == all.end() || wanted.empty() ? nullptr : &*found;
}

std::vector<std::string> stepArguments(std::string_view step) {
  const std::string beginning = std::string(step) + ' ';
  std::vector<std::string> arguments;
  for (const Command& command : commands()) {
    if (command.step.starts_with(beginning)) {
      arguments.emplace_back(command.step.substr(beginning.size()));
    }
  }
  return arguments;
}

std::string menuText(const Command& command) {
  std::string text(command.text);
  if (command.accelerator.key != 0) {
    text += '\t' + acceleratorText(command.accelerator);
  }
  return text;
}

bool isHandled(CommandScope scope, ActiveTab tab) {
  switch (scope) {
    case Scope::application:
      return true;
    case Scope::editor:
      return tab != ActiveTab::none;
    case Scope::valuesTab:
      return tab == ActiveTab::values;
    case Scope::effectsTab:
      return tab == ActiveTab::effects;
    case Scope::paletteTabs:
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
  return isHandled(command.scope, state.tab) && isMet(command.need, state);
}

}  // namespace quillhue
