#include "ui/logic/menus.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/system_palettes.h"

namespace quillhue {

namespace {

namespace id = command_id;
using Items = std::vector<MenuItem>;

MenuItem item(std::int32_t command) {
  return {.command = command, .text = menuText(*findCommand(command)), .items = {}};
}

MenuItem item(std::int32_t command, std::string_view text) {
  return {.command = command, .text = std::string(text), .items = {}};
}

MenuItem menu(std::string_view text, Items items) {
  return {.command = 0, .text = std::string(text), .items = std::move(items)};
}

MenuItem separator() { return {}; }

Items systemPaletteItems() {
  Items items;
  for (const SystemPalette& palette : systemPalettes()) {
    items.push_back(item(palette.commandId));
  }
  return items;
}

Items swapItems() { return {item(id::kSwapRedGreen), item(id::kSwapGreenBlue), item(id::kSwapBlueRed)}; }

Items sortItems() {
  return {item(id::kSortByIntensity), item(id::kSortByRed), item(id::kSortByGreen), item(id::kSortByBlue),
          item(id::kSortByDeviation)};
}

Items fileItems() {
  return {item(id::kNewBlank),
          menu("New system palette", systemPaletteItems()),
          item(id::kNewGreyscale),
          item(id::kNewRgb),
          separator(),
          item(id::kOpen),
          item(id::kSave),
          item(id::kSaveAs),
          separator(),
          item(id::kExit)};
}

Items editItems() {
  return {item(id::kUndo),        item(id::kRedo),        separator(), item(id::kCut),    item(id::kCopy),
          item(id::kPaste),       item(id::kClear),       separator(), item(id::kResize), separator(),
          item(id::kCountColors), item(id::kAverageColor)};
}

Items selectItems() {
  return {item(id::kFreeSelection), item(id::kRowSelection),   item(id::kRangeSelection),  separator(),
          item(id::kSelectAll),     item(id::kSelectNone),     item(id::kInvertSelection), separator(),
          item(id::kSelectMatches), item(id::kSelectBrighter), item(id::kSelectDarker),    item(id::kSelectRedundant)};
}

Items colorsItems() {
  return {item(id::kGradient), item(id::kBrightGradient), separator(), menu("S&wap channels", swapItems()),
          item(id::kReverse),  menu("&Sort", sortItems())};
}

Items valuesPopupItems() {
  return {item(id::kEditColor), separator(),    item(id::kUndo),      item(id::kRedo),
          separator(),          item(id::kCut), item(id::kCopy),      item(id::kPaste),
          item(id::kClear),     separator(),    item(id::kUseAsBlank)};
}

Items effectsPopupItems() {
  return {item(id::kUndo),
          item(id::kRedo),
          separator(),
          item(id::kCut),
          item(id::kCopy),
          item(id::kPaste),
          item(id::kClear),
          separator(),
          item(id::kFreeSelection),
          item(id::kRowSelection),
          item(id::kRangeSelection),
          separator(),
          item(id::kSelectAll, "&Select all\tCtrl+A"),
          item(id::kSelectNone),
          item(id::kInvertSelection),
          item(id::kSelectMatches),
          item(id::kSelectBrighter),
          item(id::kSelectDarker),
          item(id::kSelectRedundant, "Select re&dundant"),
          separator(),
          item(id::kGradient),
          item(id::kBrightGradient, "Bright gradient"),
          menu("S&wap channels", swapItems()),
          item(id::kReverse),
          menu("&Sort", sortItems()),
          separator(),
          item(id::kFill),
          item(id::kUseAsBlank)};
}

}  // namespace

const std::vector<MenuItem>& mainMenu() {
  static const Items kMenu{menu("&File", fileItems()), menu("&Edit", editItems()), menu("&Select", selectItems()),
                           menu("&Colors", colorsItems()), menu("&Help", {item(id::kReadMe), item(id::kAbout)})};
  return kMenu;
}

const std::vector<MenuItem>& contextMenus() {
  static const Items kMenus{menu("NewPopup", systemPaletteItems()), menu("ValuesPopup", valuesPopupItems()),
                            menu("EffectsPopup", effectsPopupItems())};
  return kMenus;
}

bool isEnabled(const MenuItem& item, const CommandState& state) {
  if (item.command != 0) {
    return isEnabled(*findCommand(item.command), state);
  }
  return std::ranges::any_of(item.items, [&](const MenuItem& inner) {
    return inner.command == 0 ? isEnabled(inner, state) : isHandled(findCommand(inner.command)->scope, state.tab);
  });
}

}  // namespace quillhue
