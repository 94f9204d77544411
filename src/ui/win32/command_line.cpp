#include "ui/win32/command_line.h"

#include <cstddef>
#include <string_view>

#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

namespace {

void freeArguments(wchar_t** arguments) { LocalFree(static_cast<void*>(arguments)); }

// Returns the name unchanged if the system can't resolve it.
std::wstring fullName(const wchar_t* name) {
  std::wstring full(GetFullPathNameW(name, 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(name, static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full.empty() ? name : full;
}

// Asking the system for the arguments loads the shell's library, which slows down the start. The first word is the
// program, which may be in quotes.
bool hasArguments(std::wstring_view line) {
  const std::size_t end = line.starts_with(L'"') ? line.find(L'"', 1) : line.find_first_of(L" \t");
  return end != line.npos && line.find_first_not_of(L" \t", end + 1) != line.npos;
}

}  // namespace

std::optional<std::wstring> fileArgument() {
  if (!hasArguments(GetCommandLineW())) {
    return std::nullopt;
  }
  int count = 0;
  const Handle<ClosedBy<wchar_t**, freeArguments>> arguments(CommandLineToArgvW(GetCommandLineW(), &count));
  if (!arguments || count < 2) {
    return std::nullopt;
  }
  return fullName(arguments.get()[1]);
}

std::wstring programFolder() {
  // Maximum length of a path in characters.
  constexpr std::size_t kLongestName = 32768;
  std::wstring name(kLongestName, L'\0');
  name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  return name.substr(0, name.rfind(L'\\'));
}

}  // namespace quillhue
