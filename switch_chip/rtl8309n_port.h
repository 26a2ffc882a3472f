/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N per-port control: the embedded PHYs' link, auto-negotiation and
 * loopback, address learning, port isolation, and the interface mode and
 * forced link of the MAC port (port 8, "extension port 0").
 */
#ifndef RTL8309N_PORT_H
#define RTL8309N_PORT_H

#include "rtl8309n_types.h"

/* Address learning, per port: (port, 16, 5) */
#define RTL8309N_PORT_LEARN_PAGE	5
#define RTL8309N_PORT_LEARN_REG		16
#define   RTL8309N_PORT_LEARN_EN	0x0001

/* Port isolation, per port: (port, 16, 4), written whole */
#define RTL8309N_PORT_ISO_PAGE		4
#define RTL8309N_PORT_ISO_REG		16
#define   RTL8309N_PORT_ISO_MASK	0x01FF	/* ports this one may forward to */

/* Negotiation state, per port: (port, 22, 0); read by the switch device's link report */
#define RTL8309N_PORT_NWAY_PAGE		0
#define RTL8309N_PORT_NWAY_REG		22
#define   RTL8309N_PORT_NWAY_ON		0x0040	/* the port runs auto-negotiation */

/* Interface mode of the MAC port: (3, 16, 17) */
#define RTL8309N_EXT0_MODE_ADDR		3
#define RTL8309N_EXT0_MODE_REG		16
#define RTL8309N_EXT0_MODE_PAGE		17
#define   RTL8309N_EXT0_MODE_CODE	0x0007
#define   RTL8309N_EXT0_MODE_CODE_LOW	0x0003	/* mode 5 clears these alone */

/* Forced link of the MAC port: low byte of (8, 16, 0); bits 4 and 7 unused */
#define RTL8309N_EXT0_FORCE_ADDR	8
#define RTL8309N_EXT0_FORCE_REG		16
#define RTL8309N_EXT0_FORCE_PAGE	0
#define   RTL8309N_EXT0_FORCE_BYTE	0x00FF
#define   RTL8309N_EXT0_FORCE_NO_NWAY	0x0001	/* 1: auto-negotiation off */
#define   RTL8309N_EXT0_FORCE_LINK	0x0002
#define   RTL8309N_EXT0_FORCE_DUPLEX	0x0004
#define   RTL8309N_EXT0_FORCE_SPEED	0x0008	/* 1: 100 (200) Mbit/s */
#define   RTL8309N_EXT0_FORCE_TXPAUSE	0x0020
#define   RTL8309N_EXT0_FORCE_RXPAUSE	0x0040

/* Read-only status of the MAC port: (2, 18..22, 14), one flag per register */
#define RTL8309N_EXT0_STATUS_ADDR	2
#define RTL8309N_EXT0_STATUS_PAGE	14
#define RTL8309N_EXT0_STATUS_LINK_REG	18
#define RTL8309N_EXT0_STATUS_SPEED_REG	19
#define RTL8309N_EXT0_STATUS_DUPLEX_REG	20
#define RTL8309N_EXT0_STATUS_TXPAUSE_REG 21
#define RTL8309N_EXT0_STATUS_RXPAUSE_REG 22
#define RTL8309N_EXT0_STATUS_TRUE	0x100	/* a flag is true from this value on */

/* Interface modes of the MAC port (port 8); 0 and 1 run at double rate. */
#define RTL8309N_EXT0_MODE_NUM		6

/* Speeds of the MAC port record; the double rates follow from the mode. */
#define RTL8309N_PORT_SPEED_10M		0
#define RTL8309N_PORT_SPEED_20M		1
#define RTL8309N_PORT_SPEED_100M	2
#define RTL8309N_PORT_SPEED_200M	3

/*
 * Forced link (or, from rtl8309n_port_macAbilityExt0_get, the status) of the
 * MAC port.  Flags are 1 or 0; nway is not part of the status.
 */
struct rtl8309n_port_macAbility {
	u32 speed;	/* RTL8309N_PORT_SPEED_* */
	u32 duplex;	/* 1: full duplex */
	u32 link;	/* 1: link up */
	u32 nway;	/* 1: auto-negotiation, 0: forced */
	u32 txpause;	/* 1: sends PAUSE frames */
	u32 rxpause;	/* 1: obeys PAUSE frames */
};

/* Embedded PHYs, ports 0..7 (PHY 7's link is not read: reported down). */
s32 rtl8309n_port_phyLinkStatus_get(u32 port, u32 *plinkStatus);
s32 rtl8309n_port_phyAutoNegoDone_get(u32 port, u32 *pdone);
s32 rtl8309n_port_phyLoopback_set(u32 port, u32 enabled);
s32 rtl8309n_port_phyLoopback_get(u32 port, u32 *penabled);
/* Ports 0..8. */
s32 rtl8309n_port_MacLearnEnable_set(u32 port, u32 enabled);
s32 rtl8309n_port_MacLearnEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_port_isolation_set(u32 port, u32 portmask);
s32 rtl8309n_port_isolation_get(u32 port, u32 *pportmask);
/* The MAC port: mode 0..5 and forced link. */
s32 rtl8309n_port_macForceLinkExt0_set(u32 mode, const struct rtl8309n_port_macAbility *pability);
s32 rtl8309n_port_macForceLinkExt0_get(u32 *pmode, struct rtl8309n_port_macAbility *pability);
s32 rtl8309n_port_macAbilityExt0_get(u32 *pmode, struct rtl8309n_port_macAbility *pstatus);

#endif /* RTL8309N_PORT_H */
