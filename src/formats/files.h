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

/// Converts a file name. The logic uses wide names. On systems whose names are bytes, they are read as UTF-8; a byte
/// that is not part of a UTF-8 sequence becomes the code 0xDC00 + byte, so that every existing name survives the
/// conversion.
[[nodiscard]] std::filesystem::path toPath(std::wstring_view name);
[[nodiscard]] std::wstring toFileName(const std::filesystem::path& path);

/// Opens a file for reading. A regular file is read in blocks through one handle; anything else that can be read, such
/// as a pipe, is read into memory completely. Refuses with couldNotOpen a file that does not exist or may not be read,
/// a folder, and on Windows a file that another program has open for writing. While the file is open, other programs
/// may only read it.
[[nodiscard]] std::expected<std::unique_ptr<ByteSource>, Failure> openFile(std::wstring_view name);

/// Reads a stream to its end into memory. Refuses with couldNotOpen more than 2 GiB.
[[nodiscard]] std::expected<std::unique_ptr<ByteSource>, Failure> readStream(std::istream& stream);

/// Creates a file, or replaces the content of an existing one. A link is followed, so the file behind it is replaced.
/// Returns false on failure. An existing file has either the old or the new content at any time, even after a crash or
/// a power cut, and keeps its rights and attributes; its other names (hard links) keep the old content. If no file can
/// be created in its folder, the file is overwritten in place, and only then can a crash leave it incomplete. Pipes and
/// devices get the bytes directly.
[[nodiscard]] bool writeFile(std::wstring_view name, std::span<const std::uint8_t> content,
                             FileSystem& files = systemFiles());

/// Returns false only if there is certainly no such file. A file in a folder that can't be searched counts as existing.
[[nodiscard]] bool fileExists(std::wstring_view name);

}  // namespace quillhue
