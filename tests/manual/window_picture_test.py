import base64
import re
import unittest

from make_manual import FOLDER
from writing.window_picture import HEIGHT, NUMBERS, WIDTH, window_picture


class WindowPicture(unittest.TestCase):
    def test_holds_the_screenshot(self):
        data = base64.b64encode(b"a screenshot").decode("ascii")
        self.assertIn(f'href="data:image/png;base64,{data}"', window_picture(b"a screenshot"))

    def test_is_a_drawing_without_a_screenshot(self):
        self.assertNotIn("<image", window_picture(None))
        self.assertIn("Compressor", window_picture(None))

    def test_numbers_lie_inside(self):
        for x, y in NUMBERS:
            self.assertTrue(8 <= x <= WIDTH - 8 and 8 <= y <= HEIGHT - 8, (x, y))

    def test_the_text_explains_every_number(self):
        text = (FOLDER / "chapters" / "04-the-window.md").read_text("utf-8")
        explained = [int(number) for number in re.findall(r"^(\d+)\. ", text, re.MULTILINE)]
        self.assertEqual(explained, list(range(1, len(NUMBERS) + 1)))
