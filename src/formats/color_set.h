#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillhue {

/// A set of 24-bit numbers, one bit each. Memory is used only for those blocks of 4096 numbers that contain one.
class ColorSet {
 public:
  void insert(std::uint32_t number) {
    std::uint16_t& block = blockOf_[number / kBlock];
    if (block == 0) {
      block = static_cast<std::uint16_t>(words_.size() / kWords);
      words_.resize(words_.size() + kWords);
    }
    words_[wordOf(number)] |= bitOf(number);
  }

  /// Returns how many numbers are in the set.
  [[nodiscard]] std::uint64_t size() const;

  /// Calls `visit` with each number in ascending order, until it returns false.
  template <typename Visit>
  void forEach(Visit visit) const {
    for (std::uint32_t block = 0; block < kBlocks; ++block) {
      for (std::uint32_t word = 0; blockOf_[block] != 0 && word < kWords; ++word) {
        for (std::uint64_t left = words_[blockOf_[block] * kWords + word]; left != 0; left &= left - 1) {
          if (!visit(block * kBlock + word * 64 + static_cast<std::uint32_t>(std::countr_zero(left)))) {
            return;
          }
        }
      }
    }
  }

  /// Finds the position of a number in the set, in ascending order. The set must not change meanwhile.
  class Ranks {
   public:
    explicit Ranks(const ColorSet& set);
    /// Numbers outside the set have a position up to size().
    [[nodiscard]] std::size_t of(std::uint32_t number) const {
      const std::size_t word = set_->wordOf(number);
      const std::uint64_t lower = set_->words_[word] & (bitOf(number) - 1);
      return before_[word] + static_cast<std::size_t>(std::popcount(lower));
    }

   private:
    const ColorSet* set_;
    // For each word, how many numbers of the set are lower than all numbers of the word.
    std::vector<std::uint32_t> before_;
  };

 private:
  static constexpr std::uint32_t kBlock = 4096;
  static constexpr std::uint32_t kBlocks = (1U << 24) / kBlock;
  static constexpr std::size_t kWords = kBlock / 64;

  static constexpr std::uint64_t bitOf(std::uint32_t number) { return std::uint64_t{1} << (number % 64); }
  [[nodiscard]] std::size_t wordOf(std::uint32_t number) const {
    return blockOf_[number / kBlock] * kWords + number / 64 % kWords;
  }

  // For each block of numbers, the index of its block of words. Blocks without numbers share index 0, whose words stay
  // empty.
  std::vector<std::uint16_t> blockOf_ = std::vector<std::uint16_t>(kBlocks);
  std::vector<std::uint64_t> words_ = std::vector<std::uint64_t>(kWords);
};

}  // namespace quillhue
