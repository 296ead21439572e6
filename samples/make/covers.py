"""Covers of books: a motif in the colours of a palette, the title above it, the author below."""

import math
import random

from make.canvas import Canvas, mix, rgb
from make.letters import wrapped, write_centred

WIDTH, HEIGHT = 240, 360
TOP, BOTTOM = 132, 306  # the motif stands between them

# Of each palette: ground, three colours from light to dark, the colour of the letters.
PALETTES = {
    "dusk": "#2b2d5b #f6c28b #e4725c #8f3f71 #fdf1dc",
    "sea": "#123f5a #d9f0ee #5fb3b3 #1f6f8b #f4fbf8",
    "moss": "#27402f #e6e2b3 #8fae5d #4f7a4a #f7f5e2",
    "sand": "#f3e6cf #e0b97a #c0793f #6f4427 #4a2d1b",
    "brick": "#8f2f2a #f4d9b5 #dd8a5a #5a1b1f #fbeedd",
    "snow": "#eef2f5 #bcd0dd #6f93ad #2f4a63 #22364a",
    "plum": "#3f2346 #f0cfe0 #b877a9 #74406f #fbeef6",
    "lemon": "#f6d34d #fff3bf #e39a2d #3f4f5f #2c3845",
    "slate": "#37424d #e9e4d8 #9fb0b7 #c9803f #f6f2e8",
    "mint": "#dff1e6 #8fcfb2 #3f9f83 #1d5a53 #17463f",
}


def hills(canvas, light, middle, dark, dice):
    canvas.disc(dice.choice((70, 120, 170)), TOP + 62, 38, light)
    for number, colour in enumerate((mix(light, middle, 0.6), middle, dark)):
        crest = TOP + 80 + number * 34
        wave, shift = dice.uniform(0.018, 0.030), dice.uniform(0, 6)
        tops = [(x, crest + 20 * math.sin(x * wave + shift)) for x in range(0, WIDTH + 1, 6)]
        canvas.polygon([*tops, (WIDTH, HEIGHT), (0, HEIGHT)], colour)


def peaks(canvas, light, middle, dark, dice):
    canvas.disc(dice.choice((60, 180)), TOP + 34, 22, light)
    for number, colour in enumerate((middle, dark)):
        x = -30 + number * 40
        while x < WIDTH:
            wide, high = dice.uniform(90, 130), dice.uniform(90, 130) - number * 34
            base, top = HEIGHT, BOTTOM - high
            canvas.polygon([(x, base), (x + wide / 2, top), (x + wide, base)], colour)
            if number == 0:
                part = 0.16
                half = wide / 2 * part
                low = top + (base - top) * part
                peak = x + wide / 2
                canvas.polygon([(peak, top), (peak + half, low), (peak, low - 7), (peak - half, low)], light)
            x += wide * 0.72


def sky(canvas, light, middle, dark, dice):
    for _ in range(34):
        canvas.disc(dice.uniform(10, WIDTH - 10), dice.uniform(TOP, BOTTOM), dice.choice((1.2, 1.6, 2.6)), light)
    x, y = dice.uniform(90, 150), TOP + 84
    canvas.disc(x, y, 46, middle)
    canvas.disc(x + 20, y - 12, 40, canvas.colours[0])
    canvas.box(0, BOTTOM - 8, WIDTH, HEIGHT, dark)


def discs(canvas, light, middle, dark, dice):
    """A pattern of quarter discs."""
    side = 40
    for line in range(4):
        for column in range(6):
            x, y = column * side, TOP + 6 + line * side
            corner = dice.randrange(4)
            points = [(x + side * (corner % 2), y + side * (corner // 2))]
            for step in range(13):
                angle = math.pi / 2 * (step / 12 + (0, 1, 3, 2)[corner])
                points.append((points[0][0] + side * math.cos(angle), points[0][1] + side * math.sin(angle)))
            canvas.polygon(points, dice.choice((light, middle, dark)))


def ship(canvas, light, middle, dark, dice):
    mast = dice.uniform(105, 135)
    boom, deck, keel = TOP + 106, TOP + 114, TOP + 144
    canvas.polygon([(mast - 4, TOP + 8), (mast - 4, boom), (mast - 66, boom)], light)
    canvas.polygon([(mast + 4, TOP + 24), (mast + 4, boom), (mast + 52, boom)], mix(light, middle, 0.5))
    canvas.polygon([(mast - 70, deck), (mast + 66, deck), (mast + 40, keel), (mast - 48, keel)], dark)
    for number in range(3):
        crest = TOP + 136 + number * 18
        tops = [(x, crest + 5 * math.sin(x * 0.12 + number * 2)) for x in range(0, WIDTH + 1, 4)]
        canvas.polygon([*tops, (WIDTH, HEIGHT), (0, HEIGHT)], mix(middle, dark, number * 0.3))


def houses(canvas, light, middle, dark, dice):
    x = -6
    while x < WIDTH:
        wide, high = dice.choice((38, 46, 54)), dice.choice((70, 96, 122))
        top, wall = BOTTOM - high, dice.choice((middle, dark, mix(middle, dark, 0.5)))
        canvas.box(x, top, wide, high, wall)
        canvas.polygon([(x - 3, top), (x + wide / 2, top - 24), (x + wide + 3, top)], mix(wall, dark, 0.6))
        for line in range(high // 28):
            for column in range(2):
                if dice.random() < 0.7:
                    canvas.box(x + wide * (0.2 + 0.38 * column), top + 10 + line * 28, wide * 0.2, 14, light)
        x += wide + 2
    canvas.box(0, BOTTOM, WIDTH, HEIGHT - BOTTOM, dark)


def twig(canvas, light, middle, dark, dice):
    bend = dice.choice((-26, 26))
    stem = [(120 + bend * math.sin(t * 1.6), BOTTOM - 4 - t * 158) for t in (i / 12 for i in range(13))]
    canvas.stroke(stem, 4, light)
    for number in range(1, 12):
        x, y = stem[number]
        side = 1 if number % 2 else -1
        size = 34 - number * 1.6
        colour = (middle, dark)[number % 3 == 0]
        canvas.ellipse(x + side * size * 0.8, y - size * 0.45, size, size * 0.36, colour, -side * 0.5)
    canvas.ellipse(stem[12][0], stem[12][1] - 10, 7, 15, middle)


def rings(canvas, light, middle, dark, dice):
    x, y = dice.choice((60, 120, 180)), TOP + 92
    for number in range(7):
        canvas.disc(x, y, 88 - number * 12.5, (dark, middle, light)[number % 3])


def paths(canvas, light, middle, dark, dice):
    """Bands that run side by side round corners."""
    for number, colour in enumerate((dark, middle, light, middle, dark)):
        inset = 14 + number * 15
        turn = TOP + 40 + number * 15
        far = WIDTH - 100 + inset
        canvas.stroke([(inset, HEIGHT), (inset, turn), (far, turn), (far, turn - 50)], 10, colour)
    canvas.disc(WIDTH - 70, TOP + 120, 26, dice.choice((light, middle)))


def lamp(canvas, light, middle, dark, dice):
    """A lighthouse and its beam."""
    x = dice.choice((80, 160))
    way = 1 if x < 120 else -1
    y = TOP + 34
    canvas.polygon([(x, y - 4), (x + way * 190, y - 36), (x + way * 190, y + 40), (x, y + 4)], light)
    canvas.polygon([(x - 15, y + 14), (x + 15, y + 14), (x + 24, BOTTOM), (x - 24, BOTTOM)], middle)
    for band in (0.2, 0.6):
        low = y + 14 + (BOTTOM - y - 14) * band
        upper, lower = 15 + 9 * band, 18 + 9 * band
        canvas.polygon([(x - upper, low), (x + upper, low), (x + lower, low + 24), (x - lower, low + 24)], dark)
    canvas.box(x - 11, y - 12, 22, 26, light)
    canvas.polygon([(x - 17, y - 12), (x, y - 30), (x + 17, y - 12)], dark)
    canvas.ellipse(x, BOTTOM + 14, 90, 24, dark)
    canvas.box(0, BOTTOM + 8, WIDTH, HEIGHT, dark)


MOTIFS = {motif.__name__: motif for motif in (hills, peaks, sky, discs, ship, houses, twig, rings, paths, lamp)}


def cover(book):
    """The cover of a record with Title, Author, and what its picture is made of: motif and palette."""
    ground, light, middle, dark, ink = map(rgb, PALETTES[book["palette"]].split())
    canvas = Canvas(WIDTH, HEIGHT, ground)
    MOTIFS[book["motif"]](canvas, light, middle, dark, random.Random(book["Title"]))
    # Whatever the motif has spilled over, the letters stand on the plain ground.
    canvas.box(0, 0, WIDTH, TOP - 14, ground)
    canvas.box(0, BOTTOM + 4, WIDTH, HEIGHT, ground)
    canvas.box(0, BOTTOM + 4, WIDTH, 3, ink)

    height = 25
    lines = wrapped(book["Title"], height, WIDTH - 36)
    if len(lines) > 3 or any(len(line) > 10 for line in lines):
        height = 19
        lines = wrapped(book["Title"], height, WIDTH - 30)
    elif len(lines) == 3:
        height = 22
    y = (TOP - 14 - len(lines) * height * 1.4) / 2 + height * 0.2
    for line in lines:
        write_centred(canvas, line, WIDTH / 2, y, height, ink, 0.15)
        y += height * 1.4
    write_centred(canvas, book["Author"], WIDTH / 2, BOTTOM + 26, 12, ink, 0.15)
    return canvas.picture()
