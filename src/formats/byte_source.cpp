#include "formats/byte_source.h"

#include <algorithm>

namespace quillhue {

std::uint16_t ByteSource::u16le(std::uint64_t offset) {
  return static_cast<std::uint16_t>(u8(offset) | u8(offset + 1) << 8);
}

std::uint16_t ByteSource::u16be(std::uint64_t offset) {
  return static_cast<std::uint16_t>(u8(offset) << 8 | u8(offset + 1));
}

std::uint32_t ByteSource::u32le(std::uint64_t offset) {
  return u16le(offset) | static_cast<std::uint32_t>(u16le(offset + 2)) << 16;
}

std::uint32_t ByteSource::u32be(std::uint64_t offset) {
  return static_cast<std::uint32_t>(u16be(offset)) << 16 | u16be(offset + 2);
}

void ByteSource::read(std::uint64_t offset, std::span<std::uint8_t> out) {
  if (out.size() >= kDirectSize) {
    fetch(offset, out);
    return;
  }
  while (!out.empty()) {
    if (offset >= size_) {
      std::ranges::fill(out, std::uint8_t{0});
      return;
    }
    loadBlock(offset);
    const auto loaded = std::span(block_).first(blockLength_).subspan(static_cast<std::size_t>(offset - blockStart_));
    const auto part = loaded.first(std::min(loaded.size(), out.size()));
    std::ranges::copy(part, out.begin());
    offset += part.size();
    out = out.subspan(part.size());
  }
}

void ByteSource::fetch(std::uint64_t offset, std::span<std::uint8_t> out) {
  const std::uint64_t left = offset < size_ ? size_ - offset : 0;
  const auto stored = static_cast<std::size_t>(std::min<std::uint64_t>(left, out.size()));
  const std::size_t got = stored == 0 ? 0 : readStored(offset, out.first(stored));
  failed_ = failed_ || got < stored;
  std::ranges::fill(out.subspan(got), std::uint8_t{0});
}

std::vector<std::uint8_t> ByteSource::bytes(std::uint64_t offset, std::size_t count) {
  std::vector<std::uint8_t> result(count);
  read(offset, result);
  return result;
}

std::size_t MemorySource::readStored(std::uint64_t offset, std::span<std::uint8_t> out) {
  std::ranges::copy(std::span(content_).subspan(static_cast<std::size_t>(offset), out.size()), out.begin());
  return out.size();
}

bool matchTag(ByteSource& source, std::uint64_t offset, std::string_view tag) {
  for (const char letter : tag) {
    if (source.u8(offset++) != static_cast<std::uint8_t>(letter)) {
      return false;
    }
  }
  return true;
}

std::uint64_t findTag(ByteSource& source, std::uint64_t from, std::string_view tag) {
  const auto first = static_cast<std::uint8_t>(tag.front());
  const std::uint64_t end = source.size();
  while (from < end && (source.u8(from) != first || !matchTag(source, from, tag))) {
    ++from;
  }
  return std::min(from, end);
}

}  // namespace quillhue
