# SPDX-License-Identifier: GPL-3.0-or-later
"""The collection "fronts": pressure systems, fronts, storms of the tropics, air masses.

Fronts are named after the side to which they move, air masses after the side that they come from, as winds are.
"""

import math

import cairo

from ink import colour, halo, lettering, outlined, ribbon, vertical, wave
from draw_wind import SIDES

HIGH = (colour("7ab6ff"), colour("2560c8"), colour("0f2f6e"))
LOW = (colour("ff9a8a"), colour("d3262e"), colour("6c0d14"))
COLD = (colour("3f83ee"), colour("0f3380"))
WARM = (colour("ee4a45"), colour("7c1014"))
OCCLUDED = (colour("bf5ce0"), colour("521263"))
TROUGH = (colour("c98a3a"), colour("6b3f0c"))
SQUALL = (colour("e0383a"), colour("5c0a10"))
COLD_AIR = (colour("d6ecff"), colour("2f7fdf"), colour("113f80"))
WARM_AIR = (colour("ffe9c9"), colour("ee5a32"), colour("7c1f0c"))


# Pressure systems -----------------------------------------------------------------------------------------------------

def letter(text, tones, turning=0, trend=0):
    """A pressure centre. `turning` 1 lets air circle clockwise around it, -1 the other way; `trend` adds an arrow."""
    light, dark, line = tones

    def paint(context, t):
        if turning:
            for number in range(3):
                angle = 2 * math.pi * (number + turning * t) / 3 - 0.9
                circle_arrow(context, 32, 32, 25.5, angle, 1.45 * turning, tones)
            lettering(context, text, 32, 32, 25, vertical(-12, 12, light, dark), (1, 1, 1, 1), 2.6)
            lettering(context, text, 32, 32, 25, vertical(-12, 12, light, dark), line, 1.2)
            return
        x, points = (24, 37) if trend else (32, 46)
        lettering(context, text, x, 32, points, vertical(-points * 0.5, points * 0.5, light, dark), line, 1.5)
        if trend:
            rise = 2.2 * wave(t) * -trend

            def arrow(c):
                for px, py in ((0, -16), (9, -4), (3.6, -4), (3.6, 15), (-3.6, 15), (-3.6, -4), (-9, -4)):
                    c.line_to(51 + px, 32 + rise - trend * -py)
                c.close_path()
            outlined(context, arrow, vertical(14, 50, light, dark), line, 1.3)
    return paint


def circle_arrow(context, x, y, radius, start, sweep, tones):
    end = start + sweep
    arc = (lambda c: c.arc(x, y, radius, start, end)) if sweep > 0 else (lambda c: c.arc_negative(x, y, radius, start, end))
    ribbon(context, arc, 3.4, tones[0], tones[2], 1.1)
    side = 1 if sweep > 0 else -1

    def tip(c):
        for along, across in ((0.34, 0), (-0.06, 5.4), (-0.06, -5.4)):
            angle = end + side * along
            c.line_to(x + (radius + across) * math.cos(angle), y + (radius + across) * math.sin(angle))
        c.close_path()
    outlined(context, tip, tones[0], tones[2], 1.1)


# Fronts ---------------------------------------------------------------------------------------------------------------

RADIUS = 62.0   # of a front's line, which bulges towards its movement
REACH = 27.0    # half its length, degrees of that circle
MARKS = (-16.0, 0.0, 16.0)


def on_line(degrees, lift=0.0):
    angle = math.radians(degrees)
    return (RADIUS + lift) * math.sin(angle), RADIUS - (RADIUS + lift) * math.cos(angle)


def line(first, last):
    def path(c):
        c.arc(0, RADIUS, RADIUS, math.radians(first - 90), math.radians(last - 90))
    return path


def triangle(at, size=6.6, side=1):
    def path(c):
        half = math.degrees(size / RADIUS)
        c.move_to(*on_line(at - half, 0.8 * side))
        c.line_to(*on_line(at, side * size * 1.6))
        c.line_to(*on_line(at + half, 0.8 * side))
        c.close_path()
    return path


def half_circle(at, size=6.6, side=1):
    def path(c):
        c.save()
        c.translate(*on_line(at))
        c.rotate(math.radians(at) + (0 if side > 0 else math.pi))
        c.arc(0, 0, size, math.pi, 0)
        c.close_path()
        c.restore()
    return path


def front(kind, towards):
    """A piece of a front that moves `towards` degrees clockwise from north, and sways a little that way."""
    def paint(context, t):
        context.translate(32, 32)
        context.rotate(math.radians(towards))
        context.translate(0, 3 - (0 if kind == "stationary" else 2.6 * wave(t)))
        if kind == "stationary":
            # Below the line only what stands out from it is seen, so that mark is the larger one.
            marks = [(triangle(-18), COLD), (half_circle(0, 8.0, side=-1), WARM), (triangle(18), COLD)]
            pieces = [(line(-REACH, -9), COLD), (line(9, REACH), COLD), (line(-9, 9), WARM)]
        else:
            shape = {"cold": (triangle,) * 3, "warm": (half_circle,) * 3,
                     "occluded": (triangle, half_circle, triangle)}[kind]
            ink = {"cold": COLD, "warm": WARM, "occluded": OCCLUDED}[kind]
            marks = [(make(at), ink) for make, at in zip(shape, MARKS)]
            pieces = [(line(-REACH, REACH), ink)]
        if kind == "occluded":
            for path, _ in marks:
                halo(context, path, 2 * 2.3)
            for path, _ in pieces:
                halo(context, path, 4.0 + 2 * 2.3)
        for path, ink in marks:
            outlined(context, path, ink[0], ink[1], 1.25)
        for path, ink in pieces:
            ribbon(context, path, 4.0, ink[0], ink[1], 1.25)
        for path, ink in marks:  # the mark and its line are one body: no outline runs between them
            context.new_path()
            path(context)
            context.set_source_rgba(*ink[0])
            context.fill()
    return paint


def still_front(towards):
    """A stationary front hardly moves: its two colours glow in turn."""
    body = front("stationary", towards)

    def paint(context, t):
        body(context, 0.0)
        context.identity_matrix()
        context.scale(4, 4)
        context.translate(32, 32)
        context.rotate(math.radians(towards))
        context.translate(0, 3)
        at = 22 * math.sin(2 * math.pi * t)
        ribbon(context, line(at - 3, at + 3), 1.8, (1, 1, 1, 0.95), (1, 1, 1, 0), 0)
    return paint


def trough(turn):
    def paint(context, t):
        context.translate(32, 32)
        context.rotate(math.radians(turn))
        for number in range(-3, 3):
            y = 14.5 * (number + t) - 7.25
            half = 4.0 * min(1.0, max(0.0, (31 - abs(y)) / 8))
            if half > 1:
                ribbon(context, lambda c: (c.move_to(0, y - half), c.line_to(0, y + half)), 4.0, TROUGH[0], TROUGH[1], 1.2)
    return paint


def squall_line(turn):
    """Dashes with two dots between, as charts have them, that run along."""
    def paint(context, t):
        context.translate(32, 32)
        context.rotate(math.radians(turn))
        for number in range(-2, 3):
            start = 32.0 * (number + t) - 16.0
            for first, last in ((0.0, 9.0), (16.7, 16.8), (24.4, 24.5)):
                # What leaves at one end and comes in at the other grows out of nothing.
                y1, y2 = max(start + first, -27.0), min(start + last, 27.0)
                if y2 >= y1:
                    def piece(c):
                        c.move_to(0, y1)
                        c.line_to(0, y2)
                    halo(context, piece, 4.4 + 2 * 2.1)
        for number in range(-2, 3):
            start = 32.0 * (number + t) - 16.0
            for first, last in ((0.0, 9.0), (16.7, 16.8), (24.4, 24.5)):
                y1, y2 = max(start + first, -27.0), min(start + last, 27.0)
                if y2 >= y1:
                    ribbon(context, lambda c: (c.move_to(0, y1), c.line_to(0, y2)), 4.4, SQUALL[0], SQUALL[1], 1.1)
    return paint


# Storms of the tropics ------------------------------------------------------------------------------------------------

def tropical(open_eye, tones):
    """The chart's sign: a disc or ring with two arms, turning against the clock as in the north."""
    fill, edge = tones

    def paint(context, t):
        context.translate(32, 32)
        context.rotate(-math.pi * t)
        context.scale(-1, 1)  # the arms trail behind the turn

        def arms(c):
            for turn in (0, math.pi):
                c.save()
                c.rotate(turn)
                c.move_to(13.4, 0)
                c.curve_to(13.4, -14, 4, -26, -14, -27)
                c.curve_to(-5, -22, -3, -15, -6, -10)
                c.close_path()
                c.restore()
        def disc(c):
            c.arc(0, 0, 13.2, 0, 2 * math.pi)
        halo(context, arms, 2 * 2.4)
        halo(context, disc, 2 * 2.4)
        outlined(context, arms, fill, edge, 1.3)
        outlined(context, disc, fill, edge, 1.3)
        arms(context)
        context.set_source_rgba(*fill)
        context.fill()
        if open_eye:
            outlined(context, lambda c: c.arc(0, 0, 7.0, 0, 2 * math.pi), colour("fff4f0"), edge, 1.2)
        else:
            outlined(context, lambda c: c.arc(0, 0, 3.4, 0, 2 * math.pi), colour("fff4f0"), edge, 1.0)
    return paint


def spiral_cloud(context, t):
    """A cyclone as a satellite sees it."""
    context.translate(32, 32)
    context.rotate(-2 * math.pi * t / 3)
    for extra, ink in ((2.4, colour("4c6079")), (0, None)):
        for arm in range(3):
            context.save()
            context.rotate(2 * math.pi * arm / 3)
            for step in range(40):
                share = step / 39
                angle = 3.0 * share
                radius = 5.0 + 21.0 * share
                size = 6.6 * (1 - share) + 2.2 * math.sin(math.pi * share) + 0.6
                x, y = radius * math.cos(angle), radius * math.sin(angle)
                context.arc(x, y, max(size + extra / 2, 0.8), 0, 2 * math.pi)
                if ink:
                    context.set_source_rgba(*ink)
                else:
                    shade = 0.80 + 0.20 * (1 - share)
                    context.set_source_rgba(shade, shade + 0.02 * share, min(1, shade + 0.06), 1)
                context.fill()
            context.restore()
    outlined(context, lambda c: c.arc(0, 0, 3.0, 0, 2 * math.pi), colour("4c6079"), colour("ffffff"), 1.2)


# Air ------------------------------------------------------------------------------------------------------------------

def air(towards, tones):
    """A broad arrow that swells towards its tip, with bands that run along it."""
    light, dark, edge = tones

    def paint(context, t):
        context.translate(32, 32)
        context.rotate(math.radians(towards))

        def body(c):
            c.move_to(0, -28)
            c.line_to(20, -7)
            c.line_to(11.5, -7)
            c.curve_to(9.5, 6, 7.5, 17, 2.2, 28)
            c.line_to(-2.2, 28)
            c.curve_to(-7.5, 17, -9.5, 6, -11.5, -7)
            c.line_to(-20, -7)
            c.close_path()
        outlined(context, body, vertical(-28, 28, dark, light), edge, 1.4)
        context.save()
        body(context)
        context.clip()
        context.set_line_width(3.2)
        context.set_line_cap(cairo.LINE_CAP_BUTT)
        context.set_line_join(cairo.LINE_JOIN_MITER)
        context.set_source_rgba(1, 1, 1, 0.8)
        for index in range(-1, 5):
            y = 30 - 14.0 * (index + t)
            if y < -20:
                continue
            half = 8.2 - max(0.0, y + 7) * 0.22
            context.move_to(-half, y + half * 0.8)
            context.line_to(0, y)
            context.line_to(half, y + half * 0.8)
        context.stroke()
        context.restore()
    return paint


def jet_stream(turn):
    """A waving band of fast air with an arrow head."""
    def paint(context, t):
        context.translate(32, 32)
        context.rotate(math.radians(turn))

        def height(x):
            return 6.5 * math.sin(2 * math.pi * (x / 50 - t)) * (0.55 + 0.45 * math.cos(math.pi * x / 70))

        def body(c):
            for step in range(0, 81):
                x = -28 + step * 0.55
                c.line_to(x, height(x))
        edge, fill = colour("7a4a00"), colour("ffc23d")
        end = height(16)

        def tip(c):
            c.move_to(29, end)
            c.line_to(13, end - 11)
            c.line_to(13, end + 11)
            c.close_path()
        ribbon(context, body, 7.6, fill, edge, 1.3)
        outlined(context, tip, fill, edge, 1.3)
        body(context)
        context.set_line_width(7.6)
        context.set_source_rgba(*fill)
        context.stroke()
        body(context)
        context.set_dash((8, 8), -32 * t)
        context.set_line_width(2.2)
        context.set_source_rgba(1, 1, 1, 0.95)
        context.stroke()
        context.set_dash(())
    return paint


def table():
    yield from {
        "high": (letter("H", HIGH), 1, 10, 32), "low": (letter("L", LOW), 1, 10, 32),
        "high-a": (letter("A", HIGH), 1, 10, 32), "low-b": (letter("B", LOW), 1, 10, 32),
        "low-d": (letter("D", LOW), 1, 10, 32), "low-t": (letter("T", LOW), 1, 10, 32),
        "high-turning": (letter("H", HIGH, 1), 12, 8, 48), "low-turning": (letter("L", LOW, -1), 12, 8, 48),
        "high-turning-south": (letter("H", HIGH, -1), 12, 8, 48), "low-turning-south": (letter("L", LOW, 1), 12, 8, 48),
        "high-building": (letter("H", HIGH, trend=1), 12, 8, 40),
        "high-weakening": (letter("H", HIGH, trend=-1), 12, 8, 40),
        "low-filling": (letter("L", LOW, trend=1), 12, 8, 40), "low-deepening": (letter("L", LOW, trend=-1), 12, 8, 40),
        "hurricane": (tropical(False, (colour("e8423f"), colour("6c0d14"))), 16, 7, 32),
        "tropical-storm": (tropical(True, (colour("f28a2e"), colour("7c3c05"))), 16, 8, 32),
        "cyclone-cloud": (spiral_cloud, 16, 8, 40),
        "jet-stream": (jet_stream(0), 16, 6, 32), "jet-stream-rising": (jet_stream(-40), 16, 6, 32),
        "jet-stream-falling": (jet_stream(40), 16, 6, 32),
        "squall-line": (squall_line(0), 12, 8, 24), "squall-line-rising": (squall_line(45), 12, 8, 24),
        "squall-line-level": (squall_line(90), 12, 8, 24), "squall-line-falling": (squall_line(-45), 12, 8, 24),
        "trough": (trough(0), 10, 8, 24), "trough-rising": (trough(45), 10, 8, 24),
        "trough-level": (trough(90), 10, 8, 24), "trough-falling": (trough(-45), 10, 8, 24),
    }.items()
    for number, name in enumerate(SIDES):
        for kind in ("cold", "warm", "occluded"):
            yield f"{kind}-front-to-{name}", (front(kind, number * 45), 12, 8, 32)
        yield f"stationary-front-to-{name}", (still_front(number * 45), 16, 8, 32)
        yield f"cold-air-from-{name}", (air(number * 45 + 180, COLD_AIR), 10, 8, 40)
        yield f"warm-air-from-{name}", (air(number * 45 + 180, WARM_AIR), 10, 8, 40)


TABLE = dict(table())
