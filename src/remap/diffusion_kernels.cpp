#include "remap/diffusion_kernels.h"

namespace quillhue {

std::span<const DiffusionKernel> diffusionKernels() {
  static constexpr std::array<DiffusionKernel, 7> kKernels{{
      // R. W. Floyd and L. Steinberg, "An adaptive algorithm for spatial greyscale", Proceedings of the Society for
      // Information Display 17 (1976).
      {"floyd-steinberg", {{{0, 0, 0, 7, 0}, {0, 3, 5, 1, 0}, {}}}, 16},
      // B. Atkinson's for the Macintosh (1984). It drops a quarter of the error.
      {"atkinson", {{{0, 0, 0, 1, 1}, {0, 1, 1, 1, 0}, {0, 0, 1, 0, 0}}}, 8},
      // J. F. Jarvis, C. N. Judice and W. H. Ninke, "A survey of techniques for the display of continuous tone pictures
      // on bilevel displays", Computer Graphics and Image Processing 5 (1976).
      {"jarvis", {{{0, 0, 0, 7, 5}, {3, 5, 7, 5, 3}, {1, 3, 5, 3, 1}}}, 48},
      // P. Stucki, "MECCA, a multiple-error correction computation algorithm for bi-level image hardcopy reproduction",
      // IBM Research Report RZ 1060 (1981).
      {"stucki", {{{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}}, 42},
      // The next three by F. Sierra (1989, 1990) and D. Burkes (1988) were published in CompuServe's graphics forum. L.
      // Crocker, P. Boulay and M. Morra list them in "Digital Halftoning" (1991), known as DITHER.TXT.
      {"sierra", {{{0, 0, 0, 5, 3}, {2, 4, 5, 4, 2}, {0, 2, 3, 2, 0}}}, 32},
      {"sierra-lite", {{{0, 0, 0, 2, 0}, {0, 1, 1, 0, 0}, {}}}, 4},
      {"burkes", {{{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {}}}, 32},
  }};
  return kKernels;
}

}  // namespace quillhue
