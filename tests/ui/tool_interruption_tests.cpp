#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "support/bitmaps.h"
#include "support/scratch_folder.h"
#include "ui/support/program.h"
#include "ui/win32/system.h"

namespace quillhue {
namespace {

constexpr DWORD kPatienceMilliseconds = std::chrono::milliseconds(kPatience).count();

/// A running tool with a console of its own, which is not visible.
class Tool {
 public:
  explicit Tool(std::wstring arguments) {
    std::wstring line = L'"' + toolFile() + L"\" " + std::move(arguments);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr, &start,
                       &process_) == 0) {
      throw ProgramError("can't start the tool");
    }
  }
  Tool(const Tool&) = delete;
  Tool& operator=(const Tool&) = delete;
  ~Tool() {
    TerminateProcess(process_.hProcess, 1);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
  }

  /// Presses Ctrl+C in the tool's console and returns the exit code.
  [[nodiscard]] DWORD interrupt() const {
    FreeConsole();
    EXPECT_TRUE(AttachConsole(process_.dwProcessId));
    // This program is on the same console now and would end too.
    SetConsoleCtrlHandler(nullptr, TRUE);
    EXPECT_TRUE(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0));
    EXPECT_EQ(WaitForSingleObject(process_.hProcess, kPatienceMilliseconds), WAIT_OBJECT_0);
    SetConsoleCtrlHandler(nullptr, FALSE);
    FreeConsole();
    AttachConsole(ATTACH_PARENT_PROCESS);
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
  }

 private:
  PROCESS_INFORMATION process_{};
};

TEST(ToolInterruption, LeavesWholeFilesOnly) {
  constexpr int kFiles = 60;
  constexpr std::uint32_t kSide = 128;
  constexpr std::uintmax_t kResultSize = 768;
  const ScratchFolder images;
  const ScratchFolder results;
  std::mt19937 random(7);
  std::vector<ColorWord> noise(kSide * kSide);
  for (ColorWord& word : noise) {
    word = random() % 0x1000000;
  }
  const Bytes bitmap = bitmapOf(kSide, 24, noise);
  for (int number = 0; number < kFiles; ++number) {
    static_cast<void>(images.file(std::to_string(number) + ".bmp", bitmap));
  }
  const Tool tool(L"convert \"" + images.name() + L"\" --out-dir \"" + results.name() +
                  L"\" --format act --colors best --jobs 2");
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (results.count() == 0 && std::chrono::steady_clock::now() < end) {
    Sleep(1);
  }
  EXPECT_EQ(tool.interrupt(), 1U);
  EXPECT_GT(results.count(), 0);
  EXPECT_LT(results.count(), kFiles);
  for (const auto& file : std::filesystem::directory_iterator(results.name())) {
    EXPECT_EQ(file.path().extension(), L".act");
    EXPECT_EQ(file.file_size(), kResultSize) << file.path();
  }
}

}  // namespace
}  // namespace quillhue
