#pragma once

#include <wincodec.h>
#include <windows.h>

#include <memory>

namespace quillhue {

/// Owns a reference to an object of the system.
struct ReleaseObject {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using ComPointer = std::unique_ptr<Interface, ReleaseObject>;

/// The result of a function that returns its object through a pointer, or null when it fails:
/// made<Interface>([&](Interface** out) { return create(out); }).
template <typename Interface, typename Make>
[[nodiscard]] ComPointer<Interface> made(Make make) {
  Interface* object = nullptr;
  const HRESULT result = make(&object);
  return ComPointer<Interface>(SUCCEEDED(result) ? object : nullptr);
}

/// The Windows Imaging Component, usable on this thread while this exists.
class Imaging {
 public:
  Imaging();
  Imaging(const Imaging&) = delete;
  Imaging& operator=(const Imaging&) = delete;
  ~Imaging();

  /// Null when the system has none.
  [[nodiscard]] IWICImagingFactory* factory() const { return factory_.get(); }

 private:
  HRESULT apartment_;
  ComPointer<IWICImagingFactory> factory_;
};

}  // namespace quillhue
