"""Turns the texts of the manual into HTML.

The texts are plain text with a few marks. Blocks are separated by blank lines:

    # Title               a chapter; ## a section; ### a smaller one
    - item                a list, 1. a numbered one; an indented line goes on with the item
    > **Word.** Text      a remark in a box
        code              indented by four spaces: an example to type
    [Name = value] Text   a parameter, with a value to start from
    [Name] Text           a program
    {name}                a part that the script makes

Inside a text, **word** is strong, `word` is what the screen shows, [words](#anchor) is a link.
"""

import html
import re


def anchor(title):
    return re.sub(r"[^a-z0-9]+", "-", title.lower()).strip("-")


def inline(text):
    text = html.escape(text, quote=False)
    text = re.sub(r"(\d) (dB|k?Hz|ms|s|%|m²)(?!\w)", "\\1\u00a0\\2", text)
    text = re.sub(r"`([^`]+)`", r"<code>\1</code>", text)
    text = re.sub(r"\*\*([^*]+)\*\*", r"<strong>\1</strong>", text)
    return re.sub(r"\[([^]]+)\]\((#[\w-]+)\)", r'<a href="\2">\1</a>', text)


def blocks(text):
    return [block.strip("\n") for block in re.split(r"\n\s*\n", text) if block.strip()]


def joined(block):
    return " ".join(line.strip() for line in block.splitlines())


def items(block, mark):
    """The items of a list; a line without a mark goes on with the item above."""
    return [joined(item) for item in re.split(rf"^{mark}", block, flags=re.MULTILINE)[1:]]


def list_html(tag, block, mark):
    lines = "\n".join(f"<li>{inline(item)}</li>" for item in items(block, mark))
    return f"<{tag}>\n{lines}\n</{tag}>"


def heading(block):
    level, title = re.fullmatch(r"(#+) (.*)", joined(block)).groups()
    tag = f"h{len(level) + 1}"
    return f'<{tag} id="{anchor(title)}">{inline(title)}</{tag}>'


def block_html(block):
    if block.startswith("#"):
        return heading(block)
    if block.startswith("- "):
        return list_html("ul", block, "- ")
    if re.match(r"\d+\. ", block):
        return list_html("ol", block, r"\d+\. ")
    if block.startswith("> "):
        words = joined(re.sub(r"^> ", "", block, flags=re.MULTILINE))
        return f'<p class="remark">{inline(words)}</p>'
    if block.startswith("    "):
        code = "\n".join(line[4:] for line in block.splitlines())
        return f'<pre tabindex="0"><code>{html.escape(code, quote=False)}</code></pre>'
    return f"<p>{inline(joined(block))}</p>"


def entry(block):
    """@return (names, value or None, text) of a parameter or a program; None for other blocks."""
    found = re.fullmatch(r"\[([^]=]+?)(?: = ([^]]+))?\] (.*)", joined(block))
    return (found[1].split(", "), found[2], found[3]) if found else None


def to_html(text, parts, entries_html):
    """@param parts         what a block {name} stands for, by name.
    @param entries_html  makes the HTML of a run of entries."""
    result, run = [], []
    for block in blocks(text):
        if found := entry(block):
            run.append(found)
            continue
        if run:
            result.append(entries_html(run))
            run = []
        part = re.fullmatch(r"\{([\w-]+)\}", block)
        result.append(parts[part[1]] if part else block_html(block))
    if run:
        result.append(entries_html(run))
    return "\n".join(result)
