// The input is a sequence of actions on a document and its files: new, open, edit, undo, save, Save As and the question
// before a palette is discarded, with every answer and with failing calls. After each action the file must contain the
// old or the new palette, and an unsaved palette must be modified.

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "formats/files.h"
#include "formats/image_file.h"
#include "formats/palette_file.h"
#include "formats/true_color_bitmap.h"
#include "formats/writers/palette_writers.h"
#include "fuzz_target.h"
#include "support/bitmaps.h"
#include "support/case_bytes.h"
#include "support/fakes.h"
#include "support/faulty_files.h"
#include "support/palettes.h"
#include "support/scratch_folder.h"

namespace {

using namespace quillhue;

class Documents {
 public:
  explicit Documents(CaseBytes bytes) : bytes_(std::move(bytes)) { create(); }

  void run() {
    constexpr std::array kActs{&Documents::create,     &Documents::open, &Documents::edit,
                               &Documents::undoOrRedo, &Documents::keep, &Documents::write};
    constexpr int kMostActs = 40;
    for (int i = 0; i < kMostActs && bytes_.left() > 0; ++i) {
      answer();
      (this->*bytes_.anyOf(kActs))();
      require(document().getSize() >= 1 && document().getSize() <= kMaxPaletteSize, "1 to 1024 entries");
      fakes_.takeLines();
    }
  }

 private:
  [[nodiscard]] PaletteDocument& document() const { return *slot_.document(); }

  // Chooses the answers to all questions of the next action.
  void answer() {
    fakes_.saveChanges =
        bytes_.anyOf(std::array{SaveChangesAnswer::yes, SaveChangesAnswer::no, SaveChangesAnswer::cancel});
    fakes_.replaceFile = bytes_.upTo(1) == 1;
    fakes_.paletteFromImage = bytes_.upTo(40) - 20;
    fakes_.saveAs.reset();
    if (bytes_.upTo(3) > 0) {
      fakes_.saveAs = SaveAsAnswer{anyName(), anyFormat()};
    }
  }
  std::wstring anyName() { return folder_.name(bytes_.anyOf(std::array{"a", "b.pal", "c.act", "none/d.pal"})); }
  PaletteFormat anyFormat() { return bytes_.upTo(12); }

  void create() {
    const auto palette = variedPalette(1 + bytes_.upTo(255));
    if (slot_.document() == nullptr || askToSave(document(), fakes_.services)) {
      slot_.replaceDocument({.palette = palette}, fakes_.services);
    }
  }

  // Returns the next bytes, or a true-color image made from them.
  Bytes anyContent() {
    if (bytes_.upTo(1) == 0) {
      Bytes content(bytes_.next());
      std::ranges::generate(content, [&] { return bytes_.next(); });
      return content;
    }
    std::vector<ColorWord> colors(std::size_t{1} + bytes_.upTo(15));
    std::ranges::generate(colors, [&] { return ColorWord{bytes_.next()} * 0x10204; });
    return bitmapOf(1, 24, colors);
  }

  // Opens a new file or a file that was saved before.
  void open() {
    const std::wstring name = bytes_.upTo(1) == 0 ? folder_.file("given.pal", anyContent()) : anyName();
    const Palette before = document().getPalette();
    const bool wasModified = document().isModified();
    readPaletteFile(name, slot_, fakes_.services);
    if (!fakes_.takeLast("error: ").empty()) {
      require(document().getPalette() == before && document().isModified() == wasModified, "a refusal changes nothing");
    }
    std::optional<WorkImage> image;
    const bool isLoaded = loadImageFile(name, image, fakes_, {});
    require(isLoaded == image.has_value() && isLoaded == fakes_.takeLast("error: ").empty(), "an image or a message");
  }

  void edit() {
    const std::int32_t index = bytes_.next() % document().getSize();
    const std::int32_t before = document().modificationCount();
    document().recordColor(index);
    document().setColor(index, bytes_.colorUpTo(255));
    require(document().modificationCount() == before + 1 && document().canUndo(), "an edit is a step of undo");
  }

  void undoOrRedo() { bytes_.upTo(1) == 0 ? document().undo() : document().redo(); }

  // Saves, saves as, or asks whether to save.
  void keep() {
    const int way = bytes_.upTo(2);
    const bool wasModified = document().isModified();
    const bool goesOn = way == 0   ? save(document(), fakes_.services)
                        : way == 1 ? saveAs(document(), fakes_.services)
                                   : askToSave(document(), fakes_.services);
    if (goesOn && (way < 2 || (wasModified && fakes_.saveChanges == SaveChangesAnswer::yes))) {
      expectSaved();
    }
  }

  // Saves over a file while a call fails.
  void write() {
    const Bytes before{1, 2, 3};
    const std::wstring name = folder_.file("written", before);
    const bool wasModified = document().isModified();
    const std::uint8_t call = bytes_.upTo(8);
    FaultyFiles files(bytes_.anyOf(std::array{Fault::failed, Fault::notReplaceable}), call);
    const PaletteFormat format = anyFormat();
    if (writePaletteFile(document(), name, format, fakes_.services, files)) {
      expectSaved();
      return;
    }
    require(document().isModified() == wasModified, "a failure leaves the document as it was");
    const std::string stored = folder_.contentOf("written");
    // A format without a writer gives an empty file.
    require(bytesOf(stored) == before || (stored.empty() && findPaletteWriter(format) == nullptr), "the old file");
  }

  void expectSaved() {
    const auto composed = composePaletteFile(document().getPalette(), document().getFormat(), fakes_.settings.blank);
    const auto file = openFile(document().getFileName());
    require(!document().isModified() && composed && file, "a saved palette has a file");
    require((*file)->bytes(0, static_cast<std::size_t>((*file)->size())) == *composed, "the file has the palette");
  }

  CaseBytes bytes_;
  ScratchFolder folder_;
  RecordingServices fakes_;
  DocumentSlot slot_;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Documents(CaseBytes(std::vector(data, data + size))).run();
  return 0;
}
