#!/usr/bin/env bash
# run.sh [VOICE] [OPTION...]: sets up, builds and sends a recorded voice through the channel strip.
# VOICE is an audio file; by default it is the recorded speech from alsa-utils. The options are those of
# `corvel render`. The result goes to build/voices.
set -euo pipefail
top=$(dirname "$(dirname "$(realpath "$0")")")

echo "Installing what is missing, then building; the first time takes some minutes." >&2
"$top/scripts/setup.sh" run
"$top/scripts/build.sh" --progress linux Corvel corvel

voice=/usr/share/sounds/alsa/Front_Center.wav
if [ $# -gt 0 ] && [ "${1#-}" = "$1" ]; then
    voice=$1
    shift
fi
mkdir -p "$top/build/voices"
exec "$top/build/linux/bin/corvel" render "$voice" "$top/build/voices/$(basename "$voice")" --force "$@"
