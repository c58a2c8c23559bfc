#!/usr/bin/env bash
# manual.sh: rewrites the manual, resources/Corvel.htm, from its texts and what the effect says about
# itself.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh run
scripts/build.sh linux manual_facts
build/linux/bin/manual_facts > build/manual_facts.json
python3 -B resources/make_manual.py build/manual_facts.json resources/Corvel.htm
