"""A canvas for flat shapes, whose edges are smoothed when it is done.

Lengths are pixels of the finished picture, from its top left corner; colours are (red, green, blue).
"""

import math

FINE = 3  # dots per pixel and direction while shapes are drawn
STEP = 24  # between the shades of a smoothed edge, so that few colours make up a picture


def rgb(text):
    return tuple(int(text[i : i + 2], 16) for i in (1, 3, 5))


def mix(one, other, share):
    """The colour on the way from one to the other."""
    return tuple(round(a + (b - a) * share) for a, b in zip(one, other))


def blend(hits):
    """The shade of a pixel that several colours share."""
    return tuple(sum(part) // len(hits) // STEP * STEP + STEP // 2 for part in zip(*hits))


class Canvas:
    def __init__(self, width, height, ground):
        self.width, self.height = width, height
        self.colours = [ground]
        self.rows = [bytearray(width * FINE) for _ in range(height * FINE)]

    def _number(self, colour):
        if colour not in self.colours:
            self.colours.append(colour)
        return self.colours.index(colour)

    def polygon(self, points, colour):
        """Fills what the points enclose; where the outline crosses itself, every other part."""
        ink = self._number(colour)
        points = [(x * FINE, y * FINE) for x, y in points]
        top = max(0, math.floor(min(y for _, y in points)))
        bottom = min(len(self.rows), math.ceil(max(y for _, y in points)))
        sides = list(zip(points, points[1:] + points[:1]))
        for line in range(top, bottom):
            y = line + 0.5
            crossed = [(one, other) for one, other in sides if (one[1] <= y) != (other[1] <= y)]
            cuts = sorted(x0 + (y - y0) * (x1 - x0) / (y1 - y0) for (x0, y0), (x1, y1) in crossed)
            row = self.rows[line]
            for left, right in zip(cuts[::2], cuts[1::2]):
                first, last = max(0, round(left)), min(len(row), round(right))
                if first < last:
                    row[first:last] = bytes((ink,)) * (last - first)

    def box(self, x, y, width, height, colour):
        self.polygon([(x, y), (x + width, y), (x + width, y + height), (x, y + height)], colour)

    def ellipse(self, x, y, radius_x, radius_y, colour, turn=0.0):
        """Around the point; the first axis is turned by the angle."""
        steps = [2 * math.pi * i / 48 for i in range(48)]
        along = [(math.cos(step) * radius_x, math.sin(step) * radius_y) for step in steps]
        cos, sin = math.cos(turn), math.sin(turn)
        self.polygon([(x + a * cos - b * sin, y + a * sin + b * cos) for a, b in along], colour)

    def disc(self, x, y, radius, colour):
        self.ellipse(x, y, radius, radius, colour)

    def stroke(self, points, width, colour):
        """A line through the points, with round ends and corners."""
        for (x0, y0), (x1, y1) in zip(points, points[1:]):
            length = math.hypot(x1 - x0, y1 - y0) or 1
            dx, dy = (y1 - y0) / length * width / 2, (x0 - x1) / length * width / 2
            self.polygon([(x0 + dx, y0 + dy), (x1 + dx, y1 + dy), (x1 - dx, y1 - dy), (x0 - dx, y0 - dy)], colour)
        for x, y in points:
            self.disc(x, y, width / 2, colour)

    def picture(self):
        """The finished picture: rows of colours."""
        return [self._line(number) for number in range(self.height)]

    def _line(self, number):
        fine = self.rows[number * FINE : (number + 1) * FINE]
        known = {}
        line = []
        for x in range(0, self.width * FINE, FINE):
            dots = b"".join(row[x : x + FINE] for row in fine)
            if dots not in known:
                hits = [self.colours[dot] for dot in dots]
                known[dots] = hits[0] if len(set(hits)) == 1 else blend(hits)
            line.append(known[dots])
        return line
