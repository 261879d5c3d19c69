#!/usr/bin/env bash
# usage: chroot.sh PACKAGES SOURCE ROOT
# Installs the Debian packages of the folder PACKAGES in a bare Debian 12 at ROOT, which is made if it is not there, runs
# the tests that they bring for an installed system, and shows which libraries the loader takes.
set -euo pipefail
packages=$1 source=$2 root=$3
skip() { echo "SKIPPED: $*" && exit 77; }

[ "$(id -u)" = 0 ] || skip "only root can make a Debian system of its own"
command -v debootstrap >/dev/null || skip "there is no debootstrap"
# The mirror that this machine takes its own packages from.
mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Identifier: Packages' 'Origin: Debian' 'Codename: bookworm' | sort -u | head -n 1)
[ -n "$mirror" ] || skip "this machine has no mirror of Debian 12"

if [ ! -e "$root.made" ]; then
  rm -rf "$root"
  debootstrap --variant=minbase bookworm "$root" "$mirror" >"$root.log" || skip "debootstrap failed, see $root.log"
  touch "$root.made"
fi
echo "Debian made after $SECONDS s"

inside() { env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive chroot "$root" "$@"; }
apt() { inside apt-get -q -o Dpkg::Use-Pty=0 -o APT::Sandbox::User=root -y --no-install-recommends "$@"; }

# What an earlier run has installed goes, so that the packages must ask for what they need.
mapfile -t earlier < <(inside dpkg-query -W -f '${Package}\n' '*xfm*' 2>/dev/null)
[ ${#earlier[@]} = 0 ] || apt purge --auto-remove "${earlier[@]}" >/dev/null
rm -rf "$root/xfm"
mkdir -p "$root/xfm/packages" "$root/xfm/packaging" "$root/xfm/tests"
cp "$packages"/*.deb "$root/xfm/packages"
cp "$source/README.md" "$root/xfm"
cp -r "$source/packaging/debian" "$root/xfm"
cp -r "$source/tests/targets" "$root/xfm/tests"
[ -e "$root/proc/cpuinfo" ] || cp /proc/cpuinfo "$root/proc" # what choice.sh reads

mapfile -t files < <(inside sh -c 'ls /xfm/packages/*.deb')
mapfile -t needed < <(sed -n 's/^Depends: //p' "$source/packaging/debian/tests/control" | tr -d ' ' | tr , '\n')
apt install "${files[@]}" "${needed[@]}" >"$root.log" 2>&1 || { cat "$root.log" && exit 1; }
echo "Packages installed after $SECONDS s"
inside /xfm/debian/tests/readme
inside /xfm/debian/tests/fftw

inside /lib64/ld-linux-x86-64.so.2 --help | sed -n '/^Subdirectories of glibc-hwcaps/,/^$/p'
inside sh -euc 'gcc /xfm/tests/targets/mapped.c -o /xfm/mapped $(pkg-config --cflags --libs xfm)'
inside bash /xfm/tests/targets/choice.sh /xfm/mapped /usr/lib/x86_64-linux-gnu x86-64 x86-64-v3 x86-64-v4
inside xfmbench --rounds 3 --only CToC_8_32fc
echo "Done after $SECONDS s"
