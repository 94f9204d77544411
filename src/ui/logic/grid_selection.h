#pragma once

#include <cstdint>
#include <vector>

#include "core/document.h"
#include "core/settings.h"
#include "ui/logic/grid_layout.h"

namespace quillhue {

/// Selecting entries of the grid by mouse and keys, in the selection mode of the settings, and the current entry that
/// goes with it. The slot holds a document as long as this lives.
///
/// - Free: a press flips an entry, and dragging gives every entry crossed the same state.
/// - Row: the same with whole rows; a row gets the opposite of the pressed entry's state.
/// - Range: from the pressed entry to the pointer in index order, in place of what was selected. With Shift it starts
///   at the last anchor, with Control it adds.
///
/// A gesture is one undo step, recorded at its first change and only then. One that something else has overtaken (an
/// undo, a command, a save) goes on no further.
class GridSelection {
 public:
  struct Keys {
    bool shift = false;
    bool control = false;
  };

  GridSelection(const DocumentSlot& slot, const AppSettings& settings) : slot_(slot), settings_(settings) {}

  /// An index past the palette's end when a cell without an entry was clicked, kNoEntry when there is none.
  [[nodiscard]] std::int32_t currentEntry() const { return current_; }

  /// A press, a move of the pointer with the button held, and a release. Points are relative to the grid's area.
  /// True when the selection has changed. A press beside the entries starts nothing and leaves the current entry.
  bool press(const GridLayout& grid, Point point, Keys keys);
  bool drag(const GridLayout& grid, Point point);
  /// Ends the gesture. Also for the focus or the capture lost, and before any command.
  void finish() { gesture_.by = Means::none; }
  /// Shift is released: that ends a gesture by keys.
  void releaseShift();

  /// Another current entry, from which the next range starts.
  void moveTo(std::int32_t index);
  /// Another current entry, with the range up to it selected whatever the mode. While Shift is held, such
  /// moves are one gesture. True when the selection has changed.
  bool extendTo(std::int32_t index, Keys keys);
  /// Like a press and a release on the current entry, if there is one, on a grid of so many columns.
  bool pressCurrent(std::int32_t columns, Keys keys);

  /// After undo, redo and resizing: a current entry past the end becomes the last one.
  void paletteChanged();
  /// Another document was opened: there is no current entry.
  void documentReplaced();

 private:
  using Flags = std::vector<std::uint8_t>;

  /// What a gesture is made by; none while there is no gesture.
  enum class Means : std::uint8_t { none, pointer, keys };

  struct Gesture {
    Means by = Means::none;
    SelectionMode mode = SelectionMode::free;
    /// Free and row: what the entries become, and where the pointer was.
    std::uint8_t state = 0;
    Point last;
    /// Range: what is selected beside it.
    Flags base;
    bool recorded = false;
    /// The document's modification count and saves after the gesture's last change.
    std::int32_t modifications = 0;
    std::int32_t saves = 0;
  };

  [[nodiscard]] PaletteDocument& document() const { return *slot_.document(); }
  [[nodiscard]] Flags currentFlags() const;
  void begin(Means by, SelectionMode mode, std::int32_t index, Keys keys);
  [[nodiscard]] bool goesOn(Means by) const;
  bool give(const std::vector<std::int32_t>& cells, std::int32_t columns);
  bool selectRange();
  bool show(const Flags& wanted);

  const DocumentSlot& slot_;
  const AppSettings& settings_;
  std::int32_t current_ = kNoEntry;
  std::int32_t anchor_ = kNoEntry;
  Gesture gesture_;
};

}  // namespace quillhue
