#pragma once

#include <utility>
#include <vector>

#include "ui/logic/geometry.h"
#include "ui/number_field.h"
#include "ui/win32/controls.h"

namespace quillhue {

/// The controls of a page, one row for each: the control and its box in the page's layout.
template <typename Layout>
class PageControls {
 public:
  using Box = Rect Layout::*;

  /// Owns the control. One without a box has no size: a label that only names the control after it.
  HWND add(Window control, Box box = nullptr) {
    rows_.push_back({std::move(control), box});
    return rows_.back().control.get();
  }
  /// The field stays its caller's, and where it is.
  void add(NumberField& field, Box box) { fields_.push_back({&field, box}); }

  void move(const Layout& layout) {
    for (const Row& row : rows_) {
      if (row.box != nullptr) {
        moveTo(row.control.get(), layout.*row.box);
      }
    }
    for (const FieldRow& row : fields_) {
      row.field->move(layout.*row.box);
    }
  }
  void show(bool visible) {
    for (const Row& row : rows_) {
      quillhue::show(row.control.get(), visible);
    }
    for (const FieldRow& row : fields_) {
      row.field->show(visible);
    }
  }
  /// Answers UDN_DELTAPOS for the fields, as NumberField::step needs it. True when one of them has taken the step.
  [[nodiscard]] bool step(const NMHDR& notification) {
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
