#pragma once

#include <cstdint>
#include <expected>
#include <filesystem>
#include <istream>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "formats/byte_source.h"
#include "formats/failure.h"

namespace quillhue {

/// File names are wide in the logic. Where the system's names are bytes they are taken as UTF-8, and a byte that is
/// not part of a UTF-8 sequence travels as the code 0xDC00 + byte, so that every existing name comes back unchanged.
[[nodiscard]] std::filesystem::path toPath(std::wstring_view name);
[[nodiscard]] std::wstring toFileName(const std::filesystem::path& path);

/// Opens a file: a regular file is read in blocks through one handle, anything else that can be read (a pipe) is read
/// into memory whole. Refuses (couldNotOpen) what does not exist, may not be read or is a folder.
[[nodiscard]] std::expected<std::unique_ptr<ByteSource>, Failure> openFile(std::wstring_view name);

/// Everything that `stream` gives, held in memory and therefore at most 2 GiB; couldNotOpen beyond that.
[[nodiscard]] std::expected<std::unique_ptr<ByteSource>, Failure> readStream(std::istream& stream);

/// Creates or replaces a file; false when that fails, and then an existing file may be cut short.
[[nodiscard]] bool writeFile(std::wstring_view name, std::span<const std::uint8_t> content);

[[nodiscard]] bool fileExists(std::wstring_view name);

}  // namespace quillhue
