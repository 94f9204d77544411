"""editor.py BUILD WORK: times the editor of the Windows build beside a program with an empty window, and prints a section
for docs/benchmarks.md. WORK is a folder for a palette."""

import subprocess
import sys
from collections import defaultdict
from pathlib import Path
from statistics import median

ROUNDS = 21
ENTRIES = 1024
HEADING = f"""
## The editor

Milliseconds under Wine, beside a program with an empty window of the same size (`bench/editor`), which has no manifest,
menu or controls, and repaints its window when the mouse moves over it. Both programs take turns, {ROUNDS} times. A start
ends when the window is painted and the program waits for input. With a palette, the editor shows its first screen, and
then creates the controls of its three pages, about fifty windows. Dragging and repainting end with the painting; each
time is a mean of 100. Other programs disturb the fastest runs least.

A trace of Wine, made once, shows what the editor's start has in addition: about 6 ms for the common controls, 9 ms for the
menu bar, whose font is loaded for it, and 12 ms for the status bar and the five buttons of the first screen. Tracing slows
all of it.

| | editor: fastest | median | empty window: fastest | median | ratio of the fastest starts |
| --- | --: | --: | --: | --: | --: |"""
# Works of the editor, and the work of the empty window beside each.
ROWS = {
    "start": ("start", "start"),
    f"start with a palette of {ENTRIES:,} entries": ("start-with-file", "start"),
    "a step of dragging a bar, to the painted bars and cell": ("drag", "drag"),
    f"repaint of a grid of {ENTRIES:,} entries": ("repaint", "repaint"),
}


def write_palette(path):
    colors = "".join(f"{index % 256} {index * 7 % 256} {index // 4}\n" for index in range(ENTRIES))
    path.write_text(f"GIMP Palette\nName: {ENTRIES}\n#\n{colors}", encoding="ascii")


def measure(build, palette):
    """Returns lists of milliseconds by (program, work)."""
    scripts = Path(__file__).parent.parent
    programs = [f"Z:{build / name}" for name in ("bench/editor/empty_window.exe", "src/quillhue.exe")]
    command = [scripts / "ui-tests.sh", "benchmark", "96", build / "bench/editor/editor_bench.exe", str(ROUNDS)]
    printed = subprocess.run(
        [*command, *programs, f"Z:{palette}"], check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True
    ).stdout
    times = defaultdict(list)
    for program, work, milliseconds in (line.split() for line in printed.splitlines()):
        times[program, work].append(float(milliseconds))
    return times


def shown(number):
    return f"{number:.0f}" if number >= 10 else f"{number:.1f}"


def main():
    build, folder = (Path(word).resolve() for word in sys.argv[1:])
    palette = folder / "editor.gpl"
    write_palette(palette)
    times = measure(build, palette)
    print(HEADING)
    for words, (work, empty_work) in ROWS.items():
        editor, empty = times["editor", work], times["empty", empty_work]
        numbers = [shown(number) for number in (min(editor), median(editor), min(empty), median(empty))]
        ratio = shown(min(editor) / min(empty)) if empty_work == "start" else "–"
        print(f"| {words} | {' | '.join([*numbers, ratio])} |")


main()
