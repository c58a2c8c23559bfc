"""The colours of the window: dark and quiet, except where a colour means something."""

# Grounds, from the outside in. Text of grey 147 needs a ground no lighter than SLOT_TOP.
GROUND = "#1C1B22"
HEADER_TOP, HEADER_BOTTOM = "#1F1E26", "#141319"
SLOT_TOP, SLOT_BOTTOM = "#2C2B36", "#25242D"
WELL = "#1A1920"

# Lines
HAIRLINE = "#34323F"
SHADOW = "#0E0D12"  # around what is raised or sunk
LIGHT_EDGE = "#4A4856"  # along the top of what is raised

# Keys
KEY_TOP, KEY_BOTTOM = "#454352", "#33313E"
KEY_LIGHT = "#605D72"
SUNK_TOP, SUNK_BOTTOM = "#111015", "#201F27"
FLAT_KEY, FLAT_KEY_EDGE = "#312F3B", "#403E4D"

# Knobs
TRACK = "#413F4D"
CAP_TOP, CAP_BOTTOM = "#5E5B6E", "#34323F"
CAP_LIGHT = "#9592A8"
POINTER = "#FFFFFF"

# Symbols
SYMBOL = "#DADBE3"
DIM = "#77748A"
QUIET_TEXT = "#A5A3B3"
LETTERING = "#F1F0F6"

# Meanings
BLUE = "#6CB2FF"  # an amount, a signal path
ICE = "#CBD9EA"  # a side: left or right
GREEN = "#46D3A2"  # cut, light compression
AMBER = "#F4C350"  # on, medium compression
RED = "#FF7663"  # boost, heavy compression
LEAF = "#84CC78"  # insert: the colour of its menu
LAVENDER = "#B79CD6"  # replace: the colour of its menu


def channels(colour):
    """Red, green and blue from 0 to 1."""
    return tuple(int(colour[start : start + 2], 16) / 255 for start in (1, 3, 5))


def blend(one, other, share):
    """`one` at share 0, `other` at 1."""
    mixed = (a + (b - a) * share for a, b in zip(channels(one), channels(other)))
    return "#" + "".join(f"{round(255 * value):02X}" for value in mixed)
