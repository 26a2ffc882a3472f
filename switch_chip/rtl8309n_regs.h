/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N register map.
 *
 * A switch register is named by (SMI address, register, page); a PHY
 * register by (PHY address, register, PHY page).  Bits count from 0 = LSB.
 * Per-port registers use the port number as the SMI address and so have no
 * address macro.  One section per chip block; the block's source file uses
 * its own section only.
 */
#ifndef RTL8309N_REGS_H
#define RTL8309N_REGS_H

/* ---- Page control (register access primitives) ---- */
#define RTL8309N_PAGECTL_ADDR		8	/* SMI address of the page-control register */
#define RTL8309N_PAGE_REG		31	/* page register, of address 8 and of every PHY */
#define RTL8309N_PAGECTL_PHY_MODE	0x8000	/* bit 15: a PHY page is in use */
#define RTL8309N_PAGECTL_MODE_PAGE_MASK	0x80FF	/* mode bit plus switch page byte */
#define RTL8309N_PAGECTL_PHY_EXIT	0xFFFF7FFF	/* hook carries 0x7FFF: PHY mode off */
#define RTL8309N_PAGE_BYTE_MASK		0x00FF
#define RTL8309N_PHY_PARK_PAGE		0x0A	/* PHY page parked on by switch writes */

/* ---- Standard MII registers, PHY page 0 ---- */
#define RTL8309N_MII_PAGE		0
#define RTL8309N_MII_CTRL		0
#define RTL8309N_MII_CTRL_RESET_BIT	15
#define RTL8309N_MII_CTRL_LOOPBACK_BIT	14
#define RTL8309N_MII_CTRL_ANEN_BIT	12
#define RTL8309N_MII_CTRL_RESTART_AN_BIT 9
#define RTL8309N_MII_STATUS		1
#define RTL8309N_MII_STATUS_ANDONE_BIT	5
#define RTL8309N_MII_STATUS_LINK_BIT	2
#define RTL8309N_MII_PHYID1		2
#define RTL8309N_MII_PHYID2		3
#define RTL8309N_MII_AN_ADV		4
#define RTL8309N_MII_AN_LPA		5

/* ---- Chip initialisation, PHY reset, maximum packet length ---- */

/* ---- Port MAC and PHY control ---- */

/* ---- VLAN registers and table ---- */

/* ---- CPU port and CPU tag ---- */

/* ---- QoS priority sources, remapping, queues ---- */

/* ---- QoS bandwidth, leaky bucket, flow control ---- */

/* ---- ACL table ---- */

/* ---- MIB counters ---- */

/* ---- Port and MAC mirroring ---- */

/* ---- L2 address table ---- */

/* ---- STP and 802.1X ---- */

/* ---- Traps, reserved multicast, IGMP ---- */

/* ---- Interrupts and storm filtering ---- */

/* ---- Loop detection, ISP/WAN, LEDs, wake-up ---- */

#endif /* RTL8309N_REGS_H */
