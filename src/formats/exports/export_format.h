#pragma once

#include <string_view>

#include "core/palette.h"
#include "formats/byte_sink.h"

namespace quillhue {

/// A format that only the tool writes, and no editor dialog offers.
struct ExportFormat {
  /// Identifier for scripts.
  std::string_view name;
  /// Title for users.
  std::string_view title;
  std::string_view extension;
  /// True when the extension of a file name is enough to choose this format.
  bool ownsExtension;
  /// Composes the file for a palette of any size. `name` is the file's name without folder and extension (UTF-8), or
  /// empty for standard output.
  void (*compose)(const Palette& palette, std::string_view name, ByteSink& sink);
};

}  // namespace quillhue
