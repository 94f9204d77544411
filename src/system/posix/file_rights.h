#pragma once

namespace quillhue {

/// Gives the open file `to` the owner, group, mode and extended attributes (access lists, labels, tags) of the open
/// file `from`, as far as the user may. Where the group can't be kept, its rights go to nobody who did not have them.
/// False when the mode can't be set.
[[nodiscard]] bool copyRights(int from, int to);

}  // namespace quillhue
