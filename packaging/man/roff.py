"""Text as the formatter of manual pages wants it."""
import re
import textwrap


def escaped(text):
    """The characters as they are typed: manual pages are copied from."""
    for character, name in (("\\", "\\e"), ("-", "\\-"), ("'", "\\(aq"), ("`", "\\(ga"), ("^", "\\(ha"),
                            ("~", "\\(ti"), ('"', "\\(dq")):
        text = text.replace(character, name)
    return text


def line(text):
    """One line of output text, which must not look like a request."""
    return "\\&" + text if text.startswith((".", "'")) else text


def marked(text):
    """Options in bold; a hyphen within a word stays one."""
    parts = re.split(r"((?<![\w-])--?[a-z][\w-]*)", text)
    for index, part in enumerate(parts):
        bold = index % 2 == 1
        plain = escaped(part) if bold else re.sub(r"(?<=[A-Za-z])\\-(?=[A-Za-z])", "-", escaped(part))
        parts[index] = f"\\fB{plain}\\fR" if bold else plain
    return "".join(parts)


def prose(text):
    """Text to be filled. The lines are short because mandoc recommends it."""
    wrapped = textwrap.wrap(marked(text), 78, break_long_words=False, break_on_hyphens=False)
    return [line(part) for part in wrapped]


def verbatim(lines):
    """Lines that are not filled."""
    return [".nf", ".RS 4", *(line(escaped(text)) for text in lines), ".RE", ".fi"]
