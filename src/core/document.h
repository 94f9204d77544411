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

/// Name of a document without a file.
inline constexpr std::wstring_view kUntitled = L"\\Untitled";

/// The name of a document's file and the title that shows it: the part after the last backslash.
class DocumentName {
 public:
  /// An empty name means that there is no file.
  // NOLINTNEXTLINE(google-explicit-constructor): a name is all that it takes.
  DocumentName(std::wstring fileName);

  [[nodiscard]] const std::wstring& fileName() const { return fileName_; }
  [[nodiscard]] const std::wstring& title() const { return title_; }

 private:
  std::wstring fileName_;
  std::wstring title_;
};

/// The content of a new document.
struct DocumentContent {
  Palette palette;
  bool isModified = false;
  /// Empty if there is no file.
  std::wstring fileName{};
  PaletteFormat format = palette_format::kNone;
};

/// The open palette: its colors and selection, its file, whether it is modified, and its edit history.
///
/// An undoable change takes two steps: a record operation saves the state that is about to change, then the setters
/// change it. A change without a record can't be undone.
class PaletteDocument {
 public:
  /// `settings` (read for the blank color) and `observer` must outlive the document. Announces title, status text and
  /// Undo/Redo state.
  PaletteDocument(DocumentContent content, const AppSettings& settings, DocumentObserver& observer);

  [[nodiscard]] std::int32_t getSize() const { return palette_.getSize(); }
  [[nodiscard]] bool contains(std::int32_t index) const { return index >= 0 && index < getSize(); }
  /// The next five functions require an `index` of 0 .. getSize() - 1 and do not check it.
  [[nodiscard]] PaletteEntry getColor(std::int32_t index) const { return palette_.entry(index); }
  [[nodiscard]] std::uint8_t getRed(std::int32_t index) const { return palette_.entry(index).red; }
  [[nodiscard]] std::uint8_t getGreen(std::int32_t index) const { return palette_.entry(index).green; }
  [[nodiscard]] std::uint8_t getBlue(std::int32_t index) const { return palette_.entry(index).blue; }
  [[nodiscard]] bool isSelected(std::int32_t index) const;
  [[nodiscard]] std::int32_t countSelected() const;
  [[nodiscard]] const Palette& getPalette() const { return palette_; }

  [[nodiscard]] bool isModified() const { return modificationCount_ != 0; }
  /// Number of recorded changes since the last save, minus those undone. Undoing back to the saved state gives 0 again.
  [[nodiscard]] std::int32_t modificationCount() const { return modificationCount_; }
  /// Number of saves. A save ends a run of changes that share one undo step, so that undoing can return to the saved
  /// state.
  [[nodiscard]] std::int32_t saveCount() const { return saveCount_; }
  [[nodiscard]] bool canUndo() const { return history_.canUndo(); }
  [[nodiscard]] bool canRedo() const { return history_.canRedo(); }
  [[nodiscard]] PaletteFormat getFormat() const { return format_; }
  [[nodiscard]] const std::wstring& getFileName() const { return name_.fileName(); }

  /// While locked, setColor, setRed, setGreen, setBlue and applyChannels change nothing.
  void lock() { locked_ = true; }
  void unlock() { locked_ = false; }

  /// The setters ignore an index outside the palette.
  void setColor(std::int32_t index, PaletteEntry color);
  void setRed(std::int32_t index, std::uint8_t value) { setChannel(index, Channel::red, value); }
  void setGreen(std::int32_t index, std::uint8_t value) { setChannel(index, Channel::green, value); }
  void setBlue(std::int32_t index, std::uint8_t value) { setChannel(index, Channel::blue, value); }
  /// Copies the channels in `mask` of entry k of `source` to the k-th selected entry, until either runs out.
  void applyChannels(ChannelMask mask, const Palette& source);
  void select(std::int32_t index) { setSelected(index, 1); }
  void deselect(std::int32_t index) { setSelected(index, 0); }

  /// Each of the changes below either happens completely or throws std::bad_alloc and changes nothing.
  ///
  /// Record the state as one undo step. Each call discards the redo stack and raises the modification count by 1. If
  /// the index is outside the palette, recordColor raises the count and does nothing else.
  void recordColor(std::int32_t index);
  void recordColors();
  void recordSelection();
  /// recordColors in two steps, for a change that prepares more in between. The size of the palette must not change in
  /// between.
  [[nodiscard]] std::unique_ptr<PaletteDifference> saveColors() const;
  void record(std::unique_ptr<PaletteDifference> saved) noexcept;
  /// Records the palette, then replaces it with its resizedCopy. A size below 1 counts as 1.
  void resize(std::int32_t newSize);
  /// Records the palette, then replaces it and its selection with another one of any size.
  void replacePalette(Palette palette);

  /// Undo or redo one step, if there is one. In any case, undo lowers the modification count by 1 and redo raises it by
  /// 1.
  void undo();
  void redo();

  /// Sets the file name and announces the title. Does nothing if the name is unchanged.
  void setFileName(DocumentName name) noexcept;
  /// Records a save in this file: the document becomes unmodified, and saveCount rises by 1.
  void markSaved(DocumentName name, PaletteFormat format) noexcept;

 private:
  void setChannel(std::int32_t index, Channel channel, std::uint8_t value);
  void setSelected(std::int32_t index, std::uint8_t flag);
  friend class DocumentSlot;
  // Chooses the constructor that announces nothing.
  struct Silent {};
  PaletteDocument(Silent silent, DocumentContent content, const AppSettings& settings, DocumentObserver& observer);

  void announce() const noexcept;
  void announceHistory() const noexcept;
  void announceSize() const noexcept;

  Palette palette_;
  EditHistory history_;
  bool locked_ = false;
  std::int32_t modificationCount_;
  std::int32_t saveCount_ = 0;
  PaletteFormat format_;
  DocumentName name_;
  const AppSettings& settings_;
  DocumentObserver& observer_;
};

/// Holds the current document. Empty until the first palette is created or opened, and after closeDocument.
class DocumentSlot {
 public:
  [[nodiscard]] PaletteDocument* document() const { return document_.get(); }

  /// Creates a new document, destroys the previous one and its history, and notifies the observer. Throws
  /// std::bad_alloc and keeps the previous document if there is no memory for the new one.
  void replaceDocument(DocumentContent content, Services& services);
  /// Destroys the document without notifying the observer.
  void closeDocument() { document_.reset(); }

 private:
  std::unique_ptr<PaletteDocument> document_;
};

}  // namespace quillhue
