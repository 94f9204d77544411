#include <gtest/gtest.h>

#include <functional>

#include "formats/bitmap_writer.h"
#include "formats/files.h"
#include "formats/palette_file.h"
#include "formats/writers/palette_writers.h"
#include "support/fakes.h"
#include "support/faulty_files.h"
#include "support/palettes.h"
#include "support/scratch_folder.h"

namespace quillhue {
namespace {

TEST(Files, RefuseWhatIsNoFile) {
  const ScratchFolder folder;
  for (const std::wstring& name : {folder.name(), folder.name("none"), folder.name("none/x"), std::wstring()}) {
    EXPECT_EQ(openFile(name).error(), Failure::couldNotOpen);
    EXPECT_EQ(writeFile(name, Bytes{1}), name == folder.name("none"));
  }
  EXPECT_TRUE(fileExists(folder.name("none")));
  EXPECT_FALSE(fileExists(folder.name("x")));
}

using Save = std::function<bool(const std::wstring& name, FileSystem& files)>;

bool savePalette(const std::wstring& name, PaletteFormat format, FileSystem& files) {
  RecordingServices fakes;
  DocumentSlot slot;
  slot.replaceDocument(
      {.palette = variedPalette(16), .isModified = true, .fileName = name, .format = palette_format::kRiff},
      fakes.services);
  fakes.takeLines();
  const PaletteDocument& document = *slot.document();
  const bool saved = writePaletteFile(*slot.document(), name, format, fakes.services, files);
  EXPECT_EQ(document.isModified(), !saved);
  EXPECT_EQ(document.getFormat(), saved ? format : palette_format::kRiff);
  EXPECT_EQ(fakes.takeLast("error: "), saved ? "" : textOf(Failure::couldNotCreate));
  return saved;
}

TEST(Files, AreTheOldOrTheNewOnesWhicheverCallFailsOrIsTheLast) {
  std::vector<Save> saves{[](const std::wstring& name, FileSystem& files) {
    return writeFile(name, composeBitmap({4, 2, Bytes(8)}, variedPalette(17), {}), files);
  }};
  for (const PaletteWriter* writer : paletteWriters()) {
    saves.emplace_back([format = writer->format](const std::wstring& name, FileSystem& files) {
      return savePalette(name, format, files);
    });
  }
  const std::string file = std::string(251, 'x') + ".act";
  for (const Save& save : saves) {
    const ScratchFolder folder;
    const std::wstring name = folder.name(file);
    EXPECT_TRUE(save(name, systemFiles()));
    const std::string content = folder.contentOf(file);
    // Longer than some of the new files.
    const std::string old(900, 'x');
    for (const Fault fault : {Fault::failed, Fault::notReplaceable, Fault::powerCut}) {
      bool isReached = true;
      for (int at = 0; isReached; ++at) {
        EXPECT_EQ(folder.file(file, bytesOf(old)), name);
        FaultyFiles files(fault, at);
        const bool saved = save(name, files);
        isReached = files.calls() > at;
        // A file that can't be replaced is overwritten.
        EXPECT_EQ(saved, !isReached || (fault == Fault::notReplaceable && files.calls() > at + 1)) << at;
        EXPECT_EQ(folder.contentOf(file), saved ? content : old) << at;
        EXPECT_TRUE(fault == Fault::powerCut || folder.count() == 1) << at;
        EXPECT_TRUE(save(name, systemFiles()));
        EXPECT_EQ(folder.contentOf(file), content) << at;
      }
    }
  }
}

}  // namespace
}  // namespace quillhue
