import gzip
import os
import re
import tarfile
import unittest

from places import README, SOURCE, VERSION, VOICE, pack, run, temporary_folder


class Packages:
    """What holds for the unpacked files of both packages."""

    def test_the_program_runs_and_finds_the_effect(self):
        out = self.folder / "out.wav"
        run([self.top / "bin/corvel", "render", VOICE, out, "--program", "Choir"],
            env={**os.environ, "VST_PATH": "/nowhere"})
        self.assertGreater(out.stat().st_size, 1000)

    def test_programs_have_no_symbols(self):
        for name in ("bin/corvel", "lib/vst/Corvel.so"):
            self.assertNotIn(".symtab", run(["readelf", "-S", "-W", self.top / name]))

    def test_files_can_be_read_by_all_and_changed_by_one(self):
        for path in (self.top, *self.top.rglob("*")):
            self.assertEqual(path.stat().st_mode & 0o777,
                             0o755 if path.is_dir() or path.parent.name == "bin" else 0o644, path)


class Deb(Packages, unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.package = pack("DEB", temporary_folder(cls.addClassCleanup))

    def setUp(self):
        self.folder = temporary_folder(self.addCleanup)
        run(["dpkg-deb", "-x", self.package, self.folder])
        self.top = self.folder / "usr"

    def field(self, name):
        return run(["dpkg-deb", "-f", self.package, name]).strip()

    def test_lintian_finds_nothing_wrong(self):
        found = run(["lintian", "--allow-root", "--fail-on", "none", self.package])
        self.assertEqual(re.findall(r"^[EW]: .*", found, re.MULTILINE), [])

    def test_has_the_name_and_version_that_apt_shows(self):
        self.assertEqual(self.package.name, f"corvel_{VERSION}_{self.field('Architecture')}.deb")
        self.assertIn(self.package.name, README)
        self.assertEqual(self.field("Version"), VERSION)

    def test_depends_on_what_the_programs_are_linked_with(self):
        depends = self.field("Depends")
        for library in ("libsndfile1", "libsamplerate0", "libfontconfig1", "libxkbcommon0", "libc6"):
            self.assertIn(library + " (>= ", depends)

    def test_the_other_package_lists_the_same_libraries(self):
        """Without those that every Debian has"""
        depends = {name.split()[0] for name in self.field("Depends").split(", ")}
        listed = (SOURCE / "packaging/linux/README").read_text(encoding="utf-8").split("apt install ")[1]
        self.assertEqual(depends - {"libc6", "libgcc-s1", "libstdc++6"}, set(re.findall(r"lib\S+", listed)))

    def test_apt_could_install_it(self):
        self.assertIn("Inst corvel ", run(["apt-get", "--simulate", "install", self.package]))

    def test_manual_page_and_changelog_are_compressed(self):
        page = gzip.decompress((self.top / "share/man/man1/corvel.1.gz").read_bytes())
        self.assertTrue(page.startswith(b".TH CORVEL 1 "))
        changes = gzip.decompress((self.top / "share/doc/corvel/changelog.gz").read_bytes())
        self.assertTrue(changes.startswith(f"corvel ({VERSION})".encode()))

    def test_completions_are_where_debian_has_them(self):
        for name in ("bash-completion/completions/corvel", "zsh/vendor-completions/_corvel",
                     "fish/vendor_completions.d/corvel.fish"):
            self.assertTrue((self.top / "share" / name).is_file(), name)


class TarGz(Packages, unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.package = pack("TGZ", temporary_folder(cls.addClassCleanup))

    def setUp(self):
        self.folder = temporary_folder(self.addCleanup)
        with tarfile.open(self.package) as archive:
            archive.extractall(self.folder)
        [self.top] = self.folder.iterdir()

    def test_has_one_folder_that_says_what_it_is(self):
        self.assertEqual(self.package.name, self.top.name + ".tar.gz")
        self.assertIn(self.package.name, README)
        self.assertRegex(self.top.name, rf"^corvel-{re.escape(VERSION)}-linux-\w+$")

    def test_has_the_resources_beside_the_effect(self):
        self.assertTrue((self.top / "lib/vst/Corvel/Resources/Background.png").is_file())
        self.assertTrue((self.top / "share/man/man1/corvel.1").is_file())
