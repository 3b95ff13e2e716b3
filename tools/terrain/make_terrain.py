#!/usr/bin/env python3
"""Makes the terrain of the sample host: an elevation grid in the ESRI ASCII format.

    make_terrain.py            writes sample/data/terrain/hills.asc
    make_terrain.py --check    says whether the committed file is what this script makes

A tilted plane carries two hills with a saddle between them, a valley, and in the valley a hollow
without an outlet. Folds of the ground come from random numbers. Missing are the lake in the
south-west, whose water no survey sees through, and the corner that was not surveyed.

The file is the same wherever it is made: the random numbers are this script's own, from a fixed
seed, and the elevations come from + - * / and square roots alone, which every machine rounds
alike.
"""

import argparse
import math
import pathlib
import sys

TARGET = pathlib.Path(__file__).resolve().parents[2] / "sample" / "data" / "terrain" / "hills.asc"

COLUMNS, ROWS = 120, 90
CELL = 10.0  # m
WEST, SOUTH = 437200.0, 4486300.0  # the corner of the south-western cell, m
MISSING = -9999
SEED = 20930
LAKE = 160.2  # elevation of its water, m


class Random:
    """A linear congruential generator, whose upper bits are random enough for hills."""

    def __init__(self, seed):
        self.state = seed

    def next(self):
        """A number from -1 to 1."""
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2**64
        return (self.state >> 32) / 2**31 - 1


class Folds:
    """Smooth random ground, between -1 and 1, whose folds are `size` metres apart."""

    def __init__(self, random, size):
        self.size = size
        self.columns = int(COLUMNS * CELL / size) + 2
        rows = int(ROWS * CELL / size) + 2
        self.values = [random.next() for _ in range(self.columns * rows)]

    def at(self, x, y):
        column, across = self.split(x)
        row, up = self.split(y)
        first = row * self.columns + column
        south = self.mix(self.values[first], self.values[first + 1], across)
        first += self.columns
        north = self.mix(self.values[first], self.values[first + 1], across)
        return self.mix(south, north, up)

    def split(self, place):
        whole = int(place / self.size)
        part = place / self.size - whole
        return whole, part * part * part * (part * (part * 6 - 15) + 10)

    @staticmethod
    def mix(low, high, part):
        return low + (high - low) * part


def bump(x, y, middle, radius, stretch=1.0):
    """1 in the middle, a quarter at the radius, nothing far away."""
    across, up = (x - middle[0]) / radius, (y - middle[1]) / (radius * stretch)
    share = 1 + across * across + up * up
    return 1 / (share * share)


def distance(x, y, start, end):
    """From a stretch of the valley's line, m."""
    dx, dy = end[0] - start[0], end[1] - start[1]
    part = ((x - start[0]) * dx + (y - start[1]) * dy) / (dx * dx + dy * dy)
    part = min(max(part, 0.0), 1.0)
    across, up = x - start[0] - part * dx, y - start[1] - part * dy
    return math.sqrt(across * across + up * up)


VALLEY = [(1250, 560), (1000, 470), (800, 300), (600, 250), (420, 130), (100, -60)]


def elevation(x, y, folds):
    """Of the ground x metres east and y north of the corner, in metres."""
    ground = 197 + 0.035 * x + 0.07 * y
    ground += 140 * bump(x, y, (390, 585), 205, 0.85)
    ground += 100 * bump(x, y, (775, 650), 170, 1.1)
    off = min(distance(x, y, start, end) for start, end in zip(VALLEY, VALLEY[1:]))
    across = off / 130
    ground -= 42 / (1 + across * across)
    ground -= 24 * bump(x, y, (720, 285), 75, 0.7)
    ground -= 60 * bump(x, y, (110, 60), 260)
    for height, one in folds:  # not sum(), which newer Pythons round otherwise
        ground += height * one.at(x, y)
    return ground


def is_surveyed(x, y, edge):
    """Whether the survey reached this place: all but the north-eastern corner."""
    return (x - 930) / 270 + (y - 640) / 260 + 0.25 * edge.at(x, y) < 1


def make():
    """The text of the file."""
    random = Random(SEED)
    folds = [(12.0, Folds(random, 170.0)), (4.5, Folds(random, 80.0)), (0.8, Folds(random, 35.0))]
    edge = Folds(random, 90.0)
    lines = [f"ncols {COLUMNS}", f"nrows {ROWS}", f"xllcorner {WEST:.1f}",
             f"yllcorner {SOUTH:.1f}", f"cellsize {CELL:.1f}", f"NODATA_value {MISSING}"]
    for row in reversed(range(ROWS)):
        y = (row + 0.5) * CELL
        words = []
        for column in range(COLUMNS):
            x = (column + 0.5) * CELL
            ground = elevation(x, y, folds)
            known = is_surveyed(x, y, edge) and ground > LAKE
            words.append(f"{ground:.2f}" if known else str(MISSING))
        lines.append(" ".join(words))
    return "\n".join(lines) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--check", action="store_true",
                        help="compare with the committed file, write nothing")
    made = make().encode("ascii")
    if not parser.parse_args().check:
        TARGET.parent.mkdir(parents=True, exist_ok=True)
        TARGET.write_bytes(made)
    elif not TARGET.is_file() or TARGET.read_bytes() != made:
        sys.exit(f"{TARGET} is not what {sys.argv[0]} makes")


if __name__ == "__main__":
    main()
