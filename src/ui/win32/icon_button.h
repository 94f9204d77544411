#pragma once

#include <string>
#include <string_view>

#include "ui/win32/accessible.h"
#include "ui/win32/handle.h"
#include "ui/win32/subclassed_control.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A push button that shows an icon instead of its text. Screen readers call it by another name.
class IconButton final : public SubclassedControl, private AccessibleContent {
 public:
  IconButton(HWND parent, std::string_view text, std::string_view name, Icon icon);

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;
  [[nodiscard]] AccessibleElement accessibleElement(std::int32_t index) override;
  void accessibleAct(std::int32_t index) override;

  std::string name_;
  Icon icon_;
  Accessibility accessibility_{*this};
};

}  // namespace quillhue
