#!/usr/bin/env bash
# pictures.sh: makes the pictures that the drawing tests have just written the expected ones, and
# compresses them. Run it after graphics_tests has failed on Linux, and look at each picture before
# you commit it.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/../tests/toolkit/graphics/expected"

for picture in *.actual.png; do
    python3 - "$picture" "${picture%.actual.png}.png" << 'END'
import struct
import sys
import zlib

with open(sys.argv[1], "rb") as file:
    picture = file.read()
with open(sys.argv[2], "wb") as file:
    file.write(picture[:8])
    position = 8
    while position < len(picture):
        length, kind = struct.unpack(">I4s", picture[position:position + 8])
        data = picture[position + 8:position + 8 + length]
        if kind == b"IDAT":
            data = zlib.compress(zlib.decompress(data), 9)
        file.write(struct.pack(">I4s", len(data), kind) + data)
        file.write(struct.pack(">I", zlib.crc32(kind + data)))
        position += 12 + length
END
    rm "$picture"
    rm -f "${picture%.actual.png}.difference.png"
done
