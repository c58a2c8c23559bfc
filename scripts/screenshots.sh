#!/usr/bin/env bash
# screenshots.sh [--windows FOLDER]: takes the pictures of the manual and the README from the built
# effect, and rewrites the manual with them. With --windows, it takes the same pictures of the Windows
# effect under Wine, for comparison, and puts them into FOLDER.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

preset=linux
program=(build/linux/bin/editor_screenshot)
folder=resources/manual
if [ $# -gt 0 ]; then
    if [ $# -ne 2 ] || [ "$1" != --windows ]; then
        echo "usage: screenshots.sh [--windows FOLDER]" >&2
        exit 2
    fi
    preset=windows
    program=(xvfb-run -a -s "-screen 0 1024x900x24" cmake/wine.sh "$PWD/build/windows/wineprefix"
        build/windows/bin/editor_screenshot.exe)
    folder=$2
    mkdir -p "$folder"
fi

scripts/setup.sh test
scripts/build.sh "$preset" editor_screenshot

pam=$(mktemp -p build --suffix .pam)
trap 'rm -f "$pam"' EXIT
# take NAME ARGUMENT...: takes a picture into the folder.
take() {
    "${program[@]}" "$pam" "${@:2}"
    python3 -B resources/pam_to_png.py "$pam" "$folder/$1.png"
}
take editor "Pop Vocal"
take menu "Lead Vocal" 3 Delay
[ "$preset" = windows ] || scripts/manual.sh
