#!/usr/bin/env python3
"""tidy.py BUILD... -- FOLDER...: runs clang-tidy over the sources in FOLDER, as many at once as there
are processors. BUILD is a folder with compile_commands.json; the first one that has a source decides
how it is compiled. Prints each finding once and exits with 1 if there are any.

A source without findings leaves a stamp in build/lint, and is skipped until its preprocessed text,
.clang-tidy or clang-tidy itself changes.
"""

import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from functools import cache
from pathlib import Path

TIDY = "clang-tidy-14"
STAMPS = Path("build/lint")
# What CMake gives to GCC and clang does not know.
GCC_ONLY = {"-fno-keep-inline-dllexport"}


def run(command, **options):
    return subprocess.run(command, capture_output=True, text=True, encoding="utf-8", **options)


def compile_commands(builds, folders):
    """The compiler and its arguments for each source, without input, output and optimisation."""
    commands = {}
    for build in builds:
        for entry in json.loads(Path(build, "compile_commands.json").read_text(encoding="utf-8")):
            source = os.path.relpath(entry["file"])
            inside = source.startswith(tuple(f"{folder.rstrip('/')}/" for folder in folders))
            if inside and source.endswith(".cpp"):
                words = shlex.split(entry["command"])
                words = words[: words.index("-o")]
                commands.setdefault(source, [word for word in words if word not in GCC_ONLY])
    return commands


@cache
def system_of(compiler):
    """clang's arguments for the target and the C++ library of a GCC."""
    target = run([compiler, "-dumpmachine"], check=True).stdout.strip()
    search = run([compiler, "-xc++", "-E", "-v", "/dev/null"], check=True).stderr
    library = [path for path in re.findall(r"^ (/\S+)$", search, re.M) if "/c++" in path]
    return [f"--target={target}", *(f"-isystem{path}" for path in library)]


@cache
def settings():
    return run([TIDY, "--version"], check=True).stdout + Path(".clang-tidy").read_text()


def tidy(source, command):
    """What clang-tidy says about a source; nothing if it is clean."""
    preprocessed = run([*command, "-E", "-C", source])
    if preprocessed.returncode != 0:
        return preprocessed.stderr
    key = settings() + repr(command) + preprocessed.stdout
    digest = hashlib.sha256(key.encode()).hexdigest()
    stamp = STAMPS / f"{source}.stamp"
    if stamp.exists() and stamp.read_text() == digest:
        return ""

    compiler, *arguments = command
    done = run([TIDY, "--quiet", source, "--", *system_of(compiler), *arguments])
    if done.returncode != 0:
        return done.stdout or done.stderr
    stamp.parent.mkdir(parents=True, exist_ok=True)
    stamp.write_text(digest)
    return ""


def findings_in(output):
    """The findings, each with the lines of source and the notes that belong to it."""
    return re.split(r"^(?=\S+:\d+:\d+: (?:error|warning): |error: )", output, flags=re.M)


def main(arguments):
    separator = arguments.index("--")
    commands = compile_commands(arguments[:separator], arguments[separator + 1 :])
    if not commands:
        sys.exit("tidy.py: no sources there")
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        # Backwards: tools/corvel/commandline takes longest, and must not be left to one processor.
        sources = sorted(commands, reverse=True)
        outputs = pool.map(lambda source: tidy(source, commands[source]), sources)
        findings = {finding for output in outputs for finding in findings_in(output) if finding}
    sys.stdout.writelines(sorted(findings))
    return bool(findings)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
