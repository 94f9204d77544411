"""dithering.py TOOL IMAGE PALETTE: times all ways of remapping an image, and prints a section for docs/benchmarks.md."""

import resource
import subprocess
import sys
import tempfile
from pathlib import Path
from statistics import median

ROUNDS = 5
HEADING = """
## Ways of dithering

Milliseconds of CPU time that `quillhue-cli remap` takes in all, from file to file, to remap the image of 12.6 megapixels
onto the adaptive palette of 256 colors. Medians of five runs, all ways taking turns.

| | ms |
| --- | --: |"""
KERNELS = ("floyd-steinberg", "atkinson", "burkes", "jarvis", "sierra", "sierra-lite", "stucki")
WAYS = {
    "nearest": ["--mode", "nearest"],
    "nearest in Oklab": ["--mode", "nearest", "--match", "oklab"],
    "error diffusion": ["--mode", "dither"],
    "error diffusion in Oklab": ["--mode", "dither", "--match", "oklab"],
    **{f"{kernel}, serpentine": ["--mode", "dither", "--kernel", kernel, "--serpentine"] for kernel in KERNELS},
    "jarvis, clamped": ["--mode", "dither", "--kernel", "jarvis", "--clamp"],
    "ordered, 8 x 8": ["--mode", "ordered", "--matrix", "8"],
}


def cpu_milliseconds(command):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, check=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return 1000 * (after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)


def main():
    tool, image, palette = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        answer = Path(folder, "answer.bmp")
        files = [image, palette, answer, "--force"]
        runs = {way: [] for way in WAYS}
        for _ in range(ROUNDS):
            for way, options in WAYS.items():
                runs[way].append(cpu_milliseconds([tool, "remap", *files, *options]))
    print(HEADING)
    for way, taken in runs.items():
        print(f"| {way} | {median(taken):.0f} |")


main()
