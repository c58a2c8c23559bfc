#!/bin/sh
# wine.sh PREFIX PROGRAM [ARGUMENT...]: runs a 64-bit Windows program in the given Wine prefix. The
# first caller creates the prefix while the others wait. All callers share the prefix's desktop, so
# they must use the same display.
set -eu
export WINEPREFIX="$1" WINEARCH=win64 WINEDEBUG=-all
shift
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
mkdir -p "$WINEPREFIX"
(
    flock 9
    # Wine's services keep running after wineboot: they must not inherit the lock, and they must
    # have ended before the prefix is used.
    [ -e "$WINEPREFIX/ready" ] ||
        { WINEDLLOVERRIDES='mscoree,mshtml=' "$wine" wineboot --init > /dev/null 2>&1 9>&- &&
            wineserver -w 9>&- && touch "$WINEPREFIX/ready"; }
) 9> "$WINEPREFIX.lock"
exec "$wine" "$@"
