"""The checked-in pictures are what the editor expects and what the script draws."""

import unittest

from draw_pictures import FOLDER
from drawing import layout
from drawing.catalogue import PICTURES
from drawing.contrast import LEAST_CONTRAST, worst_contrast
from drawing.png import Image, decode

try:
    from drawing.pictures import draw_picture
except ImportError:  # no python3-cairo
    draw_picture = None

FRAMES = {
    "Background": (748, 370, 1),
    "Balance": (24, 24, 63),
    "Blue": (24, 24, 63),
    "ButtonDown": (24, 24, 1),
    "ButtonUp": (24, 24, 1),
    "DelayType": (24, 24, 3),
    "Green2Red_Centred": (24, 24, 63),
    "Help": (24, 24, 1),
    "Modulation": (48, 24, 11),
    "MonoStereoText": (24, 24, 4),
    "Red": (24, 24, 63),
    "Red2Green_Reversed": (24, 24, 63),
}


def setUpModule():
    global pictures
    pictures = {name: decode((FOLDER / f"{name}.png").read_bytes()) for name in FRAMES}


def cut(image, x, y, width, height):
    size = 4 * width
    starts = (4 * (row * image.width + x) for row in range(y, y + height))
    return Image(width, height, b"".join(image.rgba[start : start + size] for start in starts))


def frames(name):
    width, height, count = FRAMES[name]
    return [cut(pictures[name], 0, height * frame, width, height) for frame in range(count)]


def controls():
    return (name for name in FRAMES if name != "Background")


class Files(unittest.TestCase):
    def test_the_folder_holds_these_and_no_others(self):
        names = sorted(path.name for path in FOLDER.iterdir())
        self.assertEqual(names, [f"{name}.png" for name in sorted(FRAMES)])

    def test_the_script_draws_these_and_no_others(self):
        self.assertEqual({name: tuple(picture) for name, picture in PICTURES.items()}, FRAMES)

    def test_sizes(self):
        for name, (width, height, count) in FRAMES.items():
            picture = pictures[name]
            self.assertEqual((picture.width, picture.height), (width, height * count), name)

    def test_each_frame_differs_from_the_others(self):
        for name in controls():
            distinct = {frame.rgba for frame in frames(name)}
            self.assertEqual(len(distinct), FRAMES[name][2], name)

    def test_controls_leave_the_rows_clear_that_they_share_with_their_labels(self):
        for name in controls():
            for frame in frames(name):
                for row in (frame.rows()[0], frame.rows()[-1]):
                    self.assertEqual(set(row), {0}, name)


def seen(image):
    """Channels multiplied by alpha: what the colour of a faint pixel is does not matter much."""
    for start in range(0, len(image.rgba), 4):
        *colour, alpha = image.rgba[start : start + 4]
        yield from (channel * alpha / 255 for channel in colour)
        yield alpha


def greatest_difference(one, other):
    return max(abs(a - b) for a, b in zip(seen(one), seen(other)))


# Knobs

SMOOTHING = 16  # cairo smooths left and right edges a little differently


def is_colourful(pixel):
    red, green, blue, alpha = pixel
    return alpha > 200 and max(red, green, blue) - min(red, green, blue) > 60


def coloured_places(frame):
    places = ((x, y) for y in range(frame.height) for x in range(frame.width))
    return [place for place in places if is_colourful(frame.pixel(*place))]


def coloured_sizes(name):
    """How many pixels of each frame are coloured. Neighbours may differ by one or so either way."""
    return [len(coloured_places(frame)) for frame in frames(name)]


def mirrored(frame):
    rows = ([row[x : x + 4] for x in range(0, len(row), 4)] for row in frame.rows())
    rgba = b"".join(b"".join(reversed(row)) for row in rows)
    return Image(frame.width, frame.height, rgba)


class Knobs(unittest.TestCase):
    def test_rings_fill_from_the_left(self):
        for name in ("Blue", "Red"):
            sizes = coloured_sizes(name)
            self.assertEqual(sizes[::4], sorted(sizes[::4]), name)
            self.assertEqual(sizes[0], 0, name)
            self.assertGreater(sizes[-1], 100, name)

    def test_the_reversed_ring_empties_from_the_left(self):
        sizes = coloured_sizes("Red2Green_Reversed")
        self.assertEqual(sizes[::4], sorted(sizes[::4], reverse=True))
        self.assertEqual(sizes[-1], 0)
        self.assertGreater(sizes[0], 100)

    def test_centred_rings_are_empty_and_even_in_the_middle(self):
        middle = frames("Balance")[31]
        self.assertLessEqual(greatest_difference(middle, mirrored(middle)), SMOOTHING)
        self.assertEqual(coloured_sizes("Green2Red_Centred")[31], 0)

    def test_balance_looks_alike_to_both_sides(self):
        strip = frames("Balance")
        for left, right in ((0, 62), (15, 47), (30, 32)):
            difference = greatest_difference(strip[left], mirrored(strip[right]))
            self.assertLessEqual(difference, SMOOTHING, f"frames {left} and {right}")

    def test_cut_is_left_of_the_middle_and_boost_is_right(self):
        strip = frames("Green2Red_Centred")
        self.assertLess(max(x for x, y in coloured_places(strip[0])), 12)
        self.assertGreaterEqual(min(x for x, y in coloured_places(strip[62])), 12)

    def test_the_first_step_from_the_middle_shows_its_side(self):
        strip = frames("Green2Red_Centred")
        for frame, is_left in ((30, True), (32, False)):
            places = coloured_places(strip[frame])
            self.assertTrue(places, frame)
            self.assertTrue(all((x < 12) == is_left for x, y in places), frame)


# The background


def key(name, slot):
    left = layout.hot_spots(slot)[name]
    return cut(pictures["Background"], left, 96, 24, 24).rgba


class Background(unittest.TestCase):
    def test_is_opaque(self):
        self.assertEqual(set(pictures["Background"].rgba[3::4]), {255})

    def test_text_can_be_read_everywhere(self):
        worst = worst_contrast(pictures["Background"])
        self.assertGreaterEqual(worst.ratio, LEAST_CONTRAST, worst)

    def test_a_key_fills_each_hot_spot(self):
        background = pictures["Background"]
        for slot in range(6):
            ground = layout.slot_left(slot) + 2  # a column with no key
            for left in layout.hot_spots(slot).values():
                for x in (left, left + 23):
                    self.assertNotEqual(background.pixel(x, 108), background.pixel(ground, 108))
                for x in (left - 1, left + 24):
                    self.assertEqual(background.pixel(x, 108), background.pixel(ground, 108))
                for y in (96, 119):
                    self.assertNotEqual(background.pixel(left + 12, y), background.pixel(ground, y))
                for y in (95, 120):
                    self.assertEqual(background.pixel(left + 12, y), background.pixel(ground, y))

    def test_all_keys_of_a_kind_are_alike(self):
        for name in ("left", "insert", "replace", "right"):
            slots = [slot for slot in range(6) if name in layout.hot_spots(slot)]
            self.assertEqual(len({key(name, slot) for slot in slots}), 1, name)

    def test_there_is_no_key_where_there_is_no_hot_spot(self):
        for left, ground in ((22, 19), (700, 726)):
            for x in range(left, left + 24):
                for y in range(96, 120):
                    background = pictures["Background"]
                    self.assertEqual(background.pixel(x, y), background.pixel(ground, y))


# The script


@unittest.skipIf(draw_picture is None, "python3-cairo is missing")
class Script(unittest.TestCase):
    def test_draws_what_is_checked_in(self):
        for name, picture in pictures.items():
            drawn = draw_picture(name)
            self.assertEqual((drawn.width, drawn.height), (picture.width, picture.height), name)
            if drawn.rgba != picture.rgba:
                self.assertLessEqual(greatest_difference(drawn, picture), 2, name)


if __name__ == "__main__":
    unittest.main()
