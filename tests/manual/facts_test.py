import unittest

from writing.facts import Parameter, tidy
from writing.tables import parameter_table


def parameter(low="-12.00", middle="0.00", high="12.00", unit="dB", choices=(), start="3.00"):
    fact = {"id": 0, "name": "Name", "label": "Label", "unit": unit, "low": low, "middle": middle,
            "high": high, "choices": list(choices)}
    return Parameter(fact, start)


class Tidy(unittest.TestCase):
    def test_drops_what_says_nothing(self):
        texts = {"-12.00": "\u221212", "-0.00": "0", "20.10": "20.1", "3.0:1": "3:1", "4.5:1": "4.5:1",
                 "100": "100", "100:0": "100:0", "-oo": "\u2212\u221e", "Stereo": "Stereo"}
        for shown, tidied in texts.items():
            self.assertEqual(tidy(shown), tidied)


class Parameters(unittest.TestCase):
    def test_range_has_the_unit_once(self):
        self.assertEqual(parameter().range(), "\u221212 to 12\u00a0dB")

    def test_range_of_a_choice_lists_it(self):
        self.assertEqual(parameter(choices=["Off", "On"], unit="").range(), "Off, On")

    def test_includes_its_ends_and_nothing_beyond(self):
        for value, included in (("-12 dB", True), ("12 dB", True), ("12.1 dB", False), ("-13 dB", False)):
            self.assertEqual(parameter().includes(value), included, value)

    def test_a_value_needs_the_unit(self):
        self.assertFalse(parameter().includes("3"))
        self.assertFalse(parameter().includes("3 Hz"))

    def test_a_level_from_silence_includes_low_values(self):
        self.assertTrue(parameter(low="-oo", high="0.0").includes("-40 dB"))

    def test_a_falling_range_is_a_range(self):
        self.assertTrue(parameter(low="100", high="0", unit="").includes("85"))

    def test_a_choice_is_one_of_its_texts(self):
        self.assertTrue(parameter(choices=["Off", "On"]).includes("On"))
        self.assertFalse(parameter(choices=["Off", "On"]).includes("on"))

    def test_a_mix_is_a_pair(self):
        mix = parameter(low="100:0", middle="50:50", high="0:100", unit="")
        self.assertTrue(mix.includes("70:30"))
        self.assertFalse(mix.includes("70"))


class FactsOf:
    def __init__(self, *parameters):
        self.by_name = {parameter.name: parameter for parameter in parameters}


class ParameterTable(unittest.TestCase):
    def test_refuses_a_start_that_cannot_be_set(self):
        with self.assertRaisesRegex(ValueError, "Name cannot be 30 dB"):
            parameter_table([(["Name"], "30 dB", "text")], FactsOf(parameter()))

    def test_refuses_an_unknown_parameter(self):
        with self.assertRaises(KeyError):
            parameter_table([(["Nane"], "3 dB", "text")], FactsOf(parameter()))

    def test_shows_name_label_range_and_start(self):
        table = parameter_table([(["Name"], "-3 dB", "what it does")], FactsOf(parameter()))
        for part in ("Label", "<code>Name</code>", "\u221212 to 12", "middle 0, new 3\u00a0dB", "\u22123 dB",
                     "what it does"):
            self.assertIn(part, table)

    def test_says_once_what_is_both_middle_and_new(self):
        table = parameter_table([(["Name"], "1 Oct", "")], FactsOf(parameter(unit="Oct", start="0.00")))
        self.assertIn("middle and new 0\u00a0octave", table)

    def test_spells_the_unit_of_a_start(self):
        self.assertIn(">1 octave<", parameter_table([(["Name"], "1 Oct", "")], FactsOf(parameter(unit="Oct"))))

    def test_a_parameter_without_a_unit_keeps_its_start(self):
        mix = parameter(low="100:0", middle="50:50", high="0:100", unit="", start="30:70")
        self.assertIn(">70:30<", parameter_table([(["Name"], "70:30", "")], FactsOf(mix)))
