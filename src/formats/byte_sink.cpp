#include "formats/byte_sink.h"

#include <algorithm>

namespace quillhue {

void ByteSink::u16le(std::size_t offset, std::uint16_t value) {
  bytes(offset, {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8)});
}

void ByteSink::u32le(std::size_t offset, std::uint32_t value) {
  u16le(offset, static_cast<std::uint16_t>(value));
  u16le(offset + 2, static_cast<std::uint16_t>(value >> 16));
}

void ByteSink::u16be(std::size_t offset, std::uint16_t value) {
  bytes(offset, {static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)});
}

void ByteSink::u32be(std::size_t offset, std::uint32_t value) {
  u16be(offset, static_cast<std::uint16_t>(value >> 16));
  u16be(offset + 2, static_cast<std::uint16_t>(value));
}

void ByteSink::bytes(std::size_t offset, std::initializer_list<std::uint8_t> values) {
  std::ranges::copy(values, reserve(offset, values.size()));
}

void ByteSink::text(std::size_t offset, std::string_view letters) {
  std::ranges::copy(letters, reserve(offset, letters.size()));
}

std::uint8_t* ByteSink::reserve(std::size_t offset, std::size_t count) {
  bytes_.resize(std::max(bytes_.size(), offset + count));
  return bytes_.data() + offset;
}

}  // namespace quillhue
