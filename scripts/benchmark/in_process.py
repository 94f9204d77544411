"""in_process.py LIBRARY IMAGE.ppm PALETTE.ppm MODE [ANSWER.ppm]: remaps with a library, prints the CPU seconds of the
remapping alone, and writes the result. LIBRARY is pillow or libimagequant."""

import ctypes
import sys
import time


def read_pixmap(path):
    """Returns width, height and pixel bytes of a binary pixmap whose header has no comments."""
    with open(path, "rb") as file:
        data = file.read()
    _, width, height, _ = data.split(None, 4)[:4]
    size = 3 * int(width) * int(height)
    return int(width), int(height), data[-size:]


def write_pixmap(path, width, height, rgb):
    with open(path, "wb") as file:
        file.write(b"P6\n%d %d\n255\n" % (width, height) + rgb)


def pillow(image_file, palette_file, dithers):
    from PIL import Image

    Image.MAX_IMAGE_PIXELS = None
    image = Image.open(image_file)
    image.load()
    _, _, colors = read_pixmap(palette_file)
    palette = Image.new("P", (1, 1))
    # The last color fills the missing entries.
    palette.putpalette(colors + colors[-3:] * (256 - len(colors) // 3))
    start = time.process_time()
    result = image.quantize(palette=palette, dither=Image.Dither.FLOYDSTEINBERG if dithers else Image.Dither.NONE)
    seconds = time.process_time() - start
    return seconds, lambda: result.convert("RGB").tobytes()


class Color(ctypes.Structure):
    _fields_ = [(channel, ctypes.c_ubyte) for channel in "rgba"]


class Palette(ctypes.Structure):
    _fields_ = [("count", ctypes.c_uint), ("entries", Color * 256)]


def libimagequant(image_file, palette_file, dithers):
    library = ctypes.CDLL("libimagequant.so.0")
    for name in ("liq_attr_create", "liq_image_create_rgba"):
        getattr(library, name).restype = ctypes.c_void_p
    library.liq_get_palette.restype = ctypes.POINTER(Palette)
    width, height, rgb = read_pixmap(image_file)
    rgba = bytearray(b"\xff") * (4 * width * height)
    for channel in range(3):
        rgba[channel::4] = rgb[channel::3]
    pixels = (ctypes.c_ubyte * len(rgba)).from_buffer(rgba)
    _, _, colors = read_pixmap(palette_file)
    distinct = sorted({colors[i : i + 3] for i in range(0, len(colors), 3)})
    settings = ctypes.c_void_p(library.liq_attr_create())
    library.liq_set_max_colors(settings, len(distinct))
    image = ctypes.c_void_p(library.liq_image_create_rgba(settings, pixels, width, height, ctypes.c_double(0)))
    for color in distinct:
        library.liq_image_add_fixed_color(image, Color(*color, 255))
    result = ctypes.c_void_p()
    library.liq_image_quantize(image, settings, ctypes.byref(result))
    library.liq_set_dithering_level(result, ctypes.c_float(1 if dithers else 0))
    indexes = (ctypes.c_ubyte * (width * height))()
    start = time.process_time()
    status = library.liq_write_remapped_image(result, image, indexes, ctypes.c_size_t(len(indexes)))
    seconds = time.process_time() - start
    if status != 0:
        sys.exit(f"libimagequant answers {status}")
    entries = library.liq_get_palette(result).contents.entries
    return seconds, lambda: b"".join(bytes((entries[i].r, entries[i].g, entries[i].b)) for i in indexes)


def main():
    library, image, palette, mode = sys.argv[1:5]
    seconds, answer = {"pillow": pillow, "libimagequant": libimagequant}[library](image, palette, mode == "dither")
    if len(sys.argv) > 5:
        width, height, _ = read_pixmap(image)
        write_pixmap(sys.argv[5], width, height, answer())
    print(seconds)


main()
