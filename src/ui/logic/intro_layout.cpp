#include "ui/logic/intro_layout.h"

#include <algorithm>
#include <array>

#include "commands/command_ids.h"

namespace quillhue {

namespace {

constexpr std::int32_t kSide = 64;

constexpr std::array<IntroButton, 5> kButtons{{
    {"Blank", "SUBLANKBMP", "New blank palette...", command_id::kNewBlank, {-176, -80}},
    {"16", "SU16BMP", "New Windows 4-bit palette. Right-click for more options.", command_id::kNewWindows, {-80, -80}},
    {"Grey", "SUGREYBMP", "New greyscale palette...", command_id::kNewGreyscale, {16, -80}},
    {"RGB", "SURGBBMP", "New RGB palette...", command_id::kNewRgb, {112, -80}},
    {"Open", "SULOADBMP", "Open palette...", command_id::kOpen, {-32, 16}},
}};

}  // namespace

std::span<const IntroButton> introButtons() { return kButtons; }

const IntroButton& systemPalettesButton() { return kButtons[1]; }

Rect introButtonBox(const IntroButton& button, Size screen, Scale scale) {
  return boxAt({screen.width / 2 + scale(button.offset.x), screen.height / 2 + scale(button.offset.y)},
               scale({kSide, kSide}));
}

Rect introButtonFace(Scale scale) { return boxAt({}, scale({kSide, kSide})); }

// Proceeds by rows of buttons: first the box above a row, then the boxes beside its buttons.
std::vector<Rect> introBackground(Size screen, Scale scale) {
  std::vector<Rect> boxes;
  const auto add = [&](const Rect& box) {
    const Rect clipped{std::max(box.left, 0), std::max(box.top, 0), std::min(box.right, screen.width),
                       std::min(box.bottom, screen.height)};
    if (!clipped.isEmpty()) {
      boxes.push_back(clipped);
    }
  };
  Rect last{0, 0, screen.width, 0};
  for (const IntroButton& button : kButtons) {
    const Rect box = introButtonBox(button, screen, scale);
    if (box.top != last.top) {
      add({last.right, last.top, screen.width, last.bottom});
      add({0, last.bottom, screen.width, box.top});
      last.right = 0;
    }
    add({last.right, box.top, box.left, box.bottom});
    last = box;
  }
  add({last.right, last.top, screen.width, last.bottom});
  add({0, last.bottom, screen.width, screen.height});
  return boxes;
}

}  // namespace quillhue
