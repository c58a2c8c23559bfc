import os
import re
import time
import unittest
import zipfile

from places import BUILD, README, SOURCE, VERSION, pack, run, temporary_folder

WINE, PREFIX = os.environ["CORVEL_WINE"].split("|")
DRIVE = os.path.join(PREFIX, "drive_c")
KEY = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Corvel"
DEADLINE = 60  # seconds

FILES = {"Corvel.dll", "Corvel/README.txt", "Corvel/COPYRIGHT.txt"} | {
    f"Corvel/Resources/{file.name}" for file in (BUILD / "plugin/Corvel/Resources").iterdir()}


def wine(*command, statuses=(0,)):
    return run([WINE, PREFIX, *command], statuses)


def effect_name(file):
    return wine(BUILD / "bin/print_effect.exe", file).strip()


class Zip(unittest.TestCase):
    def test_has_the_effect_its_resources_and_the_manual(self):
        folder = temporary_folder(self.addCleanup)
        package = pack("ZIP", folder / "package")
        self.assertEqual(package.name, f"corvel-{VERSION}-windows-x86_64.zip")
        with zipfile.ZipFile(package) as archive:
            archive.extractall(folder)
        top = folder / package.stem
        self.assertEqual({file.relative_to(top).as_posix() for file in top.rglob("*") if file.is_file()}, FILES)
        self.assertEqual((top / "Corvel/Resources/Corvel.htm").read_bytes(),
                         (SOURCE / "resources/Corvel.htm").read_bytes())
        self.assertEqual(effect_name(top / "Corvel.dll"), "Corvel")


class Installer(unittest.TestCase):
    """Runs the installer silently. It takes the folder unquoted, as its last argument."""

    @classmethod
    def setUpClass(cls):
        wine("reg", "query", "HKLM")  # makes the drive
        cls.package = pack("NSIS", temporary_folder(cls.addClassCleanup))

    def setUp(self):
        self.folder = temporary_folder(self.addCleanup, DRIVE)
        self.addCleanup(self.forget)

    def forget(self):
        """After a failure, the next test must not find this installation."""
        if self.registered():
            wine("reg", "delete", KEY, "/f")

    def install(self, name):
        """@param name  of a folder, with one space."""
        first, second = f"C:\\{self.folder.name}\\{name}".split(" ")
        wine(self.package, "/S", "/D=" + first, second)
        return self.folder / name

    def uninstall(self, folder):
        """The uninstaller copies itself and continues as the copy; the key is the last thing it deletes."""
        wine(folder / "Corvel/Uninstall.exe", "/S")
        end = time.monotonic() + DEADLINE
        while self.registered():
            self.assertLess(time.monotonic(), end)
            time.sleep(0.1)

    def registered(self):
        """The values that Windows lists installed programs by; empty if there are none."""
        listed = wine("reg", "query", KEY, statuses=(0, 1))
        return dict(re.findall(r"^ +(\w+) +REG_\w+ +(.*?)\s*$", listed, re.MULTILINE))

    def files(self, folder):
        return {file.relative_to(folder).as_posix() for file in folder.rglob("*") if file.is_file()}

    def test_has_the_name_that_the_readme_tells(self):
        self.assertEqual(self.package.name, f"corvel-{VERSION}-windows-x86_64.exe")
        self.assertIn(self.package.name, README)

    def test_installs_and_uninstalls_leaving_nothing(self):
        folder = self.install("VST effects")
        self.assertEqual(self.files(folder), FILES | {"Corvel/Uninstall.exe"})
        self.assertEqual(effect_name(folder / "Corvel.dll"), "Corvel")
        values = self.registered()
        self.assertEqual(values["DisplayName"], "Corvel")
        self.assertEqual(values["DisplayVersion"], VERSION)
        self.assertTrue(values["InstallLocation"].endswith("\\VST effects"))
        self.uninstall(folder)
        self.assertFalse(folder.exists())

    def test_leaves_the_files_of_others(self):
        folder = self.install("VST effects")
        for name in ("Other.dll", "Corvel/Resources/mine.txt"):
            (folder / name).write_text("not ours", encoding="utf-8")
        self.uninstall(folder)
        self.assertEqual(self.files(folder), {"Other.dll", "Corvel/Resources/mine.txt"})

    def test_an_installation_elsewhere_replaces_the_earlier_one(self):
        earlier = self.install("first place")
        later = self.install("second place")
        self.assertFalse(earlier.exists())
        self.assertEqual(self.files(later), FILES | {"Corvel/Uninstall.exe"})
        self.uninstall(later)
        self.assertFalse(later.exists())
