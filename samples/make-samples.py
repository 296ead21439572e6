#!/usr/bin/env python3
"""Makes the sample databases from the sources in src/. Needs nothing but Python's standard library.

The same sources always give the same bytes, so a changed database in a commit means a changed source.
"""

import csv
import zipfile
from pathlib import Path

from make import clipart, covers, flowers, records
from make.gif import gif

HERE = Path(__file__).resolve().parent
SAMPLES = ("addresses", "garden", "inventory", "invoices", "library")


def pictures(sample, rows):
    """The pictures of a sample by name, and the comment of their entry: clip art has one."""
    for name, draw in clipart.OF[sample].items():
        yield name, gif(draw()), "Clip Art"
    if sample == "library":
        for row in rows:
            yield row["Cover"], gif(covers.cover(row)), ""
    if sample == "garden":
        with open(HERE / "src/garden-pictures.csv", encoding="utf-8", newline="") as file:
            for row in csv.DictReader(file):
                yield row["file"], gif(flowers.draw(row)), ""


def read_records(sample):
    rows = records.read(HERE / f"src/{sample}-records.csv")
    if sample == "library":
        for number, row in enumerate(rows, 1):
            row["Cover"] = f"cover{number:02}.gif"
    return rows


def add(archive, name, data, comment):
    entry = zipfile.ZipInfo(name, (2024, 5, 1, 12, 0, 0))
    entry.compress_type = zipfile.ZIP_DEFLATED
    entry.comment = comment.encode("ascii")
    entry.create_system = 0
    archive.writestr(entry, data)


def main():
    for sample in SAMPLES:
        rows = read_records(sample)
        design = records.Design(HERE / f"src/{sample}-design.txt")
        with zipfile.ZipFile(HERE / f"{sample}.fwk", "w") as archive:
            add(archive, "data.dat", records.data_file(design, rows), "Main Data File")
            for picture in pictures(sample, rows):
                add(archive, *picture)


if __name__ == "__main__":
    main()
