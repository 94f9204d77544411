#include <png.h>

#include <algorithm>
#include <cstddef>

#include "formats/image_limits.h"
#include "pictures/png_file.h"
#include "pictures/posix/libpng.h"

namespace quillhue {

namespace {

class Reader {
 public:
  explicit Reader(const PngFile& png)
      : unread_(png.samples),
        png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, onPngError, onPngWarning)),
        info_(png_ != nullptr ? png_create_info_struct(png_) : nullptr) {}
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;
  ~Reader() { png_destroy_read_struct(&png_, &info_, nullptr); }

  [[nodiscard]] bool start() {
    return info_ != nullptr && callLibpng(png_, [&] {
             png_set_user_limits(png_, kMaxImageSide, kMaxImageSide);
             png_set_read_fn(png_, this, onRead);
             png_read_info(png_, info_);
           });
  }
  [[nodiscard]] bool readRow(std::span<std::uint8_t> row) {
    return callLibpng(png_, [&] { png_read_row(png_, row.data(), nullptr); });
  }
  [[nodiscard]] bool finish() {
    return callLibpng(png_, [&] { png_read_end(png_, nullptr); });
  }

 private:
  static void onRead(png_structp png, png_bytep out, std::size_t count) {
    Reader& reader = *static_cast<Reader*>(png_get_io_ptr(png));
    if (count > reader.unread_.size()) {
      png_error(png, "End of file");
    }
    std::copy_n(reader.unread_.begin(), count, out);
    reader.unread_ = reader.unread_.subspan(count);
  }

  PictureBytes unread_;
  png_structp png_;
  png_infop info_;
};

// Reads each pass of an interlaced image on its own. libpng would combine the passes, but that needs a buffer for the
// whole image.
bool readPass(Reader& reader, const PngFile& png, int pass, SampleRows& rows, std::span<std::uint8_t> row) {
  const auto width = static_cast<png_uint_32>(png.width);
  const auto height = static_cast<png_uint_32>(png.height);
  if (!png.isInterlaced) {
    for (std::int32_t y = 0; y < png.height; ++y) {
      if (!reader.readRow(row)) {
        return false;
      }
      rows.store(y, row);
    }
    return true;
  }
  const Columns columns{static_cast<std::size_t>(PNG_PASS_START_COL(pass)),
                        static_cast<std::size_t>(PNG_PASS_COL_OFFSET(pass))};
  const png_uint_32 passRows = PNG_PASS_COLS(width, pass) == 0 ? 0 : PNG_PASS_ROWS(height, pass);
  for (png_uint_32 i = 0; i < passRows; ++i) {
    if (!reader.readRow(row)) {
      return false;
    }
    rows.store(static_cast<std::int32_t>(PNG_ROW_FROM_PASS_ROW(i, pass)), row, columns);
  }
  return true;
}

}  // namespace

PictureResult decodePngSamples(const PngFile& png, PaletteEntry blank) {
  SampleRows rows(png.width, png.height, png.format, blank, png.colors);
  if (png.transparentColor) {
    rows.setTransparentColor(*png.transparentColor);
  }
  std::vector<std::uint8_t> row(png.format.rowLength(static_cast<std::size_t>(png.width)));
  Reader reader(png);
  bool isRead = reader.start();
  const int passes = png.isInterlaced ? PNG_INTERLACE_ADAM7_PASSES : 1;
  for (int pass = 0; isRead && pass < passes; ++pass) {
    isRead = readPass(reader, png, pass, rows, row);
  }
  if (!isRead || !reader.finish()) {
    return std::unexpected(Failure::pictureDamaged);
  }
  return rows.take();
}

}  // namespace quillhue
