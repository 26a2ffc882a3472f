/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N ISP mode: the WAN port and the MAC address the chip uses on it.
 */
#ifndef RTL8309N_ISP_H
#define RTL8309N_ISP_H

#include "rtl8309n_types.h"

#define RTL8309N_ISP_ADDR		1
#define RTL8309N_ISP_PAGE		17

/* ISP control: (1, 16, 17) */
#define RTL8309N_ISP_CTRL_REG		16
#define   RTL8309N_ISP_CTRL_EN		0x0001

/* WAN port: (1, 17, 17), written whole */
#define RTL8309N_ISP_WAN_REG		17
#define   RTL8309N_ISP_WAN_PORT		0x000F	/* what is read back */

/* ISP MAC address: (1, 18..20, 17), MAC byte 2k in bits 7..0 of 18 + k */
#define RTL8309N_ISP_MAC_REG		18

s32 rtl8309n_isp_enable_set(u32 enabled);
s32 rtl8309n_isp_enable_get(u32 *pEnabled);
/* @pMac: three words, MAC byte 2k in bits 7..0 of word k */
s32 rtl8309n_isp_mac_set(const u16 *pMac);
/* @pMac: six bytes */
s32 rtl8309n_isp_mac_get(u8 *pMac);
s32 rtl8309n_isp_wanPort_set(u32 port);
s32 rtl8309n_isp_wanPort_get(u32 *pPort);

#endif /* RTL8309N_ISP_H */
