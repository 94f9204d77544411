#pragma once

#include <string_view>

#include "core/services.h"
#include "ui/win32/dialog_owner.h"

namespace quillhue {

/// Shows messages and questions as message boxes over the main window, or over the dialog that is open on it.
class MessageBoxes final : public Messages {
 public:
  explicit MessageBoxes(const DialogOwner& owner) : owner_(owner) {}

  void information(std::string_view text) override;
  void error(std::string_view text) override;
  SaveChangesAnswer askSaveChanges(std::string_view text) override;
  bool askReplaceFile(std::string_view text) override;

 private:
  const DialogOwner& owner_;
};

}  // namespace quillhue
