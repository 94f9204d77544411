#pragma once

#include <cstdint>
#include <optional>

#include "ui/logic/image_view.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Scroll bars that are controls of their own.

/// What a notification's code (SB_LINEUP and so on) asks for; nothing for its end.
[[nodiscard]] std::optional<ScrollAction> scrollActionOf(WORD code);
/// Where the thumb is dragged or sent to. `lowWord` is what the notification says of it: the low 16 bits.
[[nodiscard]] std::int32_t trackedPosition(HWND bar, WORD lowWord);
void showScrolling(HWND bar, const ScrollRange& range, std::int32_t position);

}  // namespace quillhue
