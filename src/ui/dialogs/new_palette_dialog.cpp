#include "ui/dialogs/new_palette_dialog.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/palette.h"
#include "core/services.h"
#include "ui/number_field.h"
#include "ui/resources/dialog_ids.h"
#include "ui/win32/controls.h"
#include "ui/win32/dialog_owner.h"
#include "ui/win32/drawing.h"
#include "ui/win32/modal_dialog.h"

namespace quillhue {

namespace {

struct LevelControls {
  int label;
  int field;
  int arrows;
};
constexpr std::array<LevelControls, 3> kLevelControls{{{NEW_RED_LABEL, NEW_RED, NEW_RED_ARROWS},
                                                       {NEW_GREEN_LABEL, NEW_GREEN, NEW_GREEN_ARROWS},
                                                       {NEW_BLUE_LABEL, NEW_BLUE, NEW_BLUE_ARROWS}}};
constexpr ValueRange kSizes{.minimum = 1, .maximum = kMaxPaletteSize};
constexpr ValueRange kLevels{.minimum = kMinRgbLevel, .maximum = kMaxRgbLevel};

class NewPaletteDialog final : public ModalDialog {
 public:
  NewPaletteDialog(const DialogOwner& owner, AppSettings& settings, Messages& messages, NewPaletteKind kind)
      : owner_(owner), settings_(settings), messages_(messages), kind_(kind) {}

  std::optional<NewPaletteFields> ask() {
    run(owner_.top(), L"DBNEW", owner_.font());
    return accepted_;
  }

 private:
  void opened() override;
  void command(int id, int notification) override;
  [[nodiscard]] bool notified(const NMHDR& notification) override {
    return std::ranges::any_of(numbers(), [&](NumberField* number) { return number->takesStep(notification); });
  }
  void closing() override;

  void hideWhatIsNotAsked();
  /// Moves the buttons up to the hidden control's position, and the dialog's lower edge by the same distance.
  void endAbove(int id);
  [[nodiscard]] Rect boxOf(int id) const;

  [[nodiscard]] std::array<NumberField*, 4> numbers() { return {&size_, &levels_[0], &levels_[1], &levels_[2]}; }
  [[nodiscard]] NewPaletteFields fields();
  void showMinimum();
  void settle(HWND field);
  void accept();

  const DialogOwner& owner_;
  AppSettings& settings_;
  Messages& messages_;
  NewPaletteKind kind_;
  NumberField size_;
  std::array<NumberField, kLevelControls.size()> levels_;
  std::optional<NewPaletteFields> accepted_;
};

void NewPaletteDialog::opened() {
  const NewPaletteFields initial = newPaletteFields(settings_);
  setWindowText(window(), newPaletteTitle(kind_));
  size_ = NumberField(control(NEW_SIZE), control(NEW_SIZE_ARROWS), kSizes, initial.size);
  for (std::size_t channel = 0; channel < levels_.size(); ++channel) {
    const auto& [label, field, arrows] = kLevelControls[channel];
    levels_[channel] = NumberField(control(field), control(arrows), kLevels, initial.levels[channel]);
  }
  tick(control(NEW_WINDOWS_COLORS), initial.windowsColors);
  hideWhatIsNotAsked();
  showMinimum();
}

void NewPaletteDialog::hideWhatIsNotAsked() {
  if (asksLevels(kind_)) {
    return;
  }
  for (std::size_t channel = 0; channel < levels_.size(); ++channel) {
    show(control(kLevelControls[channel].label), false);
    levels_[channel].show(false);
  }
  show(control(NEW_WINDOWS_COLORS), asksWindowsColors(kind_));
  endAbove(asksWindowsColors(kind_) ? NEW_RED : NEW_WINDOWS_COLORS);
}

void NewPaletteDialog::endAbove(int id) {
  const std::int32_t rise = boxOf(IDOK).top - boxOf(id).top;
  for (const int button : {IDOK, IDCANCEL}) {
    const Rect box = boxOf(button);
    moveTo(control(button), {box.left, box.top - rise, box.right, box.bottom - rise});
  }
  RECT outer{};
  GetWindowRect(window(), &outer);
  SetWindowPos(window(), nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top - rise,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

Rect NewPaletteDialog::boxOf(int id) const {
  RECT box{};
  GetWindowRect(control(id), &box);
  std::array<POINT, 2> corners{{{box.left, box.top}, {box.right, box.bottom}}};
  MapWindowPoints(nullptr, window(), corners.data(), static_cast<UINT>(corners.size()));
  return {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

NewPaletteFields NewPaletteDialog::fields() {
  return {.size = size_.value(),
          .windowsColors = isTicked(control(NEW_WINDOWS_COLORS)),
          .levels = {levels_[0].value(), levels_[1].value(), levels_[2].value()}};
}

void NewPaletteDialog::showMinimum() { setWindowText(control(NEW_MINIMUM), minimumSizeText(kind_, fields())); }

void NewPaletteDialog::settle(HWND field) {
  for (NumberField* const number : numbers()) {
    if (number->field() == field) {
      number->settle();
    }
  }
}

void NewPaletteDialog::accept() {
  const auto answer = acceptNewPalette(kind_, fields(), settings_);
  if (answer) {
    accepted_ = *answer;
    close();
    return;
  }
  messages_.error(answer.error());
  focus(NEW_SIZE);
}

void NewPaletteDialog::command(int id, int notification) {
  if (id == IDOK) {
    accept();
  } else if (notification == EN_KILLFOCUS) {
    settle(control(id));
  } else if (notification == EN_CHANGE || id == NEW_WINDOWS_COLORS) {
    showMinimum();
  }
}

void NewPaletteDialog::closing() {
  size_ = {};
  levels_ = {};
}

}  // namespace

std::optional<NewPaletteFields> askNewPalette(const DialogOwner& owner, AppSettings& settings, Messages& messages,
                                              NewPaletteKind kind) {
  return NewPaletteDialog(owner, settings, messages, kind).ask();
}

}  // namespace quillhue
