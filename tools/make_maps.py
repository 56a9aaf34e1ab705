#!/usr/bin/python3
"""Draws the base maps in content/Maps.

A further map is one entry in REGIONS, a further look one entry in STYLES, and the pair one line in MAPS.
"""

import argparse
import os
from dataclasses import dataclass, field

import cairo
import numpy as np
from PIL import Image, ImageFilter

import lakes
from geo import REPOSITORY, LambertConic, MapFrame, Topology, clip_line, clip_ring

OVERSAMPLING = 4
JPEG = {"format": "JPEG", "quality": 92, "subsampling": 0, "optimize": True}


@dataclass(frozen=True)
class Region:
    centre: tuple           # longitude, latitude of the picture's middle
    degrees_wide: float     # degrees of longitude between the picture's sides, at the middle latitude
    parallels: tuple        # standard parallels; a sixth of the height inside the upper and lower edge serves
    detail: str             # Natural Earth scale, "10m" or "50m"
    graticule: float        # degrees between its lines
    focus: tuple = ()       # countries set off from their neighbours
    smallest_island: float = 0.0  # outlines below this area in square pixels are left out
    size: tuple = (800, 600)


@dataclass(frozen=True)
class Style:
    shallow: tuple          # sea at the coast
    deep: tuple             # open sea
    land: tuple             # pairs (latitude, colour), from south to north
    other_land: tuple       # colour and share mixed into land outside the region's focus
    coast: tuple            # colour and opacity
    border: tuple
    graticule_sea: tuple
    graticule_land: tuple
    rim: tuple              # thin light along the coast, inside the land
    texture: float          # strength of the slow variation of land colour
    coast_width: float = 0.8
    border_width: float = 0.8
    glow: tuple = field(default=((5, 0.35), (16, 0.35), (48, 0.30)))  # reach in pixels, weight


REGIONS = {
    "europe": Region(centre=(14.0, 53.4), degrees_wide=89, parallels=(40, 66), detail="50m", graticule=10,
                     smallest_island=1.2),
    "italy": Region(centre=(12.4, 41.95), degrees_wide=19.6, parallels=(38, 46), detail="10m", graticule=2,
                    focus=("Italy", "San Marino", "Vatican"), smallest_island=0.8),
}

STYLES = {
    "natural": Style(
        shallow=(216, 234, 243), deep=(169, 204, 226),
        land=((28, (240, 230, 204)), (35, (237, 231, 205)), (41, (229, 232, 203)), (48, (217, 230, 199)),
              (58, (206, 225, 196)), (66, (214, 227, 209)), (74, (228, 233, 226))),
        other_land=((238, 236, 226), 0.62),
        coast=((104, 142, 160), 0.85), border=((140, 142, 122), 0.75),
        graticule_sea=((255, 255, 255), 0.45), graticule_land=((120, 140, 110), 0.13),
        rim=((255, 255, 250), 0.55), texture=7.0),
    "light": Style(
        shallow=(236, 244, 249), deep=(208, 226, 238),
        land=((0, (247, 246, 240)),),
        other_land=((240, 240, 238), 0.80),
        coast=((138, 160, 176), 0.9), border=((172, 176, 176), 0.85),
        graticule_sea=((255, 255, 255), 0.6), graticule_land=((150, 160, 165), 0.12),
        rim=((255, 255, 255), 0.5), texture=2.0),
    "dark": Style(
        shallow=(44, 70, 96), deep=(24, 42, 64),
        land=((0, (74, 90, 92)),),
        other_land=((58, 72, 80), 0.75),
        coast=((150, 184, 204), 0.7), border=((150, 164, 160), 0.55),
        graticule_sea=((160, 190, 215), 0.16), graticule_land=((200, 220, 220), 0.08),
        rim=((120, 140, 140), 0.35), texture=4.0),
}

# Lines of control that most states do not recognise as borders; an arc whose middle lies in such a box is not drawn.
UNDRAWN_BORDERS = (
    (32.5, 45.6, 36.0, 46.4),  # Crimea's neck
    (32.3, 34.9, 34.2, 35.3),  # across Cyprus
)

MAPS = {
    "europe.jpg": ("europe", "natural"),
    "italy.jpg": ("italy", "natural"),
}


def coverage(frame, paint):
    """Runs `paint` on an enlarged one-channel surface in picture coordinates; gives each pixel's share, 0 to 1."""
    width, height = frame.width * OVERSAMPLING, frame.height * OVERSAMPLING
    surface = cairo.ImageSurface(cairo.FORMAT_A8, width, height)
    context = cairo.Context(surface)
    context.scale(OVERSAMPLING, OVERSAMPLING)
    context.set_line_join(cairo.LINE_JOIN_ROUND)
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    context.set_tolerance(0.02)
    paint(context)
    surface.flush()
    data = np.frombuffer(surface.get_data(), np.uint8).reshape(height, surface.get_stride())[:, :width]
    blocks = data.reshape(frame.height, OVERSAMPLING, frame.width, OVERSAMPLING)
    return blocks.mean(axis=(1, 3)) / 255.0


def area(points):
    x, y = points[:, 0], points[:, 1]
    return abs(np.dot(x, np.roll(y, 1)) - np.dot(y, np.roll(x, 1))) / 2


def project_rings(rings, region, frame):
    box = frame.clip_box()
    result = []
    for ring in rings:
        clipped = clip_ring(ring, box)
        if len(clipped) < 3:
            continue
        points = frame.to_pixels(clipped)
        if area(points) >= region.smallest_island:
            result.append(points)
    return result


def fill_rings(rings):
    def paint(context):
        context.set_fill_rule(cairo.FILL_RULE_EVEN_ODD)
        for points in rings:
            context.move_to(*points[0])
            for point in points[1:]:
                context.line_to(*point)
            context.close_path()
        context.fill()
    return paint


def stroke_lines(lines, width, closed=False):
    def paint(context):
        context.set_line_width(width)
        for points in lines:
            context.move_to(*points[0])
            for point in points[1:]:
                context.line_to(*point)
            if closed:
                context.close_path()
        context.stroke()
    return paint


def smooth_outline(points, rounds=2):
    """Chaikin's corner cutting: each round replaces a corner by two points on its sides."""
    for _ in range(rounds):
        after = np.roll(points, -1, axis=0)
        points = np.stack((points * 0.75 + after * 0.25, points * 0.25 + after * 0.75), axis=1).reshape(-1, 2)
    return points


def lake_coverage(region, frame, grow=0.0):
    """Share of inland water; `grow` widens every lake by that many pixels, which gives its shore line."""
    kilometre = frame.scale / 6371.0
    shores = [frame.to_pixels(smooth_outline(np.array(shore))) for shore in lakes.SHORES.values()]
    shores = [shore for shore in shores if area(shore) > 5]

    def paint(context):
        fill_rings(shores)(context)
        if grow:
            stroke_lines(shores, 2 * grow, closed=True)(context)
        for width, *line in lakes.LONG_LAKES.values():
            pixels = width * kilometre
            if pixels > 0.8:
                stroke_lines([frame.to_pixels(np.array(line))], pixels + 2 * grow)(context)
        for centre, east, north in lakes.ROUND_LAKES.values():
            x, y = frame.to_pixels([centre])[0]
            if east * north * kilometre ** 2 > 1.2:
                context.save()
                context.translate(x, y)
                context.scale(east * kilometre + grow, north * kilometre + grow)
                context.arc(0, 0, 1, 0, 2 * np.pi)
                context.restore()
                context.fill()
    return coverage(frame, paint)


def visible_borders(lines, box):
    for line in lines:
        for hidden in UNDRAWN_BORDERS:
            west, south, east, north = hidden
            middle = line.mean(axis=0)
            if west < middle[0] < east and south < middle[1] < north:
                break
        else:
            yield from clip_line(line, box)


def graticule(region, frame):
    west, south, east, north = frame.clip_box(margin=0)
    step = region.graticule
    lines = []
    for longitude in np.arange(np.floor(west / step) * step, east + step, step):
        latitudes = np.linspace(south, north, 100)
        lines.append(frame.to_pixels(np.column_stack((np.full_like(latitudes, longitude), latitudes))))
    for latitude in np.arange(np.floor(south / step) * step, min(north + step, 89), step):
        longitudes = np.linspace(west, east, 200)
        lines.append(frame.to_pixels(np.column_stack((longitudes, np.full_like(longitudes, latitude)))))
    return lines


def blur(values, radius):
    """Gaussian blur that takes the picture's edge as continuing outward, so the glow does not fade there."""
    pad = int(radius * 3)
    padded = np.pad(values, pad, mode="edge")
    image = Image.fromarray((padded * 255).round().astype(np.uint8))
    blurred = np.asarray(image.filter(ImageFilter.GaussianBlur(radius)), dtype=float) / 255.0
    return blurred[pad:-pad, pad:-pad]


def slow_noise(shape, seed):
    """Smooth variation between -1 and 1 in patches of some 40 to 160 pixels."""
    random = np.random.RandomState(seed)  # the legacy generator's sequence is frozen, which keeps the maps repeatable
    total = np.zeros(shape)
    for cells, weight in ((6, 0.6), (12, 0.3), (24, 0.1)):
        grid = random.uniform(0, 255, (cells * 3 // 4, cells)).astype(np.uint8)
        image = Image.fromarray(grid).resize((shape[1], shape[0]), Image.BICUBIC)
        total += weight * (np.asarray(image, dtype=float) / 127.5 - 1)
    return total


def mix(base, colour, share):
    share = np.asarray(share)[..., None]
    return base * (1 - share) + np.asarray(colour, dtype=float) * share


def draw_map(region, style):
    projection = LambertConic(region.centre[0], region.centre[1], *region.parallels)
    frame = MapFrame(projection, region.size, region.centre, region.degrees_wide)
    land_topology = Topology(f"land-{region.detail}.json")
    countries = Topology(f"countries-{region.detail}.json")
    box = frame.clip_box()

    land_rings = project_rings(land_topology.rings("land"), region, frame)
    land = coverage(frame, fill_rings(land_rings))
    shape = land.shape

    near = sum(weight * blur(land, reach) for reach, weight in style.glow)
    near = np.clip(near * 1.6, 0, 1)
    sea = mix(np.broadcast_to(np.array(style.deep, float), shape + (3,)), style.shallow, near)

    _, latitude = frame.degree_grid()
    latitudes = [entry[0] for entry in style.land]
    ground = np.stack([np.interp(latitude, latitudes, [entry[1][channel] for entry in style.land])
                       for channel in range(3)], axis=-1)
    ground = ground + (slow_noise(shape, 7) * style.texture)[..., None] * np.array([1.0, 0.85, 0.55])
    if region.focus:
        focus_rings = project_rings(countries.rings("countries", region.focus), region, frame)
        focus = coverage(frame, fill_rings(focus_rings))
        # The two outlines need not agree to the last point: along the coast the land's own edge decides.
        outside = np.clip(land - focus, 0, 1) / np.maximum(land, 1e-6)
        ground = mix(ground, style.other_land[0], style.other_land[1] * outside)
    rim = np.clip(1 - blur(land, 2.2), 0, 1) * 2
    ground = mix(ground, style.rim[0], np.clip(rim, 0, 1) * style.rim[1])

    grid = coverage(frame, stroke_lines(graticule(region, frame), 0.7))
    sea = mix(sea, style.graticule_sea[0], grid * style.graticule_sea[1])
    ground = mix(ground, style.graticule_land[0], grid * style.graticule_land[1])

    picture = sea * (1 - land[..., None]) + ground * land[..., None]

    borders = countries.borders("countries")
    border_lines = [frame.to_pixels(run) for run in visible_borders(borders, box)]
    border = coverage(frame, stroke_lines(border_lines, style.border_width))
    picture = mix(picture, style.border[0], border * style.border[1])
    coast = coverage(frame, stroke_lines(land_rings, style.coast_width, closed=True))
    picture = mix(picture, style.coast[0], coast * style.coast[1])
    lake = lake_coverage(region, frame)
    shore = np.clip(lake_coverage(region, frame, grow=style.coast_width / 2) - lake, 0, 1)
    picture = mix(picture, style.shallow, lake)
    picture = mix(picture, style.coast[0], shore * style.coast[1])
    return Image.fromarray(np.clip(picture + 0.5, 0, 255).astype(np.uint8), "RGB")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", default=os.path.join(REPOSITORY, "content", "Maps"))
    parser.add_argument("--region", choices=sorted(REGIONS), help="draw one picture of this region instead")
    parser.add_argument("--style", choices=sorted(STYLES), default="natural")
    arguments = parser.parse_args()
    os.makedirs(arguments.output, exist_ok=True)
    chosen = MAPS
    if arguments.region:
        chosen = {f"{arguments.region}-{arguments.style}.jpg": (arguments.region, arguments.style)}
    for name, (region, style) in chosen.items():
        path = os.path.join(arguments.output, name)
        draw_map(REGIONS[region], STYLES[style]).save(path, **JPEG)
        print(path)


if __name__ == "__main__":
    main()
