#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/output_format.h"
#include "cli/refusal.h"

namespace quillhue::cli {

void addForceFlag(Verb& verb, bool& force);

/// A palette on its way into a file.
struct PaletteOutput {
  /// What a palette that the format can't hold is reported for.
  const std::string& from;
  const std::string& to;
  const OutputFormat& format;
  /// The color of entries that the format has and the palette has not.
  PaletteEntry blank;
  const OutputOptions& options;
};

/// Composes the palette and writes it. Refuses the usage when an option goes with another format.
[[nodiscard]] std::expected<void, FileRefusal> writePalette(const PaletteOutput& output, const Palette& palette,
                                                            Console& console);

/// Refuses the usage when data and JSON would both go to standard output.
void refuseJsonOnStandardOutput(bool json, const std::string& file);

/// Writes a whole file, or for "-" to standard output. A file that exists is replaced only with `force`.
[[nodiscard]] std::expected<void, std::string> writeOutput(const std::string& file,
                                                           const std::vector<std::uint8_t>& content, bool force,
                                                           Console& console);

}  // namespace quillhue::cli
