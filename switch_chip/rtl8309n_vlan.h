/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N 802.1Q VLAN block: global control, per-port VLAN and tag
 * control, and the 16-entry VLAN table.
 */
#ifndef RTL8309N_VLAN_H
#define RTL8309N_VLAN_H

#include "rtl8309n_types.h"

#define RTL8309N_VLAN_PAGE			16

/* Global control: (0, 16, 16) */
#define RTL8309N_VLAN_CTRL_ADDR			0
#define RTL8309N_VLAN_CTRL_REG			16
#define   RTL8309N_VLAN_CTRL_ENABLE		0x0001
#define   RTL8309N_VLAN_CTRL_IGR_FILTER_OFF	0x0002	/* 1: ingress filtering off */
#define   RTL8309N_VLAN_CTRL_UNMATCH_ACT	0x0004	/* 1: action 2, 0: action 3 */
#define   RTL8309N_VLAN_CTRL_LEAKY_OFF(t)	RTL8309N_BIT(3 + (t))	/* types 0..4, 1: no leak */
#define   RTL8309N_VLAN_CTRL_FIXMC_FID_EN	0x0100
#define   RTL8309N_VLAN_CTRL_FIXMC_FID		0x0600

/* Per-port VLAN control: (0, 17 + port, 16) */
#define RTL8309N_VLAN_PORT_ADDR			0
#define RTL8309N_VLAN_PORT_REG			17
#define   RTL8309N_VLAN_PORT_ACCEPT		0x0003
#define   RTL8309N_VLAN_PORT_TAG_AWARE		0x0004
#define   RTL8309N_VLAN_PORT_DISCARD_NONPVID	0x0008
#define   RTL8309N_VLAN_PORT_PVID_INDEX		0x00F0

/* Per-port tag control: (port, 16, 6) */
#define RTL8309N_VLAN_TAG_PAGE			6
#define RTL8309N_VLAN_TAG_REG			16
#define   RTL8309N_VLAN_TAG_NULL_VID		0x0001
#define   RTL8309N_VLAN_TAG_INSREM		0x0006
#define   RTL8309N_VLAN_TAG_IGR_INS_EN		0x0008
#define   RTL8309N_VLAN_TAG_IGR_INS_MASK	0xFF80

/* Table entry i: register 16 + i of SMI addresses 1, 2 and 3 */
#define RTL8309N_VLAN_ENTRY_REG			16
#define RTL8309N_VLAN_ENTRY_VID_ADDR		1
#define   RTL8309N_VLAN_ENTRY_VID		0x0FFF
#define   RTL8309N_VLAN_ENTRY_FID		0x3000
#define RTL8309N_VLAN_ENTRY_MBR_ADDR		2	/* member mask, bits 8..0 */
#define RTL8309N_VLAN_ENTRY_UNTAG_ADDR		3	/* untag mask, bits 8..0 */

#define RTL8309N_VLAN_ENTRY_NUM		16
#define RTL8309N_VLAN_MAX_VID		4095
#define RTL8309N_VLAN_MAX_FID		3
#define RTL8309N_VLAN_LEAKY_TYPES	6	/* types 0..5; 5 has no bit */
/* Actions for a VID that matches no entry. */
#define RTL8309N_VLAN_UNMATCH_ACT_2	2
#define RTL8309N_VLAN_UNMATCH_ACT_3	3

/* Global control.  Enable setters take exactly 1 as enable. */
s32 rtl8309n_vlan_enable_set(s32 enabled);
s32 rtl8309n_vlan_enable_get(u32 *penabled);
s32 rtl8309n_vlan_igrFilterEnable_set(s32 enabled);
s32 rtl8309n_vlan_igrFilterEnable_get(u32 *penabled);
s32 rtl8309n_vlan_unmatchVidAction_set(u32 action);
s32 rtl8309n_vlan_unmatchVidAction_get(u32 *paction);
s32 rtl8309n_vlan_leakyEnable_set(u32 type, u32 enabled);
s32 rtl8309n_vlan_leakyEnable_get(u32 type, u32 *penabled);
s32 rtl8309n_vlan_fixMcastFidEnable_set(s32 enabled);
s32 rtl8309n_vlan_fixMcastFidEnable_get(u32 *penabled);
s32 rtl8309n_vlan_fixMcastFid_set(u32 fid);
s32 rtl8309n_vlan_fixMcastFid_get(u32 *pfid);
/* Per port 0..8. */
s32 rtl8309n_vlan_portAcceptFrameType_set(u32 port, u32 type);
s32 rtl8309n_vlan_portAcceptFrameType_get(u32 port, u32 *ptype);
s32 rtl8309n_vlan_tagAwareEnable_set(u32 port, u32 enabled);
s32 rtl8309n_vlan_tagAwareEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_vlan_discardNonPvidPktEnable_set(u32 port, u32 enabled);
s32 rtl8309n_vlan_discardNonPvidPktEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_vlan_portPvidIndex_set(u32 port, u32 index);
s32 rtl8309n_vlan_portPvidIndex_get(u32 port, u32 *pindex);
s32 rtl8309n_vlan_nullVidReplaceEnable_set(u32 port, u32 enabled);
s32 rtl8309n_vlan_nullVidReplaceEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_vlan_tagInsertRemove_set(u32 port, u32 mode);
s32 rtl8309n_vlan_tagInsertRemove_get(u32 port, u32 *pmode);
s32 rtl8309n_vlan_igrPortTagInsertEnable_set(u32 port, u32 enabled);
s32 rtl8309n_vlan_igrPortTagInsertEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_vlan_igrPortTagInsert_set(u32 port, u32 portmask);
s32 rtl8309n_vlan_igrPortTagInsert_get(u32 port, u32 *pportmask);
/* Table entry 0..15; VID 0 marks a free entry. */
s32 rtl8309n_vlan_entry_set(u32 index, u32 vid, u32 mbrmsk, u32 untagmsk, u32 fid);
s32 rtl8309n_vlan_entry_get(u32 index, u32 *pvid, u32 *pmbrmsk, u32 *puntagmsk, u32 *pfid);
/* Every port in VLAN 1 (entry 0), other entries free, filtering off, VLAN on. */
s32 rtl8309n_vlan_init(void);

#endif /* RTL8309N_VLAN_H */
