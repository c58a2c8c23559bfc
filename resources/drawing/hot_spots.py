"""The symbols of the hot spots, on a field of 24 by 24 pixels."""

from drawing.palette import LAVENDER, LEAF, SYMBOL


def draw_left(canvas):
    canvas.line([(7, 12), (18, 12)], 2, SYMBOL)
    canvas.line([(11, 7.5), (6.5, 12), (11, 16.5)], 2, SYMBOL)


def draw_right(canvas):
    with canvas.turned(24):
        draw_left(canvas)


def draw_insert(canvas):
    canvas.rectangle(11, 6, 2, 12, LEAF)
    canvas.rectangle(6, 11, 12, 2, LEAF)


def draw_up(canvas):
    """Left of the middle, to leave room for its counterpart."""
    canvas.line([(8, 7), (8, 18)], 2, LAVENDER)
    canvas.line([(4.25, 10.25), (8, 6.5), (11.75, 10.25)], 2, LAVENDER)


def draw_replace(canvas):
    """One module leaves and another comes: across the chain, while a move is along it."""
    draw_up(canvas)
    with canvas.turned(24):
        draw_up(canvas)


SYMBOLS = {
    "left": draw_left,
    "insert": draw_insert,
    "replace": draw_replace,
    "right": draw_right,
}
