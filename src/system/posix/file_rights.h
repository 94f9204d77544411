#pragma once

namespace quillhue {

/// Copies owner, group, mode and extended attributes (access lists, labels, tags) from the open file `from` to the open
/// file `to`, as far as the user may. If the group can't be kept, the new group gets only the rights of all other
/// users. Returns false if the mode can't be read or set.
[[nodiscard]] bool copyRights(int from, int to);

}  // namespace quillhue
