#!/bin/sh
# board: K12M3
# timeout: 240
# The swconfig device under random requests: 3000 of them in 6 batches
# through the framework stand-in (VLAN slots 0..20, ports 0..10, port lists
# with unknown ids, duplicates and tags, VIDs and PVIDs -1..70000, gets of
# every attribute, link changes, apply and reset in between).  A reference
# model, written from the device's documented behaviour and not from the
# driver, makes the requests from the seed and predicts every answer and,
# after the apply or reset that ends each batch, the chip's whole VLAN block.
# Replay: FUZZ_SEED=<seed> make board-run SCRIPT=board/tests/fuzz_swconfig.sh
# on the same board kind (the stream comes from busybox awk's rand()).
. /lib/board.sh
S="dev RTL8304MB"
BATCHES=6
PER_BATCH=500
W=/tmp/swfuzz
SEED=$(board_seed)
echo "seed $SEED"

# The model.  Soft state per slot i: vid[i] (16 bits), port bits pb_[i,id]
# and tagged bits tg_[i,id], port_based pbased[i]; per port: pvid[p];
# enable_vlan.  Chip:
# entries evid/efid/embr/eut[0..15], pidx[0..8].  Expected answers use '*'
# for any text and <int> for any integer.
# shellcheck disable=SC2016 # awk program
MODEL='
function rnd(n) { return int(rand() * n) }
function u16(v) { v = v % 65536; return v < 0 ? v + 65536 : v }
function hex3(n,   s, i, d) {
	s = ""
	for (i = 0; i < 3; i++) { d = n % 16; s = substr("0123456789abcdef", d + 1, 1) s; n = int(n / 16) }
	return s
}
function slot(   r) { r = rnd(100); return r < 85 ? 1 + rnd(16) : r < 90 ? 0 : 17 + rnd(4) }
function port() { return rnd(100) < 85 ? rnd(4) : 4 + rnd(7) }
function vidval(   r) {
	r = rnd(100)
	if (r < 50) return 1 + rnd(24)
	if (r < 70) return (r < 60 ? 100 + rnd(4) : 4093 + rnd(2))
	if (r < 85) return edge[1 + rnd(nedge)]
	return rnd(70001)
}
function einval(set) { return "Failed to " (set ? "set" : "get") " attribute: Invalid argument;error -22" }
function okslot(i) { return i >= 1 && i <= 16 }

function soft_reset(   i, id, p) {
	for (i = 1; i <= 16; i++) {
		vid[i] = 0; pbased[i] = 0
		for (id = 0; id < 4; id++) { pb_[i, id] = 0; tg_[i, id] = 0 }
	}
	for (p = 0; p < 4; p++) pvid[p] = 0
	enable_vlan = 0
}

# rtk_vlan_set: entries 15..0, the first holding the VID wins; else the
# lowest free one; VIDs outside 1..4094 and a full table are refused.
function vlan_set(v, mbr, ut, fid,   e, free, found) {
	if (v < 1 || v > 4094) { refused++; return }
	free = -1; found = -1
	for (e = 15; e >= 0; e--) {
		if (evid[e] == 0) free = e
		else if (evid[e] == v) { found = e; break }
	}
	if (found < 0 && free < 0) { refused++; return }
	e = found >= 0 ? found : free
	evid[e] = (mbr || ut) ? v : 0; efid[e] = fid; embr[e] = mbr; eut[e] = ut
}

function pvid_set(c, v,   e) {
	if (v < 1 || v > 4094) return
	for (e = 15; e >= 0; e--)
		if (evid[e] == v) { pidx[c] = e; return }
	refused++
}

function apply(   e, c, i, p, any, mbr, tgm) {
	for (e = 0; e < 16; e++) { evid[e] = 0; efid[e] = 0; embr[e] = 0; eut[e] = 0 }
	evid[0] = 1; embr[0] = 511
	for (c = 0; c <= 8; c++) pidx[c] = 0
	for (i = 1; i <= 16; i++)
		for (p = 0; p < 4; p++)
			if (pb_[i, p] && !tg_[i, p]) pvid[p] = vid[i]
	for (i = 1; i <= 16; i++) {
		any = 0; mbr = 0; tgm = 0
		for (p = 0; p < 4; p++) if (pb_[i, p]) any = 1
		if (!any || vid[i] == 0 || pbased[i]) continue
		for (p = 0; p < 4; p++) {
			if (pb_[i, p]) mbr += chipbit[p]
			if (tg_[i, p]) tgm += chipbit[p]
		}
		vlan_set(vid[i], mbr, mbr - tgm, 1)
	}
	for (p = 0; p < 4; p++) pvid_set(chip[p], pvid[p])
	applies++
}

function ports_text(i,   p, s) {
	s = ""
	for (p = 0; p < 4; p++) if (pb_[i, p]) s = s p (tg_[i, p] ? "t" : "") " "
	return s
}

# One request: print it to REQ and its expected answer to WANT.
function request(last,   op, w, a, i, p, v, n, k, id, t, list, ids, tags, bad, spd, dup, an) {
	if (last) op = rnd(10) ? "apply" : "reset"
	else {
		w = rnd(1000)
		for (k = 1; w >= weight[opname[k]]; k++)
			w -= weight[opname[k]]
		op = opname[k]
	}
	if (op == "set_vid") {
		i = slot(); v = vidval()
		print "vlan " i " set vid " v > REQ
		if (okslot(i)) { vid[i] = u16(v); print "" > WANT } else print einval(1) > WANT
	} else if (op == "set_ports") {
		# More than 4 entries or a suffix other than t: the tool refuses,
		# the kernel is not asked.
		i = slot(); n = rnd(100) < 3 ? 5 : rnd(5); list = ""; bad = 0
		for (k = 0; k < n; k++) {
			ids[k] = rnd(100) < 92 ? rnd(4) : 4 + rnd(7)
			tags[k] = rnd(100) < 40
			t = tags[k] ? "t" : ""
			if (rnd(100) < 2) { t = "x"; bad = 1 }
			list = list (k ? " " : "") ids[k] t
		}
		print "vlan " i " set ports \"" list "\"" > REQ
		if (n > 4 || bad) { print "*;error -22" > WANT; return }
		if (i > 16) { print einval(1) > WANT; return }
		# The framework, entry by entry: an id >= 4 is refused, an
		# untagged member first gets the slot number as its PVID.
		for (k = 0; k < n; k++) {
			if (ids[k] >= 4) { print einval(1) > WANT; return }
			if (!tags[k]) pvid[ids[k]] = i
		}
		if (i == 0) { print einval(1) > WANT; return }
		for (id = 0; id < 4; id++) { pb_[i, id] = 0; tg_[i, id] = 0 }
		if (vid[i] == 0) vid[i] = i
		for (k = 0; k < n; k++) { pb_[i, ids[k]] = 1; tg_[i, ids[k]] = tags[k] }
		print "" > WANT
	} else if (op == "set_pvid") {
		p = port(); v = vidval()
		print "port " p " set pvid " v > REQ
		if (p < 4 && v <= 4095) { pvid[p] = u16(v); print "" > WANT } else print einval(1) > WANT
	} else if (op == "set_port_based") {
		i = slot(); v = rnd(4) - 1
		print "vlan " i " set port_based " v > REQ
		if (okslot(i)) { pbased[i] = v == 1; print "" > WANT } else print einval(1) > WANT
	} else if (op == "set_enable_vlan") {
		v = rnd(70006) - 5
		print "set enable_vlan " v > REQ
		enable_vlan = v; print "" > WANT
	} else if (op == "get_vlan") {
		i = slot(); a = vattrs[1 + rnd(nvattrs)]
		print "vlan " i " get " a > REQ
		if (!okslot(i)) print einval(0) > WANT
		else print (a == "vid" ? vid[i] : a == "ports" ? ports_text(i) : pbased[i]) > WANT
	} else if (op == "get_pvid") {
		p = port()
		print "port " p " get pvid" > REQ
		print (p < 4 ? pvid[p] : einval(0)) > WANT
	} else if (op == "get_enable_vlan") {
		print "get enable_vlan" > REQ
		print enable_vlan > WANT
	} else if (op == "get_mask") {
		p = port()
		print "port " p " get mask" > REQ
		print (p < 4 ? "<int>" : einval(0)) > WANT
	} else if (op == "get_link") {
		p = port()
		print "port " p " get link" > REQ
		if (p >= 4) print einval(0) > WANT
		else if (p == 3) print "port:3 link:up speed:100baseT full-duplex*" > WANT
		else print "port:" p " link:*" > WANT
	} else if (op == "set_link") {
		# Straight to the PHY; the CPU port (chip 8) is neither reset nor
		# powered down.
		p = port(); an = p != 3 && rnd(100) < 15
		spd = speeds[1 + rnd(p == 3 ? 3 : nspeeds)]
		dup = rnd(2) ? "full" : "half"
		print "port " p " set link \"" (an ? "autoneg on " : "") "speed " spd " duplex " dup "\"" > REQ
		if (p >= 4) print einval(1) > WANT
		else if (an || spd == 10 || spd == 100 || spd == 0) print "" > WANT
		else print "Failed to set attribute: Unknown error;error -524" > WANT
	} else if (op == "apply") {
		print "set apply" > REQ; print "" > WANT
		apply()
	} else if (op == "reset") {
		print "set reset" > REQ; print "" > WANT
		soft_reset(); apply()
	} else {
		print "set apply 0" > REQ; print "" > WANT
	}
}

BEGIN {
	srand(seed)
	# Requests per 1000.  Apply costs the board about a hundred times a
	# get (the whole VLAN block is rewritten), so it is rarer than on a
	# real switch; every batch ends with one.
	nops = split("set_vid 180 set_ports 340 set_pvid 80 set_port_based 50 " \
		"set_enable_vlan 20 get_vlan 140 get_pvid 50 " \
		"get_enable_vlan 10 get_mask 30 get_link 30 set_link 40 apply 20 reset 5 " \
		"apply_value 5", ops)
	for (k = 1; k < nops; k += 2) { opname[(k + 1) / 2] = ops[k]; weight[ops[k]] = ops[k + 1] }
	nedge = split("-1 0 4095 4096 65535 65536 65537 70000", edge)
	nspeeds = split("10 100 1000 0 7", speeds)
	nvattrs = split("vid ports port_based", vattrs)
	chip[0] = 0; chip[1] = 3; chip[2] = 4; chip[3] = 8
	chipbit[0] = 1; chipbit[1] = 8; chipbit[2] = 16; chipbit[3] = 256
	soft_reset()
	for (b = 0; b < batches; b++) {
		REQ = dir "/req." b; WANT = dir "/want." b
		for (n = 0; n < per; n++) request(n == per - 1)
		DUMP = dir "/dump." b
		print "control 0x* enable 1 ingress_filter 1" > DUMP
		for (e = 0; e < 16; e++)
			printf "entry %2d vid %4d fid %d member 0x%s untag 0x%s\n", e, evid[e], efid[e], hex3(embr[e]), hex3(eut[e]) > DUMP
		for (c = 0; c <= 8; c++)
			printf "port %d pvid_index %2d pvid %4d accept 3 tag_aware 1 tag_mode %s\n", c, pidx[c], evid[pidx[c]], (c == 0 || c == 3 || c == 4 || c == 8) ? "2" : "*" > DUMP
		close(REQ); close(WANT); close(DUMP)
	}
	print applies " applies and resets, " refused " VLANs and PVIDs refused by the chip"
}
'

# compare WANT GOT [REQUESTS]: line by line, '*' in WANT matching any text
# and <int> any integer; prints the first mismatches and fails on any.
compare() {
	awk -v want="$1" -v got="$2" -v req="${3:-}" '
	function glob(w, g,   n, part, i, at, k) {
		if (w == "<int>") return g ~ /^-?[0-9]+$/
		n = split(w, part, "*")
		if (n == 1) return w == g
		if (substr(g, 1, length(part[1])) != part[1]) return 0
		at = length(part[1]) + 1
		for (i = 2; i < n; i++) {
			k = index(substr(g, at), part[i])
			if (!k) return 0
			at += k - 1 + length(part[i])
		}
		return length(g) - at + 1 >= length(part[n]) && substr(g, length(g) - length(part[n]) + 1) == part[n]
	}
	BEGIN {
		while ((getline w <want) > 0) {
			n++
			if ((getline g <got) <= 0) g = "(nothing)"
			r = ""
			if (req != "") getline r <req
			if (glob(w, g)) continue
			if (++bad <= 5) printf "       line %d%s\n       expected %s\n       got      %s\n", n, r == "" ? "" : ": " r, w, g
		}
		if ((getline g <got) > 0) { bad++; print "       more lines than expected: " g }
		exit bad != 0
	}'
}

board_load
mkdir -p $W
check "model: $BATCHES x $PER_BATCH requests from seed $SEED" \
	awk -v seed="$SEED" -v batches=$BATCHES -v per=$PER_BATCH -v dir=$W "$MODEL"

batch() {
	sed "s/^/$S /" $W/req.$1 | cmdfeed $SWCMD >$W/got.$1
	check "batch $1: every answer as the model says" compare $W/want.$1 $W/got.$1 $W/req.$1
	cat $BOARD_DBG/vlan >$W/vlan.$1
	check "batch $1: VLAN block as the last apply must leave it" compare $W/dump.$1 $W/vlan.$1
}
fuzz_batches $BATCHES batch
fuzz_end_checks
finish
