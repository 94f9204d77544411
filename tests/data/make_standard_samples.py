#!/usr/bin/env python3
"""Makes small files in standard/ that use features of the published descriptions which the samples in samples/ lack, and
standard.txt, which lists their content.

A line of standard.txt: file; number of entries of its palette and their Adler-32 checksum, or "image"; and for a file that
remap reads, its width, height and the checksum of its pixels: red, green, blue, and 0 for transparent, otherwise 255.
"""

import pathlib
import struct
import zlib

from make_samples import blue_first, color, colors, quads, triples

HERE = pathlib.Path(__file__).parent
FOLDER = HERE / "standard"
WIDTH, HEIGHT = 13, 5
POINTS = [(x, y) for y in range(HEIGHT) for x in range(WIDTH)]
UPWARD, DOWNWARD = range(HEIGHT - 1, -1, -1), range(HEIGHT)
lines = []


def index(x, y, count):
    """Returns a pixel of the picture in all indexed files. It has runs, single pixels and a row of zeros."""
    return 0 if y == 2 else (x // 4 + 3 * y + (x == 7)) % count


def true_color(x, y):
    return (x * 20, y * 50, (x * y * 9) % 256)


def checksum(pixels):
    return zlib.adler32(b"".join(bytes(pixel) for pixel in pixels))


def save(name, content, palette, pixels=None, size=(WIDTH, HEIGHT)):
    (FOLDER / name).write_bytes(content)
    holds = f"{len(palette)} {zlib.adler32(triples(palette))}" if palette else "image"
    image = f"{size[0]}x{size[1]} {checksum(pixels)}" if pixels else ""
    lines.append(f"{name} | {holds} | {image}")


def indexed(palette, count):
    return [(*palette[index(x, y, count)], 255) for x, y in POINTS]


def packed(values, bits, length):
    """Returns values of `bits` bits each in `length` bytes, the first value in the highest bits."""
    return int("".join(f"{value:0{bits}b}" for value in values).ljust(8 * length, "0"), 2).to_bytes(length, "big")


def rows(bits, pixel, order):
    """Returns rows of pixels of up to 32 bits, padded to 4 bytes."""
    result = b""
    for y in order:
        pixels = [pixel(x, y) for x in range(WIDTH)]
        if bits < 8:
            row = packed(pixels, bits, -(-WIDTH * bits // 8))
        else:
            row = b"".join(value.to_bytes(bits // 8, "little") for value in pixels)
        result += row + bytes(-len(row) % 4)
    return result


def bitmap(bits, pixels, header=40, table=b"", compression=0, used=0, top_down=False, gap=0, masks=()):
    if header == 12:
        info = struct.pack("<IHHHH", 12, WIDTH, HEIGHT, 1, bits)
    else:
        height = -HEIGHT if top_down else HEIGHT
        info = struct.pack("<IiiHHIIiiII", header, WIDTH, height, 1, bits, compression, 0, 0, 0, used, 0)
        info = (info + struct.pack(f"<{len(masks)}I", *masks)).ljust(header, b"\0")[: max(header, 40 + 4 * len(masks))]
        info = info[:16] if header == 16 else info
    offset = 14 + len(info) + len(table) + gap
    return b"BM" + struct.pack("<III", offset + len(pixels), 0, offset) + info + table + b"\xee" * gap + pixels


def bitmaps():
    for bits, header in ((1, 12), (2, 16), (4, 64), (8, 124)):
        count = 1 << bits
        palette = colors(count)
        table = triples(blue_first(palette)) if header == 12 else quads(blue_first(palette))
        pixels = rows(bits, lambda x, y: index(x, y, min(count, 20)), UPWARD)
        save(f"{bits}-bit.bmp", bitmap(bits, pixels, header, table), palette, indexed(palette, min(count, 20)))
    few = colors(20)
    pixels = rows(8, lambda x, y: index(x, y, 20), DOWNWARD)
    content = bitmap(8, pixels, table=quads(blue_first(few)), used=20, top_down=True, gap=300)
    save("20-colors.bmp", content, few, indexed(few, 20))
    for bits, compression in ((8, 1), (4, 2)):
        palette = colors(16)
        table = quads(blue_first(palette))
        content = bitmap(bits, runs(bits), table=table, used=16, compression=compression)
        save(f"runs-{bits}.bmp", content, palette, indexed(palette, 14))
    true_color_bitmap("555", 16, 40)
    true_color_bitmap("565", 16, 52, (0xF800, 0x7E0, 0x1F))
    true_color_bitmap("24-bit", 24, 108)
    true_color_bitmap("32-bit", 32, 40)
    true_color_bitmap("4444", 16, 56, (0xF00, 0xF0, 0xF, 0xF000))
    true_color_bitmap("8888", 32, 124, (0xFF, 0xFF00, 0xFF0000, 0xFF000000))


def runs(bits):
    """Returns the picture compressed, with runs, literals with padding, and a skipped row."""
    code = b""
    for y in UPWARD:
        row = [index(x, y, 14) for x in range(WIDTH)]
        if y == 2:
            code += b"\0\2\0\1"
            continue
        literals = bytes(row[7:12]) + b"\0"
        if bits == 4:
            row = [17 * pixel for pixel in row]
            literals = bytes((literals[0] << 4 | literals[1], literals[2] << 4 | literals[3], literals[4] << 4, 0))
        code += bytes((4, row[0], 3, row[4], 0, 5)) + literals + bytes((1, row[12])) + b"\0\0"
    return code + b"\0\1"


def true_color_bitmap(name, bits, header, masks=()):
    """Stores each channel in the bits of its mask. A channel of fewer than 8 bits is widened by repeating its bits."""
    fields = masks or ((0x7C00, 0x3E0, 0x1F) if bits == 16 else (0xFF0000, 0xFF00, 0xFF))
    fields = [(mask, (mask & -mask).bit_length() - 1, mask.bit_count()) for mask in fields]

    def channels(x, y):
        return (*true_color(x, y), (x * 37 + y * 90) % 256)

    def pixel(x, y):
        return sum(value >> (8 - width) << shift for value, (_, shift, width) in zip(channels(x, y), fields))

    def widened(value, width):
        bits_of_value = f"{value >> (8 - width):0{width}b}"
        return int((bits_of_value * 8)[:8], 2)

    def shown(x, y):
        values = [widened(value, width) for value, (_, _, width) in zip(channels(x, y), fields)]
        alpha = values[3] if len(fields) == 4 else 255
        if alpha >= 128:
            return (*values[:3], 255)
        # Blended with black.
        return (*((value * alpha + 127) // 255 for value in values[:3]), 0)

    content = bitmap(bits, rows(bits, pixel, UPWARD), header, compression=3 if masks else 0, masks=masks)
    save(f"{name}.bmp", content, None, [shown(x, y) for x, y in POINTS])


def clipboard():
    few = colors(20)
    pixels = rows(8, lambda x, y: index(x, y, 20), UPWARD)
    item = bitmap(8, pixels, table=quads(blue_first(few)), used=20)[14:]
    # The palette is read as from any clipboard file: 256 entries, 40 bytes after the start of the header.
    content = struct.pack("<HHHII79x", 0xC350, 1, 8, len(item), 93) + item
    content += bytes(max(0, 133 + 1024 - len(content)))
    entries = [(content[at + 2], content[at + 1], content[at]) for at in range(133, 133 + 1024, 4)]
    save("dib.clp", content, entries, indexed(few, 20))


def pcx(bits, planes, pixel, header_palette=b"", trailer=b"", version=5):
    """Returns a file whose rows have 6 bytes more than they need, and whose corner is not at 0."""
    stride = -(-WIDTH * bits // 8) + 6
    content = struct.pack("<4B6H", 10, version, 1, bits, 3, 4, 3 + WIDTH - 1, 4 + HEIGHT - 1, 72, 72)
    content += header_palette.ljust(48, b"\0") + struct.pack("<BBH60x", 0, planes, stride)
    for y in range(HEIGHT):
        for plane in range(planes):
            for byte in packed([pixel(x, y, plane) for x in range(WIDTH)], bits, stride):
                content += bytes((0xC1, byte)) if byte >= 0xC0 or byte == 1 else bytes((byte,))
    return content + trailer


def pcx_files():
    for bits, planes in ((1, 1), (1, 3), (1, 4), (2, 1), (4, 1), (8, 1)):
        count = 1 << bits * planes
        palette = colors(count)
        trailer = b"\14" + triples(palette) if count == 256 else b""
        header = b"" if trailer else triples(palette)
        used = min(count, 20)
        mask = (1 << bits) - 1
        content = pcx(bits, planes, lambda x, y, plane: index(x, y, used) >> plane * bits & mask, header, trailer)
        save(f"{bits}x{planes}.pcx", content, palette, indexed(palette, used))
    content = pcx(8, 3, lambda x, y, plane: true_color(x, y)[plane])
    save("8x3.pcx", content, None, [(*true_color(x, y), 255) for x, y in POINTS])
    black_and_white = [(0, 0, 0), (255, 255, 255)]
    mono = pcx(1, 1, lambda x, y, plane: index(x, y, 2), version=3)
    save("mono.pcx", mono, black_and_white, indexed(black_and_white, 2))


def lzw(pixels, bits):
    """Returns pixels compressed as in GIF. Clears the table whenever it has 60 entries of its own."""
    clear = 1 << bits
    stored, length, table, prefix = f"{clear:0{bits + 1}b}", bits + 1, {}, pixels[0]
    for pixel in pixels[1:]:
        if (prefix, pixel) in table:
            prefix = table[prefix, pixel]
            continue
        stored = f"{prefix:0{length}b}" + stored
        table[prefix, pixel] = clear + 2 + len(table)
        length += len(table) + clear + 2 > 1 << length
        if len(table) == 60:
            stored = f"{clear:0{length}b}" + stored
            table, length = {}, bits + 1
        prefix = pixel
    stored = f"{clear + 1:0{length}b}{prefix:0{length}b}{stored}"
    data = int(stored, 2).to_bytes(-(-len(stored) // 8), "little")
    blocks = b"".join(bytes((len(data[at : at + 50]),)) + data[at : at + 50] for at in range(0, len(data), 50))
    return bytes((bits,)) + blocks + b"\0"


def gif(name, globals_, locals_, count, bits, place, interlaced=False, transparent=None):
    left, top = place
    canvas = (WIDTH + left + 1, HEIGHT + top + 1)

    def table_flags(entries):
        return 0x80 | entries.bit_length() - 2 if entries else 0

    content = b"GIF89a" + struct.pack("<HHBBB", *canvas, table_flags(globals_), 0, 0)
    content += triples(colors(globals_)) + b"!\xfe\3abc\0"
    if transparent is not None:
        content += struct.pack("<BBBBHBB", 0x21, 0xF9, 4, 1, 0, transparent, 0)
    local = colors(locals_)[::-1]
    flags = table_flags(locals_) | (0x40 if interlaced else 0)
    content += struct.pack("<BHHHHB", 0x2C, left, top, WIDTH, HEIGHT, flags) + triples(local)
    order = [0, 4, 2, 1, 3] if interlaced else DOWNWARD
    content += lzw([index(x, y, count) for y in order for x in range(WIDTH)], bits) + b";"
    palette = local or colors(globals_)

    def shown(x, y):
        inside = left <= x < left + WIDTH and top <= y < top + HEIGHT
        pixel = index(x - left, y - top, count) if inside else transparent or 0
        return (0, 0, 0, 0) if pixel == transparent else (*palette[pixel], 255)

    pixels = [shown(x, y) for y in range(canvas[1]) for x in range(canvas[0])]
    save(name, content, colors(globals_) or local, pixels, canvas)


def gifs():
    gif("global.gif", 32, 0, 20, 5, (0, 0))
    gif("local.gif", 0, 4, 4, 2, (2, 3), interlaced=True, transparent=3)
    gif("both.gif", 4, 256, 20, 8, (1, 0), interlaced=True)


def palettes():
    few = colors(12)
    text = "".join(f"{r:3} {g:3} {b:3}\tName {r}\n" for r, g, b in few)
    save("named.gpl", f"GIMP Palette\nName: x\nColumns: 3\n#\n\n{text}".encode(), few)
    alpha = "".join(f"{r} {g} {b} 255\r\n" for r, g, b in colors(256))
    save("256-entries.pal", f"JASC-PAL\r\n0100\r\n0\r\n{alpha}".encode(), colors(256))
    data = struct.pack("<HH", 0x300, 12) + quads(few)
    info = b"LIST" + struct.pack("<I", 5) + b"INFOx\0"
    riff = b"PAL " + info + b"data" + struct.pack("<I", len(data)) + data
    save("counted.pal", b"RIFF" + struct.pack("<I", len(riff)) + riff, few)
    quoted = "".join(f'{i};"{r}";"{g}";"{b}"\n' for i, (r, g, b) in enumerate(few))
    save("header.csv", ("No;Red;Green;Blue\n" + quoted).encode(), few)
    save("hex.csv", ('"a ""name"", x",color\n' + "".join(f"x,#{bytes(c).hex()}\n" for c in few)).encode(), few)
    for bits, pack in ((15, None), (24, bytes), (32, lambda c: bytes((*c, 9)))):
        map_ = blue_first(few)
        entries = few
        if pack is None:
            entries = [tuple((channel >> 3) << 3 | channel >> 5 for channel in c) for c in few]
            pack = lambda c: struct.pack("<H", c[2] >> 3 << 10 | c[1] >> 3 << 5 | c[0] >> 3)
        header = struct.pack("<BBBHHB10x", 3, 1, 1, 2, 12, bits)
        save(f"{bits}-bit.tga", header + b"abc" + b"".join(map(pack, map_)), [(0, 0, 0)] * 2 + entries)
    for version, precision in ((b"file", b""), (b"v003", b""), (b"v011", struct.pack(">I", 150))):
        head = b"gimp xcf " + version + b"\0" + struct.pack(">III", 1, 1, 2) + precision
        properties = struct.pack(">IIB", 17, 1, 0) + struct.pack(">III", 1, 40, 12) + triples(few)
        save(f"{version.decode()}.xcf", head + properties + bytes(8), few)


FOLDER.mkdir(exist_ok=True)
bitmaps()
clipboard()
pcx_files()
gifs()
palettes()
(HERE / "standard.txt").write_text("\n".join(sorted(lines)) + "\n")
