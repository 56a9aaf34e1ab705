# SPDX-License-Identifier: GPL-3.0-or-later
"""Reading Natural Earth TopoJSON, clipping it and projecting it onto a map picture.

Longitudes and latitudes are degrees in arrays of shape (n, 2); picture positions are pixels with y downward.
"""

import json
import math
import os

import numpy as np

REPOSITORY = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
CACHE = os.environ.get("NUBIVANE_GEODATA", os.path.join(REPOSITORY, ".cache", "geodata"))


class Topology:
    """One TopoJSON file. Arcs are decoded once and shared by all outlines that use them."""

    def __init__(self, name):
        path = os.path.join(CACHE, name)
        if not os.path.exists(path):
            raise SystemExit(f"{path} is missing: run tools/fetch-geodata.sh first")
        with open(path, encoding="utf-8") as file:
            data = json.load(file)
        scale = np.array(data["transform"]["scale"])
        origin = np.array(data["transform"]["translate"])
        self.arcs = [np.cumsum(np.array(arc, dtype=float), axis=0) * scale + origin for arc in data["arcs"]]
        self.objects = data["objects"]

    def _arc(self, index):
        return self.arcs[index] if index >= 0 else self.arcs[~index][::-1]

    def _ring(self, indices):
        pieces = [self._arc(indices[0])] + [self._arc(i)[1:] for i in indices[1:]]
        return unwrapped(np.concatenate(pieces))

    @staticmethod
    def _polygons(geometry):
        if geometry["type"] == "Polygon":
            return [geometry["arcs"]]
        if geometry["type"] == "MultiPolygon":
            return geometry["arcs"]
        return []

    def _geometries(self, name):
        thing = self.objects[name]
        return thing["geometries"] if thing["type"] == "GeometryCollection" else [thing]

    def rings(self, name, wanted=None):
        """All rings of an object; `wanted` limits them to countries of these names."""
        result = []
        for geometry in self._geometries(name):
            if wanted is not None and geometry.get("properties", {}).get("name") not in wanted:
                continue
            for polygon in self._polygons(geometry):
                result += [self._ring(ring) for ring in polygon]
        return result

    def lines(self, name):
        """All lines of an object, rivers for one."""
        result = []
        for geometry in self._geometries(name):
            arcs = geometry.get("arcs", [])
            for line in arcs if geometry["type"] == "MultiLineString" else [arcs]:
                if line:
                    result.append(self._ring(line))
        return result

    def borders(self, name, wanted=lambda properties: True):
        """The arcs that two outlines of an object share; `wanted` picks outlines by their properties.

        Drawing arcs and not outlines paints every border once; painted twice, its smoothed edge would come out darker.
        """
        uses = {}
        for geometry in self._geometries(name):
            if not wanted(geometry.get("properties", {})):
                continue
            for polygon in self._polygons(geometry):
                for ring in polygon:
                    for index in ring:
                        key = index if index >= 0 else ~index
                        uses[key] = uses.get(key, 0) + 1
        return [unwrapped(self.arcs[i]) for i, count in sorted(uses.items()) if count > 1]


def turns(points, box):
    """The points once for each whole turn of the globe that brings them near the box, whose sides may pass 180."""
    west, east = points[:, 0].min(), points[:, 0].max()
    for turn in (-360.0, 0.0, 360.0):
        if west + turn <= box[2] and east + turn >= box[0]:
            yield points + (turn, 0.0) if turn else points


def unwrapped(points):
    """The same outline without leaps from one side of the antimeridian to the other; longitudes may pass 180."""
    points = points.copy()
    points[:, 0] = np.unwrap(points[:, 0], period=360)
    around = points[-1, 0] - points[0, 0]
    if abs(around) > 180 and np.array_equal(points[0, 1], points[-1, 1]):
        # Only Antarctica goes around the globe: it is closed over the pole.
        points = np.concatenate((points, [(points[-1, 0], -90.0), (points[0, 0], -90.0), points[0]]))
    return points


def densify(points, step):
    """Points added so that no side is longer than `step` degrees: a parallel is no straight line on most maps."""
    gaps = np.abs(np.diff(points, axis=0)).max(axis=1)
    counts = np.maximum(1, np.ceil(gaps / step)).astype(int)
    if len(counts) == 0 or counts.max() == 1:
        return points
    pieces = [start + (end - start) * (np.arange(count) / count)[:, None]
              for start, end, count in zip(points[:-1], points[1:], counts)]
    return np.concatenate(pieces + [points[-1:]])


def clip_ring(ring, box):
    """Sutherland-Hodgman against (west, south, east, north).

    A ring that merely passes the box far outside never reaches the projection, where the antimeridian and the pole
    would turn it into lines across the picture.
    """
    west, south, east, north = box
    for axis, limit, keep_greater in ((0, west, True), (0, east, False), (1, south, True), (1, north, False)):
        if len(ring) == 0:
            return ring
        values = ring[:, axis]
        inside = values >= limit if keep_greater else values <= limit
        if inside.all():
            continue
        if not inside.any():
            return ring[:0]
        result = []
        previous = ring[-1]
        previous_inside = inside[-1]
        for point, point_inside in zip(ring, inside):
            if point_inside != previous_inside:
                t = (limit - previous[axis]) / (point[axis] - previous[axis])
                result.append(previous + t * (point - previous))
            if point_inside:
                result.append(point)
            previous, previous_inside = point, point_inside
        ring = np.array(result)
    return ring


def clip_line(line, box):
    """The runs of a line's points that lie in the box; the box is larger than the picture, so cut ends never show."""
    west, south, east, north = box
    inside = ((line[:, 0] >= west) & (line[:, 0] <= east) & (line[:, 1] >= south) & (line[:, 1] <= north))
    edges = np.flatnonzero(np.diff(np.concatenate(([0], inside.astype(np.int8), [0]))))
    return [line[start:end] for start, end in zip(edges[::2], edges[1::2]) if end - start > 1]


class LambertConic:
    """Lambert's conformal conic projection of a sphere with two standard parallels."""

    def __init__(self, centre_longitude, centre_latitude, parallel_1, parallel_2):
        p1, p2 = math.radians(parallel_1), math.radians(parallel_2)
        self.lon0 = math.radians(centre_longitude)

        def stretch(latitude):
            return math.tan(math.pi / 4 + latitude / 2)

        self.n = math.log(math.cos(p1) / math.cos(p2)) / math.log(stretch(p2) / stretch(p1))
        self.f = math.cos(p1) * stretch(p1) ** self.n / self.n
        self.rho0 = self.f / stretch(math.radians(centre_latitude)) ** self.n

    def forward(self, points):
        longitude = np.radians(points[:, 0]) - self.lon0
        latitude = np.radians(np.clip(points[:, 1], -80, 89.9))
        rho = self.f / np.tan(np.pi / 4 + latitude / 2) ** self.n
        angle = self.n * longitude
        return np.column_stack((rho * np.sin(angle), rho * np.cos(angle) - self.rho0))

    def inverse(self, points):
        x = points[:, 0]
        y = self.rho0 + points[:, 1]
        rho = np.hypot(x, y) * np.sign(self.n)
        angle = np.arctan2(x * np.sign(self.n), y * np.sign(self.n))
        longitude = np.degrees(self.lon0 + angle / self.n)
        latitude = np.degrees(2 * np.arctan((self.f / rho) ** (1 / self.n)) - np.pi / 2)
        return np.column_stack((longitude, latitude))


class LambertAzimuthal:
    """Lambert's equal-area projection of a sphere onto a plane that touches it in the middle: for whole continents."""

    def __init__(self, centre_longitude, centre_latitude):
        self.lon0 = math.radians(centre_longitude)
        self.sin0, self.cos0 = math.sin(math.radians(centre_latitude)), math.cos(math.radians(centre_latitude))

    def forward(self, points):
        longitude = np.radians(points[:, 0]) - self.lon0
        latitude = np.radians(points[:, 1])
        sin, cos = np.sin(latitude), np.cos(latitude)
        along = self.sin0 * sin + self.cos0 * cos * np.cos(longitude)
        k = np.sqrt(2 / np.maximum(1 + along, 1e-9))
        return np.column_stack((k * cos * np.sin(longitude),
                                -k * (self.cos0 * sin - self.sin0 * cos * np.cos(longitude))))

    def inverse(self, points):
        x, y = points[:, 0], -points[:, 1]
        rho = np.maximum(np.hypot(x, y), 1e-12)
        c = 2 * np.arcsin(np.minimum(rho / 2, 1))
        latitude = np.arcsin(np.cos(c) * self.sin0 + y * np.sin(c) * self.cos0 / rho)
        longitude = np.arctan2(x * np.sin(c), rho * self.cos0 * np.cos(c) - y * self.sin0 * np.sin(c))
        return np.column_stack((np.degrees(self.lon0 + longitude), np.degrees(latitude)))


class Patterson:
    """Patterson's cylindrical projection: the whole world in a rectangle, with less stretch at the poles than most."""

    TERMS = ((1, 1.0148), (5, 0.23185), (7, -0.14499), (9, 0.02406))

    def __init__(self, centre_longitude):
        self.lon0 = math.radians(centre_longitude)
        self.latitudes = np.radians(np.linspace(-90, 90, 3601))
        self.heights = sum(factor * self.latitudes ** power for power, factor in self.TERMS)

    def forward(self, points):
        latitude = np.radians(points[:, 1])
        y = sum(factor * latitude ** power for power, factor in self.TERMS)
        return np.column_stack((np.radians(points[:, 0]) - self.lon0, -y))

    def inverse(self, points):
        latitude = np.interp(-points[:, 1], self.heights, self.latitudes)
        return np.column_stack((np.degrees(points[:, 0] + self.lon0), np.degrees(latitude)))


class MapFrame:
    """A projection fitted to a picture: `west`, `east` lie on its left and right edge at the middle height."""

    def __init__(self, projection, size, centre, degrees_wide):
        self.projection = projection
        self.width, self.height = size
        middle = projection.forward(np.array([centre]))[0]
        half = degrees_wide / 2
        edges = projection.forward(np.array([[centre[0] - half, centre[1]], [centre[0] + half, centre[1]]]))
        self.scale = self.width / (edges[1, 0] - edges[0, 0])
        self.middle = middle

    def to_pixels(self, points):
        plane = self.projection.forward(np.asarray(points, dtype=float))
        x = (plane[:, 0] - self.middle[0]) * self.scale + self.width / 2
        y = (plane[:, 1] - self.middle[1]) * self.scale + self.height / 2
        return np.column_stack((x, y))

    def to_degrees(self, pixels):
        pixels = np.asarray(pixels, dtype=float)
        x = (pixels[:, 0] - self.width / 2) / self.scale + self.middle[0]
        y = (pixels[:, 1] - self.height / 2) / self.scale + self.middle[1]
        return self.projection.inverse(np.column_stack((x, y)))

    def degree_grid(self):
        """Longitude and latitude of every pixel's centre, two arrays of the picture's shape."""
        y, x = np.mgrid[0:self.height, 0:self.width]
        degrees = self.to_degrees(np.column_stack((x.ravel() + 0.5, y.ravel() + 0.5)))
        return (degrees[:, 0].reshape(self.height, self.width), degrees[:, 1].reshape(self.height, self.width))

    def clip_box(self, margin=3.0):
        """The box of degrees that holds the whole picture, found along its edges."""
        xs = np.linspace(0, self.width, 200)
        ys = np.linspace(0, self.height, 150)
        edge = np.concatenate([np.column_stack((xs, np.full_like(xs, y))) for y in (0, self.height)] +
                              [np.column_stack((np.full_like(ys, x), ys)) for x in (0, self.width)])
        degrees = self.to_degrees(edge)
        west, south = degrees.min(axis=0) - margin
        east, north = degrees.max(axis=0) + margin
        if east - west > 370 or north > 89:
            raise ValueError("the region holds the pole or more than the world")
        return west, south, east, north
