#!/bin/sh
# wine.sh PREFIX PROGRAM [ARGUMENT...]: runs a 64-bit Windows program in a Wine prefix of its own,
# which the first caller makes while the others wait. Without a display it gets one of its own: a
# message box, say, waits for a desktop to be shown on.
set -eu
export WINEPREFIX="$1" WINEARCH=win64 WINEDEBUG=-all
shift
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
mkdir -p "$WINEPREFIX"
(
    flock 9
    [ -e "$WINEPREFIX/ready" ] ||
        { WINEDLLOVERRIDES='mscoree,mshtml=' "$wine" wineboot --init >/dev/null 2>&1 && touch "$WINEPREFIX/ready"; }
) 9> "$WINEPREFIX.lock"
if [ -z "${DISPLAY:-}" ]; then
    exec xvfb-run -a -s '-screen 0 1280x1024x24 -nolisten tcp' "$wine" "$@"
fi
exec "$wine" "$@"
