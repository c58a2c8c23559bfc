#!/usr/bin/env bash
# package.sh: sets up, builds for both systems and makes the packages that users install. They go to
# build/packages: a .deb and a .tar.gz for Linux, a .zip and an installer for Windows.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."

scripts/setup.sh package
rm -rf build/packages
for preset in linux windows; do
    scripts/build.sh "$preset" package_files
    cpack --config "build/$preset/CPackConfig.cmake" -B build/packages > "build/package-$preset.log" 2>&1 ||
        { cat "build/package-$preset.log" >&2; exit 1; }
done
rm -rf build/packages/_CPack_Packages
ls build/packages
