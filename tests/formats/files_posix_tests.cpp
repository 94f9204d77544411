#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>
#include <future>

#include "formats/files.h"
#include "support/palettes.h"
#include "support/scratch_folder.h"

namespace quillhue {
namespace {

struct stat statusOf(const std::filesystem::path& file) {
  struct stat status{};
  EXPECT_EQ(stat(file.c_str(), &status), 0);
  return status;
}

// Root may do everything, so the program is somebody else for a while.
class AsNobody {
 public:
  static constexpr uid_t kNobody = 65534;

  AsNobody() { std::ignore = seteuid(geteuid() == 0 ? kNobody : geteuid()); }
  ~AsNobody() { std::ignore = seteuid(getuid()); }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;
};

TEST(FilesOfPosix, KeepLinksOwnersModesAndAttributes) {
  const ScratchFolder folder;
  const std::filesystem::path file = toPath(folder.file("file", bytesOf("old")));
  const std::filesystem::path link = toPath(folder.name("link"));
  const std::filesystem::path linkToLink = toPath(folder.name("link to link"));
  std::filesystem::create_symlink("file", link);
  std::filesystem::create_symlink(link, linkToLink);
  const bool isRoot = geteuid() == 0;
  EXPECT_EQ(chown(file.c_str(), isRoot ? 1234 : geteuid(), isRoot ? 1235 : getegid()), 0);
  EXPECT_EQ(chmod(file.c_str(), 04751), 0);
  const bool hasAttributes = setxattr(file.c_str(), "user.tag", "blue", 4, 0) == 0;
  const struct stat before = statusOf(file);

  EXPECT_TRUE(writeFile(toFileName(linkToLink), bytesOf("new")));
  EXPECT_EQ(folder.contentOf("file"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(link) && std::filesystem::is_symlink(linkToLink));
  const struct stat after = statusOf(file);
  EXPECT_NE(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  EXPECT_EQ(getxattr(file.c_str(), "user.tag", nullptr, 0), hasAttributes ? 4 : -1);

  std::filesystem::remove(file);
  EXPECT_TRUE(writeFile(toFileName(linkToLink), bytesOf("again")));
  EXPECT_EQ(folder.contentOf("file"), "again");
  EXPECT_EQ(folder.count(), 3);
}

// How a file of somebody, in a folder of somebody, is saved by nobody, who owns what the case does not give to root.
TEST(FilesOfPosix, ObeyRightsOfFilesAndFolders) {
  struct Case {
    mode_t folder;
    mode_t file;
    bool ofRoot;
    bool saves;
    bool replaces;
  };
  for (const auto& [folderMode, fileMode, ofRoot, saves, replaces] :
       {Case{0755, 0644, false, true, true}, Case{0555, 0644, false, true, false},
        Case{0755, 0444, false, false, false}, Case{0333, 0644, false, true, true},
        Case{0000, 0644, false, false, false},
        // Neither the owner nor the group can be kept; in a folder like /tmp nobody replaces a file of others.
        Case{0777, 0666, true, true, true}, Case{01777, 0666, true, true, false}}) {
    if (ofRoot && getuid() != 0) {
      continue;
    }
    const ScratchFolder scratch;
    const std::filesystem::path folder = toPath(scratch.name());
    const std::filesystem::path file = toPath(scratch.file("file", bytesOf("old")));
    EXPECT_EQ(chmod(file.c_str(), fileMode) + chmod(folder.c_str(), folderMode), 0);
    const uid_t owner = ofRoot || getuid() != 0 ? getuid() : AsNobody::kNobody;
    EXPECT_EQ(chown(file.c_str(), owner, getgid()) + chown(folder.c_str(), owner, getgid()), 0);
    const struct stat before = statusOf(file);
    {
      const AsNobody nobody;
      EXPECT_EQ(writeFile(toFileName(file), bytesOf("newer")), saves) << folderMode;
      EXPECT_TRUE(fileExists(toFileName(file))) << folderMode;
      EXPECT_EQ(openFile(toFileName(file)).has_value(), folderMode != 0) << folderMode;
    }
    EXPECT_EQ(chmod(folder.c_str(), 0777), 0);
    EXPECT_EQ(scratch.contentOf("file"), saves ? "newer" : "old") << folderMode;
    EXPECT_EQ(statusOf(file).st_ino != before.st_ino, replaces) << folderMode;
    EXPECT_EQ(statusOf(file).st_mode, before.st_mode) << folderMode;
    EXPECT_EQ(scratch.count(), 1) << folderMode;
  }
}

TEST(FilesOfPosix, KeepTheOldFileWhenTheDiskIsFull) {
  const ScratchFolder scratch;
  const std::filesystem::path folder = toPath(scratch.name());
  const std::wstring name = scratch.file("file", bytesOf("old"));
  EXPECT_EQ(chmod(toPath(name).c_str(), 0666), 0);
  rlimit old{};
  getrlimit(RLIMIT_FSIZE, &old);
  const rlimit small{50'000, old.rlim_max};
  const auto signalled = std::signal(SIGXFSZ, SIG_IGN);
  for (const mode_t mode : {0777U, 0555U}) {
    EXPECT_EQ(chmod(folder.c_str(), mode), 0);
    const AsNobody nobody;
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(writeFile(name, Bytes(60'000))) << mode;
    setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ(scratch.contentOf("file"), "old") << mode;
    EXPECT_EQ(scratch.count(), 1) << mode;
  }
  std::signal(SIGXFSZ, signalled);
}

TEST(FilesOfPosix, PassBytesToPipesAndOpenFiles) {
  const ScratchFolder folder;
  const std::wstring pipe = folder.name("pipe");
  EXPECT_EQ(mkfifo(toPath(pipe).c_str(), 0600), 0);
  auto read = std::async([&] { return folder.contentOf("pipe"); });
  EXPECT_TRUE(writeFile(pipe, Bytes(100'000, 'x')));
  EXPECT_EQ(read.get(), std::string(100'000, 'x'));
  EXPECT_FALSE(writeFile(L"/dev/full", Bytes{1}));

  std::FILE* const file = std::fopen(toPath(folder.file("file", bytesOf("longer"))).c_str(), "r");
  EXPECT_TRUE(writeFile(L"/dev/fd/" + std::to_wstring(fileno(file)), bytesOf("new")));
  EXPECT_EQ(std::fgetc(file), 'n');
  std::fclose(file);
  EXPECT_EQ(folder.contentOf("file"), "new");
  EXPECT_EQ(folder.count(), 2);
}

}  // namespace
}  // namespace quillhue
