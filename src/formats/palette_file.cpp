#include "formats/palette_file.h"

#include <new>
#include <utility>
#include <variant>

#include "formats/files.h"
#include "formats/image_colors.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

using Opened = std::expected<std::optional<DocumentContent>, Failure>;

Opened makeFromImage(const TrueColorBitmap& bitmap, Services& services) try {
  const ImageColors colors(bitmap);
  if (bitmap.source().failed()) {
    return std::unexpected(Failure::couldNotOpen);
  }
  const std::int32_t answer = services.fileQuestions.askPaletteFromImage(colors.distinctCount());
  if (answer == 0) {
    return std::nullopt;
  }
  const PaletteEntry blank = services.settings.blank;
  Palette palette = answer > 0 ? colors.exactPalette(answer, blank) : colors.reducedPalette(-answer, blank);
  if (bitmap.source().failed()) {
    return std::unexpected(Failure::couldNotOpen);
  }
  return DocumentContent{.palette = std::move(palette), .isModified = true};
} catch (const std::bad_alloc&) {
  return std::unexpected(Failure::notEnoughMemory);
}

Opened open(const std::wstring& fileName, Services& services) {
  const auto source = openFile(fileName);
  if (!source) {
    return std::unexpected(source.error());
  }
  auto content = readPalette({**source, fileName});
  if (!content) {
    return std::unexpected(content.error());
  }
  if (const auto* bitmap = std::get_if<TrueColorBitmap>(&*content)) {
    return makeFromImage(*bitmap, services);
  }
  auto& file = std::get<FilePalette>(*content);
  return DocumentContent{.palette = std::move(file.palette), .fileName = fileName, .format = file.format};
}

}  // namespace

void readPaletteFile(const std::wstring& fileName, DocumentSlot& slot, Services& services) {
  auto opened = open(fileName, services);
  if (!opened) {
    services.messages.error(textOf(opened.error()));
  } else if (std::optional<DocumentContent>& content = *opened; content) {
    slot.replaceDocument(*std::move(content), services);
  }
}

bool writePaletteFile(PaletteDocument& document, const std::wstring& fileName, PaletteFormat format, Services& services,
                      FileSystem& files) {
  const auto bytes = composePaletteFile(document.getPalette(), format, services.settings.blank);
  if (!bytes) {
    services.messages.error(textOf(bytes.error()));
    return false;
  }
  // Made now, because nothing may fail once the file is written.
  DocumentName name(fileName);
  if (!writeFile(fileName, *bytes, files)) {
    services.messages.error(textOf(Failure::couldNotCreate));
    return false;
  }
  // kept on purpose: a format without a writer gives an empty file, and the document stays unsaved.
  if (findPaletteWriter(format) == nullptr) {
    return false;
  }
  document.markSaved(std::move(name), format);
  return true;
}

bool saveAs(PaletteDocument& document, Services& services) {
  const PaletteFormat format = document.getFormat();
  const auto answer =
      services.fileQuestions.askSaveAs(format == palette_format::kNone ? palette_format::kRiff : format % 16);
  if (!answer) {
    return false;
  }
  const PaletteWriter* const writer = findPaletteWriter(answer->format);
  const bool appends = writer != nullptr && writer->appendsExtension;
  const std::wstring name = appends ? withExtension(answer->fileName, writer->extension) : answer->fileName;
  if (fileExists(name) && !services.messages.askReplaceFile("This file already exists.\nDo you want to replace it?")) {
    return false;
  }
  return writePaletteFile(document, name, answer->format, services);
}

bool save(PaletteDocument& document, Services& services) {
  if (document.getFormat() == palette_format::kNone) {
    return saveAs(document, services);
  }
  return writePaletteFile(document, document.getFileName(), document.getFormat(), services);
}

bool askToSave(PaletteDocument& document, Services& services) {
  if (!document.isModified()) {
    return true;
  }
  switch (services.messages.askSaveChanges("Do you want to save the current palette?")) {
    case SaveChangesAnswer::yes:
      return save(document, services);
    case SaveChangesAnswer::no:
      return true;
    case SaveChangesAnswer::cancel:
      return false;
  }
  return false;
}

std::wstring withExtension(std::wstring name, std::string_view extension) {
  constexpr std::size_t kExtensionLength = 4;
  const bool hasExtension = name.size() > kExtensionLength && name[name.size() - kExtensionLength] == L'.';
  if (!hasExtension) {
    name += L'.';
    name.append(extension.begin(), extension.end());
  }
  return name;
}

}  // namespace quillhue
