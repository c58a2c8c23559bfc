"""What the editor expects of the picture files: their names, sizes and frames."""

from typing import NamedTuple


class Picture(NamedTuple):
    width: int
    frame_height: int
    frames: int  # stacked from top to bottom

    @property
    def height(self):
        return self.frame_height * self.frames


KNOB = Picture(24, 24, 63)
SINGLE = Picture(24, 24, 1)

PICTURES = {
    "Background": Picture(748, 370, 1),
    "Balance": KNOB,
    "Blue": KNOB,
    "Green2Red_Centred": KNOB,
    "Red2Green_Reversed": KNOB,
    "Red": KNOB,
    "DelayType": Picture(24, 24, 3),
    "MonoStereoText": Picture(24, 24, 4),
    "Modulation": Picture(48, 24, 11),
    "ButtonUp": SINGLE,
    "ButtonDown": SINGLE,
    "Help": SINGLE,
}
