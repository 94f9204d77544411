#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

#include "ui/logic/image_view.h"

namespace quillhue {

/// Scroll bars that are controls of their own.

/// What a notification's code (SB_LINEUP and so on) asks for; nothing for its end.
[[nodiscard]] std::optional<ScrollAction> scrollActionOf(WORD code);
/// Where the thumb is dragged to.
[[nodiscard]] std::int32_t trackedPosition(HWND bar);
void showScrolling(HWND bar, const ScrollRange& range, std::int32_t position);

}  // namespace quillhue
