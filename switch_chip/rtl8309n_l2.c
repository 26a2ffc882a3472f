// SPDX-License-Identifier: GPL-2.0
/*
 * L2 address table of the RTL8309N family: 2048 entries behind the
 * command and data registers of SMI address 6, page 15.
 *
 * An entry index is (way << 9) | bucket, the bucket being a 9-bit hash of
 * MAC and FID, so each bucket has four ways.  Every address operation
 * hashes once and visits the ways from 3 down to 0, reading each entry
 * afresh; MACs are compared, the FID only chooses the bucket.
 *
 * block9 and block10 are carried between the record and entry bits 9 and
 * 10 without this layer deciding which one blocks by source and which by
 * destination.  The completion poll is a bare count of 100 reads with no
 * delay between them; each read is three MDIO transactions, which is all
 * the pacing it gets.  A transport much faster than MDIO would need a
 * short delay there.
 */
#include "rtl8309n_internal.h"

#define L2_WAY_SHIFT		9
#define L2_INDEX(hash, way)	(((way) << L2_WAY_SHIFT) | (hash))
#define L2_HASH_BITS		9
#define L2_SYS_LIMIT_A_MAX	255
#define L2_SYS_LIMIT_B_MAX	511

/*
 * Hash terms.  T(k, n) is bit n of MAC byte k (byte 0 first on the wire);
 * the FID stands behind the MAC as "byte 6".  Every listed term counts,
 * including the second appearance of bit 1.7 in mode 1: the chip hashes
 * exactly so.
 */
#define T(k, n)			((k) * 8 + (n))
#define FID0			T(6, 0)
#define FID1			T(6, 1)
#define T_END			0xFF
#define L2_HASH_TERMS		7

static const u8 l2_hash_terms[2][L2_HASH_BITS][L2_HASH_TERMS] = {
	{	/* mode 0 */
		{ T(4, 4), T(5, 3), T(2, 6), T(3, 5), T(1, 7), T_END },
		{ T(4, 5), T(5, 4), T(3, 6), T(0, 0), T(2, 7), T_END },
		{ T(4, 6), T(5, 5), T(0, 1), T(1, 0), T(3, 7), T_END },
		{ T(2, 0), T(4, 7), T(0, 2), T(1, 1), T(5, 6), T_END },
		{ T(1, 2), T(2, 1), T(0, 3), T(3, 0), T(5, 7), FID1, T_END },
		{ T(2, 2), T(3, 1), T(4, 0), T(0, 4), T(1, 3), FID0, T_END },
		{ T(1, 4), T(2, 3), T(3, 2), T(4, 1), T(5, 0), T(0, 5), T_END },
		{ T(4, 2), T(5, 1), T(2, 4), T(3, 3), T(0, 6), T(1, 5), T_END },
		{ T(4, 3), T(5, 2), T(2, 5), T(3, 4), T(1, 6), T(0, 7), T_END },
	},
	{	/* mode 1 */
		{ T(1, 0), T(2, 0), T(3, 0), T(4, 0), FID0, T(1, 7), T_END },
		{ T(0, 0), T(5, 0), T(1, 1), T(2, 1), T(3, 1), T(4, 1), T_END },
		{ T(0, 1), T(1, 2), T(2, 2), T(3, 2), T(4, 2), T(5, 1), T_END },
		{ T(0, 2), T(1, 3), T(2, 3), T(3, 3), T(4, 3), T(5, 2), T_END },
		{ T(0, 3), T(1, 4), T(2, 4), T(3, 4), T(5, 3), T_END },
		{ T(0, 4), T(1, 5), T(2, 5), T(4, 4), T(5, 4), T_END },
		{ T(0, 5), T(1, 6), T(3, 5), T(4, 5), T(5, 5), T_END },
		{ T(0, 6), T(2, 6), T(3, 6), T(4, 6), T(5, 6), T_END },
		{ T(0, 7), T(1, 7), T(2, 7), T(3, 7), T(5, 7), FID1, T_END },
	},
};

#define L2_CTRL_FIELD(mask, kind)						\
	RTL8309N_FIELD(RTL8309N_L2_ADDR, RTL8309N_L2_CTRL_REG, RTL8309N_L2_PAGE, mask, kind,	\
		       RTL8309N_GLOBAL)
#define L2_GLOBAL_FIELD(reg, mask, kind)					\
	RTL8309N_FIELD(RTL8309N_L2_ADDR, reg, RTL8309N_L2_PAGE, mask, kind, RTL8309N_GLOBAL)
#define L2_PORT_FIELD(reg, mask, kind)						\
	RTL8309N_FIELD(0, reg, RTL8309N_L2_PORT_PAGE, mask, kind, RTL8309N_PORT_ADDR)

static const struct rtl8309n_field l2_hash_mode =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_HASH_MODE, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_cam =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_CAM_OFF, RTL8309N_FIELD_FLAG_INV);
static const struct rtl8309n_field l2_lru =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_LRU, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_fast_aging =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_FAST_AGING, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_flush =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_FLUSH, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_da_block_drop =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_DA_BLOCK_DROP, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_sa_block_drop =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_SA_BLOCK_DROP, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_aging =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_AGING, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_dp_mask =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_DP_MASK, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_unknown_da_drop =
	L2_CTRL_FIELD(RTL8309N_L2_CTRL_UNKNOWN_DA_KEEP, RTL8309N_FIELD_FLAG_INV);

static const struct rtl8309n_field l2_sys_limit_b =
	L2_GLOBAL_FIELD(RTL8309N_L2_LIMIT_REG, RTL8309N_L2_LIMIT_SYS_B, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field l2_limit_trap =
	L2_GLOBAL_FIELD(RTL8309N_L2_LIMIT_REG, RTL8309N_L2_LIMIT_TRAP, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_sys_limit_a =
	L2_GLOBAL_FIELD(RTL8309N_L2_SYS_LIMIT_REG, RTL8309N_L2_SYS_LIMIT_A, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field l2_sys_limit_en =
	L2_GLOBAL_FIELD(RTL8309N_L2_SYS_LIMIT_REG, RTL8309N_L2_SYS_LIMIT_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_sys_count =
	L2_GLOBAL_FIELD(RTL8309N_L2_SYS_COUNT_REG, RTL8309N_L2_SYS_COUNT, RTL8309N_FIELD_VALUE);

static const struct rtl8309n_field l2_port_limit_en =
	L2_PORT_FIELD(RTL8309N_L2_PORT_LIMIT_REG, RTL8309N_L2_PORT_LIMIT_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field l2_port_limit =
	L2_PORT_FIELD(RTL8309N_L2_PORT_LIMIT_REG, RTL8309N_L2_PORT_LIMIT, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field l2_port_count =
	L2_PORT_FIELD(RTL8309N_L2_PORT_COUNT_REG, RTL8309N_L2_PORT_COUNT, RTL8309N_FIELD_VALUE);

/* Age codes are stored Gray-like (2 as 0b11, 3 as 0b10); the map is its own inverse. */
static const u8 l2_age_code[RTL8309N_L2_MAX_AGE + 1] = { 0, 1, 3, 2 };

/* An entry as the data registers carry it. */
struct l2_raw {
	u32 word;
	u8 mac[RTL8309N_MAC_LEN];
};

/* Position in a way scan of one bucket. */
struct l2_scan {
	u32 hash;
	u32 way;		/* ways still to visit: way - 1 down to 0 */
	u32 index;		/* entry index of the way just read */
	struct l2_raw raw;	/* and its contents */
};

static const rtl8309n_l2_ucastEntry l2_empty_entry;

/* ---- Entry access ---- */

static void l2_access(u32 on)
{
	rtl8309n_bits_set(RTL8309N_L2_ADDR, RTL8309N_L2_CTRL_REG, RTL8309N_L2_PAGE,
			  RTL8309N_L2_CTRL_ACCESS, on);
}

/* Run a command under the access bit; a timeout leaves the bit set. */
static s32 l2_command(u32 index, u32 read)
{
	rtl8309n_reg_set(RTL8309N_L2_ADDR, RTL8309N_L2_CMD_REG, RTL8309N_L2_PAGE,
			 (u16)rtl8309n_field_prep(RTL8309N_L2_CMD_INDEX, index));
	rtl8309n_bits_set(RTL8309N_L2_ADDR, RTL8309N_L2_CMD_REG, RTL8309N_L2_PAGE,
			  RTL8309N_L2_CMD_READ, read);
	return rtl8309n_cmd_exec(RTL8309N_L2_ADDR, RTL8309N_L2_CMD_REG,
				 rtl8309n_mask_shift(RTL8309N_L2_CMD_BUSY), RTL8309N_L2_PAGE);
}

static s32 l2_entry_write(u32 index, u32 word, const u8 *mac)
{
	l2_access(1);
	rtl8309n_reg_set(RTL8309N_L2_ADDR, RTL8309N_L2_ENTRY_REG, RTL8309N_L2_PAGE, (u16)word);
	rtl8309n_mac_regs_set(RTL8309N_L2_ADDR, RTL8309N_L2_MAC_REG, RTL8309N_L2_PAGE, 1, mac);
	if (l2_command(index, 0) != RT_ERR_OK)
		return RT_ERR_FAILED;
	l2_access(0);
	return RT_ERR_OK;
}

static s32 l2_read_command(u32 index)
{
	l2_access(1);
	return l2_command(index, 1);
}

static s32 l2_entry_read(u32 index, struct l2_raw *raw)
{
	if (l2_read_command(index) != RT_ERR_OK)
		return RT_ERR_FAILED;
	raw->word = 0;
	rtl8309n_reg_get(RTL8309N_L2_ADDR, RTL8309N_L2_ENTRY_REG, RTL8309N_L2_PAGE, &raw->word);
	rtl8309n_mac_regs_get(RTL8309N_L2_ADDR, RTL8309N_L2_MAC_REG, RTL8309N_L2_PAGE, 1,
			      raw->mac);
	l2_access(0);
	return RT_ERR_OK;
}

static void l2_ucast_decode(const struct l2_raw *raw, rtl8309n_l2_ucastEntry *entry)
{
	u32 w = raw->word;

	entry->isStatic = !!(w & RTL8309N_L2_ENTRY_STATIC);
	entry->auth = !!(w & RTL8309N_L2_ENTRY_AUTH);
	entry->block10 = !!(w & RTL8309N_L2_ENTRY_BLOCK10);
	entry->block9 = !!(w & RTL8309N_L2_ENTRY_BLOCK9);
	entry->age = l2_age_code[rtl8309n_field_extract(RTL8309N_L2_ENTRY_AGE, w)];
	entry->port = rtl8309n_field_extract(RTL8309N_L2_ENTRY_PORT, w);
	entry->fid = rtl8309n_field_extract(RTL8309N_L2_ENTRY_FID, w);
	rtl8309n_mac_copy(entry->mac, raw->mac);
}

static void l2_mcast_decode(const struct l2_raw *raw, rtl8309n_l2_mcastEntry *entry)
{
	entry->valid = !!(raw->word & RTL8309N_L2_ENTRY_VALID);
	entry->fid = rtl8309n_field_extract(RTL8309N_L2_ENTRY_FID, raw->word);
	entry->portMask = rtl8309n_field_extract(RTL8309N_L2_ENTRY_PORTMASK, raw->word);
	rtl8309n_mac_copy(entry->mac, raw->mac);
}

/*
 * Flags count as set only when exactly 1.  The FID is or-ed in as given:
 * one above 3 spills into the port bits, which callers must not rely on.
 */
s32 rtl8309n_l2_ucastEntry_set(u32 index, const rtl8309n_l2_ucastEntry *entry)
{
	u32 word;

	/* A NULL record is refused rather than dereferenced. */
	if (!entry || rtl8309n_mac_is_mcast(entry->mac) || entry->age > RTL8309N_L2_MAX_AGE ||
	    entry->port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;

	word = entry->fid | rtl8309n_field_prep(RTL8309N_L2_ENTRY_PORT, entry->port) |
	       rtl8309n_field_prep(RTL8309N_L2_ENTRY_AGE, l2_age_code[entry->age]);
	if (entry->isStatic == 1)
		word |= RTL8309N_L2_ENTRY_STATIC;
	if (entry->block9 == 1)
		word |= RTL8309N_L2_ENTRY_BLOCK9;
	if (entry->block10 == 1)
		word |= RTL8309N_L2_ENTRY_BLOCK10;
	if (entry->auth == 1)
		word |= RTL8309N_L2_ENTRY_AUTH;
	return l2_entry_write(index, word, entry->mac);
}

s32 rtl8309n_l2_ucastEntry_get(u32 index, rtl8309n_l2_ucastEntry *entry)
{
	struct l2_raw raw;

	if (!entry || l2_entry_read(index, &raw) != RT_ERR_OK)
		return RT_ERR_FAILED;
	l2_ucast_decode(&raw, entry);
	return RT_ERR_OK;
}

/* Unlike the unicast FID, a multicast FID is cut to its two bits. */
s32 rtl8309n_l2_mcastEntry_set(u32 index, const rtl8309n_l2_mcastEntry *entry)
{
	u32 word;

	if (!entry || entry->portMask > RTL8309N_PORT_MASK_ALL ||
	    !rtl8309n_mac_is_mcast(entry->mac))
		return RT_ERR_FAILED;

	word = rtl8309n_field_prep(RTL8309N_L2_ENTRY_FID, entry->fid) |
	       rtl8309n_field_prep(RTL8309N_L2_ENTRY_PORTMASK, entry->portMask);
	if (entry->valid == 1)
		word |= RTL8309N_L2_ENTRY_VALID;
	return l2_entry_write(index, word, entry->mac);
}

s32 rtl8309n_l2_mcastEntry_get(u32 index, rtl8309n_l2_mcastEntry *entry)
{
	struct l2_raw raw;

	if (!entry || l2_entry_read(index, &raw) != RT_ERR_OK)
		return RT_ERR_FAILED;
	l2_mcast_decode(&raw, entry);
	return RT_ERR_OK;
}

/* Reads the MAC only and, unlike the entry reads, leaves the access bit set. */
s32 rtl8309n_l2_macAddr_get(u32 index, u8 *mac)
{
	if (!mac || l2_read_command(index) != RT_ERR_OK)
		return RT_ERR_FAILED;
	rtl8309n_mac_regs_get(RTL8309N_L2_ADDR, RTL8309N_L2_MAC_REG, RTL8309N_L2_PAGE, 1, mac);
	return RT_ERR_OK;
}

/* ---- Hash ---- */

s32 rtl8309n_l2_MacToIdx_get(const u8 *mac, u32 fid, u32 *pindex)
{
	u32 mode = 0, hash = 0, bit, t;
	u8 key[RTL8309N_MAC_LEN + 1];

	if (!mac || !pindex || fid > RTL8309N_L2_MAX_FID)
		return RT_ERR_FAILED;

	rtl8309n_l2_hashmode_get(&mode);
	rtl8309n_mac_copy(key, mac);
	key[RTL8309N_MAC_LEN] = (u8)fid;
	for (bit = 0; bit < L2_HASH_BITS; bit++) {
		const u8 *term = l2_hash_terms[mode][bit];
		u32 x = 0;

		for (t = 0; t < L2_HASH_TERMS && term[t] != T_END; t++)
			x ^= (key[term[t] / 8] >> (term[t] % 8)) & 1;
		hash |= x << bit;
	}
	*pindex = hash;
	return RT_ERR_OK;
}

s32 rtl8309n_l2_hashmode_set(u32 mode)
{
	return rtl8309n_field_set(&l2_hash_mode, 0, mode);
}

s32 rtl8309n_l2_hashmode_get(u32 *pmode)
{
	return rtl8309n_field_get(&l2_hash_mode, 0, pmode);
}

/* ---- Address operations ---- */

static void l2_scan_start(struct l2_scan *sc, const u8 *mac, u32 fid)
{
	sc->hash = 0;
	rtl8309n_l2_MacToIdx_get(mac, fid, &sc->hash);
	sc->way = RTL8309N_L2_WAY_NUM;
}

/*
 * Age does not protect an entry: a learned one is replaceable while still
 * aging; static, authorised and multicast ones are not.
 */
static int l2_replaceable(const struct l2_raw *raw)
{
	return !rtl8309n_mac_is_mcast(raw->mac) &&
	       !(raw->word & (RTL8309N_L2_ENTRY_AUTH | RTL8309N_L2_ENTRY_STATIC));
}

/*
 * Read the remaining ways until one holds @key or, with a NULL @key, until
 * one is replaceable.  RT_ERR_OK with sc->index and sc->raw describing it,
 * RTL8309N_L2_NOT_FOUND when no way is left, RT_ERR_FAILED on a failed read.
 */
static s32 l2_scan_next(struct l2_scan *sc, const u8 *key)
{
	while (sc->way > 0) {
		sc->way--;
		sc->index = L2_INDEX(sc->hash, sc->way);
		if (l2_entry_read(sc->index, &sc->raw) != RT_ERR_OK)
			return RT_ERR_FAILED;
		if (key ? rtl8309n_mac_equal(sc->raw.mac, key) : l2_replaceable(&sc->raw))
			return RT_ERR_OK;
	}
	return RTL8309N_L2_NOT_FOUND;
}

/*
 * The way an add uses: the one already holding @mac (*matched = 1), else
 * the first replaceable one, each search from way 3 down.
 */
static s32 l2_add_find(struct l2_scan *sc, const u8 *mac, u32 fid, int *matched)
{
	s32 ret;

	l2_scan_start(sc, mac, fid);
	ret = l2_scan_next(sc, mac);
	*matched = ret == RT_ERR_OK;
	if (ret != RTL8309N_L2_NOT_FOUND)
		return ret;
	sc->way = RTL8309N_L2_WAY_NUM;
	return l2_scan_next(sc, NULL);
}

/* First way holding @mac; *pindex = RTL8309N_L2_NO_INDEX when there is none. */
static s32 l2_find(struct l2_scan *sc, const u8 *mac, u32 fid, u32 *pindex)
{
	s32 ret;

	l2_scan_start(sc, mac, fid);
	ret = l2_scan_next(sc, mac);
	if (ret == RTL8309N_L2_NOT_FOUND)
		*pindex = RTL8309N_L2_NO_INDEX;
	return ret;
}

/*
 * Clear every way holding @mac; *pindex names the last one cleared.
 * @strict: a failed clearing write ends the call with RT_ERR_FAILED.
 */
static s32 l2_clear_all(const u8 *mac, u32 fid, u32 *pindex, int strict)
{
	struct l2_scan sc;
	int found = 0;
	s32 ret;

	l2_scan_start(&sc, mac, fid);
	while ((ret = l2_scan_next(&sc, mac)) == RT_ERR_OK) {
		if (rtl8309n_l2_ucastEntry_set(sc.index, &l2_empty_entry) != RT_ERR_OK && strict)
			return RT_ERR_FAILED;
		*pindex = sc.index;
		found = 1;
	}
	if (ret == RT_ERR_FAILED)
		return ret;
	if (!found) {
		*pindex = RTL8309N_L2_NO_INDEX;
		return RTL8309N_L2_NOT_FOUND;
	}
	return RT_ERR_OK;
}

/*
 * The caller's record is written as it stands, MAC included; the key MAC
 * only picks bucket and way.  A matching way is rewritten even when static
 * or authorised.  The write's own result is not reported.
 */
s32 rtl8309n_l2_ucastAddr_add(const u8 *mac, u32 fid, const rtl8309n_l2_ucastEntry *entry,
			      u32 *pindex)
{
	struct l2_scan sc;
	int matched;
	s32 ret;

	if (!mac || !pindex || !entry || fid > RTL8309N_L2_MAX_FID || rtl8309n_mac_is_mcast(mac) ||
	    rtl8309n_mac_is_mcast(entry->mac))
		return RT_ERR_FAILED;

	ret = l2_add_find(&sc, mac, fid, &matched);
	if (ret == RTL8309N_L2_NOT_FOUND) {
		*pindex = RTL8309N_L2_NO_INDEX;
		return RTL8309N_L2_BUCKET_FULL;
	}
	if (ret != RT_ERR_OK)
		return ret;
	rtl8309n_l2_ucastEntry_set(sc.index, entry);
	*pindex = sc.index;
	return RT_ERR_OK;
}

/*
 * Only the first way holding @mac counts; if it has aged out and is
 * neither static nor authorised it is an empty slot, reported as not
 * found with *pindex left at 0.
 */
s32 rtl8309n_l2_ucastAddr_get(const u8 *mac, u32 fid, rtl8309n_l2_ucastEntry *entry,
			      u32 *pindex)
{
	rtl8309n_l2_ucastEntry found;
	struct l2_scan sc;
	s32 ret;

	if (!mac || fid > RTL8309N_L2_MAX_FID || rtl8309n_mac_is_mcast(mac) || !entry || !pindex)
		return RT_ERR_FAILED;

	*pindex = 0;
	ret = l2_find(&sc, mac, fid, pindex);
	if (ret != RT_ERR_OK)
		return ret;
	l2_ucast_decode(&sc.raw, &found);
	if (!found.age && !found.isStatic && !found.auth)
		return RTL8309N_L2_NOT_FOUND;
	*entry = found;
	*pindex = sc.index;
	return RT_ERR_OK;
}

/* Failed clearing writes are not reported. */
s32 rtl8309n_l2_ucastAddr_del(const u8 *mac, u32 fid, u32 *pindex)
{
	if (!mac || !pindex || fid > RTL8309N_L2_MAX_FID || rtl8309n_mac_is_mcast(mac))
		return RT_ERR_FAILED;
	return l2_clear_all(mac, fid, pindex, 0);
}

/*
 * An existing entry keeps its FID and gets the new mask; a new one takes
 * the first replaceable way.  A full bucket is reported as
 * RTL8309N_L2_NOT_FOUND, which the API relies on.
 */
s32 rtl8309n_l2_mcastAddr_add(const u8 *mac, u32 fid, u32 portMask, u32 *pindex)
{
	rtl8309n_l2_mcastEntry rec;
	struct l2_scan sc;
	int matched;
	s32 ret;

	if (!mac || !pindex || !rtl8309n_mac_is_mcast(mac) || portMask > RTL8309N_PORT_MASK_ALL ||
	    fid > RTL8309N_L2_MAX_FID)
		return RT_ERR_FAILED;

	ret = l2_add_find(&sc, mac, fid, &matched);
	if (ret == RTL8309N_L2_NOT_FOUND)
		*pindex = RTL8309N_L2_NO_INDEX;
	if (ret != RT_ERR_OK)
		return ret;

	if (matched) {
		l2_mcast_decode(&sc.raw, &rec);
		rec.portMask = portMask;
		rec.valid = 1;
		rtl8309n_l2_mcastEntry_set(sc.index, &rec);
	} else {
		rec.valid = 1;
		rec.fid = fid;
		rec.portMask = portMask;
		rtl8309n_mac_copy(rec.mac, mac);
		if (rtl8309n_l2_mcastEntry_set(sc.index, &rec) != RT_ERR_OK)
			return RT_ERR_FAILED;
	}
	*pindex = sc.index;
	return RT_ERR_OK;
}

/* The entry's valid bit is not looked at. */
s32 rtl8309n_l2_mcastAddr_get(const u8 *mac, u32 fid, u32 *pportMask, u32 *pindex)
{
	rtl8309n_l2_mcastEntry found;
	struct l2_scan sc;
	s32 ret;

	if (!pportMask || !pindex || !mac || fid > RTL8309N_L2_MAX_FID ||
	    !rtl8309n_mac_is_mcast(mac))
		return RT_ERR_FAILED;

	ret = l2_find(&sc, mac, fid, pindex);
	if (ret != RT_ERR_OK)
		return ret;
	l2_mcast_decode(&sc.raw, &found);
	*pportMask = found.portMask;
	*pindex = sc.index;
	return RT_ERR_OK;
}

s32 rtl8309n_l2_mcastAddr_del(const u8 *mac, u32 fid, u32 *pindex)
{
	if (!mac || !pindex || fid > RTL8309N_L2_MAX_FID || !rtl8309n_mac_is_mcast(mac))
		return RT_ERR_FAILED;
	return l2_clear_all(mac, fid, pindex, 1);
}

/* ---- Table controls ---- */

/*
 * The getters of the one-bit controls have no pointer check of their own;
 * the field accessor still refuses NULL before any bus access.
 */

s32 rtl8309n_l2_portMacLimitEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&l2_port_limit_en, port, enabled);
}

s32 rtl8309n_l2_portMacLimitEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&l2_port_limit_en, port, penabled);
}

s32 rtl8309n_l2_portMacLimit_set(u32 port, u32 limit)
{
	return rtl8309n_field_set(&l2_port_limit, port, limit);
}

s32 rtl8309n_l2_portMacLimit_get(u32 port, u32 *plimit)
{
	return rtl8309n_field_get(&l2_port_limit, port, plimit);
}

s32 rtl8309n_l2_systemMacLimitEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&l2_sys_limit_en, 0, enabled);
}

s32 rtl8309n_l2_systemMacLimitEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&l2_sys_limit_en, 0, penabled);
}

/*
 * Two limit values: @limitA (8 bits) beside the 9-bit @limitB.  Both are
 * carried to the chip unchanged; this layer does not interpret them.
 */
s32 rtl8309n_l2_systemMacLimit_set(u32 limitA, u32 limitB)
{
	if (limitA > L2_SYS_LIMIT_A_MAX || limitB > L2_SYS_LIMIT_B_MAX)
		return RT_ERR_FAILED;
	rtl8309n_field_set(&l2_sys_limit_a, 0, limitA);
	rtl8309n_field_set(&l2_sys_limit_b, 0, limitB);
	return RT_ERR_OK;
}

s32 rtl8309n_l2_systemMacLimit_get(u32 *plimitA, u32 *plimitB)
{
	if (!plimitA || !plimitB)
		return RT_ERR_FAILED;
	rtl8309n_field_get(&l2_sys_limit_a, 0, plimitA);
	rtl8309n_field_get(&l2_sys_limit_b, 0, plimitB);
	return RT_ERR_OK;
}

/* A set bit means trap here: the opposite sense of the SA/DA block bits. */
s32 rtl8309n_l2_macLimitAction_set(u32 action)
{
	return rtl8309n_field_code_set(&l2_limit_trap, 0, action, RTL8309N_ACT_TRAP,
				       RTL8309N_ACT_DROP);
}

s32 rtl8309n_l2_macLimitAction_get(u32 *paction)
{
	return rtl8309n_field_code_get(&l2_limit_trap, 0, paction, RTL8309N_ACT_TRAP,
				       RTL8309N_ACT_DROP);
}

s32 rtl8309n_l2_systemLearningCnt_get(u32 *pcount)
{
	return rtl8309n_field_get(&l2_sys_count, 0, pcount);
}

s32 rtl8309n_l2_portlearningCnt_get(u32 port, u32 *pcount)
{
	return rtl8309n_field_get(&l2_port_count, port, pcount);
}

s32 rtl8309n_l2_lruEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&l2_lru, 0, enabled);
}

s32 rtl8309n_l2_lruEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&l2_lru, 0, penabled);
}

/* The CAM is switched by a disable bit; its descriptor inverts it. */
s32 rtl8309n_l2_camEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&l2_cam, 0, enabled);
}

s32 rtl8309n_l2_camEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&l2_cam, 0, penabled);
}

s32 rtl8309n_l2_flushEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&l2_flush, 0, enabled);
}

s32 rtl8309n_l2_flushEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&l2_flush, 0, penabled);
}

s32 rtl8309n_l2_agingEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&l2_aging, 0, enabled);
}

s32 rtl8309n_l2_agingEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&l2_aging, 0, penabled);
}

s32 rtl8309n_l2_fastAgingEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&l2_fast_aging, 0, enabled);
}

s32 rtl8309n_l2_fastAgingEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&l2_fast_aging, 0, penabled);
}

s32 rtl8309n_l2_dpMskEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&l2_dp_mask, 0, enabled);
}

s32 rtl8309n_l2_dpMskEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&l2_dp_mask, 0, penabled);
}

/* Unknown-DA drop is switched off by its bit; the descriptor inverts it. */
s32 rtl8309n_l2_unkownDaDropEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&l2_unknown_da_drop, 0, enabled);
}

s32 rtl8309n_l2_unkownDaDropEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&l2_unknown_da_drop, 0, penabled);
}

s32 rtl8309n_l2_sablockAction_set(u32 action)
{
	return rtl8309n_field_code_set(&l2_sa_block_drop, 0, action, RTL8309N_ACT_DROP,
				       RTL8309N_ACT_TRAP);
}

s32 rtl8309n_l2_sablockAction_get(u32 *paction)
{
	return rtl8309n_field_code_get(&l2_sa_block_drop, 0, paction, RTL8309N_ACT_DROP,
				       RTL8309N_ACT_TRAP);
}

s32 rtl8309n_l2_dablockAction_set(u32 action)
{
	return rtl8309n_field_code_set(&l2_da_block_drop, 0, action, RTL8309N_ACT_DROP,
				       RTL8309N_ACT_TRAP);
}

s32 rtl8309n_l2_dablockAction_get(u32 *paction)
{
	return rtl8309n_field_code_get(&l2_da_block_drop, 0, paction, RTL8309N_ACT_DROP,
				       RTL8309N_ACT_TRAP);
}
