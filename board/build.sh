#!/bin/bash
# Build the pieces of the virtual board, each only when it is missing or stale.
#
#   build.sh kernel          kernel (boot image, modules_prepare, Module.symvers),
#                            cached by the hash of its configuration fragments
#   build.sh rootfs          busybox initramfs part (Debian's busybox-static)
#   build.sh modules         board module, swconfig stand-in, dummy switch
#   build.sh dtb WORDS...    device tree for a board variant; prints its path
#   build.sh virt-dtb        QEMU's own tree of the machine, which the variants
#                            extend; prints its path
#   build.sh all             kernel, rootfs and modules
#   build.sh kinds           the board kinds, one line
#   build.sh env             the settings of $BOARD_KIND as NAME=VALUE lines
#
# BOARD_KIND chooses the board (default arm64-6.1, see board_kind below).
# Output goes to $BOARD_BUILD/$BOARD_KIND (default build/board/<kind>); its
# linux/ is the configured kernel tree that out-of-tree module builds use as
# KDIR.
set -euo pipefail

REPO=$(cd "$(dirname "$0")/.." && pwd)
BOARD_KINDS="arm64-6.1 arm-6.12"
KIND=${BOARD_KIND:-arm64-6.1}

# The kernel each board kind runs and the machine QEMU emulates for it.
# Both are QEMU's "virt" machine: PL011 console, PL061 GPIO, GIC, PSCI.
board_kind() {
	case "$1" in
	arm64-6.1)	# the 64-bit ARM setting the driver was first written for
		KIND_ARCH=arm64
		KIND_CROSS=aarch64-linux-gnu-
		KIND_SOURCE=linux-source-6.1
		KIND_IMAGE=arch/arm64/boot/Image
		KIND_QEMU=qemu-system-aarch64
		KIND_CPU=cortex-a53
		KIND_DEB_ARCH=arm64
		KIND_ELF_MACHINE=183	# EM_AARCH64
		;;
	arm-6.12)	# 32-bit ARM like the i.MX6UL (Cortex-A7), current kernel
		KIND_ARCH=arm
		KIND_CROSS=arm-linux-gnueabihf-
		KIND_SOURCE=linux-source-6.12
		KIND_IMAGE=arch/arm/boot/zImage
		KIND_QEMU=qemu-system-arm
		KIND_CPU=cortex-a7
		KIND_DEB_ARCH=armhf
		KIND_ELF_MACHINE=40	# EM_ARM
		;;
	*)
		echo "board: unknown BOARD_KIND '$1' (kinds: $BOARD_KINDS)"
		return 1
		;;
	esac
}

case "${1:-all}" in
kinds) echo "$BOARD_KINDS"; exit 0 ;;
env)
	board_kind "$KIND" || exit 2
	for v in ARCH CROSS SOURCE IMAGE QEMU CPU DEB_ARCH ELF_MACHINE; do
		eval "echo KIND_$v=\$KIND_$v"
	done
	exit 0
	;;
esac
board_kind "$KIND" >&2 || exit 2

ROOT=${BOARD_BUILD:-$REPO/build/board}
case "$ROOT" in /*) ;; *) ROOT=$REPO/$ROOT ;; esac
OUT=$ROOT/$KIND
JOBS=${JOBS:-$(nproc)}
KMAKE=(make ARCH="$KIND_ARCH" CROSS_COMPILE="$KIND_CROSS")
KSRC_TAR=/usr/src/$KIND_SOURCE.tar.xz
# Options of every kind first, then the kind's own.
FRAGMENTS=("$REPO/board/kernel.config" "$REPO/board/kernel-$KIND.config")

mkdir -p "$OUT"

say() { echo "board: $*"; }

# Run a step with its output in a log; on failure show the log's end and stop.
# Long steps print a progress line now and then.
run_logged() {
	local log=$1 what=$2 start=$SECONDS ticker rc=0 at
	shift 2
	(
		while sleep 20; do
			at=$(grep -E '^  [A-Z]' "$log" | tail -1 | sed 's/^ */, at /') || at=""
			say "  $what: $((SECONDS - start)) s$at"
		done
	) &
	ticker=$!
	"$@" >"$log" 2>&1 || rc=$?
	kill "$ticker" || true
	wait "$ticker" || true
	if [ "$rc" != 0 ]; then
		tail -40 "$log"
		say "$what failed (log: $log)"
		exit 1
	fi
}

kernel_hash() {
	{
		echo "$KIND"
		declare -f configure_kernel
		cat "${FRAGMENTS[@]}" | grep '^CONFIG_'
		dpkg-query -W -f='${Version}\n' "$KIND_SOURCE"
		"${KIND_CROSS}gcc" --version | head -1
	} | sha256sum | cut -c1-12
}

# A fragment line that Kconfig dropped (a missing dependency, a misspelt or
# vanished symbol) means the fragment is wrong: say which and stop.
check_fragments() {
	local line sym bad=0
	while read -r line; do
		case "$line" in CONFIG_*=n) continue ;; CONFIG_*) ;; *) continue ;; esac
		sym=${line%%=*}
		grep -qxF "$line" .config && continue
		say "kernel config: $line did not stick ($(grep "^$sym=" .config || echo unset))"
		bad=1
	done < <(cat "${FRAGMENTS[@]}")
	return $bad
}

# allnoconfig of the kind's machine (its fragment is already applied there,
# so that e.g. 32-bit ARM starts from an MMU-based Cortex-A configuration,
# not the Cortex-M one of a bare allnoconfig), then both fragments merged,
# the options they bring up taking their defaults.
# (Run under run_logged, where errexit does not apply: hence the &&.)
configure_kernel() (
	cd "$1" &&
	"${KMAKE[@]}" allnoconfig KCONFIG_ALLCONFIG="${FRAGMENTS[1]}" &&
	scripts/kconfig/merge_config.sh -m .config "${FRAGMENTS[@]}" &&
	"${KMAKE[@]}" olddefconfig
)

build_kernel() {
	local hash dir
	hash=$(kernel_hash)
	dir=$OUT/linux-$hash
	exec 9>"$OUT/.kernel.lock"
	flock 9
	if [ -f "$dir/.board-built" ]; then
		ln -sfn "linux-$hash" "$OUT/linux"
		flock -u 9
		return
	fi
	[ -f "$KSRC_TAR" ] || { say "no $KSRC_TAR (scripts/ensure-deps.sh board installs $KIND_SOURCE)"; exit 1; }
	say "$KIND kernel $hash: first build (unpack, configure, compile: a few minutes)"
	rm -rf "$dir"
	mkdir -p "$dir"
	run_logged "$OUT/unpack.log" "unpacking $KIND_SOURCE" \
		tar -xf "$KSRC_TAR" -C "$dir" --strip-components=1
	run_logged "$dir/config.log" "kernel configuration" configure_kernel "$dir"
	(cd "$dir" && check_fragments) || exit 1
	say "  configured ($KIND_ARCH allnoconfig + board/kernel-$KIND.config + board/kernel.config)"
	run_logged "$dir/build.log" "kernel build" "${KMAKE[@]}" -C "$dir" -j"$JOBS" \
		"$(basename "$KIND_IMAGE")" modules
	run_logged "$dir/prepare.log" "modules_prepare" "${KMAKE[@]}" -C "$dir" modules_prepare
	touch "$dir/.board-built"
	ln -sfn "linux-$hash" "$OUT/linux"
	# Trees of earlier fragments are large and never used again.
	find "$OUT" -maxdepth 1 -name 'linux-*' ! -name "linux-$hash" -exec rm -rf {} +
	say "$KIND kernel $hash built: $OUT/linux/$KIND_IMAGE"
	flock -u 9
}

# Debian's busybox-static of the kind's architecture, downloaded once.
busybox_deb() {
	local debs=("$OUT"/debs/busybox-static_*_"$KIND_DEB_ARCH".deb) log=$OUT/debs/download.log
	if [ ! -f "${debs[0]}" ]; then
		say "downloading busybox-static:$KIND_DEB_ARCH" >&2
		# Package lists older than the foreign architecture know none of its packages.
		if ! (cd "$OUT/debs" && apt-get download "busybox-static:$KIND_DEB_ARCH") >"$log" 2>&1; then
			say "  not in the package lists, updating them" >&2
			if ! { $(if [ "$(id -u)" -ne 0 ]; then echo sudo; fi) apt-get update -qq &&
			       (cd "$OUT/debs" && apt-get download "busybox-static:$KIND_DEB_ARCH"); } \
			       >>"$log" 2>&1; then
				cat "$log" >&2
				say "busybox-static:$KIND_DEB_ARCH download failed (log: $log)" >&2
				exit 1
			fi
		fi
		debs=("$OUT"/debs/busybox-static_*_"$KIND_DEB_ARCH".deb)
	fi
	echo "${debs[0]}"
}

rootfs_fresh() {
	local f
	[ -f "$OUT/rootfs.cpio.gz" ] || return 1
	for f in "$REPO"/board/guest/* "$REPO"/board/guest/bin/*; do
		[ "$OUT/rootfs.cpio.gz" -nt "$f" ] || return 1
	done
}

build_rootfs() {
	local deb list=$OUT/rootfs.list d
	rootfs_fresh && return
	exec 8>"$OUT/.rootfs.lock"
	flock 8
	mkdir -p "$OUT/debs"
	deb=$(busybox_deb)
	rm -rf "$OUT/debs/x"
	dpkg-deb -x "$deb" "$OUT/debs/x"
	# board/guest/bin: each C file a freestanding program (guest.h), any
	# other file a script; both land in /bin.
	mkdir -p "$OUT/bin"
	rm -f "$OUT"/bin/*
	for f in "$REPO"/board/guest/bin/*; do
		case "$f" in
		*.c)
			"${KIND_CROSS}gcc" -Os -static -nostdlib -ffreestanding -fno-stack-protector \
				-Wall -Wextra -Werror -I"$REPO/board/guest" \
				-o "$OUT/bin/$(basename "$f" .c)" "$f"
			;;
		*) cp "$f" "$OUT/bin/" ;;
		esac
	done
	# gen_init_cpio (from the kernel build) writes device nodes without root.
	# The applet links are made by /init at boot (busybox --install -s): an
	# ARM busybox cannot list them on the build host.
	{
		echo "dir /dev 755 0 0"
		echo "nod /dev/console 600 0 0 c 5 1"
		echo "nod /dev/null 666 0 0 c 1 3"
		for d in bin sbin usr usr/bin usr/sbin proc sys tmp lib modules board root; do
			echo "dir /$d 755 0 0"
		done
		echo "file /bin/busybox $OUT/debs/x/bin/busybox 755 0 0"
		echo "file /init $REPO/board/guest/init 755 0 0"
		echo "file /lib/board.sh $REPO/board/guest/board.sh 644 0 0"
		for f in "$OUT"/bin/*; do
			echo "file /bin/$(basename "$f") $f 755 0 0"
		done
	} >"$list"
	"$OUT/linux/usr/gen_init_cpio" "$list" | gzip -n >"$OUT/rootfs.cpio.gz.tmp"
	mv "$OUT/rootfs.cpio.gz.tmp" "$OUT/rootfs.cpio.gz"
	say "$KIND initramfs: $OUT/rootfs.cpio.gz ($(basename "$deb"))"
	flock -u 8
}

# The board's modules build in a staging directory so that no object lands
# in the source tree: it holds symbolic links to the sources and the Kbuild.
build_modules() {
	local kmod=$OUT/kmod f tree
	exec 7>"$OUT/.modules.lock"
	flock 7
	# Objects built against an earlier kernel tree are stale: start afresh.
	tree=$(readlink "$OUT/linux")
	if [ ! -f "$kmod/.tree" ] || [ "$(cat "$kmod/.tree")" != "$tree" ]; then
		rm -rf "$kmod"
		mkdir -p "$kmod"
		echo "$tree" >"$kmod/.tree"
	fi
	find "$kmod" -maxdepth 1 -type l -delete
	for f in "$REPO"/board/mdio-sim/*.c "$REPO"/board/swconfig-test/*.c \
		 "$REPO"/board/swconfig-dummy/*.c "$REPO"/sim/*.c; do
		ln -s "$f" "$kmod/$(basename "$f")"
	done
	ln -s "$REPO/board/Kbuild.modules" "$kmod/Kbuild"
	if ! "${KMAKE[@]}" -C "$OUT/linux" M="$kmod" W=1 REPO="$REPO" modules >"$kmod/build.log" 2>&1; then
		cat "$kmod/build.log"
		say "$KIND board modules failed to build (log: $kmod/build.log)"
		exit 1
	fi
	if grep -q 'warning:' "$kmod/build.log"; then
		grep -B2 -A4 'warning:' "$kmod/build.log"
		say "$KIND board modules build with warnings (log: $kmod/build.log)"
		exit 1
	fi
	flock -u 7
}

# QEMU's own device tree of the machine, as text.  -nic none: the default
# network card wants a boot ROM (package ipxe-qemu) that the board never uses.
dump_virt_dts() {
	local log=$OUT/virt-dtb.log
	if ! "$KIND_QEMU" -M virt -cpu "$KIND_CPU" -m 512 -smp 2 -nic none -nographic \
		-machine dumpdtb="$OUT/virt.dtb" >"$log" 2>&1; then
		say "device tree dump failed: $(tr '\n' ' ' <"$log" | sed 's/ *$//') (log: $log)" >&2
		exit 1
	fi
	if ! dtc -q -I dtb -O dts -o "$OUT/virt.dts.tmp" "$OUT/virt.dtb" >"$log" 2>&1; then
		say "device tree decompile failed: $(tr '\n' ' ' <"$log" | sed 's/ *$//') (log: $log)" >&2
		exit 1
	fi
	mv "$OUT/virt.dts.tmp" "$OUT/virt.dts"
}

# Device tree of a board variant.  Words (any order):
#   MODEL        "platform" bytes of the fsl,tw-platform node, exactly these
#                characters without a terminating zero (default K12M3)
#   noplatform   no fsl,tw-platform node at all
#   nofec        no fsl,imx6ul-fec node at all
#   noreset noled1 noled2   leave that GPIO property out of the fec node
# GPIO lines of the PL061: 0 switchnet-reset, 1 led-gpio1, 2 led-gpio2.
build_dtb() {
	local model=K12M3 platform=1 fec=1 reset=1 led1=1 led2=1 w
	for w in "$@"; do
		case "$w" in
		noplatform) platform=0 ;;
		nofec) fec=0 ;;
		noreset) reset=0 ;;
		noled1) led1=0 ;;
		noled2) led2=0 ;;
		*[!A-Za-z0-9_.-]* | "") echo "board: bad board word '$w'" >&2; exit 2 ;;
		*) model=$w ;;
		esac
	done
	exec 6>"$OUT/.dt.lock"
	flock 6
	[ -f "$OUT/virt.dts" ] || dump_virt_dts
	local name bytes ph nodes="" dts dtb
	name=$(echo "$model $platform$fec$reset$led1$led2" | tr ' ' '_')
	dts=$OUT/dt/board-$name.dts
	dtb=$OUT/dt/board-$name.dtb
	mkdir -p "$OUT/dt"
	if [ ! -f "$dtb" ] || [ "$dtb" -ot "$OUT/virt.dts" ] || [ "$dtb" -ot "$0" ]; then
		ph=$(sed -n '/pl061@/,/};/s/.*phandle = <\(0x[0-9a-f]*\)>.*/\1/p' "$OUT/virt.dts")
		[ -n "$ph" ] || { echo "board: no PL061 phandle in $OUT/virt.dts" >&2; exit 1; }
		bytes=$(printf '%s' "$model" | od -An -tx1 | tr -s ' \n' ' ' | sed 's/^ //;s/ $//')
		if [ "$platform" = 1 ]; then
			nodes+=$'\ttw-platform {\n\t\tcompatible = "fsl,tw-platform";\n'
			nodes+=$"		platform = [$bytes];"$'\n\t};\n'
		fi
		if [ "$fec" = 1 ]; then
			nodes+=$'\tethernet-fec {\n\t\tcompatible = "fsl,imx6ul-fec";\n'
			[ "$reset" = 1 ] && nodes+=$"		switchnet-reset = <$ph 0 0>;"$'\n'
			[ "$led1" = 1 ] && nodes+=$"		led-gpio1 = <$ph 1 0>;"$'\n'
			[ "$led2" = 1 ] && nodes+=$"		led-gpio2 = <$ph 2 0>;"$'\n'
			nodes+=$'\t};\n'
		fi
		# Insert the nodes before the root node's closing brace.
		awk -v nodes="$nodes" '{ lines[NR] = $0 } /^};/ { last = NR }
			END { for (i = 1; i <= NR; i++) { if (i == last) printf "%s", nodes; print lines[i] } }' \
			"$OUT/virt.dts" >"$dts"
		dtc -q -I dts -O dtb -o "$dtb.tmp" "$dts"
		mv "$dtb.tmp" "$dtb"
	fi
	flock -u 6
	echo "$dtb"
}

# QEMU's own tree, for checks that tell its nodes from the board's.
virt_dtb() {
	exec 6>"$OUT/.dt.lock"
	flock 6
	[ -f "$OUT/virt.dts" ] || dump_virt_dts
	flock -u 6
	echo "$OUT/virt.dtb"
}

case "${1:-all}" in
kernel) build_kernel ;;
rootfs) build_rootfs ;;
modules) build_kernel; build_modules ;;
dtb) shift; build_dtb "$@" ;;
virt-dtb) virt_dtb ;;
all) build_kernel; build_rootfs; build_modules ;;
*) echo "usage: $0 kernel|rootfs|modules|dtb WORDS...|virt-dtb|all|kinds|env" >&2; exit 2 ;;
esac
