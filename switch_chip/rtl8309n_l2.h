/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N L2 address table block: the 2048-entry table behind the command
 * and data registers of SMI address 6, page 15, its controls and learning
 * limits, and the MAC address helpers both library layers share.
 */
#ifndef RTL8309N_L2_H
#define RTL8309N_L2_H

#include "rtl8309n_types.h"

#define RTL8309N_L2_ADDR			6
#define RTL8309N_L2_PAGE			15

/* Table control: (6, 16, 15); bits 10..7 also serve the trap block */
#define RTL8309N_L2_CTRL_REG			16
#define   RTL8309N_L2_CTRL_ACCESS		0x0001	/* held during one entry command */
#define   RTL8309N_L2_CTRL_HASH_MODE		0x0002
#define   RTL8309N_L2_CTRL_CAM_OFF		0x0008
#define   RTL8309N_L2_CTRL_LRU			0x0010
#define   RTL8309N_L2_CTRL_FAST_AGING		0x0020
#define   RTL8309N_L2_CTRL_FLUSH		0x0040
#define   RTL8309N_L2_CTRL_DA_BLOCK_DROP	0x0080	/* 1: drop, 0: trap; abnormal type 3 */
#define   RTL8309N_L2_CTRL_SA_BLOCK_DROP	0x0100	/* 1: drop, 0: trap; abnormal type 2 */
#define   RTL8309N_L2_CTRL_UNKNOWN_MC0_DROP	0x0200	/* 1: drop, 0: forward */
#define   RTL8309N_L2_CTRL_UNKNOWN_MC1_DROP	0x0400
#define   RTL8309N_L2_CTRL_AGING		0x0800
#define   RTL8309N_L2_CTRL_DP_MASK		0x1000
#define   RTL8309N_L2_CTRL_UNKNOWN_DA_KEEP	0x2000	/* 1: unknown-DA drop off */

/* Learning limit: (6, 17, 15) */
#define RTL8309N_L2_LIMIT_REG			17
#define   RTL8309N_L2_LIMIT_SYS_B		0x01FF
#define   RTL8309N_L2_LIMIT_TRAP		0x0200	/* 1: trap, 0: drop */

/* Entry command: (6, 18, 15) */
#define RTL8309N_L2_CMD_REG			18
#define   RTL8309N_L2_CMD_INDEX			0x07FF
#define   RTL8309N_L2_CMD_BUSY			0x0800	/* execute; the chip clears it */
#define   RTL8309N_L2_CMD_READ			0x1000	/* 1: read, 0: write */

/* Entry data: control word (6, 19, 15), MAC bytes 4/5, 2/3, 0/1 in 20..22 */
#define RTL8309N_L2_ENTRY_REG			19
#define   RTL8309N_L2_ENTRY_FID			0x0003
#define   RTL8309N_L2_ENTRY_PORT		0x003C	/* unicast */
#define   RTL8309N_L2_ENTRY_AGE			0x00C0	/* unicast, Gray coded */
#define   RTL8309N_L2_ENTRY_STATIC		0x0100	/* unicast */
#define   RTL8309N_L2_ENTRY_BLOCK9		0x0200	/* unicast */
#define   RTL8309N_L2_ENTRY_BLOCK10		0x0400	/* unicast */
#define   RTL8309N_L2_ENTRY_AUTH		0x0800	/* unicast */
#define   RTL8309N_L2_ENTRY_PORTMASK		0x07FC	/* multicast */
#define   RTL8309N_L2_ENTRY_VALID		0x0800	/* multicast */
#define RTL8309N_L2_MAC_REG			20

/* System learning limit and count: (6, 23, 15), (6, 24, 15) */
#define RTL8309N_L2_SYS_LIMIT_REG		23
#define   RTL8309N_L2_SYS_LIMIT_A		0x00FF
#define   RTL8309N_L2_SYS_LIMIT_EN		0x0100
#define RTL8309N_L2_SYS_COUNT_REG		24
#define   RTL8309N_L2_SYS_COUNT			0x07FF

/* Per-port learning limit and count: (port, 16, 5), (port, 17, 5) */
#define RTL8309N_L2_PORT_PAGE			5
#define RTL8309N_L2_PORT_LIMIT_REG		16
#define   RTL8309N_L2_PORT_LIMIT_EN		0x0002
#define   RTL8309N_L2_PORT_LIMIT		0xF800
#define RTL8309N_L2_PORT_COUNT_REG		17
#define   RTL8309N_L2_PORT_COUNT		0x07FF

#define RTL8309N_L2_ENTRY_NUM		2048
#define RTL8309N_L2_BUCKET_NUM		512	/* 9-bit hash; way w at hash + 512 * w */
#define RTL8309N_L2_WAY_NUM		4
#define RTL8309N_L2_MAX_FID		3
#define RTL8309N_L2_MAX_AGE		3
#define RTL8309N_L2_NO_INDEX		10000	/* index output when nothing was found */
#define RTL8309N_MAC_LEN		6

/* Group (multicast) address: bit 0 of the first byte. */
static inline int rtl8309n_mac_is_mcast(const u8 *mac)
{
	return mac[0] & 0x01;
}

/*
 * MAC copy and comparison for both layers.  The compiler's builtins: the
 * library has no libc, and the kernel brings its own.
 */
static inline void rtl8309n_mac_copy(u8 *dst, const u8 *src)
{
	__builtin_memcpy(dst, src, RTL8309N_MAC_LEN);
}

static inline int rtl8309n_mac_equal(const u8 *a, const u8 *b)
{
	return !__builtin_memcmp(a, b, RTL8309N_MAC_LEN);
}

/* The action controls take RTL8309N_ACT_TRAP or RTL8309N_ACT_DROP. */
typedef struct rtl8309n_l2_ucastEntry {
	u32 isStatic;
	u32 auth;	/* authorised by 802.1X */
	u32 block10;
	u32 block9;
	u32 age;	/* 0 (aged out) .. 3 */
	u32 port;
	u32 fid;
	u8 mac[RTL8309N_MAC_LEN];
} rtl8309n_l2_ucastEntry;

typedef struct rtl8309n_l2_mcastEntry {
	u32 valid;
	u32 fid;
	u32 portMask;
	u8 mac[RTL8309N_MAC_LEN];
} rtl8309n_l2_mcastEntry;

s32 rtl8309n_l2_MacToIdx_get(const u8 *mac, u32 fid, u32 *pindex);
s32 rtl8309n_l2_hashmode_set(u32 mode);
s32 rtl8309n_l2_hashmode_get(u32 *pmode);

s32 rtl8309n_l2_ucastEntry_set(u32 index, const rtl8309n_l2_ucastEntry *entry);
s32 rtl8309n_l2_ucastEntry_get(u32 index, rtl8309n_l2_ucastEntry *entry);
s32 rtl8309n_l2_mcastEntry_set(u32 index, const rtl8309n_l2_mcastEntry *entry);
s32 rtl8309n_l2_mcastEntry_get(u32 index, rtl8309n_l2_mcastEntry *entry);
s32 rtl8309n_l2_macAddr_get(u32 index, u8 *mac);

/*
 * Address operations over the four ways of the bucket of (mac, fid); *pindex
 * gets the entry index used, or RTL8309N_L2_NO_INDEX.
 */
s32 rtl8309n_l2_ucastAddr_add(const u8 *mac, u32 fid, const rtl8309n_l2_ucastEntry *entry,
			      u32 *pindex);
s32 rtl8309n_l2_ucastAddr_get(const u8 *mac, u32 fid, rtl8309n_l2_ucastEntry *entry,
			      u32 *pindex);
s32 rtl8309n_l2_ucastAddr_del(const u8 *mac, u32 fid, u32 *pindex);
s32 rtl8309n_l2_mcastAddr_add(const u8 *mac, u32 fid, u32 portMask, u32 *pindex);
s32 rtl8309n_l2_mcastAddr_get(const u8 *mac, u32 fid, u32 *pportMask, u32 *pindex);
s32 rtl8309n_l2_mcastAddr_del(const u8 *mac, u32 fid, u32 *pindex);

s32 rtl8309n_l2_portMacLimitEnable_set(u32 port, u32 enabled);
s32 rtl8309n_l2_portMacLimitEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_l2_portMacLimit_set(u32 port, u32 limit);
s32 rtl8309n_l2_portMacLimit_get(u32 port, u32 *plimit);
s32 rtl8309n_l2_systemMacLimitEnable_set(u32 enabled);
s32 rtl8309n_l2_systemMacLimitEnable_get(u32 *penabled);
s32 rtl8309n_l2_systemMacLimit_set(u32 limitA, u32 limitB);
s32 rtl8309n_l2_systemMacLimit_get(u32 *plimitA, u32 *plimitB);
s32 rtl8309n_l2_macLimitAction_set(u32 action);
s32 rtl8309n_l2_macLimitAction_get(u32 *paction);
s32 rtl8309n_l2_systemLearningCnt_get(u32 *pcount);
s32 rtl8309n_l2_portlearningCnt_get(u32 port, u32 *pcount);
s32 rtl8309n_l2_lruEnable_set(u32 enabled);
s32 rtl8309n_l2_lruEnable_get(u32 *penabled);
s32 rtl8309n_l2_camEnable_set(u32 enabled);
s32 rtl8309n_l2_camEnable_get(u32 *penabled);
s32 rtl8309n_l2_flushEnable_set(u32 enabled);
s32 rtl8309n_l2_flushEnable_get(u32 *penabled);
s32 rtl8309n_l2_agingEnable_set(u32 enabled);
s32 rtl8309n_l2_agingEnable_get(u32 *penabled);
s32 rtl8309n_l2_fastAgingEnable_set(u32 enabled);
s32 rtl8309n_l2_fastAgingEnable_get(u32 *penabled);
s32 rtl8309n_l2_dpMskEnable_set(u32 enabled);
s32 rtl8309n_l2_dpMskEnable_get(u32 *penabled);
s32 rtl8309n_l2_unkownDaDropEnable_set(u32 enabled);
s32 rtl8309n_l2_unkownDaDropEnable_get(u32 *penabled);
s32 rtl8309n_l2_sablockAction_set(u32 action);
s32 rtl8309n_l2_sablockAction_get(u32 *paction);
s32 rtl8309n_l2_dablockAction_set(u32 action);
s32 rtl8309n_l2_dablockAction_get(u32 *paction);

#endif /* RTL8309N_L2_H */
