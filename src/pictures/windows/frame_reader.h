#pragma once

#include <cstdint>
#include <optional>

#include "pictures/sample_rows.h"
#include "pictures/windows/imaging.h"

namespace quillhue {

/// The first image of a file in memory, by the Windows Imaging Component.
class Frame {
 public:
  /// `container` names the file's format, as GUID_ContainerFormatPng. The file outlives the frame.
  Frame(PictureBytes file, const GUID& container);

  /// How its rows are stored; nothing when the file can't be decoded. Forms that SampleFormat does not know are
  /// converted to bytes of blue, green, red and alpha.
  [[nodiscard]] std::optional<SampleFormat> format() const;
  /// Stores all rows. False when the image has another size, or the file is damaged.
  [[nodiscard]] bool read(std::int32_t width, std::int32_t height, SampleRows& rows, const SampleFormat& format);

 private:
  Imaging imaging_;
  ComPointer<IWICBitmapSource> source_;
};

}  // namespace quillhue
