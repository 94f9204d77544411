#include <filesystem>

#include "commands/command_ids.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

using RecentDocuments = UiTest;

TEST_F(RecentDocuments, ArePalettesThatWereOpenedOrSaved) {
  std::array<wchar_t, MAX_PATH> folder{};
  ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_RECENT, nullptr, SHGFP_TYPE_CURRENT, folder.data()), S_OK);
  // A name that no other test uses.
  const std::wstring name = L"recent" + std::to_wstring(GetCurrentProcessId());
  const auto isListed = [&](const std::wstring& file) {
    return std::filesystem::exists(std::filesystem::path(folder.data()) / (file + L".lnk"));
  };
  const std::wstring opened = name + L".pal";
  const std::wstring saved = name + L".csv";
  const Editor editor(paletteFile(narrow(opened), brightPalette(200)));
  editor.await("the opened file in the list", [&] { return isListed(opened); });
  editor.run(command_id::kClear);
  editor.start(command_id::kSaveAs);
  EXPECT_FALSE(isListed(saved));
  constexpr int kCsv = 3;
  chooseFile(editor, L"Save As", (std::filesystem::path(editor.file()).parent_path() / saved).wstring(), kCsv);
  editor.await("the saved file in the list", [&] { return isListed(saved); });
  for (const std::wstring& file : {opened, saved}) {
    std::filesystem::remove(std::filesystem::path(folder.data()) / (file + L".lnk"));
  }
}

}  // namespace
}  // namespace quillhue
