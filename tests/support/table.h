#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillhue {

/// The rows of a table in the folder data, in which tests run: the cells of a line stand between vertical bars, with
/// \n, \r, \t, \s (a blank), \0 and \xHH for bytes, and lines that begin with # are remarks.
[[nodiscard]] std::vector<std::vector<std::string>> readTable(const std::string& file);

/// The bytes of a file in the folder of the tests' data; none if it does not exist.
[[nodiscard]] std::vector<std::uint8_t> dataFile(const std::string& file);

/// The checksum of a result in checksums.txt; "none" if it is not there.
[[nodiscard]] std::string pinnedChecksum(const std::string& result);

}  // namespace quillhue
