#include "pictures/png_encoder.h"

#include <png.h>

#include <array>
#include <cstddef>
#include <new>

#include "pictures/packed_rows.h"
#include "pictures/posix/libpng.h"

namespace quillhue {

namespace {

using Bytes = std::vector<std::uint8_t>;

bool append(Bytes& file, std::span<const std::uint8_t> bytes) try {
  file.insert(file.end(), bytes.begin(), bytes.end());
  return true;
} catch (const std::bad_alloc&) {
  return false;
}

void onWrite(png_structp png, png_bytep bytes, std::size_t count) {
  if (!append(*static_cast<Bytes*>(png_get_io_ptr(png)), {bytes, count})) {
    png_error(png, "Out of memory");
  }
}

void onFlush(png_structp /*png*/) {}

class Writer {
 public:
  Writer()
      : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, onPngError, onPngWarning)),
        info_(png_ != nullptr ? png_create_info_struct(png_) : nullptr) {}
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;
  ~Writer() { png_destroy_write_struct(&png_, &info_); }

  [[nodiscard]] bool isReady() const { return info_ != nullptr; }
  [[nodiscard]] png_structp png() const { return png_; }
  [[nodiscard]] png_infop info() const { return info_; }

 private:
  png_structp png_;
  png_infop info_;
};

[[nodiscard]] bool writeHeader(const Writer& writer, const PngImage& image, unsigned bitsPerPixel, Bytes& file) {
  std::array<png_color, 256> colors{};
  std::array<png_byte, 256> alphas{};
  int alphaCount = 0;
  for (std::size_t i = 0; i < image.colors.size(); ++i) {
    const PaletteEntry& color = image.colors[i];
    colors[i] = {color.red, color.green, color.blue};
    alphas[i] = image.transparent[i] ? 0 : 255;
    if (image.transparent[i]) {
      alphaCount = static_cast<int>(i) + 1;
    }
  }
  return callLibpng(writer.png(), [&] {
    png_set_write_fn(writer.png(), &file, onWrite, onFlush);
    png_set_user_limits(writer.png(), PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_set_IHDR(writer.png(), writer.info(), static_cast<png_uint_32>(image.pixels.width),
                 static_cast<png_uint_32>(image.pixels.height), static_cast<int>(bitsPerPixel), PNG_COLOR_TYPE_PALETTE,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
    png_set_PLTE(writer.png(), writer.info(), colors.data(), static_cast<int>(image.colors.size()));
    if (alphaCount > 0) {
      png_set_tRNS(writer.png(), writer.info(), alphas.data(), alphaCount, nullptr);
    }
    png_write_info(writer.png(), writer.info());
  });
}

}  // namespace

std::expected<Bytes, Failure> composePng(const PngImage& image) {
  Bytes file;
  PackedRows rows(image);
  const Writer writer;
  bool isWritten = writer.isReady() && writeHeader(writer, image, rows.bitsPerPixel(), file);
  for (std::int32_t y = 0; isWritten && y < image.pixels.height; ++y) {
    const auto row = rows.row(y);
    isWritten = callLibpng(writer.png(), [&] { png_write_row(writer.png(), row.data()); });
  }
  if (!isWritten || !callLibpng(writer.png(), [&] { png_write_end(writer.png(), nullptr); })) {
    return std::unexpected(Failure::couldNotCreate);
  }
  return file;
}

}  // namespace quillhue
