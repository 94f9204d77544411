#include "ui/logic/palette_commands.h"

#include <algorithm>
#include <array>

#include "core/commands/colors.h"
#include "core/commands/order.h"
#include "core/commands/selection.h"
#include "ui/logic/command_table.h"

namespace quillhue {

namespace {

namespace id = command_id;
using Input = const PaletteCommandInput&;

struct Row {
  std::int32_t command;
  void (*run)(Input input);
};

template <SelectionMode mode>
void chooseMode(Input input) {
  input.settings.selectionMode = mode;
}

template <Channel one, Channel other>
void swap(Input input) {
  swapChannels(input.document, one, other);
}

template <Channel key>
void sortBy(Input input) {
  sortByChannel(input.document, key, input.mask);
}

constexpr auto kRows = std::to_array<Row>({
    {id::kFreeSelection, chooseMode<SelectionMode::free>},
    {id::kRowSelection, chooseMode<SelectionMode::row>},
    {id::kRangeSelection, chooseMode<SelectionMode::range>},
    {id::kSelectAll, [](Input input) { selectAll(input.document); }},
    {id::kSelectNone, [](Input input) { selectNone(input.document); }},
    {id::kInvertSelection, [](Input input) { invertSelection(input.document); }},
    {id::kSelectMatches, [](Input input) { selectMatches(input.document, input.currentEntry); }},
    {id::kSelectBrighter, [](Input input) { selectBrighter(input.document, input.currentEntry); }},
    {id::kSelectDarker, [](Input input) { selectDarker(input.document, input.currentEntry); }},
    {id::kSelectRedundant, [](Input input) { selectRedundant(input.document); }},
    {id::kGradient, [](Input input) { gradient(input.document, input.mask); }},
    {id::kBrightGradient, [](Input input) { brightGradient(input.document, input.mask); }},
    {id::kSwapRedGreen, swap<Channel::red, Channel::green>},
    {id::kSwapGreenBlue, swap<Channel::green, Channel::blue>},
    {id::kSwapBlueRed, swap<Channel::blue, Channel::red>},
    {id::kReverse, [](Input input) { reverseSelection(input.document, input.mask); }},
    {id::kSortByIntensity, [](Input input) { sortByIntensity(input.document, input.mask); }},
    {id::kSortByRed, sortBy<Channel::red>},
    {id::kSortByGreen, sortBy<Channel::green>},
    {id::kSortByBlue, sortBy<Channel::blue>},
    {id::kSortByDeviation, [](Input input) { sortByDeviation(input.document, input.mask); }},
    {id::kFill, [](Input input) { fill(input.document, input.mask, input.currentEntry); }},
    {id::kUseAsBlank, [](Input input) { useAsBlankColor(input.document, input.currentEntry, input.settings); }},
});

}  // namespace

bool runPaletteCommand(std::int32_t command, const PaletteCommandInput& input) {
  const auto found = std::ranges::find(kRows, command, &Row::command);
  if (found == kRows.end()) {
    return false;
  }
  found->run(input);
  return true;
}

}  // namespace quillhue
