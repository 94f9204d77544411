#include "formats/color_set.h"

namespace quillhue {

std::uint64_t ColorSet::size() const {
  std::uint64_t count = 0;
  for (const std::uint64_t bits : words_) {
    count += static_cast<std::uint64_t>(std::popcount(bits));
  }
  return count;
}

ColorSet::Ranks::Ranks(const ColorSet& set) : set_(&set), before_(set.words_.size()) {
  std::uint32_t count = 0;
  for (const std::uint16_t block : set.blockOf_) {
    for (std::size_t word = block * kWords; block != 0 && word < (block + std::size_t{1}) * kWords; ++word) {
      before_[word] = count;
      count += static_cast<std::uint32_t>(std::popcount(set.words_[word]));
    }
  }
}

}  // namespace quillhue
