# SPDX-License-Identifier: GPL-3.0-or-later
"""The collection "barbs": wind barbs by 5 knots in sixteen directions, as charts of the north have them, 48 x 48.

The staff points to where the wind comes from, the feathers to the side of lower pressure: clockwise. A half feather
stands for 5 knots, a whole one for 10, a pennant for 50.
"""

import math

from ink import colour

SIDE = 48
FASTEST = 75
DIRECTIONS = ("n", "nne", "ne", "ene", "e", "ese", "se", "sse", "s", "ssw", "sw", "wsw", "w", "wnw", "nw", "nnw")
INK, HALO = colour("16263a"), colour("ffffff")
WEIGHT, RIM = 2.3, 1.25
STATION, END = 17.0, -20.0       # of the staff, before it is turned
REACH, RISE, STEP = 11.5, 4.2, 4.7  # of a whole feather, and from one to the next


def feathers(knots):
    """Strokes and pennants from the staff's end inwards, as lists of points."""
    strokes, pennants = [], []
    pennant, whole, half = knots // 50, knots % 50 // 10, knots % 10 // 5
    y = END
    for _ in range(pennant):
        pennants.append(((0, y), (REACH, y - 0.6), (0, y + 6.4)))
        y += 7.2
    if pennant:
        y += 2.4
    for _ in range(whole):
        strokes.append(((0, y), (REACH, y - RISE)))
        y += STEP
    if half:
        # Alone it would be taken for a whole one whose staff is cut off.
        y += 0 if whole or pennant else STEP
        strokes.append(((0, y), (REACH / 2, y - RISE / 2)))
    return strokes, pennants


def barb(knots, turn):
    strokes, pennants = feathers(knots)

    def path(c):
        c.move_to(0, STATION)
        c.line_to(0, END)
        for start, end in strokes:
            c.move_to(*start)
            c.line_to(*end)
        for points in pennants:
            c.move_to(*points[0])
            for point in points[1:]:
                c.line_to(*point)
            c.close_path()

    def paint(context, t):
        # The middle of what is seen stays in the middle of the field: feathers stand on one side alone.
        context.translate(SIDE / 2, SIDE / 2)
        context.rotate(math.radians(turn))
        context.translate(-REACH * 0.28, 1.5)
        for ink, extra in ((HALO, 2 * RIM), (INK, 0)):
            context.set_source_rgba(*ink)
            context.new_path()
            context.arc(0, STATION, 3.0 + extra / 2, 0, 2 * math.pi)
            context.fill()
            path(context)
            context.set_line_width(WEIGHT + extra)
            context.stroke_preserve()
            context.new_path()
            for points in pennants:
                for point in points:
                    context.line_to(*point)
                context.close_path()
            context.fill()
    return paint


def calm(context, t):
    """A ring around the station: no wind that could be told."""
    for ink, extra in ((HALO, 2 * RIM), (INK, 0)):
        context.set_source_rgba(*ink)
        context.new_path()
        context.arc(SIDE / 2, SIDE / 2, 8.5, 0, 2 * math.pi)
        context.set_line_width(WEIGHT + extra)
        context.stroke()
        context.arc(SIDE / 2, SIDE / 2, 3.0 + extra / 2, 0, 2 * math.pi)
        context.fill()


TABLE = {"barb-00-calm": (calm, 1, 10, 12)}
TABLE.update({f"barb-{knots:02}-{name}": (barb(knots, number * 22.5), 1, 10, 12)
              for knots in range(5, FASTEST + 1, 5) for number, name in enumerate(DIRECTIONS)})
