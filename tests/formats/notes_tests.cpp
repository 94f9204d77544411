#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>

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

// Returns the text, and + if the standard reading reads the file, otherwise -.
std::string shown(const std::optional<ReadingNote>& note) {
  if (!note) {
    return "";
  }
  return note->text + (note->text.empty() ? "" : " ") + (note->standardReads ? '+' : '-');
}

// Returns a sample with patches, or the bytes of a text.
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
  std::map<std::string, std::string> expected;
  for (const auto& row : readTable("written_notes.txt")) {
    expected[row.at(0) + ' ' + row.at(1)] = row.at(2);
  }
  for (const PaletteWriter* writer : paletteWriters()) {
    const auto reader = std::ranges::find(paletteReaders(), writer->name, &PaletteReader::name);
    for (const std::int32_t size : {16, 100, 256}) {
      const auto content = composePaletteFile(variedPalette(size), writer->format, {});
      const auto note = content ? noteWriting(variedPalette(size), **reader, *content) : std::nullopt;
      const std::string place = std::string(writer->name) + ' ' + std::to_string(size);
      EXPECT_EQ(note ? note->text : "", expected[place]) << place;
    }
  }
}

}  // namespace
}  // namespace quillhue
