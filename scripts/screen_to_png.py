#!/usr/bin/env python3
"""screen_to_png.py SCREEN FILE.png: turns a screen file of Xvfb (-fbdir) into a picture.

The file has the format of xwd: a header of big-endian numbers, a colour map, and the rows, of four
bytes a pixel in the order blue, green, red, unused.
"""
import struct
import sys
import zlib

HEADER_SIZE, WIDTH, HEIGHT, BITS_PER_PIXEL, BYTES_PER_LINE, COLOURS = 0, 4, 5, 11, 12, 19
COLOUR_SIZE = 12


def read_rows(data):
    header = struct.unpack('>25I', data[:100])
    if header[BITS_PER_PIXEL] != 32:
        raise ValueError('a screen of %d bits a pixel' % header[BITS_PER_PIXEL])
    start = header[HEADER_SIZE] + header[COLOURS] * COLOUR_SIZE
    for y in range(header[HEIGHT]):
        row = data[start + y * header[BYTES_PER_LINE]:][:header[WIDTH] * 4]
        pixels = bytearray(header[WIDTH] * 3)
        for channel in range(3):
            pixels[channel::3] = row[2 - channel::4]
        yield bytes(pixels)


def chunk(kind, content):
    checksum = zlib.crc32(kind + content)
    return struct.pack('>I', len(content)) + kind + content + struct.pack('>I', checksum)


def to_png(rows):
    header = struct.pack('>IIBBBBB', len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0)
    pixels = zlib.compress(b''.join(b'\0' + row for row in rows), 9)
    return (b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', header) + chunk(b'IDAT', pixels) +
            chunk(b'IEND', b''))


def main(screen, picture):
    with open(screen, 'rb') as file:
        rows = list(read_rows(file.read()))
    with open(picture, 'wb') as file:
        file.write(to_png(rows))


if __name__ == '__main__':
    main(*sys.argv[1:])
