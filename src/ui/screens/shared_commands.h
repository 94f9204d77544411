#pragma once

#include "commands/command_target.h"

namespace quillhue {

struct WindowContext;

/// The commands that both screens know: new palettes, opening, leaving, help.
class SharedCommands : public CommandTarget {
 public:
  explicit SharedCommands(WindowContext& context) : context_(context) {}

  /// A document that one of these three opens may end the intro screen.
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
