import re
import subprocess
import unittest

from examples import man_page_commands
from help_text import commands, options
from places import MAN_PAGE, PROGRAM, README, VERSION, run
from readme_commands import readme_commands


def plain(roff):
    return roff.replace("\\-", "-").replace("\\fB", "").replace("\\fR", "").replace("\\fI", "")


class ManPage(unittest.TestCase):
    def setUp(self):
        self.roff = MAN_PAGE.read_text(encoding="utf-8")

    def test_the_formatters_have_nothing_to_say(self):
        self.assertEqual(run(["mandoc", "-Tlint", MAN_PAGE]), "")
        groff = subprocess.run(["groff", "-ww", "-man", "-Tutf8", MAN_PAGE], capture_output=True, check=True)
        self.assertEqual(groff.stderr, b"")
        man = subprocess.run(["man", "--warnings", "-l", MAN_PAGE], capture_output=True, check=True)
        self.assertEqual(man.stderr, b"")

    def test_every_option_is_explained_at_its_command(self):
        sections = dict(re.findall(r"^\.SS corvel (.*)\n((?:(?!\.S[SH]).*\n)*)", self.roff, re.MULTILINE))
        for command in commands(PROGRAM):
            for option in options(PROGRAM, command):
                if command and option != "--help":
                    self.assertIn("\n" + option, plain(sections[" ".join(command)]), command)

    def test_the_examples_are_those_of_the_readme(self):
        shown = [re.sub(r"\n\s+", "\n", text) for _, text in readme_commands(README)]
        self.assertEqual(man_page_commands(), shown)

    def test_the_version_is_that_of_the_program(self):
        self.assertIn(f'"corvel {VERSION}"', self.roff.splitlines()[0])

    def test_no_mark_of_the_template_is_left(self):
        self.assertNotRegex(self.roff, "@[A-Z]+@")
