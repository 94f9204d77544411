#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <numeric>
#include <optional>
#include <ranges>
#include <spanstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "allocations/failing_allocations.h"
#include "cli/application.h"
#include "colormodes/channel_editor.h"
#include "colormodes/color_models.h"
#include "commands/command_table.h"
#include "core/commands/exchange.h"
#include "core/commands/statistics.h"
#include "core/new_palette.h"
#include "core/system_palettes.h"
#include "effects/effect_editor.h"
#include "effects/effects.h"
#include "formats/image_file.h"
#include "formats/images/image_loaders.h"
#include "formats/notes/reading_note.h"
#include "formats/palette_file.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"
#include "pictures/picture_decoder.h"
#include "remap/transparent_remap.h"
#include "support/bitmaps.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"
#include "support/stopping_progress.h"
#include "ui/logic/clipboard_image.h"
#include "ui/logic/grid_selection.h"

namespace quillhue {
namespace {

constexpr int kNone = std::numeric_limits<int>::max();

// The files of the folder and their content.
std::string contentsOf(const ScratchFolder& folder) {
  std::vector<std::string> files;
  for (const auto& file : std::filesystem::directory_iterator(toPath(folder.name()))) {
    const std::string name = file.path().filename().string();
    files.push_back(name + ": " + folder.contentOf(name) + '\n');
  }
  std::ranges::sort(files);
  return std::accumulate(files.begin(), files.end(), std::string());
}

/// The user's data: the open palette with a history, the clipboard, the settings, an image, a file. Also the editors of
/// the tabs. Carries out commands as the editor's screen does.
struct Program final : RecordingServices, CommandTarget, ChannelView {
  // Does not throw, like the program's window.
  void titleChanged(const std::wstring& /*title*/) noexcept override {}
  void statusChanged(std::string_view /*text*/) noexcept override {}
  void undoRedoChanged(bool /*canUndo*/, bool /*canRedo*/) noexcept override {}
  void documentReplaced() noexcept override {}
  void showChannel(Bar /*bar*/, const ValueRange& /*range*/, std::int32_t /*value*/) override {}
  void entryChanged(std::int32_t /*index*/) override {}

  void newPalette(NewPaletteKind kind) override { open(createNewPalette(kind, newPaletteFields(settings), {})); }
  void newSystemPalette(std::int32_t command) override { open(createSystemPalette(command, *this)); }
  void openPalette() override { readPaletteFile(L"samples/lines.gpl", slot, services); }
  void exit() override { static_cast<void>(askToSave(document(), services)); }
  void showReadMe() override {}
  void showAbout() override {}
  void savePalette() override { static_cast<void>(save(document(), services)); }
  void savePaletteAs() override { static_cast<void>(quillhue::saveAs(document(), services)); }
  void undo() override { document().undo(); }
  void redo() override { document().redo(); }
  void cut() override { cutSelection(document(), kAllChannels, settings.blank, *this); }
  void copy() override { static_cast<void>(copySelection(document(), *this)); }
  void paste() override { pasteIntoSelection(document(), kAllChannels, *this); }
  void clear() override { clearSelection(document(), kAllChannels, settings.blank); }
  void resizePalette() override { document().resize(40); }
  void countColors() override { reportColorCount(document(), *this); }
  void averageColor() override { reportAverageColor(document(), *this); }
  void editColor() override { replaceColor(document(), 1, {1, 2, 3}); }

  Program() {
    settings.blank = {9, 8, 7};
    replaceFile = true;
    saveChanges = SaveChangesAnswer::yes;
    saveAs = {folder.name("saved.gpl"), palette_format::kGimp};
    screenColors = FixedHalftone().halftone();
    clipboard.emplace(entriesOf(variedPalette(5)));
    slot.replaceDocument({.palette = variedPalette(16),
                          .fileName = folder.file("own.gpl", bytesOf("before")),
                          .format = palette_format::kGimp},
                         services);
    for (const std::int32_t index : {2, 3, 7}) {
      document().select(index);
    }
    document().resize(20);
    swap();
    swap();
    document().undo();
    image.emplace(2, 2, std::nullopt);
    channels.documentReplaced();
  }

  [[nodiscard]] PaletteDocument& document() const { return *slot.document(); }
  void swap() const { findStep("swap", "rg")->change({.document = document(), .settings = services.settings}); }
  void open(Palette palette) { slot.replaceDocument({.palette = std::move(palette), .isModified = true}, services); }

  // Returns all data as text, with all palettes of the history.
  std::string state() {
    std::ostringstream text;
    text << document().modificationCount() << ' ' << document().saveCount() << ' ' << document().getFormat() << ' '
         << toPath(document().getFileName()).filename();
    int undone = 0;
    for (; document().canUndo(); ++undone) {
      document().undo();
    }
    int step = 0;
    do {
      text << '\n'
           << (step == undone ? "now " : "") << show(document().getPalette()) << ' '
           << hexOf(document().getPalette().selected());
    } while (document().canRedo() && (document().redo(), ++step) > 0);
    for (; step > undone; --step) {
      document().undo();
    }
    text << "\nclipboard " << show(paletteOf(clipboard.value_or(std::vector<PaletteEntry>{})));
    text << "\nsettings " << int{settings.colorMode} << ' ' << int{settings.effect} << ' '
         << show(createPalette(1, settings.blank)) << ' ' << static_cast<int>(settings.selectionMode);
    if (image) {
      text << "\nimage " << image->width() << ' '
           << hexOf(image->pixels().first(std::min<std::size_t>(64, image->pixels().size())));
    }
    text << "\nresult " << result.width() << ' '
         << hexOf(result.rows().first(std::min<std::size_t>(64, result.rows().size())));
    text << "\neditors " << effects.effect().getValue() << ' ' << effects.effect().getMaximum() << ' '
         << channels.currentEntry() << ' ' << channels.mode().getLeftValue() << ' ' << grid.currentEntry() << ' '
         << output;
    text << contentsOf(folder);
    return text.str();
  }

  ScratchFolder folder;
  DocumentSlot slot;
  std::optional<WorkImage> image;
  RemappedImage result;
  std::string output;
  // The editors need a document.
  const bool hasDocument = (open(variedPalette(1)), true);
  EffectEditor effects{slot, settings, *this};
  ChannelEditor channels{slot, settings, *this};
  GridSelection grid{slot, settings};
};

using Action = std::function<void(Program& program)>;

// Lets each allocation of the action fail in turn: that one alone, and that one with all later ones.
void expectSafe(const std::string& name, const Action& act, const Action& prepare = [](Program&) {}) {
  SCOPED_TRACE(name);
  const auto prepared = [&] {
    auto program = std::make_unique<Program>();
    prepare(*program);
    program->takeLines();
    return program;
  };
  const auto reference = prepared();
  const std::string before = reference->state();
  act(*reference);
  const std::string after = reference->state();
  for (const bool isLasting : {false, true}) {
    bool hasFailed = true;
    for (int at = 0; hasFailed; ++at) {
      const auto program = prepared();
      bool isThrown = false;
      try {
        const FailingAllocations failing(at, isLasting);
        act(*program);
      } catch (const std::bad_alloc&) {
        isThrown = true;
      }
      hasFailed = FailingAllocations::hasFailed();
      const std::string state = program->state();
      const std::string lines = program->takeLines();
      const auto firstError = lines.find("error: ");
      const bool isReported =
          firstError != std::string::npos && lines.find("error: ", firstError + 1) == std::string::npos;
      if (isThrown || state != after) {
        ASSERT_EQ(state, before) << "allocation " << at;
        ASSERT_TRUE(isThrown || isReported) << "allocation " << at << ": " << lines;
        act(*program);
        ASSERT_EQ(program->state(), after) << "allocation " << at;
      }
    }
  }
}

std::vector<std::filesystem::path> filesIn(const char* folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    files.push_back(file.path());
  }
  std::ranges::sort(files);
  return files;
}

TEST(Allocations, FailWhileAPaletteOrAnImageIsRead) {
  for (const auto& file : filesIn("samples")) {
    const std::wstring name = toFileName(file);
    expectSafe("palette " + file.string(), [&](Program& program) {
      program.paletteFromImage = 3;
      readPaletteFile(name, program.slot, program.services);
    });
    expectSafe("image " + file.string(),
               [&](Program& program) { static_cast<void>(loadImageFile(name, program.image, program)); });
  }
}

// A note is no reason to refuse a file.
TEST(Allocations, FailOnlyNotesWhileReadingsAreCompared) {
  for (const auto& file : filesIn("samples")) {
    SCOPED_TRACE(file);
    const auto source = openFile(toFileName(file)).value();
    const std::wstring name = toFileName(file);
    const ReaderInput input{*source, name};
    const ReadResult reading = readPalette(input);
    bool hasFailed = true;
    for (int at = 0; hasFailed; ++at) {
      const FailingAllocations failing(at, true);
      ASSERT_NO_THROW(static_cast<void>(notePaletteReading(input, reading))) << at;
      hasFailed = FailingAllocations::hasFailed();
    }
  }
}

TEST(Allocations, FailWhileAPictureIsDecoded) {
  for (const auto& file : filesIn("pictures")) {
    const Bytes content = openFile(toFileName(file)).value()->bytes(0, 4096);
    const PictureKind* const kind = findPictureKind(content);
    ASSERT_NE(kind, nullptr) << file;
    expectSafe(file.string(), [&](Program& program) {
      if (auto image = kind->decode(content, {})) {
        program.image = std::move(*image);
      } else if (image.error() != Failure::pictureUnsupported) {
        throw std::bad_alloc();
      }
    });
  }
}

TEST(Allocations, FailWhileAPaletteIsWritten) {
  for (const PaletteWriter* writer : paletteWriters()) {
    for (const char* name : {"own.gpl", "new"}) {
      expectSafe(std::string(writer->name) + ' ' + name, [&](Program& program) {
        static_cast<void>(
            writePaletteFile(program.document(), program.folder.name(name), writer->format, program.services));
      });
    }
  }
}

TEST(Allocations, FailInCommands) {
  for (const Command& command : commands()) {
    expectSafe(menuText(command), [&](Program& program) {
      if (command.change != nullptr) {
        command.change({.document = program.document(), .settings = program.settings, .currentEntry = 2});
      } else {
        command.act(program, command.id);
      }
    });
  }
  expectSafe("paste entry", [](Program& program) { pasteEntry(program.document(), 1, program); });
  expectSafe("select by mouse", [](Program& program) {
    const GridLayout layout({0, 0, 400, 300}, program.document().getSize(), {});
    program.grid.press(layout, {5, 5}, {});
  });
}

TEST(Allocations, FailInEffects) {
  for (const std::int32_t index : std::views::iota(0, static_cast<std::int32_t>(effects().size()))) {
    const Action choose = [index](Program& program) { program.effects.choose(index); };
    expectSafe("choose " + std::to_string(index), choose);
    expectSafe(
        "apply " + std::to_string(index), [](Program& program) { program.effects.apply(kAllChannels); },
        [&](Program& program) {
          choose(program);
          program.effects.setValue(3);
        });
  }
}

TEST(Allocations, FailInColorModels) {
  for (const std::int32_t index : std::views::iota(0, static_cast<std::int32_t>(colorModels().size()))) {
    const Action choose = [index](Program& program) { program.channels.chooseModel(index); };
    expectSafe("choose " + std::to_string(index), choose);
    expectSafe(
        "change " + std::to_string(index), [](Program& program) { program.channels.changeChannel(Bar::middle, 77); },
        choose);
    expectSafe("paste " + std::to_string(index), [](Program& program) { program.channels.paste(program); }, choose);
  }
}

TEST(Allocations, FailInRemappingAndPastingOfImages) {
  const Bytes direct = bitmapOf(20, 24, std::vector<ColorWord>(400, 0x123456));
  const Bytes large = bitmapOf(1024, 24, std::vector<ColorWord>(std::size_t{1} << 20, 0x123456));
  // NOLINTBEGIN(misc-const-correctness): it takes variables that change for constants here.
  Bytes indexed = bitmapOf(5, 24, std::vector<ColorWord>(400));
  indexed[28] = 8;
  const auto pasted = [](const Bytes& file) { return Bytes(file.begin() + 14, file.end()); };
  for (const Bytes* file : {&direct, &std::as_const(indexed), &large}) {
    const Action paste = [&](Program& program) {
      if (auto image = loadClipboardImage(pasted(*file))) {
        program.image = std::move(*image);
      } else {
        program.error(textOf(image.error()));
      }
    };
    expectSafe("paste", paste);
    expectSafe(
        "copy", [](Program& program) { program.output = hexOf(clipboardBitmap(*program.image, {})).substr(0, 99); },
        file == &large ? [](Program&) {} : paste);
    for (const RemapMode mode : {RemapMode::maintain, RemapMode::nearest, RemapMode::dither, RemapMode::ordered}) {
      if (file == &large && (mode == RemapMode::dither || mode == RemapMode::ordered)) {
        continue;
      }
      expectSafe(
          "remap",
          [&](Program& program) {
            RemappedImage result;
            StoppingProgress progress;
            remapImage(*program.image, program.document().getPalette(),
                       {.mode = mode, .protectedEntry = 1, .protectGrid = ProtectGrid{}}, result, progress);
            program.result = std::move(result);
          },
          paste);
    }
  }
  // NOLINTEND(misc-const-correctness)
}

/// One call of the tool, with "OUT" for a folder that has the file own.gpl.
struct ToolRun {
  ToolRun(std::vector<std::string> arguments, int failingAllocation) {
    const ScratchFolder folder;
    static_cast<void>(folder.file("own.gpl", bytesOf("before")));
    for (std::string& argument : arguments) {
      argument.replace(0, argument.starts_with("OUT") ? 3 : 0,
                       argument.starts_with("OUT") ? toUtf8(folder.name()) : "");
    }
    // Streams that never allocate, like those of the console.
    std::vector<char> outRoom(1 << 16);
    std::vector<char> errRoom(1 << 16);
    std::istringstream in;
    std::ospanstream outStream(outRoom);
    std::ospanstream errStream(errRoom);
    cli::Console console{in, outStream, errStream};
    {
      const FailingAllocations failing(failingAllocation, false);
      status = cli::run(std::move(arguments), console);
    }
    allocations = FailingAllocations::made();
    out.assign(outStream.span().begin(), outStream.span().end());
    err.assign(errStream.span().begin(), errStream.span().end());
    files = contentsOf(folder);
  }

  int status = 0;
  int allocations = 0;
  std::string out;
  std::string err;
  std::string files;
};

// Expects one message, apart from notes, and no new or changed file. Without memory a note may be missing, so the file
// of info has none.
TEST(Allocations, FailInTheTool) {
  const std::vector<std::vector<std::string>> calls{
      {"info", "--quiet", "samples/jasc-lf.pal", "--json"},
      {"convert", "--quiet", "samples/lines.gpl", "OUT/new.pal", "--format", "riff"},
      {"edit", "--quiet", "samples/lines.gpl", "OUT/own.gpl", "--force", "--sort", "red", "--effect", "gamma=120",
       "--undo"},
      {"values", "--quiet", "samples/lines.gpl", "--model", "HSV"},
      {"remap", "--quiet", "pictures/color.png", "samples/lines.gpl", "OUT/new.bmp", "--mode", "dither"},
      {"new", "web-safe", "OUT/new.gpl"}};
  for (const auto& call : calls) {
    SCOPED_TRACE(call[0]);
    const ToolRun reference(call, kNone);
    ASSERT_EQ(reference.status, 0) << reference.err;
    const auto check = [&](int at) {
      const ToolRun run(call, at);
      if (run.status == 0) {
        EXPECT_EQ(run.out + run.files, reference.out + reference.files) << at;
      } else {
        EXPECT_EQ(run.status, 1) << at;
        EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << at << ": " << run.err;
        EXPECT_EQ(run.files, "own.gpl: before\n") << at;
      }
    };
    for (int at = 0; at < reference.allocations; at += 1 + at / 20) {
      check(at);
    }
    // The last allocations are made around the write, so each of them counts. The JSON library needs memory to free a
    // list, so JSON is left out.
    const bool writes = reference.files != "own.gpl: before\n";
    for (int at = std::max(0, reference.allocations - 120); writes && at < reference.allocations; ++at) {
      check(at);
    }
  }
}

}  // namespace
}  // namespace quillhue
