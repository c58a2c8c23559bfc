"""Reads and writes PNG files of 8-bit RGBA with straight alpha, without interlacing or metadata."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
BYTES = 4  # per pixel


class Image:
    """Rows of red, green, blue and alpha, from the top."""

    def __init__(self, width, height, rgba):
        self.width, self.height, self.rgba = width, height, rgba

    def pixel(self, x, y):
        start = BYTES * (y * self.width + x)
        return tuple(self.rgba[start : start + BYTES])

    def rows(self):
        size = BYTES * self.width
        return [self.rgba[start : start + size] for start in range(0, len(self.rgba), size)]


# The five filters of PNG guess a byte from the ones to the left, above, and above left.


def paeth(left, above, corner):
    guess = left + above - corner
    return min((left, above, corner), key=lambda near: abs(guess - near))


GUESSES = (
    lambda left, above, corner: 0,
    lambda left, above, corner: left,
    lambda left, above, corner: above,
    lambda left, above, corner: (left + above) // 2,
    paeth,
)


def filter_row(number, row, previous):
    guess, left_of, corner_of = GUESSES[number], bytes(BYTES) + row, bytes(BYTES) + previous
    return bytes(
        (value - guess(left, above, corner)) & 255
        for value, left, above, corner in zip(row, left_of, previous, corner_of)
    )


def unfilter_row(number, filtered, previous):
    guess, row = GUESSES[number], bytearray(BYTES)  # pixels left of the picture count as zeros
    for above, corner, rest in zip(previous, bytes(BYTES) + previous, filtered):
        row.append((rest + guess(row[-BYTES], above, corner)) & 255)
    return bytes(row[BYTES:])


# Writing


def filtered_in_every_way(image):
    """The rows of the picture with each filter alone, then with the best guess for each row."""
    rows = image.rows()
    previous = [bytes(BYTES * image.width)] + rows[:-1]
    ways = [
        [bytes([number]) + filter_row(number, row, above) for row, above in zip(rows, previous)]
        for number in range(len(GUESSES))
    ]
    yield from ways

    def distance_from_zero(row):
        return sum(min(value, 256 - value) for value in row)

    yield [min(choices, key=distance_from_zero) for choices in zip(*ways)]


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def encode(image):
    """The smallest file that any of the filters gives."""
    header = struct.pack(">IIBBBBB", image.width, image.height, 8, 6, 0, 0, 0)
    data = min((zlib.compress(b"".join(rows), 9) for rows in filtered_in_every_way(image)), key=len)
    return SIGNATURE + chunk(b"IHDR", header) + chunk(b"IDAT", data) + chunk(b"IEND", b"")


# Reading


def chunks(file):
    """The kind and the data of each chunk. Raises ValueError if the file is damaged."""
    if not file.startswith(SIGNATURE):
        raise ValueError("no PNG signature")
    position = len(SIGNATURE)
    while position < len(file):
        length, kind = struct.unpack_from(">I4s", file, position)
        data = file[position + 8 : position + 8 + length]
        if file[position : position + 12 + length] != chunk(kind, data):
            raise ValueError(f"damaged {kind.decode('ascii', 'replace')} chunk")
        yield kind, data
        position += 12 + length


def decode(file):
    """Raises ValueError if the file is not what `encode` writes."""
    kinds, contents = zip(*chunks(file))
    if kinds != (b"IHDR", b"IDAT", b"IEND"):
        raise ValueError("chunks other than IHDR, IDAT, IEND")
    width, height, *form = struct.unpack(">IIBBBBB", contents[0])
    if form != [8, 6, 0, 0, 0]:
        raise ValueError("not 8-bit RGBA without interlacing")
    data, size = zlib.decompress(contents[1]), 1 + BYTES * width
    if len(data) != height * size:
        raise ValueError("the wrong number of bytes for its size")
    rows = [bytes(BYTES * width)]
    for start in range(0, len(data), size):
        rows.append(unfilter_row(data[start], data[start + 1 : start + size], rows[-1]))
    return Image(width, height, b"".join(rows[1:]))
