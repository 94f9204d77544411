#pragma once

#include <vector>

#include "remap/color_tree.h"

namespace quillhue {

/// Improves the centers of clusters, of which there must be at least one, so that the squared distances of all colors
/// to their nearest center become small. Returns as many centers. The same arguments always give the same centers.
///
/// Runs k-means until its rounds gain almost nothing. To leave a local minimum, it then adds centers where colors are
/// far from their center, runs k-means, removes the same number of centers that matter least, and runs k-means again,
/// as long as that helps. (B. Fritzke, "The breathing k-means algorithm", 2020.)
///
/// The tree makes a round fast: most of its boxes have a single nearest center. (T. Kanungo et al., "An efficient
/// k-means clustering algorithm", IEEE Transactions on Pattern Analysis and Machine Intelligence 24, 2002.)
[[nodiscard]] std::vector<Channels<float>> kMeans(const ColorTree& tree, std::vector<Channels<float>> centers);

}  // namespace quillhue
