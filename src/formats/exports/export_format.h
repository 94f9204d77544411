#pragma once

#include <string_view>

#include "core/palette.h"
#include "formats/byte_sink.h"

namespace quillhue {

/// A format that only the tool writes.
struct ExportFormat {
  /// For scripts.
  std::string_view name;
  /// For people.
  std::string_view title;
  std::string_view extension;
  /// A file name with this extension is enough to choose the format.
  bool ownsExtension;
  /// Composes the file for a palette of any size. `name` is the file's name without folder and extension (UTF-8), empty
  /// for standard output.
  void (*compose)(const Palette& palette, std::string_view name, ByteSink& sink);
};

}  // namespace quillhue
