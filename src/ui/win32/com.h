#pragma once

#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Lets the window's thread use COM objects, from construction to destruction.
class Apartment {
 public:
  Apartment() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
  ~Apartment() {
    if (SUCCEEDED(result_)) {
      CoUninitialize();
    }
  }

 private:
  HRESULT result_;
};

template <typename Interface>
struct ReleasedReference {
  using Value = Interface*;
  static void close(Value object) { object->Release(); }
};
/// Owns a reference to a COM object.
template <typename Interface>
using ComReference = Handle<ReleasedReference<Interface>>;

}  // namespace quillhue
