#pragma once

#include <png.h>

#include <csetjmp>

namespace quillhue {

/// Calls libpng and returns false if it reports an error. libpng then jumps out without running destructors, so neither
/// `call` nor any function that libpng calls back may hold an object with a destructor during a call to libpng.
template <typename Call>
[[nodiscard]] bool callLibpng(png_structp png, Call call) {
  // NOLINTNEXTLINE(modernize-avoid-setjmp-longjmp): libpng offers nothing else
  if (setjmp(png_jmpbuf(png)) != 0) {
    return false;
  }
  call();
  return true;
}

/// Error handlers for png_create_*_struct. They print nothing.
[[noreturn]] inline void onPngError(png_structp png, png_const_charp /*text*/) { png_longjmp(png, 1); }
inline void onPngWarning(png_structp /*png*/, png_const_charp /*text*/) {}

}  // namespace quillhue
