"""What CTest tells the tests about the build, and how they run programs."""
import os
import pathlib
import subprocess
import tempfile

SOURCE = pathlib.Path(os.environ["CORVEL_SOURCE"])
BUILD = pathlib.Path(os.environ["CORVEL_BUILD"])
VERSION = os.environ["CORVEL_VERSION"]
VOICE = pathlib.Path(os.environ["CORVEL_VOICE_FILE"])
CMAKE = os.environ["CORVEL_CMAKE"]
PROGRAM = BUILD / "bin" / "corvel"
MAN_PAGE = BUILD / "packaging" / "corvel.1"


def run(command, **options):
    """Returns the finished process with its output as text; a failure is an error that shows it."""
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, stdin=subprocess.DEVNULL, **options)
    if done.returncode != 0:
        raise RuntimeError(f"{command} ended with {done.returncode}:\n{done.stdout}")
    return done


def temporary_folder(add_cleanup):
    """@param add_cleanup  what deletes the folder later: addCleanup or addClassCleanup of a test."""
    folder = tempfile.TemporaryDirectory()
    add_cleanup(folder.cleanup)
    return pathlib.Path(folder.name)


def pack(generator, folder):
    """Runs cpack as users do and returns the package."""
    run([os.environ["CORVEL_CPACK"], "--config", BUILD / "CPackConfig.cmake", "-G", generator, "-B", folder],
        cwd=BUILD)
    [package] = (file for file in folder.iterdir() if file.is_file() and file.suffix != ".sha256")
    return package
