"""The keys: raised, sunk, and the flat ones of the hot spots."""

from drawing.canvas import downward, faded
from drawing.palette import (
    AMBER, FLAT_KEY, FLAT_KEY_EDGE, KEY_BOTTOM, KEY_LIGHT, KEY_TOP, SHADOW, SUNK_BOTTOM, SUNK_TOP,
    SYMBOL,
)

CORNER = 3.5
# A key is smaller than its frame, whose first and last row reach into the labels of the control.
LEFT, TOP, HEIGHT = 1, 2, 20


def draw_raised_key(canvas, width):
    canvas.rounded(LEFT, TOP, width, HEIGHT, CORNER, SHADOW)
    face = downward(KEY_TOP, KEY_BOTTOM, TOP + 1, HEIGHT - 2)
    canvas.rounded(LEFT + 1, TOP + 1, width - 2, HEIGHT - 2, CORNER - 1, face)
    canvas.rectangle(LEFT + 3, TOP + 1, width - 6, 1, KEY_LIGHT)


def draw_sunk_key(canvas, width):
    canvas.rounded(LEFT, TOP, width, HEIGHT, CORNER, KEY_LIGHT)
    face = downward(SUNK_TOP, SUNK_BOTTOM, TOP + 1, HEIGHT - 2)
    canvas.rounded(LEFT + 1, TOP + 1, width - 2, HEIGHT - 2, CORNER - 1, face)


def draw_menu_key(canvas, width):
    """The small triangle in its corner says that a menu opens."""
    draw_raised_key(canvas, width)
    right, bottom = LEFT + width - 2, TOP + HEIGHT - 2
    canvas.polygon([(right, bottom - 4), (right, bottom), (right - 4, bottom)], faded(SYMBOL, 0.75))


def draw_flat_key(canvas):
    """As large as a hot spot, and flat, so that 22 of them do not outshine the knobs."""
    canvas.rounded(0, 0, 24, 24, 4, FLAT_KEY_EDGE)
    canvas.rounded(1, 1, 22, 22, 3, FLAT_KEY)


# The latching buttons


def draw_button_up(canvas):
    draw_raised_key(canvas, 22)
    canvas.arc(12, 12, 3.5, 0, 360, 1.5, SYMBOL)


def draw_button_down(canvas):
    draw_sunk_key(canvas, 22)
    for radius, opacity in ((7.5, 0.1), (6, 0.2)):
        canvas.disc(12, 12, radius, faded(AMBER, opacity))
    canvas.disc(12, 12, 4.25, AMBER)


# The help button


def draw_help(canvas):
    draw_raised_key(canvas, 22)
    canvas.arc(12, 9.5, 3, 190, 395, 2, SYMBOL)
    canvas.line([(14.4, 11), (12, 13), (12, 14.5)], 2, SYMBOL)
    canvas.rectangle(11, 16, 2, 2, SYMBOL)
