#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillhue {

/// Returns the rows of a table in the folder data, in which the tests run. Vertical bars separate the cells of a line.
/// \n, \r, \t, \s (a blank), \0 and \xHH are bytes. Lines that begin with # are comments.
[[nodiscard]] std::vector<std::vector<std::string>> readTable(const std::string& file);

/// Returns the bytes of a file in the folder data, or none if it does not exist.
[[nodiscard]] std::vector<std::uint8_t> dataFile(const std::string& file);

/// Returns the checksum of a result in checksums.txt, or "none".
[[nodiscard]] std::string pinnedChecksum(const std::string& result);

}  // namespace quillhue
