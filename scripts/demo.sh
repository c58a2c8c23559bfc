#!/usr/bin/env bash
# demo.sh [--windows] [--editing] [--screenshot FILE.png]: builds and opens a window with every control
# of the toolkit. With --editing, a text field is open. With --screenshot, the window opens in a
# virtual display, and its picture goes into the file. --windows takes the Windows build and Wine.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

preset=linux
program=(build/linux/bin/controls_demo)
arguments=()
picture=
while [ $# -gt 0 ]; do
    case "$1" in
    --windows)
        preset=windows
        program=(cmake/wine.sh "$PWD/build/windows/wineprefix" build/windows/bin/controls_demo.exe) ;;
    --editing) arguments=(--editing) ;;
    --screenshot) picture=${2:?usage: demo.sh [--windows] [--editing] [--screenshot FILE.png]}; shift ;;
    *) echo "usage: demo.sh [--windows] [--editing] [--screenshot FILE.png]" >&2; exit 2 ;;
    esac
    shift
done

scripts/setup.sh test
scripts/build.sh "$preset" controls_demo
[ -n "$picture" ] || exec "${program[@]}" "${arguments[@]}"

folder=$(mktemp -d)
started=()
finish() {
    [ ${#started[@]} -eq 0 ] || kill "${started[@]}" 2> /dev/null || true
    wait
    rm -rf "$folder"
}
trap finish EXIT
mkfifo "$folder/number" "$folder/output"
# The server keeps what the screen shows in a file.
Xvfb -displayfd 3 -screen 0 1024x800x24 -nolisten tcp -fbdir "$folder" 3> "$folder/number" 2> /dev/null &
started+=($!)
read -r number < "$folder/number"
DISPLAY=:$number "${program[@]}" "${arguments[@]}" > "$folder/output" &
started+=($!)
read -r word < "$folder/output"
[ "${word%$'\r'}" = ready ] || { echo "demo.sh: the program has not opened its window" >&2; exit 1; }
python3 -B scripts/screen_to_png.py "$folder/Xvfb_screen0" "$picture"
