#include "pictures/png_encoder.h"

#include <algorithm>

#include "pictures/packed_rows.h"
#include "pictures/windows/imaging.h"

namespace quillhue {

namespace {

using Bytes = std::vector<std::uint8_t>;

WICPixelFormatGUID formatOf(unsigned bitsPerPixel) {
  switch (bitsPerPixel) {
    case 1:
      return GUID_WICPixelFormat1bppIndexed;
    case 2:
      return GUID_WICPixelFormat2bppIndexed;
    case 4:
      return GUID_WICPixelFormat4bppIndexed;
    default:
      return GUID_WICPixelFormat8bppIndexed;
  }
}

bool setPalette(IWICImagingFactory& factory, IWICBitmapFrameEncode& frame, const PngImage& image) {
  std::vector<WICColor> colors;
  for (const PaletteEntry& color : image.colors) {
    const WICColor alpha = image.transparent[colors.size()] ? 0 : 0xFF000000;
    colors.push_back(alpha | static_cast<WICColor>(color.red) << 16 | static_cast<WICColor>(color.green) << 8 |
                     color.blue);
  }
  const auto palette = made<IWICPalette>([&](IWICPalette** out) { return factory.CreatePalette(out); });
  return palette && SUCCEEDED(palette->InitializeCustom(colors.data(), static_cast<UINT>(colors.size()))) &&
         SUCCEEDED(frame.SetPalette(palette.get()));
}

bool writeFrame(IWICImagingFactory& factory, IWICBitmapFrameEncode& frame, const PngImage& image) {
  PackedRows rows(image);
  const WICPixelFormatGUID wanted = formatOf(rows.bitsPerPixel());
  WICPixelFormatGUID format = wanted;
  if (FAILED(frame.Initialize(nullptr)) ||
      FAILED(frame.SetSize(static_cast<UINT>(image.pixels.width), static_cast<UINT>(image.pixels.height))) ||
      FAILED(frame.SetPixelFormat(&format)) || format != wanted || !setPalette(factory, frame, image)) {
    return false;
  }
  const auto length = static_cast<UINT>(rows.rowLength());
  for (std::int32_t y = 0; y < image.pixels.height; ++y) {
    if (FAILED(frame.WritePixels(1, length, length, rows.row(y).data()))) {
      return false;
    }
  }
  return SUCCEEDED(frame.Commit());
}

bool writeFile(IWICImagingFactory& factory, IStream& stream, const PngImage& image) {
  const auto encoder = made<IWICBitmapEncoder>(
      [&](IWICBitmapEncoder** out) { return factory.CreateEncoder(GUID_ContainerFormatPng, nullptr, out); });
  if (!encoder || FAILED(encoder->Initialize(&stream, WICBitmapEncoderNoCache))) {
    return false;
  }
  const auto frame =
      made<IWICBitmapFrameEncode>([&](IWICBitmapFrameEncode** out) { return encoder->CreateNewFrame(out, nullptr); });
  return frame && writeFrame(factory, *frame, image) && SUCCEEDED(encoder->Commit());
}

bool readAll(IStream& stream, Bytes& file) {
  STATSTG status{};
  if (FAILED(stream.Stat(&status, STATFLAG_NONAME)) || FAILED(stream.Seek({}, STREAM_SEEK_SET, nullptr))) {
    return false;
  }
  file.resize(static_cast<std::size_t>(status.cbSize.QuadPart));
  ULONG read = 0;
  return SUCCEEDED(stream.Read(file.data(), static_cast<ULONG>(file.size()), &read)) && read == file.size();
}

}  // namespace

std::expected<Bytes, Failure> composePng(const PngImage& image) {
  const Imaging imaging;
  const auto stream = made<IStream>([](IStream** out) { return CreateStreamOnHGlobal(nullptr, TRUE, out); });
  Bytes file;
  if (imaging.factory() == nullptr || !stream || !writeFile(*imaging.factory(), *stream, image) ||
      !readAll(*stream, file)) {
    return std::unexpected(Failure::couldNotCreate);
  }
  return file;
}

}  // namespace quillhue
