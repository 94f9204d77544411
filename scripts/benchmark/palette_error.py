"""palette_error.py TOOL IMAGE...: compares the palettes that several programs make from images, and prints a section for
docs/benchmarks.md."""

import math
import os
import subprocess
import sys
import tempfile
from pathlib import Path

from PIL import Image, ImageChops, ImageStat

Image.MAX_IMAGE_PIXELS = None
SIZES = (16, 32, 256)
HEADING = """
## Palettes from images

`scripts/benchmark/palette_error.py` compares palettes that are made from an image. `quillhue-cli remap` gives each pixel
the nearest color of each palette; the table lists the mean squared error of a channel, and the peak signal-to-noise ratio.
The image is `samples/art/sea.jpg` unless others are named.
"""


def save_colors(image, out):
    """Saves the colors that an image uses as hexadecimal digits."""
    colors = [color for _, color in image.convert("RGB").getcolors(256)]
    out.write_text("".join("%02x%02x%02x\n" % color for color in colors))


def by_product(how):
    def make(tool, image, size, out):
        command = [tool, "convert", image, out, "--colors", how, "--size", str(size), "--force"]
        subprocess.run(command, check=True)

    return make


def by_pngquant(_, image, size, out):
    options = ["--force", "--speed", "1", "--nofs", "--output", "answer.png"]
    subprocess.run(["pngquant", *options, str(size), image], check=True)
    save_colors(Image.open("answer.png"), out)


def by_imagemagick(_, image, size, out):
    subprocess.run(["convert", image, "+dither", "-colors", str(size), "-depth", "8", "answer.ppm"], check=True)
    save_colors(Image.open("answer.ppm"), out)


def by_pillow(_, image, size, out):
    answer = Image.open(image).convert("RGB").quantize(size, Image.Quantize.MEDIANCUT, 20, dither=Image.Dither.NONE)
    save_colors(answer, out)


MAKERS = {
    "--colors best": by_product("best"),
    "--colors reduce": by_product("reduce"),
    "pngquant": by_pngquant,
    "ImageMagick": by_imagemagick,
    "Pillow, k-means of 20": by_pillow,
}


def error_of(tool, image, palette):
    subprocess.run([tool, "remap", image, palette, "remapped.png", "--force"], check=True)
    difference = ImageChops.difference(Image.open(image).convert("RGB"), Image.open("remapped.png").convert("RGB"))
    return sum(ImageStat.Stat(difference).sum2) / (3 * difference.width * difference.height)


def main():
    tool = Path(sys.argv[1]).resolve()
    images = [Path(word).resolve() for word in sys.argv[2:]]
    print(HEADING)
    print("| mean squared error (PSNR) |", " | ".join(MAKERS), "|")
    print("| --- |" + " --: |" * len(MAKERS))
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        for source in images:
            image, palette = Path(folder, "image.png"), Path(folder, "palette.hex")
            Image.open(source).convert("RGB").save(image)
            for size in SIZES:
                cells = []
                for make in MAKERS.values():
                    make(tool, image, size, palette)
                    error = error_of(tool, image, palette)
                    cells.append(f"{error:.2f} ({10 * math.log10(255 * 255 / error):.1f} dB)")
                print(f"| {source.stem}, {size} colors |", " | ".join(cells), "|", flush=True)


main()
