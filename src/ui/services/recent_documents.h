#pragma once

#include <string>

namespace quillhue {

/// Adds a file to the system's list of recent documents, or moves it to the front. The system lists only files of types
/// that are associated with a program.
void addRecentDocument(const std::wstring& name);

}  // namespace quillhue
