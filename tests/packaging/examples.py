"""The commands that the manual page shows, as a reader sees them."""
import itertools
import re

from places import MAN_PAGE, run


def man_page_commands():
    text = run(["mandoc", "-Tascii", "-O", "width=200", MAN_PAGE])
    section = re.sub(".\b", "", text).split("\nEXAMPLES\n")[1]
    section = re.split(r"^\S", section, maxsplit=1, flags=re.MULTILINE)[0]
    lines = section.splitlines()
    margin = min(len(line) - len(line.lstrip()) for line in lines if line)
    blocks = itertools.groupby(lines, lambda line: line.startswith(" " * (margin + 1)))
    return ["\n".join(line.strip() for line in block) for is_command, block in blocks if is_command]
