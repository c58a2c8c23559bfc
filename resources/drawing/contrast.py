"""Whether text can be read on the background, by the WCAG 2 contrast ratio."""

from typing import NamedTuple

from drawing.layout import label_areas

TEXT_GREYS = (255, 208, 147)  # names, values, disabled text
LEAST_CONTRAST = 4.5


class Contrast(NamedTuple):
    ratio: float
    text_grey: int
    x: int
    y: int


def luminance(red, green, blue):
    def linear(value):
        share = value / 255
        return share / 12.92 if share <= 0.04045 else ((share + 0.055) / 1.055) ** 2.4

    return 0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue)


def contrast(one, other):
    """The ratio of two colours, from 1 to 21. Each is red, green and blue from 0 to 255."""
    darker, lighter = sorted((luminance(*one), luminance(*other)))
    return (lighter + 0.05) / (darker + 0.05)


def worst_contrast(background):
    """The lowest contrast of any text with any pixel that may lie under it."""
    places = (place for area in label_areas() for place in area.pixels())
    colours = {background.pixel(*place)[:3]: place for place in places}
    return min(
        Contrast(contrast((grey,) * 3, colour), grey, *place)
        for colour, place in colours.items()
        for grey in TEXT_GREYS
    )
