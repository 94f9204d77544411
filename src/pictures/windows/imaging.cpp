#include "pictures/windows/imaging.h"

namespace quillhue {

// If this thread already uses another kind of apartment, it keeps that one.
Imaging::Imaging()
    : apartment_(CoInitializeEx(nullptr, COINIT_MULTITHREADED)),
      factory_(made<IWICImagingFactory>([](IWICImagingFactory** out) {
        return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                reinterpret_cast<void**>(out));
      })) {}

Imaging::~Imaging() {
  factory_.reset();
  if (SUCCEEDED(apartment_)) {
    CoUninitialize();
  }
}

}  // namespace quillhue
