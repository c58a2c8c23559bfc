"""What the effect says about itself, as tools/manual_facts prints it, in the spelling of the manual."""

import re


def tidy(text):
    """A displayed number without needless zeros, with a true minus sign."""
    if text == "-oo":
        return "\u2212\u221e"
    text = re.sub(r"(\.\d*?)0+(?=$|:)", r"\1", text).replace(".:", ":").removesuffix(".")
    if text == "-0":
        text = "0"
    return text.replace("-", "\u2212")


def with_unit(text, unit):
    return f"{text}\u00a0{spelled(unit)}" if unit else text


def spelled(unit):
    return {"m2": "m\u00b2", "Oct": "octave"}.get(unit, unit)


def number(text):
    return float(re.match(r"-?[\d.]+", text.replace("\u2212", "-"))[0])


class Parameter:
    def __init__(self, fact, start):
        self.id, self.name, self.label, self.unit = (fact[key] for key in ("id", "name", "label", "unit"))
        self.low, self.middle, self.high = (tidy(fact[key]) for key in ("low", "middle", "high"))
        self.choices = fact["choices"]
        self.start, self.starts_in_the_middle = self.shown(start), start == fact["middle"]

    def range(self):
        if self.choices:
            return ", ".join(self.choices)
        return f"{self.low} to {with_unit(self.high, self.unit)}"

    def shown(self, text):
        return text if self.choices else with_unit(tidy(text), self.unit)

    def includes(self, value):
        """@param value  as a reader would say it: "-18 dB", "70:30", "Linked"."""
        if self.choices:
            return value in self.choices
        if self.low.startswith("100:"):
            return re.fullmatch(r"\d+:\d+", value) is not None
        lowest = -60.0 if self.low == "\u2212\u221e" else number(self.low)
        least, most = sorted((lowest, number(self.high)))
        return least <= number(value) <= most and (not self.unit or value.endswith(self.unit))


class Program:
    def __init__(self, fact, parameters, modules):
        self.name, self.chain = fact["name"], fact["chain"]
        values = dict(zip((p.name for p in parameters), fact["values"]))
        self.routing = (values["InMono"], values["OutMono"])
        synchronised = values["DlySync"] != "ms"
        self.settings = [
            (module, [(p.label, p.shown(values[p.name])) for p in modules[module]
                      if not (p.name == "DlyTime" and synchronised)])
            for module in self.chain
        ]


class Facts:
    def __init__(self, json):
        starts = json["programs"][0]["values"]
        self.parameters = [Parameter(*pair) for pair in zip(json["parameters"], starts)]
        self.by_name = {p.name: p for p in self.parameters}
        self.modules = {
            module["name"]: [self.parameters[i] for i in module["parameters"]] for module in json["modules"]
        }
        self.programs = {
            fact["name"]: Program(fact, self.parameters, self.modules) for fact in json["programs"]
        }
