"""The few letters that the pictures need, drawn dot by dot.

They are our own, so that the pictures do not depend on the fonts of a machine.
"""

from drawing.canvas import faded

OPACITIES = {" ": 0, ".": 0.3, "o": 0.65, "#": 1}

# Each letter from the height of the capitals (7 dots) to the baseline. A "p" goes 2 further.
REGULAR = {
    "I": ("#",) * 7,
    "M": ("#.   .#", "#o   o#", "#.o o.#", "# o o #", "# .#. #", "#  o  #", "#     #"),
    "R": ("####o ", "#   .#", "#   .#", "####o ", "#  .o ", "#   o.", "#   .#"),
    "a": ("", "", ".###.", "    #", ".####", "#  .#", ".##o#"),
    "c": ("", "", ".###.", "#. .o", "#    ", "#. .o", ".###."),
    "e": ("", "", ".###.", "#   #", "#####", "#.   ", ".###."),
    "l": ("#",) * 7,
    "m": ("", "", "#o#.o#.", "#  #  #", "#  #  #", "#  #  #", "#  #  #"),
    "n": ("", "", "#o##.", "#. .#", "#   #", "#   #", "#   #"),
    "o": ("", "", ".###.", "#. .#", "#   #", "#. .#", ".###."),
    "p": ("", "", "#o##.", "#. .#", "#   #", "#. .#", "#o##.", "#", "#"),
    "r": ("", "", "#o#", "#. ", "#  ", "#  ", "#  "),
    "s": ("", "", ".###", "#.  ", ".##.", "  .#", "###."),
    "t": ("", "#  ", "###", "#  ", "#  ", "#. ", ".##"),
    "v": ("", "", "#   #", "o. .o", ".o o.", " o.o ", " .#. "),
    " ": ("  ",),
}
CAPITALS = {
    "L": ("#   ",) * 6 + ("####",),
    "U": ("#    #",) * 5 + ("#.  .#", ".####."),
    "M": REGULAR["M"],
    "A": ("  #  ", " .#. ", " o o ", " #.# ", ".###.", "o   o", "#   #"),
    "T": ("#####",) + ("  #  ",) * 6,
    "I": REGULAR["I"],
    "C": (".####.", "#.  .o", "#     ", "#     ", "#     ", "#.  .o", ".####."),
}
BOLD = {
    "L": ("##  ", "##  ", "##  ", "##  ", "##  ", "####"),
    "R": ("###.", "#.##", "#.##", "###.", "#.##", "#.##"),
}
ALPHABETS = {"regular": REGULAR, "capitals": CAPITALS, "bold": BOLD}
HEIGHTS = {"regular": 7, "capitals": 7, "bold": 6}


def letter_width(letter, style):
    return max(map(len, ALPHABETS[style][letter]))


def text_width(text, style="regular", spacing=1):
    return sum(letter_width(letter, style) + spacing for letter in text) - spacing


def draw_letter(canvas, letter, x, baseline, colour, style):
    for y, dots in enumerate(ALPHABETS[style][letter], baseline - HEIGHTS[style]):
        for offset, dot in enumerate(dots):
            if dot != " ":
                canvas.rectangle(x + offset, y, 1, 1, faded(colour, OPACITIES[dot]))


def draw_text(canvas, text, x, baseline, colour, style="regular", spacing=1):
    """The lowest row of dots is the one above `baseline`."""
    for letter in text:
        draw_letter(canvas, letter, x, baseline, colour, style)
        x += letter_width(letter, style) + spacing
