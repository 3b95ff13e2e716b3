#!/usr/bin/env python3
"""Makes the GTOPO30 tile of the sample host: elevations at every half minute of a degree.

    make_tile.py            writes sample/data/terrain/W006N41.DEM and .HDR
    make_tile.py --check    says whether the committed files are what this script makes

A coast runs through the tile: plains and a range of mountains in the east, the sea, which has no
elevations, in the west. As in make_terrain.py, whose random numbers and folds these are, the files
are the same wherever they are made.
"""

import argparse
import pathlib
import struct
import sys

import make_terrain
from make_terrain import Folds, Random, bump

FOLDER = pathlib.Path(__file__).resolve().parents[2] / "sample" / "data" / "terrain"
NAME = "W006N41"

# As many nodes as the terrain has, so that its folds cover the tile: 1 degree by 45 minutes.
COLUMNS, ROWS = make_terrain.COLUMNS, make_terrain.ROWS
CELL = make_terrain.CELL
MISSING = -9999
SEED = 14043

HEADER = f"""BYTEORDER      M
LAYOUT       BIL
NROWS         {ROWS}
NCOLS         {COLUMNS}
NBANDS        1
NBITS         16
BANDROWBYTES         {2 * COLUMNS}
TOTALROWBYTES        {2 * COLUMNS}
BANDGAPBYTES         0
NODATA        {MISSING}
ULXMAP        -5.99583333333333
ULYMAP        40.9958333333333
XDIM          0.00833333333333
YDIM          0.00833333333333
"""


def elevation(x, y, folds):
    """Of the ground in metres; below 0 in the sea. The place is counted as make_terrain.py does."""
    ground = 0.55 * x + 0.12 * y - 190
    ground += 1900 * bump(x, y, (820, 560), 190, 1.4)
    ground += 1300 * bump(x, y, (930, 240), 170)
    for height, one in folds:
        ground += height * one.at(x, y)
    return ground


def make():
    """The bytes of the tile."""
    random = Random(SEED)
    folds = [(260.0, Folds(random, 210.0)), (120.0, Folds(random, 90.0)),
             (35.0, Folds(random, 40.0))]
    tile = b""
    for row in reversed(range(ROWS)):
        grounds = [elevation((column + 0.5) * CELL, (row + 0.5) * CELL, folds)
                   for column in range(COLUMNS)]
        tile += struct.pack(f">{COLUMNS}h",
                            *(MISSING if ground < 0 else int(ground) for ground in grounds))
    return tile


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--check", action="store_true",
                        help="compare with the committed files, write nothing")
    check = parser.parse_args().check
    for file, made in ((FOLDER / f"{NAME}.DEM", make()),
                       (FOLDER / f"{NAME}.HDR", HEADER.encode("ascii"))):
        if not check:
            file.write_bytes(made)
        elif not file.is_file() or file.read_bytes() != made:
            sys.exit(f"{file} is not what {sys.argv[0]} makes")


if __name__ == "__main__":
    main()
