#!/usr/bin/python3
"""make_manual.py FACTS PAGE: writes the manual, one self-contained HTML file.

FACTS is what the program manual_facts prints. The texts are in manual/; writing/prose.py says how they
are marked.
"""

import json
import re
import sys
from pathlib import Path
from string import Template

from writing.facts import Facts
from writing.prose import anchor, inline, to_html
from writing.tables import entries_html
from writing.window_picture import menu_picture, window_picture

FOLDER = Path(__file__).resolve().parent / "manual"


def read(path):
    return (FOLDER / path).read_text("utf-8")


def module_texts():
    """The names that share a text, and the text, by the first name."""
    texts = {}
    for path in (FOLDER / "modules").glob("*.md"):
        title, text = path.read_text("utf-8").split("\n", 1)
        names = title.removeprefix("# ").split(", ")
        texts[names[0]] = (names, text)
    return texts


def modules_html(facts):
    texts, sections = module_texts(), []
    for module in facts.modules:
        if module not in texts:
            continue
        names, text = texts[module]
        others = "".join(f'<span id="{anchor(name)}"></span>' for name in names[1:])
        head = f'<h3 id="{anchor(module)}">{inline(", ".join(names))}{others}</h3>'
        body = to_html(text, {}, lambda run: entries_html(run, facts))
        sections.append(f'<section class="module">{head}\n{body}</section>')
    return "\n".join(sections)


def chapters_html(facts):
    parts = {
        "modules": modules_html(facts),
        "window": window_picture((FOLDER / "editor.png").read_bytes()),
        "menu": menu_picture((FOLDER / "menu.png").read_bytes()),
        "signal-path": read("signal-path.svg").strip(),
    }
    paths = sorted((FOLDER / "chapters").glob("*.md"))
    return "\n".join(
        '<section class="chapter">\n'
        + to_html(path.read_text("utf-8"), parts, lambda run: entries_html(run, facts))
        + "\n</section>"
        for path in paths
    )


def contents_html(body):
    """A list of the chapters, each with a list of its sections, but not of the programs."""
    lines, is_inner = [], False
    for level, identity, title in re.findall(r'<h([23]) id="(?!program-)([^"]+)">(.*?)</h\1>', body):
        title = re.sub(r"<[^>]+>", "", title)
        if level == "2":
            lines.append(("</ul>" if is_inner else "") + ("</li>" if lines else ""))
            is_inner = False
        elif not is_inner:
            lines.append("<ul>")
            is_inner = True
        closing = "</li>" if level == "3" else ""
        lines.append(f'<li><a href="#{identity}">{title}</a>{closing}')
    lines.append(("</ul>" if is_inner else "") + "</li>")
    return "<ul>" + "\n".join(lines) + "</ul>"


def manual_page(facts):
    """@param facts  the JSON of manual_facts, read. @return the text of the page."""
    body = chapters_html(Facts(facts))
    return Template(read("page.html")).substitute(
        style=read("style.css").strip(), contents=contents_html(body), body=body
    )


def main():
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    page = manual_page(json.loads(Path(sys.argv[1]).read_text("utf-8")))
    Path(sys.argv[2]).write_text(page, "utf-8", newline="\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
