#include <gtest/gtest.h>

#include "support/palettes.h"
#include "ui/logic/result_file.h"

namespace quillhue {
namespace {

TEST(ResultFile, HasTheFormatOfItsExtensionOrElseTheChosenOne) {
  using enum ResultFormat;
  const struct {
    const wchar_t* name;
    ResultFormat chosen;
    ResultFormat expected;
  } kCases[] = {{L"a.bmp", png, bitmap},    {L"a.Dib", png, bitmap}, {L"a.PNG", bitmap, png},
                {L"a.dat", bitmap, bitmap}, {L"a.dat", png, png},    {L"apng", bitmap, bitmap}};
  for (const auto& [name, chosen, expected] : kCases) {
    EXPECT_EQ(resultFormat(name, chosen), expected) << name;
  }
  RemappedImage result;
  result.prepare(3, 2, {});
  // Only the first 256 entries of a large palette are used.
  for (const std::int32_t size : {2, 300}) {
    const Bytes file = composeResult(result, variedPalette(size), {}, png).value();
    EXPECT_EQ(file.at(24), size == 2 ? 1 : 8);
    EXPECT_EQ(composeResult(result, variedPalette(size), {}, bitmap).value().at(0), 'B');
  }
}

}  // namespace
}  // namespace quillhue
