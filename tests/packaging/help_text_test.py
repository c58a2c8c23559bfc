import unittest

from help_text import Entry, read_help
from make_man_page import argument, option, remarks

HELP = """Send sound somewhere
Usage: corvel send [OPTIONS] [FILES...]

Positionals:
  FILES ... REQUIRED          What to send

Options:
  -h,--help                   Print this help message and exit
  --tempo BPM=120             Tempo
  --quiet Excludes: --verbose Print only errors
  --verbose Excludes: --quiet --json
                              Print more,
                              or all of it
  --light Needs: --plot       Draw light colours

Order:
  --first                     Send the first one


Files
  What is sent.
"""


class ReadHelp(unittest.TestCase):
    def setUp(self):
        self.help = read_help(HELP)

    def test_finds_the_parts(self):
        self.assertEqual(self.help.about, "Send sound somewhere")
        self.assertEqual(self.help.usage, "corvel send [OPTIONS] [FILES...]")
        self.assertEqual(list(self.help.lists), ["Positionals", "Options", "Order"])
        self.assertEqual(self.help.remarks, ["Files", "  What is sent."])

    def test_finds_where_the_text_of_an_option_begins(self):
        self.assertEqual(self.help.lists["Options"][1:], [
            Entry("--tempo BPM=120", "Tempo"),
            Entry("--quiet Excludes: --verbose", "Print only errors"),
            Entry("--verbose Excludes: --quiet --json", "Print more, or all of it"),
            Entry("--light Needs: --plot", "Draw light colours")])

    def test_an_option_becomes_a_term(self):
        shown = [" ".join(option(entry)) for entry in self.help.lists["Options"]]
        self.assertEqual(shown, [
            r".TP \fB\-h\fR, \fB\-\-help\fR Print this help message and exit.",
            r".TP \fB\-\-tempo\fR \fIBPM\fR Tempo (default: 120).",
            r".TP \fB\-\-quiet\fR Print only errors; not with \fB\-\-verbose\fR.",
            r".TP \fB\-\-verbose\fR Print more, or all of it; not with \fB\-\-quiet\fR, \fB\-\-json\fR.",
            r".TP \fB\-\-light\fR Draw light colours; only with \fB\-\-plot\fR."])

    def test_an_argument_becomes_a_term(self):
        self.assertEqual(argument(self.help.lists["Positionals"][0]),
                         [".TP", r"\fIFILES ...\fR", "What to send."])


class Remarks(unittest.TestCase):
    def expect(self, text, roff):
        self.assertEqual("\n".join(remarks(text.splitlines())), roff)

    def test_text_at_the_margin_is_a_paragraph(self):
        self.expect("One line\nand two.\n\nMore.", ".PP\nOne line and two.\n.PP\nMore.")

    def test_a_heading_has_its_text_below_it(self):
        self.expect("Files\n  Are files.\n\n  Many.", ".PP\n\\fIFiles:\\fR\n.PP\nAre files.\n.PP\nMany.")

    def test_a_table_of_two_columns_becomes_terms_amid_the_text(self):
        self.expect("Files\n  Are\n    wav   a\n          b\n    flac  c\n  files.",
                    ".PP\n\\fIFiles:\\fR\n.PP\nAre\n.PP\n"
                    ".TP\n\\fBwav\\fR\na\nb\n.TP\n\\fBflac\\fR\nc\n.PP\nfiles.")

    def test_what_is_further_to_the_right_stays_as_it_is(self):
        self.expect("Order\n  So:\n    .first one\n      second", ".PP\n\\fIOrder:\\fR\n.PP\nSo:\n.PP\n"
                    ".nf\n.RS 4\n\\&.first one\n  second\n.RE\n.fi")

    def test_examples_stay_as_they_are(self):
        self.expect("Examples\n  sox -p | corvel -\n  corvel 'x'",
                    ".PP\n\\fIExamples:\\fR\n.PP\n.nf\n.RS 4\n"
                    "sox \\-p | corvel \\-\ncorvel \\(aqx\\(aq\n.RE\n.fi")
