#pragma once

#include <string>
#include <string_view>

namespace quillhue {

/// Convert between UTF-8 and wide text (UTF-16 or UTF-32, depending on the size of wchar_t). A byte that is not part of
/// a UTF-8 sequence (0x80 or above) becomes the lone surrogate 0xDC00 + byte, which becomes the byte again. Any bytes
/// therefore survive the conversion to wide text and back. Malformed wide text may not survive the other direction.
[[nodiscard]] std::wstring fromUtf8(std::string_view bytes);
[[nodiscard]] std::string toUtf8(std::wstring_view text);

}  // namespace quillhue
