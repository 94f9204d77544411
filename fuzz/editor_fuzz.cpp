// The input is a sequence of gestures in the editor: presses and drags on the grid and on the bars, keys, effects, undo
// and redo. After each gesture the state must be consistent, and undoing all of them must restore the first palette.

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "colormodes/channel_editor.h"
#include "colormodes/color_models.h"
#include "effects/effect_editor.h"
#include "fuzz_target.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "ui/logic/bars_layout.h"
#include "ui/logic/grid_navigation.h"
#include "ui/logic/grid_selection.h"

namespace {

using namespace quillhue;

struct View final : ChannelView {
  void showChannel(Bar /*bar*/, const ValueRange& range, std::int32_t value) override {
    require(range.contains(value), "a number in its range");
  }
  void entryChanged(std::int32_t /*index*/) override {}
};

class Editor {
 public:
  explicit Editor(std::span<const std::uint8_t> input) : input_(input) {
    fakes_.clipboard = entriesOf(variedPalette(3));
    slot_.replaceDocument({.palette = first_}, fakes_.services);
  }

  void run() {
    while (!input_.empty()) {
      act();
      check();
      fakes_.takeLines();
    }
    const std::int32_t size = document().getSize();
    while (document().canUndo()) {
      document().undo();
    }
    require(size >= 1 && document().getPalette() == first_, "undoing everything gives the first palette");
  }

 private:
  [[nodiscard]] PaletteDocument& document() const { return *slot_.document(); }
  std::int32_t any(std::int32_t count) {
    const std::int32_t value = input_.empty() ? 0 : input_.front() % count;
    input_ = input_.subspan(input_.empty() ? 0 : 1);
    return value;
  }
  Point point() { return {any(128) * 4 - 20, any(128) * 4 - 20}; }
  GridSelection::Keys keys() { return {.shift = any(2) == 0, .control = any(2) == 0}; }
  [[nodiscard]] GridLayout grid() const { return {{0, 0, 400, 360}, document().getSize(), Scale{96}}; }

  void act() {
    const BarsLayout bars({200, 300}, Scale{96});
    switch (any(13)) {
      case 0:
        selection_.press(grid(), point(), keys());
        return;
      case 1:
        selection_.drag(grid(), point());
        return;
      case 2:
        return selection_.finish();
      case 3:
        settings().selectionMode = static_cast<SelectionMode>(any(3));
        return;
      case 4:
        selection_.extendTo(next(selection_.currentEntry()), keys());
        return;
      case 5:
        selection_.pressCurrent(grid().columns(), keys());
        return;
      case 6:
        return channels_.setCurrentEntry(next(channels_.currentEntry()));
      case 7:
        return channels_.chooseModel(any(static_cast<std::int32_t>(colorModels().size())));
      case 8:
        return channels_.fieldChanged(kBars[static_cast<std::size_t>(any(3))], any(256) * 2 - 200);
      case 9:
        if (const auto bar = bars.barAt(point())) {
          channels_.pressBar(*bar);
        }
        return channels_.dragBar(bars.heightAt(point().y), bars.usableHeight());
      case 10:
        effects_.choose(any(16));
        effects_.setValue(any(256) - 100);
        return effects_.apply(static_cast<ChannelMask>(any(8)));
      case 11:
        any(2) == 0 ? document().resize(1 + any(60)) : replaceColor();
        return follow();
      default:
        any(3) == 0 ? document().redo() : undo();
        return follow();
    }
  }

  void undo() {
    if (document().canUndo()) {
      document().undo();
    }
  }
  void replaceColor() {
    channels_.blank();
    channels_.paste(fakes_);
  }
  void follow() {
    selection_.paletteChanged();
    channels_.paletteChanged();
  }
  std::int32_t next(std::int32_t current) {
    return nextEntry(static_cast<GridKey>(any(8)), current, document().getSize(), grid().columns());
  }
  AppSettings& settings() { return fakes_.settings; }

  void check() {
    const std::int32_t size = document().getSize();
    require(channels_.currentEntry() >= -1 && channels_.currentEntry() < size, "a current entry of the palette");
    require(std::ranges::all_of(document().getPalette().selected(), [](std::uint8_t flag) { return flag <= 1; }),
            "flags of 0 and 1");
    for (const Bar bar : kBars) {
      require(channels_.mode().channelRange(bar).contains(channels_.mode().getValue(bar)), "numbers in their ranges");
    }
    require(effects_.preview(kAllChannels).getSize() == size, "a preview of the palette's size");
  }

  std::span<const std::uint8_t> input_;
  const Palette first_ = variedPalette(37);
  RecordingServices fakes_;
  DocumentSlot slot_;
  View view_;
  const bool hasDocument_ = (slot_.replaceDocument({.palette = first_}, fakes_.services), true);
  GridSelection selection_{slot_, fakes_.settings};
  ChannelEditor channels_{slot_, fakes_.settings, view_};
  EffectEditor effects_{slot_, fakes_.settings, fakes_};
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Editor({data, std::min<std::size_t>(size, 400)}).run();
  return 0;
}
