"""The rows of a database: cells in the form that the program keeps them in, its sums and its Totals row."""

import csv
from decimal import ROUND_HALF_UP, Decimal

DATE, CURRENCY, TEXT, NUMBER, CALCULATION, PICTURE = "1", "2", "3", "4", "5", "7"


def money(amount):
    text = f"{abs(amount).quantize(Decimal('0.01'), ROUND_HALF_UP):,.2f}"
    return ("-" if amount < 0 else "") + "$" + (text[1:] if text.startswith("0.") else text)


def value(text):
    """The number that a cell holds, if it does."""
    try:
        return Decimal(text.replace("$", "").replace(",", ""))
    except ArithmeticError:
        return Decimal(0)


class Design:
    """What stands in front of the records, and what it says about them."""

    def __init__(self, path):
        self.lines = path.read_text(encoding="utf-8").splitlines()
        self.names = self.section("Column Names")
        self.types = dict(zip(self.names, self.section("Column Types")))
        self.formulas = [entry.split(",") for entry in self.section("Formulas")]
        self.totaled = self.section("Totaled Cols")
        self.serials = {name: int(last) for name, last in (entry.split(",") for entry in self.section("Increments"))}
        fields = [line.split("|")[1] for line in self.lines if line.startswith("F|")]
        self.item_rows = {name: fields.count(name) for name in fields if fields.count(name) > 1}

    def section(self, name):
        marker = f"[{name:<14}]"
        text = next(line[16:] for line in self.lines if line.startswith(marker))
        return text.split("|")[:-1]

    def result(self, expression, cells):
        """An expression worked out as the program does it: money as soon as something in it looks like money."""
        decimal, parts = False, []
        for token in expression.split():
            if token in cells:
                decimal = decimal or self.types[token] == CURRENCY or "." in cells[token]
                parts.append(f"Decimal('{value(cells[token])}')")
            else:
                decimal = decimal or "." in token
                parts.append(token if token in "+-*/()" else f"Decimal('{token}')")
        number = eval("".join(parts), {"Decimal": Decimal})  # of our own sources
        return money(number) if decimal or number % 1 else str(int(number))


def read(path):
    """The records of a table. A line whose first cell is empty is one more item of the record above it."""
    records = []
    with open(path, encoding="utf-8", newline="") as file:
        for row in csv.DictReader(file):
            if next(iter(row.values())):
                records.append(row)
                row["items"] = [row]
            else:
                records[-1]["items"].append(row)
    return records


def _calculate(design, cells):
    items = {name: cells[name].split("@")[:-1] for name in design.item_rows if cells.get(name)}
    for name, expression in design.formulas:
        if name in design.item_rows:
            rows = range(design.item_rows[name])
            items[name] = [design.result(expression, {key: items[key][row] for key in items}) for row in rows]
            cells[name] = "".join(f"{each}@" for each in items[name])
        elif expression in design.item_rows:
            cells[name] = money(sum(map(value, items[expression])))
        else:
            cells[name] = design.result(expression, cells)


def _cells(design, before_end, record):
    """The cells of a record that has so many behind it."""
    cells = {}
    for name in design.names:
        given = [item.get(name, "") for item in record["items"]]
        if design.types[name] == CURRENCY:
            given = [money(Decimal(each)) if each else "" for each in given]
        if name in design.serials:
            cells[name] = str(design.serials[name] - before_end)
        elif name in design.item_rows:
            given += [""] * (design.item_rows[name] - len(given))
            cells[name] = "".join(f"{each}@" for each in given)
        else:
            cells[name] = given[0]
    _calculate(design, cells)
    return cells


def _totals(design, rows):
    """The Totals row, which knows money by the amounts in it."""
    totals = {}
    for name in design.totaled:
        column = [row[name] for row in rows]
        amount = sum(map(value, column))
        totals[name] = money(amount) if any("$" in cell for cell in column) else str(amount)
        if any("@" in cell for cell in column):
            totals[name] = "-----"
    return {name: totals.get(name, "------") for name in design.names}


def data_file(design, records):
    """The bytes of data.dat."""
    rows = [_cells(design, len(records) - number, record) for number, record in enumerate(records, 1)]
    lines = design.lines + ["".join(f"{row[name]}|" for name in design.names) for row in [*rows, _totals(design, rows)]]
    return "".join(f"{line}\r\n" for line in lines).encode("cp1252")
