#include <csetjmp>
#include <cstddef>
#include <cstdio>
// Requires size_t and FILE to be declared.
#include <jpeglib.h>
// Requires jpeglib.h.
#include <jerror.h>

#include <algorithm>
#include <vector>

#include "pictures/jpeg_file.h"
#include "pictures/sample_rows.h"

namespace quillhue {

namespace {

class Reader {
 public:
  Reader() {
    jpeg_.err = jpeg_std_error(&errors_);
    errors_.error_exit = onError;
    errors_.emit_message = onMessage;
    jpeg_.client_data = this;
  }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;
  ~Reader() { jpeg_destroy_decompress(&jpeg_); }

  [[nodiscard]] bool start(PictureBytes file) {
    return guarded([&] {
      jpeg_create_decompress(&jpeg_);
      jpeg_mem_src(&jpeg_, file.data(), static_cast<unsigned long>(file.size()));
      jpeg_read_header(&jpeg_, TRUE);
      if (jpeg_.num_components == 4) {
        jpeg_.out_color_space = JCS_CMYK;
      }
      jpeg_start_decompress(&jpeg_);
    });
  }
  [[nodiscard]] bool readRow(std::span<std::uint8_t> row) {
    return guarded([&] {
      JSAMPROW rows = row.data();
      jpeg_read_scanlines(&jpeg_, &rows, 1);
    });
  }

  [[nodiscard]] std::int32_t width() const { return static_cast<std::int32_t>(jpeg_.output_width); }
  [[nodiscard]] std::int32_t height() const { return static_cast<std::int32_t>(jpeg_.output_height); }
  [[nodiscard]] SampleFormat format() const {
    switch (jpeg_.out_color_space) {
      case JCS_GRAYSCALE:
        return {.kind = SampleKind::gray};
      case JCS_CMYK:
        return {.kind = SampleKind::ink};
      default:
        return {.kind = SampleKind::color};
    }
  }
  // Programs that write this marker store inverted ink: the light that passes through.
  [[nodiscard]] bool hasInvertedInk() const { return jpeg_.out_color_space == JCS_CMYK && jpeg_.saw_Adobe_marker; }
  [[nodiscard]] Failure failure() const {
    return errors_.msg_code == JERR_OUT_OF_MEMORY ? Failure::notEnoughMemory : Failure::pictureDamaged;
  }

 private:
  // Makes the call and returns false if libjpeg reports an error. libjpeg then jumps out without running destructors.
  template <typename Call>
  [[nodiscard]] bool guarded(Call call) {
    // NOLINTNEXTLINE(modernize-avoid-setjmp-longjmp): libjpeg must not return from its error handler
    if (setjmp(afterError_) != 0) {
      return false;
    }
    call();
    return true;
  }

  [[noreturn]] static void onError(j_common_ptr jpeg) {
    // NOLINTNEXTLINE(modernize-avoid-setjmp-longjmp)
    std::longjmp(static_cast<Reader*>(jpeg->client_data)->afterError_, 1);
  }
  static void onMessage(j_common_ptr /*jpeg*/, int /*level*/) {}

  jpeg_decompress_struct jpeg_{};
  jpeg_error_mgr errors_{};
  std::jmp_buf afterError_{};
};

}  // namespace

PictureResult decodeJpegSamples(PictureBytes file, const JpegHeader& header) {
  Reader reader;
  if (!reader.start(file)) {
    return std::unexpected(reader.failure());
  }
  if (reader.width() != header.width || reader.height() != header.height) {
    return std::unexpected(Failure::pictureDamaged);
  }
  const SampleFormat format = reader.format();
  SampleRows rows(header.width, header.height, format, {});
  std::vector<std::uint8_t> row(format.rowLength(static_cast<std::size_t>(header.width)));
  for (std::int32_t y = 0; y < header.height; ++y) {
    if (!reader.readRow(row)) {
      return std::unexpected(reader.failure());
    }
    if (reader.hasInvertedInk()) {
      std::ranges::transform(row, row.begin(),
                             [](std::uint8_t light) { return static_cast<std::uint8_t>(255 - light); });
    }
    rows.store(y, row);
  }
  return rows.take();
}

}  // namespace quillhue
