#pragma once

#include <string>
#include <string_view>

namespace quillhue {

/// Wide text (UTF-16 or UTF-32, as wide as the system's wchar_t) and UTF-8. A byte that is not part of a UTF-8
/// sequence (0x80 or above) becomes the lone surrogate 0xDC00 + byte and that becomes the byte again, so any bytes
/// survive the way to wide text and back. Wide text that is not well formed need not survive the other way.
[[nodiscard]] std::wstring fromUtf8(std::string_view bytes);
[[nodiscard]] std::string toUtf8(std::wstring_view text);

}  // namespace quillhue
