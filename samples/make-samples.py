#!/usr/bin/env python3
"""Makes the sample databases from the sources in src/. Needs nothing but Python's standard library.

The same sources always give the same bytes, so a changed database in a commit means a changed source.
"""

import csv
import math
import zipfile
from decimal import Decimal
from pathlib import Path

HERE = Path(__file__).resolve().parent
SIDE = 200  # pixels of a picture
SAMPLES = 3  # per pixel and direction, for smooth edges


# --- pictures ---------------------------------------------------------------------------------------


def rgb(text):
    return tuple(int(text[i : i + 2], 16) for i in (1, 3, 5))


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


def leaf(x, y, look):
    along, across = (x - y) / math.sqrt(2), (x + y) / math.sqrt(2)
    if abs(across) < 0.02 and -0.95 < along < 0.75:
        return look["centre"]
    width = 0.42 * math.sqrt(max(0.0, 1 - along * along / 0.72)) * (1 - 0.25 * along)
    if abs(across) < width:
        vein = abs((along * 6 + abs(across) * 5) % 1 - 0.5) < 0.07
        return look["centre"] if vein else look["petal" if across > 0 else "below"]
    return look["ground"]


SHAPES = {"rays": rays, "rose": rose, "cup": cup, "spike": spike, "leaf": leaf}


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
        return tuple(sum(part) // len(hits) // 24 * 24 + 12 for part in zip(*hits))

    return [[pixel(column, line) for column in range(SIDE)] for line in range(SIDE)]


def lzw(indexes, depth):
    """The indexes compressed as a GIF wants them: codes of growing width, packed from the lowest bit on."""
    clear, end = 1 << depth, (1 << depth) + 1
    out, bits, held = bytearray(), 0, 0

    def put(code, width):
        nonlocal bits, held
        bits |= code << held
        held += width
        while held >= 8:
            out.append(bits & 255)
            bits >>= 8
            held -= 8

    table, width, following = {}, depth + 1, end + 1
    put(clear, width)
    code = None  # of the indexes read so far that the table knows
    for index in indexes:
        if code is None:
            code = index
            continue
        if (code, index) in table:
            code = table[code, index]
            continue
        put(code, width)
        table[code, index] = following
        if following == 1 << width:
            width += 1
        following += 1
        if following == 4096:
            put(clear, width)
            table, width, following = {}, depth + 1, end + 1
        code = index
    put(code, width)
    put(end, width)
    if held:
        out.append(bits & 255)
    return bytes(out)


def gif(picture):
    palette = sorted({colour for line in picture for colour in line})
    if len(palette) > 256:
        raise ValueError(f"{len(palette)} colours do not fit")
    depth = max(2, (len(palette) - 1).bit_length())
    number = {colour: i for i, colour in enumerate(palette)}
    head = b"GIF89a" + SIDE.to_bytes(2, "little") * 2 + bytes((0x80 | (depth - 1) * 0x11, 0, 0))
    colours = b"".join(map(bytes, palette)).ljust(3 << depth, b"\0")
    place = b"," + bytes(4) + SIDE.to_bytes(2, "little") * 2 + b"\0"
    data = lzw([number[colour] for line in picture for colour in line], depth)
    blocks = b"".join(bytes((len(data[i : i + 255]),)) + data[i : i + 255] for i in range(0, len(data), 255))
    return head + colours + place + bytes((depth,)) + blocks + b"\0;"


# --- records ----------------------------------------------------------------------------------------


def money(amount):
    text = f"{amount:,.2f}"
    return "$" + (text[1:] if text.startswith("0.") else text)


def rows(records):
    """The lines of the records, numbered and calculated, and the Totals row behind them."""
    plants, costs = 0, Decimal(0)
    for number, record in enumerate(records, 1):
        cost = int(record["Plants"]) * Decimal(record["Price"])
        plants += int(record["Plants"])
        costs += cost
        record |= {"No": str(number), "Price": money(Decimal(record["Price"])), "Cost": money(cost)}
        yield record
    yield {"Plants": str(plants), "Cost": money(costs)}


def data_file():
    design = (HERE / "src/garden-design.txt").read_text(encoding="utf-8")
    names = next(line for line in design.splitlines() if line.startswith("[Column Names  ]"))[16:].split("|")[:-1]
    with open(HERE / "src/garden-records.csv", encoding="utf-8", newline="") as file:
        records = list(csv.DictReader(file))
    lines = design.splitlines()
    for number, row in enumerate(rows(records), 1):
        empty = "------" if number > len(records) else ""
        lines.append("".join(row.get(name, empty) + "|" for name in names))
    return "".join(line + "\r\n" for line in lines).encode("cp1252")


def add(archive, name, data, comment):
    entry = zipfile.ZipInfo(name, (2024, 5, 1, 12, 0, 0))
    entry.compress_type = zipfile.ZIP_DEFLATED
    entry.comment = comment.encode("ascii")
    entry.create_system = 0
    archive.writestr(entry, data)


def main():
    with open(HERE / "src/garden-pictures.csv", encoding="utf-8", newline="") as file:
        pictures = list(csv.DictReader(file))
    with zipfile.ZipFile(HERE / "garden.fwk", "w") as archive:
        add(archive, "data.dat", data_file(), "Main Data File")
        for row in pictures:
            add(archive, row["file"], gif(draw(row)), "Clip Art" if row["file"] == "leaf.gif" else "")


if __name__ == "__main__":
    main()
