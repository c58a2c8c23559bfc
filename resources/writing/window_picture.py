"""The pictures of the editor. One has a number at each thing that the text below it explains."""

import base64
import struct

WIDTH, HEIGHT = 748, 370
BUTTONS = 17 + 4 * 120  # the left edge of the slot whose buttons have numbers

MENU_VIEW = (256, 72, 492, 359)  # from the third slot on, below the top row

# The centres of the numbers, in pixels of the picture, where it shows nothing else
NUMBERS = (
    (38, 8),  # input gain
    (94, 8),  # In
    (150, 8),  # Out
    (206, 8),  # Help
    (BUTTONS + 8, 86),  # the name of the module
    (BUTTONS + 17, 127),  # move left
    (BUTTONS + 43, 127),  # insert
    (BUTTONS + 69, 127),  # replace
    (BUTTONS + 95, 127),  # move right
    (BUTTONS + 56, 352),  # the module's controls
)


def number_svg(number, centre):
    x, y = centre
    return (
        f'<circle cx="{x}" cy="{y}" r="8.5" fill="#ffd84d" stroke="#14131a" stroke-width="1.5"/>'
        f'<text x="{x}" y="{y}" fill="#14131a">{number}</text>'
    )


def screenshot(png):
    width, height = struct.unpack(">II", png[16:24])  # from the header
    data = base64.b64encode(png).decode("ascii")
    return f'<image width="{width}" height="{height}" href="data:image/png;base64,{data}"/>'


def figure(kind, view, title, content):
    """@param view  the part of the picture that is shown: x, y, width, height."""
    view_box = " ".join(map(str, view))
    return (
        f'<figure class="{kind}" tabindex="0">\n<svg viewBox="{view_box}" role="img"'
        f' aria-label="{title}">\n{content}\n</svg>\n</figure>'
    )


def window_picture(png):
    """@param png  the bytes of a screenshot of WIDTH by HEIGHT pixels."""
    numbers = "".join(number_svg(i, centre) for i, centre in enumerate(NUMBERS, start=1))
    style = (
        'font-family="Arial, sans-serif" font-size="11" font-weight="bold" text-anchor="middle"'
        ' dominant-baseline="central"'
    )
    return figure(
        "window",
        (0, 0, WIDTH, HEIGHT),
        "The window of Corvel: a top row and six slots. The numbers are explained below.",
        f"{screenshot(png)}\n<g {style}>{numbers}</g>",
    )


def menu_picture(png):
    """The right half of a screenshot in which the menu of the fourth slot is open."""
    title = "The menu of the plus: the modules, with those in the chain in blue."
    return figure("menu", MENU_VIEW, title, screenshot(png))
