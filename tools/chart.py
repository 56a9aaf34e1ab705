# SPDX-License-Identifier: GPL-3.0-or-later
"""Weather-chart drawing on a map picture: isobars of a made-up pressure field, fronts with their marks."""

import math

import cairo
import numpy as np
from PIL import Image

OVERSAMPLING = 4

COLD = (0.10, 0.30, 0.78)
WARM = (0.82, 0.13, 0.16)
OCCLUDED = (0.52, 0.16, 0.62)
ISOBAR = (0.20, 0.28, 0.40)


def pressure(size, centres, base=1014.0):
    """Sum of smooth hills and hollows: each centre is (x, y, hectopascals, reach, stretch, tilt in degrees)."""
    width, height = size
    y, x = np.mgrid[0:height + 1:4, 0:width + 1:4].astype(float)
    field = np.full(x.shape, base)
    for cx, cy, depth, reach, stretch, tilt in centres:
        cos, sin = math.cos(math.radians(tilt)), math.sin(math.radians(tilt))
        along = ((x - cx) * cos + (y - cy) * sin) / stretch
        across = -(x - cx) * sin + (y - cy) * cos
        field += depth * np.exp(-(along ** 2 + across ** 2) / (2 * reach ** 2))
    return field


def contour(field, level, step=4):
    """Marching squares: the field's lines of equal value as lists of points."""
    segments = {}

    def crossing(a, b):
        (r0, c0), (r1, c1) = a, b
        t = (level - field[r0, c0]) / (field[r1, c1] - field[r0, c0])
        return ((c0 + t * (c1 - c0)) * step, (r0 + t * (r1 - r0)) * step)

    above = field > level
    rows, columns = field.shape
    ends = {}
    for r in range(rows - 1):
        for c in range(columns - 1):
            corners = ((r, c), (r, c + 1), (r + 1, c + 1), (r + 1, c))
            edges = [(corners[i], corners[(i + 1) % 4]) for i in range(4)]
            crossed = [edge for edge in edges if above[edge[0]] != above[edge[1]]]
            for first, second in zip(crossed[::2], crossed[1::2]):
                keys = [tuple(sorted(edge)) for edge in (first, second)]
                for key, other in (keys, keys[::-1]):
                    ends.setdefault(key, []).append(other)
    lines = []
    while ends:
        # An open line starts at a key with one neighbour; what remains are closed lines.
        start = next((key for key, others in ends.items() if len(others) == 1), next(iter(ends)))
        line, key = [start], start
        while True:
            others = ends.get(key)
            if not others:
                ends.pop(key, None)
                break
            other = others.pop()
            if not others:
                ends.pop(key)
            back = ends.get(other, [])
            if key in back:
                back.remove(key)
            line.append(other)
            key = other
        lines.append([crossing(*k) for k in line])
    return lines


def spline(points, per_segment=40):
    """A Catmull-Rom curve through the points, resampled at even distances of about half a pixel."""
    p = np.array(points, dtype=float)
    p = np.concatenate(([2 * p[0] - p[1]], p, [2 * p[-1] - p[-2]]))
    t = np.linspace(0, 1, per_segment, endpoint=False)[:, None]
    pieces = []
    for a, b, c, d in zip(p, p[1:], p[2:], p[3:]):
        pieces.append(0.5 * (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t ** 2 + (3 * b - a - 3 * c + d) * t ** 3))
    curve = np.concatenate(pieces + [p[-2:-1]])
    lengths = np.concatenate(([0], np.cumsum(np.hypot(*np.diff(curve, axis=0).T))))
    even = np.arange(0, lengths[-1], 0.5)
    return np.column_stack([np.interp(even, lengths, curve[:, axis]) for axis in (0, 1)])


class Chart:
    """An overlay on a picture. Fronts carry their marks on the left of their direction, or the right with side = -1."""

    def __init__(self, size):
        self.size = size
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, size[0] * OVERSAMPLING, size[1] * OVERSAMPLING)
        self.context = cairo.Context(self.surface)
        self.context.scale(OVERSAMPLING, OVERSAMPLING)
        self.context.set_line_cap(cairo.LINE_CAP_ROUND)
        self.context.set_line_join(cairo.LINE_JOIN_ROUND)

    def _line(self, points, width, ink, alpha=1.0):
        self.context.new_path()
        for point in points:
            self.context.line_to(*point)
        self.context.set_line_width(width)
        self.context.set_source_rgba(*ink, alpha)
        self.context.stroke()

    def isobars(self, field, levels, thick_every=20):
        for level in levels:
            # A hair off the round value: a grid point exactly on the level would have no crossing.
            for line in contour(field, level + 1e-4):
                self._line(line, 1.5 if level % thick_every == 0 else 1.0, ISOBAR, 0.62)

    def _marks(self, curve, spacing, first):
        step = int(spacing * 2)
        for number, index in enumerate(range(int(first * 2), len(curve) - 14, step)):
            before, after = curve[max(index - 8, 0)], curve[min(index + 8, len(curve) - 1)]
            yield number, curve[index], math.atan2(after[1] - before[1], after[0] - before[0])

    def _triangle(self, at, angle, side, ink, size=7.0):
        context = self.context
        context.save()
        context.translate(*at)
        context.rotate(angle)
        context.scale(1, -side)
        context.move_to(-size, 0)
        context.line_to(0, size * 1.45)
        context.line_to(size, 0)
        context.close_path()
        context.set_source_rgb(*ink)
        context.fill()
        context.restore()

    def _half_circle(self, at, angle, side, ink, size=6.6):
        context = self.context
        context.save()
        context.translate(*at)
        context.rotate(angle)
        context.scale(1, -side)
        context.arc(0, 0, size, 0, math.pi)
        context.close_path()
        context.set_source_rgb(*ink)
        context.fill()
        context.restore()

    def front(self, kind, points, side=1, spacing=29, first=16):
        curve = spline(points)
        ink = {"cold": COLD, "warm": WARM, "occluded": OCCLUDED}[kind]
        self._line(curve, 5.2, (1, 1, 1), 0.55)  # a pale bed lifts the front off coasts and borders
        self._line(curve, 2.6, ink)
        for number, at, angle in self._marks(curve, spacing, first):
            if kind == "cold" or (kind == "occluded" and number % 2 == 0):
                self._triangle(at, angle, side, ink)
            else:
                self._half_circle(at, angle, side, ink)

    def over(self, picture):
        self.surface.flush()
        width, height = self.size
        data = np.frombuffer(self.surface.get_data(), np.uint8)
        data = data.reshape(height, OVERSAMPLING, width, OVERSAMPLING, 4).astype(float).mean(axis=(1, 3)) / 255
        ground = np.asarray(picture.convert("RGB"), dtype=float) / 255
        mixed = data[..., [2, 1, 0]] + ground * (1 - data[..., 3:])
        return Image.fromarray(np.clip(np.rint(mixed * 255), 0, 255).astype(np.uint8), "RGB")
