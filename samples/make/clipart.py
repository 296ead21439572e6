"""The fixed pictures of the samples' pages.

Each is at least as large as its place on the page at 15 twips a pixel, since a smaller one is not enlarged.
"""

import math
import random

from make.canvas import Canvas, mix, rgb
from make.letters import write_centred

PAPER = (255, 255, 255)
SPINES = "#2b2d5b #e4725c #8f3f71 #f6c28b #1f6f8b #4f7a4a #c0793f #5fb3b3"
PENCILS = "#f6d34d #e39a2d #e4725c #b83a4b #8f3f71 #5b4b9a #3f6fb5 #5fb3b3 #3f9f83 #8fae5d"
# Petals and heart.
BLOSSOMS = (
    ("#e2452f", "#2c2a33"),
    ("#fdfdf8", "#f2c230"),
    ("#4f6fd0", "#c9d4ff"),
    ("#f4b41a", "#6b3e1d"),
    ("#d94f70", "#f6d4a8"),
)


def shelf():
    """A row of books, leaning here and there."""
    width, height = 1216, 111
    canvas = Canvas(width, height, rgb("#fbf7ef"))
    colours = [rgb(each) for each in SPINES.split()]
    dice = random.Random("shelf")
    board, x, before = height - 10, 14, None
    while x < width - 40:
        if dice.random() < 0.07:  # room for one more
            x += dice.choice((22, 40))
        wide, high = dice.choice((13, 17, 22, 27)), dice.choice((62, 70, 78, 86))
        colour = dice.choice([each for each in colours if each != before])
        before = colour
        lean = dice.choice((0, 0, 0, 0, 0, 0, 0, 14))
        top = board - high
        canvas.polygon([(x, board), (x + wide, board), (x + wide + lean, top), (x + lean, top)], colour)
        label = mix(colour, PAPER, 0.65)
        for place, thick in dice.choice((((0.2, 3), (0.8, 3)), ((0.16, 2), (0.24, 2)), ((0.3, 14),))):
            low = board - high * (1 - place)
            canvas.box(x + lean * (1 - place) + 2, low, wide - 4, thick, label)
        x += wide + 1 + lean
    canvas.box(0, board, width, 10, rgb("#6f4427"))
    return canvas.picture()


def meadow():
    width, height = 1216, 111
    canvas = Canvas(width, height, rgb("#dff0f4"))
    canvas.disc(1080, 46, 26, rgb("#f9d976"))
    dice = random.Random("meadow")
    for number, colour in enumerate(("#b9dcae", "#86bd7c", "#4f9a4a")):
        crest, wave = 60 + number * 17, 0.007 + number * 0.003
        tops = [(x, crest + 9 * math.sin(x * wave + number * 2)) for x in range(0, width + 1, 8)]
        canvas.polygon([*tops, (width, height), (0, height)], rgb(colour))
    for x in range(20, width - 10, 26):
        x += dice.uniform(-9, 9)
        top = dice.uniform(46, 82)
        canvas.stroke([(x, height), (x + 2, top + 8)], 2, rgb("#2f6b34"))
        petal, heart = map(rgb, dice.choice(BLOSSOMS))
        for step in range(6):
            angle = math.pi * step / 3
            canvas.ellipse(x + 2 + 6 * math.cos(angle), top + 6 * math.sin(angle), 5.5, 3.6, petal, angle)
        canvas.disc(x + 2, top, 3.4, heart)
    return canvas.picture()


def stamp():
    """A postage stamp: hills in a perforated frame."""
    side = 216
    canvas = Canvas(side, side, PAPER)
    canvas.box(4, 4, side - 8, side - 8, rgb("#dfe7ea"))
    for step in range(13):
        place = 6 + step * 17
        for x, y in ((place, 4), (place, side - 4), (4, place), (side - 4, place)):
            canvas.disc(x, y, 5, PAPER)
    canvas.box(22, 22, side - 44, side - 44, rgb("#fbe3c0"))
    canvas.disc(136, 82, 26, rgb("#e4725c"))
    for crest, wave, shift, colour in ((112, 0.035, 0.4, "#5fb3b3"), (138, 0.028, 2.6, "#1f6f8b")):
        tops = [(x, crest + 14 * math.sin(x * wave + shift)) for x in range(22, side - 21, 4)]
        canvas.polygon([*tops, (side - 22, side - 22), (22, side - 22)], rgb(colour))
    write_centred(canvas, "1 st", 56, 34, 22, rgb("#123f5a"), 0.15)
    return canvas.picture()


def airmail():
    """The slanted stripes along the edge of an envelope."""
    width, height = 660, 16
    canvas = Canvas(width, height, PAPER)
    for number, x in enumerate(range(-20, width, 32)):
        colour = rgb(("#e4725c", "#1f6f8b")[number % 2])
        canvas.polygon([(x + 8, 0), (x + 26, 0), (x + 18, height), (x, height)], colour)
    return canvas.picture()


def pencils():
    """A row of coloured pencils."""
    width, height = 1056, 80
    canvas = Canvas(width, height, rgb("#22364a"))
    colours = PENCILS.split()
    pitch = 24
    for number in range(width // pitch):
        x, colour = number * pitch, rgb(colours[number % len(colours)])
        top = 20 + 10 * math.sin(number * 0.55)
        canvas.polygon([(x + 3, top + 26), (x + 12, top), (x + 21, top + 26)], rgb("#f3e6cf"))
        canvas.polygon([(x + 9, top + 9), (x + 12, top), (x + 15, top + 9)], colour)
        canvas.box(x + 3, top + 26, 18, height, colour)
        canvas.box(x + 9, top + 26, 6, height, mix(colour, PAPER, 0.3))
        canvas.box(x + 15, top + 26, 6, height, mix(colour, (0, 0, 0), 0.15))
    return canvas.picture()


def mark():
    """The mark of the joinery: a tree on a disc."""
    side = 240
    canvas = Canvas(side, side, PAPER)
    canvas.disc(120, 120, 116, rgb("#27402f"))
    canvas.disc(120, 120, 106, PAPER)
    canvas.disc(120, 120, 101, rgb("#27402f"))
    wood, leaf = rgb("#e0b97a"), rgb("#8fae5d")
    canvas.polygon([(112, 186), (116, 90), (124, 90), (128, 186)], wood)
    for dx, dy in ((-34, -26), (34, -38), (-24, -64)):
        canvas.stroke([(120, 150 + dy * 0.4), (120 + dx, 118 + dy)], 6, wood)
    for x, y, size in ((120, 62, 34), (82, 92, 27), (158, 84, 29), (94, 60, 24), (146, 56, 22)):
        canvas.disc(x, y, size, leaf)
    for x, y, size in ((128, 52, 15), (76, 86, 11), (166, 78, 12)):
        canvas.disc(x, y, size, mix(leaf, PAPER, 0.3))
    canvas.box(70, 184, 100, 5, wood)
    return canvas.picture()


def grain():
    """A band of wood."""
    width, height = 1344, 23
    canvas = Canvas(width, height, rgb("#27402f"))
    for number in range(4):
        tops = [(x, 3 + number * 6 + 1.6 * math.sin(x * 0.013 + number)) for x in range(0, width + 1, 8)]
        canvas.stroke(tops, 1.4, rgb("#8fae5d"))
    return canvas.picture()


# What each sample has on its page, by the name of the entry.
OF = {
    "addresses": {"stamp.gif": stamp, "airmail.gif": airmail},
    "garden": {"meadow.gif": meadow},
    "inventory": {"pencils.gif": pencils},
    "invoices": {"mark.gif": mark, "grain.gif": grain},
    "library": {"shelf.gif": shelf},
}
