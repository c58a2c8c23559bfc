import base64
import re
import unittest

from make_manual import FOLDER
from drawing.png import decode
from writing.window_picture import HEIGHT, MENU_VIEW, NUMBERS, WIDTH, menu_picture, window_picture


class WindowPicture(unittest.TestCase):
    def test_pictures_hold_the_screenshots(self):
        for name, make in (("editor", window_picture), ("menu", menu_picture)):
            png = (FOLDER / f"{name}.png").read_bytes()
            data = base64.b64encode(png).decode("ascii")
            self.assertIn(f'href="data:image/png;base64,{data}"', make(png))

    def test_the_screenshots_have_the_size_that_the_numbers_and_the_view_need(self):
        editor, menu = (decode((FOLDER / f"{name}.png").read_bytes()) for name in ("editor", "menu"))
        self.assertEqual((editor.width, editor.height), (WIDTH, HEIGHT))
        left, top, width, height = MENU_VIEW
        self.assertEqual((menu.width, menu.height), (left + width, top + height))

    def test_numbers_lie_inside(self):
        for x, y in NUMBERS:
            self.assertTrue(8 <= x <= WIDTH - 8 and 8 <= y <= HEIGHT - 8, (x, y))

    def test_the_text_explains_every_number(self):
        text = (FOLDER / "chapters" / "04-the-window.md").read_text("utf-8")
        explained = [int(number) for number in re.findall(r"^(\d+)\. ", text, re.MULTILINE)]
        self.assertEqual(explained, list(range(1, len(NUMBERS) + 1)))
