#include <gtest/gtest.h>

#include "colormodes/channel_editor.h"
#include "colormodes/color_models.h"
#include "support/fakes.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

constexpr std::int32_t kHsv = 3;
constexpr std::int32_t kYuv = 8;

// Controls that report what is put into them like changes by the user, as edit fields do, if there is an editor to
// report to.
class ReportingView : public ChannelView {
 public:
  ChannelEditor* editor = nullptr;
  std::array<std::int32_t, 3> shown{};
  std::array<std::int32_t, 3> greatest{};
  std::vector<std::int32_t> repainted;

  void showChannel(Bar bar, const ValueRange& range, std::int32_t value) override {
    greatest[static_cast<std::size_t>(bar)] = range.maximum;
    shown[static_cast<std::size_t>(bar)] = value;
    if (editor != nullptr) {
      editor->fieldChanged(bar, value);
    }
  }
  void entryChanged(std::int32_t index) override { repainted.push_back(index); }
};

class ChannelEditorTest : public testing::Test, public ColorChooser {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;
  ReportingView view;
  std::unique_ptr<ChannelEditor> editor;
  std::optional<PaletteEntry> chosen;
  std::string offered;

  PaletteDocument& open(Palette palette = createPalette(3, {200, 100, 50})) {
    slot.replaceDocument(std::move(palette), false, {}, 0, fakes.services);
    if (editor == nullptr) {
      view.editor = nullptr;
      editor = std::make_unique<ChannelEditor>(slot, fakes.settings, view);
      view.editor = editor.get();
      editor->refreshValues();
    }
    view.repainted.clear();
    return *slot.document();
  }
  [[nodiscard]] std::string palette() const { return show(slot.document()->getPalette()); }
  std::optional<PaletteEntry> chooseColor(PaletteEntry initial,
                                          std::span<const PaletteEntry, kCustomColors> custom) override {
    offered = show(createPalette(1, initial)) + ": " + show(paletteOf(custom));
    return chosen;
  }
};

TEST_F(ChannelEditorTest, ChangesBetweenTwoRefreshesAreOneStep) {
  PaletteDocument& document = open();
  document.select(0);
  document.select(2);
  editor->setCurrentEntry(1);
  editor->changeChannel(Bar::left, 200);
  EXPECT_FALSE(document.canUndo());
  editor->changeChannel(Bar::left, 10);
  editor->turnWheel(Bar::middle, 2);
  editor->changeChannel(Bar::right, 999);
  EXPECT_EQ(palette(), "200,100,50 10,102,255 200,100,50");
  EXPECT_EQ(view.shown, (std::array<std::int32_t, 3>{10, 102, 255}));
  EXPECT_EQ(document.modificationCount(), 1);
  editor->refreshValues();
  editor->fieldChanged(Bar::left, 15);
  EXPECT_EQ(document.modificationCount(), 2);
  // Copying ends the run. Choosing the entry again, or showing its numbers, does not.
  EXPECT_TRUE(editor->copy(fakes));
  EXPECT_EQ(fakes.clipboard, (std::vector<PaletteEntry>{{15, 102, 255}}));
  editor->changeChannel(Bar::left, 16);
  editor->setCurrentEntry(1);
  editor->showValues();
  editor->changeChannel(Bar::left, 17);
  EXPECT_EQ(document.modificationCount(), 3);
  for (const char* expected : {"15,102,255", "10,102,255", "200,100,50"}) {
    document.undo();
    EXPECT_EQ(show(createPalette(1, document.getColor(1))), expected);
  }
  // A field's new text counts, also when it means the same number.
  editor->paletteChanged();
  editor->fieldChanged(Bar::left, 200);
  EXPECT_EQ(document.modificationCount(), 1);
  editor->fieldChanged(Bar::left, -5);
  EXPECT_EQ(document.getRed(1), 0);
}

TEST_F(ChannelEditorTest, ASaveEndsTheRunAndNothingElseOfTheDocument) {
  PaletteDocument& document = open();
  const auto edit = [&](std::int32_t value) { editor->changeChannel(Bar::left, value); };
  edit(1);
  edit(2);
  document.markSaved(L"one.pal", 1);
  // Nor do controls that show their numbers again between the save and the change.
  editor->showValues();
  edit(3);
  EXPECT_EQ(document.modificationCount(), 1);
  edit(4);
  EXPECT_EQ(document.modificationCount(), 1);
  document.undo();
  EXPECT_EQ(document.getRed(0), 2);
  // Saved and undone, the count is where it was after the record before.
  editor->paletteChanged();
  edit(5);
  document.markSaved(L"one.pal", 1);
  edit(6);
  EXPECT_TRUE(document.isModified());
}

// In HSV the hue of a grey is what was set, until another entry is chosen.
TEST_F(ChannelEditorTest, TheEntryChosenAgainKeepsItsNumbers) {
  fakes.settings.colorMode = kHsv;
  open(createPalette(2, {90, 90, 90}));
  editor->changeChannel(Bar::left, 200);
  editor->setCurrentEntry(0);
  EXPECT_EQ(editor->mode().getLeftValue(), 200);
  editor->setCurrentEntry(1);
  editor->setCurrentEntry(0);
  EXPECT_EQ(editor->mode().getLeftValue(), 0);
}

TEST_F(ChannelEditorTest, DragsToTheValueUnderThePointer) {
  const struct {
    std::int32_t model;
    Bar bar;
    std::int32_t y;
    std::int32_t height;
    std::int32_t value;
  } cases[] = {
      {kHsv, Bar::left, 100, 100, 359}, {kHsv, Bar::left, 5000, 100, 359},      {kHsv, Bar::left, 50, 100, 179},
      {kHsv, Bar::left, -9, 100, 0},    {kYuv, Bar::middle, -1, 100, -128},     {kYuv, Bar::middle, 1, 100, -126},
      {kYuv, Bar::right, 99, 99, 127},  {kYuv, Bar::right, 2000000000, 1, 127},
  };
  for (const auto& [model, bar, y, height, value] : cases) {
    PaletteDocument& document = open();
    editor->documentReplaced();
    editor->chooseModel(model);
    EXPECT_EQ(fakes.settings.colorMode, model);
    editor->pressBar(bar);
    EXPECT_FALSE(document.canUndo());
    editor->dragBar(y, height);
    EXPECT_EQ(editor->dragTarget(), bar);
    EXPECT_EQ(editor->mode().getValue(bar), value) << model << ' ' << y << '/' << height;
    editor->dragBar(20, 100);
    editor->dragBar(y, height);
    editor->releaseBar();
    EXPECT_EQ(document.modificationCount(), 1) << y;
    editor->dragBar(70, 100);
    EXPECT_EQ(editor->mode().getValue(bar), value);
    document.undo();
    EXPECT_EQ(document.getColor(0), (PaletteEntry{200, 100, 50}));
  }
}

TEST_F(ChannelEditorTest, PressingWhereTheValueIsChangesNothing) {
  const PaletteDocument& document = open();
  editor->pressBar(Bar::left);
  editor->dragBar(200, 255);
  // Nor does a bar that the window is too low for.
  editor->dragBar(7, 0);
  EXPECT_EQ(document.modificationCount(), 0);
}

TEST_F(ChannelEditorTest, TheWheelStopsAtTheEnds) {
  const PaletteDocument& document = open(createPalette(1, {255, 0, 5}));
  editor->chooseModel(kHsv);
  EXPECT_EQ(view.greatest[0], 359);
  EXPECT_EQ(editor->mode().getLeftValue(), 359);
  editor->turnWheel(Bar::left, 1);
  editor->turnWheel(Bar::left, 0);
  EXPECT_FALSE(document.canUndo());
  editor->turnWheel(Bar::left, -400);
  EXPECT_EQ(editor->mode().getLeftValue(), 0);
}

TEST_F(ChannelEditorTest, BarsFollowTheEntryWithoutWritingIt) {
  const PaletteDocument& document = open(variedPalette(3));
  for (std::int32_t model = 0; model < static_cast<std::int32_t>(colorModels().size()); ++model) {
    editor->chooseModel(model);
    const BarColors strip = editor->mode().fixedStrip(Bar::left);
    editor->setCurrentEntry(2);
    EXPECT_EQ(editor->mode().fixedStrip(Bar::left), strip);
    for (const Bar bar : kBars) {
      EXPECT_EQ(editor->mode().bar(bar)[33], editor->mode().barColor(bar, 33)) << model;
    }
    editor->setCurrentEntry(0);
  }
  EXPECT_EQ(palette(), show(variedPalette(3)));
  EXPECT_EQ(document.modificationCount(), 0);
}

// Without controls that report, the editor does all by itself.
TEST_F(ChannelEditorTest, RepaintsWhatChanged) {
  fakes.settings.colorMode = kHsv;
  open(variedPalette(3));
  view.editor = nullptr;
  EXPECT_EQ(editor->mode().channelRange(Bar::left).maximum, 359);
  editor->setCurrentEntry(1);
  EXPECT_EQ(editor->mode().bar(Bar::left)[33], editor->mode().barColor(Bar::left, 33));
  const struct {
    void (*change)(ChannelEditor& editor);
    bool repaints;
  } cases[] = {
      {[](ChannelEditor& changed) { changed.changeChannel(Bar::left, 300); }, true},
      {[](ChannelEditor& changed) { changed.changeChannel(Bar::left, 300); }, false},
      {[](ChannelEditor& changed) { changed.fieldChanged(Bar::middle, 9999); }, true},
      {[](ChannelEditor& changed) { changed.paletteChanged(); }, true},
      {[](ChannelEditor& changed) { changed.refreshValues(); }, false},
      {[](ChannelEditor& changed) { changed.chooseModel(kHsv); }, true},
      {[](ChannelEditor& changed) { changed.setCurrentEntry(1); }, false},
  };
  for (const auto& [change, repaints] : cases) {
    view.repainted.clear();
    change(*editor);
    EXPECT_EQ(view.repainted, repaints ? std::vector{1} : std::vector<std::int32_t>()) << &change - &cases[0].change;
    EXPECT_EQ(view.greatest[0], 359);
    EXPECT_LE(editor->mode().getMiddleValue(), 255);
  }
}

TEST_F(ChannelEditorTest, NoEntryStaysNone) {
  const PaletteDocument& document = open();
  for (const std::int32_t none : {2147483647, 3, -1}) {
    editor->setCurrentEntry(none);
    editor->paletteChanged();
    editor->changeChannel(Bar::left, 7);
    EXPECT_EQ(palette(), show(createPalette(3, {200, 100, 50})));
  }
  EXPECT_FALSE(document.canUndo());
}

TEST_F(ChannelEditorTest, FollowsTheDocument) {
  PaletteDocument& document = open(variedPalette(3));
  editor->setCurrentEntry(2);
  document.resize(2);
  editor->paletteChanged();
  EXPECT_EQ(editor->currentEntry(), 1);
  EXPECT_EQ(view.shown[0], 2);
  editor->pressBar(Bar::left);
  open(createPalette(1, {7, 8, 9}));
  editor->documentReplaced();
  EXPECT_FALSE(editor->dragTarget());
  EXPECT_EQ(editor->currentEntry(), 0);
  EXPECT_EQ(view.shown, (std::array<std::int32_t, 3>{7, 8, 9}));
  EXPECT_EQ(editor->mode().fixedStrip(Bar::middle)[5], (PaletteEntry{7, 5, 9}));
}

TEST_F(ChannelEditorTest, EntryCommandsAreStepsOfTheirOwn) {
  const PaletteDocument& document = open(variedPalette(3));
  fakes.settings.blank = {9, 9, 9};
  editor->blank();
  EXPECT_EQ(view.shown[0], 9);
  editor->paste(fakes);
  EXPECT_EQ(document.modificationCount(), 1);
  fakes.clipboard = {{4, 5, 6}, {7, 7, 7}};
  editor->paste(fakes);
  EXPECT_EQ(view.shown[2], 6);
  editor->changeChannel(Bar::left, 0);
  EXPECT_EQ(palette().substr(0, 6), "0,5,6 ");
  EXPECT_EQ(document.modificationCount(), 3);
}

TEST_F(ChannelEditorTest, TheChooserOffersTheGroupOfSixteen) {
  PaletteDocument& document = open(variedPalette(18));
  fakes.settings.blank = {9, 9, 9};
  editor->editEntry(17, *this);
  EXPECT_EQ(offered,
            "18,200,119: 17,200,112 18,200,119 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 9,9,9 "
            "9,9,9 9,9,9 9,9,9 9,9,9");
  // Cancelled, but a step.
  EXPECT_EQ(document.modificationCount(), 1);
  EXPECT_EQ(view.repainted, std::vector{17});
  chosen = {1, 1, 1};
  editor->editEntry(0, *this);
  EXPECT_EQ(view.shown[1], 1);
  editor->editEntry(18, *this);
  EXPECT_EQ(document.modificationCount(), 2);
  document.undo();
  EXPECT_EQ(palette(), show(variedPalette(18)));
}

}  // namespace
}  // namespace quillhue
