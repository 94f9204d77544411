#!/usr/bin/env python3
"""Makes the files of pictures/: one small image of each kind that a decoder treats differently. Needs python3-pil for JPEG."""

import pathlib
import struct
import zlib

from PIL import Image

PICTURES = pathlib.Path(__file__).parent / "pictures"
PASSES = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2)]


def chunk(tag, data):
    return struct.pack(">I", len(data)) + tag + data + struct.pack(">I", zlib.crc32(tag + data))


def packed(samples, depth):
    bits = "".join(f"{sample:0{depth}b}" for sample in samples)
    return b"\0" + bytes(int(bits[i:i + 8].ljust(8, "0"), 2) for i in range(0, len(bits), 8))


def png(name, color_type, depth, rows, ancillary=(), interlaced=False):
    """Rows of pixels, each a tuple of samples."""
    passes = PASSES if interlaced else [(0, 0, 1, 1)]
    parts = [[pixel for pixel in row[left::right]] for left, top, right, down in passes for row in rows[top::down]]
    data = b"".join(packed([s for pixel in part for s in pixel], depth) for part in parts if part)
    header = struct.pack(">IIBBBBB", len(rows[0]), len(rows), depth, color_type, 0, 0, int(interlaced))
    chunks = [(b"IHDR", header), *ancillary, (b"IDAT", zlib.compress(data, 9)), (b"IEND", b"")]
    (PICTURES / name).write_bytes(b"\x89PNG\r\n\x1a\n" + b"".join(chunk(*c) for c in chunks))


gamma = (b"gAMA", struct.pack(">I", 22222))
png("gray-1-key.png", 0, 1, [[(0,), (1,), (1,)], [(1,), (0,), (1,)]], [(b"tRNS", b"\0\1")])
png("gray-16.png", 0, 16, [[(0x0080,), (0x0081,), (0xFFFF,)]], [gamma])
png("gray-alpha.png", 4, 8, [[(100, 255), (100, 128), (100, 127), (100, 0)]])
png("color.png", 2, 8, [[(1, 2, 3), (4, 5, 6)], [(7, 8, 9), (1, 2, 3)]], [gamma])
png("color-16-key.png", 2, 16, [[(0x1234, 0x5678, 0x9ABC), (0x1234, 0x5678, 0x9ABD)]],
    [(b"tRNS", bytes.fromhex("123456789ABC"))])
png("color-alpha-16-interlaced.png", 6, 16,
    [[(257 * (9 * y + x), 0x8000, 0xFFFF, 0x7FFF if x == y else 0x8000) for x in range(3)] for y in range(3)],
    interlaced=True)
png("indexes.png", 3, 2, [[(0,), (1,), (2,), (3,), (1,)]], [(b"PLTE", bytes(range(1, 10))), (b"tRNS", b"\x80\x7F")])
png("indexes-interlaced.png", 3, 4, [[((9 * y + x) % 16,) for x in range(9)] for y in range(3)],
    [gamma, (b"PLTE", bytes(range(48)))], interlaced=True)

Image.new("L", (3, 1), 200).save(PICTURES / "gray.jpg")
Image.new("RGB", (9, 1), (200, 100, 50)).save(PICTURES / "progressive.jpg", progressive=True)
Image.new("CMYK", (1, 2), (255, 128, 0, 51)).save(PICTURES / "ink.jpg")

for file, content in {
    "plain.pbm": b"P1 # bits\n3 2\n10\n1 0 1 0",
    "raw.pbm": b"P4\n9 1\n\xAA\x80",
    "plain.pgm": b"P2 2 1 3\n1 3\n",
    "raw.pgm": b"P5 2 1 65535\n\x00\x80\x00\x81",
    "plain.ppm": b"P3\n1 1\n# the greatest\n1000\n1000 500 2\n",
    "raw.ppm": b"P6\n2 1\n100\n\x64\x32\x00\xFF\x01\x02",
    "alpha.pam": b"P7\nWIDTH 2\n# size\nHEIGHT 1\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n\1\2\3\x80\1\2\3\x7F",
    "gray.pam": b"P7\nHEIGHT 1\nWIDTH 2\nDEPTH 1\nMAXVAL 1\nENDHDR\n\0\1",
}.items():
    (PICTURES / file).write_bytes(content)
