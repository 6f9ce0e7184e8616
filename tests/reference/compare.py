#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Draws made-up grids with `zugrid render` and with the reference and compares them by pixel.

compare.py [PROGRAM] [--case N]... [--keep FOLDER] [--verbose]
PROGRAM is build/bin/zugrid unless given; ZU_BUILD_DIR names another build folder.
"""

import argparse
import concurrent.futures
import itertools
import os
import subprocess
import sys
import tempfile

import numpy
from osgeo import gdal

import reference
from cases import arguments, make_cases
from geometry import Nudge

SHARE_OF_INEXACT = 0.005  # of the pixels, where a mesh or a turned grid decides the sample


def run_program(program, case, picture):
    command = [program, *arguments(case), "-o", picture]
    done = subprocess.run(command, capture_output=True, text=True, timeout=60)
    return command, done


def read_picture(path):
    """Red, green, blue and opacity, lowest row first."""
    bands = gdal.Open(path).ReadAsArray()
    return numpy.moveaxis(bands, 0, -1)[::-1].astype(int)


def difference(picture, page, blended):
    """The worst difference of each pixel beyond what eight premultiplied bits explain."""
    opacity = numpy.round(page[..., 3] * 255)
    off = abs(picture[..., 3] - opacity)
    if blended:
        off = numpy.where((off <= 1) & (opacity > 0) & (opacity < 255), 0, off)
    seen = (opacity > 0) & (picture[..., 3] > 0)
    safe = numpy.where(page[..., 3:] > 0, page[..., 3:], 1)
    color_off = abs(picture[..., :3] - numpy.round(page[..., :3] / safe * 255)).max(axis=-1)
    allowed = numpy.ceil(2 * 255 / numpy.maximum(opacity, 1)) if blended else 0
    return numpy.maximum(off, numpy.where(seen & (color_off > allowed), color_off, 0))


def is_blended(case):
    looks = [look for _, look in case.layers]
    colors = [c for k in looks for c in (*k.colors, *(v for _, v in k.values), k.other, k.simple)]
    colors.append(case.background)
    clear = any(c and 0 < c[3] < 255 for c in colors)
    images = any(look.draw == "image" for look in looks)
    return clear or images or any(look.transparency for look in looks)


def judge(case, picture):
    """The worst differences by pixel, and how it was matched: plainly or by a choice on a tie."""
    scene = reference.Scene(case.layers, case.size, case.extent, case.crs, case.background)
    blended = is_blended(case)
    if scene.exact() and not any(look.interpolate for _, look in case.layers):
        # A pixel that starts on the edge of a cell belongs to the cell above it.
        nudges = [Nudge(x=1, y=1)]
    else:
        nudges = [Nudge(), *(Nudge(x=x, y=y) for x, y in itertools.product((-1, 1), repeat=2))]
    tolerated = 0 if scene.exact() else SHARE_OF_INEXACT * picture[..., 0].size
    first = None
    for windows in scene.window_choices():
        least = None
        for nudge in nudges:
            worst = difference(picture, scene.draw(windows, nudge), blended)
            least = worst if least is None else numpy.minimum(least, worst)
            if first is None and not worst.any():
                return worst, "plain"
            first = worst if first is None else first
            if numpy.count_nonzero(least) <= tolerated:
                return numpy.zeros_like(worst), "tie"
    return first, "differs"


def check(number, case, command, done, picture):
    """One line if the case differs, else the way it matched."""
    what = f"case {number}, {case.name}"
    shown = " ".join(command)
    if done.returncode != 0 or not os.path.exists(picture):
        return "differs", f"{what}: exit {done.returncode}: {done.stderr.strip()}\n    {shown}"
    pixels = read_picture(picture)
    if pixels.shape != (case.size[1], case.size[0], 4):
        return "differs", f"{what}: picture of {pixels.shape}\n    {shown}"
    worst, how = judge(case, pixels)
    count = numpy.count_nonzero(worst)
    differs = f"{count} of {worst.size} pixels differ, worst by {int(worst.max())}"
    return how, f"{what}: {differs}\n    {shown}"


def main():
    parser = argparse.ArgumentParser()
    build = os.environ.get("ZU_BUILD_DIR", "build")
    parser.add_argument("program", nargs="?", default=os.path.join(build, "bin", "zugrid"))
    parser.add_argument("--case", type=int, action="append", help="only this case; may be repeated")
    parser.add_argument("--keep", help="folder for the grids and pictures")
    parser.add_argument("--verbose", action="store_true", help="a line for each case")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as temporary:
        folder = options.keep or temporary
        os.makedirs(folder, exist_ok=True)
        counts = {"plain": 0, "tie": 0, "differs": 0}
        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            runs = []
            for number, case in make_cases(folder, options.case):
                picture = os.path.join(folder, f"{number}.png")
                run = pool.submit(run_program, options.program, case, picture)
                runs.append((number, case, picture, run))
            for number, case, picture, run in runs:
                how, line = check(number, case, *run.result(), picture)
                counts[how] += 1
                if how == "differs" or options.verbose:
                    print(f"{how}: {line}" if options.verbose else line, flush=True)
    passed = counts["plain"] + counts["tie"]
    print(f"{counts['tie']} matched by a choice where rounding decides on a tie")
    print(f"{passed} passed, {counts['differs']} failed")
    return 1 if counts["differs"] or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
