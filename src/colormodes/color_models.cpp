#include "colormodes/color_models.h"

#include <array>
#include <cstddef>

namespace quillhue {

namespace {

constexpr std::array kModels{&kCmyModel,   &kHsiModel,   &kHslModel, &kHsvModel, &kRgbModel,
                             &kYcbcrModel, &kYdbdrModel, &kYiqModel, &kYuvModel};

}  // namespace

std::span<const ColorModel* const> colorModels() { return kModels; }

const ColorModel& colorModelOf(std::int32_t index) {
  const auto at = static_cast<std::size_t>(index);
  return at < kModels.size() ? *kModels[at] : kRgbModel;
}

ColorMode& createColorMode(std::int32_t index, std::int32_t entry, const DocumentSlot& slot,
                           std::unique_ptr<ColorMode>& mode) {
  const ColorModel& model = colorModelOf(index);
  auto next = model.create(model, slot);
  next->start(entry);
  mode = std::move(next);
  return *mode;
}

}  // namespace quillhue
