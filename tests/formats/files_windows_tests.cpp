#include <gtest/gtest.h>
#include <windows.h>

#include "formats/files.h"
#include "support/palettes.h"
#include "support/scratch_folder.h"

namespace quillhue {
namespace {

constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

using OpenFile = std::unique_ptr<void, decltype(&CloseHandle)>;

// Opens a file like another program. Returns null if that is refused.
OpenFile openElsewhere(const std::wstring& name, DWORD access, DWORD sharing) {
  const HANDLE file = CreateFileW(name.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
  return {file == INVALID_HANDLE_VALUE ? nullptr : file, CloseHandle};
}

TEST(FilesOfWindows, ShareReadingOnly) {
  const ScratchFolder folder;
  const std::wstring name = folder.file("file", bytesOf("old"));
  for (const DWORD access : {DWORD{GENERIC_READ}, DWORD{GENERIC_WRITE}}) {
    const OpenFile other = openElsewhere(name, access, kAll);
    EXPECT_EQ(openFile(name).has_value(), access == GENERIC_READ);
    EXPECT_FALSE(writeFile(name, bytesOf("new")));
  }
  EXPECT_EQ(folder.count(), 1);
  const auto source = openFile(name).value();
  EXPECT_TRUE(openElsewhere(name, GENERIC_READ, FILE_SHARE_READ));
  EXPECT_FALSE(openElsewhere(name, GENERIC_WRITE, kAll));
  EXPECT_EQ(source->bytes(0, 3), bytesOf("old"));
  const auto created = systemFiles().createReplacement(folder.name("new"));
  for (const auto& entry : std::filesystem::directory_iterator(toPath(folder.name()))) {
    EXPECT_EQ(openElsewhere(entry.path().wstring(), GENERIC_READ, kAll) != nullptr, entry.path().filename() == "file");
  }
  EXPECT_EQ(folder.count(), 2);
}

TEST(FilesOfWindows, KeepAttributes) {
  const ScratchFolder folder;
  const std::wstring name = folder.file("file", bytesOf("old"));
  constexpr DWORD kHidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  for (const DWORD attributes : {kHidden, DWORD{FILE_ATTRIBUTE_READONLY}}) {
    SetFileAttributesW(name.c_str(), attributes);
    EXPECT_EQ(writeFile(name, bytesOf("new")), attributes != FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(GetFileAttributesW(name.c_str()) & attributes, attributes);
  }
  SetFileAttributesW(name.c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(folder.count(), 1);
}

TEST(FilesOfWindows, HaveLongNamesAndDevices) {
  const ScratchFolder scratch;
  const std::wstring folder = LR"(\\?\)" + scratch.name(std::string(200, 'x'));
  const std::wstring name = folder + L'\\' + std::wstring(200, L'y');
  EXPECT_NE(CreateDirectoryW(folder.c_str(), nullptr), 0);
  for (const std::wstring& form : {name, name.substr(4)}) {
    EXPECT_EQ(fileExists(form), form != name);
    EXPECT_TRUE(writeFile(form, bytesOf("new")));
    EXPECT_EQ(openFile(form).value()->bytes(0, 4), (Bytes{'n', 'e', 'w', 0}));
  }
  EXPECT_NE(DeleteFileW(name.c_str()) & RemoveDirectoryW(folder.c_str()), 0);
  EXPECT_TRUE(writeFile(L"NUL", Bytes{1}));
  EXPECT_EQ(openFile(L"NUL").value()->size(), 0U);
}

}  // namespace
}  // namespace quillhue
