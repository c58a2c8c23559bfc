"""The background of the window: the top row, and the six slots with their wells and keys."""

from drawing.canvas import along, downward
from drawing.hot_spots import SYMBOLS
from drawing.keys import draw_flat_key
from drawing.layout import (
    HEIGHT, HOT_SPOT_SIZE, HOT_SPOT_TOP, PANEL_TOP, ROW_HEIGHT, ROWS, SLOT_PITCH, SLOT_WIDTH, SLOTS,
    WIDTH, hot_spots, slot_left,
)
from drawing.letters import draw_text, text_width
from drawing.palette import (
    BLUE, DIM, GROUND, HAIRLINE, HEADER_BOTTOM, HEADER_TOP, LAVENDER, LETTERING, LIGHT_EDGE,
    QUIET_TEXT, SHADOW, SLOT_BOTTOM, SLOT_TOP, WELL,
)

HEADER_HEIGHT = 70
RIGHT = 729  # the right edge of the last slot
BASELINE = 61  # of the values in the top row

LEGEND = (
    (("left", "right"), "Move"),
    (("insert",), "Insert"),
    (("replace",), "Replace or remove"),
)

# The top row


def draw_header(canvas):
    shade = downward(HEADER_TOP, HEADER_BOTTOM, 0, HEADER_HEIGHT)
    canvas.rectangle(0, 0, WIDTH, HEADER_HEIGHT, shade)
    canvas.rectangle(0, HEADER_HEIGHT, WIDTH, 1, SHADOW)
    stops = (0, BLUE, 0), (0.35, BLUE, 0.55), (0.75, LAVENDER, 0.75), (1, LAVENDER, 0)
    canvas.rectangle(0, HEADER_HEIGHT - 1, WIDTH, 1, along(0, WIDTH, *stops))
    for x in (68, 124, 180, 236):
        canvas.rectangle(x, 12, 1, 48, HAIRLINE)


def draw_legend(canvas, x):
    """What the keys of a slot do. The window has no tool tips."""
    for symbols, words in LEGEND:
        for symbol in symbols:
            x = draw_legend_symbol(canvas, symbol, x) + 6
        draw_text(canvas, words, x, BASELINE, QUIET_TEXT)
        x += text_width(words) + 20


def draw_legend_symbol(canvas, symbol, x):
    """Returns its right edge."""
    margin = 4 if symbol == "replace" else 6  # left and right in the field of the symbol
    with canvas.moved(x - margin, BASELINE - 16):
        SYMBOLS[symbol](canvas)
    return x + HOT_SPOT_SIZE - 2 * margin


def draw_wordmark(canvas, right, baseline):
    """Circles and stems of one width. The C is open and coloured like the ring of a knob."""
    with canvas.moved(right - 92, baseline):
        canvas.arc(12, -11, 10, 45, 315, 2, along(2, 20, (0, BLUE, 1), (1, LAVENDER, 1)))
        canvas.arc(31, -8, 7, 0, 360, 2, LETTERING)
        canvas.rectangle(44, -16, 2, 16, LETTERING)
        canvas.arc(51, -9, 6, 180, 280, 2, LETTERING)
        canvas.line([(55, -16.4), (61.5, -1.5), (68, -16.4)], 2, LETTERING)
        canvas.arc(78, -8, 7, 45, 360, 2, LETTERING)
        canvas.rectangle(71, -9, 15, 2, LETTERING)
        canvas.rectangle(90, -22, 2, 22, LETTERING)


def draw_maker(canvas, right, baseline):
    name, spacing = "LUMATIC", 4
    left = right - text_width(name, "capitals", spacing)
    draw_text(canvas, name, left, baseline, LAVENDER, "capitals", spacing)


# The slots


def draw_slot(canvas, slot):
    x = slot_left(slot)
    canvas.rounded(x, 78, SLOT_WIDTH, 280, 5, SHADOW)
    canvas.rounded(x, 77, SLOT_WIDTH, 280, 5, downward(SLOT_TOP, SLOT_BOTTOM, 78, 52))
    canvas.rectangle(x + 4, 77, SLOT_WIDTH - 8, 1, LIGHT_EDGE)
    draw_well(canvas, x + 3)
    for name, left in hot_spots(slot).items():
        with canvas.moved(left, HOT_SPOT_TOP):
            draw_flat_key(canvas)
            SYMBOLS[name](canvas)


def draw_well(canvas, x):
    """The ground of a panel. It shows rows only, since a control may be left, right or centred."""
    canvas.rounded(x, 128, 106, 226, 3, SHADOW)
    canvas.rounded(x, 129, 106, 225, 3, WELL)
    stops = (0, HAIRLINE, 0), (0.25, HAIRLINE, 0.5), (0.75, HAIRLINE, 0.5), (1, HAIRLINE, 0)
    for row in range(1, ROWS):
        canvas.rectangle(x, PANEL_TOP + 6 + ROW_HEIGHT * row, 106, 1, along(x, 106, *stops))


def draw_direction(canvas, x):
    """A small triangle: the signal goes from left to right."""
    canvas.polygon([(x, 83), (x + 4, 87), (x, 91)], DIM)


def draw_background(canvas):
    canvas.rectangle(0, 0, WIDTH, HEIGHT, GROUND)
    draw_header(canvas)
    draw_legend(canvas, 258)
    draw_wordmark(canvas, RIGHT, 42)
    draw_maker(canvas, RIGHT, BASELINE)
    for slot in range(SLOTS):
        draw_slot(canvas, slot)
    for gap in range(SLOTS + 1):
        draw_direction(canvas, slot_left(0) + SLOT_PITCH * gap - 6)
