#!/bin/sh
# Install the Debian packages a make target needs, only when one is missing.
# Usage: ensure-deps.sh host|board|kmod|dt
set -e

host_pkgs="cmake make g++ gcc libc6-dev libgtest-dev pkg-config"
# qemu-system-arm has both qemu-system-arm and qemu-system-aarch64.  sparse:
# the driver's board builds run it (C=2).
board_pkgs="qemu-system-arm gcc-aarch64-linux-gnu gcc-arm-linux-gnueabihf
	linux-source-6.1 linux-source-6.12 device-tree-compiler bc flex bison libssl-dev
	libelf-dev cpio xz-utils kmod sparse"
# The boards' initramfs takes busybox-static from Debian's archive of each
# board architecture (board/build.sh downloads it, nothing is installed).
board_archs="arm64 armhf"
# Device-tree checks: dt-schema's dt-doc-validate, dt-mk-schema and
# dt-validate, and the board trees they check (QEMU's own tree plus ours,
# built by dtc).  Every module those tools import comes with dt-schema's
# Depends (python3-jsonschema, -rfc3987, -ruamel.yaml, -libfdt and theirs),
# none from a Recommends, so --no-install-recommends is enough.
dt_pkgs="dt-schema device-tree-compiler qemu-system-arm"

case "$1" in
host) pkgs=$host_pkgs ;;
board) pkgs="$host_pkgs $board_pkgs" ;;
kmod) pkgs="make gcc sparse linux-headers-amd64" ;;
dt) pkgs=$dt_pkgs ;;
*) echo "usage: $0 host|board|kmod|dt" >&2; exit 2 ;;
esac

SUDO=
[ "$(id -u)" -eq 0 ] || SUDO=sudo
update=

if [ "$1" = board ]; then
	have=" $(dpkg --print-foreign-architectures | tr '\n' ' ') "
	for a in $board_archs; do
		case "$have" in *" $a "*) continue ;; esac
		echo "Adding the $a architecture to dpkg"
		$SUDO dpkg --add-architecture "$a"
		update=1
	done
fi

# Installed packages, one " name " each (dpkg-query fails on names it does
# not know, so ask for the whole list).
installed=" $(dpkg-query -W -f='${Package} ${Status}\n' |
	sed -n 's/ install ok installed$//p' | tr '\n' ' ') "
missing=
for p in $pkgs; do
	case "$installed" in *" $p "*) ;; *) missing="$missing $p" ;; esac
done

# A mirror caught in the middle of a sync fails the update for one list
# (seen with bookworm-security's armhf list); the lists already here may
# still have what is missing, so go on and let the install tell.
if [ -n "$update" ] || [ -n "$missing" ]; then
	$SUDO apt-get update -qq ||
		echo "ensure-deps: apt-get update failed (above), installing from the lists there are" >&2
fi
[ -z "$missing" ] && exit 0

echo "Installing:$missing"
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends $missing
