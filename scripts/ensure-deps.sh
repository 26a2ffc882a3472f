#!/bin/sh
# Install the Debian packages a make target needs, only when one is missing.
# Usage: ensure-deps.sh host|board|kmod
set -e

host_pkgs="cmake make g++ gcc libc6-dev libgtest-dev pkg-config"
board_pkgs="qemu-system-arm gcc-aarch64-linux-gnu linux-source-6.1 device-tree-compiler bc flex bison libssl-dev libelf-dev cpio xz-utils kmod"

case "$1" in
host) pkgs=$host_pkgs ;;
board) pkgs="$host_pkgs $board_pkgs" ;;
kmod) pkgs="make gcc sparse linux-headers-amd64" ;;
*) echo "usage: $0 host|board|kmod" >&2; exit 2 ;;
esac

# The board's initramfs takes busybox-static from Debian's arm64 archive.
if [ "$1" = board ] && ! dpkg --print-foreign-architectures | grep -qx arm64; then
	echo "Adding the arm64 architecture to dpkg"
	S=; [ "$(id -u)" -eq 0 ] || S=sudo
	$S dpkg --add-architecture arm64
	$S apt-get update -qq
fi

missing=
for p in $pkgs; do
	dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing="$missing $p"
done
[ -z "$missing" ] && exit 0

echo "Installing:$missing"
SUDO=
[ "$(id -u)" -eq 0 ] || SUDO=sudo
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends $missing
