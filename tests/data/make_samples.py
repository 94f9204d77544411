#!/usr/bin/env python3
"""Makes one small file of every layout in samples/, and samples.txt, which lists their content.

A line of samples.txt: file; reader; format code, number of entries and the Adler-32 checksum of their red, green and blue
bytes or, for a true-color image, the number of different colors; indexes of the signature's bytes among the first four.
"""

import pathlib
import struct
import zlib

HERE = pathlib.Path(__file__).parent
SAMPLES = HERE / "samples"
# For these readers, the bytes among the first four that decide. For all others, all four decide.
SIGNATURES = {"bmp": "01", "clp": "01", "ms-draw": "023", "pcx": "012", "map": "", "csv": "", "act": "", "raw": "",
              "tga": "0", "hex": "", "aco": "01"}
lines = []


def color(i):
    """Returns color `i`. The first 256 differ, and none is black."""
    return ((i * 37 + 11) % 256, (i * 101 + 60) % 256, (i * 13 + 200) % 256)


def colors(n):
    return [color(i) for i in range(n)]


def triples(entries):
    return b"".join(bytes(e) for e in entries)


def quads(entries, fourth=0):
    return b"".join(bytes(e) + bytes([fourth]) for e in entries)


def blue_first(entries):
    return [(b, g, r) for r, g, b in entries]


def save_as(name, content, reader, holds):
    (SAMPLES / name).write_bytes(content)
    lines.append(f"{name} | {reader} | {holds} | {SIGNATURES.get(reader, '0123')}".rstrip())


def save(name, content, reader, code, entries):
    save_as(name, content, reader, f"{code} {len(entries)} {zlib.adler32(triples(entries))}")


def save_image(name, content, distinct):
    save_as(name, content, "bmp", f"{distinct} colors")


def numbers(entries, separator, end):
    return "".join(separator.join(map(str, e)) + end for e in entries).encode()


def text_formats():
    few = colors(12)
    for name, end in (("jasc-crlf.pal", "\r\n"), ("jasc-lf.pal", "\n")):
        head = end.join(["JASC-PAL", "0100", str(len(few)), ""]).encode()
        save(name, head + numbers(few, " ", end), "jasc", 7, few)
    lines_of_gimp = b"#\n" + numbers(few[:6], "\t ", "\n") + b"# " + b"x" * 256 + b"\n  7   8 9  Name\n"
    # The comment's line feed is past the searched part, so its last character begins an entry.
    gimp = few[:6] + [(0, 0, 0), (7, 8, 9)]
    save("lines.gpl", b"GIMP Palette\nName: sample\n" + lines_of_gimp, "gimp", 22, [(0, 0, 0)] + gimp)
    save("lines.map", numbers(few, " ", "\r\n"), "map", 8, few)
    save("lines.csv", numbers(few, " , ", "\r\n"), "csv", 20, few)


def fixed_formats():
    full = colors(256)
    few = colors(20)
    # The data size as our own writer stores it: 8 more than the size of the entries.
    riff = b"RIFF" + struct.pack("<I8sIHH", 4 * 20 + 20, b"PAL data", 4 * 20 + 8, 0x300, 20)
    save("counts-8.pal", riff + quads(few) + bytes(5), "riff", 10, few)
    save("small-table.pal", b"\0\3\0\1" + quads(full[:16]), "color-table", 3, full[:16])
    save("large-table.pal", b"\0\3\0\1" + quads(full) + bytes(4), "color-table", 3, full)
    save("32.cmp", b"ALCHCMPW\0\1\0\0\5\0" + triples(full[:32]), "cmp", 2, full[:32])
    # Header bytes 0 to 53; the second record repeats the first, and black is implied.
    save("no-black.pal", b"C\x14" + bytes(52) + quads(few[:1] + few), "ms-draw", 9, [(0, 0, 0)] + few)
    halo = b"AH\xe3" + bytes(37)
    for i, entry in enumerate(full):
        if i in (78, 163, 248):
            halo += bytes(-len(halo) % 512)
        halo += struct.pack("<3H", *entry)
    save("blocks.pal", halo, "dr-halo", 5, full)
    save("full.act", triples(full), "act", 1, full)
    save("counted.act", triples(few) + bytes(768 - 60) + b"\0\x14\xff\xff", "act", 1, few)
    save("raw.pal", triples(few) + b"\1", "raw", 0, few)
    save("raw.col", triples(few), "raw", 0, few)
    save("sized.aap", struct.pack("<I4x", 8 + 60) + triples(few), "aa-palette", 0, few)


def bitmap_info(width, height, bits, offset):
    file_header = b"BM" + struct.pack("<IIBxxx", 0, 0, offset)
    return file_header + struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, 0, 0, 0, 0, 0)


def image_formats():
    full = colors(256)
    save("4-bit.bmp", bitmap_info(2, 2, 4, 118) + quads(blue_first(full[:16])) + bytes(8), "bmp", 0, full[:16])
    info = b"GIF89a" + struct.pack("<HHBBB", 1, 1, 0x84, 0, 0)
    save("32.gif", info + triples(full[:32]) + b";", "gif", 0, full[:32])
    header = b"\x89PNG\r\n\x1a\n" + struct.pack(">I4sIIBBBBBI", 13, b"IHDR", 1, 1, 8, 3, 0, 0, 0, 0)
    chunk = struct.pack(">I4s", 24 * 3, b"PLTE") + triples(full[:24])
    save("chunk.png", header + struct.pack(">I4sII", 4, b"gAMA", 45455, 0) + chunk, "png", 0, full[:24])
    save("cmap.lbm", b"FORM\0\0\0\0ILBMCMAP" + struct.pack(">I", 60) + triples(full[:20]), "lbm", 0, full[:20])
    save("header.pcx", b"\n\2\1\4" + bytes(12) + triples(full[:16]) + bytes(64), "pcx", 0, full[:16])
    save("trailer.pcx", b"\n\5\1\10" + bytes(124) + b"\14" + triples(full), "pcx", 0, full)
    for name, order, mark in (("little.tif", "<", b"II*\0"), ("big.tif", ">", b"MM\0*")):
        fields = [(258, 3, 1, 4), (262, 3, 1, 3), (320, 3, 48, 54)]
        directory = struct.pack(order + "H", len(fields))
        for tag, kind, count, value in fields:
            packed = struct.pack(order + ("HH" if kind == 3 and count == 1 else "I"), value, *([0] * (count == 1)))
            directory += struct.pack(order + "HHI", tag, kind, count) + packed
        rgb = [channel for axis in range(3) for channel in (entry[axis] for entry in full[:16])]
        values = struct.pack(order + "48H", *(value << 8 | 0x5A for value in rgb))
        content = mark + struct.pack(order + "I", 8) + directory
        save(name, content.ljust(54, b"\0") + values, "tiff", 0, full[:16])
    save("mapped.tga", b"\0\1\1" + bytes(15) + triples(blue_first(full)), "tga", 0, full)
    xcf = b"gimp xcf file\0" + struct.pack(">IIIIII", 1, 1, 2, 1, 4 + 60, 20)
    save("indexed.xcf", xcf + triples(full[:20]), "xcf", 0, full[:20])
    save("film.anm", b"LPF " + bytes(252) + quads(full), "aa-animation", 0, full)


def clipboard_formats():
    few = colors(16)

    def directory(*items):
        entries = b"".join(struct.pack("<HII79x", kind, 0, offset) for kind, offset in items)
        return struct.pack("<HH", 0xC350, len(items)) + entries

    palette = struct.pack("<HH", 0x300, len(few)) + quads(few, 1)
    bitmap = struct.pack("<IiiHH24x", 40, 1, 1, 1, 4) + quads(blue_first(few))
    after = 4 + 2 * 89
    # Both begin with a bitmap. The second also has a palette without entries, which the reader skips.
    save("palette.clp", directory((8, after), (9, after + len(bitmap))) + bitmap + palette, "clp", 27, few)
    save("bitmap.clp", directory((8, after), (9, after + len(bitmap))) + bitmap + bytes(4), "clp", 0, few)


def true_color_images():
    def pixels(width, height, pack):
        stride = -(-len(pack(0)) * width // 4) * 4
        rows = (b"".join(pack((x * y) % 23) for x in range(width)) for y in range(height))
        return b"".join(row.ljust(stride, b"\xee") for row in rows)

    distinct = len({(x * y) % 23 for x in range(13) for y in range(11)})
    rgb = pixels(13, 11, lambda i: bytes(color(i)))
    # Only the low byte of the pixels' offset (0x136) counts. The rows run from top to bottom.
    save_image("24-bit.bmp", bitmap_info(13, -11, 24, 54)[:11] + b"\1" + bitmap_info(13, -11, 24, 54)[12:] + rgb, distinct)
    words = pixels(13, 11, lambda i: struct.pack("<H", i * 1321))
    save_image("16-bit.bmp", bitmap_info(13, 11, 16, 54) + words, distinct)
    opaque = pixels(13, 11, lambda i: bytes(color(i)) + b"\xff")
    save_image("opaque.bmp", bitmap_info(13, 11, 32, 54) + opaque, distinct)
    # Half of the colors occur with two different fourth bytes.
    alpha = pixels(13, 11, lambda i: bytes(color(i // 2)) + bytes([i % 2]))
    save_image("alpha.bmp", bitmap_info(13, 11, 32, 54) + alpha, distinct)


def web_formats():
    few = colors(12)
    digits = [bytes(entry).hex() for entry in few]
    save("lines.hex", ("\r\n".join(digits[:6]) + "\n#" + "\n#".join(digits[6:]).upper()).encode(), "hex", 0, few)
    paint = ["; Paint.NET Palette File", "; x", "", *("7f" + line.upper() for line in digits[:11]), " " + digits[11]]
    save("lines.txt", "\r\n".join(paint).encode(), "paint-net", 0, few)
    # One swatch in each model, and the colors that result from its formula.
    models = [(255, 128, 0), (64, 64, 64), (0, 128, 255), (60, 38, 30), (255, 0, 0), (255, 255, 255)]
    lab = [(54.2917, 80.8125, 69.8851), (100, 0, 0)]

    def block(tag, *components, name="\u00e4b\0"):
        label = struct.pack(">H", len(name)) + name.encode("utf-16-be")
        data = label + tag + struct.pack(f">{len(components)}f", *components) + b"\0\2"
        return struct.pack(">HI", 1, len(data)) + data

    ase = [b"\xc0\1" + struct.pack(">I", 4) + b"\0\1\0\0", block(b"RGB ", 1, 0.5, -0.5), block(b"Gray", 0.25, name="")]
    ase += [b"\xc0\2" + bytes(4), block(b"RGB ", float("nan"), 0.5, 7), block(b"CMYK", 0.5, 0.685, 0.75, 0.53)]
    ase += [block(b"LAB ", lightness / 100, a, b) for lightness, a, b in lab]
    save("models.ase", b"ASEF\0\1\0\0" + struct.pack(">I", len(ase)) + b"".join(ase), "ase", 0, models)
    rgb = [(0, red * 257, green << 8, blue * 257, 0) for red, green, blue in few]
    save("rgb.aco", struct.pack(">HH60H", 1, 12, *sum(rgb, ())) + b"\0\2", "aco", 0, few)
    inks = [round(65535 * (1 - ink)) for ink in (0.5, 0.685, 0.75, 0.53)]
    swatches = [(1, 5462, 65535, 65535, 0), (8, 2500, 0, 0, 0), (1, 38207, 65535, 65535, 0), (2, *inks)]
    swatches += [(7, *(round(100 * value) & 0xFFFF for value in color), 0) for color in lab]
    named = b"".join(struct.pack(">5HI", *swatch, 2) + "x\0".encode("utf-16-be") for swatch in swatches)
    save("models.aco", struct.pack(">HH", 2, len(swatches)) + named, "aco", 0, models)


if __name__ == "__main__":
    SAMPLES.mkdir(exist_ok=True)
    text_formats()
    fixed_formats()
    image_formats()
    clipboard_formats()
    true_color_images()
    web_formats()
    (HERE / "samples.txt").write_text("\n".join(sorted(lines)) + "\n")
