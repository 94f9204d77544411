#include "cli/input.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <system_error>
#include <utility>
#include <variant>

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

std::vector<std::string> expandFolders(const std::vector<std::string>& files) {
  std::vector<std::string> expanded;
  for (const std::string& file : files) {
    std::error_code error;
    std::filesystem::directory_iterator entry(toPath(fromUtf8(file)), error);
    if (file == "-" || error) {
      expanded.push_back(file);
      continue;
    }
    const auto first = static_cast<std::ptrdiff_t>(expanded.size());
    for (; entry != std::filesystem::directory_iterator(); entry.increment(error)) {
      std::error_code unknown;
      if (entry->is_regular_file(unknown)) {
        expanded.push_back(toUtf8(toFileName(entry->path())));
      }
    }
    std::sort(expanded.begin() + first, expanded.end());
    if (error) {
      // The folder could be listed only in part, so it is kept as an input and later refused like a file.
      expanded.push_back(file);
    }
  }
  return expanded;
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
