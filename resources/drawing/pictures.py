"""Draws each picture of the catalogue."""

from drawing.background import draw_background
from drawing.canvas import Canvas
from drawing.catalogue import PICTURES
from drawing.choices import draw_delay_time, draw_modulation, draw_stereo_mode
from drawing.keys import draw_button_down, draw_button_up, draw_help
from drawing.knobs import RINGS, draw_knob

WHOLE = {
    "Background": draw_background,
    "ButtonUp": draw_button_up,
    "ButtonDown": draw_button_down,
    "Help": draw_help,
}
BY_FRAME = {
    "DelayType": draw_delay_time,
    "Modulation": draw_modulation,
    "MonoStereoText": draw_stereo_mode,
}


def draw_frame(canvas, name, frame, frames):
    if name in RINGS:
        draw_knob(canvas, name, frame / (frames - 1))
    elif name in BY_FRAME:
        BY_FRAME[name](canvas, frame)
    else:
        WHOLE[name](canvas)


def draw_picture(name):
    picture = PICTURES[name]
    canvas = Canvas(picture.width, picture.height)
    for frame in range(picture.frames):
        top = frame * picture.frame_height
        with canvas.clipped(0, top, picture.width, picture.frame_height), canvas.moved(0, top):
            draw_frame(canvas, name, frame, picture.frames)
    return canvas.image()
