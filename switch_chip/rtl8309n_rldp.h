/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N loop detection block: the RLDP protocol controls and the RLPP
 * loop action.
 */
#ifndef RTL8309N_RLDP_H
#define RTL8309N_RLDP_H

#include "rtl8309n_types.h"

/* SMI address 4, page 14 */
#define RTL8309N_RLDP_ADDR			4
#define RTL8309N_RLDP_PAGE			14
/* Source MAC of the frames: 16..18, MAC byte 2k in bits 7..0 */
#define RTL8309N_RLDP_MAC_REG			16
#define RTL8309N_RLDP_CTRL_REG			19
#define   RTL8309N_RLDP_CTRL_OFF		0x0001
#define   RTL8309N_RLDP_CTRL_RLPP_FORWARD	0x0002	/* 1: action 0, 0: action 2 */
#define   RTL8309N_RLDP_CTRL_ATTR1		0x000C
#define   RTL8309N_RLDP_CTRL_PRI_EN		0x0010
#define   RTL8309N_RLDP_CTRL_ATTR2		0x0060
#define   RTL8309N_RLDP_CTRL_TTL_EN		0x0080
#define   RTL8309N_RLDP_CTRL_ATTR3		0x0F00
#define   RTL8309N_RLDP_CTRL_STORM_OFF		0x1000
#define   RTL8309N_RLDP_CTRL_VLANTAG_EN		0x2000
#define   RTL8309N_RLDP_CTRL_ID_EN		0x4000
#define RTL8309N_RLDP_STATUS_REG		20	/* read only */
#define RTL8309N_RLDP_PROTO_REG			21
#define   RTL8309N_RLDP_PROTO			0x00FF

typedef struct rtl8309n_rldp_controlAttr {
	u32 attr1;	/* 0..3 */
	u32 attr2;	/* 0..3 */
	u32 attr3;	/* 0..16; 16 lands on the storm-filter bit */
	u8 mac[6];
} rtl8309n_rldp_controlAttr;

s32 rtl8309n_rldp_enable_set(u32 enabled);
s32 rtl8309n_rldp_enable_get(u32 *pEnabled);
s32 rtl8309n_rldp_priEnable_set(u32 enabled);
s32 rtl8309n_rldp_priEnable_get(u32 *pEnabled);
s32 rtl8309n_rldp_ttlEnable_set(u32 enabled);
s32 rtl8309n_rldp_ttlEnable_get(u32 *pEnabled);
s32 rtl8309n_rldp_stormFilterEnable_set(u32 enabled);
s32 rtl8309n_rldp_stormFilterEnable_get(u32 *pEnabled);
s32 rtl8309n_rldp_vlanTagEnable_set(u32 enabled);
s32 rtl8309n_rldp_vlanTagEnable_get(u32 *pEnabled);
s32 rtl8309n_rldp_identifierEnable_set(u32 enabled);
s32 rtl8309n_rldp_identifierEnable_get(u32 *pEnabled);
s32 rtl8309n_rlpp_action_set(u32 action);
s32 rtl8309n_rlpp_action_get(u32 *pAction);
s32 rtl8309n_rldp_controlAttr_set(const rtl8309n_rldp_controlAttr *pAttr);
s32 rtl8309n_rldp_controlAttr_get(rtl8309n_rldp_controlAttr *pAttr);
s32 rtl8309n_rldp_protocol_set(u32 protocol);
s32 rtl8309n_rldp_protocol_get(u32 *pProtocol);
s32 rtl8309n_rldp_loopStatus_get(u32 *pStatus);

#endif /* RTL8309N_RLDP_H */
