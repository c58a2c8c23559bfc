"""The keys that show one of a few choices and open a menu of them."""

import math

from drawing.keys import draw_menu_key
from drawing.letters import draw_text
from drawing.palette import BLUE, DIM, SYMBOL

# Time of the delay: free, quaver, crotchet


def draw_clock(canvas):
    canvas.arc(11, 12, 6.25, 0, 360, 1.5, SYMBOL)
    canvas.line([(11, 8), (11, 12), (13.75, 13.5)], 1.5, SYMBOL, round_ends=True)


def draw_note(canvas, x):
    """A crotchet. `x` is the left edge of its stem."""
    canvas.ellipse(x - 1.6, 16.4, 3.6, 2.6, -20, SYMBOL)
    canvas.rectangle(x, 5, 2, 11.5, SYMBOL)


def draw_flag(canvas, x):
    outer = [(1, 5), (2.6, 7), (4.3, 8.6), (6, 10.5), (6.6, 12.6), (5.8, 15.2)]
    inner = [(5, 13), (4, 11.6), (2.6, 10.6), (1, 10)]
    canvas.polygon([(x + across, y) for across, y in outer + inner], SYMBOL)


def draw_delay_time(canvas, frame):
    draw_menu_key(canvas, 22)
    if frame == 0:
        draw_clock(canvas)
    elif frame == 1:
        draw_note(canvas, 10)
        draw_flag(canvas, 10)
    else:
        draw_note(canvas, 12)


# Modulation: vibrato, ADT, phaser

VIBRATO, ADT, PHASER = range(3)
RAIL_LEFT, RAIL_TOP, RAIL_STEP = 13, 18, 2


def modulation_type(frame):
    """The steps at which the text of the value changes."""
    return VIBRATO if frame <= 3 else ADT if frame <= 6 else PHASER


def draw_curve(canvas, height, middle, colour, shift=0):
    """`height` tells how far the curve is above its middle, at a share of its width."""
    left, width, parts = 8 + shift, 32, 128
    points = [(left + width * part / parts, middle - height(part / parts))
              for part in range(parts + 1)]
    canvas.line(points, 1.75, colour, round_ends=True)


def draw_modulation_symbol(canvas, kind):
    if kind == VIBRATO:
        draw_curve(canvas, lambda share: 4 * math.sin(6 * math.pi * share), 10, SYMBOL)
    elif kind == ADT:  # a voice and its shadow
        def voice(share):
            return 2.5 * math.sin(4 * math.pi * share)

        draw_curve(canvas, voice, 11.25, DIM, 1.5)
        draw_curve(canvas, voice, 8.25, SYMBOL, -1.5)
    else:  # the notches of a comb filter
        draw_curve(canvas, lambda share: 8 * abs(math.sin(3 * math.pi * share)) ** 0.6 - 4, 10,
                   SYMBOL)


def draw_modulation(canvas, frame):
    """The marker on the rail has three stops. Automation may also leave it between them."""
    draw_menu_key(canvas, 46)
    draw_modulation_symbol(canvas, modulation_type(frame))
    canvas.rectangle(RAIL_LEFT, RAIL_TOP, 10 * RAIL_STEP + 2, 1, DIM)
    for stop in (0, 5, 10):
        canvas.rectangle(RAIL_LEFT + RAIL_STEP * stop, RAIL_TOP - 1, 2, 3, DIM)
    canvas.rectangle(RAIL_LEFT - 1 + RAIL_STEP * frame, RAIL_TOP - 2, 4, 4, BLUE)


# Stereo mode

WIRES = (
    ((5, 12, 2, 4), (5, 14, 10, 2), (13, 12, 2, 4), (9, 14, 2, 5)),  # combine
    ((5, 12, 2, 7), (5, 14, 10, 2), (13, 14, 2, 5)),  # all left
    ((13, 12, 2, 7), (5, 14, 10, 2), (5, 14, 2, 5)),  # all right
    ((5, 12, 2, 7), (13, 12, 2, 7)),  # stereo
)


def draw_stereo_mode(canvas, frame):
    """The inputs, dimmed if unused, and below them their wires to the outputs."""
    draw_menu_key(canvas, 22)
    draw_text(canvas, "L", 4, 11, DIM if frame == 2 else SYMBOL, "bold")
    draw_text(canvas, "R", 12, 11, DIM if frame == 1 else SYMBOL, "bold")
    for wire in WIRES[frame]:
        canvas.rectangle(*wire, BLUE)
