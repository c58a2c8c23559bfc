#!/bin/sh
# wine.sh PREFIX PROGRAM [ARGUMENT...]: runs a 64-bit Windows program in a Wine prefix of its own,
# which the first caller makes while the others wait. All of them share the prefix's desktop, so they
# need one display.
set -eu
export WINEPREFIX="$1" WINEARCH=win64 WINEDEBUG=-all
shift
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
mkdir -p "$WINEPREFIX"
(
    flock 9
    # The services that this starts outlive it: they must not keep the lock, and must have ended
    # before a program counts on the prefix.
    [ -e "$WINEPREFIX/ready" ] ||
        { WINEDLLOVERRIDES='mscoree,mshtml=' "$wine" wineboot --init > /dev/null 2>&1 9>&- &&
            wineserver -w 9>&- && touch "$WINEPREFIX/ready"; }
) 9> "$WINEPREFIX.lock"
exec "$wine" "$@"
