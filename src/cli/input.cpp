#include "cli/input.h"

#include <new>
#include <utility>
#include <variant>

#include "cli/file_log.h"
#include "cli/file_reason.h"
#include "cli/notes.h"
#include "cli/picture_input.h"
#include "core/utf8.h"
#include "formats/files.h"
#include "formats/notes/reading_note.h"
#include "formats/standard/standard_formats.h"

namespace quillhue::cli {

namespace {

bool isWithoutPalette(Failure failure) {
  return failure == Failure::unrecognisedType || failure == Failure::pngNotIndexed;
}

FileRecord recordOfContent(const std::string& file, std::string_view format, ByteSource& source,
                           const FileContent& content) {
  if (const auto* const image = std::get_if<WorkImage>(&content)) {
    return recordOf(file, format, source.size(), *image);
  }
  FileRecord record{.file = file, .format = std::string(format), .bytes = source.size()};
  if (const auto* const stored = std::get_if<FilePalette>(&content)) {
    record.entries = stored->palette.getSize();
  }
  return record;
}

}  // namespace

std::expected<std::unique_ptr<ByteSource>, Failure> openSource(const std::string& file, Console& console) {
  return file == "-" ? readStream(console.in) : openFile(fromUtf8(file));
}

std::expected<Input, Failure> openInput(const std::string& file, const InputOptions& options, Console& console) {
  auto source = openSource(file, console);
  return source ? readInput(*std::move(source), file, options, &console) : std::unexpected(source.error());
}

std::expected<Input, Failure> readInput(std::unique_ptr<ByteSource> source, const std::string& file,
                                        const InputOptions& options, Console* notes) {
  const std::wstring name = fromUtf8(inputName(file, options));
  const ReaderInput input{*source, name};
  const PaletteReader* reader = options.standard ? findStandardReader(input) : nullptr;
  const bool isStandard = reader != nullptr;
  reader = isStandard ? reader : findPaletteReader(input);
  ReadResult content = isStandard ? reader->read(input) : readPalette(input);
  if (source->failed()) {
    return std::unexpected(Failure::couldNotOpen);
  }
  const PaletteReader* const picture =
      !content && isWithoutPalette(content.error()) ? findPictureReader(input) : nullptr;
  if (picture != nullptr) {
    reader = picture;
    content = picture->read(input);
  } else if (!isStandard && notes != nullptr) {
    addReadingNote(*notes, file, notePaletteReading(input, content));
  }
  if (!content) {
    return std::unexpected(content.error());
  }
  if (notes != nullptr) {
    addRead(*notes, recordOfContent(file, reader->name, *source, *content));
  }
  const auto* const stored = std::get_if<FilePalette>(&*content);
  if (stored != nullptr && stored->isCut && notes != nullptr) {
    addNote(*notes, file, "only the first " + std::to_string(kMaxPaletteSize) + " entries are used.");
  }
  return Input{std::move(source), reader, std::move(*content)};
}

ImageColors colorsOf(const FileContent& image) {
  const auto* const bitmap = std::get_if<TrueColorBitmap>(&image);
  return bitmap == nullptr ? ImageColors(std::get<WorkImage>(image)) : ImageColors(*bitmap);
}

const std::string& inputName(const std::string& file, const InputOptions& options) {
  return file == "-" ? options.name : file;
}

std::expected<InputPalette, std::string> readFilePalette(const std::string& file, const InputOptions& options,
                                                         Console& console) try {
  auto input = openInput(file, options, console);
  if (!input) {
    return Refusal(openingFailure(input.error(), file));
  }
  if (!std::holds_alternative<FilePalette>(input->content)) {
    return Refusal("The image has no palette. Make one from its colors with convert --colors.");
  }
  return InputPalette{std::move(std::get<FilePalette>(input->content).palette), input->reader->name};
} catch (const std::bad_alloc&) {
  return refusalOf(Failure::notEnoughMemory);
}

}  // namespace quillhue::cli
