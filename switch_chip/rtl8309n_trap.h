/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N trap block: the reserved-multicast (RMA) action table, the IGMP
 * snooping enables and the actions for unknown IP multicast and abnormal
 * packets.
 *
 * Not every trap control has a register of this block: abnormal type 0 is
 * the VLAN unmatched-VID action (rtl8309n_vlan.h), abnormal types 2 and 3
 * and unknown IP multicast sit in the L2 control register (rtl8309n_l2.h).
 */
#ifndef RTL8309N_TRAP_H
#define RTL8309N_TRAP_H

#include "rtl8309n_types.h"

/* Reserved multicast: SMI address 2, page 15 */
#define RTL8309N_RMA_ADDR			2
#define RTL8309N_RMA_PAGE			15
/* Fixed entries 2k and 2k + 1: (2, 16 + k, 15) */
#define RTL8309N_RMA_REG			16
#define   RTL8309N_RMA_SLOT_EVEN		0x001F
#define   RTL8309N_RMA_SLOT_ODD			0x1F00
/* The user entry: (2, 25, 15), its MAC in 26..28 with byte 2k in bits 7..0 */
#define RTL8309N_RMA_USER_REG			25
#define   RTL8309N_RMA_USER_SLOT		0x1F00
#define RTL8309N_RMA_USER_MAC_REG		26
/* Inside a slot, shifted down */
#define RTL8309N_RMA_SLOT_ACTION		0x0003
#define RTL8309N_RMA_SLOT_FLAG			0x0004
#define RTL8309N_RMA_SLOT_VALUE			0x0018

/* IGMP snooping: (1, 16, 15) */
#define RTL8309N_IGMP_ADDR			1
#define RTL8309N_IGMP_REG			16
#define RTL8309N_IGMP_PAGE			15
#define   RTL8309N_IGMP_TYPE0_EN		0x0001
#define   RTL8309N_IGMP_TYPE1_EN		0x0002
#define   RTL8309N_IGMP_TYPE23_OFF		0x0004	/* shared by types 2 and 3 */

/*
 * Abnormal packets: type 0 is the VLAN block's unmatched-VID action, type 1
 * sits in the 802.1X global register, types 2 and 3 are the L2 block
 * actions (see their headers).
 */

/* Packet actions of the register layer (L2, trap and reserved multicast) */
#define RTL8309N_ACT_FORWARD		0
#define RTL8309N_ACT_TRAP		2	/* to the CPU port */
#define RTL8309N_ACT_DROP		3

#define RTL8309N_RMA_ENTRY_MAX		18	/* fixed entries 0..18 */
#define RTL8309N_RMA_STP_ENTRY		0	/* rewritten by every STP state change */
#define RTL8309N_RMA_IGMP_ENTRY		12	/* 12..15: IGMP control types 0..3 */

/* One reserved-multicast slot; value 1 of action is carried but unused. */
typedef struct rtl8309n_rma_entry {
	u32 action;	/* 0..3 */
	u32 flag;	/* 0 or 1 */
	u32 value;	/* 2 bits */
} rtl8309n_rma_entry;

s32 rtl8309n_rma_entry_set(u32 index, const rtl8309n_rma_entry *pEntry);
s32 rtl8309n_rma_entry_get(u32 index, rtl8309n_rma_entry *pEntry);
/* @pMac: three words, MAC byte 2k in bits 7..0 of word k */
s32 rtl8309n_rma_userentry_set(const rtl8309n_rma_entry *pEntry, const u16 *pMac);
/* @pMac: six bytes */
s32 rtl8309n_rma_userentry_get(rtl8309n_rma_entry *pEntry, u8 *pMac);
s32 rtl8309n_igmp_enable_set(u32 type, u32 enabled);
s32 rtl8309n_igmp_enable_get(u32 type, u32 *pEnabled);
s32 rtl8309n_trap_unknownIPMcastPktAction_set(u32 type, u32 action);
s32 rtl8309n_trap_unknownIPMcastPktAction_get(u32 type, u32 *pAction);
s32 rtl8309n_trap_abnormalPktAction_set(u32 type, u32 action);
s32 rtl8309n_trap_abnormalPktAction_get(u32 type, u32 *pAction);
s32 rtl8309n_trap_igmpCtrlPktAction_set(u32 type, u32 action);
s32 rtl8309n_trap_igmpCtrlPktAction_get(u32 type, u32 *pAction);

#endif /* RTL8309N_TRAP_H */
