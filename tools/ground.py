# SPDX-License-Identifier: GPL-3.0-or-later
"""The land's own look on a map: slow variation, climates, and mountains in a light from the top left.

Everything here is an array of the picture's shape, made from `terrain` and from noise of a fixed seed.
"""

import cairo
import numpy as np
from PIL import Image, ImageFilter

import terrain

EARTH_RADIUS = 6371.0  # kilometres
DEGREE = 111.2         # kilometres
DETAIL = 2             # mountains are drawn at this fraction of the picture's size before they are blurred


def noise(shape, cell, seed):
    """Smooth variation between -1 and 1 in patches of `cell` pixels."""
    random = np.random.RandomState(seed)  # the legacy generator's sequence is frozen, which keeps the maps repeatable
    rows, columns = int(np.ceil(shape[0] / cell)) + 2, int(np.ceil(shape[1] / cell)) + 2
    grid = random.uniform(-1, 1, (rows, columns)).astype(np.float32)
    size = (int(round(columns * cell)), int(round(rows * cell)))
    image = Image.fromarray(grid, "F").resize(size, Image.BICUBIC)
    return np.clip(np.asarray(image, dtype=float)[:shape[0], :shape[1]], -1, 1)


def slow_noise(shape, seed):
    return sum(weight * noise(shape, cell, seed + cell) for cell, weight in ((133, 0.6), (66, 0.3), (33, 0.1)))


def crests(shape, cell, seed):
    """Noise with sharp ridges, 0 to 1, in ranges of some `cell` pixels."""
    total = 0
    for octave, weight in enumerate((0.42, 0.30, 0.18, 0.10)):
        total = total + weight * (1 - 2 * np.abs(noise(shape, max(cell / 1.7 ** octave, 3), seed + octave)))
    return np.clip(total * 0.5 + 0.5, 0, 1)


def breadths(ridges, kilometre):
    """Ridges by their breadth in pixels, in steps of a half: those of one step share a drawing and a blur."""
    groups = {}
    for width, height, *line in ridges:
        pixels = width * kilometre
        groups.setdefault(round(np.log(pixels) / np.log(1.5)), []).append((pixels, height, line))
    return groups


def mountain_mask(frame):
    """How mountainous each pixel is, 0 to 1."""
    west, south, east, north = frame.clip_box()
    kilometre = frame.scale / EARTH_RADIUS
    mask = np.zeros((frame.height, frame.width))
    near = []
    for width, height, *line in terrain.RIDGES:
        points = np.array(line)
        for turn in (-360, 0, 360):
            middle = points.mean(axis=0) + (turn, 0)
            if west - 15 < middle[0] < east + 15 and south - 10 < middle[1] < north + 10:
                near.append((width, height, *(points + (turn, 0))))
    for step, group in sorted(breadths(near, kilometre).items()):
        width, height = frame.width // DETAIL, frame.height // DETAIL
        surface = cairo.ImageSurface(cairo.FORMAT_A8, width, height)
        context = cairo.Context(surface)
        context.scale(1 / DETAIL, 1 / DETAIL)
        context.set_line_cap(cairo.LINE_CAP_ROUND)
        context.set_line_join(cairo.LINE_JOIN_ROUND)
        for pixels, top, line in group:
            for point in frame.to_pixels(line):
                context.line_to(*point)
            context.set_line_width(pixels)
            context.set_source_rgba(0, 0, 0, top)
            context.stroke()
        surface.flush()
        data = np.frombuffer(surface.get_data(), np.uint8).reshape(height, surface.get_stride())[:, :width]
        image = Image.fromarray(data.copy()).filter(ImageFilter.GaussianBlur(0.30 * 1.5 ** step / DETAIL))
        image = image.resize((frame.width, frame.height), Image.BICUBIC)
        mask = np.maximum(mask, np.asarray(image, dtype=float) / 255)
    return mask


def warped(values, reach, cell, seed):
    """The values with every pixel taken from up to `reach` pixels away, which frays what was drawn smooth."""
    rows, columns = np.mgrid[0:values.shape[0], 0:values.shape[1]]
    down, right = (np.rint(noise(values.shape, cell, seed + i) * reach).astype(int) for i in (0, 1))
    return values[np.clip(rows + down, 0, values.shape[0] - 1), np.clip(columns + right, 0, values.shape[1] - 1)]


def relief(frame, seed=11):
    """(height 0 to 1, light -1 to 1): mountains and how their slopes take the light."""
    cell = float(np.clip(38 * frame.scale / EARTH_RADIUS, 8, 24))
    mask = warped(mountain_mask(frame), cell * 0.8, cell * 1.3, seed + 40)
    smooth = Image.fromarray((mask * 255).astype(np.uint8)).filter(ImageFilter.GaussianBlur(cell / 8))
    mask = np.asarray(smooth, dtype=float) / 255
    peaks = crests(mask.shape, cell, seed)
    down, right = np.gradient(mask)
    # The range as a whole throws little light: it would look like a rope laid on the map.
    slope = 0.45 * (down + right) * (0.4 + peaks)
    down, right = np.gradient(peaks)
    slope = slope + mask * 0.62 * (down + right)
    return mask * (0.6 + 0.4 * peaks), np.tanh(slope * 5)


def climates(longitude, latitude):
    """Pairs (kind, share 0 to 1) over the picture's degrees."""
    ragged = 1 + 0.55 * slow_noise(longitude.shape, 5)
    shares = {}
    for kind, centre, east, north, strength in terrain.CLIMATES:
        across = (longitude - centre[0] + 180) % 360 - 180
        distance = ((across * np.cos(np.radians(latitude)) * DEGREE / east) ** 2 +
                    ((latitude - centre[1]) * DEGREE / north) ** 2) * ragged
        if distance.min() > 3:
            continue
        share = strength * np.exp(-0.9 * np.maximum(distance, 0) ** 1.6)
        shares[kind] = np.maximum(shares.get(kind, 0), share)
    return sorted(shares.items())
