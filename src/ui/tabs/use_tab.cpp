#include "ui/tabs/use_tab.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>
#include <utility>

#include "formats/failure.h"
#include "formats/files.h"
#include "formats/image_file.h"
#include "formats/images/image_loaders.h"
#include "ui/logic/clipboard_image.h"
#include "ui/logic/display_rows.h"
#include "ui/logic/result_file.h"
#include "ui/services/clipboard.h"
#include "ui/services/file_dialogs.h"
#include "ui/services/other_images.h"
#include "ui/win32/controls.h"
#include "ui/win32/taskbar_progress.h"
#include "ui/win32/wait_cursor.h"
#include "ui/window_context.h"

namespace quillhue {

namespace {

constexpr ValueRange kGridSides{1, ProtectGrid::kMaxSide};
constexpr ProtectGrid kFirstGrid{};
// In the order of their buttons.
constexpr std::array kModes{RemapMode::maintain, RemapMode::nearest, RemapMode::dither};

}  // namespace

/// A run, from construction to destruction.
class UseTab::Run {
 public:
  explicit Run(const WindowContext& context) : frame_(context.frame), taskbar_(context.window) { frame_.beginRun(); }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;
  ~Run() { frame_.endRun(); }

  /// Shows the progress and handles the window's messages. Returns false if the user has closed the window.
  [[nodiscard]] bool goesOn(std::int32_t done, std::int32_t total) {
    taskbar_.report(done, total);
    return frame_.pumpMessages();
  }

 private:
  WindowFrame& frame_;
  TaskbarProgress taskbar_;
};

/// Shows finished rows and handles the window's messages.
class UseTab::Progress final : public RemapProgress {
 public:
  explicit Progress(UseTab& tab) : tab_(tab), run_(tab.context_) {}

  [[nodiscard]] bool rowsDone(std::int32_t rows, const RemappedImage& result) override {
    tab_.view_.addRows(result, rows_.progress(rows, tab_.view_.visibleRows()));
    return run_.goesOn(rows, result.height()) && !tab_.stops_;
  }

 private:
  UseTab& tab_;
  Run run_;
  DisplayRows rows_;
};

UseTab::UseTab(WindowContext& context)
    : context_(context),
      view_(context, [this](const std::wstring& name) { load(name); }),
      load_(addButton("&Load...", WS_TABSTOP | BS_PUSHBUTTON, &UseLayout::load)),
      modes_{{addButton("&Maintain mapping", WS_TABSTOP | WS_GROUP | BS_AUTORADIOBUTTON, &UseLayout::maintain),
              addButton("&Nearest match", BS_AUTORADIOBUTTON, &UseLayout::nearest),
              addButton("&Dither", BS_AUTORADIOBUTTON, &UseLayout::dither)}},
      protectColor_(addButton("Protect &color:", WS_TABSTOP | WS_GROUP | BS_AUTOCHECKBOX, &UseLayout::protectColor)) {
  // This label has size 0. It only names the field for screen readers.
  add(L"Static", "Protected color:", 0);
  addField(color_, &UseLayout::color);
  protectGrid_ = addButton("Protect gr&id:", WS_TABSTOP | BS_AUTOCHECKBOX, &UseLayout::protectGrid);
  widthLabel_ = add(L"Static", "Width:", WS_CLIPSIBLINGS, &UseLayout::widthLabel);
  addField(gridWidth_, &UseLayout::gridWidth);
  heightLabel_ = add(L"Static", "Height:", WS_CLIPSIBLINGS, &UseLayout::heightLabel);
  addField(gridHeight_, &UseLayout::gridHeight);
  process_ = addButton("&Process", WS_TABSTOP | BS_PUSHBUTTON, &UseLayout::process);
  saveAs_ = addButton("&Save as...", WS_TABSTOP | BS_PUSHBUTTON, &UseLayout::saveAs);
  status_ = add(L"Static", {}, SS_NOPREFIX | WS_CLIPSIBLINGS, &UseLayout::status);
  add(L"Static", {}, WS_CLIPSIBLINGS, &UseLayout::surface);
  gridWidth_.setRange(kGridSides);
  gridWidth_.setValue(kFirstGrid.width);
  gridHeight_.setRange(kGridSides);
  gridHeight_.setValue(kFirstGrid.height);
  documentReplaced(DocumentChange::replaced);
  refreshControls();
}

HWND UseTab::add(const wchar_t* windowClass, std::string_view text, DWORD style, Rect UseLayout::* box) {
  return controls_.add(
      createControl(context_.window, context_.font, {.windowClass = windowClass, .text = text, .style = style}), box);
}

void UseTab::addField(NumberField& field, Rect UseLayout::* box) {
  field = NumberField(context_.window, context_.font, ES_RIGHT);
  controls_.add(field, box);
}

void UseTab::show() {
  view_.show(true);
  controls_.show(true);
}

void UseTab::hide() {
  view_.show(false);
  controls_.show(false);
}

LRESULT UseTab::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NOTIFY && controls_.step(*reinterpret_cast<const NMHDR*>(lParam))) {
    return TRUE;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

void UseTab::layout(const Rect& area) {
  const UseLayout layout =
      useLayout(area, {GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)}, context_.scale);
  controls_.move(layout);
  view_.layout(layout);
}

UseState UseTab::state() const {
  return {.hasImage = image_.has_value(),
          .isIndexed = image_ && image_->palette(),
          .hasResult = result_.has_value(),
          .isBusy = isBusy_,
          .mode = mode_,
          .protectColor = isTicked(protectColor_),
          .protectGrid = isTicked(protectGrid_)};
}

void UseTab::refreshLoadControls() {
  const LoadControls usable = loadControls(state());
  enable(load_, usable.load);
  enable(modes_[RemapMode::maintain], usable.maintain);
  enable(modes_[RemapMode::nearest], usable.nearest);
  enable(modes_[RemapMode::dither], usable.dither);
  enable(process_, usable.process);
  enable(saveAs_, usable.saveAs);
  for (const RemapMode mode : kModes) {
    tick(modes_[mode], mode == mode_);
  }
  setWindowText(status_, imageStatusText(image_.has_value()));
}

void UseTab::refreshProtectControls() {
  const ProtectControls usable = protectControls(state());
  enable(protectColor_, usable.protectColor);
  color_.enable(usable.color);
  enable(protectGrid_, usable.protectGrid);
  gridWidth_.enable(usable.gridSides);
  gridHeight_.enable(usable.gridSides);
  // Disabled labels are grey.
  for (const HWND label : {widthLabel_, heightLabel_}) {
    enable(label, !areLabelsGrey(state()));
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
  if (button == load_) {
    loadByDialog();
  } else if (button == process_) {
    process();
  } else if (button == saveAs_) {
    saveResult();
  } else if (button == protectColor_ || button == protectGrid_) {
    refreshProtectControls();
  } else {
    for (const RemapMode mode : kModes) {
      if (button == modes_[mode] && isTicked(button)) {
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
  if (const auto name = context_.windowServices.fileDialogs.askOpenImage()) {
    load(*name);
  }
}

void UseTab::load(const std::wstring& name) {
  if (isBusy_) {
    return;
  }
  const WaitCursor waiting;
  const auto loadOther = [this](ByteSource& source) { return loadOtherImage(source, context_.settings().blank); };
  if (loadImageFile(name, image_, context_.services.messages, loadOther)) {
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
  color_.setRange({0, context_.document()->getSize() - 1});
  color_.setValue(color_.value());
}

RemapOptions UseTab::options() {
  RemapOptions chosen;
  chosen.mode = mode_;
  if (isTicked(protectColor_)) {
    chosen.protectedEntry = color_.value();
  }
  if (isTicked(protectGrid_)) {
    chosen.protectGrid = ProtectGrid{.width = gridWidth_.value(), .height = gridHeight_.value()};
  }
  return chosen;
}

void UseTab::process() {
  if (!image_ || isBusy_) {
    return;
  }
  FocusKeeper& focus = context_.focus;
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
  // The run ends after any error message, so that the window is not destroyed while the message is open.
  Progress progress(*this);
  try {
    remapImage(image, context_.document()->getPalette(), options(), result_ ? *result_ : result_.emplace(), progress);
  } catch (const std::bad_alloc&) {
    view_.showResult(nullptr, 0);
    result_.reset();
    context_.services.messages.error(textOf(Failure::notEnoughMemory));
  }
}

void UseTab::saveResult() {
  if (!result_) {
    return;
  }
  const auto file = context_.windowServices.fileDialogs.askSaveResult();
  if (!file) {
    return;
  }
  try {
    const auto content =
        composeResult(*result_, context_.document()->getPalette(), context_.settings().blank, file->format);
    if (!content || !writeFile(file->name, *content)) {
      context_.services.messages.error(textOf(Failure::couldNotCreate));
    }
  } catch (const std::bad_alloc&) {
    context_.services.messages.error(textOf(Failure::notEnoughMemory));
  }
}

bool UseTab::copy() {
  if (!image_ || isBusy_) {
    return false;
  }
  const PaletteEntry blank = context_.settings().blank;
  try {
    return context_.windowServices.clipboard.putBitmap(result_ ? clipboardBitmap(*result_, blank)
                                                               : clipboardBitmap(*image_, blank));
  } catch (const std::bad_alloc&) {
    context_.services.messages.error(textOf(Failure::notEnoughMemory));
    return false;
  }
}

void UseTab::paste() {
  if (isBusy_) {
    return;
  }
  const WaitCursor waiting;
  try {
    auto loaded = imageOnClipboard();
    if (!loaded) {
      return;
    }
    if (*loaded) {
      image_ = std::move(**loaded);
      imageChanged();
    } else {
      context_.services.messages.error(textOf(loaded->error()));
    }
  } catch (const std::bad_alloc&) {
    context_.services.messages.error(textOf(Failure::notEnoughMemory));
  }
}

std::optional<ImageResult> UseTab::imageOnClipboard() const {
  auto found = context_.windowServices.clipboard.getImage();
  if (!found) {
    return std::nullopt;
  }
  return found->isPng ? kPngPicture.decode(found->bytes, context_.settings().blank)
                      : loadClipboardImage(std::move(found->bytes));
}

void UseTab::clear() {
  if (!isBusy_) {
    image_.reset();
    imageChanged();
  }
}

}  // namespace quillhue
