#include "ui/dialogs/palette_from_image_dialog.h"

#include <string>

#include "core/services.h"
#include "ui/logic/from_image_dialog.h"
#include "ui/logic/typed_number.h"
#include "ui/logic/window_texts.h"
#include "ui/resources/dialog_ids.h"
#include "ui/win32/controls.h"
#include "ui/win32/dialog_owner.h"
#include "ui/win32/modal_dialog.h"

namespace quillhue {

namespace {

class PaletteFromImageDialog final : public ModalDialog {
 public:
  PaletteFromImageDialog(const DialogOwner& owner, Messages& messages, std::uint64_t distinctColors)
      : owner_(owner), messages_(messages), distinctColors_(distinctColors) {}

  std::int32_t ask() {
    run(owner_.top(), L"DBNEWFROMIMAGE", owner_.font());
    return answer_;
  }

 private:
  void opened() override;
  void command(int id, int notification) override;

  [[nodiscard]] std::optional<std::int32_t> size() const { return typedNumber(windowText(control(FROM_IMAGE_SIZE))); }
  void chooseDefault() const;
  void take(const FromImageAnswer& answer);

  const DialogOwner& owner_;
  Messages& messages_;
  std::uint64_t distinctColors_;
  std::int32_t answer_ = 0;
};

void PaletteFromImageDialog::opened() {
  setWindowText(control(FROM_IMAGE_FIRST_TEXT), kFromImageTexts[0]);
  setWindowText(control(FROM_IMAGE_SECOND_TEXT), kFromImageTexts[1]);
  setWindowText(control(FROM_IMAGE_FOUND), colorsFoundText(distinctColors_));
  setWindowText(control(FROM_IMAGE_SIZE), std::to_string(proposedSize(distinctColors_)));
  enable(control(FROM_IMAGE_USE_ALL), canUseAllColors(distinctColors_));
  chooseDefault();
}

/// Chooses the button for Enter: "Use all colors" if all colors fit into the size in the field, else "Reduce colors".
void PaletteFromImageDialog::chooseDefault() const {
  const bool allFit = canUseAllColors(distinctColors_) && size() >= static_cast<std::int32_t>(distinctColors_);
  SendMessageW(window(), DM_SETDEFID, allFit ? FROM_IMAGE_USE_ALL : FROM_IMAGE_REDUCE, 0);
}

void PaletteFromImageDialog::take(const FromImageAnswer& answer) {
  if (answer) {
    answer_ = *answer;
    close();
    return;
  }
  messages_.error(answer.error());
  focus(FROM_IMAGE_SIZE);
}

void PaletteFromImageDialog::command(int id, int notification) {
  if (id == FROM_IMAGE_USE_ALL) {
    take(useAllColors(size(), distinctColors_));
  } else if (id == FROM_IMAGE_REDUCE) {
    take(reduceColors(size()));
  } else if (notification == EN_CHANGE) {
    chooseDefault();
  }
}

}  // namespace

std::int32_t showPaletteFromImageDialog(const DialogOwner& owner, Messages& messages, std::uint64_t distinctColors) {
  return PaletteFromImageDialog(owner, messages, distinctColors).ask();
}

}  // namespace quillhue
