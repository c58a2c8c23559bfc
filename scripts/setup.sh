#!/usr/bin/env bash
# setup.sh [run|package|test|lint|figures|fuzz]: installs missing packages with apt. "run" is what
# building and running need. The others add to it: "package" what scripts/package.sh needs, "test" (the
# default) what the tests need, "lint" what the tests and scripts/lint.sh need, "figures" what draws the
# pictures of the documentation and the editor, "fuzz" what the fuzzers need. Prints nothing if no
# package is missing.
set -euo pipefail

run_packages=(
    g++ cmake ninja-build pkgconf  # the build
    libxcb1-dev libxkbcommon-dev libxcb-xkb-dev  # windows and keys
    libfontconfig-dev libfreetype-dev libjpeg62-turbo-dev libpng-dev  # fonts and pictures
    libsndfile1-dev libsamplerate0-dev libcli11-dev nlohmann-json3-dev  # the command-line host
    libebur128-dev                 # its loudness
    libjack-jackd2-dev             # corvel live
    googletest locales libxcb-xtest0-dev libxcb-res0-dev libxcb-xfixes0-dev  # the tests, part of every whole build
    libbenchmark-dev python3       # the benchmarks and the table of their results
    libcairo2-dev                  # the pictures of corvel; what the drawing is measured against
    alsa-utils                     # contains recorded speech, for its speaker test
)
package_packages=(
    g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix  # the Windows build
    dpkg-dev file  # find what the .deb depends on
    nsis           # the installer for Windows
)
test_packages=(
    "${package_packages[@]}"
    git                                                 # for scripts/golden.sh and scripts/check-fresh.sh
    lintian mandoc groff-base man-db                    # check the .deb and the manual page
    bash-completion zsh fish                            # complete our command lines
    wine wine64 xvfb xauth                              # run the Windows tests
    jackd2                                              # the audio server of the tests of corvel live
    fonts-liberation fonts-liberation2                  # the face of the text in the tests
    openbox libxcb-cursor0                              # a window manager and cursor themes for them
    python3-cairo                                       # draws the pictures of the editor, to compare
    parallel                                            # the batches of docs/batches.md
)
# Each version formats and warns in its own way, so these are pinned.
lint_packages=(clang-format-14 clang-tidy-14 shellcheck pyflakes3)
figures_packages=(python3-matplotlib python3-soundfile python3-cairo)
fuzz_packages=(clang-14 libclang-rt-14-dev)  # libFuzzer and the sanitizers that go with it

packages=("${run_packages[@]}")
case "${1:-test}" in
run) ;;
package) packages+=("${package_packages[@]}") ;;
test) packages+=("${test_packages[@]}") ;;
lint) packages+=("${test_packages[@]}" "${lint_packages[@]}") ;;
figures) packages+=("${figures_packages[@]}") ;;
fuzz) packages+=("${fuzz_packages[@]}") ;;
*) echo "usage: setup.sh [run|package|test|lint|figures|fuzz]" >&2; exit 2 ;;
esac

installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null || true)
missing=()
for package in "${packages[@]}"; do
    grep -qx "installed $package" <<< "$installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo)
echo "Installing: ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
{
    "${as_root[@]}" apt-get update -q &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -q -y --no-install-recommends "${missing[@]}"
} > "$log" 2>&1 || { cat "$log" >&2; exit 1; }
