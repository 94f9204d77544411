#include "ui/main_window.h"

#include <utility>

#include "commands/command_table.h"
#include "core/utf8.h"
#include "formats/palette_file.h"
#include "ui/logic/frame_layout.h"
#include "ui/logic/window_size.h"
#include "ui/logic/window_texts.h"
#include "ui/message_dispatch.h"
#include "ui/shown_menus.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/win32/guarded.h"
#include "ui/win32/system.h"
#include "ui/win32/wait_cursor.h"

namespace quillhue {

namespace {

constexpr const wchar_t* kClassName = L"Quillhue4";
constexpr int kStatusBarId = 1;

// Returns the window's size, or its restored size if it is minimised or maximised.
Size outerSize(HWND window) {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  RECT box{};
  if ((IsIconic(window) != 0 || IsZoomed(window) != 0) && GetWindowPlacement(window, &placement) != 0) {
    box = placement.rcNormalPosition;
  } else {
    GetWindowRect(window, &box);
  }
  return {box.right - box.left, box.bottom - box.top};
}

}  // namespace

MainWindow::MainWindow(WindowParts parts)
    : parts_(std::move(parts)),
      services_{.settings = parts_.settings.app,
                .messages = parts_.messages,
                .observer = *this,
                .fileQuestions = parts_.fileQuestions,
                .clipboard = parts_.clipboard,
                .screen = parts_.screen},
      usedFile_(*this, parts_.fileUsed),
      closing_(*this, *this, parts_.slot) {}

MainWindow::~MainWindow() = default;

std::string_view MainWindow::open(int showCommand) {
  WNDCLASSEXW description = windowClass(kClassName);
  description.hIcon = LoadIconW(description.hInstance, L"MAINICON");
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  description.lpszMenuName = L"MAINMENU";
  if (!registerClass(description)) {
    return kNoWindowClassText;
  }
  const Size size = parts_.settings.window;
  if (!create({.windowClass = kClassName,
               .title = std::wstring(kWelcomeTitle),
               .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
               .extendedStyle = WS_EX_CONTROLPARENT | WS_EX_ACCEPTFILES,
               .x = CW_USEDEFAULT,
               .y = CW_USEDEFAULT,
               .width = size.width,
               .height = size.height})) {
    return kNoWindowText;
  }
  accelerators_.reset(LoadAcceleratorsW(description.hInstance, L"MAINACCEL"));
  ShowWindow(handle(), showCommand);
  return {};
}

void MainWindow::dispatch(MSG& message) {
  focus_.note();
  dispatchMessage(handle(), accelerators_.get(), message);
}

Rect MainWindow::screenArea() const {
  RECT statusBar{};
  GetWindowRect(statusBar_->handle(), &statusBar);
  return quillhue::screenArea(clientSize(handle()), statusBar.bottom - statusBar.top);
}

void MainWindow::showEditor() {
  // The intro screen stays if there is no memory for the editor.
  screen_ = parts_.makeEditor(*context_);
  updateMenus();
  repaint(handle(), true);
  UpdateWindow(handle());
}

void MainWindow::updateMenus() {
  showInMenus(handle(), contextMenus_.get(), screen_ != nullptr ? screen_->commandState() : CommandState{},
              parts_.settings.app.selectionMode);
}

void MainWindow::showEntryText(const std::string& text) { statusBar_->setText(kCurrentEntryPart, text); }

void MainWindow::openFile(const std::wstring& name) {
  const WaitCursor waiting;
  readPaletteFile(name, parts_.slot, services_);
}

void MainWindow::documentSaved() { usedFile_.note(document()->getFileName()); }

void MainWindow::openContextMenu(std::int32_t menu, Point screenPoint) const {
  TrackPopupMenu(GetSubMenu(contextMenus_.get(), menu), TPM_RIGHTBUTTON, screenPoint.x, screenPoint.y, 0, handle(),
                 nullptr);
}

void MainWindow::titleChanged(const std::wstring& title) noexcept { SetWindowTextW(handle(), title.c_str()); }

void MainWindow::statusChanged(std::string_view text) noexcept {
  guarded(handle(), [&] { statusBar_->setText(kEntriesPart, text); });
}

void MainWindow::undoRedoChanged(bool /*canUndo*/, bool /*canRedo*/) noexcept {
  // A document that is still being made is announced by documentReplaced(). Until then the menus would be greyed and
  // flicker.
  if (document() != nullptr) {
    guarded(handle(), [&] { updateMenus(); });
  }
}

void MainWindow::documentReplaced() noexcept {
  guarded(handle(), [&] {
    screen_->documentReplaced();
    updateMenus();
    if (!document()->getFileName().empty()) {
      usedFile_.note(document()->getFileName());
    }
  });
}

LRESULT MainWindow::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE:
      created();
      return 0;
    case WM_DESTROY:
      destroyed();
      return 0;
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED) {
        sized();
      }
      return 0;
    case WM_SIZING:
      sizing(wParam, lParam);
      return TRUE;
    case WM_PAINT:
      paint();
      return 0;
    case WM_COMMAND:
      lParam != 0 ? controlNotification(wParam, lParam) : menuCommand(LOWORD(wParam));
      return 0;
    case WM_HSCROLL:
    case WM_VSCROLL:
      controlNotification(wParam, lParam);
      return 0;
    case WM_DRAWITEM:
      if (wParam == kStatusBarId) {
        statusBar_->draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
      }
      return answerSystem(message, wParam, lParam);
    case WM_CTLCOLORSTATIC:
      return staticColors(reinterpret_cast<HDC>(wParam));
    case WM_DROPFILES:
      filesDropped(wParam);
      return 0;
    case WM_CLOSE:
      closing_.close();
      return 0;
    case WindowClosing::kRunEnded:
      closing_.runEnded();
      return 0;
    case WM_TIMER:
      usedFile_.passOn();
      return 0;
    default:
      return answerSystem(message, wParam, lParam);
  }
}

LRESULT MainWindow::answerSystem(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_QUERYENDSESSION:
      return closing_.maySessionEnd() ? TRUE : FALSE;
    case WM_ENDSESSION:
      sessionEnds(wParam != FALSE);
      return 0;
    case WM_ACTIVATE:
    case WM_SYSCOMMAND:
      // Both messages may take the focus from the controls.
      focus_.note();
      return DefWindowProcW(handle(), message, wParam, lParam);
    case WM_SETFOCUS:
      focus_.enter();
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      // The system sends these messages to top-level windows only.
      passToChildren(handle(), message, wParam, lParam);
      repaintAll(handle());
      return 0;
    default:
      return screen_ != nullptr ? screen_->otherMessage(handle(), message, wParam, lParam)
                                : DefWindowProcW(handle(), message, wParam, lParam);
  }
}

void MainWindow::created() {
  focus_.attach(handle());
  AddClipboardFormatListener(handle());
  const Scale scale{screenDpi()};
  constexpr int kWeight = 500;
  font_.reset(CreateFontW(fontHeight(scale), 0, 0, 0, kWeight, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                          CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, L"Segoe UI"));
  statusBar_ = std::make_unique<StatusBar>(handle(), kStatusBarId, statusPartEdges(scale), kCurrentEntryPart);
  statusBar_->setText(kVersionPart, kVersionText);
  contextMenus_.reset(LoadMenuW(GetModuleHandleW(nullptr), L"MAINPOPUP"));
  parts_.dialogOwner.set(handle(), font_.get(), scale);
  context_ = std::make_unique<WindowContext>(WindowContext{.window = handle(),
                                                           .font = font_.get(),
                                                           .scale = scale,
                                                           .slot = parts_.slot,
                                                           .services = services_,
                                                           .windowServices = parts_.services,
                                                           .focus = focus_,
                                                           .frame = *this});
  screen_ = parts_.makeIntro(*context_);
  updateMenus();
}

void MainWindow::destroyed() {
  PostQuitMessage(0);
  RemoveClipboardFormatListener(handle());
  usedFile_.passOn();
  // Destroy the screen before the document, because its controls may send notifications while they are destroyed.
  screen_.reset();
  parts_.slot.closeDocument();
  contextMenus_.reset();
  statusBar_.reset();
  font_.reset();
  saveSettings();
}

void MainWindow::saveSettings() {
  parts_.settings.window = outerSize(handle());
  writeSettings(parts_.settings, parts_.settingsStore);
}

void MainWindow::sized() {
  RECT box{};
  GetWindowRect(statusBar_->handle(), &box);
  const Size client = clientSize(handle());
  const std::int32_t height = box.bottom - box.top;
  moveTo(statusBar_->handle(), boxAt({0, client.height - height}, {client.width, height}));
  if (screen_ != nullptr) {
    const Rect area = screenArea();
    screen_->resize({area.width(), area.height()});
  }
  if (GetFocus() == handle()) {
    // The window was minimised before.
    focus_.enter();
  }
  repaintAll(handle());
  UpdateWindow(handle());
}

void MainWindow::sizing(WPARAM edge, LPARAM lParam) const {
  auto* const window = reinterpret_cast<RECT*>(lParam);
  *window = toSystem(keepMinimum(fromSystem(*window), static_cast<SizingEdge>(edge), context_->scale));
}

void MainWindow::paint() {
  const PaintDc dc(handle());
  if (screen_ != nullptr) {
    screen_->paint(dc.get(), screenArea());
  }
}

void MainWindow::menuCommand(std::int32_t command) {
  // An open dialog disables the window, but other programs may still send commands.
  if (screen_ != nullptr && IsWindowEnabled(handle())) {
    screen_->menuCommand(command);
  }
}

void MainWindow::controlNotification(WPARAM wParam, LPARAM lParam) {
  if (screen_ != nullptr && lParam != 0) {
    screen_->controlNotification(reinterpret_cast<HWND>(lParam), wParam);
  }
}

LRESULT MainWindow::staticColors(HDC dc) {
  SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
  SetBkColor(dc, GetSysColor(COLOR_WINDOW));
  return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
}

void MainWindow::filesDropped(WPARAM wParam) {
  const Drop drop(reinterpret_cast<HDROP>(wParam));
  if (!IsWindowEnabled(handle()) || !confirmDiscard()) {
    return;
  }
  openFile(firstFile(drop));
}

// If the session ends, the process ends without further messages.
void MainWindow::sessionEnds(bool ends) {
  if (ends) {
    saveSettings();
  } else {
    closing_.sessionGoesOn();
  }
}

bool MainWindow::confirmDiscard() {
  if (document() == nullptr) {
    return true;
  }
  const std::int32_t saves = document()->saveCount();
  const bool confirmed = askToSave(*document(), services_);
  if (document()->saveCount() != saves) {
    documentSaved();
  }
  return confirmed;
}

bool MainWindow::pumpMessages() {
  MSG message{};
  while (!closing_.isWaiting() && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // Leaves the message to the main loop.
      PostQuitMessage(static_cast<int>(message.wParam));
      return false;
    }
    dispatch(message);
  }
  return !closing_.isWaiting();
}

}  // namespace quillhue
