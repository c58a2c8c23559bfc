#!/usr/bin/env bash
# lint.sh [FOLDER...]: checks the format of all C++, the comments, the scripts and the subjects of new
# commits, and runs clang-tidy over the C++ in FOLDER (default: src and tools). Prints nothing if all is
# well. Sources that clang-tidy found clean are skipped until they change.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
[ $# -gt 0 ] || set -- src tools

scripts/setup.sh lint

# files_with PATTERN [FILES]: the files, committed or not, with a line that matches.
files_with() { git grep --untracked --files-with-matches --null -Ee "$1" -- "${@:2}"; }

failed=0
files_with '' '*.cpp' '*.h' | xargs -0 clang-format-14 --dry-run -Werror || failed=1
files_with '' '*.cpp' '*.h' '*.cmake' '*CMakeLists.txt' '*.sh' '*.py' .ci |
    xargs -0 scripts/lint/comments.py || failed=1
files_with '^#!.*\b(ba)?sh$' | xargs -0 shellcheck --format=gcc || failed=1
files_with '' '*.py' | xargs -0 pyflakes3 || failed=1
scripts/lint/subjects.py || failed=1

mkdir -p build
for preset in linux windows; do
    cmake --preset "$preset" > build/lint.log 2>&1 || { cat build/lint.log >&2; exit 1; }
done
scripts/lint/tidy.py build/linux build/windows -- "$@" || failed=1
exit "$failed"
