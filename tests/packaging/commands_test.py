import os
import re
import shlex
import shutil
import subprocess
import unittest

from examples import man_page_commands
from places import PROGRAM, README, VOICE, temporary_folder
from readme_commands import readme_commands


def named_files(command):
    """The words that are names of files or, with a slash at their end, folders."""
    return [word for word in shlex.split(command) if re.fullmatch(r"[\w/-]+(\.[a-z]\w*|/)", word)]


class Commands(unittest.TestCase):
    """Runs the commands of the README in their order, each as a user would type it."""

    def setUp(self):
        self.folder = temporary_folder(self.addCleanup)
        self.environment = {**os.environ, "PATH": f"{PROGRAM.parent}:{os.environ['PATH']}"}
        (self.folder / "takes").mkdir()
        for name in ("voice.wav", "takes/first.wav", "takes/second.wav"):
            shutil.copy(VOICE, self.folder / name)
        self.shown = [text for _, text in readme_commands(README)]

    def run_all(self, commands):
        for command in commands:
            with self.subTest(command):
                done = subprocess.run(["bash", "-c", command], cwd=self.folder, env=self.environment,
                                      capture_output=True, text=True)
                self.assertEqual(done.returncode, 0, done.stderr)
                for file in named_files(command):
                    self.assertTrue((self.folder / file).exists(), file)

    def test_there_are_ten(self):
        self.assertGreaterEqual(len(self.shown), 10)

    def test_those_of_the_readme_work(self):
        self.run_all(self.shown)

    def test_those_of_the_manual_page_work(self):
        self.run_all(man_page_commands())

    def test_the_files_of_a_command_are_known(self):
        self.assertEqual(named_files('corvel render a.wav b.flac --set "RvTime=1.5s" --tail 1.5'),
                         ["a.wav", "b.flac"])
        self.assertEqual(named_files("corvel render takes/*.wav out/ --format flac:24"), ["out/"])
