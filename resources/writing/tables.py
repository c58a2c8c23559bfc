"""The tables of parameters, the cards of programs, the chains."""

import html

from writing.facts import spelled
from writing.prose import anchor, inline

# The controls outside the panels
TOP_ROW = {"InGain": "InputGain", "InMono": "In", "OutMono": "Out"}


def escape(text):
    return html.escape(text, quote=False)


def cell(name, content):
    return f'<td data-name="{name}">{content}</td>'


def range_html(parameter):
    if parameter.choices:
        marks = f"new {parameter.start}"
    elif parameter.starts_in_the_middle:
        marks = f"middle and new {parameter.start}"
    else:
        marks = f"middle {parameter.middle}, new {parameter.start}"
    return f"{escape(parameter.range())}<br><small>{escape(marks)}</small>"


def row(parameters, value, text):
    first = parameters[0]
    names = "<br> ".join(f"<code>{escape(parameter.name)}</code>" for parameter in parameters)
    label = TOP_ROW.get(first.name, first.label)
    shown = escape(value.replace("-", "\u2212").replace(first.unit, spelled(first.unit)))
    return (
        f'<tr><th scope="row">{escape(label)}<br>{names}</th>'
        f'{cell("Range", range_html(first))}{cell("Try", shown)}{cell("", inline(text))}</tr>'
    )


def parameter_table(entries, facts):
    rows = []
    for names, value, text in entries:
        parameters = [facts.by_name[name] for name in names]
        if not all(parameter.includes(value) for parameter in parameters):
            raise ValueError(f"{names[0]} cannot be {value}: its range is {parameters[0].range()}")
        rows.append(row(parameters, value, text))
    head = "".join(f'<th scope="col">{name}</th>' for name in ("Control", "Range", "Try", "What it does"))
    return "<table>\n<thead><tr>" + head + "</tr></thead>\n<tbody>\n" + "\n".join(rows) + "\n</tbody>\n</table>"


def chain_html(chain):
    if not chain:
        return '<p class="chain">No modules</p>'
    steps = "".join(f'<li><a href="#{anchor(module)}">{escape(module)}</a></li>' for module in chain)
    return f'<ol class="chain">{steps}</ol>'


def settings_html(program):
    routing = [("Routing", [("In", program.routing[0]), ("Out", program.routing[1])])]
    lines = "".join(
        f"<dt>{escape(module)}</dt><dd>"
        + escape(", ".join(f"{label} {value}".replace(" ", "\u00a0") for label, value in settings)) + "</dd>"
        for module, settings in routing + program.settings
    )
    return f"<details><summary>Settings of {escape(program.name)}</summary><dl>{lines}</dl></details>"


def program_card(name, text, facts):
    program = facts.programs[name]
    return (
        f'<section class="program"><h3 id="program-{anchor(name)}">{escape(name)}</h3>\n'
        f"<p>{inline(text)}</p>\n{chain_html(program.chain)}\n{settings_html(program)}</section>"
    )


def entries_html(entries, facts):
    if entries[0][1] is not None:
        return parameter_table(entries, facts)
    return "\n".join(program_card(names[0], text, facts) for names, _, text in entries)
