#pragma once

#include <cstdint>

namespace quillhue {

class MainWindow;

/// Carries out a command that both screens know: new palettes, opening, leaving, help. False for any other. A document
/// that it opens may end the intro screen.
bool runSharedCommand(MainWindow& window, std::int32_t command);

}  // namespace quillhue
