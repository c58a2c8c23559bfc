#!/usr/bin/python3
"""draw_pictures.py [--check]: draws the pictures of the editor into the folder beside it.

With --check it draws nothing, but proves that text can be read everywhere on the background that is
there, and prints the worst contrast. Drawing needs python3-cairo, checking does not.
"""

import argparse
import sys
from pathlib import Path

from drawing.catalogue import PICTURES
from drawing.contrast import LEAST_CONTRAST, worst_contrast
from drawing.png import decode, encode

FOLDER = Path(__file__).resolve().parent / "pictures"


def draw_all():
    from drawing.pictures import draw_picture

    for name in PICTURES:
        (FOLDER / f"{name}.png").write_bytes(encode(draw_picture(name)))


def check():
    worst = worst_contrast(decode((FOLDER / "Background.png").read_bytes()))
    place = f"at ({worst.x}, {worst.y})"
    print(f"The worst contrast is {worst.ratio:.2f}, of text of grey {worst.text_grey} {place}.")
    return worst.ratio >= LEAST_CONTRAST


def main():
    parser = argparse.ArgumentParser(description="Draws the pictures of the editor.")
    parser.add_argument("--check", action="store_true", help="prove that all text can be read")
    if parser.parse_args().check:
        return 0 if check() else 1
    draw_all()
    return 0


if __name__ == "__main__":
    sys.exit(main())
