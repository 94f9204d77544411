#pragma once

#include <cstdint>
#include <optional>

#include "pictures/sample_rows.h"
#include "pictures/windows/imaging.h"

namespace quillhue {

/// The first image of a file in memory, decoded by the Windows Imaging Component. The file must outlive it.
class Frame {
 public:
  /// `container` is the file's format, such as GUID_ContainerFormatPng.
  Frame(PictureBytes file, const GUID& container) : Frame(file, &container) {}
  /// The system finds the format.
  explicit Frame(PictureBytes file) : Frame(file, nullptr) {}

  struct Size {
    std::int64_t width = 0;
    std::int64_t height = 0;
    friend bool operator==(const Size&, const Size&) = default;
  };

  /// Returns how the rows are stored, or nothing if the file can't be decoded. Formats that SampleFormat can't describe
  /// are converted to bytes of blue, green, red and alpha.
  [[nodiscard]] std::optional<SampleFormat> format() const;
  /// Call the following functions only for a frame that has a format.
  [[nodiscard]] Size size() const;
  /// Returns the palette, or nothing if there is none.
  [[nodiscard]] std::optional<PictureColors> colors() const;
  /// Stores all rows, which have the size of the frame. Returns false if the file is damaged.
  [[nodiscard]] bool read(SampleRows& rows, const SampleFormat& format);

 private:
  Frame(PictureBytes file, const GUID* container);

  Imaging imaging_;
  ComPointer<IWICBitmapSource> source_;
};

}  // namespace quillhue
