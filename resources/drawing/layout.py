"""Where the editor puts its slots, labels and hot spots, in pixels of the window."""

from typing import NamedTuple

WIDTH, HEIGHT = 748, 370
SLOTS = 6
SLOT_PITCH = 120
SLOT_WIDTH = 112
HOT_SPOT_SIZE = 24
HOT_SPOT_TOP = 96
PANEL_TOP = 132
ROWS = 4
ROW_HEIGHT = 52
TOP_CONTROLS = (16, 72, 128, 184)  # left edges: input gain, input mode, output mode, help
TOP_ROW = 16


class Area(NamedTuple):
    x: int
    y: int
    width: int
    height: int

    def pixels(self):
        for y in range(self.y, self.y + self.height):
            for x in range(self.x, self.x + self.width):
                yield x, y


def slot_left(slot):
    return 17 + SLOT_PITCH * slot


def hot_spots(slot):
    """The left edges of the hot spots, by their names."""
    left = slot_left(slot)
    edges = {"left": left + 5, "insert": left + 31, "replace": left + 57, "right": left + 83}
    if slot == 0:
        del edges["left"]
    if slot == SLOTS - 1:
        del edges["right"]
    return edges


def label(x, y):
    return Area(x, y, 48, 13)


def top_labels():
    for x in TOP_CONTROLS:
        yield label(x - 2, TOP_ROW)
        yield label(x, TOP_ROW + 35)


def panel_labels(slot):
    """A control is in the left or the right column, or centred."""
    for x in (8, 56, 32):
        for row in range(ROWS):
            for y in (8, 43):
                yield label(slot_left(slot) + x, PANEL_TOP + ROW_HEIGHT * row + y)


def label_areas():
    """Every place in the window where text may be drawn."""
    yield from top_labels()
    for slot in range(SLOTS):
        yield Area(slot_left(slot), 80, SLOT_WIDTH, 13)
        yield from panel_labels(slot)
