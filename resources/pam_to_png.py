#!/usr/bin/python3
"""pam_to_png.py FILE.pam FILE.png: turns a picture of the tests' editor_screenshot into a PNG file."""

import sys
from pathlib import Path

from drawing.png import Image, encode


def read_pam(data):
    """@param data  a PAM file of 8-bit RGBA. Raises ValueError if it is anything else."""
    head, mark, pixels = data.partition(b"ENDHDR\n")
    fields = dict(line.split(b" ", 1) for line in head.splitlines()[1:])
    form = (fields.get(b"DEPTH"), fields.get(b"MAXVAL"), fields.get(b"TUPLTYPE"))
    if not (head.startswith(b"P7\n") and mark and form == (b"4", b"255", b"RGB_ALPHA")):
        raise ValueError("not a PAM file of 8-bit RGBA")
    width, height = int(fields[b"WIDTH"]), int(fields[b"HEIGHT"])
    if len(pixels) != 4 * width * height:
        raise ValueError("the wrong number of bytes for its size")
    return Image(width, height, pixels)


def main():
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    Path(sys.argv[2]).write_bytes(encode(read_pam(Path(sys.argv[1]).read_bytes())))
    return 0


if __name__ == "__main__":
    sys.exit(main())
