#include <gtest/gtest.h>

#include "core/utf8.h"

namespace quillhue {
namespace {

TEST(Utf8, ConvertsWellFormedText) {
  struct Case {
    std::string bytes;
    std::wstring text;
  };
  for (const auto& [bytes, text] : {Case{"", L""}, Case{"a/b.pal", L"a/b.pal"}, Case{"\xC3\xA9", L"\u00E9"},
                                    Case{"\xE2\x82\xAC", L"\u20AC"}, Case{"\xF0\x9F\x8E\xA8!", L"\U0001F3A8!"}}) {
    EXPECT_EQ(fromUtf8(bytes), text);
    EXPECT_EQ(toUtf8(text), bytes);
  }
}

TEST(Utf8, CarriesOtherBytesThrough) {
  // Lone continuation and lead bytes, a cut sequence, overlong forms, a surrogate, past the last code.
  for (const std::string bytes : {"\x80", "x\xFFy", "\xE2\x82", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
                                  "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xC3\xC3\xA9"}) {
    EXPECT_EQ(toUtf8(fromUtf8(bytes)), bytes);
  }
  EXPECT_EQ(fromUtf8("\xFFy"), L"\xDCFFy");
}

}  // namespace
}  // namespace quillhue
