#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "colormodes/color_mode.h"
#include "core/services.h"
#include "core/settings.h"

namespace quillhue {

/// Shows a channel editor's numbers. Its functions may change the editor only by fieldChanged.
class ChannelView {
 public:
  virtual ~ChannelView() = default;

  /// Shows a channel's range and number in its control. Some controls report this like a change by the user and call
  /// fieldChanged, which then does nothing.
  virtual void showChannel(Bar bar, const ValueRange& range, std::int32_t value) = 0;
  /// Repaints the cell of an entry whose color may have changed, and the bars if it is the current entry.
  virtual void entryChanged(std::int32_t index) = 0;
};

/// Edits the current entry of the open palette as three numbers of the chosen color model. A run of changes is one undo
/// step; refreshValues, endRun or a save of the document ends the run. The slot must hold a document as long as the
/// editor lives.
class ChannelEditor {
 public:
  /// Starts with entry 0 and the color model of the settings.
  ChannelEditor(const DocumentSlot& slot, AppSettings& settings, ChannelView& view);

  [[nodiscard]] const ColorMode& mode() const { return *mode_; }
  [[nodiscard]] std::int32_t currentEntry() const { return currentEntry_; }

  /// Makes another entry the current one. An index outside the palette means none, -1. If the entry already is the
  /// current one, its numbers are kept and the run goes on.
  void setCurrentEntry(std::int32_t index);
  /// Chooses another color model and stores its index in the settings.
  void chooseModel(std::int32_t index);
  /// Updates numbers, controls and bars from the entry. The next change starts a new undo step. Call this whenever the
  /// editor is shown.
  void refreshValues();
  /// Shows the numbers again, for example when an edit field loses the focus. Neither records nor writes anything, and
  /// the run goes on.
  void showValues();
  /// Call this after undo, redo and resizing. A current entry past the end becomes the last one.
  void paletteChanged();
  /// Call this after another document was opened. Its entry 0 becomes the current one.
  void documentReplaced();

  /// The user's ways to change a number. A value outside the channel's range counts as the nearest one inside.
  ///
  /// Sets a number. Does nothing if the number is unchanged.
  void changeChannel(Bar bar, std::int32_t value);
  /// The text of an edit field has changed. Sets and records the number even if it is unchanged.
  void fieldChanged(Bar bar, std::int32_t value);
  /// The wheel was turned over a bar, by whole notches. Adds one per notch.
  void turnWheel(Bar bar, std::int32_t notches);
  /// Press, drag and release a bar. Only dragging sets the number. `y` is the pointer's height above the bar's bottom
  /// edge in pixels, `height` the bar's usable height. A bar without usable height can't be dragged.
  void pressBar(Bar bar) { dragTarget_ = bar; }
  void dragBar(std::int32_t y, std::int32_t height);
  void releaseBar() { dragTarget_.reset(); }
  [[nodiscard]] std::optional<Bar> dragTarget() const { return dragTarget_; }

  /// Opens the system's color chooser for any entry. Makes one undo step, even if the user cancels. In addition to the
  /// basic colors, the chooser offers the entry's group of sixteen; missing entries have the blank color.
  void editEntry(std::int32_t index, ColorChooser& chooser);
  /// Ends the run: the next change starts a new undo step. The numbers are kept.
  void endRun() { recordArmed_ = true; }
  /// Copy and paste the current entry. copy ends the run, and returns false if nothing was copied.
  bool copy(PaletteClipboard& clipboard);
  void paste(PaletteClipboard& clipboard);
  /// Gives the current entry the blank color.
  void blank();

 private:
  [[nodiscard]] PaletteDocument& document() const { return *slot_.document(); }
  /// Whether the next change starts a run.
  [[nodiscard]] bool recordsNext() const { return recordArmed_ || runSaveCount_ != document().saveCount(); }
  void recordOnce();
  void refreshAndRepaint();

  const DocumentSlot& slot_;
  AppSettings& settings_;
  ChannelView& view_;
  std::int32_t currentEntry_ = 0;
  std::unique_ptr<ColorMode> mode_;
  bool recordArmed_ = true;
  // The document's saveCount when the numbers were last set. A later save ends the run.
  std::int32_t runSaveCount_ = 0;
  std::optional<Bar> dragTarget_;
};

}  // namespace quillhue
