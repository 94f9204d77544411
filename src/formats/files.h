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
#include "system/file_system.h"

namespace quillhue {

/// File names are wide in the logic. Where the system's names are bytes they are taken as UTF-8, and a byte that is
/// not part of a UTF-8 sequence travels as the code 0xDC00 + byte, so that every existing name comes back unchanged.
[[nodiscard]] std::filesystem::path toPath(std::wstring_view name);
[[nodiscard]] std::wstring toFileName(const std::filesystem::path& path);

/// Opens a file: a regular file is read in blocks through one handle, anything else that can be read (a pipe) is read
/// into memory whole. Refuses (couldNotOpen) what does not exist, may not be read or is a folder, and on Windows what
/// another program has open for writing; while it is open here others may only read it.
[[nodiscard]] std::expected<std::unique_ptr<ByteSource>, Failure> openFile(std::wstring_view name);

/// Everything that `stream` gives, held in memory and therefore at most 2 GiB; couldNotOpen beyond that.
[[nodiscard]] std::expected<std::unique_ptr<ByteSource>, Failure> readStream(std::istream& stream);

/// Creates a file or replaces the content of one that exists, also of the one that a link leads to; false when that
/// fails. An existing file has the old content or the new one at any time, even after a crash or a power cut, and keeps
/// its rights and attributes; its other names (hard links) keep the old content. Where no file can be made beside it,
/// it is written over, and that alone can be cut short. Pipes and devices take the bytes as they are.
[[nodiscard]] bool writeFile(std::wstring_view name, std::span<const std::uint8_t> content,
                             FileSystem& files = systemFiles());

/// False only when there is no such file: true also for one in a folder that can't be looked into.
[[nodiscard]] bool fileExists(std::wstring_view name);

}  // namespace quillhue
