#pragma once

#include <cstdint>
#include <vector>

#include "core/document.h"
#include "core/settings.h"
#include "ui/logic/grid_layout.h"

namespace quillhue {

/// Selects entries of the grid by mouse and keyboard in the settings' selection mode, and holds the current entry. The
/// slot must hold a document during this object's lifetime.
///
/// - Free: a press flips an entry. Dragging gives each crossed entry the same state.
/// - Row: the same for whole rows. A row gets the opposite of the pressed entry's state.
/// - Range: selects from the pressed entry to the pointer, in index order, and replaces the selection. With Shift the
///   range starts at the last anchor; with Control it is added to the selection.
///
/// A gesture is one undo step, recorded at its first change. It ends if the document changes otherwise (an undo, a
/// command, a save).
class GridSelection {
 public:
  struct Keys {
    bool shift = false;
    bool control = false;
  };

  GridSelection(const DocumentSlot& slot, const AppSettings& settings) : slot_(slot), settings_(settings) {}

  /// Past the palette's end if a cell without an entry was clicked; kNoEntry if there is no current entry.
  [[nodiscard]] std::int32_t currentEntry() const { return current_; }

  /// Handle a press of the mouse button and a move with the button held. Points are relative to the grid's area. Return
  /// true if the selection has changed. A press outside the entries starts no gesture and keeps the current entry.
  bool press(const GridLayout& grid, Point point, Keys keys);
  bool drag(const GridLayout& grid, Point point);
  /// Ends the gesture. Called on release, on loss of focus or mouse capture, and before any command.
  void finish() { gesture_.by = Means::none; }
  /// Ends a keyboard gesture. Called when Shift is released.
  void releaseShift();

  /// Sets the current entry, from which the next range starts.
  void moveTo(std::int32_t index);
  /// Sets the current entry and selects the range up to it, in any mode. All such moves while Shift is held are one
  /// gesture. Returns true if the selection has changed.
  bool extendTo(std::int32_t index, Keys keys);
  /// Acts like a press and a release on the current entry, if there is one. `columns` is the width of the grid.
  bool pressCurrent(std::int32_t columns, Keys keys);

  /// After undo, redo and resizing: moves a current entry past the end to the last entry.
  void paletteChanged();
  /// After another document is opened: clears the current entry.
  void documentReplaced();

 private:
  using Flags = std::vector<std::uint8_t>;

  /// The input device of the gesture; `none` while there is no gesture.
  enum class Means : std::uint8_t { none, pointer, keys };

  struct Gesture {
    Means by = Means::none;
    SelectionMode mode = SelectionMode::free;
    /// For free and row: the new state of the entries, and the last position of the pointer.
    std::uint8_t state = 0;
    Point last;
    /// For range: the selection to which the range is added.
    Flags base;
    bool recorded = false;
    /// The document's counts of modifications and saves after the gesture's last change.
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
