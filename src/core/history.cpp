#include "core/history.h"

#include <algorithm>
#include <utility>

namespace quillhue {

namespace {

std::vector<std::uint8_t> copyOf(std::span<const std::uint8_t> bytes) { return {bytes.begin(), bytes.end()}; }

}  // namespace

std::unique_ptr<PaletteDifference> PaletteDifference::swap(Palette& palette,
                                                           std::unique_ptr<PaletteDifference> newNext) {
  exchange(palette);
  return std::exchange(next_, std::move(newNext));
}

void PaletteDifferenceColor::exchange(Palette& palette) {
  if (index_ >= palette.getSize()) {
    return;
  }
  const PaletteEntry current = palette.entry(index_);
  palette.setEntry(index_, color_);
  color_ = current;
}

PaletteDifferenceColors::PaletteDifferenceColors(const Palette& palette)
    : channels_{copyOf(palette.channel(Channel::red)), copyOf(palette.channel(Channel::green)),
                copyOf(palette.channel(Channel::blue))} {}

void PaletteDifferenceColors::exchange(Palette& palette) {
  for (const Channel channel : kChannels) {
    std::ranges::swap_ranges(channels_[static_cast<std::size_t>(channel)], palette.channel(channel));
  }
}

PaletteDifferenceSelection::PaletteDifferenceSelection(const Palette& palette)
    : selected_(copyOf(palette.selected())) {}

void PaletteDifferenceSelection::exchange(Palette& palette) { std::ranges::swap_ranges(selected_, palette.selected()); }

void PaletteDifferenceSize::exchange(Palette& palette) { std::swap(palette_, palette); }

EditHistory::~EditHistory() {
  discard(undo_);
  discard(redo_);
}

void EditHistory::push(std::unique_ptr<PaletteDifference> record) noexcept {
  record->next_ = std::exchange(undo_, nullptr);
  undo_ = std::move(record);
  discard(redo_);
}

void EditHistory::move(Stack& from, Stack& to, Palette& palette) {
  if (from == nullptr) {
    return;
  }
  Stack record = std::move(from);
  from = record->swap(palette, std::move(to));
  to = std::move(record);
}

void EditHistory::discard(Stack& stack) noexcept {
  while (stack != nullptr) {
    stack = std::move(stack->next_);
  }
}

}  // namespace quillhue
