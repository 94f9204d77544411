#pragma once

#include "commands/command_target.h"

namespace quillhue {

struct WindowContext;

/// Commands of both screens: new palettes, opening, exit and help.
class SharedCommands : public CommandTarget {
 public:
  explicit SharedCommands(WindowContext& context) : context_(context) {}

  /// These three may open a document, which destroys the intro screen.
  void newPalette(NewPaletteKind kind) override;
  void newSystemPalette(std::int32_t command) override;
  void openPalette() override;
  void exit() override;
  void showReadMe() override;
  void showAbout() override;

 protected:
  [[nodiscard]] WindowContext& context() const { return context_; }

 private:
  void openUntitled(Palette palette, bool initiallyModified);

  WindowContext& context_;
};

}  // namespace quillhue
