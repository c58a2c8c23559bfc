"""Reads what `corvel COMMAND --help` prints."""
import re
import subprocess
from dataclasses import dataclass, field


@dataclass
class Entry:
    """An option, an argument or a command in its list."""
    head: str  # "--tempo BPM=120"
    text: str


@dataclass
class Help:
    about: str = ""
    usage: str = ""
    lists: dict = field(default_factory=dict)  # "Options" to its entries
    remarks: list = field(default_factory=list)  # lines of the text below the lists


def read_help(text):
    """The lists have a heading with a colon, and what follows them are the remarks."""
    result = Help()
    entries = None
    lines = text.rstrip().splitlines()
    for number, line in enumerate(lines):
        heading = re.fullmatch(r"(\S.*):", line)
        if line.startswith("Usage: "):
            result.usage = line.removeprefix("Usage: ")
        elif not result.usage:
            result.about = (result.about + " " + line).strip()
        elif heading and lines[number + 1:number + 2] and lines[number + 1].startswith("  "):
            entries = result.lists.setdefault(heading[1], [])
        elif line.startswith(" " * 20):
            entries[-1].text = (entries[-1].text + " " + line.strip()).strip()
        elif line.startswith("  "):
            head, _, about = line.strip().partition("  ")
            entries.append(Entry(head, about.strip()))
        elif line:
            result.remarks = lines[number:]
            break
    return result


def help_of(program, command):
    done = subprocess.run([program, *command, "--help"], stdout=subprocess.PIPE, text=True, check=True)
    return read_help(done.stdout)


def commands(program, start=()):
    """All commands as lists of words, starting with the empty one, in the order of the help."""
    found = [list(start)]
    for entry in help_of(program, start).lists.get("Subcommands", ()):
        found += commands(program, (*start, entry.head))
    return found


def options(program, command):
    """The long names of a command's options."""
    lists = help_of(program, command).lists
    return [name for entries in lists.values() for entry in entries
            for name in re.findall(r"--[\w-]+", entry.head.split(" Excludes:")[0])
            if entry.head.startswith("-")]
