"""The knobs: a cap with a pointer, in a ring that shows the value.

The ring runs over 270 degrees, from half past seven to half past four. Where its coloured part
begins tells what kind of knob it is, even to those who cannot tell the colours apart.
"""

from drawing.palette import (
    AMBER, BLUE, CAP_BOTTOM, CAP_LIGHT, CAP_TOP, GREEN, ICE, POINTER, RED, SHADOW, SYMBOL, TRACK,
    blend,
)
from drawing.canvas import downward, faded, on_circle

CENTRE_X, CENTRE_Y = 12, 13  # the ring is open at the bottom, so one pixel low looks centred
OUTER_RADIUS = 12
RING_WIDTH = 3
CAP_RADIUS = 7.5
NOON = 0.5  # the value at which the pointer is upright


def degrees(value):
    return 135 + 270 * value


def draw_ring(canvas, start, end, colour, width=RING_WIDTH):
    """A part of the ring, between two values. Narrow parts touch its outer edge."""
    if end > start:
        radius = OUTER_RADIUS - width / 2
        canvas.arc(CENTRE_X, CENTRE_Y, radius, degrees(start), degrees(end), width, colour)


def draw_noon_mark(canvas):
    """A tick above the cap, parted from the ring on both sides."""
    canvas.rectangle(CENTRE_X - 1, CENTRE_Y - OUTER_RADIUS, 2, RING_WIDTH + 0.5, SYMBOL)


def draw_cap(canvas):
    canvas.disc(CENTRE_X, CENTRE_Y + 0.75, CAP_RADIUS + 0.25, faded("#000000", 0.45))
    canvas.disc(CENTRE_X, CENTRE_Y, CAP_RADIUS, SHADOW)
    face = CAP_RADIUS - 0.5
    canvas.disc(CENTRE_X, CENTRE_Y, face,
                downward(CAP_TOP, CAP_BOTTOM, CENTRE_Y - face, 2 * face))
    canvas.arc(CENTRE_X, CENTRE_Y, face - 0.5, 205, 335, 1, faded(CAP_LIGHT, 0.5))


def draw_pointer(canvas, value):
    ends = [on_circle(CENTRE_X, CENTRE_Y, radius, degrees(value)) for radius in (1.5, 8)]
    canvas.line(ends, 2, POINTER)


# The rings


def draw_plain_ring(canvas, value):
    draw_ring(canvas, 0, 1, TRACK)
    draw_ring(canvas, 0, value, BLUE)


GAP = 0.03  # on either side of the noon mark
LEAST = 0.05  # of the ring is coloured as soon as the value leaves the middle, to tell the side


def draw_centred_ring(canvas, value, left, right, left_width, right_width):
    draw_ring(canvas, 0, NOON - GAP, TRACK, left_width)
    draw_ring(canvas, NOON + GAP, 1, TRACK, right_width)
    if value < NOON:
        draw_ring(canvas, min(value, NOON - GAP - LEAST), NOON - GAP, left, left_width)
    if value > NOON:
        draw_ring(canvas, NOON + GAP, max(value, NOON + GAP + LEAST), right, right_width)
    draw_noon_mark(canvas)


def draw_balance_ring(canvas, value):
    draw_centred_ring(canvas, value, ICE, ICE, RING_WIDTH, RING_WIDTH)


def draw_cut_and_boost_ring(canvas, value):
    """A boost is not only red but also wider than a cut."""
    draw_centred_ring(canvas, value, GREEN, RED, RING_WIDTH - 1, RING_WIDTH)


def draw_threshold_ring(canvas, value):
    """What is above the threshold: the lower it is, the more is compressed."""
    if value < NOON:
        colour = blend(RED, AMBER, value / NOON)
    else:
        colour = blend(AMBER, GREEN, (value - NOON) / (1 - NOON))
    draw_ring(canvas, 0, 1, TRACK)
    draw_ring(canvas, value, 1, colour)


def draw_block_ring(canvas, value):
    blocks, gap = 6, 0.02
    for block in range(blocks):
        start, end = block / blocks + gap * (block > 0), (block + 1) / blocks - gap * (block < 5)
        draw_ring(canvas, start, end, TRACK)
        draw_ring(canvas, start, min(end, value), RED)


RINGS = {
    "Blue": draw_plain_ring,
    "Balance": draw_balance_ring,
    "Green2Red_Centred": draw_cut_and_boost_ring,
    "Red2Green_Reversed": draw_threshold_ring,
    "Red": draw_block_ring,
}


def draw_knob(canvas, name, value):
    RINGS[name](canvas, value)
    draw_cap(canvas)
    draw_pointer(canvas, value)
