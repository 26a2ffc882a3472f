#!/bin/bash
# Build the pieces of the virtual board, each only when it is missing or stale.
#
#   build.sh kernel          arm64 kernel (Image, modules_prepare, Module.symvers),
#                            cached by the hash of board/kernel.config's settings
#   build.sh rootfs          busybox initramfs part (Debian's busybox-static:arm64)
#   build.sh modules         board module, swconfig stand-in, dummy switch
#   build.sh dtb WORDS...    device tree for a board variant; prints its path
#   build.sh all             kernel, rootfs and modules
#
# Output goes to $BOARD_BUILD (default build/board); build/board/linux is the
# configured kernel tree that out-of-tree module builds use as KDIR.
set -euo pipefail

REPO=$(cd "$(dirname "$0")/.." && pwd)
OUT=${BOARD_BUILD:-$REPO/build/board}
case "$OUT" in /*) ;; *) OUT=$REPO/$OUT ;; esac
JOBS=${JOBS:-$(nproc 2>/dev/null || echo 2)}
KMAKE=(make ARCH=arm64 CROSS_COMPILE=aarch64-linux-gnu-)
KSRC_TAR=/usr/src/linux-source-6.1.tar.xz

mkdir -p "$OUT"

say() { echo "board: $*"; }

# Run a long command with its output in a log, printing a progress line now and then.
run_logged() {
	local log=$1 what=$2 start=$SECONDS
	shift 2
	"$@" >"$log" 2>&1 &
	local pid=$!
	while kill -0 "$pid" 2>/dev/null; do
		sleep 20
		kill -0 "$pid" 2>/dev/null || break
		say "  $what: $((SECONDS - start)) s, at $(grep -E '^  [A-Z]' "$log" | tail -1 | sed 's/^ *//')"
	done
	if ! wait "$pid"; then
		tail -40 "$log"
		say "$what failed (log: $log)"
		exit 1
	fi
}

kernel_hash() {
	{
		grep '^CONFIG_' "$REPO/board/kernel.config"
		dpkg-query -W -f='${Version}\n' linux-source-6.1
		aarch64-linux-gnu-gcc --version | head -1
	} | sha256sum | cut -c1-12
}

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
	say "kernel $hash: first build (unpack, configure, compile: a few minutes)"
	rm -rf "$dir"
	mkdir -p "$dir"
	tar -xf "$KSRC_TAR" -C "$dir" --strip-components=1
	say "  unpacked linux-source-6.1"
	(
		cd "$dir"
		"${KMAKE[@]}" allnoconfig >/dev/null
		scripts/kconfig/merge_config.sh -m .config "$REPO/board/kernel.config" >config.log 2>&1
		"${KMAKE[@]}" olddefconfig >>config.log 2>&1
		# A fragment line that Kconfig dropped means the fragment is wrong.
		local line sym
		while read -r line; do
			case "$line" in CONFIG_*=n) continue ;; CONFIG_*) ;; *) continue ;; esac
			sym=${line%%=*}
			grep -qx "$line" .config || { say "kernel.config: $line did not stick ($(grep "^$sym=" .config || echo unset))"; exit 1; }
		done <"$REPO/board/kernel.config"
	)
	say "  configured (arm64 allnoconfig + board/kernel.config)"
	run_logged "$dir/build.log" "kernel build" "${KMAKE[@]}" -C "$dir" -j"$JOBS" Image modules
	run_logged "$dir/prepare.log" "modules_prepare" "${KMAKE[@]}" -C "$dir" modules_prepare
	touch "$dir/.board-built"
	ln -sfn "linux-$hash" "$OUT/linux"
	# Trees of earlier fragments are large and never used again.
	find "$OUT" -maxdepth 1 -name 'linux-*' ! -name "linux-$hash" -exec rm -rf {} +
	say "kernel $hash built: $OUT/linux/arch/arm64/boot/Image"
	flock -u 9
}

build_rootfs() {
	local deb list=$OUT/rootfs.list d
	[ -f "$OUT/rootfs.cpio.gz" ] && [ "$OUT/rootfs.cpio.gz" -nt "$REPO/board/guest/init" ] &&
		[ "$OUT/rootfs.cpio.gz" -nt "$REPO/board/guest/board.sh" ] &&
		[ "$OUT/rootfs.cpio.gz" -nt "$REPO/board/guest/procwrite.c" ] && return
	exec 8>"$OUT/.rootfs.lock"
	flock 8
	mkdir -p "$OUT/debs"
	deb=$(ls "$OUT"/debs/busybox-static_*_arm64.deb 2>/dev/null | head -1 || true)
	if [ -z "$deb" ]; then
		say "downloading busybox-static:arm64"
		# Package lists older than the arm64 architecture know no arm64 packages.
		(cd "$OUT/debs" && { apt-get download busybox-static:arm64 >/dev/null 2>&1 ||
			{ $(if [ "$(id -u)" -ne 0 ]; then echo sudo; fi) apt-get update -qq &&
			  apt-get download busybox-static:arm64 >/dev/null; }; })
		deb=$(ls "$OUT"/debs/busybox-static_*_arm64.deb | head -1)
	fi
	rm -rf "$OUT/debs/x"
	dpkg-deb -x "$deb" "$OUT/debs/x"
	aarch64-linux-gnu-gcc -Os -static -nostdlib -ffreestanding -fno-stack-protector \
		-Wall -Wextra -Werror -o "$OUT/procwrite" "$REPO/board/guest/procwrite.c"
	# gen_init_cpio (from the kernel build) writes device nodes without root.
	# The applet links are made by /init at boot (busybox --install -s): an
	# arm64 busybox cannot list them on the build host.
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
		echo "file /bin/procwrite $OUT/procwrite 755 0 0"
	} >"$list"
	"$OUT/linux/usr/gen_init_cpio" "$list" | gzip -n >"$OUT/rootfs.cpio.gz.tmp"
	mv "$OUT/rootfs.cpio.gz.tmp" "$OUT/rootfs.cpio.gz"
	say "initramfs: $OUT/rootfs.cpio.gz ($(basename "$deb"))"
	flock -u 8
}

# The board's modules build in a staging directory so that no object lands
# in the source tree: it holds symbolic links to the sources and the Kbuild.
build_modules() {
	local kmod=$OUT/kmod f
	mkdir -p "$kmod"
	exec 7>"$OUT/.modules.lock"
	flock 7
	find "$kmod" -maxdepth 1 -type l -delete
	for f in "$REPO"/board/mdio-sim/*.c "$REPO"/board/swconfig-test/*.c \
		 "$REPO"/board/swconfig-dummy/*.c "$REPO"/sim/*.c; do
		ln -s "$f" "$kmod/$(basename "$f")"
	done
	ln -s "$REPO/board/Kbuild.modules" "$kmod/Kbuild"
	if ! "${KMAKE[@]}" -C "$OUT/linux" M="$kmod" W=1 REPO="$REPO" modules >"$kmod/build.log" 2>&1; then
		cat "$kmod/build.log"
		say "board modules failed to build"
		exit 1
	fi
	if grep -q 'warning:' "$kmod/build.log"; then
		grep -B2 -A4 'warning:' "$kmod/build.log"
		say "board modules build with warnings"
		exit 1
	fi
	flock -u 7
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
	if [ ! -f "$OUT/virt.dts" ]; then
		qemu-system-aarch64 -M virt -cpu cortex-a53 -m 512 -smp 2 \
			-machine dumpdtb="$OUT/virt.dtb" -nographic >/dev/null 2>&1
		dtc -q -I dtb -O dts -o "$OUT/virt.dts.tmp" "$OUT/virt.dtb"
		mv "$OUT/virt.dts.tmp" "$OUT/virt.dts"
	fi
	local name bytes ph nodes="" dts dtb
	name=$(echo "$model $platform$fec$reset$led1$led2" | tr ' ' '_')
	dts=$OUT/dt/board-$name.dts
	dtb=$OUT/dt/board-$name.dtb
	mkdir -p "$OUT/dt"
	if [ ! -f "$dtb" ] || [ "$dtb" -ot "$OUT/virt.dts" ] || [ "$dtb" -ot "$0" ]; then
		ph=$(sed -n '/pl061@/,/};/s/.*phandle = <\(0x[0-9a-f]*\)>.*/\1/p' "$OUT/virt.dts")
		[ -n "$ph" ] || { echo "board: no PL061 phandle in virt.dts" >&2; exit 1; }
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

case "${1:-all}" in
kernel) build_kernel ;;
rootfs) build_rootfs ;;
modules) build_kernel; build_modules ;;
dtb) shift; build_dtb "$@" ;;
all) build_kernel; build_rootfs; build_modules ;;
*) echo "usage: $0 kernel|rootfs|modules|dtb WORDS...|all" >&2; exit 2 ;;
esac
