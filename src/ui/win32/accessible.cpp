#include "ui/win32/accessible.h"

#include <new>

#include "core/utf8.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

// Copies the text to `result`. An empty text gives null.
HRESULT give(const std::string& text, BSTR* result) {
  *result = text.empty() ? nullptr : SysAllocString(fromUtf8(text).c_str());
  return *result == nullptr ? S_FALSE : S_OK;
}

void giveNumber(LONG number, VARIANT* result) {
  result->vt = VT_I4;
  result->lVal = number;
}

// Ids of parts count from 1; 0 is the window.
constexpr LONG idOf(std::int32_t index) { return index + 1; }

VARIANT windowId() {
  VARIANT id{};
  giveNumber(CHILDID_SELF, &id);
  return id;
}

}  // namespace

/// The system's interface to the content. Other programs may keep references to it when the window is gone.
class Accessibility::Object final : public IAccessible {
 public:
  Object(HWND window, AccessibleContent& content) : window_(window), content_(&content) {
    void* created = nullptr;
    if (SUCCEEDED(CreateStdAccessibleObject(window, OBJID_CLIENT, IID_IAccessible, &created))) {
      standard_.reset(static_cast<IAccessible*>(created));
    }
  }
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  void disconnect() { content_ = nullptr; }

  STDMETHOD(QueryInterface)(REFIID wanted, void** result) override {
    const bool isKnown = wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == IID_IAccessible;
    *result = isKnown ? this : nullptr;
    if (isKnown) {
      AddRef();
    }
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  STDMETHOD_(ULONG, AddRef)() override { return ++references_; }
  STDMETHOD_(ULONG, Release)() override {
    const ULONG left = --references_;
    if (left == 0) {
      delete this;
    }
    return left;
  }

  // Scripts do not use the object.
  STDMETHOD(GetTypeInfoCount)(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHOD(GetTypeInfo)(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHOD(GetIDsOfNames)(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHOD(Invoke)(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }

  STDMETHOD(get_accParent)(IDispatch** parent) override {
    *parent = nullptr;
    return standard_ ? standard_.get()->get_accParent(parent) : S_FALSE;
  }
  STDMETHOD(get_accChildCount)(LONG* count) override {
    *count = content_ == nullptr ? 0 : content_->accessibleCount();
    return content_ == nullptr ? CO_E_OBJNOTCONNECTED : S_OK;
  }
  STDMETHOD(get_accChild)(VARIANT id, IDispatch** child) override {
    *child = nullptr;
    // The parts have no objects of their own.
    return on(id, [](std::int32_t) { return S_FALSE; });
  }
  STDMETHOD(get_accName)(VARIANT id, BSTR* text) override { return giveText(id, &AccessibleElement::name, text); }
  STDMETHOD(get_accValue)(VARIANT id, BSTR* text) override { return giveText(id, &AccessibleElement::value, text); }
  STDMETHOD(get_accDescription)(VARIANT id, BSTR* text) override {
    return giveText(id, &AccessibleElement::description, text);
  }
  STDMETHOD(get_accDefaultAction)(VARIANT id, BSTR* text) override {
    return giveText(id, &AccessibleElement::action, text);
  }
  STDMETHOD(get_accHelp)(VARIANT, BSTR* text) override { return give({}, text); }
  STDMETHOD(get_accHelpTopic)(BSTR* file, VARIANT, LONG*) override { return give({}, file); }
  STDMETHOD(get_accKeyboardShortcut)(VARIANT, BSTR* text) override { return give({}, text); }
  STDMETHOD(get_accRole)(VARIANT id, VARIANT* role) override {
    return on(id, [&](std::int32_t index) {
      giveNumber(content_->accessibleElement(index).role, role);
      return S_OK;
    });
  }
  STDMETHOD(get_accState)(VARIANT id, VARIANT* state) override {
    return on(id, [&](std::int32_t index) {
      LONG own = content_->accessibleElement(index).state;
      if (index == AccessibleContent::kWindow) {
        own |= windowState();
      } else {
        own |= windowState() & (STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_UNAVAILABLE);
        own |= GetFocus() == window_ && content_->accessibleFocus() == index ? STATE_SYSTEM_FOCUSED : 0;
      }
      giveNumber(own, state);
      return S_OK;
    });
  }
  STDMETHOD(get_accFocus)(VARIANT* child) override {
    child->vt = VT_EMPTY;
    if (content_ == nullptr) {
      return CO_E_OBJNOTCONNECTED;
    }
    if (GetFocus() != window_) {
      return S_FALSE;
    }
    giveNumber(idOf(content_->accessibleFocus()), child);
    return S_OK;
  }
  // Each part's state says whether it is selected.
  STDMETHOD(get_accSelection)(VARIANT* children) override {
    children->vt = VT_EMPTY;
    return S_FALSE;
  }
  STDMETHOD(accSelect)(LONG flags, VARIANT id) override {
    return on(id, [&](std::int32_t index) {
      if ((flags & ~(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0) {
        return E_INVALIDARG;
      }
      SetFocus(window_);
      if (index != AccessibleContent::kWindow) {
        content_->accessibleChoose(index);
      }
      return S_OK;
    });
  }
  STDMETHOD(accLocation)(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT id) override {
    return on(id, [&](std::int32_t index) {
      RECT box{};
      GetClientRect(window_, &box);
      if (index != AccessibleContent::kWindow) {
        box = toSystem(content_->accessibleElement(index).box);
      }
      POINT corner{box.left, box.top};
      ClientToScreen(window_, &corner);
      *left = corner.x;
      *top = corner.y;
      *width = box.right - box.left;
      *height = box.bottom - box.top;
      return S_OK;
    });
  }
  STDMETHOD(accNavigate)(LONG direction, VARIANT start, VARIANT* end) override {
    end->vt = VT_EMPTY;
    return on(start, [&](std::int32_t index) {
      const std::int32_t last = content_->accessibleCount() - 1;
      const bool isWindow = index == AccessibleContent::kWindow;
      std::int32_t found = AccessibleContent::kWindow;
      if (isWindow && direction != NAVDIR_FIRSTCHILD && direction != NAVDIR_LASTCHILD) {
        return standard_ ? standard_.get()->accNavigate(direction, windowId(), end) : S_FALSE;
      }
      if (isWindow) {
        found = direction == NAVDIR_FIRSTCHILD ? 0 : last;
      } else if (direction == NAVDIR_NEXT || direction == NAVDIR_PREVIOUS) {
        found = direction == NAVDIR_NEXT ? index + 1 : index - 1;
      }
      if (found < 0 || found > last) {
        return S_FALSE;
      }
      giveNumber(idOf(found), end);
      return S_OK;
    });
  }
  STDMETHOD(accHitTest)(LONG left, LONG top, VARIANT* child) override {
    child->vt = VT_EMPTY;
    if (content_ == nullptr) {
      return CO_E_OBJNOTCONNECTED;
    }
    POINT point{left, top};
    RECT client{};
    ScreenToClient(window_, &point);
    GetClientRect(window_, &client);
    if (PtInRect(&client, point) == 0) {
      return S_FALSE;
    }
    giveNumber(idOf(content_->accessibleAt(fromSystem(point))), child);
    return S_OK;
  }
  STDMETHOD(accDoDefaultAction)(VARIANT id) override {
    return on(id, [&](std::int32_t index) {
      if (content_->accessibleElement(index).action.empty() || !isUsable()) {
        return DISP_E_MEMBERNOTFOUND;
      }
      content_->accessibleAct(index);
      return S_OK;
    });
  }
  STDMETHOD(put_accName)(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHOD(put_accValue)(VARIANT id, BSTR text) override {
    return on(id, [&](std::int32_t index) {
      return isUsable() && content_->accessibleSetValue(index, text == nullptr ? L"" : text) ? S_OK : E_INVALIDARG;
    });
  }

 private:
  ~Object() = default;

  // Calls `answer` with the part, if the id is one of the window or of a part.
  template <typename Answer>
  HRESULT on(const VARIANT& id, Answer answer) {
    if (content_ == nullptr) {
      return CO_E_OBJNOTCONNECTED;
    }
    if (id.vt != VT_I4 || id.lVal < CHILDID_SELF || id.lVal > content_->accessibleCount()) {
      return E_INVALIDARG;
    }
    try {
      return answer(static_cast<std::int32_t>(id.lVal) - 1);
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    }
  }
  HRESULT giveText(const VARIANT& id, std::string AccessibleElement::* text, BSTR* result) {
    *result = nullptr;
    return on(id, [&](std::int32_t index) { return give(content_->accessibleElement(index).*text, result); });
  }
  [[nodiscard]] LONG windowState() const {
    VARIANT state{};
    return standard_ && SUCCEEDED(standard_.get()->get_accState(windowId(), &state)) && state.vt == VT_I4 ? state.lVal
                                                                                                          : 0;
  }
  // An open dialog disables the main window.
  [[nodiscard]] bool isUsable() const {
    return IsWindowVisible(window_) != 0 && IsWindowEnabled(window_) != 0 &&
           IsWindowEnabled(GetAncestor(window_, GA_ROOT)) != 0;
  }

  ULONG references_ = 1;
  HWND window_;
  AccessibleContent* content_;
  // The system's own description of the window.
  ComReference<IAccessible> standard_;
};

Accessibility::~Accessibility() {
  if (object_ != nullptr) {
    object_->disconnect();
    object_->Release();
  }
}

LRESULT Accessibility::answer(HWND window, WPARAM wParam) {
  if (object_ == nullptr) {
    object_ = new Object(window, content_);
  }
  return LresultFromObject(IID_IAccessible, wParam, object_);
}

void announce(DWORD event, HWND window, std::int32_t index) {
  NotifyWinEvent(event, window, OBJID_CLIENT, idOf(index));
}

}  // namespace quillhue
