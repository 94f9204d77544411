#pragma once

#include <png.h>

#include <csetjmp>

namespace quillhue {

/// Calls libpng and returns false when it reports an error, which it does by a jump that runs no destructors: `call`
/// and whatever libpng calls back may hold no object that needs one at a call into libpng.
template <typename Call>
[[nodiscard]] bool callLibpng(png_structp png, Call call) {
  // NOLINTNEXTLINE(modernize-avoid-setjmp-longjmp): libpng offers nothing else
  if (setjmp(png_jmpbuf(png)) != 0) {
    return false;
  }
  call();
  return true;
}

/// Handlers for png_create_*_struct that print nothing.
[[noreturn]] inline void onPngError(png_structp png, png_const_charp /*text*/) { png_longjmp(png, 1); }
inline void onPngWarning(png_structp /*png*/, png_const_charp /*text*/) {}

}  // namespace quillhue
