#!/usr/bin/env bash
# check-fresh.sh [FOLDER]: checks that the README's two commands do everything on a fresh machine. It
# installs a minimal Debian 12 into FOLDER (build/fresh by default, emptied first) from this machine's
# package sources, clones the last commit into it and runs both commands there, then lint.sh. Needs
# root and debootstrap.
set -euo pipefail
top=$(dirname "$(dirname "$(realpath "$0")")")
root=$(realpath -m "${1:-$top/build/fresh}")

[ "$(id -u)" = 0 ] || { echo "check-fresh.sh: must run as root" >&2; exit 2; }
command -v debootstrap > /dev/null || { echo "check-fresh.sh: needs debootstrap" >&2; exit 2; }

release() {
    for mount in /proc /dev/pts /dev/shm /dev ""; do
        mountpoint -q "$root$mount" && umount "$root$mount"
    done
    return 0
}
trap release EXIT
release
rm -rf --one-file-system "$root"

# shellcheck disable=SC2016  # apt-get fills in the address
mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm' | head -n 1)
debootstrap --variant=minbase bookworm "$root" "$mirror" > "$top/build/debootstrap.log" 2>&1 ||
    { tail -n 20 "$top/build/debootstrap.log" >&2; exit 1; }
rm -rf "$root/etc/apt/sources.list"
cp -a /etc/apt/. "$root/etc/apt/"
cp /etc/resolv.conf /etc/hosts "$root/etc/"
mount --bind "$root" "$root"  # so that / is a mount point inside, too
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
mount -t devpts devpts "$root/dev/pts" 2> /dev/null || mount --bind /dev/pts "$root/dev/pts"
mount -t tmpfs tmpfs "$root/dev/shm"

git clone -q "$top" "$root/root/corvel"
for command in scripts/run.sh scripts/run.sh scripts/test.sh scripts/lint.sh; do
    echo "== $command"
    # shellcheck disable=SC2016  # the inner bash expands it
    time chroot "$root" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin TERM=dumb \
        bash -c 'cd /root/corvel && "$1"' fresh "$command"
done
