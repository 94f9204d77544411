#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "colormodes/color_mode.h"
#include "core/services.h"
#include "core/settings.h"

namespace quillhue {

/// What shows a channel editor's numbers. Of the editor it may call fieldChanged only.
class ChannelView {
 public:
  virtual ~ChannelView() = default;

  /// Puts a channel's range and number into its control. A control that reports this like a change by the user calls
  /// fieldChanged, which then changes nothing.
  virtual void showChannel(Bar bar, const ValueRange& range, std::int32_t value) = 0;
  /// The entry may have another color: repaints its cell. Of the current entry the bars too.
  virtual void entryChanged(std::int32_t index) = 0;
};

/// Edits the current entry of the open palette as three numbers of the chosen color model. All changes between two
/// calls of refreshValues are one undo step, however many they are, unless the document is saved between them. The slot
/// holds a document as long as an editor lives.
class ChannelEditor {
 public:
  /// Starts with entry 0 and the color model of the settings.
  ChannelEditor(const DocumentSlot& slot, AppSettings& settings, ChannelView& view);

  [[nodiscard]] const ColorMode& mode() const { return *mode_; }
  [[nodiscard]] std::int32_t currentEntry() const { return currentEntry_; }

  /// Another current entry, as the user chose it; an index that is no entry makes it none, -1. The entry that is the
  /// current one already keeps its numbers and its run of changes.
  void setCurrentEntry(std::int32_t index);
  /// Another color model, of which the settings keep the index.
  void chooseModel(std::int32_t index);
  /// Brings numbers, controls and bars up to date with the entry; the next change is a new undo step. Called whenever
  /// the editor is shown.
  void refreshValues();
  /// Shows the numbers again, as after the controls have moved or something else was typed: that neither records nor
  /// writes anything, and the run goes on.
  void showValues();
  /// After undo, redo and resizing: a current entry past the end becomes the last one.
  void paletteChanged();
  /// Another document was opened: its entry 0 becomes the current one.
  void documentReplaced();

  /// The user's ways to change a number. A value outside the channel's range counts as the nearest one inside.
  ///
  /// The common one: the number it already has changes nothing.
  void changeChannel(Bar bar, std::int32_t value);
  /// An edit field has another text: its number is set and recorded also where it is the same.
  void fieldChanged(Bar bar, std::int32_t value);
  /// The wheel turned over a bar, by whole notches.
  void turnWheel(Bar bar, std::int32_t notches);
  /// A bar is pressed, dragged and released; only dragging sets the number. `y` is the pointer's height above the
  /// bar's bottom edge in pixels, `height` the bar's usable height; a bar without one can't be dragged.
  void pressBar(Bar bar) { dragTarget_ = bar; }
  void dragBar(std::int32_t y, std::int32_t height);
  void releaseBar() { dragTarget_.reset(); }
  [[nodiscard]] std::optional<Bar> dragTarget() const { return dragTarget_; }

  /// The system's color chooser for any entry, one undo step also when it is cancelled. Beside the basic colors it
  /// offers the entry's group of sixteen, filled up with the blank color.
  void editEntry(std::int32_t index, ColorChooser& chooser);
  /// Ends the run of changes: the next change is a new undo step, but the numbers stay as they were set.
  void endRun() { recordArmed_ = true; }
  /// The current entry and the clipboard. A copy ends the run; false when nothing was copied.
  bool copy(PaletteClipboard& clipboard);
  void paste(PaletteClipboard& clipboard);
  /// The blank color for the current entry.
  void blank();

 private:
  [[nodiscard]] PaletteDocument& document() const { return *slot_.document(); }
  /// Whether the next change begins a run.
  [[nodiscard]] bool recordsNext() const { return recordArmed_ || runSaveCount_ != document().saveCount(); }
  void recordOnce();
  void refreshAndRepaint();

  const DocumentSlot& slot_;
  AppSettings& settings_;
  ChannelView& view_;
  std::int32_t currentEntry_ = 0;
  std::unique_ptr<ColorMode> mode_;
  bool recordArmed_ = true;
  // The document's saves when the run began: a later save ends it.
  std::int32_t runSaveCount_ = 0;
  std::optional<Bar> dragTarget_;
};

}  // namespace quillhue
