"""What CTest tells the tests about the build, and how they run programs."""
import os
import pathlib
import subprocess
import tempfile

SOURCE = pathlib.Path(os.environ["CORVEL_SOURCE"])
README = (SOURCE / "README.md").read_text(encoding="utf-8")
BUILD = pathlib.Path(os.environ["CORVEL_BUILD"])
VERSION = os.environ["CORVEL_VERSION"]
VOICE = pathlib.Path(os.environ["CORVEL_VOICE_FILE"])
CMAKE = os.environ["CORVEL_CMAKE"]
PROGRAM = BUILD / "bin" / "corvel"
MAN_PAGE = BUILD / "packaging" / "corvel.1"


def run(command, statuses=(0,), **options):
    """Returns what a program printed; another status than the expected ones is an error that shows it."""
    # Not a pipe: Wine's services inherit it, and its end would be awaited until they end too.
    with tempfile.TemporaryFile(mode="w+", encoding="utf-8") as printed:
        status = subprocess.run([str(word) for word in command], stdout=printed, stderr=subprocess.STDOUT,
                                stdin=subprocess.DEVNULL, **options).returncode
        printed.seek(0)
        text = printed.read()
    if status not in statuses:
        raise RuntimeError(f"{command} ended with {status}:\n{text}")
    return text


def temporary_folder(add_cleanup, parent=None):
    """@param add_cleanup  what deletes the folder later: addCleanup or addClassCleanup of a test."""
    folder = tempfile.TemporaryDirectory(dir=parent)
    add_cleanup(folder.cleanup)
    return pathlib.Path(folder.name)


def pack(generator, folder):
    """Runs cpack as users do and returns the package."""
    run([os.environ["CORVEL_CPACK"], "--config", BUILD / "CPackConfig.cmake", "-G", generator, "-B", folder],
        cwd=BUILD)
    [package] = (file for file in folder.iterdir() if file.is_file() and file.suffix != ".sha256")
    return package
