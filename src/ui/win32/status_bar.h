#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "ui/win32/subclassed_control.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A status bar, one part of which shows its text in narrower letters if the text would not fit.
class StatusBar final : public SubclassedControl {
 public:
  /// `edges` are the right edges of the parts. Only the part `fittedPart` narrows its text.
  StatusBar(HWND parent, int id, std::span<const std::int32_t> edges, int fittedPart);

  void setText(int part, std::string_view text);
  /// Answers WM_DRAWITEM.
  void draw(const DRAWITEMSTRUCT& item) const;

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;

  void repaintFitted();
  void endPause();

  int fittedPart_;
  std::wstring fittedText_;
  std::wstring paintedText_;
  bool isPausing_ = false;
};

}  // namespace quillhue
