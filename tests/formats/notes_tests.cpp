#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "core/utf8.h"
#include "formats/images/image_loaders.h"
#include "formats/notes/reading_note.h"
#include "formats/notes/written_note.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"
#include "support/palettes.h"
#include "support/patches.h"
#include "support/table.h"

namespace quillhue {
namespace {

// The text, and whether the standard reading helps.
std::string shown(const std::optional<ReadingNote>& note) {
  if (!note) {
    return "";
  }
  return note->text + (note->text.empty() ? "" : " ") + (note->standardReads ? '+' : '-');
}

// A sample with patches, or a text.
Bytes contentOf(const std::string& file, const std::string& patchesOrText) {
  if (file.find('/') == std::string::npos) {
    return bytesOf(patchesOrText);
  }
  std::ifstream stream(file, std::ios::binary);
  Bytes content{std::istreambuf_iterator(stream), {}};
  patch(content, patchesOrText);
  return content;
}

TEST(ReadingNotes, AreThoseOfTheTable) {
  for (const auto& row : readTable("notes.txt")) {
    MemorySource source(contentOf(row.at(0), row.at(1)));
    const std::wstring name = fromUtf8(row[0]);
    const ReaderInput input{source, name};
    EXPECT_EQ(shown(notePaletteReading(input, readPalette(input))), row.at(2)) << row[0] << ' ' << row[1];
    EXPECT_EQ(shown(noteImageReading(source, loadImage(source).has_value())), row.at(3)) << row[0] << ' ' << row[1];
  }
}

TEST(WritingNotes, SayWhatAFormatChanges) {
  std::string notes;
  for (const PaletteWriter* writer : paletteWriters()) {
    const auto reader = std::ranges::find(paletteReaders(), writer->name, &PaletteReader::name);
    for (const std::int32_t size : {16, 100, 256}) {
      const auto content = composePaletteFile(variedPalette(size), writer->format, {});
      const auto note = content ? noteWriting(variedPalette(size), **reader, *content) : std::nullopt;
      notes += note ? std::string(writer->name) + ": " + note->text + '\n' : "";
    }
  }
  EXPECT_EQ(notes,
            "cmp: 100 entries are padded to 128\n"
            "color-table: 16 entries are padded to 256\n"
            "color-table: 100 entries are padded to 256\n"
            "dr-halo: 16 entries are padded to 256\n"
            "dr-halo: 100 entries are padded to 256\n"
            "jasc: the count is stored in one byte, so the file is refused when it is read\n"
            "ms-draw: 16 entries are stored as 17: the format drops repeated colors and adds black\n"
            "ms-draw: 100 entries are stored as 101: the format drops repeated colors and adds black\n");
}

}  // namespace
}  // namespace quillhue
