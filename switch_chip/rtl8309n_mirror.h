/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N port- and MAC-based mirroring, SMI address 5, page 15.
 */
#ifndef RTL8309N_MIRROR_H
#define RTL8309N_MIRROR_H

#include "rtl8309n_types.h"

#define RTL8309N_MIRROR_ADDR		5
#define RTL8309N_MIRROR_PAGE		15

/* Control: (5, 16, 15) */
#define RTL8309N_MIRROR_CTRL_REG	16
#define   RTL8309N_MIRROR_CTRL_PORT	0x000F	/* the mirror port */
#define   RTL8309N_MIRROR_CTRL_MAC_EN	0x0010
#define   RTL8309N_MIRROR_CTRL_SELF_FILTER 0x0020
#define   RTL8309N_MIRROR_CTRL_PAUSE	0x0040

/* Mirrored port masks B and A: (5, 17, 15) and (5, 18, 15) */
#define RTL8309N_MIRROR_MASK_B_REG	17
#define RTL8309N_MIRROR_MASK_A_REG	18
#define   RTL8309N_MIRROR_MASK_PORTS	0x01FF

/* Mirrored MAC address: (5, 19..21, 15), bytes 0/1, 2/3, 4/5 */
#define RTL8309N_MIRROR_MAC_REG		19

s32 rtl8309n_mirror_selfFilterEnable_set(u32 enabled);
s32 rtl8309n_mirror_selfFilterEnable_get(u32 *penabled);
s32 rtl8309n_mirror_pauseFrameEnable_set(u32 enabled);
s32 rtl8309n_mirror_pauseFrameEnable_get(u32 *penabled);
/* Mask A is chip register 18, mask B register 17; also turns self-filtering on. */
s32 rtl8309n_mirror_portBased_set(u32 mirport, u32 maskA, u32 maskB);
s32 rtl8309n_mirror_portBased_get(u32 *pmirport, u32 *pmaskA, u32 *pmaskB);
s32 rtl8309n_mirror_macBased_set(const u8 *mac, u32 enabled);
s32 rtl8309n_mirror_macBased_get(u8 *mac, u32 *penabled);

#endif /* RTL8309N_MIRROR_H */
