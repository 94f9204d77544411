#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/history.h"
#include "core/palette.h"
#include "core/palette_format.h"
#include "core/services.h"
#include "core/settings.h"

namespace quillhue {

/// The name of a document that has no file.
inline constexpr std::wstring_view kUntitled = L"\\Untitled";

/// The open palette: its colors and selection, where it came from, whether it is modified, and its history.
///
/// A change that can be undone is made in two steps: a record operation first, which keeps the state that is about to
/// change, then the setters. A change without a record can't be undone.
class PaletteDocument {
 public:
  /// `settings` (the blank color is read from it) and `observer` outlive the document. An empty file name stands for
  /// none. Announces title, status text and Undo/Redo state.
  PaletteDocument(Palette palette, bool initiallyModified, std::wstring fileName, PaletteFormat format,
                  const AppSettings& settings, DocumentObserver& observer);

  [[nodiscard]] std::int32_t getSize() const { return palette_.getSize(); }
  [[nodiscard]] bool contains(std::int32_t index) const { return index >= 0 && index < getSize(); }
  /// `index` is 0 .. getSize() - 1 in these five; it is not checked.
  [[nodiscard]] PaletteEntry getColor(std::int32_t index) const { return palette_.entry(index); }
  [[nodiscard]] std::uint8_t getRed(std::int32_t index) const { return palette_.entry(index).red; }
  [[nodiscard]] std::uint8_t getGreen(std::int32_t index) const { return palette_.entry(index).green; }
  [[nodiscard]] std::uint8_t getBlue(std::int32_t index) const { return palette_.entry(index).blue; }
  [[nodiscard]] bool isSelected(std::int32_t index) const;
  [[nodiscard]] std::int32_t countSelected() const;
  [[nodiscard]] const Palette& getPalette() const { return palette_; }

  [[nodiscard]] bool isModified() const { return modificationCount_ != 0; }
  /// Recorded changes since the last save less those undone, so undoing back to the saved state gives 0 again.
  [[nodiscard]] std::int32_t modificationCount() const { return modificationCount_; }
  /// How many times the document has been saved. A run of changes that is one undo step ends with each save, so that
  /// undoing leads back to the saved state.
  [[nodiscard]] std::int32_t saveCount() const { return saveCount_; }
  [[nodiscard]] bool canUndo() const { return history_.canUndo(); }
  [[nodiscard]] bool canRedo() const { return history_.canRedo(); }
  [[nodiscard]] PaletteFormat getFormat() const { return format_; }
  [[nodiscard]] const std::wstring& getFileName() const { return fileName_; }

  /// While locked, setColor to applyChannels change nothing.
  void lock() { locked_ = true; }
  void unlock() { locked_ = false; }

  /// Setters: an index outside the palette changes nothing.
  void setColor(std::int32_t index, PaletteEntry color);
  void setRed(std::int32_t index, std::uint8_t value) { setChannel(index, Channel::red, value); }
  void setGreen(std::int32_t index, std::uint8_t value) { setChannel(index, Channel::green, value); }
  void setBlue(std::int32_t index, std::uint8_t value) { setChannel(index, Channel::blue, value); }
  /// Gives the k-th selected entry the channels in `mask` of entry k of `source`, until either runs out.
  void applyChannels(ChannelMask mask, const Palette& source);
  void select(std::int32_t index) { setSelected(index, 1); }
  void deselect(std::int32_t index) { setSelected(index, 0); }

  /// Records: one undo step each; the redo stack is discarded and the modification count rises by 1. An index outside
  /// the palette makes recordColor raise the count and do nothing else.
  void recordColor(std::int32_t index);
  void recordColors();
  void recordSelection();
  /// Records the palette and installs its resizedCopy; a size below 1 counts as 1.
  void resize(std::int32_t newSize);

  /// Take a step back or forth, if there is one. The modification count falls or rises by 1 in any case.
  void undo();
  void redo();

  /// Titles the window after the name's part behind its last backslash, unless it is the current name.
  void setFileName(const std::wstring& name);
  /// Notes that this file now holds the document: it is unmodified, and saveCount rises by 1.
  void markSaved(const std::wstring& fileName, PaletteFormat format);

 private:
  void setChannel(std::int32_t index, Channel channel, std::uint8_t value);
  void setSelected(std::int32_t index, std::uint8_t flag);
  void push(std::unique_ptr<PaletteDifference> record, std::int32_t size);
  void announceTitle();
  void announceHistory();
  void announceSize();

  Palette palette_;
  EditHistory history_;
  bool locked_ = false;
  std::int32_t modificationCount_;
  std::int32_t saveCount_ = 0;
  PaletteFormat format_;
  std::wstring fileName_;
  const AppSettings& settings_;
  DocumentObserver& observer_;
};

/// Holds the current document; empty until the first palette is created or opened.
class DocumentSlot {
 public:
  [[nodiscard]] PaletteDocument* document() const { return document_.get(); }

  /// Destroys the document with its history, installs a new one and tells the observer.
  void replaceDocument(Palette palette, bool initiallyModified, std::wstring fileName, PaletteFormat format,
                       Services& services);
  /// Destroys the document, and tells nobody.
  void closeDocument() { document_.reset(); }

 private:
  std::unique_ptr<PaletteDocument> document_;
};

}  // namespace quillhue
