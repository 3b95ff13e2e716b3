"""A small antialiased rasteriser and a writer of Windows icons. Standard library only.

Shapes are closed outlines in units of a sixteenth of the picture's edge, filled by the
non-zero winding rule: sub-scanlines down, exact coverage along each of them.
"""

import math
import struct

UNITS = 16
SUBLINES = 16


def rgb(text, alpha=1.0):
    """A colour from '#rrggbb'."""
    return (int(text[1:3], 16), int(text[3:5], 16), int(text[5:7], 16), alpha)


def mix(first, second, share):
    """The colour that lies `share` of the way from the first to the second."""
    return tuple(a + (b - a) * share for a, b in zip(first, second))


def ellipse(x, y, rx, ry=None, start=0.0, end=360.0, steps=72):
    """Points on an ellipse, by degrees: 0 points right, 90 down."""
    ry = rx if ry is None else ry
    count = max(2, int(steps * abs(end - start) / 360.0))
    angles = [math.radians(start + (end - start) * i / count) for i in range(count + 1)]
    return [(x + rx * math.cos(a), y + ry * math.sin(a)) for a in angles]


def box(left, top, right, bottom):
    return [(left, top), (right, top), (right, bottom), (left, bottom)]


def smooth(points, closed=False, steps=8):
    """A curve through the points (Catmull-Rom)."""
    count = len(points)
    curve = []
    for i in range(count if closed else count - 1):
        if closed:
            p0, p1, p2, p3 = (points[(i + k) % count] for k in (-1, 0, 1, 2))
        else:
            p0, p1, p2, p3 = (points[min(max(i + k, 0), count - 1)] for k in (-1, 0, 1, 2))
        for step in range(steps):
            t = step / steps
            curve.append(
                tuple(
                    0.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t
                           + (3 * b - a - 3 * c + d) * t ** 3)
                    for a, b, c, d in zip(p0, p1, p2, p3)))
    if not closed:
        curve.append(points[-1])
    return curve


def stroke(points, width, closed=False):
    """The outlines that together make a line of this width, with round joins and ends."""
    half = width / 2
    line = points + [points[0]] if closed else points
    pieces = [ellipse(x, y, half, steps=24) for x, y in line]
    for (x0, y0), (x1, y1) in zip(line, line[1:]):
        length = math.hypot(x1 - x0, y1 - y0)
        if length:
            nx, ny = -(y1 - y0) / length * half, (x1 - x0) / length * half
            pieces.append([(x0 - nx, y0 - ny), (x1 - nx, y1 - ny), (x1 + nx, y1 + ny),
                           (x0 + nx, y0 + ny)])
    return pieces


class Picture:
    """A square picture of `size` pixels, transparent at first."""

    def __init__(self, size):
        self.size = size
        self.pixels = [(0.0, 0.0, 0.0, 0.0)] * (size * size)  # premultiplied

    def by_size(self, small, middle, large):
        """The value for this picture's size: 16, 32 or 48 pixels."""
        return {16: small, 32: middle, 48: large}[self.size]

    def fill(self, outlines, colour, within=None):
        """Paints one outline, or several together; `colour` may be a function of (x, y).

        `within` is an outline beyond which nothing is painted.
        """
        coverage = self._coverage(outlines)
        if within is not None:
            coverage = [a * b for a, b in zip(coverage, self._coverage(within))]
        unit = UNITS / self.size
        for i, share in enumerate(coverage):
            if share <= 0:
                continue
            paint = colour
            if callable(colour):
                paint = colour((i % self.size + 0.5) * unit, (i // self.size + 0.5) * unit)
            alpha = paint[3] * min(share, 1.0)
            below = self.pixels[i]
            self.pixels[i] = (paint[0] * alpha + below[0] * (1 - alpha),
                              paint[1] * alpha + below[1] * (1 - alpha),
                              paint[2] * alpha + below[2] * (1 - alpha),
                              alpha + below[3] * (1 - alpha))

    def line(self, points, colour, width, closed=False, within=None):
        """Paints a line; its width is in pixels, so that thin lines stay thin in any size."""
        self.fill(stroke(points, width * UNITS / self.size, closed), colour, within)

    def dot(self, x, y, radius, colour, rim=None, rim_width=1.0):
        if rim:
            self.fill(ellipse(x, y, radius + rim_width * UNITS / self.size), rim)
        self.fill(ellipse(x, y, radius), colour)

    def _coverage(self, outlines):
        if not isinstance(outlines[0], list):
            outlines = [outlines]
        size = self.size
        scale = size / UNITS
        edges = []
        for outline in outlines:
            # One sense for all, so that pieces that overlap add up instead of cancelling.
            area = sum(x0 * y1 - x1 * y0
                       for (x0, y0), (x1, y1) in zip(outline, outline[1:] + outline[:1]))
            ordered = outline if area > 0 else outline[::-1]
            for (x0, y0), (x1, y1) in zip(ordered, ordered[1:] + ordered[:1]):
                if y0 != y1:
                    edges.append((x0 * scale, y0 * scale, x1 * scale, y1 * scale))
        coverage = [0.0] * (size * size)
        for sub in range(size * SUBLINES):
            y = (sub + 0.5) / SUBLINES
            crossings = []
            for x0, y0, x1, y1 in edges:
                if (y0 <= y) != (y1 <= y):
                    crossings.append((x0 + (y - y0) * (x1 - x0) / (y1 - y0),
                                      1 if y1 > y0 else -1))
            winding = 0
            row = int(y) * size
            for (x, turn), following in zip(sorted(crossings), sorted(crossings)[1:]):
                winding += turn
                if winding:
                    self._add_span(coverage, row, x, following[0])
        return coverage

    def _add_span(self, coverage, row, left, right):
        left, right = max(left, 0.0), min(right, float(self.size))
        for x in range(int(left), min(int(math.ceil(right)), self.size)):
            covered = min(right, x + 1) - max(left, x)
            if covered > 0:
                coverage[row + x] += covered / SUBLINES

    def rgba(self):
        """The pixels as (red, green, blue, alpha) bytes, row by row from the top."""
        result = []
        for red, green, blue, alpha in self.pixels:
            if alpha <= 0:
                result.append((0, 0, 0, 0))
            else:
                result.append(tuple(min(255, max(0, round(v / alpha)))
                                    for v in (red, green, blue)) + (round(255 * alpha),))
        return result


def _icon_image(picture):
    size = picture.size
    pixels = picture.rgba()
    mask_row = (size + 31) // 32 * 4
    colours, mask = bytearray(), bytearray()
    for y in reversed(range(size)):
        row = pixels[y * size:(y + 1) * size]
        bits = bytearray(mask_row)
        for x, (red, green, blue, alpha) in enumerate(row):
            colours += bytes((blue, green, red, alpha))
            if alpha == 0:
                bits[x // 8] |= 0x80 >> (x % 8)
        mask += bits
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0,
                         len(colours) + len(mask), 0, 0, 0, 0)
    return header + bytes(colours) + bytes(mask)


def icon_file(pictures):
    """The bytes of an .ico file: each picture with 32 bits a pixel, alpha and mask."""
    images = [_icon_image(picture) for picture in pictures]
    offset = 6 + 16 * len(images)
    data = struct.pack("<HHH", 0, 1, len(images))
    for picture, image in zip(pictures, images):
        data += struct.pack("<BBBBHHII", picture.size, picture.size, 0, 0, 1, 32, len(image),
                            offset)
        offset += len(image)
    return data + b"".join(images)
