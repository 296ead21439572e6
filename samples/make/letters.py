"""Letters made of strokes, for titles in pictures.

A letter is drawn on a grid of four columns (A to E) and six rows (0 at the top, 6 at the base line). A stroke
names the points it passes; strokes are parted by blanks. Letters that are missing here are drawn as blanks.
"""

LETTERS = {
    "A": "A6C0E6 B4D4", "B": "A6A0C0E1E2C3A3 C3E4E5C6A6", "C": "E1D0B0A1A5B6D6E5", "D": "A0A6C6E4E2C0A0",
    "E": "E0A0A6E6 A3D3", "F": "E0A0A6 A3D3", "G": "E1D0B0A1A5B6D6E5E3C3", "H": "A0A6 E0E6 A3E3",
    "I": "C0C6", "J": "D0D5C6B6A5", "K": "A0A6 E0A3E6", "L": "A0A6E6",
    "M": "A6A0C3E0E6", "N": "A6A0E6E0", "O": "B0A1A5B6D6E5E1D0B0", "P": "A6A0C0E1E2C3A3",
    "Q": "B0A1A5B6D6E5E1D0B0 D5E6", "R": "A6A0C0E1E2C3A3 C3E6", "S": "E1D0B0A1A2B3D3E4E5D6B6A5", "T": "A0E0 C0C6",
    "U": "A0A5B6D6E5E0", "V": "A0C6E0", "W": "A0B6C2D6E0", "X": "A0E6 E0A6",
    "Y": "A0C3E0 C3C6", "Z": "A0E0A6E6", "0": "B0A1A5B6D6E5E1D0B0", "1": "B1C0C6",
    "2": "A1B0D0E1E2A6E6", "3": "A1B0D0E1E2D3C3 D3E4E5D6B6A5", "4": "D6D0A4E4", "5": "E0A0A3D3E4E5D6A6",
    "6": "E1D0B0A1A5B6D6E5E4D3A3", "7": "A0E0B6", "8": "B0A1A2B3D3E4E5D6B6A5A4B3 D3E2E1D0B0", "9": "E3B3A2A1B0D0E1E5D6B6A5",
    ".": "C6C6", "'": "C0C1", "-": "B3D3", "&": "E6A2A1B0C0D1D2A4A5B6C6E4",
}  # fmt: skip
NARROW = {"I": 0.5, ".": 0.5, "'": 0.5, " ": 0.75}
GAP = 2.0  # between two letters, in columns of the grid


def _columns(letter):
    return 4 * NARROW.get(letter, 1)


def width(text, height):
    """How wide the text gets with letters of that height."""
    return (sum(_columns(letter) + GAP for letter in text.upper()) - GAP) * height / 8


def write(canvas, text, x, y, height, colour, weight=0.13):
    """Writes the text with its top left corner at the point; the weight is that of a stroke to the height."""
    unit = height / 8  # letters are narrower than they are high
    for letter in text.upper():
        inset = (4 - _columns(letter)) / 2
        for stroke in LETTERS.get(letter, "").split():
            points = [
                (x + (ord(stroke[i]) - ord("A") - inset) * unit, y + int(stroke[i + 1]) * height / 6)
                for i in range(0, len(stroke), 2)
            ]
            canvas.stroke(points, height * weight, colour)
        x += (_columns(letter) + GAP) * unit


def wrapped(text, height, room):
    """The text in lines of at most that width, broken at blanks."""
    lines = []
    for word in text.split():
        if lines and width(f"{lines[-1]} {word}", height) <= room:
            lines[-1] += f" {word}"
        else:
            lines.append(word)
    return lines


def write_centred(canvas, text, middle, y, height, colour, weight=0.13):
    write(canvas, text, middle - width(text, height) / 2, y, height, colour, weight)
