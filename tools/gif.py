# SPDX-License-Identifier: GPL-3.0-or-later
"""Writing small animated GIF files with clean edges.

Pictures come in as arrays of shape (height, width, 4): premultiplied red, green, blue and alpha as floats 0 to 1.
The files loop for ever, have one palette, and each image but the first holds only what changed.
"""

import struct

import numpy as np

MATTE = np.array([172, 190, 198]) / 255   # between the usual map's land and sea, a little darker than both
MATTE_SHARE = 0.55
TRANSPARENT = 0   # palette index 0 is the transparent one in every file


def flatten(picture):
    """One bit of transparency: (colours 0-255, opaque mask).

    A pixel that is about half covered becomes opaque in its own colour. Since every shape is drawn with an outline, that
    colour is the outline's; the less of the pixel is covered, the more of MATTE it takes. So steps look softer on the
    usual light maps, and on dark ones no bright fringe shows.
    """
    alpha = picture[..., 3]
    opaque = alpha >= 0.46
    colours = picture[..., :3] / np.maximum(alpha, 1e-6)[..., None]
    share = np.where(opaque, MATTE_SHARE * (1 - alpha), 0)[..., None]
    colours = colours * (1 - share) + MATTE * share
    return np.clip(np.rint(colours * 255), 0, 255).astype(np.int32), opaque


def make_palette(frames, size):
    """A palette of at most `size` colours for all frames together, by k-means from a fixed start."""
    pixels = np.concatenate([colours[opaque] for colours, opaque in frames])
    unique, counts = np.unique(pixels, axis=0, return_counts=True)
    if len(unique) <= size:
        return unique
    # Root weights keep small bright features (a flash, a drop's light) from being outvoted by broad areas.
    weights = np.sqrt(counts.astype(float))
    unique = unique.astype(float)
    centres = [unique[np.argmax(weights)]]
    distance = ((unique - centres[0]) ** 2).sum(axis=1)
    while len(centres) < size:
        centres.append(unique[np.argmax(distance * weights)])
        distance = np.minimum(distance, ((unique - centres[-1]) ** 2).sum(axis=1))
    centres = np.array(centres)
    for _ in range(12):
        nearest = nearest_index(unique, centres)
        for index in range(size):
            mine = nearest == index
            if mine.any():
                centres[index] = np.average(unique[mine], axis=0, weights=weights[mine])
    return np.unique(np.rint(centres).astype(np.int32), axis=0)


def nearest_index(colours, palette):
    colours = np.asarray(colours, dtype=float)
    palette = np.asarray(palette, dtype=float)
    result = np.empty(len(colours), dtype=np.int32)
    for start in range(0, len(colours), 4096):
        part = colours[start:start + 4096]
        # Green weighs most and blue least, roughly as the eye does.
        difference = (part[:, None, :] - palette[None, :, :]) ** 2 * np.array([0.9, 1.4, 0.7])
        result[start:start + 4096] = difference.sum(axis=2).argmin(axis=1)
    return result


def lzw(indices, code_size):
    """GIF's variable-length LZW, packed into sub-blocks."""
    clear, end = 1 << code_size, (1 << code_size) + 1
    buffer, bits, output = 0, 0, bytearray()
    width = code_size + 1
    table = {}
    following = end + 1

    def put(code):
        nonlocal buffer, bits
        buffer |= code << bits
        bits += width
        while bits >= 8:
            output.append(buffer & 255)
            buffer >>= 8
            bits -= 8

    put(clear)
    prefix = int(indices[0])
    for value in indices[1:]:
        value = int(value)
        key = (prefix, value)
        if key in table:
            prefix = table[key]
            continue
        put(prefix)
        if following < 4096:
            table[key] = following
            following += 1
            if following - 1 == 1 << width and width < 12:
                width += 1
        else:
            put(clear)
            table.clear()
            width = code_size + 1
            following = end + 1
        prefix = value
    put(prefix)
    put(end)
    if bits:
        output.append(buffer & 255)
    blocks = bytearray()
    for start in range(0, len(output), 255):
        part = output[start:start + 255]
        blocks.append(len(part))
        blocks += part
    blocks.append(0)
    return bytes(blocks)


def bounds(mask):
    rows, columns = np.flatnonzero(mask.any(axis=1)), np.flatnonzero(mask.any(axis=0))
    if len(rows) == 0:
        return 0, 0, 1, 1
    return columns[0], rows[0], columns[-1] + 1, rows[-1] + 1


def encode(pictures, delay, colours=64):
    """The bytes of a GIF that shows `pictures` in turn, each for `delay` hundredths of a second."""
    frames = [flatten(picture) for picture in pictures]
    palette = make_palette(frames, colours)
    height, width = frames[0][1].shape
    depth = max(2, int(np.ceil(np.log2(len(palette) + 1))))
    indexed = []
    for colour, opaque in frames:
        image = np.zeros((height, width), dtype=np.int32)
        image[opaque] = nearest_index(colour[opaque], palette) + 1
        indexed.append(image)

    # Equal neighbours become one image that stays longer.
    images, delays = [indexed[0]], [delay]
    for image in indexed[1:]:
        if np.array_equal(image, images[-1]):
            delays[-1] += delay
        else:
            images.append(image)
            delays.append(delay)

    data = bytearray(b"GIF89a")
    data += struct.pack("<HHBBB", width, height, 0x80 | 0x70 | (depth - 1), TRANSPARENT, 0)
    table = np.zeros((1 << depth, 3), dtype=np.uint8)
    table[0] = 255
    table[1:len(palette) + 1] = palette
    data += table.tobytes()
    data += b"\x21\xff\x0bNETSCAPE2.0\x03\x01\x00\x00\x00"

    canvas = np.zeros((height, width), dtype=np.int32)
    last = len(images) - 1
    for number, image in enumerate(images):
        changed = image != canvas
        if number == 0 or number == last:
            # The last image covers and clears everything, so viewers that do not wipe between rounds start clean.
            left, top, right, bottom = 0, 0, width, height
            disposal = 2 if number == last and last > 0 else 1
        else:
            left, top, right, bottom = bounds(changed)
            disposal = 1
        if number < last:
            cleared = (images[number + 1] == TRANSPARENT) & (image != TRANSPARENT)
            if cleared.any():
                disposal = 2
                area = bounds(cleared)
                left, top = min(left, area[0]), min(top, area[1])
                right, bottom = max(right, area[2]), max(bottom, area[3])
        part = np.where(changed, image, TRANSPARENT)[top:bottom, left:right]
        # Every image names the transparent index: without it some readers fill what is disposed of with a colour.
        data += struct.pack("<BBBBHBB", 0x21, 0xF9, 4, disposal << 2 | 1, delays[number], TRANSPARENT, 0)
        data += struct.pack("<BHHHHB", 0x2C, left, top, right - left, bottom - top, 0)
        data.append(depth)
        data += lzw(part.ravel(), depth)
        canvas = image.copy()
        if disposal == 2:
            canvas[top:bottom, left:right] = TRANSPARENT
    data += b"\x3b"
    return bytes(data)
