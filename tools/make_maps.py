#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the base maps in content/Maps: the regions and styles of regions.py.

A further map is one entry in REGIONS, a further look one entry in STYLES, and the pair one line in MAPS.
"""

import argparse
import os

import cairo
import numpy as np
from PIL import Image, ImageFilter

import ground
import lakes
from geo import REPOSITORY, MapFrame, Topology, clip_line, clip_ring, densify, turns
from regions import MAPS, REGIONS, STYLES, UNDRAWN_BORDERS

OVERSAMPLING = 4
JPEG = {"format": "JPEG", "quality": 92, "subsampling": 0, "optimize": True}
STEP = 0.5  # degrees between the points of a line that is drawn


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


def inside_rings(rings, region, frame):
    """Closed outlines in pixels, for filling."""
    box = frame.clip_box()
    for whole in rings:
        for ring in turns(whole, box):
            clipped = clip_ring(ring, box)
            if len(clipped) >= 3:
                points = frame.to_pixels(densify(np.concatenate((clipped, clipped[:1])), STEP))
                if area(points) >= region.smallest_island:
                    yield points


def coast_lines(rings, region, frame):
    """The outlines' shores in pixels, as open runs near the picture."""
    box = frame.clip_box()
    for whole in rings:
        for ring in turns(np.concatenate((whole, whole[:1])), box):
            if area(frame.to_pixels(ring)) >= region.smallest_island:
                for piece in clip_line(densify(ring, STEP), box):
                    yield frame.to_pixels(piece)


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


def holds(ring, point):
    """Whether a ring goes around a point."""
    x, y = (ring - point).T
    after_x, after_y = np.roll(x, -1), np.roll(y, -1)
    crossing = (y > 0) != (after_y > 0)
    at = x + (after_x - x) * -y / np.where(crossing, after_y - y, 1)
    return bool(np.count_nonzero(crossing & (at > 0)) % 2)


def lake_shapes(waters, region, frame):
    """Shores in pixels: by hand where they are, for those are finer, and otherwise from the data."""
    kilometre = frame.scale / ground.EARTH_RADIUS
    box = frame.clip_box(margin=0)
    by_hand = [np.array(shore) for shore in lakes.SHORES.values()] if region.detail == "10m" else []
    middles = [shore.mean(axis=0) for shore in by_hand]
    shores = [frame.to_pixels(smooth_outline(shore)) for shore in by_hand]
    from_data = [ring for whole in waters.rings("lakes") for ring in turns(whole, box)]
    known = []
    for ring in from_data:
        known.append(ring)
        if not any(holds(ring, middle) for middle in middles):
            shores.append(frame.to_pixels(smooth_outline(ring)))
    if region.detail != "10m":
        for shore in (np.array(shore) for shore in lakes.SHORES.values()):
            if not any(holds(ring, shore.mean(axis=0)) for ring in known):
                shores.append(frame.to_pixels(smooth_outline(shore)))
    for centre, east, north in lakes.ROUND_LAKES.values():
        if not any(holds(ring, centre) for ring in known):
            turn = np.linspace(0, 2 * np.pi, 40)[:-1]
            middle = frame.to_pixels([centre])[0]
            shores.append(middle + np.column_stack((np.cos(turn) * east, np.sin(turn) * north)) * kilometre)
    return [shore for shore in shores if area(shore) > 4]


def lake_coverage(shores, frame, grow=0.0):
    """Share of inland water; `grow` widens every lake by that many pixels, which gives its shore line."""
    kilometre = frame.scale / ground.EARTH_RADIUS

    def paint(context):
        fill_rings(shores)(context)
        if grow:
            stroke_lines(shores, 2 * grow, closed=True)(context)
        for width, *line in lakes.LONG_LAKES.values():
            pixels = width * kilometre
            if pixels > 0.8:
                stroke_lines([frame.to_pixels(np.array(line))], pixels + 2 * grow)(context)
    return coverage(frame, paint)


def visible_lines(lines, frame):
    """Borders or rivers in pixels, without those that are not to be seen."""
    box = frame.clip_box()
    for line in lines:
        middle = line.mean(axis=0)
        if any(west < middle[0] < east and south < middle[1] < north for west, south, east, north in UNDRAWN_BORDERS):
            continue
        for turned in turns(line, box):
            for run in clip_line(densify(turned, STEP), box):
                yield frame.to_pixels(run)


def graticule(region, frame):
    west, south, east, north = frame.clip_box(margin=0)
    step = region.graticule
    lines = []
    for longitude in np.arange(np.floor(west / step) * step, east + step, step):
        latitudes = np.linspace(max(south, -89), min(north, 89), 200)
        lines.append(frame.to_pixels(np.column_stack((np.full_like(latitudes, longitude), latitudes))))
    for latitude in np.arange(np.floor(south / step) * step, min(north + step, 89), step):
        longitudes = np.linspace(west, east, 400)
        lines.append(frame.to_pixels(np.column_stack((longitudes, np.full_like(longitudes, latitude)))))
    return lines


def blur(values, radius):
    """Gaussian blur that takes the picture's edge as continuing outward, so the glow does not fade there."""
    pad = int(radius * 3)
    padded = np.pad(values, pad, mode="edge")
    image = Image.fromarray((padded * 255).round().astype(np.uint8))
    blurred = np.asarray(image.filter(ImageFilter.GaussianBlur(radius)), dtype=float) / 255.0
    return blurred[pad:-pad, pad:-pad]


def mix(base, colour, share):
    share = np.asarray(share)[..., None]
    return base * (1 - share) + np.asarray(colour, dtype=float) * share


def land_colours(region, style, frame, land, countries):
    longitude, latitude = frame.degree_grid()
    from_equator = [entry[0] for entry in style.land]
    picture = np.stack([np.interp(np.abs(latitude), from_equator, [entry[1][channel] for entry in style.land])
                        for channel in range(3)], axis=-1)
    for kind, share in ground.climates(longitude, latitude):
        if kind in style.climate:
            colour, most = style.climate[kind]
            picture = mix(picture, colour, share * most)
    variation = ground.slow_noise(land.shape, 7) * style.texture
    picture = picture + variation[..., None] * np.array([1.0, 0.85, 0.55])
    mountains, light = ground.relief(frame)
    picture = mix(picture, style.rock[0], mountains * style.rock[1])
    if region.focus:
        rings = list(inside_rings(countries.rings("countries", region.focus), region, frame))
        focus = coverage(frame, fill_rings(rings))
        # The two outlines need not agree to the last point: along the coast the land's own edge decides.
        outside = np.clip(land - focus, 0, 1) / np.maximum(land, 1e-6)
        picture = mix(picture, style.other_land[0], style.other_land[1] * outside)
    picture = picture + (light * style.relief)[..., None]
    rim = np.clip((1 - blur(land, 2.2)) * 2, 0, 1)
    return mix(picture, style.rim[0], rim * style.rim[1])


def sea_colours(style, land):
    near = sum(weight * blur(land, reach) for reach, weight in style.glow)
    near = np.clip(near * 1.6, 0, 1)
    return mix(np.broadcast_to(np.array(style.deep, float), land.shape + (3,)), style.shallow, near)


def draw_lines(picture, region, style, frame, coast, countries, waters):
    """Rivers, borders, the coast and lakes, from the bottom up."""
    def stroke(lines, width, ink):
        return mix(picture, ink[0], coverage(frame, stroke_lines(list(lines), width)) * ink[1])

    if region.rivers:
        picture = stroke(visible_lines(waters.lines("rivers"), frame), region.rivers, style.river)
    if region.states:
        inner = waters.borders("subunits", lambda properties: properties["gu"] in region.states)
        picture = stroke(visible_lines(inner, frame), style.border_width, style.state)
    picture = stroke(visible_lines(countries.borders("countries"), frame), style.border_width, style.border)
    picture = stroke(coast, style.coast_width, style.coast)
    shapes = lake_shapes(waters, region, frame)
    lake = lake_coverage(shapes, frame)
    shore = np.clip(lake_coverage(shapes, frame, grow=style.coast_width / 2) - lake, 0, 1)
    picture = mix(picture, style.shallow, lake)
    return mix(picture, style.coast[0], shore * style.coast[1])


def draw_map(region, style):
    frame = MapFrame(region.projection(), region.size, region.centre, region.degrees_wide)
    countries = Topology(f"countries-{region.detail}.json")
    waters = Topology("waters-50m.json")
    outlines = Topology(f"land-{region.detail}.json").rings("land")
    land = coverage(frame, fill_rings(list(inside_rings(outlines, region, frame))))

    sea = sea_colours(style, land)
    soil = land_colours(region, style, frame, land, countries)
    grid = coverage(frame, stroke_lines(graticule(region, frame), 0.7))
    sea = mix(sea, style.graticule_sea[0], grid * style.graticule_sea[1])
    soil = mix(soil, style.graticule_land[0], grid * style.graticule_land[1])
    picture = sea * (1 - land[..., None]) + soil * land[..., None]
    picture = draw_lines(picture, region, style, frame, list(coast_lines(outlines, region, frame)), countries, waters)
    return Image.fromarray(np.clip(picture + 0.5, 0, 255).astype(np.uint8), "RGB")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", default=os.path.join(REPOSITORY, "content", "Maps"))
    parser.add_argument("--region", choices=sorted(REGIONS), help="draw one picture of this region instead")
    parser.add_argument("--style", choices=sorted(STYLES), default="natural")
    parser.add_argument("names", nargs="*", help="draw only these shipped maps, without .jpg")
    arguments = parser.parse_args()
    os.makedirs(arguments.output, exist_ok=True)
    chosen = {name: pair for name, pair in MAPS.items() if not arguments.names or name[:-4] in arguments.names}
    if arguments.region:
        chosen = {f"{arguments.region}-{arguments.style}.jpg": (arguments.region, arguments.style)}
    for name, (region, style) in chosen.items():
        path = os.path.join(arguments.output, name)
        draw_map(REGIONS[region], STYLES[style]).save(path, **JPEG)
        print(path)


if __name__ == "__main__":
    main()
