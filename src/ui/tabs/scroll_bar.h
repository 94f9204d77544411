#pragma once

#include <cstdint>
#include <optional>

#include "ui/logic/image_view.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Scroll bar controls.

/// Returns the action of a notification code (SB_LINEUP and so on), or nothing for SB_ENDSCROLL.
[[nodiscard]] std::optional<ScrollAction> scrollActionOf(WORD code);
/// Returns the position to which the thumb is moved. `lowWord` contains its low 16 bits, from the notification.
[[nodiscard]] std::int32_t trackedPosition(HWND bar, WORD lowWord);
void showScrolling(HWND bar, const ScrollRange& range, std::int32_t position);

}  // namespace quillhue
