#!/usr/bin/env python3
"""Prints labels on ten stocks, reads where they stand from the PDF, and tells how far they are from the table of
stocks; then times 1,000 labels: bench/labels.py [BUILD]. BUILD is a built release folder (default build/release).
Fails when one is further off than 0.1 mm, or when the labels take longer than 2 s."""

import csv, os, re, subprocess, sys, tempfile, time

STOCKS = ["Avery L7163", "Avery 5160", "Avery L7651", "Avery 5163", "Herma 10001", "Avery 8371", "Pearl VM-5040",
          "Avery 5267", "Zweckform 3474", "Avery L7160"]
MOST_OFF, MOST_SECONDS = 0.1, 2.0
PROJECT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")


def places(pdf):
    """The upper left corners and the sizes of the outlines on the first sheet, in millimetres."""
    svg = subprocess.run(["pdftocairo", "-svg", "-f", "1", "-l", "1", pdf, "-"], check=True, capture_output=True,
                         text=True).stdout
    found = []
    for path in re.findall(r"<path [^>]*>", svg):
        if "stroke:none" in path or "fill:none" not in path:
            continue
        numbers = [float(n) for n in re.findall(r"-?[\d.]+", re.search(r' d="([^"]*)"', path)[1])]
        a, b, c, d, e, f = [float(n) for n in re.findall(r"-?[\d.]+", re.search(r"matrix\(([^)]*)\)", path)[1])]
        xs = [a * x + c * y + e for x, y in zip(numbers[::2], numbers[1::2])]
        ys = [b * x + d * y + f for x, y in zip(numbers[::2], numbers[1::2])]
        found.append([n / 72 * 25.4 for n in (min(xs), min(ys), max(xs) - min(xs), max(ys) - min(ys))])
    return found


def main():
    build = sys.argv[1] if len(sys.argv) > 1 else os.path.join(PROJECT, "build", "release")
    fwk, failed = os.path.join(build, "src", "fwk"), False
    addresses = os.path.join(PROJECT, "samples", "addresses.fwk")
    with tempfile.TemporaryDirectory() as folder:
        pdf = os.path.join(folder, "labels.pdf")
        for stock in STOCKS:
            maker, number = stock.split(" ", 1)
            table = subprocess.run([fwk, "labels", *stock.split(), "--csv"], check=True, capture_output=True,
                                   text=True).stdout
            told = next(row for row in csv.DictReader(table.splitlines())
                        if row["maker"] == maker and row["number"] == number)
            subprocess.run([fwk, "labels", addresses, "--stock", stock, "--outlines", "--pdf", pdf], check=True)
            figures = {name: float(told[name]) for name in told if name not in
                       ("maker", "number", "kind", "paper", "shape")}
            labels = places(pdf)
            off = 0.0 if len(labels) == figures["columns"] * figures["rows"] else float("inf")
            for n, (left, top, width, height) in enumerate(labels):
                row, column = divmod(n, int(figures["columns"]))
                off = max(off, abs(left - figures["left"] - column * figures["columnPitch"]),
                          abs(top - figures["top"] - row * figures["rowPitch"]),
                          abs(width - figures["width"]), abs(height - figures["height"]))
            failed |= off > MOST_OFF
            print(f"{stock:16} {len(labels):4} labels, off by {off:.3f} mm at most")
        start = time.monotonic()
        subprocess.run([fwk, "labels", addresses, "--stock", "Avery L7160", "--records", "i1", "--copies", "1000",
                        "--pdf", pdf], check=True)
        seconds = time.monotonic() - start
        failed |= seconds > MOST_SECONDS
        print(f"1,000 labels: {seconds:.2f} s")
    return 1 if failed else 0


sys.exit(main())
