#include "support/table.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

namespace quillhue {

namespace {

std::string unescape(std::string_view cell) {
  constexpr std::string_view kLetters = "nrts0\\";
  constexpr std::string_view kMeanings{"\n\r\t \0\\", 6};
  std::string text;
  for (std::size_t i = 0; i < cell.size(); ++i) {
    if (cell[i] != '\\') {
      text += cell[i];
    } else if (cell.at(++i) == 'x') {
      text += static_cast<char>(std::stoi(std::string(cell.substr(i + 1, 2)), nullptr, 16));
      i += 2;
    } else {
      text += kMeanings.at(kLetters.find(cell[i]));
    }
  }
  return text;
}

}  // namespace

std::vector<std::vector<std::string>> readTable(const std::string& file) {
  std::ifstream stream(file);
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(stream, line);) {
    if (line.empty() || line[0] == '#') {
      continue;
    }
    auto& cells = rows.emplace_back();
    for (std::size_t start = 0, bar = 0; bar != std::string::npos; start = bar + 1) {
      bar = line.find('|', start);
      const std::string cell = line.substr(start, bar == std::string::npos ? bar : bar - start);
      const auto first = cell.find_first_not_of(' ');
      const auto last = cell.find_last_not_of(' ');
      cells.push_back(first == std::string::npos ? "" : unescape(cell.substr(first, last - first + 1)));
    }
  }
  if (rows.empty()) {
    throw std::runtime_error(file + " has no rows");
  }
  return rows;
}

std::vector<std::uint8_t> dataFile(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator(stream), std::istreambuf_iterator<char>()};
}

std::string pinnedChecksum(const std::string& result) {
  for (const auto& row : readTable("checksums.txt")) {
    if (row.at(0) == result) {
      return row.at(1);
    }
  }
  return "none";
}

}  // namespace quillhue
