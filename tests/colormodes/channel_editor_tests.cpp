#include <gtest/gtest.h>

#include <sstream>

#include "colormodes/channel_editor.h"
#include "colormodes/color_models.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/script.h"
#include "support/table.h"

namespace quillhue {
namespace {

// Controls that show the numbers they get. Edit fields also report this as a change by the user.
class Controls : public ChannelView {
 public:
  ChannelEditor* reportTo = nullptr;
  std::array<std::int32_t, 3> shown{};
  // The entry repainted last.
  std::string repainted;

  void showChannel(Bar bar, const ValueRange& range, std::int32_t value) override {
    EXPECT_TRUE(value >= range.minimum && value <= range.maximum);
    shown.at(static_cast<std::size_t>(bar)) = value;
    if (reportTo != nullptr) {
      reportTo->fieldChanged(bar, value);
    }
  }
  void entryChanged(std::int32_t index) override { repainted = std::to_string(index); }
};

class ChannelEditorTest : public testing::Test, public ColorChooser {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;
  Controls controls;
  std::unique_ptr<ChannelEditor> editor;
  std::optional<PaletteEntry> chosen;
  std::string offered;

  void open(const Palette& palette, std::size_t model, bool doReport) {
    slot.replaceDocument({.palette = palette}, fakes.services);
    fakes.clipboard.reset();
    fakes.settings.blank = {9, 9, 9};
    fakes.settings.colorMode = static_cast<std::uint8_t>(model);
    controls.reportTo = nullptr;
    editor = std::make_unique<ChannelEditor>(slot, fakes.settings, controls);
    controls.reportTo = doReport ? editor.get() : nullptr;
    editor->refreshValues();
  }

  // Performs the words one by one. After each, bars and controls must agree with the numbers.
  void perform(const std::string& script) {
    std::istringstream words(script);
    for (std::string word; words >> word;) {
      controls.repainted.clear();
      quillhue::perform(acts_, word);
      for (const Bar bar : kBars) {
        EXPECT_EQ(editor->mode().bar(bar)[33], editor->mode().barColor(bar, 33)) << script;
        const bool isShown = !word.starts_with("typed") && editor->currentEntry() >= 0;
        EXPECT_TRUE(!isShown || controls.shown.at(static_cast<std::size_t>(bar)) == editor->mode().getValue(bar))
            << script;
      }
    }
  }

  std::optional<PaletteEntry> chooseColor(PaletteEntry initial,
                                          std::span<const PaletteEntry, kCustomColors> custom) override {
    offered = show(createPalette(1, initial)) + ": " + show(paletteOf(custom));
    return chosen;
  }

 private:
  [[nodiscard]] ScriptActs makeActs() {
    ScriptActs acts{
        {"entry", [this](auto& n) { editor->setCurrentEntry(n[0]); }},
        {"model", [this](auto& n) { editor->chooseModel(n[0]); }},
        {"drag", [this](auto& n) { editor->dragBar(n[0], n[1]); }},
        {"release", [this](auto&) { editor->releaseBar(); }},
        {"refresh", [this](auto&) { editor->refreshValues(); }},
        {"show", [this](auto&) { editor->showValues(); }},
        {"copy", [this](auto&) { EXPECT_TRUE(editor->copy(fakes)); }},
        {"paste", [this](auto&) { editor->paste(fakes); }},
        {"blank", [this](auto&) { editor->blank(); }},
        {"save", [this](auto&) { slot.document()->markSaved(std::wstring(L"a.pal"), 1); }},
        {"undo", [this](auto&) { slot.document()->undo(), editor->paletteChanged(); }},
        {"resize", [this](auto& n) { slot.document()->resize(n[0]), editor->paletteChanged(); }},
        {"open",
         [this](auto&) {
           slot.replaceDocument({.palette = createPalette(1, {7, 8, 9})}, fakes.services);
           editor->documentReplaced();
         }},
    };
    for (const auto& [bar, name] : {std::pair{Bar::left, "left"}, {Bar::middle, "middle"}, {Bar::right, "right"}}) {
      acts[name] = [this, bar](auto& n) { editor->changeChannel(bar, n[0]); };
      acts[std::string("typed-") + name] = [this, bar](auto& n) { editor->fieldChanged(bar, n[0]); };
      acts[std::string("wheel-") + name] = [this, bar](auto& n) { editor->turnWheel(bar, n[0]); };
      acts[std::string("press-") + name] = [this, bar](auto&) { editor->pressBar(bar); };
    }
    return acts;
  }

  const ScriptActs acts_ = makeActs();
};

TEST_F(ChannelEditorTest, DoesWhatTheTableSays) {
  for (const auto& row : readTable("channel_edits.txt")) {
    const auto model = std::ranges::find(colorModels(), row.at(0), &ColorModel::name) - colorModels().begin();
    for (const bool doReport : {true, false}) {
      open(shownPalette(row.at(1)), static_cast<std::size_t>(model), doReport);
      perform(row.at(2));
      std::string numbers;
      for (const Bar bar : kBars) {
        numbers += (numbers.empty() ? "" : " ") + std::to_string(editor->mode().getValue(bar));
      }
      EXPECT_EQ(numbers, row.at(3)) << row[2];
      EXPECT_EQ(show(slot.document()->getPalette()), row.at(4)) << row[2];
      EXPECT_EQ(std::to_string(slot.document()->modificationCount()), row.at(5)) << row[2];
      EXPECT_TRUE(doReport || controls.repainted == row.at(6)) << row[2];
    }
  }
}

TEST_F(ChannelEditorTest, BarsFollowTheEntryWithoutWritingIt) {
  open(variedPalette(3), 0, true);
  for (std::size_t model = 0; model < colorModels().size(); ++model) {
    perform("model=" + std::to_string(model));
    EXPECT_EQ(fakes.settings.colorMode, model);
    const BarColors strip = editor->mode().fixedStrip(Bar::left);
    perform("entry=2");
    EXPECT_EQ(editor->mode().fixedStrip(Bar::left), strip);
    perform("entry=0");
  }
  EXPECT_EQ(show(slot.document()->getPalette()), show(variedPalette(3)));
  EXPECT_EQ(slot.document()->modificationCount(), 0);
  perform("open model=4");
  EXPECT_EQ(editor->mode().fixedStrip(Bar::middle)[5], (PaletteEntry{7, 5, 9}));
}

TEST_F(ChannelEditorTest, TheChooserOffersTheGroupOfSixteen) {
  open(variedPalette(18), 4, true);
  controls.repainted.clear();
  editor->editEntry(17, *this);
  EXPECT_EQ(offered,
            "18,200,119: 17,200,112 18,200,119 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 "
            "9,9,9 9,9,9 9,9,9 9,9,9");
  // Canceled, but still a step.
  EXPECT_EQ(slot.document()->modificationCount(), 1);
  EXPECT_EQ(controls.repainted, "17");
  chosen = {1, 1, 1};
  editor->editEntry(0, *this);
  EXPECT_EQ(controls.shown[1], 1);
  editor->editEntry(18, *this);
  EXPECT_EQ(slot.document()->modificationCount(), 2);
  slot.document()->undo();
  EXPECT_EQ(show(slot.document()->getPalette()), show(variedPalette(18)));
}

}  // namespace
}  // namespace quillhue
