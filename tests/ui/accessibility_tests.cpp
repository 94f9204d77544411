#include <map>

#include "commands/command_ids.h"
#include "core/utf8.h"
#include "formats/hex_color.h"
#include "ui/support/input.h"
#include "ui/support/use_test.h"
#include "ui/win32/com.h"

namespace quillhue {
namespace {

/// One element of the window's tree, with the system's interface to it.
struct Element {
  ComReference<IAccessible> object;
  LONG part = CHILDID_SELF;

  [[nodiscard]] VARIANT id() const {
    VARIANT id{};
    id.vt = VT_I4;
    id.lVal = part;
    return id;
  }
  using TextOf = HRESULT (IAccessible::*)(VARIANT, BSTR*);
  [[nodiscard]] std::wstring text(TextOf textOf) const {
    BSTR text = nullptr;
    (object.get()->*textOf)(id(), &text);
    std::wstring result = text == nullptr ? L"" : text;
    SysFreeString(text);
    return result;
  }
  [[nodiscard]] std::wstring name() const { return text(&IAccessible::get_accName); }
  [[nodiscard]] std::wstring value() const { return text(&IAccessible::get_accValue); }
  using NumberOf = HRESULT (IAccessible::*)(VARIANT, VARIANT*);
  [[nodiscard]] LONG number(NumberOf numberOf) const {
    VARIANT number{};
    (object.get()->*numberOf)(id(), &number);
    return number.vt == VT_I4 ? number.lVal : 0;
  }
  [[nodiscard]] LONG role() const { return number(&IAccessible::get_accRole); }
  [[nodiscard]] LONG state() const { return number(&IAccessible::get_accState); }
  [[nodiscard]] HRESULT press() const { return object.get()->accDoDefaultAction(id()); }
};

// The part that got the focus last, as the program announced it.
LONG announcedFocus = 0;
void CALLBACK noteFocus(HWINEVENTHOOK, DWORD, HWND, LONG, LONG part, DWORD, DWORD) { announcedFocus = part; }

/// The window as a screen reader sees it.
class AccessibleTree : public UseTest {
 protected:
  // The content of a window.
  static ComReference<IAccessible> contentOf(HWND window) {
    void* object = nullptr;
    if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &object))) {
      throw ProgramError("no accessible object for " + narrow(windowClass(window)));
    }
    return ComReference<IAccessible>(static_cast<IAccessible*>(object));
  }
  static Element part(HWND window, LONG part) { return {contentOf(window), part}; }

  // Adds the names of the visible elements below this one to their roles.
  static void walk(Element element, std::map<LONG, std::vector<std::wstring>>& tree) {
    if ((element.state() & STATE_SYSTEM_INVISIBLE) != 0) {
      return;
    }
    tree[element.role()].push_back(element.name());
    LONG count = 0;
    if (element.part != CHILDID_SELF || element.object.get()->get_accChildCount(&count) != S_OK || count == 0) {
      return;
    }
    std::vector<VARIANT> children(static_cast<std::size_t>(count));
    AccessibleChildren(element.object.get(), 0, count, children.data(), &count);
    children.resize(static_cast<std::size_t>(count));
    for (const VARIANT& child : children) {
      if (child.vt == VT_I4) {
        element.object.get()->AddRef();
        walk({ComReference<IAccessible>(element.object.get()), child.lVal}, tree);
      } else if (child.vt == VT_DISPATCH) {
        const ComReference<IDispatch> dispatch(child.pdispVal);
        void* object = nullptr;
        dispatch.get()->QueryInterface(IID_IAccessible, &object);
        const ComReference<IAccessible> frame(static_cast<IAccessible*>(object));
        // A child may be the frame of a window, which has no other content under Wine.
        HWND window = nullptr;
        WindowFromAccessibleObject(frame.get(), &window);
        walk({contentOf(window)}, tree);
      }
    }
  }
  static std::map<LONG, std::vector<std::wstring>> treeOf(const Program& program) {
    std::map<LONG, std::vector<std::wstring>> tree;
    walk({contentOf(program.window())}, tree);
    return tree;
  }
  [[nodiscard]] HWND bars() const {
    for (HWND control : findControls(editor().window(), L"Static")) {
      if ((GetWindowLongPtrW(control, GWL_STYLE) & SS_TYPEMASK) == SS_OWNERDRAW) {
        return control;
      }
    }
    throw ProgramError("no bars");
  }

  const Apartment apartment_;
};

TEST_F(AccessibleTree, NamesTheIconButtons) {
  const Program program;
  auto names = treeOf(program)[ROLE_SYSTEM_PUSHBUTTON];
  std::ranges::sort(names);
  EXPECT_EQ(names, (std::vector<std::wstring>{
                       L"New RGB palette...", L"New Windows 4-bit palette. Right-click for more options.",
                       L"New blank palette...", L"New greyscale palette...", L"Open palette..."}));
  HWND button = program.button(L"16");
  EXPECT_EQ(part(button, CHILDID_SELF).press(), S_OK);
  program.awaitTitle(L"Quillhue - Untitled");
}

TEST_F(AccessibleTree, PressesCellsAndBars) {
  const Palette palette = brightPalette(20);
  const Editor& editor = UiTest::open(palette, kValuesPage);
  auto tree = treeOf(editor);
  EXPECT_EQ(tree[ROLE_SYSTEM_TABLE], std::vector<std::wstring>{L"Palette"});
  ASSERT_EQ(tree[ROLE_SYSTEM_CELL].size(), 20U);
  for (std::int32_t i = 0; i < 20; ++i) {
    EXPECT_EQ(tree[ROLE_SYSTEM_CELL][static_cast<std::size_t>(i)],
              L"Entry " + std::to_wstring(i) + L", " + fromUtf8(hexTextOf(palette.entry(i))));
  }
  EXPECT_EQ(tree[ROLE_SYSTEM_SLIDER], (std::vector<std::wstring>{L"red", L"green", L"blue"}));

  HWND grid = editor.gridWindow();
  tabTo(editor, grid);
  const Element cell = part(grid, 8);
  EXPECT_EQ(part(grid, 1).state() & STATE_SYSTEM_FOCUSED, STATE_SYSTEM_FOCUSED);
  EXPECT_EQ(cell.state() & STATE_SYSTEM_FOCUSED, 0);
  EXPECT_EQ(cell.press(), S_OK);
  EXPECT_EQ(cell.state() & (STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED),
            STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED);
  EXPECT_TRUE(statusText(editor, 1).starts_with(L"7: "));
  VARIANT found{};
  EXPECT_EQ(cell.object.get()->get_accFocus(&found), S_OK);
  EXPECT_EQ(found.lVal, 8);
  const Point middle = editor.entryPoint(3);
  EXPECT_EQ(cell.object.get()->accHitTest(middle.x, middle.y, &found), S_OK);
  EXPECT_EQ(found.lVal, 4);
  LONG left = 0;
  LONG top = 0;
  LONG width = 0;
  LONG height = 0;
  EXPECT_EQ(cell.object.get()->accLocation(&left, &top, &width, &height, cell.id()), S_OK);
  EXPECT_EQ(middleOf({left, top, left + width, top + height}), editor.entryPoint(7));

  HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_FOCUS, nullptr, noteFocus, editor.processId(),
                                       0, WINEVENT_OUTOFCONTEXT);
  pressKey(VK_RIGHT);
  editor.await("the announced focus", [] {
    MSG message{};
    PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);
    return announcedFocus == 9;
  });
  UnhookWinEvent(hook);
  pressKey(VK_LEFT);
  editor.awaitEqual(cell.name(), [&] { return L"Entry " + statusText(editor, 1).replace(1, 1, L","); });

  const Element green = part(bars(), 2);
  EXPECT_EQ(green.value(), L"60");
  EXPECT_EQ(green.text(&IAccessible::get_accDescription), L"0 to 255");
  EXPECT_EQ(green.press(), S_OK);
  EXPECT_EQ(green.value(), L"61");
  for (const auto& [text, result] : {std::pair{L"200", S_OK}, {L"x", E_INVALIDARG}}) {
    BSTR value = SysAllocString(text);
    EXPECT_EQ(green.object.get()->put_accValue(green.id(), value), result);
    SysFreeString(value);
  }
  EXPECT_EQ(editor.saved().entry(7), (PaletteEntry{47, 200, palette.entry(7).blue}));
  // Parts with these ids do not exist.
  for (const LONG none : {-1, 4, 1000}) {
    EXPECT_EQ(part(bars(), none).press(), E_INVALIDARG) << none;
  }

  // On the other tab, a press selects according to the mode.
  editor.choosePage(kEffectsPage);
  for (const LONG id : {2, 3, 3}) {
    EXPECT_EQ(part(editor.gridWindow(), id).press(), S_OK);
  }
  EXPECT_NE(part(editor.gridWindow(), 2).state() & STATE_SYSTEM_SELECTED, 0);
  EXPECT_EQ(part(editor.gridWindow(), 3).state() & STATE_SYSTEM_SELECTED, 0);
}

TEST_F(AccessibleTree, TellsTheImage) {
  open(imageColors_);
  const auto image = [&] { return treeOf(editor())[ROLE_SYSTEM_GRAPHIC]; };
  EXPECT_EQ(image(), std::vector<std::wstring>{L"No image"});
  load(indexed_);
  EXPECT_EQ(image(), std::vector<std::wstring>{L"Image, 150 by 70 pixels"});
  process();
  EXPECT_EQ(image(), std::vector<std::wstring>{L"Image, 150 by 70 pixels, remapped"});
}

}  // namespace
}  // namespace quillhue
