# SPDX-License-Identifier: GPL-3.0-or-later
"""Where every element of a page stands, worked out from the project: boxes as a browser gives them, with borders."""

from typing import NamedTuple, Optional

from program import BUTTONS, EXTENDED, SLIDER

LEFT = 20
FRAME = 2           # a map's border of one pixel on both sides
GAP = 2             # between two buttons
ARROW = 16          # also the least that a browser gives a button: its padding and borders
BUTTON_HEIGHT = 20


class Box(NamedTuple):
    left: float
    top: float
    width: float
    height: Optional[float]     # None: as its text needs


def outer(size):
    return size + FRAME


def top(page):
    return 140 if page.project.has_titles or page.type == EXTENDED else 25


def stride(page):
    """The distance between two Frames of an extended view."""
    return outer(page.project.height) + 140


def boxes(page, window_width):
    """Boxes of everything that belongs to a Frame; the headings' widths go with the window's."""
    found = {}
    for number, frame in enumerate(page.project.frames, 1):
        offset = (number - 1) * stride(page) if page.type == EXTENDED else 0
        origin = offset + top(page)
        found[f"map_{number}"] = Box(LEFT, origin, outer(page.project.width), outer(page.project.height))
        if page.project.has_titles:
            above = offset + (20 if page.type == EXTENDED else 10)
            title_width = window_width * (0.9 if page.type == SLIDER else 1)
            found[f"title_{number}"] = Box(LEFT, above, title_width, None)
            found[f"subtitle_{number}"] = Box(LEFT, above + 60, window_width, None)
        if page.shows_text:
            found[f"textForecast_{number}"] = _text_box(page, frame, origin)
        for i, sprite in enumerate(frame.sprites):
            edge = FRAME if getattr(sprite, "border", False) else 0
            found[f"sprite_{page.project.first_sprite(number) + i}"] = Box(
                LEFT + sprite.left, origin + sprite.top, sprite.width + edge, sprite.height + edge)
    return found


def _text_box(page, frame, origin):
    edge = FRAME if frame.border else 0
    taller = 25 if page.type in (BUTTONS, SLIDER) else 0
    return Box(page.project.width + 40, origin, page.project.width + edge, page.project.height + taller + edge)


def strip(page, first=1):
    """The visible buttons under a map, those of the Frames beginning with the given one."""
    count, whole = page.frame_count, outer(page.project.width)
    above = top(page) + outer(page.project.height) + 10
    if count < 2:
        return {}
    if count <= 3:
        width = round((whole - (count - 1) * GAP) / count)
        left = [LEFT + i * (width + GAP) for i in range(count)]
        found = {f"btn_{i + 1}": Box(left[i], above, width, BUTTON_HEIGHT) for i in range(count - 1)}
        rest = whole - (count - 1) * (width + GAP)
        found[f"btn_{count}"] = Box(left[-1], above, rest, BUTTON_HEIGHT)
        return found
    width = round((whole - 2 * ARROW - 4 * GAP) / 3)
    start = LEFT + ARROW + GAP
    found = {f"btn_{first + i}": Box(start + i * (width + GAP), above, width, BUTTON_HEIGHT) for i in range(3)}
    found["btnLeft"] = Box(LEFT, above, ARROW, BUTTON_HEIGHT)
    found["btnRight"] = Box(
        start + 3 * (width + GAP), above, max(whole - 3 * width - 4 * GAP - ARROW, ARROW), BUTTON_HEIGHT)
    return found
