#include "ui/services/recent_documents.h"

#include "ui/win32/system.h"

namespace quillhue {

void addRecentDocument(const std::wstring& name) {
  // The list needs the full name.
  const DWORD length = GetFullPathNameW(name.c_str(), 0, nullptr, nullptr);
  std::wstring full(length, L'\0');
  full.resize(GetFullPathNameW(name.c_str(), length, full.data(), nullptr));
  if (!full.empty() && full.size() < length) {
    SHAddToRecentDocs(SHARD_PATHW, full.c_str());
  }
}

}  // namespace quillhue
