#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "cli/command_line.h"
#include "remap/remap.h"

namespace quillhue::cli {

/// The options of dithering as given.
struct DitherArguments {
  std::string kernel;
  bool serpentine = false;
  bool clamp = false;
  std::optional<std::int32_t> strength;
  std::string matrix;
  std::optional<std::int32_t> protectedEntry;
  std::optional<ProtectGrid> protectGrid;
};

/// Adds the group of options that need a mode that dithers.
void addDitherOptions(Verb& verb, DitherArguments& arguments);

/// Copies the arguments into the options. Refuses the usage if an argument has no effect in the mode of the options.
void applyDitherArguments(const DitherArguments& arguments, RemapOptions& options);

}  // namespace quillhue::cli
