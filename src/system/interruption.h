#pragma once

namespace quillhue {

/// Lets a long job end in good order when the user interrupts the program (Ctrl+C, or SIGTERM): while the object
/// exists, the first interrupt is only noted. The second ends the program at once, as always. Only one object may exist
/// at a time.
class Interruption {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  /// Returns whether the user has interrupted the program since the object was made. Any thread may ask.
  [[nodiscard]] bool isRequested() const;
};

}  // namespace quillhue
