"""make_man_page.py CORVEL README CHANGELOG TEMPLATE: prints the manual page of corvel.

The commands and their options come from `corvel --help`, the examples from the README, version and
date from the changelog."""
import email.utils
import itertools
import pathlib
import re
import sys

import roff
from help_text import commands, help_of
from readme_commands import readme_commands


def indentation(line):
    return len(line) - len(line.lstrip())


def is_table(line, margin):
    """A table or an example has columns, or is further to the right."""
    return indentation(line) > margin or "  " in line.strip()


def table(lines):
    """A list of terms if the lines have two columns, else what they say."""
    margin = min(indentation(line) for line in lines)
    rows = [(re.fullmatch(r"(\S.*?) {2,}(\S.*)", line[margin:]), line.strip()) for line in lines]
    if rows[0][0] is None:
        return roff.verbatim([line[margin:] for line in lines])
    result = []
    for row, whole in rows:
        if row is not None:
            result += [".TP", f"\\fB{roff.escaped(row[1])}\\fR"]
        result += roff.prose(row[2] if row is not None else whole)
    return result


def paragraph(lines):
    """A paragraph of the help, of which parts may be tables."""
    margin = indentation(lines[0])
    for is_columns, group in itertools.groupby(lines, lambda line: is_table(line, margin)):
        part = list(group)
        yield ".PP"
        yield from table(part) if is_columns else roff.prose(" ".join(line.strip() for line in part))


def remarks(lines):
    """The text below the lists. A line at the margin is a heading if an indented one follows."""
    for blank, chunk in itertools.groupby(lines, lambda line: not line):
        if blank:
            continue
        lines = list(chunk)
        heading = ""
        if indentation(lines[0]) == 0 and len(lines) > 1 and indentation(lines[1]) > 0:
            heading = lines.pop(0)
            yield from (".PP", "\\fI" + roff.marked(heading) + ":\\fR")
        if heading == "Examples":
            yield from (".PP", *roff.verbatim([line.strip() for line in lines]))
        else:
            yield from paragraph(lines)


def option(entry):
    """The parser adds to the name what an option excludes or needs, and the default after "="."""
    head, *conditions = re.split(" (Excludes|Needs): ", entry.head)
    names, _, value = head.partition(" ")
    value, default = re.fullmatch(r"(.*?)(?:=(-?[\d.]+|[a-z]+))?", value).groups()
    text = entry.text
    if default:
        text += f" (default: {default})"
    for kind, others in zip(conditions[::2], conditions[1::2]):
        text += {"Excludes": "; not with ", "Needs": "; only with "}[kind] + others.replace(" ", ", ")
    names = ", ".join(f"\\fB{roff.escaped(name)}\\fR" for name in names.split(","))
    value = f" \\fI{roff.escaped(value)}\\fR" if value else ""
    return [".TP", names + value, *roff.prose(text + ".")]


def argument(entry):
    name = re.sub(" (REQUIRED|Excludes:.*|Needs:.*)", "", entry.head)
    return [".TP", f"\\fI{roff.escaped(name)}\\fR", *roff.prose(entry.text + ".")]


def command(words, page, general):
    """@param general  the remarks of the program, which commands without their own repeat."""
    yield ".SS " + " ".join(["corvel", *words])
    yield from roff.prose(page.about + ".")
    for name, entries in page.lists.items():
        for entry in entries:
            if name == "Positionals":
                yield from argument(entry)
            elif entry.head.startswith("-") and not entry.head.startswith("-h,"):
                yield from option(entry)
    if page.remarks != general:
        yield from remarks(page.remarks)


def synopsis(pages):
    for words, page in pages:
        if words and "Subcommands" not in page.lists:
            rest = page.usage.removeprefix("corvel " + " ".join(words))
            yield f"\\fBcorvel {' '.join(words)}\\fR{roff.escaped(rest)}"
            yield ".br"
    yield "\\fBcorvel\\fR [\\fB\\-\\-help\\fR | \\fB\\-\\-version\\fR]"


def examples(readme):
    for purpose, text in readme_commands(readme):
        yield from roff.prose(purpose + ":")
        yield ".PP"
        yield from roff.verbatim(text.splitlines())
        yield ".PP"


def release(changelog):
    """The version and the date of the newest entry."""
    version = re.match(r"corvel \(([^)]+)\)", changelog)[1]
    date = re.search(r"^ -- .*>  (.*)$", changelog, re.MULTILINE)[1]
    return version, email.utils.parsedate_to_datetime(date).strftime("%Y-%m-%d")


def main():
    program, *files = sys.argv[1:]
    readme, changelog, template = (pathlib.Path(file).read_text(encoding="utf-8") for file in files)
    pages = [(words, help_of(program, words)) for words in commands(program)]
    version, date = release(changelog)
    general = pages[0][1].remarks
    page = template
    for mark, text in (
            ("@VERSION@", version),
            ("@DATE@", date),
            ("@SYNOPSIS@", "\n".join(synopsis(pages))),
            ("@COMMANDS@", "\n".join(line for words, page in pages if words
                                     for line in command(words, page, general))),
            ("@EXAMPLES@", "\n".join(examples(readme)))):
        page = page.replace(mark, text)
    # A paragraph begins with these by itself.
    page = re.sub(r"^(\.PP\n)+(?=\.(TP|SS|SH)\b)", "", page, flags=re.MULTILINE)
    sys.stdout.write(page)


if __name__ == "__main__":
    main()
