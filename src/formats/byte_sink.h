#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

#include "core/palette_entry.h"

namespace quillhue {

/// The bytes of a new file. Writes go to absolute offsets; bytes that are never written are zero.
class ByteSink {
 public:
  [[nodiscard]] std::size_t size() const { return bytes_.size(); }
  [[nodiscard]] std::vector<std::uint8_t> take() { return std::move(bytes_); }

  void u8(std::size_t offset, std::uint8_t value) { *reserve(offset, 1) = value; }
  /// Little-endian (le) or big-endian (be) values.
  void u16le(std::size_t offset, std::uint16_t value);
  void u32le(std::size_t offset, std::uint32_t value);
  void u16be(std::size_t offset, std::uint16_t value);
  void u32be(std::size_t offset, std::uint32_t value);
  void bytes(std::size_t offset, std::initializer_list<std::uint8_t> values);
  void text(std::size_t offset, std::string_view letters);
  /// Three bytes: red, green, blue.
  void rgb(std::size_t offset, PaletteEntry color) { bytes(offset, {color.red, color.green, color.blue}); }
  /// Extends the file with zeros to `size` bytes if it is shorter.
  void extend(std::size_t size) { reserve(size, 0); }

 private:
  std::uint8_t* reserve(std::size_t offset, std::size_t count);

  std::vector<std::uint8_t> bytes_;
};

}  // namespace quillhue
