"""Writes docs/benchmarks.md from the measurements."""

import os
import platform
from statistics import median

import sides

SIZES = [sides.LARGE, sides.MEDIUM, "64x48"]
MODES = {"nearest": "nearest", "dither": "error diffusion"}
PALETTES = ["regular-216", "adaptive-256", "adaptive-16", "greys-256"]
NOT_MEASURED = "–"

# Measured with a prototype.
AVX2 = """## AVX2

Quillhue uses SSE2 only, on all processors. A version with the 256-bit registers of AVX2 was measured once, beside the
SSE2 code that it came from. It was at most 7 % faster, and often slower, so Quillhue does without it. The script does
not repeat this measurement. The table lists nanoseconds of CPU time for each pixel of 1024 x 768, the least of 18 runs,
both sides taking turns. In the last row the sides also differ in how many colors they compare at a time:

|  | SSE2 | AVX2 |
| --- | --: | --: |
| nearest, adaptive-256 | 6.0 | 6.7 |
| error diffusion, regular-216 | 5.3 | 6.1 |
| error diffusion, adaptive-256 | 7.6 | 8.0 |
| error diffusion, adaptive-16 | 4.6 | 4.3 |
| error diffusion, pixel art, adaptive-256 | 10.4 | 10.5 |
"""


def shown(number, unit=""):
    """Formats a number with two significant digits, or as an integer from 10 on."""
    if number is None:
        return NOT_MEASURED
    digits = 0 if number >= 10 else 1 if number >= 1 else 2
    return f"{number:.{digits}f}{unit}"


def table(head, rows):
    lines = [head, ["---"] + ["--:"] * (len(head) - 1), *rows]
    return "".join("| " + " | ".join(line) + " |\n" for line in lines)


def ratio(of, to):
    return of / to if of is not None and to else None


class Medians:
    """The medians of the runs of each side."""

    def __init__(self, runs):
        self.runs = {key: found for key, found in runs.items() if found}

    def seconds(self, side, work):
        found = self.runs.get((side, work))
        return median(run.seconds for run in found) if found else None

    def remapping(self, side, work):
        """Returns the seconds of the remapping alone, at least 0."""
        whole = self.seconds(side, work)
        return None if whole is None else max(whole - (self.seconds(side, "rest") or 0), 0)

    def memory(self, side, work):
        found = self.runs.get((side, work))
        return median(run.memory for run in found) if found else None

    def spread(self, side):
        """Returns the largest width of the middle half of a work's runs, as a share of their median."""
        widest = 0
        for (name, _), found in self.runs.items():
            if name == side and len(found) >= 4:
                ordered = sorted(run.seconds for run in found)
                quarter = len(ordered) // 4
                widest = max(widest, (ordered[-1 - quarter] - ordered[quarter]) / median(ordered))
        return widest


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        kind = "virtual machine" if "hypervisor" in file.read() else "machine"
    return f"{os.cpu_count()}-core {platform.machine().replace('_', '-')} {kind}"


def peer_table(peers, palettes, medians):
    works = [(mode, palette) for mode in MODES for palette in palettes]
    rows = []
    for peer in peers:
        label = f"{peer.name} {sides.version(peer.package)}" if peer.present else f"{peer.name}: not installed"
        rows.append(
            [label] + [shown(ratio(medians.remapping(peer.name, w), medians.seconds("Quillhue", w))) for w in works]
        )
    return table([""] + [f"{MODES[mode]}, {palette}" for mode, palette in works], rows)


def fault_table(peers, palettes, faults):
    rows = []
    for name in ["Quillhue", *(peer.name for peer in peers)]:
        shares = [faults.get((name, palette)) for palette in palettes]
        rows.append([name] + [NOT_MEASURED if share is None else f"{100 * share:.2g} %" for share in shares])
    return table([""] + palettes, rows)


def other_table(works, medians):
    """Makes a row for each image and palette."""
    others = ["ffmpeg", "Pillow"]
    rows = []
    for _, palette, image in (work for work in works if work[0] == "nearest"):
        cells = []
        for mode in MODES:
            work = (mode, palette, image)
            own = medians.seconds("Quillhue", work)
            cells.append(shown(1e3 * own))
            # Decoding a bitmap takes the same time whatever its pixels are.
            cells += [shown(ratio(medians.remapping(name, work), own)) for name in others]
        rows.append([f"{image.replace('-', ' ')}, {palette}", *cells])
    return table([""] + [f"{words}: {side}" for words in MODES.values() for side in ["ms", *others]], rows)


def behind_line(works, names, medians):
    """Says in words where a peer is faster. A work is a mode, a palette and, for other images, the image."""
    slower = []
    for name in names:
        for work in works:
            factor = ratio(medians.remapping(name, work), medians.seconds("Quillhue", work))
            if factor and factor < 1:
                image = f" of {work[2].replace('-', ' ')}" if len(work) > 2 else ""
                slower.append(f"{MODES[work[0]]}{image} onto {work[1]} ({name}: {shown(factor)})")
    return "Quillhue is slower here:\n" + ";\n".join(slower) + "." if slower else "Quillhue is the fastest in each case."


def far_line(medians):
    """Compares dithering with a palette that does not span the image with palettes that do."""
    seconds = {
        palette: medians.seconds("Quillhue", ("dither", palette, "pixel-art"))
        for palette in ("adaptive-256", "wide-256", "regular-216")
    }
    wide, regular = (shown(seconds["adaptive-256"] / seconds[palette]) for palette in ("wide-256", "regular-216"))
    return (
        f"Dithering pixel art onto the adaptive palette takes {wide} times as long as onto the wide palette of as many\n"
        f"entries, and {regular} times as long as onto the regular colors."
    )


def batch_table(batch):
    verbs = {"remap": "remap, error diffusion", "convert": "convert, 256 colors by median cut", "info": "info"}
    rows = [
        [words, shown(batch[verb, 1]), shown(batch[verb, 2]), shown(batch[verb, 1] / batch[verb, 2])]
        for verb, words in verbs.items()
    ]
    return table(["", "--jobs 1, s", "--jobs 2, s", "throughput"], rows)


def order(row):
    kind, mode, palette = row[0]
    return kind == "noise", mode != "nearest", mode, PALETTES.index(palette)


def literal_table(benchmarks):
    """Makes a row for each work that both sides did. The part of the name between side and size names the row."""
    ratios = {}
    for name, seconds in benchmarks.items():
        kind, *parts = name.split("/")
        if kind in ("remap", "noise") and parts[0] == "literal":
            _, mode, palette, size = parts
            ratios.setdefault((kind, mode, palette), {})[size] = seconds / benchmarks[name.replace("literal", "product")]
    rows = []
    for (kind, mode, palette), found in sorted(ratios.items(), key=order):
        words = MODES.get(mode) or mode.replace("dither-protecting-", "error diffusion protecting a ")
        label = f"{words}, {palette}" + (", uniform noise" if kind == "noise" else "")
        rows.append([label] + [shown(found.get(size)) for size in SIZES])
    for colors in (256, 16):
        factor = benchmarks[f"reduce/literal/{colors}"] / benchmarks[f"reduce/product/{colors}"]
        rows.append([f"{colors} colors by median cut", shown(factor), NOT_MEASURED, NOT_MEASURED])
    return table([""] + SIZES, rows)


def file_table(benchmarks):
    sizes = {"4096/3072": sides.LARGE, "1024/768": sides.MEDIUM}
    rows = {}
    for name, seconds in benchmarks.items():
        kind, *rest = name.split("/", 2)
        if kind == "loader":
            plain = benchmarks[f"plain-read/bitmap-24/{rest[1]}"]
            rows.setdefault(rest[0], {})[rest[1]] = shown(seconds / plain)
    return table(
        [""] + list(sizes.values()), [[name] + [found[size] for size in sizes] for name, found in sorted(rows.items())]
    )


def program_table(peers, medians):
    """Compares whole programs, with the regular colors."""
    decoding = medians.seconds("ImageMagick", "rest")
    rows = []
    for name, works in [("quillhue-cli", {mode: ("tool", mode) for mode in MODES})] + [
        (peer.name, {mode: (peer.name, (mode, "regular-216")) for mode in MODES}) for peer in peers if peer.rest
    ]:
        times = [shown(ratio(medians.seconds(*works[mode]), decoding)) for mode in MODES]
        memory = [shown(medians.memory(*works[mode])) for mode in MODES]
        rows.append([name, *times, *memory])
    head = ["", *MODES.values(), *(f"peak memory, {words}, MiB" for words in MODES.values())]
    return table(head, rows)


def setup_line(benchmarks):
    longest = max(seconds for name, seconds in benchmarks.items() if name.startswith("setup/"))
    return f"Remapping one pixel measures the cost of setting up. It takes at most {shown(1e6 * longest)} µs."


def absolute_table(palettes, medians, benchmarks):
    rows = []
    for mode, words in MODES.items():
        for palette in palettes:
            literal = benchmarks[f"remap/literal/{mode}/{palette}/{sides.LARGE}"]
            rows.append(
                [f"{words}, {palette}", shown(1e3 * medians.seconds("Quillhue", (mode, palette))), shown(1e3 * literal)]
            )
    return table(["ms of CPU time", "Quillhue", "plain loops"], rows)


def other_sections(works, medians, batch):
    return f"""## Other kinds of images

Gradients without noise, a game screen in 48 colors, and uniform noise. The adaptive palette is that of the photo-like
image, so it does not span the colors of these, and the errors of dithering run far out of the color cube. The wide
palette is the same with the eight corners of the cube in place of the nearest entries. The first number of each mode is
Quillhue's time in milliseconds.

{other_table(works, medians)}
{behind_line(works, ["ffmpeg", "Pillow"], medians)}

{far_line(medians)}

## Many images

Seconds that `quillhue-cli` takes for 200 images of {sides.MEDIUM}, and the throughput of two jobs as a multiple of that
of one. These are seconds of the clock, of the fastest of five runs, because whatever else runs slows the others down. All
results are new files: the tool replaces a file only when the disk has stored the new one, and waiting for the disk does
not get faster with jobs.

{batch_table(batch)}
"""


def compose(peers, palettes, runs, faults, benchmarks, other_works, batch):
    medians = Medians(runs)
    plain = benchmarks["plain-read/bitmap-24/4096/3072"]
    return f"""# Benchmarks

`scripts/benchmark.sh` writes this page. Unless a section says otherwise, a number is the other side's time divided by
Quillhue's: more than 1 means that Quillhue is faster. The times are medians of CPU time (user and system) of
single-threaded runs. All sides take turns, with nine runs each, or fewer for slow ones.

The image is a generated landscape with gradients, sharp outlines, fine texture and mild noise, the same in every run.
It has about 300,000 colors and, unless another size is given, 4096 x 3072 pixels (12.6 megapixels). The palettes are
the regular 216 colors, and 256 and 16 colors that Quillhue's median cut makes from the image.

## Against other programs

{peer_table(peers, palettes, medians)}
{behind_line([(mode, palette) for mode in MODES for palette in palettes], [peer.name for peer in peers], medians)}

This table compares the remapping alone. Quillhue and the libraries are timed inside the process, around one call, with
the image in memory. Programs are timed as a whole, without writing an output. The time that the same program takes for
everything but the remapping, measured in the same rounds, is then subtracted: it decodes the image and drops it (ffmpeg
also converts it to the pixel format that its remapping needs, Netpbm copies it row by row). libimagequant makes its
palette before the clock starts. Error diffusion differs in detail between programs.

The next table lists the share of pixels, of 1024 x 768, that do not get a nearest entry by distance in red, green and
blue. A comparison with all entries finds the nearest ones; any of several equally near entries is correct.

{fault_table(peers, palettes, faults)}
{other_sections(other_works, medians, batch)}## Against plain loops

Loops over all pixels and all entries define Quillhue's result. They are in `tests/support/literal_remap.cpp`. The median
cut is compared with one that sorts with the standard library, in `tests/support/image_color_cases.cpp`. A number below 1
is a case in which the plain loops are faster: in small images of noise, few pixels have colors like earlier ones.

{literal_table(benchmarks)}
{setup_line(benchmarks)}

The 256 greys are a hard case: colors can't be dithered onto them, so the errors grow without limit.

## Whole programs

The times are multiples of the time that ImageMagick takes to decode the image, which every program has to do at least.
`quillhue-cli remap` reads and writes a file; the others write nothing. All use the 216 colors.

{program_table(peers, medians)}
## Files

The table lists times for loading an image with the same pixels, as multiples of a plain read of the 24-bit bitmap in
blocks of 1 MiB.

{file_table(benchmarks)}
## In milliseconds

These times are from a {machine()}, on which a plain read of the 24-bit bitmap takes {shown(1e3 * plain)} ms. The middle
half of Quillhue's runs spans at most {100 * medians.spread("Quillhue"):.0f} % of their median.

{absolute_table(palettes, medians, benchmarks)}
{AVX2}"""
