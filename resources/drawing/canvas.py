"""A canvas to draw on with cairo, in pixels from the top left corner."""

import math
from contextlib import contextmanager

import cairo

from drawing.palette import channels
from drawing.png import Image

# Paints: a colour, a see-through colour, or a gradient.


def faded(colour, opacity):
    return cairo.SolidPattern(*channels(colour), opacity)


def downward(top, bottom, y, height):
    """From the colour `top` at `y` to the colour `bottom` at `y + height`."""
    return gradient(cairo.LinearGradient(0, y, 0, y + height), ((0, top, 1), (1, bottom, 1)))


def along(x, width, *stops):
    """From left to right. A stop is a share of the width, a colour and an opacity."""
    return gradient(cairo.LinearGradient(x, 0, x + width, 0), stops)


def gradient(pattern, stops):
    for share, colour, opacity in stops:
        pattern.add_color_stop_rgba(share, *channels(colour), opacity)
    return pattern


def on_circle(x, y, radius, degrees):
    """Degrees count clockwise from three o'clock."""
    turn = math.radians(degrees)
    return x + radius * math.cos(turn), y + radius * math.sin(turn)


class Canvas:
    def __init__(self, width, height):
        self._surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width, height)
        self._context = cairo.Context(self._surface)
        self._context.set_antialias(cairo.ANTIALIAS_BEST)
        self._context.set_line_join(cairo.LINE_JOIN_ROUND)

    @contextmanager
    def moved(self, x, y):
        """Within, (0, 0) is (x, y)."""
        self._context.save()
        self._context.translate(x, y)
        yield
        self._context.restore()

    @contextmanager
    def turned(self, size):
        """Within, a square field of that size is upside down."""
        self._context.save()
        self._context.translate(size, size)
        self._context.scale(-1, -1)
        yield
        self._context.restore()

    @contextmanager
    def clipped(self, x, y, width, height):
        self._context.save()
        self._context.rectangle(x, y, width, height)
        self._context.clip()
        yield
        self._context.restore()

    # Filled shapes

    def rectangle(self, x, y, width, height, paint):
        self._context.rectangle(x, y, width, height)
        self._fill(paint)

    def rounded(self, x, y, width, height, radius, paint):
        quarter = math.pi / 2
        corners = (
            (x + width - radius, y + radius),
            (x + width - radius, y + height - radius),
            (x + radius, y + height - radius),
            (x + radius, y + radius),
        )
        for turn, corner in enumerate(corners, -1):
            self._context.arc(*corner, radius, turn * quarter, (turn + 1) * quarter)
        self._fill(paint)

    def polygon(self, points, paint):
        self._trace(points)
        self._fill(paint)

    def disc(self, x, y, radius, paint):
        self._context.arc(x, y, radius, 0, 2 * math.pi)
        self._fill(paint)

    def ellipse(self, x, y, radius_x, radius_y, degrees, paint):
        self._context.save()
        self._context.translate(x, y)
        self._context.rotate(math.radians(degrees))
        self._context.scale(radius_x, radius_y)
        self._context.arc(0, 0, 1, 0, 2 * math.pi)
        self._context.restore()
        self._fill(paint)

    # Strokes

    def line(self, points, width, paint, round_ends=False):
        self._trace(points)
        self._stroke(width, paint, round_ends)

    def arc(self, x, y, radius, start, end, width, paint, round_ends=False):
        """Clockwise, in degrees from three o'clock. The radius ends in the middle of the line."""
        self._context.new_path()
        self._context.arc(x, y, radius, math.radians(start), math.radians(end))
        self._stroke(width, paint, round_ends)

    # The result

    def image(self):
        """What was drawn, with straight alpha."""
        self._surface.flush()
        width, height = self._surface.get_width(), self._surface.get_height()
        premultiplied = bytes(self._surface.get_data())  # blue, green, red, alpha
        rgba = bytearray(len(premultiplied))
        for start in range(0, len(rgba), 4):
            blue, green, red, alpha = premultiplied[start : start + 4]
            if alpha == 255:
                rgba[start : start + 4] = red, green, blue, alpha
            elif alpha > 0:
                straight = ((255 * value + alpha // 2) // alpha for value in (red, green, blue))
                rgba[start : start + 4] = *straight, alpha
        return Image(width, height, bytes(rgba))

    def _trace(self, points):
        self._context.new_path()
        for point in points:
            self._context.line_to(*point)

    def _use(self, paint):
        if isinstance(paint, str):
            self._context.set_source_rgb(*channels(paint))
        else:
            self._context.set_source(paint)

    def _fill(self, paint):
        self._use(paint)
        self._context.fill()

    def _stroke(self, width, paint, round_ends):
        self._use(paint)
        self._context.set_line_width(width)
        self._context.set_line_cap(cairo.LINE_CAP_ROUND if round_ends else cairo.LINE_CAP_BUTT)
        self._context.stroke()
