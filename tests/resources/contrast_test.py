import unittest

from drawing import layout
from drawing.contrast import contrast, worst_contrast
from drawing.png import Image


def plain_background(grey):
    return Image(748, 370, bytes((grey, grey, grey, 255)) * (748 * 370))


def with_light_pixel(x, y):
    background = plain_background(0)
    start = 4 * (748 * y + x)
    rgba = background.rgba[:start] + b"\xff" * 4 + background.rgba[start + 4 :]
    return Image(748, 370, rgba)


class Contrast(unittest.TestCase):
    def test_runs_from_1_to_21(self):
        self.assertAlmostEqual(contrast((255, 255, 255), (0, 0, 0)), 21)
        self.assertAlmostEqual(contrast((70, 80, 90), (70, 80, 90)), 1)

    def test_does_not_depend_on_the_order(self):
        self.assertEqual(contrast((1, 2, 3), (99, 98, 97)), contrast((99, 98, 97), (1, 2, 3)))

    def test_weighs_the_channels(self):
        # The published example: pure red on white has 4.0 to 1, pure blue 8.6 to 1.
        white = (255, 255, 255)
        self.assertAlmostEqual(contrast((255, 0, 0), white), 4.0, places=1)
        self.assertAlmostEqual(contrast((0, 0, 255), white), 8.6, places=1)


class WorstContrast(unittest.TestCase):
    def test_is_that_of_the_darkest_text_on_a_dark_ground(self):
        self.assertEqual(worst_contrast(plain_background(0)).text_grey, 147)

    def test_finds_one_light_pixel_at_the_corners_of_labels(self):
        corners = (
            (14, 16), (231, 63),  # the first name and the last value of the top row
            (17, 80), (728, 92),  # the first and the last name of a slot
            (25, 140), (672, 187),  # the left column of the first and of the last slot
            (73, 192), (720, 343),  # the right column
            (49, 140), (696, 343),  # a centred control
        )
        for x, y in corners:
            worst = worst_contrast(with_light_pixel(x, y))
            self.assertEqual((worst.ratio, worst.x, worst.y), (1, x, y))

    def test_leaves_out_what_is_beside_the_labels(self):
        for x, y in ((13, 16), (16, 80), (729, 80), (24, 140), (721, 140), (30, 155)):
            self.assertGreater(worst_contrast(with_light_pixel(x, y)).ratio, 1)


class Layout(unittest.TestCase):
    def test_the_ends_of_the_chain_have_no_key_that_leads_out(self):
        self.assertEqual(layout.hot_spots(0), {"insert": 48, "replace": 74, "right": 100})
        self.assertEqual(layout.hot_spots(5), {"left": 622, "insert": 648, "replace": 674})


if __name__ == "__main__":
    unittest.main()
