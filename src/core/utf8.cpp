#include "core/utf8.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace quillhue {

namespace {

constexpr bool kWideIsUtf16 = sizeof(wchar_t) == 2;
constexpr char32_t kFirstHighSurrogate = 0xD800;
constexpr char32_t kFirstLowSurrogate = 0xDC00;
constexpr char32_t kEndOfSurrogates = 0xE000;
constexpr char32_t kFirstBeyond16Bits = 0x10000;
constexpr char32_t kEndOfCodes = 0x110000;

struct Decoded {
  char32_t code;
  std::size_t length;
};

// Decodes the sequence at the start of `bytes` if it is well formed (RFC 3629): no overlong form, no surrogate, nothing
// above 10FFFF.
std::optional<Decoded> decodeSequence(std::string_view bytes) {
  const auto lead = static_cast<std::uint8_t>(bytes[0]);
  if (lead < 0x80) {
    return Decoded{lead, 1};
  }
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) {
    return std::nullopt;
  }
  char32_t code = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<std::uint8_t>(bytes[i]);
    if ((next & 0xC0) != 0x80) {
      return std::nullopt;
    }
    code = code << 6 | (next & 0x3FU);
  }
  constexpr std::array<char32_t, 5> kShortestOfLength{0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = code >= kFirstHighSurrogate && code < kEndOfSurrogates;
  if (code < kShortestOfLength[length] || surrogate || code >= kEndOfCodes) {
    return std::nullopt;
  }
  return Decoded{code, length};
}

void appendWide(std::wstring& text, char32_t code) {
  if (kWideIsUtf16 && code >= kFirstBeyond16Bits) {
    code -= kFirstBeyond16Bits;
    text += static_cast<wchar_t>(kFirstHighSurrogate + (code >> 10));
    text += static_cast<wchar_t>(kFirstLowSurrogate + (code & 0x3FF));
  } else {
    text += static_cast<wchar_t>(code);
  }
}

void appendUtf8(std::string& bytes, char32_t code) {
  if (code < 0x80) {
    bytes += static_cast<char>(code);
  } else if (code < 0x800) {
    bytes += static_cast<char>(0xC0 | code >> 6);
    bytes += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < kFirstBeyond16Bits) {
    bytes += static_cast<char>(0xE0 | code >> 12);
    bytes += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    bytes += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    bytes += static_cast<char>(0xF0 | code >> 18);
    bytes += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    bytes += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    bytes += static_cast<char>(0x80 | (code & 0x3F));
  }
}

bool isHighSurrogate(char32_t code) { return code >= kFirstHighSurrogate && code < kFirstLowSurrogate; }
bool isLowSurrogate(char32_t code) { return code >= kFirstLowSurrogate && code < kEndOfSurrogates; }

}  // namespace

std::wstring fromUtf8(std::string_view bytes) {
  std::wstring text;
  while (!bytes.empty()) {
    const auto sequence =
        decodeSequence(bytes).value_or(Decoded{kFirstLowSurrogate + static_cast<std::uint8_t>(bytes[0]), 1});
    appendWide(text, sequence.code);
    bytes.remove_prefix(sequence.length);
  }
  return text;
}

std::string toUtf8(std::wstring_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto code = static_cast<char32_t>(text[i]);
    if (kWideIsUtf16 && isHighSurrogate(code) && i + 1 < text.size() &&
        isLowSurrogate(static_cast<char32_t>(text[i + 1]))) {
      const auto low = static_cast<char32_t>(text[++i]);
      code = kFirstBeyond16Bits + ((code - kFirstHighSurrogate) << 10) + (low - kFirstLowSurrogate);
    }
    if (code >= kFirstLowSurrogate + 0x80 && code < kFirstLowSurrogate + 0x100) {
      bytes += static_cast<char>(code - kFirstLowSurrogate);
    } else {
      appendUtf8(bytes, code);
    }
  }
  return bytes;
}

}  // namespace quillhue
