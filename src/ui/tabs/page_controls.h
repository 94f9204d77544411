#pragma once

#include <utility>
#include <vector>

#include "ui/logic/geometry.h"
#include "ui/number_field.h"
#include "ui/win32/controls.h"

namespace quillhue {

/// List of a page's controls, each with its box in the page's layout.
template <typename Layout>
class PageControls {
 public:
  using Box = Rect Layout::*;

  /// Adds and owns a control. A control without a box keeps size 0, for a label that only names the next control.
  HWND add(Window control, Box box = nullptr) {
    rows_.push_back({std::move(control), box});
    return rows_.back().control.get();
  }
  /// Adds a field that belongs to the caller. Its address must stay valid.
  void add(NumberField& field, Box box) { fields_.push_back({&field, box}); }

  void move(const Layout& layout) const {
    for (const Row& row : rows_) {
      if (row.box != nullptr) {
        moveTo(row.control.get(), layout.*row.box);
      }
    }
    for (const FieldRow& row : fields_) {
      row.field->move(layout.*row.box);
    }
  }
  void show(bool visible) const {
    for (const Row& row : rows_) {
      quillhue::show(row.control.get(), visible);
    }
    for (const FieldRow& row : fields_) {
      row.field->show(visible);
    }
  }
  /// Passes UDN_DELTAPOS to the fields (see NumberField::takesStep()). Returns true if one of them has taken the step.
  [[nodiscard]] bool step(const NMHDR& notification) const {
    for (const FieldRow& row : fields_) {
      if (row.field->takesStep(notification)) {
        return true;
      }
    }
    return false;
  }

 private:
  struct Row {
    Window control;
    Box box;
  };
  struct FieldRow {
    NumberField* field;
    Box box;
  };

  std::vector<Row> rows_;
  std::vector<FieldRow> fields_;
};

}  // namespace quillhue
