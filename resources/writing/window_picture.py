"""The picture of the editor with a number at each thing that the text below it explains."""

import base64

WIDTH, HEIGHT = 748, 370
BUTTONS = 17 + 4 * 120  # the left edge of the slot whose buttons have numbers

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
        f'<text x="{x}" y="{y + 4}" fill="#14131a">{number}</text>'
    )


def label(x, y, text, colour="#e6e4ee"):
    return f'<text x="{x}" y="{y}" fill="{colour}">{text}</text>'


def box(x, y, width, height, fill):
    return f'<rect x="{x}" y="{y}" width="{width}" height="{height}" rx="4" fill="{fill}"/>'


def drawing():
    """A plain drawing of the window, for as long as there is no screenshot."""
    parts = [f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#1c1b23"/>']
    for x, name in ((16, "InputGain"), (72, "In"), (128, "Out"), (184, "Help")):
        parts += [label(x + 22, 26, name), box(x + 12, 29, 24, 24, "#4a4759")]
    names = ("DeEsser", "Compressor", "3Band", "Modulator 1", "Delay", "Reverb")
    for slot, name in enumerate(names):
        left = 17 + 120 * slot
        parts += [box(left - 2, 76, 116, 280, "#2a2833"), label(left + 56, 90, name)]
        for button, sign in enumerate("\u2190+\u21c5\u2192"):
            if (slot, button) not in ((0, 0), (5, 3)):
                parts.append(box(left + 5 + 26 * button, 96, 24, 24, "#4a4759"))
                parts.append(label(left + 17 + 26 * button, 112, sign))
        parts.append(label(left + 56, 240, "controls", "#a7a3b8"))
    return "".join(parts)


def screenshot(png):
    data = base64.b64encode(png).decode("ascii")
    return f'<image width="{WIDTH}" height="{HEIGHT}" href="data:image/png;base64,{data}"/>'


def window_picture(png):
    """@param png  the bytes of a screenshot of WIDTH by HEIGHT pixels, or None."""
    numbers = "".join(number_svg(i, centre) for i, centre in enumerate(NUMBERS, start=1))
    return (
        '<figure class="window" tabindex="0">\n'
        f'<svg viewBox="0 0 {WIDTH} {HEIGHT}" role="img" aria-label="The window of Corvel: a top row and '
        'six slots. The numbers are explained below."'
        ' font-family="Arial, sans-serif" font-size="11" text-anchor="middle">\n'
        f'{screenshot(png) if png else drawing()}\n<g font-weight="bold">{numbers}</g>\n</svg>\n</figure>'
    )
