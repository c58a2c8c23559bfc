#!/usr/bin/env python3
"""subjects.py [RANGE]: checks the subjects of commits, by default those since this file was added.

A subject is "Do this" or "Name: do this", where the name is a class, a file or a folder, and takes
at most 72 characters. Prints the commits that differ and exits with 1 if there are any. Grammar is
guessed from the first word, so some wrong subjects pass; a right one must not fail.
"""

import re
import subprocess
import sys
from pathlib import Path

LONGEST = 72
NAME = r"[\w./*-]+"
CATEGORIES = {"bugfix", "chore", "feat", "feature", "fix", "fixes", "misc", "refactor", "test",
              "tests", "wip"}
NO_VERBS = {"a", "all", "an", "and", "any", "at", "by", "each", "every", "fewer", "for", "from",
            "how", "in", "it", "its", "less", "more", "new", "no", "not", "of", "on", "one", "only",
            "own", "some", "that", "the", "these", "this", "those", "to", "two", "what", "when",
            "where", "which", "why", "with"}
# Imperatives that look like another form.
VERBS = {"bring", "string", "swing", "bias", "focus"}


def looks_imperative(word):
    word = word.lower()
    if word in VERBS or word.endswith(("eed", "ss")):
        return True
    return word not in NO_VERBS and not word.endswith(("ed", "ing", "s"))


def complaint(subject):
    """What is wrong with a subject, or None."""
    if subject.startswith('Revert "'):
        return None
    if len(subject) > LONGEST:
        return f"{len(subject)} characters, at most {LONGEST}"
    names, action = re.fullmatch(rf"(?:({NAME}(?:, {NAME})*): )?(.*)", subject).groups()
    if names and names.lower() in CATEGORIES:
        return f'"{names}" is no class, file or folder'
    word = action.partition(" ")[0]
    if not re.match("[a-z]" if names else "[A-Z]", word):
        return f'"{word}" should begin with a {"small" if names else "capital"} letter'
    if not looks_imperative(word.rstrip(",:;")):
        return f'"{word}" is no imperative'
    return None


def git(*arguments):
    done = subprocess.run(["git", *arguments], stdout=subprocess.PIPE, text=True)
    if done.returncode != 0:
        sys.exit(2)  # git has said why
    return done.stdout.splitlines()


def since_this_file():
    # In a shallow clone the oldest commit counts as the one that added every file.
    added = git("log", "--diff-filter=A", "--format=%H", "--", str(Path(__file__).resolve()))
    return f"{added[-1]}..HEAD" if added else None


def main(arguments):
    commits = arguments[0] if arguments else since_this_file()
    if commits is None:
        return 0
    found = False
    for line in git("log", "--no-merges", "--format=%h %s", commits):
        commit, _, subject = line.partition(" ")
        problem = complaint(subject)
        if problem:
            print(f"commit {commit}: {subject}: {problem}")
            found = True
    return found


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
