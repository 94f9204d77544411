#include "colormodes/channel_editor.h"

#include <algorithm>
#include <array>

#include "colormodes/color_models.h"
#include "core/commands/exchange.h"

namespace quillhue {

namespace {

using CustomColors = std::array<PaletteEntry, ColorChooser::kCustomColors>;

CustomColors customColorsFor(const PaletteDocument& document, std::int32_t index, PaletteEntry blank) {
  CustomColors colors{};
  std::int32_t entry = index - index % static_cast<std::int32_t>(colors.size());
  for (PaletteEntry& color : colors) {
    color = document.contains(entry) ? document.getColor(entry) : blank;
    ++entry;
  }
  return colors;
}

}  // namespace

ChannelEditor::ChannelEditor(const DocumentSlot& slot, AppSettings& settings, ChannelView& view)
    : slot_(slot), settings_(settings), view_(view) {
  createColorMode(settings.colorMode, currentEntry_, slot, mode_);
}

void ChannelEditor::setCurrentEntry(std::int32_t index) {
  const std::int32_t chosen = document().contains(index) ? index : -1;
  if (chosen != currentEntry_) {
    currentEntry_ = chosen;
    refreshAndRepaint();
  }
}

void ChannelEditor::chooseModel(std::int32_t index) {
  const auto chosen = static_cast<std::uint8_t>(index);
  createColorMode(chosen, currentEntry_, slot_, mode_);
  settings_.colorMode = chosen;
  refreshAndRepaint();
}

void ChannelEditor::refreshValues() {
  mode_->setEntry(currentEntry_);
  endRun();
  showValues();
}

// Setting the numbers again rebuilds the bars. The document is locked meanwhile, so nothing is written, whether a
// control reports its new number as a change or this function sets the number itself.
void ChannelEditor::showValues() {
  // Restores the state even if a control throws.
  struct LockedDocument {
    ChannelEditor& editor;
    bool isRunOver = editor.recordsNext();

    explicit LockedDocument(ChannelEditor& locking) : editor(locking) { editor.document().lock(); }
    LockedDocument(const LockedDocument&) = delete;
    LockedDocument& operator=(const LockedDocument&) = delete;
    ~LockedDocument() {
      editor.document().unlock();
      editor.recordArmed_ = isRunOver;
    }
  };
  const LockedDocument locked(*this);
  recordArmed_ = false;
  runSaveCount_ = document().saveCount();
  for (const Bar bar : kBars) {
    const std::int32_t value = mode_->getValue(bar);
    view_.showChannel(bar, mode_->channelRange(bar), value);
    mode_->setValue(bar, value);
  }
}

void ChannelEditor::paletteChanged() {
  currentEntry_ = std::min(currentEntry_, document().getSize() - 1);
  refreshAndRepaint();
}

void ChannelEditor::documentReplaced() {
  createColorMode(settings_.colorMode, 0, slot_, mode_);
  currentEntry_ = 0;
  releaseBar();
  refreshAndRepaint();
}

void ChannelEditor::recordOnce() {
  if (recordsNext()) {
    document().recordColor(currentEntry_);
  }
  recordArmed_ = false;
  runSaveCount_ = document().saveCount();
}

void ChannelEditor::refreshAndRepaint() {
  refreshValues();
  view_.entryChanged(currentEntry_);
}

void ChannelEditor::changeChannel(Bar bar, std::int32_t value) {
  const ValueRange& range = mode_->channelRange(bar);
  value = range.clamp(value);
  if (value == mode_->getValue(bar)) {
    return;
  }
  recordOnce();
  mode_->setValue(bar, value);
  view_.showChannel(bar, range, value);
  view_.entryChanged(currentEntry_);
}

void ChannelEditor::fieldChanged(Bar bar, std::int32_t value) {
  recordOnce();
  mode_->setValue(bar, mode_->channelRange(bar).clamp(value));
  view_.entryChanged(currentEntry_);
}

void ChannelEditor::turnWheel(Bar bar, std::int32_t notches) { changeChannel(bar, mode_->getValue(bar) + notches); }

void ChannelEditor::dragBar(std::int32_t y, std::int32_t height) {
  if (!dragTarget_ || height <= 0) {
    return;
  }
  const ValueRange& range = mode_->channelRange(*dragTarget_);
  const std::int64_t risen = std::int64_t{y} * (range.maximum - range.minimum) / height;
  changeChannel(*dragTarget_, range.clamp(range.minimum + risen));
}

void ChannelEditor::editEntry(std::int32_t index, ColorChooser& chooser) {
  if (!document().contains(index)) {
    return;
  }
  // kept on purpose: recorded before the chooser opens, so canceling it leaves an undo step too.
  document().recordColor(index);
  const CustomColors custom = customColorsFor(document(), index, settings_.blank);
  if (const auto chosen = chooser.chooseColor(document().getColor(index), custom)) {
    document().setColor(index, *chosen);
  }
  if (index == currentEntry_) {
    refreshAndRepaint();
  } else {
    view_.entryChanged(index);
  }
}

bool ChannelEditor::copy(PaletteClipboard& clipboard) {
  endRun();
  return copyEntry(document(), currentEntry_, clipboard);
}

void ChannelEditor::paste(PaletteClipboard& clipboard) {
  if (pasteEntry(document(), currentEntry_, clipboard)) {
    refreshAndRepaint();
  }
}

void ChannelEditor::blank() {
  clearEntry(document(), currentEntry_, settings_.blank);
  refreshAndRepaint();
}

}  // namespace quillhue
