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

ComPointer<IWICBitmapDecoder> openDecoder(IWICImagingFactory& factory, IStream& stream, const GUID* container) {
  if (container == nullptr) {
    return made<IWICBitmapDecoder>([&](IWICBitmapDecoder** out) {
      return factory.CreateDecoderFromStream(&stream, nullptr, WICDecodeMetadataCacheOnDemand, out);
    });
  }
  auto decoder =
      made<IWICBitmapDecoder>([&](IWICBitmapDecoder** out) { return factory.CreateDecoder(*container, nullptr, out); });
  if (decoder && FAILED(decoder->Initialize(&stream, WICDecodeMetadataCacheOnDemand))) {
    decoder.reset();
  }
  return decoder;
}

ComPointer<IWICBitmapSource> openFrame(IWICImagingFactory& factory, PictureBytes file, const GUID* container) {
  const auto stream = made<IWICStream>([&](IWICStream** out) { return factory.CreateStream(out); });
  // The stream only reads, although its interface takes writable memory.
  if (!stream ||
      FAILED(stream->InitializeFromMemory(const_cast<BYTE*>(file.data()), static_cast<DWORD>(file.size())))) {
    return {};
  }
  const auto decoder = openDecoder(factory, *stream, container);
  return !decoder ? nullptr : made<IWICBitmapSource>([&](IWICBitmapSource** out) {
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

Frame::Frame(PictureBytes file, const GUID* container) {
  if (imaging_.factory() == nullptr) {
    return;
  }
  source_ = openFrame(*imaging_.factory(), file, container);
  if (source_ && !formatOf(*source_)) {
    source_ = converted(*imaging_.factory(), *source_);
  }
}

std::optional<SampleFormat> Frame::format() const { return source_ ? formatOf(*source_) : std::nullopt; }

Frame::Size Frame::size() const {
  UINT width = 0;
  UINT height = 0;
  return SUCCEEDED(source_->GetSize(&width, &height)) ? Size{width, height} : Size{};
}

std::optional<PictureColors> Frame::colors() const {
  const auto palette = made<IWICPalette>([&](IWICPalette** out) { return imaging_.factory()->CreatePalette(out); });
  std::array<WICColor, 256> entries{};
  UINT count = 0;
  if (!palette || FAILED(source_->CopyPalette(palette.get())) ||
      FAILED(palette->GetColors(static_cast<UINT>(entries.size()), entries.data(), &count))) {
    return {};
  }
  PictureColors colors{.palette = createPalette(static_cast<std::int32_t>(entries.size())), .coverage = {}};
  colors.coverage.fill(255);
  for (std::size_t i = 0; i < count; ++i) {
    const WICColor entry = entries.at(i);
    colors.palette.setEntry(static_cast<std::int32_t>(i),
                            {static_cast<std::uint8_t>(entry >> 16), static_cast<std::uint8_t>(entry >> 8),
                             static_cast<std::uint8_t>(entry)});
    colors.coverage.at(i) = static_cast<std::uint8_t>(entry >> 24);
  }
  return colors;
}

bool Frame::read(SampleRows& rows, const SampleFormat& format) {
  const auto [width, height] = size();
  const std::size_t stride = format.rowLength(static_cast<std::size_t>(width));
  const auto rowsAtOnce =
      std::clamp<std::int64_t>(static_cast<std::int64_t>(kBytesAtOnce / std::max<std::size_t>(stride, 1)), 1, height);
  std::vector<std::uint8_t> strip(static_cast<std::size_t>(rowsAtOnce) * stride);
  for (std::int64_t top = 0; top < height; top += rowsAtOnce) {
    const WICRect area{0, static_cast<INT>(top), static_cast<INT>(width),
                       static_cast<INT>(std::min(rowsAtOnce, height - top))};
    if (FAILED(source_->CopyPixels(&area, static_cast<UINT>(stride), static_cast<UINT>(strip.size()), strip.data()))) {
      return false;
    }
    for (INT i = 0; i < area.Height; ++i) {
      rows.store(area.Y + i, std::span(strip).subspan(static_cast<std::size_t>(i) * stride, stride));
    }
  }
  return true;
}

}  // namespace quillhue
