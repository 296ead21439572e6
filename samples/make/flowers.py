"""Flowers, drawn by asking of each point what it belongs to."""

import math

from make.canvas import blend, rgb

SIDE = 320  # pixels of a picture
SAMPLES = 3  # per pixel and direction, for smooth edges


def ellipse(x, y, centre_x, centre_y, radius_x, radius_y, angle=0.0):
    """Whether the point lies in the ellipse, whose first axis is turned by the angle."""
    dx, dy = x - centre_x, y - centre_y
    along = dx * math.cos(angle) + dy * math.sin(angle)
    across = dy * math.cos(angle) - dx * math.sin(angle)
    return (along / radius_x) ** 2 + (across / radius_y) ** 2 <= 1


def ring(count, turn=0.0):
    return [2 * math.pi * i / count + turn for i in range(count)]


def rays(x, y, look):
    """Narrow petals around a disc."""
    distance = math.hypot(x, y)
    if distance < 0.26:
        return look["centre"]
    for colour, radius, turn in (("petal", 0.50, 0.0), ("below", 0.54, math.pi / look["count"])):
        for angle in ring(look["count"], turn):
            middle = (math.cos(angle) * radius, math.sin(angle) * radius)
            if ellipse(x, y, *middle, 0.34, 1.1 / look["count"] + 0.03, angle):
                return look[colour]
    return look["ground"]


def rose(x, y, look):
    """Broad petals in three rings, one in the other."""
    if math.hypot(x, y) < 0.12:
        return look["centre"]
    for number, (radius, size) in enumerate(((0.18, 0.20), (0.36, 0.30), (0.50, 0.38))):
        for place, angle in enumerate(ring(look["count"], number * 0.4)):
            if ellipse(x, y, math.cos(angle) * radius, math.sin(angle) * radius, size, size * 0.8, angle):
                return look["petal" if (place + number) % 2 else "below"]
    return look["ground"]


def cup(x, y, look):
    """A flower seen from the side, on a stalk."""
    if y < 0.15:
        for offset, colour in ((0.0, "petal"), (-0.24, "below"), (0.24, "below")):
            if ellipse(x, y, offset, -0.28, 0.24, 0.50, offset * 0.7):
                return look[colour]
    if ellipse(x, y, 0, -0.02, 0.44, 0.26):
        return look["below"]
    stalk = abs(x) < 0.035 and 0.1 < y < 0.9
    leaf = ellipse(x, y, 0.20, 0.55, 0.40, 0.09, -1.0) or ellipse(x, y, -0.20, 0.60, 0.40, 0.09, 1.0)
    return look["centre"] if stalk or leaf else look["ground"]


def spike(x, y, look):
    """Three ears of small flowers."""
    for middle in (-0.42, 0.0, 0.42):
        for i in range(look["count"]):
            height = -0.78 + i * 0.12 + abs(middle) * 0.4
            for side in (-1, 1):
                if ellipse(x, y, middle * (1 - i * 0.04) + side * 0.07, height, 0.10, 0.065, side * 0.5):
                    return look["petal" if (i + side) % 4 < 2 else "below"]
        stem = middle * (1 - (y + 0.8) * 0.34)
        if abs(x - stem) < 0.022 and -0.5 < y < 0.92:
            return look["centre"]
    return look["ground"]


def sprig(x, y, look):
    """A stem with leaves in pairs."""
    for i in range(look["count"]):
        height = 0.62 - i * 1.3 / look["count"]
        size = 0.40 - i * 0.20 / look["count"]
        for side in (-1, 1):
            if ellipse(x, y, side * size * 0.85, height - size * 0.5, size, size * 0.38, -side * 0.55):
                return look["petal" if side > 0 else "below"]
    if ellipse(x, y, 0, -0.80, 0.10, 0.17):
        return look["petal"]
    return look["centre"] if abs(x) < 0.028 and -0.75 < y < 0.92 else look["ground"]


def fruit(x, y, look):
    if ellipse(x, y, 0.26, -0.62, 0.26, 0.10, -0.5):
        return look["centre"]
    if abs(x - 0.06 * (0.3 - y)) < 0.03 and -0.72 < y < -0.34:
        return look["centre"]
    if ellipse(x, y, 0, -0.46, 0.16, 0.10):
        return look["ground"]
    if ellipse(x, y, -0.20, 0.12, 0.48, 0.60) or ellipse(x, y, 0.20, 0.12, 0.48, 0.60):
        return look["below"] if ellipse(x, y, 0.34, 0.20, 0.40, 0.60) and x > 0.2 else look["petal"]
    return look["ground"]


SHAPES = {shape.__name__: shape for shape in (rays, rose, cup, spike, sprig, fruit)}


def draw(row):
    """A picture as rows of colours; few enough different ones for a palette."""
    look = {
        "count": int(row["petals"]),
        "petal": rgb(row["petal colour"]),
        "below": rgb(row["petal colour below"]),
        "centre": rgb(row["centre colour"]),
        "ground": rgb(row["background"]),
    }
    shape = SHAPES[row["shape"]]
    steps = [(i + 0.5) / SAMPLES for i in range(SAMPLES)]

    def at(column, line):
        return shape(column / SIDE * 2 - 1, line / SIDE * 2 - 1, look)

    # Only a pixel with an edge in it, which its corners tell, is worth a closer look.
    corners = [[at(column, line) for column in range(SIDE + 1)] for line in range(SIDE + 1)]

    def pixel(column, line):
        around = set(corners[line][column : column + 2] + corners[line + 1][column : column + 2])
        if len(around) == 1:
            return around.pop()
        hits = [at(column + dx, line + dy) for dx in steps for dy in steps]
        return blend(hits)

    return [[pixel(column, line) for column in range(SIDE)] for line in range(SIDE)]
