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


COLUMN = 30  # where the parser writes what an entry means


def read_entry(line, is_continued):
    """A head that does not fit before the column has its text in the next line."""
    is_short = line[COLUMN - 2:COLUMN] == "  " or not is_continued
    return Entry(line[:COLUMN].strip(), line[COLUMN:].strip()) if is_short else Entry(line.strip(), "")


def read_help(text):
    """The lists have a heading with a colon, and what follows them are the remarks."""
    result = Help()
    entries = None
    lines = text.rstrip().splitlines()
    for number, line in enumerate(lines):
        following = lines[number + 1] if number + 1 < len(lines) else ""
        heading = re.fullmatch(r"(\S.*):", line)
        if line.startswith("Usage: "):
            result.usage = line.removeprefix("Usage: ")
        elif not result.usage:
            result.about = (result.about + " " + line).strip()
        elif heading and following.startswith("  "):
            entries = result.lists.setdefault(heading[1], [])
        elif line.startswith(" " * COLUMN):
            entries[-1].text = (entries[-1].text + " " + line.strip()).strip()
        elif line.startswith("  "):
            entries.append(read_entry(line, following.startswith(" " * COLUMN)))
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


def values(program, command):
    """The long names of a command's options, each with the name of its value, without its default."""
    lists = help_of(program, command).lists
    heads = [re.split(" (?:Excludes|Needs):", entry.head)[0] for entries in lists.values() for entry in entries]
    return [(name, re.sub(r"=[a-z\d.-]+$", "", head.partition(" ")[2]))
            for head in heads if head.startswith("-") for name in re.findall(r"--[\w-]+", head.split(" ")[0])]


def options(program, command):
    return [name for name, _ in values(program, command)]
