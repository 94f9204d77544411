#include "core/document.h"

#include <algorithm>
#include <utility>

namespace quillhue {

PaletteDocument::PaletteDocument(Palette palette, bool initiallyModified, std::wstring fileName, PaletteFormat format,
                                 const AppSettings& settings, DocumentObserver& observer)
    : palette_(std::move(palette)),
      modificationCount_(initiallyModified ? 1 : 0),
      format_(format),
      fileName_(std::move(fileName)),
      settings_(settings),
      observer_(observer) {
  if (fileName_.empty()) {
    fileName_ = kUntitled;
  }
  announceTitle();
  announceSize();
  announceHistory();
}

bool PaletteDocument::isSelected(std::int32_t index) const {
  return palette_.selected()[static_cast<std::size_t>(index)] != 0;
}

std::int32_t PaletteDocument::countSelected() const {
  const auto flags = palette_.selected();
  return static_cast<std::int32_t>(flags.size() - static_cast<std::size_t>(std::ranges::count(flags, 0)));
}

void PaletteDocument::setColor(std::int32_t index, PaletteEntry color) {
  if (!locked_ && contains(index)) {
    palette_.setEntry(index, color);
  }
}

void PaletteDocument::setChannel(std::int32_t index, Channel channel, std::uint8_t value) {
  if (!locked_ && contains(index)) {
    palette_.channel(channel)[static_cast<std::size_t>(index)] = value;
  }
}

void PaletteDocument::applyChannels(ChannelMask mask, const Palette& source) {
  std::int32_t next = 0;
  for (std::int32_t index = 0; index < getSize() && next < source.getSize(); ++index) {
    if (!isSelected(index)) {
      continue;
    }
    for (const Channel channel : kChannels) {
      if (hasChannel(mask, channel)) {
        setChannel(index, channel, source.channel(channel)[static_cast<std::size_t>(next)]);
      }
    }
    ++next;
  }
}

void PaletteDocument::setSelected(std::int32_t index, std::uint8_t flag) {
  if (contains(index)) {
    palette_.selected()[static_cast<std::size_t>(index)] = flag;
  }
}

void PaletteDocument::recordColor(std::int32_t index) {
  if (contains(index)) {
    push(std::make_unique<PaletteDifferenceColor>(palette_, index), getSize());
  } else {
    // kept on purpose: the document counts as modified, although nothing can be undone.
    ++modificationCount_;
  }
}

void PaletteDocument::recordColors() { push(std::make_unique<PaletteDifferenceColors>(palette_), getSize()); }

void PaletteDocument::recordSelection() { push(std::make_unique<PaletteDifferenceSelection>(palette_), getSize()); }

void PaletteDocument::resize(std::int32_t newSize) {
  const std::int32_t oldSize = getSize();
  Palette resized = resizedCopy(palette_, newSize, settings_.blank);
  push(std::make_unique<PaletteDifferenceSize>(std::exchange(palette_, std::move(resized))), oldSize);
  announceSize();
}

void PaletteDocument::push(std::unique_ptr<PaletteDifference> record, std::int32_t size) {
  history_.push(std::move(record), size);
  announceHistory();
  ++modificationCount_;
}

void PaletteDocument::undo() {
  history_.undo(palette_);
  announceHistory();
  announceSize();
  // kept on purpose: the count falls even if there is nothing to undo, so the document becomes modified.
  --modificationCount_;
}

void PaletteDocument::redo() {
  history_.redo(palette_);
  announceHistory();
  announceSize();
  // kept on purpose: the mirror image of undo.
  ++modificationCount_;
}

void PaletteDocument::setFileName(const std::wstring& name) {
  if (name != fileName_) {
    fileName_ = name;
    announceTitle();
  }
}

void PaletteDocument::markSaved(const std::wstring& fileName, PaletteFormat format) {
  modificationCount_ = 0;
  ++saveCount_;
  format_ = format;
  setFileName(fileName);
}

// Without a backslash, rfind returns npos, and npos + 1 is 0: the title then shows the whole name.
void PaletteDocument::announceTitle() {
  std::wstring title = L"Quillhue - ";
  title.append(fileName_, fileName_.rfind(L'\\') + 1);
  observer_.titleChanged(title);
}

void PaletteDocument::announceHistory() { observer_.undoRedoChanged(history_.canUndo(), history_.canRedo()); }

void PaletteDocument::announceSize() {
  observer_.statusChanged(std::to_string(getSize()) + (getSize() == 1 ? " entry" : " entries"));
}

void DocumentSlot::replaceDocument(Palette palette, bool initiallyModified, std::wstring fileName, PaletteFormat format,
                                   Services& services) {
  document_.reset();
  document_ = std::make_unique<PaletteDocument>(std::move(palette), initiallyModified, std::move(fileName), format,
                                                services.settings, services.observer);
  services.observer.documentReplaced();
}

}  // namespace quillhue
