#include <gtest/gtest.h>
#include <windows.h>

#include "formats/files.h"
#include "support/palettes.h"
#include "support/scratch_folder.h"

namespace quillhue {
namespace {

constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// As another program opens a file.
class Other {
 public:
  Other(const std::wstring& name, DWORD access, DWORD sharing)
      : file_(CreateFileW(name.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  ~Other() { CloseHandle(file_); }
  Other(const Other&) = delete;
  Other& operator=(const Other&) = delete;
  [[nodiscard]] bool opened() const { return file_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE file_;
};

TEST(FilesOfWindows, ShareReadingOnly) {
  const ScratchFolder folder;
  const std::wstring name = folder.file("file", bytesOf("old"));
  {
    const auto source = openFile(name);
    EXPECT_TRUE(Other(name, GENERIC_READ, FILE_SHARE_READ).opened());
    EXPECT_FALSE(Other(name, GENERIC_WRITE, kAll).opened());
    EXPECT_FALSE(writeFile(name, bytesOf("new")));
  }
  {
    const Other writer(name, GENERIC_WRITE, kAll);
    EXPECT_EQ(openFile(name).error(), Failure::couldNotOpen);
  }
  {
    const Other reader(name, GENERIC_READ, kAll);
    EXPECT_FALSE(writeFile(name, bytesOf("new")));
    EXPECT_EQ(folder.contentOf("file"), "old");
  }
  const auto created = systemFiles().createReplacement(name);
  for (const auto& entry : std::filesystem::directory_iterator(toPath(folder.name()))) {
    EXPECT_EQ(Other(entry.path().wstring(), GENERIC_READ, kAll).opened(), entry.path().filename() == "file");
  }
  EXPECT_EQ(folder.count(), 2);
}

TEST(FilesOfWindows, KeepAttributes) {
  const ScratchFolder folder;
  const std::wstring name = folder.file("file", bytesOf("old"));
  constexpr DWORD kHidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  SetFileAttributesW(name.c_str(), kHidden);
  EXPECT_TRUE(writeFile(name, bytesOf("new")));
  EXPECT_EQ(GetFileAttributesW(name.c_str()) & kHidden, kHidden);
  SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_FALSE(writeFile(name, bytesOf("newer")));
  EXPECT_EQ(folder.contentOf("file"), "new");
  SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(folder.count(), 1);
}

TEST(FilesOfWindows, HaveLongNamesAndDevices) {
  const ScratchFolder scratch;
  std::wstring folder = LR"(\\?\)" + scratch.name();
  for (int depth = 0; depth < 3; ++depth) {
    folder += L'\\' + std::wstring(100, L'x');
    EXPECT_NE(CreateDirectoryW(folder.c_str(), nullptr), 0);
  }
  const std::wstring name = folder + LR"(\file)";
  for (const std::wstring& form : {name, name.substr(4)}) {
    EXPECT_EQ(fileExists(form), form != name);
    EXPECT_TRUE(writeFile(form, bytesOf("new")));
    EXPECT_EQ(openFile(form).value()->bytes(0, 4), (Bytes{'n', 'e', 'w', 0}));
  }
  EXPECT_TRUE(writeFile(L"NUL", Bytes{1}));
  EXPECT_EQ(openFile(L"NUL").value()->size(), 0U);
  for (std::wstring path = name; path.size() > scratch.name().size() + 4; path.erase(path.rfind(L'\\'))) {
    EXPECT_NE(path == name ? DeleteFileW(path.c_str()) : RemoveDirectoryW(path.c_str()), 0);
  }
}

}  // namespace
}  // namespace quillhue
