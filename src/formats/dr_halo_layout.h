#pragma once

#include <cstdint>

/// A Dr. Halo palette: a header of 40 bytes, then records of three 16-bit values. The file consists of blocks of 512
/// bytes; no record crosses the end of a block.
namespace quillhue::dr_halo {

inline constexpr std::int32_t kEntries = 256;

/// Returns the offset of the record of entry `index` (0..255) in the file.
constexpr std::uint32_t recordOffset(std::int32_t index) {
  constexpr std::uint32_t kHeader = 40;
  constexpr std::uint32_t kRecord = 6;
  constexpr std::uint32_t kBlock = 512;
  constexpr std::uint32_t kInFirstBlock = (kBlock - kHeader) / kRecord;
  constexpr std::uint32_t kInBlock = kBlock / kRecord;
  const auto entry = static_cast<std::uint32_t>(index);
  if (entry < kInFirstBlock) {
    return kHeader + entry * kRecord;
  }
  const std::uint32_t behind = entry - kInFirstBlock;
  return kBlock * (1 + behind / kInBlock) + behind % kInBlock * kRecord;
}

}  // namespace quillhue::dr_halo
