#!/usr/bin/env python3
"""Makes the templates from the designs in src/. Needs nothing but Python's standard library.

The same sources always give the same bytes, so a changed template in a commit means a changed source.
"""

import sys
import zipfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "samples"))

from make import clipart  # noqa: E402
from make.canvas import Canvas, mix, rgb  # noqa: E402
from make.gif import gif  # noqa: E402

PAPER = (255, 255, 255)
WIDTH = 1296  # two pixels for each of the page, at 15 twips a pixel


def airmail():
    canvas = Canvas(WIDTH, 48, rgb("#fbf7ef"))
    for number, x in enumerate(range(-24, WIDTH, 54)):
        colour = rgb(("#c8403a", "#1f4f8b")[number % 2])
        canvas.polygon([(x + 24, 0), (x + 56, 0), (x + 32, 48), (x, 48)], colour)
    return canvas.picture()


def crates():
    """Boxes side by side, each with a strip of tape."""
    canvas = Canvas(WIDTH, 80, rgb("#f7efe4"))
    widths, x = (96, 64, 120, 72, 84), 8
    for number in range(20):
        wide, high = widths[number % 5], (60, 44, 68, 52)[number % 4]
        if x + wide > WIDTH - 8:
            break
        colour = rgb(("#c58a4a", "#b0763a", "#d39c5e")[number % 3])
        canvas.box(x, 76 - high, wide, high, colour)
        canvas.box(x, 76 - high, wide, 3, mix(colour, (0, 0, 0), 0.25))
        canvas.box(x + wide / 2 - 6, 76 - high, 12, high, mix(colour, PAPER, 0.45))
        x += wide + 6
    canvas.box(0, 76, WIDTH, 4, rgb("#7a4b1e"))
    return canvas.picture()


def cloth():
    """The squares of a table-cloth."""
    red = rgb("#a8322b")
    canvas = Canvas(WIDTH, 80, mix(red, PAPER, 0.88))
    for column in range(0, WIDTH, 32):
        canvas.box(column, 0, 16, 80, mix(red, PAPER, 0.5))
    for row in range(0, 80, 32):
        canvas.box(0, row, WIDTH, 16, mix(red, PAPER, 0.5))
        for column in range(0, WIDTH, 32):
            canvas.box(column, row, 16, 16, red)
    return canvas.picture()


def people():
    canvas = Canvas(WIDTH, 80, rgb("#e6f0e4"))
    coats = [rgb(each) for each in "#2f6b3a #d08a2e #1f6f8b #8f3f71 #c8553d #5b6aa0".split()]
    faces = [rgb(each) for each in "#f6c9a0 #c98f63 #8d5a3c #e9b07a".split()]
    for number, x in enumerate(range(36, WIDTH, 72)):
        canvas.ellipse(x, 82, 28, 34, coats[number % len(coats)])
        canvas.disc(x, 32, 16, faces[number % len(faces)])
    return canvas.picture()


def band():
    canvas = Canvas(WIDTH, 24, rgb("#1f4f8b"))
    canvas.box(WIDTH * 0.72, 0, WIDTH, 24, rgb("#7fa6d6"))
    return canvas.picture()


PICTURES = {
    "addresses": ("airmail.gif", airmail),
    "books": ("shelf.gif", clipart.shelf),
    "inventory": ("crates.gif", crates),
    "recipes": ("cloth.gif", cloth),
    "members": ("people.gif", people),
    "invoices": ("band.gif", band),
}


def add(archive, name, data, comment):
    entry = zipfile.ZipInfo(name, (2024, 5, 1, 12, 0, 0))
    entry.compress_type = zipfile.ZIP_DEFLATED
    entry.comment = comment.encode("ascii")
    entry.create_system = 0
    archive.writestr(entry, data)


def main():
    for template, (picture, draw) in PICTURES.items():
        lines = (HERE / f"src/{template}-design.txt").read_text(encoding="utf-8").splitlines()
        with zipfile.ZipFile(HERE / f"{template}.fwk", "w") as archive:
            add(archive, "data.dat", "".join(f"{line}\r\n" for line in lines).encode("cp1252"), "Main Data File")
            add(archive, picture, gif(draw()), "Clip Art")


if __name__ == "__main__":
    main()
