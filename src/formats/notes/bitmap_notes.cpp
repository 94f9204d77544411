#include <array>
#include <initializer_list>
#include <span>
#include <sstream>
#include <utility>

#include "formats/bitmap_layout.h"
#include "formats/clipboard_directory.h"
#include "formats/notes/format_notes.h"
#include "formats/standard/bitmap_header.h"

namespace quillhue {

namespace {

using namespace bitmap_layout;

// The parts of a bitmap behind its file header, as the default reading finds them.
struct Place {
  std::uint64_t header = 0;
  // The color table, or the pixels of a bitmap without one.
  std::uint64_t table = 0;
  // The offset of the pixels that a file header contains.
  std::optional<std::uint64_t> pixels;
};

Place placeInBitmapFile(ByteSource& source) {
  return {kFileHeader, source.u8(kPixelOffset), source.u32le(kPixelOffset)};
}

// The last bitmap in a clipboard file.
std::optional<Place> placeInClipboardFile(ByteSource& source) {
  std::optional<Place> place;
  for (const ClipboardItem& item : clipboardItems(source)) {
    if (item.format == kBitmapItem) {
      place = {item.data, item.data + kInfoHeader, std::nullopt};
    }
  }
  return place;
}

// Explains a header that the standard reading may refuse. The default reading treats every header as one of 40 bytes.
std::string explainHeader(ByteSource& source, std::uint64_t header) {
  const std::uint32_t size = source.u32le(header + kHeaderSize);
  if (size != kInfoHeader) {
    return textOfParts("the header has ", size, " bytes; read as one of ", kInfoHeader);
  }
  const std::uint32_t compression = source.u32le(header + kCompression);
  return compression == 0 ? "" : textOfParts("the pixels have compression ", compression, "; read as uncompressed");
}

// The oldest header, whose fields are shorter.
bool isCoreHeader(ByteSource& source, std::uint64_t header) { return source.u32le(header + kHeaderSize) == 12; }

std::string explainOffsets(const BitmapHeader& header, std::uint64_t table) {
  if (header.bits > 8) {
    return header.pixels == table
               ? ""
               : textOfParts("the header has pixels at offset ", header.pixels, "; read from offset ", table);
  }
  const unsigned entries = header.bits <= 4 ? 16 : 256;
  const std::uint64_t pixels = table + 4 * std::uint64_t{entries};
  if (header.table == table && header.pixels == pixels) {
    return "";
  }
  return textOfParts("the header has ", header.entries, " colors at offset ", header.table, " and pixels at offset ",
                     header.pixels, "; read as ", entries, " colors at offset ", table, " and pixels at offset ",
                     pixels);
}

std::string explainMasks(const BitmapHeader& header) {
  using Masks = std::array<std::uint32_t, 4>;
  const Masks usual = header.bits == 16 ? Masks{0x7C00, 0x3E0, 0x1F, 0} : Masks{0xFF0000, 0xFF00, 0xFF, 0};
  if (header.bits < 16 || header.masks == usual) {
    return "";
  }
  const std::size_t count = header.masks[3] == 0 ? 3 : 4;
  std::ostringstream text;
  text << std::hex << std::uppercase << "the header has masks";
  for (const std::uint32_t mask : std::span(header.masks).first(count)) {
    text << ' ' << mask;
  }
  text << "; read with masks " << usual[0] << ' ' << usual[1] << ' ' << usual[2];
  return text.str();
}

bool hasAllPixels(const BitmapHeader& header, ByteSource& source) {
  const std::uint64_t rowBits = static_cast<std::uint64_t>(header.width) * header.bits;
  const std::uint64_t rows = (rowBits + 31) / 32 * 4 * static_cast<std::uint64_t>(header.height - 1);
  return header.compression != BitmapHeader::Compression::none ||
         header.pixels + rows + (rowBits + 7) / 8 <= source.size();
}

std::optional<ReadingNote> noteOf(std::initializer_list<std::string> clauses, bool standardReads) {
  std::string text;
  for (const std::string& clause : clauses) {
    text += (text.empty() || clause.empty() ? "" : "; ") + clause;
  }
  return text.empty() ? std::nullopt : std::optional(ReadingNote{std::move(text), standardReads});
}

std::optional<ReadingNote> noteBitmapAt(ByteSource& source, const Place& place) {
  const auto header = readBitmapHeader(source, place.header, place.pixels);
  if (!header) {
    return noteOf({explainHeader(source, place.header)}, false);
  }
  const bool isCompressed = header->compression != BitmapHeader::Compression::none;
  const bool isComplete = hasAllPixels(*header, source);
  return noteOf(
      {isCoreHeader(source, place.header) ? explainHeader(source, place.header) : "",
       isCompressed ? "the compressed pixels are read as uncompressed" : "", explainOffsets(*header, place.table),
       explainMasks(*header), isComplete ? "" : "the file ends before its pixels do"},
      isComplete);
}

std::string explainRefusalAt(ByteSource& source, const Place& place) {
  const auto header = readBitmapHeader(source, place.header, place.pixels);
  if (header && header->isTopDown) {
    return "the height is negative, so the rows run from top to bottom";
  }
  return isCoreHeader(source, place.header) ? explainHeader(source, place.header) : "";
}

bool isBitmapFile(ByteSource& source) { return matchTag(source, 0, "BM"); }

std::optional<ReadingNote> noteBitmap(ByteSource& source) { return noteBitmapAt(source, placeInBitmapFile(source)); }

std::string explainBitmapRefusal(ByteSource& source) { return explainRefusalAt(source, placeInBitmapFile(source)); }

bool isClipboardFile(ByteSource& source) { return source.u16le(0) == kClipboardFileId; }

std::optional<ReadingNote> noteClipboardBitmap(ByteSource& source) {
  const auto place = placeInClipboardFile(source);
  return place ? noteBitmapAt(source, *place) : std::nullopt;
}

std::string explainClipboardRefusal(ByteSource& source) {
  const auto place = placeInClipboardFile(source);
  return place ? explainRefusalAt(source, *place) : "";
}

}  // namespace

constinit const ImageNotes kBitmapImageNotes{isBitmapFile, noteBitmap, explainBitmapRefusal};
constinit const ImageNotes kClipboardImageNotes{isClipboardFile, noteClipboardBitmap, explainClipboardRefusal};

std::optional<ReadingNote> noteBitmapPalette(ByteSource& source, const ReadResult& reading) {
  const auto header = readBitmapFileHeader(source);
  const auto* const file = reading ? std::get_if<FilePalette>(&*reading) : nullptr;
  if (!header || header->bits > 8 || file == nullptr) {
    if (reading) {
      return noteBitmap(source);
    }
    return header ? std::optional(ReadingNote{explainBitmapRefusal(source), true}) : std::nullopt;
  }
  const auto table = readColorTable(source, *header);
  if (table && *table == file->palette) {
    return std::nullopt;
  }
  return noteOf({textOfParts("the header has ", header->entries, " colors at offset ", header->table, "; read as ",
                             file->palette.getSize(), " colors at offset ", kFileHeader + kInfoHeader)},
                table.has_value());
}

}  // namespace quillhue
