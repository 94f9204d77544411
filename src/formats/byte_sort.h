#pragma once

#include <span>

#include "formats/true_color_bitmap.h"

namespace quillhue {

/// Sorts words by one of their bytes, 0 for the lowest. Leaves words with equal bytes in the same order as std::sort of
/// libstdc++, because palettes depend on it. It is faster than std::sort, because few of its branches depend on the
/// words.
///
/// The algorithm is introsort (D. Musser, 1997): quicksort with the median of three words as the pivot down to 16
/// words, heapsort if that goes too deep, and an insertion sort of what is left. Words are compared in blocks as in
/// BlockQuicksort (S. Edelkamp, A. Weiss, 2016), which exchanges the same pairs as C. A. R. Hoare's partition.
void sortByByte(std::span<ColorWord> words, unsigned byte);

/// Moves only the middle word to its place, or the two middle words of an even number. Permutes the others.
void sortMiddleByByte(std::span<ColorWord> words, unsigned byte);

}  // namespace quillhue
