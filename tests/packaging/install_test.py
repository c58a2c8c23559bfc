import os
import shutil
import subprocess
import unittest

from places import BUILD, CMAKE, PROGRAM, SOURCE, VERSION, VOICE, run, temporary_folder

INSTALLED = {
    "bin/corvel",
    "lib/vst/Corvel.so",
    "share/bash-completion/completions/corvel",
    "share/doc/corvel/Corvel.htm",
    "share/doc/corvel/README",
    "share/doc/corvel/changelog",
    "share/doc/corvel/copyright",
    "share/fish/vendor_completions.d/corvel.fish",
    "share/man/man1/corvel.1",
    "share/zsh/site-functions/_corvel",
} | {f"lib/vst/Corvel/Resources/{file.name}" for file in (BUILD / "plugin/Corvel/Resources").iterdir()}


def files_below(folder):
    return {str(file.relative_to(folder)) for file in folder.rglob("*") if not file.is_dir()}


class Install(unittest.TestCase):
    def setUp(self):
        self.folder = temporary_folder(self.addCleanup)

    def install(self, prefix, **environment):
        run([CMAKE, "--install", BUILD, "--prefix", prefix], env={**os.environ, **environment})

    def render(self, program, out):
        run([program, "render", VOICE, out, "--program", "Lead Vocal"],
            env={**os.environ, "VST_PATH": "/nowhere"})
        return out.read_bytes()

    def test_every_file_has_its_place(self):
        self.install(self.folder)
        self.assertEqual(files_below(self.folder), INSTALLED)

    def test_below_a_staging_folder_too(self):
        self.install("/usr", DESTDIR=str(self.folder))
        self.assertEqual(files_below(self.folder / "usr"), INSTALLED)

    def test_works_after_it_was_moved(self):
        self.install(self.folder / "first")
        moved = self.folder / "moved to another folder"
        (self.folder / "first").rename(moved)
        program = moved / "bin/corvel"
        self.assertEqual(run([program, "--version"]), f"corvel {VERSION}\n")
        self.assertEqual(self.render(program, self.folder / "installed.wav"),
                         self.render(PROGRAM, self.folder / "built.wav"))
        self.assertIn(str(moved / "lib/vst/Corvel.so"), run([program, "info"]))

    def test_works_through_a_link(self):
        self.install(self.folder / "opt")
        (self.folder / "corvel").symlink_to(self.folder / "opt/bin/corvel")
        run([self.folder / "corvel", "programs"], env={**os.environ, "VST_PATH": "/nowhere"})

    def test_says_where_it_looked_for_the_effect(self):
        self.install(self.folder)
        (self.folder / "lib/vst/Corvel.so").unlink()
        done = subprocess.run([self.folder / "bin/corvel", "programs"], capture_output=True, text=True,
                              env={**os.environ, "VST_PATH": "/nowhere:/else"})
        self.assertEqual(done.returncode, 1)
        self.assertIn(f"{self.folder / 'lib/vst'}, /nowhere, /else", done.stderr)

    def test_no_file_knows_where_it_was_built(self):
        self.install(self.folder)
        for name in INSTALLED:
            content = (self.folder / name).read_bytes()
            for place in (SOURCE, BUILD):
                self.assertNotIn(os.fsencode(place) + b"/", content, name)
        for name in ("bin/corvel", "lib/vst/Corvel.so"):
            self.assertNotRegex(run([shutil.which("readelf"), "-d", self.folder / name]), "R(UN)?PATH")
