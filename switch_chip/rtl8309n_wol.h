/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N wake-up: the wake-up enables, link-change wake-up with its port
 * mask, and frame wake-up with two port masks and two flags.
 */
#ifndef RTL8309N_WOL_H
#define RTL8309N_WOL_H

#include "rtl8309n_types.h"

#define RTL8309N_WKP_ADDR		7
#define RTL8309N_WKP_PAGE		14

/* Wake-up control: (7, 20, 14) */
#define RTL8309N_WKP_CTRL_REG		20
#define   RTL8309N_WKP_CTRL_EN1		0x0001
#define   RTL8309N_WKP_CTRL_EN2		0x0002
#define   RTL8309N_WKP_CTRL_LINK_EN	0x0004
#define   RTL8309N_WKP_CTRL_FRAME_EN	0x0008

/* Port masks: link change (7, 21, 14), frames (7, 23, 14) and (7, 24, 14) */
#define RTL8309N_WKP_LINK_MASK_REG	21
#define RTL8309N_WKP_FRAME_MASK1_REG	23
#define RTL8309N_WKP_FRAME_MASK2_REG	24
#define   RTL8309N_WKP_MASK_PORTS	0x01FF

/* Link-change status: (7, 22, 14), read only */
#define RTL8309N_WKP_LINK_STATUS_REG	22

/* Frame wake-up: (7, 25, 14) */
#define RTL8309N_WKP_FRAME_REG		25
#define   RTL8309N_WKP_FRAME_FLAG1	0x0001
#define   RTL8309N_WKP_FRAME_FLAG2	0x0002
#define   RTL8309N_WKP_FRAME_STATUS	0x0004	/* read only */

s32 rtl8309n_wkp_enable_set(u32 enabled1, u32 enabled2);
s32 rtl8309n_wkp_enable_get(u32 *pEnabled1, u32 *pEnabled2);
s32 rtl8309n_wkp_linkchngEnable_set(u32 enabled, u32 portmask);
s32 rtl8309n_wkp_linkchngEnable_get(u32 *pEnabled, u32 *pPortmask);
s32 rtl8309n_wkp_linkchangeStatus_get(u32 *pStatus);
s32 rtl8309n_wkp_frameEnable_set(u32 enabled, u32 portmask1, u32 portmask2, u32 flag1, u32 flag2);
s32 rtl8309n_wkp_frameEnable_get(u32 *pEnabled, u32 *pPortmask1, u32 *pPortmask2,
				 u32 *pFlag1, u32 *pFlag2);
s32 rtl8309n_wkp_frameStatus_get(u32 *pStatus);

#endif /* RTL8309N_WOL_H */
