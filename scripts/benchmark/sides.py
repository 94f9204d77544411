"""The programs and libraries that remap, and how each is run and timed."""

import ctypes.util
import importlib.util
import os
import shutil
import subprocess
import sys
from pathlib import Path

LARGE = "4096x3072"
MEDIUM = "1024x768"


class Run:
    """CPU seconds (user and system) and peak memory (MiB) of a command. `seconds` counts the compared work,
    `cost` the whole process. The output goes into the file `stdout`.

    This process must stay small and hold no image, because a new process's peak includes the memory of its parent."""

    def __init__(self, command, stdin=os.devnull, stdout=os.devnull):
        with open(stdin, "rb") as source, open(stdout, "wb") as sink:
            process = subprocess.Popen(command, stdin=source, stdout=sink)
            _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            raise RuntimeError(f"{command[0]} ends with {process.returncode}")
        self.cost = self.seconds = usage.ru_utime + usage.ru_stime
        self.memory = usage.ru_maxrss / 1024


def version(package):
    """Returns the upstream part of a Debian package's version."""
    found = subprocess.run(
        ["dpkg-query", "-W", "-f=${Version}", package], capture_output=True, text=True, check=False
    ).stdout
    return found.split(":")[-1].split("+really")[-1].rsplit("-", 1)[0].split("+dfsg")[0]


def printed_number(command):
    return float(subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE).stdout)


class Library:
    """A library. Only the call that remaps is timed, inside the process, with the image in memory."""

    rest = None

    def __init__(self, name, package, command, extension="ppm", present=True):
        self.name, self.package, self.command, self.extension = name, package, command, extension
        self.present = present

    def remap(self, folder, palette, mode, image=LARGE):
        image = folder / f"{image}.{'bmp' if self.extension == 'gpl' else 'ppm'}"
        printed = folder / "seconds"
        run = Run([*self.command, image, folder / f"{palette}.{self.extension}", mode], stdout=printed)
        run.seconds = float(printed.read_text())
        return run

    def answer(self, folder, palette):
        out = folder / "answer.ppm"
        Run([*self.command, folder / f"{MEDIUM}.ppm", folder / f"{palette}.ppm", "nearest", out])
        return out


class Program:
    """A program, timed as a whole without writing an output. `rest` does everything but the remapping. A program
    without `to_file` writes to standard output."""

    def __init__(self, name, package, rest, remap, to_nothing, to_file, reads_stdin=False):
        self.name, self.package, self.reads_stdin = name, package, reads_stdin
        self.rest_command, self.remap_command = rest, remap
        self.to_nothing, self.to_file = to_nothing, to_file
        self.present = shutil.which(rest("")[0]) is not None

    def _run(self, command, folder, size, stdout=os.devnull):
        return Run(command, folder / f"{size}.ppm" if self.reads_stdin else os.devnull, stdout)

    def rest(self, folder):
        return self._run([*self.rest_command(folder / f"{LARGE}.bmp"), *self.to_nothing], folder, LARGE)

    def remap(self, folder, palette, mode, image=LARGE):
        command = self.remap_command(folder / f"{image}.bmp", f"{folder / palette}", mode == "dither")
        return self._run([*command, *self.to_nothing], folder, image)

    def answer(self, folder, palette):
        out = folder / "answer.ppm"
        command = self.remap_command(folder / f"{MEDIUM}.bmp", f"{folder / palette}", False)
        if self.to_file is None:
            self._run(command, folder, MEDIUM, out)
        else:
            self._run([*command, *self.to_file, out], folder, MEDIUM)
        return out


CONVERT = "/usr/bin/convert"
FFMPEG = "ffmpeg -v error -nostdin -y -threads 1 -filter_threads 1 -filter_complex_threads 1 -i".split()


def product(build):
    return Library("Quillhue", None, [build / "bench/quillhue_bench_peers", "time"], "gpl")


def peers():
    in_process = [sys.executable, Path(__file__).with_name("in_process.py")]
    return [
        Program(
            "ImageMagick",
            "imagemagick",
            lambda image: [CONVERT, image],
            lambda image, palette, dithers: [
                CONVERT, image, *(["-dither", "FloydSteinberg"] if dithers else ["+dither"]), "-remap", palette + ".ppm",
            ],
            ["null:"],
            ["-depth", "8"],
        ),
        Program(
            "GraphicsMagick",
            "graphicsmagick",
            lambda image: ["gm", "convert", image],
            lambda image, palette, dithers: [
                "gm", "convert", image, "-dither" if dithers else "+dither", "-map", palette + ".ppm",
            ],
            ["null:"],
            ["-depth", "8"],
        ),
        Program(
            "Netpbm",
            "netpbm",
            lambda image: ["pamtopam"],
            lambda image, palette, dithers: [
                "pnmremap", "-quiet", "-floyd" if dithers else "-nofloyd", f"-mapfile={palette}.ppm",
            ],
            [],
            None,
            reads_stdin=True,
        ),
        Program(
            "ffmpeg",
            "ffmpeg",
            lambda image: [*FFMPEG, image, "-vf", "format=bgra"],
            lambda image, palette, dithers: [
                *FFMPEG, image, "-i", palette + "-square.ppm",
                "-lavfi", "paletteuse=dither=" + ("floyd_steinberg" if dithers else "none"),
            ],
            ["-f", "null", "-"],
            ["-pix_fmt", "rgb24"],
        ),
        Library(
            "libimagequant (pngquant)",
            "libimagequant0",
            [*in_process, "libimagequant"],
            present=ctypes.util.find_library("imagequant") is not None,
        ),
        Library(
            "Pillow",
            "python3-pil",
            [*in_process, "pillow"],
            present=importlib.util.find_spec("PIL") is not None,
        ),
    ]
