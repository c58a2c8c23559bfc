"""The checked-in manual is what the effect and the texts give, complete, and sound HTML."""

import json
import os
import re
import subprocess
import unittest
from html.parser import HTMLParser

from make_manual import FOLDER, manual_page

PAGE = FOLDER.parent / "Corvel.htm"
VOID = {"meta", "br", "img", "hr", "input", "link"}


class Reader(HTMLParser):
    """Reads a page and notes what is wrong with it."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.open, self.faults, self.elements, self.rows, self.headings = [], [], [], [], []
        self.feed(text)
        self.close()
        self.faults += [f"<{tag}> is not closed" for tag in self.open]

    def handle_starttag(self, tag, attributes):
        self.elements.append((tag, dict(attributes)))
        if tag not in VOID:
            self.open.append(tag)

    def handle_startendtag(self, tag, attributes):
        self.elements.append((tag, dict(attributes)))

    def handle_endtag(self, tag):
        if self.open and self.open[-1] == tag:
            self.open.pop()
        else:
            self.faults.append(f"</{tag}> on line {self.getpos()[0]} closes {self.open[-1:]}")

    def handle_data(self, data):
        if self.open[-2:] == ["th", "code"]:
            self.rows.append(data)
        if self.open and re.fullmatch("h[1-6]", self.open[-1]):
            self.headings.append((int(self.open[-1][1]), data))

    def attributes(self, name):
        return [attributes[name] for _, attributes in self.elements if name in attributes]


def setUpModule():
    global facts, text, page
    program = os.environ["CORVEL_MANUAL_FACTS"]
    facts = json.loads(subprocess.run([program], check=True, stdout=subprocess.PIPE).stdout)
    text = PAGE.read_bytes().decode("utf-8")
    page = Reader(text)


class Manual(unittest.TestCase):
    def test_is_what_the_texts_and_the_effect_give(self):
        if text != manual_page(facts):
            self.fail("resources/Corvel.htm is out of date: run scripts/manual.sh")

    def test_describes_every_parameter_once(self):
        self.assertCountEqual(page.rows, [parameter["name"] for parameter in facts["parameters"]])

    def test_has_a_heading_for_every_program_and_module(self):
        headings = [part for _, title in page.headings for part in title.split(", ")]
        for fact in facts["programs"] + facts["modules"]:
            self.assertEqual(headings.count(fact["name"]), 1, fact["name"])

    def test_closes_every_tag(self):
        self.assertEqual(page.faults, [])

    def test_gives_no_id_twice(self):
        ids = page.attributes("id")
        self.assertCountEqual(ids, set(ids))

    def test_leads_to_nothing_outside(self):
        links = page.attributes("href") + page.attributes("src")
        outside = [link[:60] for link in links if not link.startswith(("#", "data:image/png;base64,"))]
        self.assertEqual(outside, [])
        self.assertNotRegex(text, r"url\(|@import|<script|<link|<iframe|https?:")

    def test_every_link_has_its_place(self):
        places = {f"#{identity}" for identity in page.attributes("id")}
        links = {link for link in page.attributes("href") if link.startswith("#")}
        self.assertEqual(links - places, set())

    def test_skips_no_level_of_heading(self):
        levels = [level for level, _ in page.headings]
        self.assertEqual(levels[0], 1)
        for above, below in zip(levels, levels[1:]):
            self.assertLessEqual(below, above + 1)

    def test_pictures_have_a_text(self):
        for tag, attributes in page.elements:
            if tag == "svg":
                self.assertTrue(attributes.get("aria-label"))

    def test_what_scrolls_can_be_reached_with_the_keyboard(self):
        for tag, attributes in page.elements:
            if tag in ("pre", "figure"):
                self.assertEqual(attributes.get("tabindex"), "0")

    def test_the_texts_use_only_what_the_script_makes(self):
        self.assertNotRegex(text.split("</style>")[1], r"\*\*|`|\$|^#|\{[a-z]")


class Style(unittest.TestCase):
    def colours(self):
        """The colours of the light, the dark and the printed page."""
        roots = re.findall(r":root \{(.*?)\}", (FOLDER / "style.css").read_text("utf-8"), re.DOTALL)
        return [dict(re.findall(r"--([\w-]+): (#\w{6});", root)) for root in roots]

    def test_text_can_be_read_on_every_ground(self):
        self.assertEqual(len(self.colours()), 3)
        for colours in self.colours():
            for front in ("text", "soft", "accent"):
                for back in ("ground", "panel", "remark"):
                    with self.subTest(front=colours[front], back=colours[back]):
                        self.assertGreaterEqual(contrast(colours[front], colours[back]), 4.5)


def luminance(colour):
    channels = (int(colour[i : i + 2], 16) / 255 for i in (1, 3, 5))
    linear = [c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in channels]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(one, other):
    """The ratio of the Web Content Accessibility Guidelines, from 1 to 21; level AA asks for 4.5."""
    light, dark = sorted((luminance(one), luminance(other)), reverse=True)
    return (light + 0.05) / (dark + 0.05)
