#pragma once

#include <cstdint>
#include <optional>

#include "pictures/sample_rows.h"
#include "pictures/windows/imaging.h"

namespace quillhue {

/// The first image of a file in memory, decoded by the Windows Imaging Component.
class Frame {
 public:
  /// `container` is the file's format, such as GUID_ContainerFormatPng. The file must outlive the frame.
  Frame(PictureBytes file, const GUID& container);

  /// Returns how the rows are stored, or nothing if the file can't be decoded. Formats that SampleFormat can't describe
  /// are converted to bytes of blue, green, red and alpha.
  [[nodiscard]] std::optional<SampleFormat> format() const;
  /// Stores all rows. Returns false if the image has another size or the file is damaged.
  [[nodiscard]] bool read(std::int32_t width, std::int32_t height, SampleRows& rows, const SampleFormat& format);

 private:
  Imaging imaging_;
  ComPointer<IWICBitmapSource> source_;
};

}  // namespace quillhue
