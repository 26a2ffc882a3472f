#!/bin/bash
# Check the device-tree bindings in Documentation/devicetree/bindings and
# every tree the virtual boards boot against them (make check-dt).
#
#   dt-check.sh [--kind KIND]...      default: every board kind
#
# 1. dt-doc-validate: each binding against dt-schema's meta-schemas.
# 2. dt-extract-example + dtc + dt-validate: each binding's examples.
# 3. dt-mk-schema: the bindings together with dt-schema's core schemas.
# 4. dt-validate: for each kind, the tree of every board variant that a board
#    test or the demo boots (their "# board:" and "# boards:" lines, and the
#    default board).  A variant with the word "noplatform" has no board model
#    node and must fail, and only on fsl,tw-platform-board.yaml; every other
#    variant must pass.
#
# The dt-schema tools exit 0 when they report a fault: any report counts.
#
# QEMU's own nodes: the core schemas fault QEMU's tree of the machine itself
# (its platform-bus node has an interrupt-parent that qemu,platform.yaml does
# not allow), which is not ours to mend.  So QEMU's unmodified tree is
# validated too, and its reports are taken away from each variant's, report
# by report, compared as whole texts.  What is left is what the board's
# nodes brought: a report about one of them, or about any node because of
# them (a root report, which quotes the whole tree), is never in QEMU's list
# and always counts.  Nothing is filtered by node name or by schema.
set -uo pipefail

REPO=$(cd "$(dirname "$0")/.." && pwd)
BIND=$REPO/Documentation/devicetree/bindings
ROOT=${BOARD_BUILD:-$REPO/build/board}
case "$ROOT" in /*) ;; *) ROOT=$REPO/$ROOT ;; esac
export BOARD_BUILD=$ROOT
OUT=$ROOT/dt-check

kinds=()
while [ $# -gt 0 ]; do
	case "$1" in
	--kind) kinds+=("$2"); shift 2 ;;
	*) echo "usage: $0 [--kind KIND]..." >&2; exit 2 ;;
	esac
done
# shellcheck disable=SC2207 # kinds are words
[ ${#kinds[@]} -gt 0 ] || kinds=($("$REPO/board/build.sh" kinds))

"$REPO/scripts/ensure-deps.sh" dt || exit 1
rm -rf "$OUT"
mkdir -p "$OUT"
passed=0
failed=0

result() {
	if [ "$1" = 0 ]; then
		echo "ok    $2"
		passed=$((passed + 1))
	else
		echo "FAIL  $2"
		failed=$((failed + 1))
	fi
}

# Show a tool's reports; a root report quotes the whole tree, so long lines
# are cut (the full text stays in $OUT).
show() { tr '\037' '\n' <"$1" | cut -c1-400 | sed 's/^/      /'; }

# quiet LOG COMMAND...: run a dt-schema tool; fails when it fails or reports.
quiet() {
	local log=$1
	shift
	"$@" >"$log" 2>&1 && [ ! -s "$log" ] && return 0
	show "$log"
	return 1
}

# reports DTB NAME: dt-validate's reports on DTB, one a line (its lines
# joined by \037), without the file name, sorted; the tool's own output in
# $OUT/NAME.log.
reports() {
	local log=$OUT/$2.log
	if ! dt-validate -s "$OUT/schema.json" "$1" >"$log" 2>&1; then
		show "$log" >&2
		echo "dt-check: dt-validate failed on $1 (log: $log)" >&2
		return 1
	fi
	awk -v f="$1: " '
		index($0, f) == 1 { if (r != "") print r; r = substr($0, length(f) + 1); next }
		{ r = r "\037" $0 }
		END { if (r != "") print r }' "$log" | sort
}

mapfile -t docs < <(cd "$BIND" && find . -name '*.yaml' | sed 's|^\./||' | sort)
if [ ${#docs[@]} = 0 ]; then
	echo "dt-check: no bindings in $BIND"
	exit 1
fi
for d in "${docs[@]}"; do
	n=${d//\//_}
	quiet "$OUT/$n.doc.log" dt-doc-validate -u "$BIND" "$BIND/$d"
	result $? "binding $d"
done

if ! dt-mk-schema -j -o "$OUT/schema.json" "$BIND" >"$OUT/mk-schema.log" 2>&1 ||
   [ -s "$OUT/mk-schema.log" ]; then
	show "$OUT/mk-schema.log"
	echo "dt-check: dt-mk-schema failed on $BIND"
	exit 1
fi

for d in "${docs[@]}"; do
	n=${d//\//_}
	if dt-extract-example "$BIND/$d" >"$OUT/$n.example.dts" 2>"$OUT/$n.dtc.log" &&
	   dtc -q -I dts -O dtb -o "$OUT/$n.example.dtb" "$OUT/$n.example.dts" >>"$OUT/$n.dtc.log" 2>&1; then
		quiet "$OUT/$n.example.log" dt-validate -s "$OUT/schema.json" "$OUT/$n.example.dtb"
		result $? "examples of $d"
	else
		show "$OUT/$n.dtc.log"
		result 1 "examples of $d: do not compile"
	fi
done

# The words of every board a test or the demo boots; K12M3 is the default.
mapfile -t variants < <(
	{
		echo K12M3
		sed -n 's/^# boards\{0,1\}: *//p' "$REPO"/board/tests/*.sh "$REPO"/board/demo.sh |
			tr '|' '\n'
	} | awk 'NF { $1 = $1; print }' | sort -u)

for k in "${kinds[@]}"; do
	if ! virt=$(BOARD_KIND=$k "$REPO/board/build.sh" virt-dtb); then
		result 1 "[$k] QEMU's tree"
		continue
	fi
	reports "$virt" "$k-qemu" >"$OUT/$k-qemu.txt" || { result 1 "[$k] QEMU's tree"; continue; }
	for v in "${variants[@]}"; do
		n="$k-${v// /_}"
		# shellcheck disable=SC2086 # board words are words
		if ! dtb=$(BOARD_KIND=$k "$REPO/board/build.sh" dtb $v) ||
		   ! reports "$dtb" "$n" >"$OUT/$n.txt"; then
			result 1 "[$k] $v: no tree"
			continue
		fi
		comm -13 "$OUT/$k-qemu.txt" "$OUT/$n.txt" >"$OUT/$n.ours.txt"
		case " $v " in
		*" noplatform "*)
			# Must fail, and only for want of the board model node.
			if [ -s "$OUT/$n.ours.txt" ] &&
			   ! grep -v 'From schema: .*/soc/fsl/fsl,tw-platform-board\.yaml$' "$OUT/$n.ours.txt" >"$OUT/$n.other.txt"; then
				result 0 "[$k] $v: refused, no board model node"
			else
				if [ -s "$OUT/$n.ours.txt" ]; then
					show "$OUT/$n.other.txt"
				else
					echo "      passed, but has no board model node"
				fi
				result 1 "[$k] $v: must fail on fsl,tw-platform-board.yaml alone"
			fi
			;;
		*)
			[ -s "$OUT/$n.ours.txt" ] && show "$OUT/$n.ours.txt"
			result "$([ -s "$OUT/$n.ours.txt" ] && echo 1 || echo 0)" "[$k] $v"
			;;
		esac
	done
done

echo "dt-check: $passed passed, $failed failed"
[ "$failed" = 0 ]
