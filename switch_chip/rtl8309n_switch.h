/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N chip-wide operations: initialisation, PHY software reset and the
 * maximum frame length.
 */
#ifndef RTL8309N_SWITCH_H
#define RTL8309N_SWITCH_H

#include "rtl8309n_types.h"

/* Maximum frame length: mode in (7, 16, 17), user length in (7, 17, 17) */
#define RTL8309N_PKTLEN_ADDR		7
#define RTL8309N_PKTLEN_PAGE		17
#define RTL8309N_PKTLEN_CTRL_REG	16
#define   RTL8309N_PKTLEN_CTRL_MODE	0x00C0
#define RTL8309N_PKTLEN_USER_REG	17	/* written whole */
#define   RTL8309N_PKTLEN_USER_LEN	0x0FFF

/* Maximum frame length modes of the chip. */
#define RTL8309N_MAXPKTLEN_1518		0
#define RTL8309N_MAXPKTLEN_USER		1	/* length programmed, 0..4095 */
#define RTL8309N_MAXPKTLEN_2048		2
#define RTL8309N_MAXPKTLEN_16000	3

/* Nothing to set up on this chip. */
s32 rtl8309n_asic_init(void);
/* Software reset of the embedded PHY @phy (0..7); see the poll notes in the source. */
s32 rtl8309n_phy_reset(u32 phy);
/* @len is used by RTL8309N_MAXPKTLEN_USER only (bits 11..0). */
s32 rtl8309n_switch_maxPktLen_set(u32 type, u32 len);
s32 rtl8309n_switch_maxPktLen_get(u32 *ptype, u32 *plen);

#endif /* RTL8309N_SWITCH_H */
