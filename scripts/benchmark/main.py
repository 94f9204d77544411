"""main.py BUILD WORK OUT: runs all measurements and writes the report OUT. WORK is an empty folder."""

import json
import os
import shutil
import subprocess
import sys
import time
from collections import defaultdict
from pathlib import Path

import report
import sides

ROUNDS = 9
# Once a side has used this much CPU time for a work, it needs no more runs of it.
ENOUGH_SECONDS = 5
PALETTES = ["regular-216", "adaptive-256", "adaptive-16"]
WORKS = [(mode, palette) for mode in ("nearest", "dither") for palette in PALETTES]
# Images of other kinds. The adaptive palette is that of the photo-like image, and the wide one too, but for the corners.
OTHER_WORKS = [
    (mode, palette, image)
    for image, palette in (
        *((image, palette) for image in ("smooth", "pixel-art", "noise") for palette in ("regular-216", "adaptive-256")),
        ("pixel-art", "wide-256"),
    )
    for mode in ("nearest", "dither")
]
OTHER_PEERS = ("ffmpeg", "Pillow")
BATCH_IMAGES = 200
BATCH_ROUNDS = 5


def measure_sides(build, folder, product, peers):
    """Returns lists of runs by (side, work). The work `rest` is everything but the remapping. The side `tool` is the
    whole of quillhue-cli."""
    runs = defaultdict(list)

    def once(name, work, run):
        done = runs[name, work]
        if sum(one.cost for one in done) < ENOUGH_SECONDS:
            done.append(run())

    for number in range(ROUNDS):
        print(f"Round {number + 1} of {ROUNDS}", file=sys.stderr)
        for peer in peers:
            if peer.rest:
                once(peer.name, "rest", lambda peer=peer: peer.rest(folder))
        for mode in ("nearest", "dither"):
            once("tool", mode, lambda mode=mode: run_tool(build, folder, mode))
        for work in WORKS:
            for side in [product, *peers]:
                once(side.name, work, lambda side=side, work=work: side.remap(folder, work[1], work[0]))
    return runs


def measure_others(folder, product, peers, runs):
    """Adds lists of runs by (side, work) for the works of OTHER_WORKS."""
    sides_compared = [product, *(peer for peer in peers if peer.name in OTHER_PEERS)]
    for number in range(ROUNDS):
        print(f"Other images, round {number + 1} of {ROUNDS}", file=sys.stderr)
        for work in OTHER_WORKS:
            for side in sides_compared:
                done = runs[side.name, work]
                if sum(one.cost for one in done) < ENOUGH_SECONDS:
                    done.append(side.remap(folder, work[1], work[0], work[2]))


def measure_batch(build, folder):
    """Returns the least seconds that quillhue-cli takes for many images, by verb and number of jobs."""
    images = folder / "batch"
    images.mkdir(exist_ok=True)
    for number in range(BATCH_IMAGES):
        link = images / f"{number}.bmp"
        if not link.exists():
            os.link(folder / f"{sides.MEDIUM}.bmp", link)
    results = folder / "results"
    verbs = {
        "remap": ["--palette", folder / "regular-216.gpl", "--mode", "dither", "--out-dir", results],
        "convert": ["--colors", "reduce", "--format", "gimp", "--out-dir", results],
        "info": [],
    }
    taken = defaultdict(list)
    for number in range(BATCH_ROUNDS):
        print(f"Many images, round {number + 1} of {BATCH_ROUNDS}", file=sys.stderr)
        for verb, options in verbs.items():
            for jobs in (1, 2):
                shutil.rmtree(results, ignore_errors=True)
                # What was written before must not be stored meanwhile.
                os.sync()
                start = time.monotonic()
                sides.Run([build / "src/quillhue-cli", verb, images, *options, "--jobs", str(jobs)])
                taken[verb, jobs].append(time.monotonic() - start)
    return {work: min(seconds) for work, seconds in taken.items()}


def run_tool(build, folder, mode):
    files = [folder / f"{sides.LARGE}.bmp", folder / "regular-216.gpl", folder / "answer.bmp"]
    return sides.Run([build / "src/quillhue-cli", "remap", *files, "--mode", mode, "--force"])


def judge_answers(build, folder, peers):
    """Returns the share of pixels that are not a nearest entry, by (side, palette). The product is also judged on the
    large image, for which it uses another lookup."""
    faults = {}
    for palette in PALETTES:
        program = [build / "bench/quillhue_bench_peers", "judge"]
        large, judge = ([*program, folder / f"{size}.bmp", folder / f"{palette}.gpl"] for size in (sides.LARGE, sides.MEDIUM))
        faults["Quillhue", palette] = max(sides.printed_number(large), sides.printed_number(judge))
        if faults["Quillhue", palette] != 0:
            sys.exit(f"Quillhue's answer for {palette} is not the nearest, so no measurement would mean anything.")
        for peer in peers:
            faults[peer.name, palette] = sides.printed_number([*judge, peer.answer(folder, palette)])
    return faults


def measure_benchmarks(build, filters):
    """Returns medians of CPU time in seconds, by the benchmark's name."""
    command = [
        build / "bench/quillhue_bench",
        "--benchmark_filter=" + filters,
        "--benchmark_repetitions=3",
        "--benchmark_min_time=0.1",
        "--benchmark_enable_random_interleaving=true",
        "--benchmark_report_aggregates_only=true",
        "--benchmark_format=json",
    ]
    found = json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout)
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
    return {
        row["run_name"].removesuffix("/iterations:1"): row["cpu_time"] * units[row["time_unit"]]
        for row in found["benchmarks"]
        if row["aggregate_name"] == "median"
    }


def main():
    build, folder, out = (Path(word) for word in sys.argv[1:4])
    product = sides.product(build)
    candidates = sides.peers()
    peers = [peer for peer in candidates if peer.present]
    subprocess.run([build / "bench/quillhue_bench_peers", "make", folder], check=True)
    faults = judge_answers(build, folder, peers)
    runs = measure_sides(build, folder, product, peers)
    measure_others(folder, product, peers, runs)
    batch = measure_batch(build, folder)
    print("Plain loops", file=sys.stderr)
    benchmarks = measure_benchmarks(build, "^(remap|noise|reduce|setup|plain-read|loader)/")
    out.write_text(report.compose(candidates, PALETTES, runs, faults, benchmarks, OTHER_WORKS, batch), encoding="utf-8")


main()
