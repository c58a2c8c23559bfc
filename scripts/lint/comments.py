#!/usr/bin/env python3
"""comments.py FILE...: finds comment lines that end early although the next word would have fitted.

Such lines are left over when only part of a paragraph is wrapped anew, by clang-format too. Prints
FILE:LINE for each and exits with 1 if there are any. The end of a sentence may be followed by a new
line; so may a title, and doc tags, lists, tables, drawings and code samples break where they like.
"""

import re
import sys
from typing import NamedTuple

# Ten columns short of what clang-format allows: authors wrap a little earlier, too.
WIDTH = 90

STARTS_ANEW = re.compile(r"[@\\]\w|[-*] |\d+[.)] ")
ENDS_SENTENCE = re.compile(r"[.:!?]$")
LAID_OUT_BY_HAND = re.compile(r"\S\s{2,}\S|--|->|[|=]{2}")


class Comment(NamedTuple):
    column: int  # of its marker
    indent: int  # of its text, from the end of the marker
    text: str
    follows_code: bool


def parse_comment(line, marker):
    """The comment at the end of the line, or None. Code needs two blanks before it."""
    match = re.fullmatch(rf"(\s*|.*?\S\s\s+){marker}( +)(\S.*)", line)
    return match and Comment(len(match[1]), len(match[2]), match[3], bool(match[1].strip()))


def is_title(previous, above, below):
    """Whether `above` is the first line of its comment, and the second begins with a capital."""
    return not (previous and previous.column == above.column) and below.text[0].isupper()


def ends_early(line, previous, above, below):
    """Whether the comment `above`, the end of `line`, could have held the first word of `below`."""
    if not above or not below or below.follows_code:
        return False
    if above.column != below.column or above.indent > 1:
        return False
    if STARTS_ANEW.match(below.text) or ENDS_SENTENCE.search(above.text):
        return False
    if LAID_OUT_BY_HAND.search(below.text) or is_title(previous, above, below):
        return False
    # The name of a parameter and its description are two blanks apart.
    if LAID_OUT_BY_HAND.search(above.text) and not STARTS_ANEW.match(above.text):
        return False
    return len(line) + 1 + len(below.text.split()[0]) <= WIDTH


def early_ends(text, marker):
    """The numbers of the lines at which a comment ends early."""
    lines = [line.rstrip() for line in text.split("\n")]
    comments = [parse_comment(line, marker) for line in lines]
    return [
        number
        for number, (line, previous, above, below) in enumerate(
            zip(lines, [None] + comments, comments, comments[1:]), 1
        )
        if ends_early(line, previous, above, below)
    ]


def marker_of(path):
    return "///?<?" if path.endswith((".cpp", ".h")) else "#"


def main(paths):
    found = False
    for path in paths:
        with open(path, encoding="utf-8") as file:
            text = file.read()
        for number in early_ends(text, marker_of(path)):
            print(f"{path}:{number}: the comment ends early: the next word fits into this line")
            found = True
    return found


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
