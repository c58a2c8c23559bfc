import os
import re
import shlex
import shutil
import subprocess
import unittest

from places import MAN_PAGE, PROGRAM, README, VOICE, run, temporary_folder
from readme_commands import readme_commands


def written_files(command):
    """What a command names for its output: the last file, or what follows an option for it."""
    words = shlex.split(command)
    named = [words[index + 1] for index, word in enumerate(words) if word == "--out-dir"]
    if words[1] == "render" and not named:
        named = [word for word in words[2:] if "=" not in word and re.search(r"\.\w+$|/$", word)][1:2]
    if words[1:3] == ["preset", "save"]:
        named = words[3:4]
    if words[1:3] == ["preset", "convert"]:
        named = words[4:5]
    return named


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
                for file in written_files(command):
                    self.assertTrue((self.folder / file).exists(), file)

    def test_there_are_ten(self):
        self.assertGreaterEqual(len(self.shown), 10)

    def test_those_of_the_readme_work(self):
        self.run_all(self.shown)

    def test_those_of_the_manual_page_work(self):
        text = run(["mandoc", "-Tascii", "-O", "width=200", MAN_PAGE])
        text = re.sub(".\b", "", text).split("\nEXAMPLES\n")[1]
        commands = re.findall(r"^ +(corvel .*)$", text, re.MULTILINE)
        self.assertEqual(len(commands), len(self.shown))
        self.run_all(commands)

    def test_what_a_command_writes_is_known(self):
        self.assertEqual(written_files('corvel render a.wav b.wav --set "RvTime=1.5s"'), ["b.wav"])
        self.assertEqual(written_files("corvel render t/*.wav out/ --program 1"), ["out/"])
        self.assertEqual(written_files("corvel render t/*.wav --out-dir out"), ["out"])
        self.assertEqual(written_files("corvel preset convert a.fxp b.json"), ["b.json"])
