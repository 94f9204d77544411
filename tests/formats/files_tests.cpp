#include <gtest/gtest.h>

#include "formats/files.h"
#include "support/faulty_files.h"
#include "support/palettes.h"
#include "support/scratch_folder.h"

namespace quillhue {
namespace {

TEST(Files, RefuseWhatIsNoFile) {
  const ScratchFolder folder;
  for (const std::wstring& name : {folder.name(), folder.name("none"), folder.name("none/x"), std::wstring()}) {
    EXPECT_EQ(openFile(name).error(), Failure::couldNotOpen);
    EXPECT_EQ(writeFile(name, Bytes{1}), name == folder.name("none"));
  }
  EXPECT_TRUE(fileExists(folder.name("none")));
  EXPECT_FALSE(fileExists(folder.name("x")));
}

// Beside the file, and over it where nothing can be made beside it or nothing can take its place.
TEST(Files, ChangeTheWholeContentAndLeaveNothingBehind) {
  constexpr int kNever = 99;
  constexpr int kCreating = 0;
  constexpr int kFinishing = 3;
  for (const std::string& name : {std::string("a"), std::string(251, 'x') + ".act"}) {
    for (const int refused : {kNever, kCreating, kFinishing}) {
      const ScratchFolder folder;
      EXPECT_TRUE(writeFile(folder.name(name), Bytes{1}));
      for (const std::size_t size : {100'000U, 10U, 0U, 3U}) {
        FaultyFiles files(refused, 1, SaveError::notReplaceable);
        const std::string content(size, static_cast<char>('a' + refused));
        EXPECT_TRUE(writeFile(folder.name(name), bytesOf(content), files));
        EXPECT_EQ(folder.contentOf(name), content);
        EXPECT_EQ(folder.count(), 1);
      }
    }
  }
}

}  // namespace
}  // namespace quillhue
