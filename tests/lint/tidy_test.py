import contextlib
import io
import json
import os
import tempfile
import unittest
from pathlib import Path

import tidy

# Stands in for clang-tidy: finds the word "bad" in a source and in its header, and counts its calls.
FAKE_TIDY = """#!/bin/sh
[ "$1" != --version ] || exit 0
echo "$2" >> calls
! grep --line-number --with-filename bad "$2" inc/a.h | sed 's/:bad/:1: error: bad/' | grep .
"""


class Tidy(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)
        self.write("clang-tidy", FAKE_TIDY)
        os.chmod("clang-tidy", 0o755)
        self.addCleanup(setattr, tidy, "TIDY", tidy.TIDY)
        tidy.TIDY = "./clang-tidy"
        tidy.settings.cache_clear()

        self.write(".clang-tidy", "Checks: '*'\n")
        self.write("inc/a.h", "int a;\n")
        self.write("src/one.cpp", '#include "a.h"\n')
        self.write("src/two.cpp", '#include "a.h"\n')
        self.write("other/three.cpp", "")
        self.write("build/compile_commands.json", json.dumps([
            {"file": os.path.abspath(source), "command": f"c++ -Iinc -DX='1 2' -o x.o -c {source}"}
            for source in ("src/one.cpp", "src/two.cpp", "other/three.cpp")
        ]))

    def write(self, path, text):
        Path(path).parent.mkdir(exist_ok=True)
        Path(path).write_text(text)

    def tidy(self):
        """The exit status, what was printed, and the sources that clang-tidy had to read."""
        Path("calls").write_text("")
        tidy.settings.cache_clear()
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            status = tidy.main(["build", "--", "src"])
        return status, printed.getvalue(), sorted(Path("calls").read_text().split())

    def test_clean_sources_are_read_once(self):
        self.assertEqual(self.tidy(), (False, "", ["src/one.cpp", "src/two.cpp"]))
        self.assertEqual(self.tidy(), (False, "", []))

    def test_changed_sources_are_read_again(self):
        self.tidy()
        self.write("src/two.cpp", '#include "a.h"\nint b;\n')
        self.assertEqual(self.tidy()[2], ["src/two.cpp"])
        self.write("src/two.cpp", '#include "a.h"\nint b;  // NOLINT\n')
        self.assertEqual(self.tidy()[2], ["src/two.cpp"])

    def test_changed_header_and_checks_concern_all(self):
        self.tidy()
        self.write("inc/a.h", "int c;\n")
        self.assertEqual(len(self.tidy()[2]), 2)
        self.write(".clang-tidy", "Checks: '-*'\n")
        self.assertEqual(len(self.tidy()[2]), 2)

    def test_findings_are_printed_each_time_and_only_once(self):
        self.write("inc/a.h", "int a;\nbad\n")
        findings = "inc/a.h:2:1: error: bad\n"
        self.assertEqual(self.tidy(), (True, findings, ["src/one.cpp", "src/two.cpp"]))
        self.assertEqual(self.tidy()[:2], (True, findings))

    def test_source_that_does_not_compile(self):
        self.write("src/one.cpp", '#include "nowhere.h"\n')
        status, printed, calls = self.tidy()
        self.assertTrue(status)
        self.assertIn("src/one.cpp:1", printed)

    def test_folder_without_sources(self):
        with self.assertRaises(SystemExit) as raised:
            tidy.main(["build", "--", "sr"])
        self.assertTrue(raised.exception.code)

    def test_command_is_that_of_the_first_build(self):
        self.write("second/compile_commands.json", json.dumps([
            {"file": os.path.abspath(source),
             "command": f"gcc -fno-keep-inline-dllexport -O3 -o x.o -c {source}"}
            for source in ("src/one.cpp", "src/four.cpp")
        ]))
        commands = tidy.compile_commands(["build", "second"], ["src"])
        self.assertEqual(commands["src/one.cpp"], ["c++", "-Iinc", "-DX=1 2"])
        self.assertEqual(commands["src/four.cpp"], ["gcc", "-O3"])


if __name__ == "__main__":
    unittest.main()
