// The input is the number of entries, their colors, and steps of the verb edit. A simple model does the same steps on
// copies of the whole palette. For steps that the model does not compute, it checks that they change only what they
// may, and that undo restores the previous palette.

#include <algorithm>
#include <array>
#include <span>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/steps/step.h"
#include "fuzz_target.h"

namespace {

using namespace quillhue;

struct Input {
  std::span<const std::uint8_t> bytes;

  // Returns a number from 0 to count - 1, or 0 if no bytes are left.
  std::int32_t any(std::int32_t count) {
    const std::int32_t value = bytes.empty() ? 0 : bytes.front() % count;
    bytes = bytes.subspan(bytes.empty() ? 0 : 1);
    return value;
  }
  PaletteEntry color() {
    return {static_cast<std::uint8_t>(any(256)), static_cast<std::uint8_t>(any(256)),
            static_cast<std::uint8_t>(any(256))};
  }
};

std::string textOf(PaletteEntry color) {
  return std::to_string(color.red) + ',' + std::to_string(color.green) + ',' + std::to_string(color.blue);
}

class Model {
 public:
  explicit Model(cli::EditSession& session) : session_(session), now_(session.document().getPalette()) {}

  void step(Input& input) {
    const std::int32_t entry = input.any(now_.getSize());
    const std::string number = std::to_string(entry);
    switch (input.any(14)) {
      case 0:
        return select("invert", [&](std::int32_t i) { return now_.selected()[at(i)] == 0; });
      case 1:
        return select(number, [&](std::int32_t i) { return i == entry; });
      case 2:
        return select("matches:" + number, [&](std::int32_t i) { return now_.entry(i) == now_.entry(entry); });
      case 3:
        return select("redundant", [&](std::int32_t i) {
          const auto entries = entriesOf(now_);
          return std::find(entries.begin(), entries.begin() + i, now_.entry(i)) != entries.begin() + i;
        });
      case 4:
        return recolor("--clear", "", [&](std::size_t, PaletteEntry) { return session_.tool.settings.blank; });
      case 5:
        return recolor(
            "--swap", "gb",
            [&](std::size_t, PaletteEntry old) -> PaletteEntry { return {old.red, old.blue, old.green}; },
            kAllChannels);
      case 6:
        copied_ = selectedColors(now_);
        run("--copy");
        return;
      case 7:
        require(run("--paste") == !copied_.empty(), "only colors are pasted");
        return copied_.empty() ? void() : recolor("", "", [&](std::size_t k, PaletteEntry old) {
          return k < copied_.size() ? copied_[k] : old;
        });
      case 8: {
        const PaletteEntry color = input.color();
        run("--set", number + '=' + textOf(color));
        Palette next = now_;
        next.setEntry(entry, color);
        return change(std::move(next));
      }
      case 9: {
        const std::int32_t size = 1 + input.any(40);
        run("--resize", std::to_string(size));
        return change(resizedCopy(now_, size, session_.tool.settings.blank));
      }
      case 10:
      case 11:
        return move(input.any(3) == 0);
      case 12: {
        constexpr std::array kMasks{"rgb", "r", "gb", "none"};
        run("--channels", kMasks[at(input.any(4))]);
        return;
      }
      default:
        return other(input, number);
    }
  }

  void check() const {
    require(session_.document().getPalette() == now_, "the palette of the model");
    require(session_.document().canUndo() == !undo_.empty() && session_.document().canRedo() == !redo_.empty(),
            "the steps of the model");
    require(session_.document().modificationCount() == count_, "the modification count of the model");
  }

  void undoAll() {
    while (!undo_.empty()) {
      move(false);
      check();
    }
  }

 private:
  static std::size_t at(std::int32_t index) { return static_cast<std::size_t>(index); }

  // Returns false if the step was refused.
  bool run(const std::string& option, const std::string& argument = "") {
    for (const auto& kinds : {cli::selectionSteps(), cli::colorSteps(), cli::documentSteps(), cli::entrySteps()}) {
      const auto kind =
          std::ranges::find(kinds, option, [](const cli::StepKind& each) { return std::string(each.option); });
      if (kind != kinds.end()) {
        const auto parsed = kind->parse(argument);
        return parsed && (*parsed)(session_);
      }
    }
    return false;
  }

  void change(Palette next) {
    undo_.push_back(std::exchange(now_, std::move(next)));
    redo_.clear();
    ++count_;
  }

  template <typename Wanted>
  void select(const std::string& which, Wanted wanted) {
    run("--select", which);
    Palette next = now_;
    for (std::int32_t i = 0; i < next.getSize(); ++i) {
      next.selected()[at(i)] = wanted(i) ? 1 : 0;
    }
    change(std::move(next));
  }

  // `color` returns the new color of the k-th selected entry.
  template <typename Color>
  void recolor(const std::string& option, const std::string& argument, Color color,
               std::optional<ChannelMask> mask = {}) {
    run(option, argument);
    Palette next = now_;
    std::size_t k = 0;
    for (const std::int32_t index : selectedIndexes(now_)) {
      const PaletteEntry old = now_.entry(index);
      next.setEntry(index, withChannels(old, mask.value_or(session_.mask), color(k++, old)));
    }
    change(std::move(next));
  }

  void move(bool isRedo) {
    auto& from = isRedo ? redo_ : undo_;
    auto& to = isRedo ? undo_ : redo_;
    require(run(isRedo ? "--redo" : "--undo") == !from.empty(), "undo and redo while there are steps");
    if (!from.empty()) {
      to.push_back(std::exchange(now_, from.back()));
      from.pop_back();
      count_ += isRedo ? 1 : -1;
    }
  }

  // Steps whose colors the model does not know. They change selected entries and the channels of the mask.
  void other(Input& input, const std::string& number) {
    static constexpr std::array<std::array<const char*, 2>, 12> kSteps{{{"--sort", "intensity"},
                                                                        {"--sort", "deviation"},
                                                                        {"--reverse", ""},
                                                                        {"--gradient", ""},
                                                                        {"--bright-gradient", ""},
                                                                        {"--effect", "gamma="},
                                                                        {"--effect", "rotate="},
                                                                        {"--effect", "twist="},
                                                                        {"--effect", "paste="},
                                                                        {"--effect", "quantise="},
                                                                        {"--channel", ":HSV:left="},
                                                                        {"--channel", ":YUV:middle="}}};
    const auto& [option, argument] = kSteps[at(input.any(kSteps.size()))];
    const bool isEntry = std::string(option) == "--channel";
    const std::string value =
        argument[0] != '\0' && std::string(argument).ends_with('=') ? std::to_string(input.any(256) - 40) : "";
    const std::int32_t before = session_.document().modificationCount();
    run(option, (isEntry ? number : "") + argument + value);
    const Palette& result = session_.document().getPalette();
    if (session_.document().modificationCount() == before) {
      require(result == now_, "no change without a step");
      return;
    }
    for (std::int32_t i = 0; i < now_.getSize() && !isEntry; ++i) {
      const bool isSelected = now_.selected()[at(i)] != 0;
      require(result.entry(i) == withChannels(now_.entry(i), isSelected ? session_.mask : 0, result.entry(i)),
              "nothing else changes");
    }
    change(result);
  }

  cli::EditSession& session_;
  Palette now_;
  std::vector<Palette> undo_;
  std::vector<Palette> redo_;
  std::vector<PaletteEntry> copied_;
  std::int32_t count_ = 0;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input{{data, size}};
  Palette palette = createPalette(1 + input.any(40));
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    // Few colors, so that some are equal.
    palette.setEntry(i, {static_cast<std::uint8_t>(input.any(4) * 80), 7, static_cast<std::uint8_t>(input.any(256))});
  }
  std::istringstream in;
  std::ostringstream out;
  cli::Console console{in, out, out};
  const cli::InputOptions options;
  cli::EditSession session(std::move(palette), options, console);
  Model model(session);
  while (!input.bytes.empty()) {
    model.step(input);
    model.check();
  }
  model.undoAll();
  return 0;
}
