#pragma once

#include "remap/remap.h"

namespace quillhue::bench {

/// Ignores the progress.
class NoProgress final : public RemapProgress {
  [[nodiscard]] bool rowsDone(std::int32_t /*rows*/, const RemappedImage& /*result*/) override { return true; }
};

}  // namespace quillhue::bench
