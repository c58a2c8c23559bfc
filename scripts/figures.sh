#!/usr/bin/env bash
# figures.sh: redraws the pictures of docs/modules.md from renders by the built effect.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh figures
scripts/build.sh linux Corvel corvel
mkdir -p docs/figures
/usr/bin/python3 scripts/figures.py build/linux/bin/corvel docs/figures
