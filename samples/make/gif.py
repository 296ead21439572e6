"""Writes GIF files."""


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
    """A GIF file of the picture, which is rows of colours; at most 256 different ones."""
    width, height = len(picture[0]), len(picture)
    palette = sorted({colour for line in picture for colour in line})
    if len(palette) > 256:
        raise ValueError(f"{len(palette)} colours do not fit")
    depth = max(2, (len(palette) - 1).bit_length())
    number = {colour: i for i, colour in enumerate(palette)}
    size = width.to_bytes(2, "little") + height.to_bytes(2, "little")
    head = b"GIF89a" + size + bytes((0x80 | (depth - 1) * 0x11, 0, 0))
    colours = b"".join(map(bytes, palette)).ljust(3 << depth, b"\0")
    place = b"," + bytes(4) + size + b"\0"
    data = lzw([number[colour] for line in picture for colour in line], depth)
    blocks = b"".join(bytes((len(data[i : i + 255]),)) + data[i : i + 255] for i in range(0, len(data), 255))
    return head + colours + place + bytes((depth,)) + blocks + b"\0;"
