#!/usr/bin/env python3
"""Draws the icons of Cuadros: one .ico for each group icon, at 16, 32 and 48 pixels.

    draw_icons.py            writes cuadros/resources/icons/*.ico
    draw_icons.py --check    says whether the committed files are what this script draws
    draw_icons.py --sheet F  also writes all pictures, enlarged, into the bitmap file F

The build does not run it: the .ico files are committed, so that a build needs no Python.
Dialogs show only the 16-pixel picture, so each subject is drawn for that size first: whole
units are whole pixels there, and finer detail is added from 32 pixels on.
"""

import argparse
import math
import pathlib
import struct
import sys

from raster import Picture, box, ellipse, icon_file, mix, rgb, smooth

ROOT = pathlib.Path(__file__).resolve().parents[2]
TARGET = ROOT / "cuadros" / "resources" / "icons"
SIZES = (16, 32, 48)

INK = rgb("#26343d")
WHITE = rgb("#ffffff")
BLUE = rgb("#2f7fd0")
RED = rgb("#d8392b")
ORANGE = rgb("#f0912d")
BROWN = rgb("#8a5a2b")
GREEN = rgb("#4f9d4a")
LIGHT_GREEN = rgb("#a9d18e")

# The classic ramp of elevation maps, from the lowest to the highest.
ELEVATIONS = [rgb("#5aa65a"), rgb("#a6cf7a"), rgb("#f2e08b"), rgb("#dba55a"), rgb("#a86a3d")]


def elevation(share):
    position = min(max(share, 0.0), 0.9999) * (len(ELEVATIONS) - 1)
    return mix(ELEVATIONS[int(position)], ELEVATIONS[int(position) + 1], position % 1)


def shifted(points, dx, dy):
    return [(x + dx, y + dy) for x, y in points]


def scaled(points, centre, factor):
    return [(centre[0] + (x - centre[0]) * factor, centre[1] + (y - centre[1]) * factor)
            for x, y in points]


def arrow(p, start, end, colour, width, head):
    """An arrow: shaft width in pixels, head length in units."""
    angle = math.atan2(end[1] - start[1], end[0] - start[0])
    neck = (end[0] - head * 0.8 * math.cos(angle), end[1] - head * 0.8 * math.sin(angle))
    p.line([start, neck], colour, width)
    side = head * 0.62
    p.fill([end,
            (end[0] - head * math.cos(angle) - side * math.sin(angle),
             end[1] - head * math.sin(angle) + side * math.cos(angle)),
            (end[0] - head * math.cos(angle) + side * math.sin(angle),
             end[1] - head * math.sin(angle) - side * math.cos(angle))], colour)


# A network of triangles around one inner vertex. The smallest picture has room for fewer faces.
NET_RIM = [(1.5, 5.5), (7.5, 1.5), (14.5, 4.5), (13.5, 12.5), (6.5, 14.5), (1.5, 11.5)]
NET_CENTRE = (7.5, 8.0)
SMALL_RIM = [(1.5, 4.5), (10.5, 1.5), (14.5, 10.5), (5.5, 14.5)]
SMALL_CENTRE = (7.5, 7.5)


def net(p, shades, ink, dots=None):
    rim = p.by_size(SMALL_RIM, NET_RIM, NET_RIM)
    centre = p.by_size(SMALL_CENTRE, NET_CENTRE, NET_CENTRE)
    for i, corner in enumerate(rim):
        p.fill([corner, rim[(i + 1) % len(rim)], centre], shades[i])
    width = p.by_size(0.9, 1.5, 2.0)
    p.line(rim, ink, width, closed=True)
    for corner in rim:
        p.line([corner, centre], ink, width)
    if dots:
        for x, y in rim + [centre]:
            p.dot(x, y, p.by_size(1.4, 1.05, 1.0), dots, None if p.size == 16 else ink,
                  p.by_size(0.0, 0.8, 1.2))


GREEN_NET = [rgb("#b9dc9c"), rgb("#8fc47a"), rgb("#5fa75a"), rgb("#3f8a4b"), rgb("#6db267"),
             rgb("#9fce86")]
GREY_NET = [rgb("#e3eaee"), rgb("#cfdae0"), rgb("#b3c3cc"), rgb("#9fb3be"), rgb("#bdcbd3"),
            rgb("#d7e1e6")]


def triangulation(p):
    net(p, GREEN_NET, INK, RED)


def tin_information(p):
    net(p, GREEN_NET, rgb("#47616d"))
    x, y, radius = 10.75, 10.75, 5.0
    p.fill(ellipse(x, y, radius + p.by_size(0.25, 0.4, 0.4)), WHITE)
    p.fill(ellipse(x, y, radius - 0.25), BLUE)
    p.fill(box(x - 0.85, y - 0.85, x + 0.85, y + 3.25), WHITE)
    p.dot(x, y - 2.4, 1.0, WHITE)


def cleaning(p):
    """A broom over a network."""
    net(p, GREY_NET, rgb("#7d929d"))
    handle = [(14.6, 1.4), (8.6, 7.4)]
    p.line(handle, INK, p.by_size(2.6, 4.6, 6.4))
    p.line(handle, rgb("#c98a4b"), p.by_size(1.3, 2.8, 4.2))
    bristles = [(7.4, 5.6), (10.4, 8.6), (8.6, 13.6), (6.4, 14.9), (1.1, 9.6), (2.4, 7.4)]
    p.fill(bristles, rgb("#f4c542"))
    p.line(bristles, INK, p.by_size(0.9, 1.3, 1.7), closed=True)
    for share in p.by_size((0.5,), (0.25, 0.5, 0.75), (0.2, 0.4, 0.6, 0.8)):
        top = (7.4 + 3.0 * share, 5.6 + 3.0 * share)
        foot = (1.9 + 5.4 * share, 8.6 + 5.6 * share)
        p.line([top, foot], rgb("#b98710"), p.by_size(0.9, 1.2, 1.5))
    p.line([(7.0, 6.2), (9.8, 9.0)], rgb("#c0392b"), p.by_size(1.2, 2.6, 3.8))


# A hill seen from above, as its contour lines, from the foot to the top.
HILL = [(1.0, 8.6), (2.6, 3.4), (7.4, 1.4), (12.4, 2.6), (15.0, 7.4), (12.8, 13.0), (7.6, 14.8),
        (3.0, 13.2)]
HILL_TOP = (9.0, 7.0)


def hill_ring(factor):
    return smooth(scaled(HILL, HILL_TOP, factor), closed=True)


# Two summits and the saddle between them.
RIDGE = [(1.2, 9.6), (2.0, 4.6), (6.2, 4.2), (9.4, 1.2), (14.2, 2.4), (14.8, 7.4), (11.6, 10.2),
         (9.4, 14.2), (3.6, 14.2)]


def contours(p):
    foot = smooth(RIDGE, closed=True)
    p.fill(foot, rgb("#fdf4d6"))
    thin, thick = p.by_size(1.2, 1.2, 1.6), p.by_size(1.4, 2.2, 3.2)
    if p.size != 16:
        p.line(smooth(scaled(RIDGE, (8.0, 8.0), 0.85), closed=True), BROWN, thin, closed=True)
    for x, y in ((11.2, 5.2), (5.4, 10.4)):
        for radius in p.by_size((2.2,), (2.1, 0.8), (2.1, 1.1)):
            p.line(ellipse(x, y, radius, radius * 0.9), BROWN, thin, closed=True)
    p.line(foot, BROWN, thick, closed=True)


def tints(p):
    bands = p.by_size(4, 5, 5)
    for i in range(bands):
        factor = 1.0 - i / bands
        p.fill(hill_ring(factor), elevation(i / (bands - 1)))
    for i in range(bands):
        p.line(hill_ring(1.0 - i / bands), rgb("#5b4327", 1.0 if i == 0 else 0.45),
               p.by_size(0.9, 1.2, 1.6) if i == 0 else p.by_size(0.5, 0.9, 1.1), closed=True)


def orientations(p):
    """The colour wheel of an aspect map, and a needle that points north."""
    hues = ["#e23b30", "#f0912d", "#f4d03f", "#6dbb4a", "#33b1a5", "#2f7fd0", "#6a4fc0",
            "#c045a3"]
    for i, hue in enumerate(hues):
        start = -112.5 + 45 * i
        p.fill([(8.0, 8.0)] + ellipse(8.0, 8.0, 7.4, start=start, end=start + 45), rgb(hue))
    p.line(ellipse(8.0, 8.0, 7.2), INK, p.by_size(0.9, 1.3, 1.8), closed=True)
    edge = p.by_size(0.0, 0.35, 0.4)
    if edge:
        p.fill([(8.0, 2.4 - edge), (10.9 + edge, 13.2 + edge), (8.0, 11.4), (5.1 - edge, 13.2 + edge)],
               INK)
    p.fill([(8.0, 2.4), (10.9, 13.2), (8.0, 11.0)], rgb("#dfe6ea"))
    p.fill([(8.0, 2.4), (5.1, 13.2), (8.0, 11.0)], WHITE)


def slopes(p):
    """A slope with its angle, and the vector that runs down it."""
    ground = [(1.0, 14.5), (15.0, 14.5), (15.0, 3.5)]
    p.fill(ground, lambda x, y: elevation((x - 1) / 15))
    p.line(ground, INK, p.by_size(1.0, 1.6, 2.2), closed=True)
    p.line(ellipse(1.0, 14.5, 6.5, start=-38.0, end=0.0), INK, p.by_size(1.0, 1.4, 2.0))
    arrow(p, (13.2, 1.2), (3.4, 8.9), WHITE, p.by_size(2.0, 5.0, 7.0), 5.0)
    arrow(p, (13.2, 1.2), (3.4, 8.9), RED, p.by_size(1.6, 2.8, 4.0), 4.6)


def shading(p):
    """Two peaks under a light from the upper left."""
    p.dot(3.2, 3.2, 2.2, rgb("#f8c630"), rgb("#d08a10"), p.by_size(0.5, 0.9, 1.2))
    light, dark = rgb("#d9dee1"), rgb("#5d6b73")
    back = [(5.6, 14.5), (11.6, 3.0), (15.6, 14.5)]
    p.fill(back, light)
    p.fill([(11.6, 3.0), (15.6, 14.5), (11.0, 14.5), (12.6, 8.2)], rgb("#3f4b52"))
    p.line(back, INK, p.by_size(0.9, 1.3, 1.8), closed=True)
    front = [(0.6, 14.5), (5.6, 7.0), (10.8, 14.5)]
    p.fill(front, rgb("#f2f4f5"))
    p.fill([(5.6, 7.0), (10.8, 14.5), (5.4, 14.5), (6.6, 10.6)], dark)
    p.line(front, INK, p.by_size(0.9, 1.3, 1.8), closed=True)


def hypsometric_curve(p):
    curve = smooth([(2.6, 2.6), (4.0, 5.4), (7.2, 7.4), (10.4, 9.2), (12.6, 11.4), (14.2, 13.4)])
    p.fill(curve + [(2.5, 13.5)], lambda x, y: mix(elevation(1 - (y - 2) / 12), WHITE, 0.12))
    grid = rgb("#ffffff", 0.55)
    for level in p.by_size((), (5.5, 8.2, 10.9), (5.5, 8.2, 10.9)):
        p.line([(2.5, level), (14.5, level)], grid, 1.0, within=curve + [(2.5, 13.5)])
    p.line(curve, RED, p.by_size(1.5, 2.8, 3.8))
    p.line([(2.5, 1.0), (2.5, 13.5), (15.0, 13.5)], INK, p.by_size(1.0, 1.8, 2.4))
    for level in p.by_size((), (4.0, 7.2, 10.4), (4.0, 7.2, 10.4)):
        p.line([(1.4, level), (2.5, level)], INK, p.by_size(1.0, 1.2, 1.6))


def profiles(p):
    """A longitudinal section: the terrain, the grade line over it, the chainage below."""
    terrain = smooth([(1.0, 8.0), (3.2, 3.6), (5.2, 2.6), (7.6, 6.2), (9.6, 9.2), (11.6, 8.6),
                      (13.2, 5.2), (15.0, 3.6)])
    p.fill(terrain + [(15.0, 12.2), (1.0, 12.2)],
           lambda x, y: mix(rgb("#c7d99a"), rgb("#b98a55"), min(max((y - 3) / 8, 0), 1)))
    p.line(terrain, BROWN, p.by_size(1.2, 2.0, 2.8))
    p.line([(1.0, 7.4), (15.0, 5.4)], WHITE, p.by_size(1.8, 4.4, 6.4))
    p.line([(1.0, 7.4), (15.0, 5.4)], RED, p.by_size(1.3, 2.2, 3.2))
    p.line([(0.8, 12.5), (15.2, 12.5)], INK, p.by_size(1.0, 1.6, 2.2))
    for x in p.by_size((1.5, 5.5, 9.5, 13.5), (1.0, 4.5, 8.0, 11.5, 15.0),
                       (1.0, 3.33, 5.66, 8.0, 10.33, 12.66, 15.0)):
        p.line([(x, 12.5), (x, 14.5)], INK, p.by_size(1.0, 1.4, 1.9))


def projection(p):
    """The globe, and the sheet it is projected on."""
    x, y, radius = 6.9, 6.9, 6.1
    globe = ellipse(x, y, radius)
    p.fill(globe, lambda px, py: mix(rgb("#8cc6f5"), rgb("#1d5fae"),
                                     min(max((px + py - 6) / 16, 0.0), 1.0)))
    thin = p.by_size(0.9, 1.2, 1.5)
    p.line([(x, y - radius), (x, y + radius)], WHITE, thin)
    p.line(ellipse(x, y, radius * 0.52, radius), WHITE, thin, closed=True)
    for latitude in p.by_size((0.0,), (-0.5, 0.0, 0.5), (-0.5, 0.0, 0.5)):
        p.line([(x - radius, y + radius * latitude), (x + radius, y + radius * latitude)], WHITE,
               thin, within=globe)
    p.line(globe, INK, p.by_size(0.9, 1.4, 1.9), closed=True)
    sheet = box(8.5, 8.5, 14.5, 14.5)
    p.fill(sheet, rgb("#fff6d8"))
    for share in (1 / 3, 2 / 3):
        c = 8.5 + 6.0 * share
        p.line([(c, 8.5), (c, 14.5)], ORANGE, p.by_size(0.8, 1.1, 1.5))
        p.line([(8.5, c), (14.5, c)], ORANGE, p.by_size(0.8, 1.1, 1.5))
    p.line(sheet, INK, p.by_size(1.0, 1.5, 2.0), closed=True)


def grid_import(p):
    """A grid of elevations, and the arrow that brings it in."""
    heights = [[0.1, 0.2, 0.35, 0.5], [0.25, 0.5, 0.75, 0.6], [0.3, 0.7, 1.0, 0.7],
               [0.1, 0.4, 0.6, 0.45]]
    left, top, cell = 0.5, 3.5, 3.0
    for row, values in enumerate(heights):
        for column, value in enumerate(values):
            x, y = left + cell * column, top + cell * row
            p.fill(box(x, y, x + cell, y + cell), elevation(value))
    line = rgb("#ffffff", p.by_size(0.35, 0.75, 0.75))
    for i in range(1, 4):
        p.line([(left + cell * i, top), (left + cell * i, top + 12)], line, p.by_size(0.6, 1.0, 1.4))
        p.line([(left, top + cell * i), (left + 12, top + cell * i)], line, p.by_size(0.6, 1.0, 1.4))
    p.line(box(left, top, left + 12, top + 12), INK, p.by_size(1.0, 1.5, 2.0), closed=True)
    arrow(p, (14.6, 1.4), (7.6, 8.4), WHITE, p.by_size(3.6, 6.8, 9.8), 5.9)
    arrow(p, (14.6, 1.4), (8.0, 8.0), BLUE, p.by_size(2.0, 4.0, 6.0), 4.8)


ICONS = {
    "Proyeccion": projection,
    "ImportarRejilla": grid_import,
    "LimpiarRelieve": cleaning,
    "Triangulacion": triangulation,
    "Curvado": contours,
    "Hipsometricas": tints,
    "Orientaciones": orientations,
    "Pendientes": slopes,
    "Sombreado": shading,
    "CurvaHipsometrica": hypsometric_curve,
    "InfoTriangulacion": tin_information,
    "Perfiles": profiles,
}


def draw(subject):
    pictures = [Picture(size) for size in SIZES]
    for picture in pictures:
        subject(picture)
    return pictures


def sheet(drawn):
    """A bitmap of all pictures, each enlarged to the same edge, on the grey of a caption."""
    edge, gap = 192, 16
    width, height = len(SIZES) * (edge + gap) * 4 + gap, (len(drawn) + 3) // 4 * (edge + gap) + gap
    rows = [[(214, 219, 224)] * width for _ in range(height)]
    for index, pictures in enumerate(drawn):
        for column, picture in enumerate(pictures):
            left = gap + ((index % 4) * len(SIZES) + column) * (edge + gap)
            top = gap + index // 4 * (edge + gap)
            pixels = picture.rgba()
            for y in range(edge):
                for x in range(edge):
                    red, green, blue, alpha = pixels[y * picture.size // edge * picture.size
                                                     + x * picture.size // edge]
                    below = rows[top + y][left + x]
                    rows[top + y][left + x] = tuple(
                        round((c * alpha + b * (255 - alpha)) / 255)
                        for c, b in zip((red, green, blue), below))
    body = b"".join(bytes(v for red, green, blue in row for v in (blue, green, red))
                    + bytes(-width * 3 % 4) for row in reversed(rows))
    return (b"BM" + struct.pack("<IHHI", 54 + len(body), 0, 0, 54)
            + struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(body), 0, 0, 0, 0) + body)


def main():
    arguments = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    arguments.add_argument("--check", action="store_true", help="compare, and write nothing")
    arguments.add_argument("--sheet", metavar="FILE", help="write a bitmap of all pictures too")
    options = arguments.parse_args()

    drawn = {name: draw(subject) for name, subject in ICONS.items()}
    stale = []
    for name, pictures in drawn.items():
        path = TARGET / f"{name}.ico"
        data = icon_file(pictures)
        if not options.check:
            path.write_bytes(data)
        elif not path.exists() or path.read_bytes() != data:
            stale.append(path.name)
    if options.sheet:
        pathlib.Path(options.sheet).write_bytes(sheet(list(drawn.values())))
    if stale:
        sys.exit("Not what the script draws: " + ", ".join(stale))


if __name__ == "__main__":
    main()
