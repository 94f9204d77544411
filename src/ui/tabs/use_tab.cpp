#include "ui/tabs/use_tab.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>
#include <utility>

#include "formats/bitmap_writer.h"
#include "formats/failure.h"
#include "formats/files.h"
#include "formats/image_file.h"
#include "formats/images/image_loaders.h"
#include "ui/logic/clipboard_image.h"
#include "ui/logic/display_rows.h"
#include "ui/logic/use_layout.h"
#include "ui/main_window.h"
#include "ui/win32/controls.h"
#include "ui/win32/wait_cursor.h"

namespace quillhue {

namespace {

constexpr ValueRange kGridSides{1, ProtectGrid::kMaxSide};
constexpr ProtectGrid kFirstGrid{};
// In the order of their buttons.
constexpr std::array kModes{RemapMode::maintain, RemapMode::nearest, RemapMode::dither};

}  // namespace

/// Lets the rows that are done appear, and the window live.
class UseTab::Progress final : public RemapProgress {
 public:
  explicit Progress(UseTab& tab) : tab_(tab), run_(tab.window_) {}

  [[nodiscard]] bool rowsDone(std::int32_t rows, const RemappedImage& result) override {
    tab_.view_.addRows(result, rows_.progress(rows, tab_.view_.visibleRows()));
    return run_.pumpMessages() && !tab_.stops_;
  }

 private:
  UseTab& tab_;
  MainWindow::Run run_;
  DisplayRows rows_;
};

UseTab::UseTab(MainWindow& window)
    : window_(window),
      view_(window, [this](const std::wstring& name) { load(name); }),
      load_(makeControl(L"Button", "&Load...", WS_TABSTOP | BS_PUSHBUTTON)),
      modes_{makeControl(L"Button", "&Maintain mapping", WS_TABSTOP | WS_GROUP | BS_AUTORADIOBUTTON),
             makeControl(L"Button", "&Nearest match", BS_AUTORADIOBUTTON),
             makeControl(L"Button", "&Dither", BS_AUTORADIOBUTTON)},
      protectColor_(makeControl(L"Button", "Protect &color:", WS_TABSTOP | WS_GROUP | BS_AUTOCHECKBOX)),
      // Without a size: the field's name for a screen reader.
      colorLabel_(makeControl(L"Static", "Protected color:", 0)),
      color_(window.handle(), window.font(), ES_RIGHT),
      protectGrid_(makeControl(L"Button", "Protect gr&id:", WS_TABSTOP | BS_AUTOCHECKBOX)),
      widthLabel_(makeControl(L"Static", "Width:", WS_CLIPSIBLINGS)),
      gridWidth_(window.handle(), window.font(), ES_RIGHT),
      heightLabel_(makeControl(L"Static", "Height:", WS_CLIPSIBLINGS)),
      gridHeight_(window.handle(), window.font(), ES_RIGHT),
      process_(makeControl(L"Button", "&Process", WS_TABSTOP | BS_PUSHBUTTON)),
      saveAs_(makeControl(L"Button", "&Save as...", WS_TABSTOP | BS_PUSHBUTTON)),
      status_(makeControl(L"Static", {}, SS_NOPREFIX | WS_CLIPSIBLINGS)),
      surface_(makeControl(L"Static", {}, WS_CLIPSIBLINGS)) {
  tick(modes_[0].get(), true);
  gridWidth_.setRange(kGridSides);
  gridWidth_.setValue(kFirstGrid.width);
  gridHeight_.setRange(kGridSides);
  gridHeight_.setValue(kFirstGrid.height);
  documentReplaced(DocumentChange::replaced);
  refreshControls();
}

Window UseTab::makeControl(const wchar_t* windowClass, std::string_view text, DWORD style) const {
  return createControl(window_.handle(), window_.font(), {.windowClass = windowClass, .text = text, .style = style});
}

std::vector<HWND> UseTab::controls() const {
  std::vector<HWND> all;
  for (const Window* const control :
       {&load_, &modes_[0], &modes_[1], &modes_[2], &protectColor_, &colorLabel_, &protectGrid_, &widthLabel_,
        &heightLabel_, &process_, &saveAs_, &status_, &surface_}) {
    all.push_back(control->get());
  }
  return all;
}

void UseTab::showControls(bool visible) {
  view_.show(visible);
  for (const HWND control : controls()) {
    quillhue::show(control, visible);
  }
  for (NumberField* const field : {&color_, &gridWidth_, &gridHeight_}) {
    field->show(visible);
  }
}

LRESULT UseTab::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NOTIFY &&
      stepField(std::array{&color_, &gridWidth_, &gridHeight_}, *reinterpret_cast<const NMHDR*>(lParam))) {
    return TRUE;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

void UseTab::layout(const Rect& area) {
  const UseLayout layout =
      useLayout(area, {GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)}, window_.scale());
  const auto places = std::to_array<std::pair<HWND, Rect>>({{load_.get(), layout.load},
                                                            {modes_[0].get(), layout.maintain},
                                                            {modes_[1].get(), layout.nearest},
                                                            {modes_[2].get(), layout.dither},
                                                            {protectColor_.get(), layout.protectColor},
                                                            {protectGrid_.get(), layout.protectGrid},
                                                            {process_.get(), layout.process},
                                                            {saveAs_.get(), layout.saveAs},
                                                            {surface_.get(), layout.surface}});
  for (const auto& [control, box] : places) {
    moveTo(control, box);
  }
  const Rect& labels = layout.labelArea;
  moveTo(widthLabel_.get(), {labels.left, labels.top, labels.right, layout.gridWidth.bottom});
  moveTo(heightLabel_.get(), {labels.left, layout.heightLabel.y, labels.right, layout.gridHeight.bottom});
  const Point text = layout.statusText;
  moveTo(status_.get(), {text.x, text.y, layout.statusArea.right, layout.statusArea.bottom});
  color_.move(layout.color);
  gridWidth_.move(layout.gridWidth);
  gridHeight_.move(layout.gridHeight);
  view_.layout(layout);
}

UseState UseTab::state() const {
  return {.hasImage = image_.has_value(),
          .isIndexed = image_ && image_->palette(),
          .hasResult = result_.has_value(),
          .isBusy = isBusy_,
          .mode = mode_,
          .protectColor = isTicked(protectColor_.get()),
          .protectGrid = isTicked(protectGrid_.get())};
}

void UseTab::refreshLoadControls() {
  const LoadControls usable = loadControls(state());
  enable(load_.get(), usable.load);
  enable(modes_[0].get(), usable.maintain);
  enable(modes_[1].get(), usable.nearest);
  enable(modes_[2].get(), usable.dither);
  enable(process_.get(), usable.process);
  enable(saveAs_.get(), usable.saveAs);
  for (const RemapMode mode : kModes) {
    tick(modeButton(mode), mode == mode_);
  }
  setWindowText(status_.get(), imageStatusText(image_.has_value()));
}

void UseTab::refreshProtectControls() {
  const ProtectControls usable = protectControls(state());
  enable(protectColor_.get(), usable.protectColor);
  color_.enable(usable.color);
  enable(protectGrid_.get(), usable.protectGrid);
  gridWidth_.enable(usable.gridSides);
  gridHeight_.enable(usable.gridSides);
  // A label that is disabled is grey.
  for (const Window* const label : {&widthLabel_, &heightLabel_}) {
    enable(label->get(), !areLabelsGrey(state()));
  }
}

void UseTab::refreshControls() {
  refreshLoadControls();
  refreshProtectControls();
  view_.enable(!isBusy_);
}

void UseTab::controlNotification(HWND control, WPARAM wParam) {
  const WORD code = HIWORD(wParam);
  if (view_.scrollNotification(control, wParam)) {
    return;
  }
  for (NumberField* const field : {&color_, &gridWidth_, &gridHeight_}) {
    if (control == field->field()) {
      if (code == EN_KILLFOCUS) {
        field->settle();
      }
      return;
    }
  }
  if (code == BN_CLICKED && !isBusy_) {
    buttonClicked(control);
  }
}

void UseTab::buttonClicked(HWND button) {
  if (button == load_.get()) {
    loadByDialog();
  } else if (button == process_.get()) {
    process();
  } else if (button == saveAs_.get()) {
    saveRemappedBitmap();
  } else if (button == protectColor_.get() || button == protectGrid_.get()) {
    refreshProtectControls();
  } else {
    for (const RemapMode mode : kModes) {
      if (button == modeButton(mode) && isTicked(button)) {
        chooseMode(mode);
      }
    }
  }
}

void UseTab::chooseMode(RemapMode mode) {
  mode_ = clickedMode(state(), mode).value_or(mode_);
  refreshControls();
}

void UseTab::loadByDialog() {
  if (const auto name = window_.workplace().fileDialogs.askOpenImage()) {
    load(*name);
  }
}

void UseTab::load(const std::wstring& name) {
  if (isBusy_) {
    return;
  }
  const WaitCursor waiting;
  if (loadImageFile(name, image_, window_.services().messages)) {
    imageChanged();
  }
}

void UseTab::imageChanged() {
  result_.reset();
  view_.showImage(image_ ? &*image_ : nullptr);
  mode_ = modeAfterLoad(state());
  refreshControls();
}

void UseTab::documentReplaced(DocumentChange /*change*/) {
  stops_ = true;
  color_.setRange({0, window_.document()->getSize() - 1});
  color_.setValue(color_.value());
}

RemapOptions UseTab::options() {
  RemapOptions chosen;
  chosen.mode = mode_;
  if (isTicked(protectColor_.get())) {
    chosen.protectedEntry = color_.value();
  }
  if (isTicked(protectGrid_.get())) {
    chosen.protectGrid = ProtectGrid{.width = gridWidth_.value(), .height = gridHeight_.value()};
  }
  return chosen;
}

void UseTab::process() {
  if (!image_ || isBusy_) {
    return;
  }
  FocusKeeper& focus = window_.focus();
  const HWND focused = focus.current();
  isBusy_ = true;
  stops_ = false;
  view_.showResult(nullptr, 0);
  focus.give(view_.handle());
  refreshControls();
  runOn(*image_);
  isBusy_ = false;
  if (result_) {
    view_.showResult(&*result_, result_->height());
  }
  refreshControls();
  if (focused != nullptr && focus.current() == view_.handle()) {
    focus.give(focused);
  }
}

void UseTab::runOn(const WorkImage& image) {
  // Ends last: a message that is shown before belongs to the run, and the window outlives it.
  Progress progress(*this);
  try {
    remapImage(image, window_.document()->getPalette(), options(), result_ ? *result_ : result_.emplace(), progress);
  } catch (const std::bad_alloc&) {
    view_.showResult(nullptr, 0);
    result_.reset();
    window_.services().messages.error(textOf(Failure::notEnoughMemory));
  }
}

void UseTab::saveRemappedBitmap() {
  if (!result_) {
    return;
  }
  const auto name = window_.workplace().fileDialogs.askSaveBitmap();
  if (!name) {
    return;
  }
  try {
    const auto file = composeBitmap({result_->width(), result_->height(), result_->rows()},
                                    window_.document()->getPalette(), window_.settings().blank);
    if (!writeFile(*name, file)) {
      window_.services().messages.error(textOf(Failure::couldNotCreate));
    }
  } catch (const std::bad_alloc&) {
    window_.services().messages.error(textOf(Failure::notEnoughMemory));
  }
}

bool UseTab::copy() {
  if (!image_ || isBusy_) {
    return false;
  }
  const PaletteEntry blank = window_.settings().blank;
  try {
    return window_.workplace().clipboard.putBitmap(result_ ? clipboardBitmap(*result_, blank)
                                                           : clipboardBitmap(*image_, blank));
  } catch (const std::bad_alloc&) {
    window_.services().messages.error(textOf(Failure::notEnoughMemory));
    return false;
  }
}

void UseTab::paste() {
  if (isBusy_) {
    return;
  }
  const WaitCursor waiting;
  try {
    auto block = window_.workplace().clipboard.getBitmap();
    if (!block) {
      return;
    }
    if (auto loaded = loadClipboardImage(std::move(*block))) {
      image_ = std::move(*loaded);
      imageChanged();
    } else {
      window_.services().messages.error(textOf(loaded.error()));
    }
  } catch (const std::bad_alloc&) {
    window_.services().messages.error(textOf(Failure::notEnoughMemory));
  }
}

void UseTab::clear() {
  if (!isBusy_) {
    image_.reset();
    imageChanged();
  }
}

}  // namespace quillhue
