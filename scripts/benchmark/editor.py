"""editor.py BUILD WORK: times the editor of the Windows build beside two programs with one window each, and prints a
section for docs/benchmarks.md. WORK is a folder for a palette."""

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
menu or controls, and repaints its window when the mouse moves over it. The second row is a program that shows the same
as the editor before a palette is opened (the menu bar, the status bar and five buttons with icons) and does nothing
else: what it needs beyond the empty window is the system's own time. The programs take turns, {ROUNDS} times. A start ends
when the window is painted and the program waits for input. With a palette, the editor shows its first screen, and then
creates the controls of its three pages, about fifty windows. Dragging and repainting end with the painting; each time
is a mean of 100. Other programs disturb the fastest runs least.

| | fastest | median | empty window: fastest | median | ratio of the fastest starts |
| --- | --: | --: | --: | --: | --: |"""
# Programs and their works, and the work of the empty window beside each.
ROWS = {
    "start of the editor": ("editor", "start", "start"),
    "start of a program that only shows the same": ("first", "start", "start"),
    f"start of the editor with a palette of {ENTRIES:,} entries": ("editor", "start-with-file", "start"),
    "a step of dragging a bar, to the painted bars and cell": ("editor", "drag", "drag"),
    f"repaint of a grid of {ENTRIES:,} entries": ("editor", "repaint", "repaint"),
}


def write_palette(path):
    colors = "".join(f"{index % 256} {index * 7 % 256} {index // 4}\n" for index in range(ENTRIES))
    path.write_text(f"GIMP Palette\nName: {ENTRIES}\n#\n{colors}", encoding="ascii")


def measure(build, palette):
    """Returns lists of milliseconds by (program, work)."""
    scripts = Path(__file__).parent.parent
    names = ("bench/editor/empty_window.exe", "bench/editor/first_window.exe", "src/quillhue.exe")
    programs = [f"Z:{build / name}" for name in names]
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
    for words, (program, work, empty_work) in ROWS.items():
        taken, empty = times[program, work], times["empty", empty_work]
        numbers = [shown(number) for number in (min(taken), median(taken), min(empty), median(empty))]
        ratio = shown(min(taken) / min(empty)) if empty_work == "start" else "–"
        print(f"| {words} | {' | '.join([*numbers, ratio])} |")


main()
