/* SPDX-License-Identifier: GPL-2.0 */
/*
 * rtk_ switch API: chip-neutral records and calls over the RTL8309N
 * register layer.
 *
 * Every call checks its arguments in a fixed order and returns the first
 * failing check's code before any chip access; a failing register-layer
 * call comes back as RT_ERR_FAILED.  Result codes are the library's, from
 * the register layer's header.  Nothing here allocates, locks or keeps
 * state: the chip is the only store, outputs go through pointers.
 */
#ifndef RTK_API_H
#define RTK_API_H

#include "../switch_chip/rtl8309n_asicdrv.h"

typedef s32 rtk_api_ret_t;	/* RT_ERR_* result code */
typedef u32 rtk_port_t;		/* port number 0..8 */
typedef u32 rtk_portmask_t;	/* bit n = port n, at most RTL8309N_PORT_MASK_ALL */
typedef u32 rtk_enable_t;	/* RTL8309N_DISABLED or RTL8309N_ENABLED */
typedef u32 rtk_port_phy_reg_t;	/* MII register number 0..31 */
typedef u32 rtk_port_phy_data_t;	/* 16-bit MII register value */

/*
 * Records and enumerations follow, one section per source file; keep each
 * section in the order of its source file.
 */

/* ---- Switch and port (rtk_port.c, rtk_switch.c) ---- */

/* Raw MII register access to the embedded PHY of @port (0..7), page 0. */
rtk_api_ret_t rtk_port_phyReg_set(rtk_port_t port, rtk_port_phy_reg_t reg,
				  rtk_port_phy_data_t value);
rtk_api_ret_t rtk_port_phyReg_get(rtk_port_t port, rtk_port_phy_reg_t reg,
				  rtk_port_phy_data_t *pdata);

/* ---- VLAN and CPU port (rtk_vlan.c, rtk_cpu.c) ---- */

/* ---- QoS and rate (rtk_qos.c, rtk_rate.c) ---- */

/* ---- ACL, mirror, counters (rtk_filter.c, rtk_mirror.c, rtk_stat.c) ---- */

/* ---- L2 table (rtk_l2.c) ---- */

/* ---- STP, 802.1X, trap, storm (rtk_stp.c, rtk_dot1x.c, rtk_trap.c, rtk_storm.c) ---- */

#endif /* RTK_API_H */
