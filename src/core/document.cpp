#include "core/document.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace quillhue {

// Without a backslash, rfind returns npos, and npos + 1 is 0: the title then shows the whole name.
DocumentName::DocumentName(std::wstring fileName)
    : fileName_(fileName.empty() ? std::wstring(kUntitled) : std::move(fileName)), title_(L"Quillhue - ") {
  title_.append(fileName_, fileName_.rfind(L'\\') + 1);
}

PaletteDocument::PaletteDocument(DocumentContent content, const AppSettings& settings, DocumentObserver& observer)
    : PaletteDocument(Silent{}, std::move(content), settings, observer) {
  announce();
}

PaletteDocument::PaletteDocument(Silent /*silent*/, DocumentContent content, const AppSettings& settings,
                                 DocumentObserver& observer)
    : palette_(std::move(content.palette)),
      modificationCount_(content.isModified ? 1 : 0),
      format_(content.format),
      name_(std::move(content.fileName)),
      settings_(settings),
      observer_(observer) {}

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
    record(std::make_unique<PaletteDifferenceColor>(palette_, index));
  } else {
    // kept on purpose: the document counts as modified, although nothing can be undone.
    ++modificationCount_;
  }
}

void PaletteDocument::recordColors() { record(saveColors()); }

void PaletteDocument::recordSelection() { record(std::make_unique<PaletteDifferenceSelection>(palette_)); }

std::unique_ptr<PaletteDifference> PaletteDocument::saveColors() const {
  return std::make_unique<PaletteDifferenceColors>(palette_);
}

void PaletteDocument::resize(std::int32_t newSize) { replacePalette(resizedCopy(palette_, newSize, settings_.blank)); }

void PaletteDocument::replacePalette(Palette palette) {
  auto step = std::make_unique<PaletteDifferenceSize>(std::move(palette));
  // The step now has the new palette and exchanges it for the old one. There is no step below it yet.
  std::ignore = step->swap(palette_, nullptr);
  record(std::move(step));
  announceSize();
}

void PaletteDocument::record(std::unique_ptr<PaletteDifference> saved) noexcept {
  history_.push(std::move(saved));
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

void PaletteDocument::setFileName(DocumentName name) noexcept {
  if (name.fileName() != name_.fileName()) {
    name_ = std::move(name);
    observer_.titleChanged(name_.title());
  }
}

void PaletteDocument::markSaved(DocumentName name, PaletteFormat format) noexcept {
  modificationCount_ = 0;
  ++saveCount_;
  format_ = format;
  setFileName(std::move(name));
}

void PaletteDocument::announce() const noexcept {
  observer_.titleChanged(name_.title());
  announceSize();
  announceHistory();
}

void PaletteDocument::announceHistory() const noexcept {
  observer_.undoRedoChanged(history_.canUndo(), history_.canRedo());
}

void PaletteDocument::announceSize() const noexcept {
  constexpr std::string_view kOne = " entry";
  constexpr std::string_view kMany = " entries";
  std::array<char, 32> text{};
  char* const end = std::to_chars(text.begin(), text.end(), getSize()).ptr;
  observer_.statusChanged({text.begin(), std::ranges::copy(getSize() == 1 ? kOne : kMany, end).out});
}

void DocumentSlot::replaceDocument(DocumentContent content, Services& services) {
  std::unique_ptr<PaletteDocument> next(
      new PaletteDocument(PaletteDocument::Silent{}, std::move(content), services.settings, services.observer));
  document_.reset();
  next->announce();
  document_ = std::move(next);
  services.observer.documentReplaced();
}

}  // namespace quillhue
