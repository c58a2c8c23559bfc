import os
import re
import unittest

from help_text import commands, options, values
from places import PROGRAM, SOURCE, run, temporary_folder
from shell import Shell

SCRIPTS = SOURCE / "packaging/completions"
ENVIRONMENT = {"PATH": f"{PROGRAM.parent}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}


class Completions:
    """What the scripts of all shells must do. `complete` returns the words that a line may end with."""

    def setUp(self):
        self.folder = temporary_folder(self.addCleanup)
        (self.folder / "takes").mkdir()
        for name in ("my voice.wav", "other.wav"):
            (self.folder / name).touch()

    def test_every_option_of_the_help_is_offered(self):
        for command in commands(PROGRAM):
            offered = self.offers(" ".join(["corvel", *command, "--"]))
            for option in options(PROGRAM, command):
                self.assertIn(option, offered, command)

    def test_words_that_the_help_lists_as_values_are_offered(self):
        for command in commands(PROGRAM):
            for option, value in values(PROGRAM, command):
                for word in re.findall(r"\b[a-z]{2,}\b", "" if "FILE" in value else value):
                    line = " ".join(["corvel", *command, option, word[:1]])
                    self.assertRegex(" ".join(self.offers(line)), rf"\b{word}\b", line)

    def test_every_command_is_offered(self):
        for command in commands(PROGRAM):
            if command:
                offered = self.offers(" ".join(["corvel", *command[:-1], ""]))
                self.assertIn(command[-1], offered)

    def test_a_command_is_completed(self):
        self.expect("corvel rend", "corvel render ")

    def test_the_name_of_a_program_is_quoted(self):
        self.expect("corvel render --program Lead", "corvel render --program Lead\\ Vocal ")
        self.expect('corvel render --program "Lead', 'corvel render --program "Lead Vocal" ')
        self.expect("corvel render --program pop\\ v", "corvel render --program Pop\\ Vocal ")
        self.expect("corvel render --program=Cho", "corvel render --program=Choir ")

    def test_the_name_of_a_parameter_is_continued_with_its_value(self):
        self.expect("corvel render --set InMon", "corvel render --set InMono=")
        self.expect("corvel render --set InMono=Ster", "corvel render --set InMono=Stereo ")
        self.expect("corvel render --set 'InMono=Ster", "corvel render --set 'InMono=Stereo' ")

    def test_formats_have_a_colon(self):
        self.expect("corvel render --format flac:2", "corvel render --format flac:24 ")

    def test_chains_are_continued(self):
        self.expect("corvel render --chain Pan,Comp", "corvel render --chain Pan,Compressor ")

    def test_files_are_completed(self):
        self.expect("corvel render my", "corvel render my\\ voice.wav ")
        self.expect("corvel render --plugin=oth", "corvel render --plugin=other.wav ")
        self.expect("corvel render --out-dir ta", "corvel render --out-dir takes/")
        self.expect("corvel render --out-dir oth", "corvel render --out-dir oth")


class Bash(Completions, unittest.TestCase):
    def setUp(self):
        super().setUp()
        self.shell = Shell(["bash", "--norc", "--noprofile", "-i"], f"""
            . /usr/share/bash-completion/bash_completion
            . {SCRIPTS}/corvel.bash
            bind 'set enable-bracketed-paste off'
            bind 'set completion-query-items 0'
            bind 'set page-completions off'
            bind -x '"\\C-t": printf "<<%s>>" "$READLINE_LINE"'
            """, self.folder, ENVIRONMENT)
        self.addCleanup(self.shell.close)

    def expect(self, line, completed):
        self.assertEqual(self.shell.completed(line), completed)

    def offers(self, line):
        return re.findall(r"[\w-]+", self.shell.listed(line))


class Zsh(Completions, unittest.TestCase):
    def setUp(self):
        super().setUp()
        self.shell = Shell(["zsh", "-f", "-i"], f"""
            fpath=({SCRIPTS} $fpath)
            autoload -U compinit
            compinit -D -u
            unsetopt zle_bracketed_paste
            LISTMAX=0
            show() {{ print -rn -- "<<$BUFFER>>" }}
            zle -N show
            bindkey -e
            bindkey '^T' show
            """, self.folder, ENVIRONMENT)
        self.addCleanup(self.shell.close)

    def expect(self, line, completed):
        self.assertEqual(self.shell.completed(line), completed)

    def offers(self, line):
        return re.findall(r"[\w-]+", self.shell.listed(line))


class Fish(Completions, unittest.TestCase):
    """Fish prints its completions without a terminal, but does not insert them."""

    def fish(self, line):
        command = f"source {SCRIPTS}/corvel.fish; complete -C $argv[1]"
        text = run(["fish", "--no-config", "-c", command, line], cwd=self.folder,
                   env={**os.environ, **ENVIRONMENT, "HOME": str(self.folder)})
        return [line.split("\t")[0] for line in text.splitlines()]

    def expect(self, line, completed):
        words = [text.split(" ")[-1] for text in self.fish(line)]
        word = completed.rstrip(" '\"").split(" ")[-1].lstrip("'")
        self.assertEqual(words, [word] if completed != line else [], line)

    def offers(self, line):
        return self.fish(line)
