#pragma once

#include <cstdint>
#include <expected>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/refusal.h"
#include "formats/writers/palette_writers.h"

namespace quillhue::cli {

/// The options of every verb that writes palettes.
void addFormatOption(Verb& verb, std::string& format);
void addForceFlag(Verb& verb, bool& force);

/// The writer that --format names, or else the one that the file's extension stands for; refuses the usage
/// when that tells none.
[[nodiscard]] const PaletteWriter& chooseWriter(const std::string& format, const std::string& file);

/// Composes the palette in the writer's format and writes it to the file `to`. `from` is what a palette that the
/// format can't hold is reported for.
[[nodiscard]] std::expected<void, FileRefusal> writePalette(const std::string& from, const Palette& palette,
                                                            const std::string& to, const PaletteWriter& writer,
                                                            PaletteEntry blank, bool force, Console& console);

/// Refuses the usage when data and JSON would both go to standard output.
void refuseJsonOnStandardOutput(bool json, const std::string& file);

/// Writes a whole file, or for "-" to standard output. A file that exists is replaced only with `force`.
[[nodiscard]] std::expected<void, std::string> writeOutput(const std::string& file,
                                                           const std::vector<std::uint8_t>& content, bool force,
                                                           Console& console);

}  // namespace quillhue::cli
