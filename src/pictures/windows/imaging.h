#pragma once

#include <wincodec.h>
#include <windows.h>

#include <memory>

namespace quillhue {

/// Releases a reference to a COM object.
struct ReleaseObject {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using ComPointer = std::unique_ptr<Interface, ReleaseObject>;

/// Calls a function that returns its object through a pointer. Returns the object, or null when the function fails:
/// made<Interface>([&](Interface** out) { return create(out); }).
template <typename Interface, typename Make>
[[nodiscard]] ComPointer<Interface> made(Make make) {
  Interface* object = nullptr;
  const HRESULT result = make(&object);
  return ComPointer<Interface>(SUCCEEDED(result) ? object : nullptr);
}

/// The Windows Imaging Component, which this thread can use during the lifetime of this object.
class Imaging {
 public:
  Imaging();
  Imaging(const Imaging&) = delete;
  Imaging& operator=(const Imaging&) = delete;
  ~Imaging();

  /// Returns null if the system has no Imaging Component.
  [[nodiscard]] IWICImagingFactory* factory() const { return factory_.get(); }

 private:
  HRESULT apartment_;
  ComPointer<IWICImagingFactory> factory_;
};

}  // namespace quillhue
