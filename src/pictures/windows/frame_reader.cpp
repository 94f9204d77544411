#include "pictures/windows/frame_reader.h"

#include <algorithm>
#include <vector>

namespace quillhue {

namespace {

constexpr std::size_t kBytesAtOnce = std::size_t{1} << 24;

struct KnownFormat {
  const GUID& guid;
  SampleFormat format;
};

// Samples of 16 bits are in the processor's byte order.
constexpr std::array<KnownFormat, 18> kFormats{{
    {GUID_WICPixelFormat1bppIndexed, {SampleKind::index, false, 1, 1}},
    {GUID_WICPixelFormat2bppIndexed, {SampleKind::index, false, 2, 3}},
    {GUID_WICPixelFormat4bppIndexed, {SampleKind::index, false, 4, 15}},
    {GUID_WICPixelFormat8bppIndexed, {SampleKind::index, false, 8, 255}},
    {GUID_WICPixelFormatBlackWhite, {SampleKind::gray, false, 1, 1}},
    {GUID_WICPixelFormat2bppGray, {SampleKind::gray, false, 2, 3}},
    {GUID_WICPixelFormat4bppGray, {SampleKind::gray, false, 4, 15}},
    {GUID_WICPixelFormat8bppGray, {SampleKind::gray, false, 8, 255}},
    {GUID_WICPixelFormat16bppGray, {SampleKind::gray, false, 16, 65535, true}},
    {GUID_WICPixelFormat24bppRGB, {SampleKind::color, false, 8, 255}},
    {GUID_WICPixelFormat24bppBGR, {SampleKind::reversedColor, false, 8, 255}},
    {GUID_WICPixelFormat48bppRGB, {SampleKind::color, false, 16, 65535, true}},
    {GUID_WICPixelFormat48bppBGR, {SampleKind::reversedColor, false, 16, 65535, true}},
    {GUID_WICPixelFormat32bppRGBA, {SampleKind::color, true, 8, 255}},
    {GUID_WICPixelFormat32bppBGRA, {SampleKind::reversedColor, true, 8, 255}},
    {GUID_WICPixelFormat64bppRGBA, {SampleKind::color, true, 16, 65535, true}},
    {GUID_WICPixelFormat64bppBGRA, {SampleKind::reversedColor, true, 16, 65535, true}},
    {GUID_WICPixelFormat32bppCMYK, {SampleKind::ink, false, 8, 255}},
}};

ComPointer<IWICBitmapSource> openFrame(IWICImagingFactory& factory, PictureBytes file, const GUID& container) {
  const auto stream = made<IWICStream>([&](IWICStream** out) { return factory.CreateStream(out); });
  const auto decoder =
      made<IWICBitmapDecoder>([&](IWICBitmapDecoder** out) { return factory.CreateDecoder(container, nullptr, out); });
  // The stream only reads, although its interface takes writable memory.
  if (!stream || !decoder ||
      FAILED(stream->InitializeFromMemory(const_cast<BYTE*>(file.data()), static_cast<DWORD>(file.size()))) ||
      FAILED(decoder->Initialize(stream.get(), WICDecodeMetadataCacheOnDemand))) {
    return {};
  }
  return made<IWICBitmapSource>([&](IWICBitmapSource** out) {
    IWICBitmapFrameDecode* frame = nullptr;
    const HRESULT result = decoder->GetFrame(0, &frame);
    *out = frame;
    return result;
  });
}

ComPointer<IWICBitmapSource> converted(IWICImagingFactory& factory, IWICBitmapSource& source) {
  auto converter =
      made<IWICFormatConverter>([&](IWICFormatConverter** out) { return factory.CreateFormatConverter(out); });
  if (!converter || FAILED(converter->Initialize(&source, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                                 nullptr, 0, WICBitmapPaletteTypeCustom))) {
    return {};
  }
  return ComPointer<IWICBitmapSource>(converter.release());
}

std::optional<SampleFormat> formatOf(IWICBitmapSource& source) {
  WICPixelFormatGUID format{};
  if (FAILED(source.GetPixelFormat(&format))) {
    return {};
  }
  const auto* const known = std::ranges::find_if(kFormats, [&](const KnownFormat& row) { return row.guid == format; });
  return known == kFormats.end() ? std::nullopt : std::optional(known->format);
}

}  // namespace

Frame::Frame(PictureBytes file, const GUID& container) {
  if (imaging_.factory() == nullptr) {
    return;
  }
  source_ = openFrame(*imaging_.factory(), file, container);
  if (source_ && !formatOf(*source_)) {
    source_ = converted(*imaging_.factory(), *source_);
  }
}

std::optional<SampleFormat> Frame::format() const { return source_ ? formatOf(*source_) : std::nullopt; }

bool Frame::read(std::int32_t width, std::int32_t height, SampleRows& rows, const SampleFormat& format) {
  UINT columns = 0;
  UINT lines = 0;
  if (FAILED(source_->GetSize(&columns, &lines)) || columns != static_cast<UINT>(width) ||
      lines != static_cast<UINT>(height)) {
    return false;
  }
  const std::size_t stride = format.rowLength(static_cast<std::size_t>(width));
  const auto rowsAtOnce = static_cast<std::int32_t>(std::clamp<std::size_t>(kBytesAtOnce / stride, 1, lines));
  std::vector<std::uint8_t> strip(static_cast<std::size_t>(rowsAtOnce) * stride);
  for (std::int32_t top = 0; top < height; top += rowsAtOnce) {
    const WICRect area{0, top, width, std::min(rowsAtOnce, height - top)};
    if (FAILED(source_->CopyPixels(&area, static_cast<UINT>(stride), static_cast<UINT>(strip.size()), strip.data()))) {
      return false;
    }
    for (std::int32_t i = 0; i < area.Height; ++i) {
      rows.store(top + i, std::span(strip).subspan(static_cast<std::size_t>(i) * stride, stride));
    }
  }
  return true;
}

}  // namespace quillhue
