import unittest

from subjects import complaint


class Complaint(unittest.TestCase):
    def test_none_about_imperatives(self):
        for subject in (
            "CDSPDelay: keep the free time while synchronised",
            "Name the fast-path condition in runUpToFour",
            "Arrange the strip in rooms: kernels, blocks, modules, parameters, strip",
            "tidy.py, comments.py: read every file once",
            "docs/performance.md: measure the present code",
            "CDSPGate: feed the detector with both channels",
            "Pass the tempo on",
            "Bring the editor to the front",
            'Revert "' + 80 * "x" + '"',
        ):
            self.assertIsNone(complaint(subject), subject)

    def test_other_forms(self):
        for subject in (
            "Performance: the table of the present code",
            "CDSPDelay: keeps the free time",
            "Fixed the delay",
            "CDSPDelay: fixing the free time",
            "A gate that opens early",
            "MinGW: moves of AVX registers that need no aligned stack",
        ):
            self.assertRegex(complaint(subject) or "", "no imperative", subject)

    def test_category_for_a_name(self):
        for subject in ("Fix: keep the free time", "Tests: check the delay", "wip: try it"):
            self.assertRegex(complaint(subject) or "", "no class, file or folder", subject)

    def test_wrong_case(self):
        self.assertRegex(complaint("CDSPDelay: Keep the free time") or "", "small letter")
        self.assertRegex(complaint("keep the free time") or "", "capital letter")

    def test_length(self):
        self.assertIsNone(complaint("Keep " + 67 * "x"))
        self.assertRegex(complaint("Keep " + 68 * "x") or "", "73 characters")


if __name__ == "__main__":
    unittest.main()
