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
/* Maximum frame length: mode in (7, 16, 17) bits 7..6, user length in (7, 17, 17). */
#define RTL8309N_PKTLEN_ADDR		7
#define RTL8309N_PKTLEN_PAGE		17
#define RTL8309N_PKTLEN_CTRL_REG	16
#define RTL8309N_PKTLEN_MODE_LSB	6
#define RTL8309N_PKTLEN_MODE_WIDTH	2
#define RTL8309N_PKTLEN_USER_REG	17
#define RTL8309N_PKTLEN_USER_WIDTH	12	/* bits 11..0 */

/* ---- Port MAC and PHY control ---- */
/* Per port: SMI address = port. */
#define RTL8309N_PORT_LEARN_PAGE	5
#define RTL8309N_PORT_LEARN_REG		16
#define RTL8309N_PORT_LEARN_BIT		0
#define RTL8309N_PORT_ISO_PAGE		4
#define RTL8309N_PORT_ISO_REG		16	/* bits 8..0, written whole */
#define RTL8309N_PORT_ISO_WIDTH		9

/* MAC port 8 ("extension port 0"): interface mode, bits 2..0 of (3, 16, 17). */
#define RTL8309N_EXT0_MODE_ADDR		3
#define RTL8309N_EXT0_MODE_REG		16
#define RTL8309N_EXT0_MODE_PAGE		17
#define RTL8309N_EXT0_MODE_WIDTH	3
/* Forced link of the MAC port: low byte of (8, 16, 0); bits 4 and 7 unused. */
#define RTL8309N_EXT0_FORCE_ADDR	8
#define RTL8309N_EXT0_FORCE_REG		16
#define RTL8309N_EXT0_FORCE_PAGE	0
#define RTL8309N_EXT0_FORCE_WIDTH	8
#define RTL8309N_EXT0_FORCE_NO_NWAY_BIT	0	/* 1: auto-negotiation off */
#define RTL8309N_EXT0_FORCE_LINK_BIT	1
#define RTL8309N_EXT0_FORCE_DUPLEX_BIT	2
#define RTL8309N_EXT0_FORCE_SPEED_BIT	3	/* 1: 100 (200) Mbit/s */
#define RTL8309N_EXT0_FORCE_TXPAUSE_BIT	5
#define RTL8309N_EXT0_FORCE_RXPAUSE_BIT	6
/* Read-only status of the MAC port: one flag per register, true from 0x100. */
#define RTL8309N_EXT0_STATUS_ADDR	2
#define RTL8309N_EXT0_STATUS_PAGE	14
#define RTL8309N_EXT0_STATUS_LINK_REG	18
#define RTL8309N_EXT0_STATUS_SPEED_REG	19
#define RTL8309N_EXT0_STATUS_DUPLEX_REG	20
#define RTL8309N_EXT0_STATUS_TXPAUSE_REG 21
#define RTL8309N_EXT0_STATUS_RXPAUSE_REG 22
#define RTL8309N_EXT0_STATUS_TRUE	0x100

/* ---- CPU port and CPU tag ---- */
#define RTL8309N_CPU_ADDR		2
#define RTL8309N_CPU_PAGE		17
#define RTL8309N_CPU_CTRL_REG		16
#define RTL8309N_CPU_DISABLE_BIT	0	/* 1: CPU port function off */
#define RTL8309N_CPU_PORT_LSB		1	/* bits 4..1; 9: no CPU port */
#define RTL8309N_CPU_PORT_WIDTH		4
#define RTL8309N_CPU_TAG_AWARE_BIT	5
#define RTL8309N_CPU_TAG_INSERT_BIT	6
#define RTL8309N_CPU_TAG_REMOVE_BIT	7
#define RTL8309N_CPU_NONCPU_RXTAG_BIT	8	/* 1: action 0, 0: action 3 */
#define RTL8309N_CPU_LEARN_BIT		9
#define RTL8309N_CPU_NO_CRC_BIT		10	/* 1: CRC check off */
#define RTL8309N_CPU_INSERT_MASK_REG	17	/* bit p: tag frames of port p */

/* ---- ACL table ---- */
#define RTL8309N_ACL_ADDR		3
#define RTL8309N_ACL_PAGE		15
#define RTL8309N_ACL_ACCESS_REG		16	/* bit 0: table access enable */
#define RTL8309N_ACL_ACCESS_BIT		0
#define RTL8309N_ACL_CMD_REG		17
#define RTL8309N_ACL_CMD_INDEX_LSB	0	/* bits 3..0: entry index */
#define RTL8309N_ACL_CMD_INDEX_WIDTH	4
#define RTL8309N_ACL_CMD_READ_BIT	14	/* 1 read, 0 write */
#define RTL8309N_ACL_CMD_BUSY_BIT	15	/* start; the chip clears it */
#define RTL8309N_ACL_DATA_REG		18
#define RTL8309N_ACL_FIELDS_REG		19	/* bits 15..10 are not ours */
#define RTL8309N_ACL_FIELDS_WIDTH	10
#define RTL8309N_ACL_PROTO_LSB		0
#define RTL8309N_ACL_PROTO_WIDTH	2
#define RTL8309N_ACL_PORT_LSB		2
#define RTL8309N_ACL_PORT_WIDTH		4
#define RTL8309N_ACL_ACT_LSB		6
#define RTL8309N_ACL_ACT_WIDTH		2
#define RTL8309N_ACL_PRI_LSB		8
#define RTL8309N_ACL_PRI_WIDTH		2
/* Every entry write also sets bits 0, 5, 6 and 7 of (2, 16, 17). */
#define RTL8309N_ACL_WRITE_ADDR		2
#define RTL8309N_ACL_WRITE_REG		16
#define RTL8309N_ACL_WRITE_PAGE		17
#define RTL8309N_ACL_WRITE_BITS		0x00E1

/* ---- MIB counters ---- */
#define RTL8309N_MIB_ADDR		4
#define RTL8309N_MIB_PAGE		15
#define RTL8309N_MIB_CTRL_REG		16	/* bit p: port p counts */
#define RTL8309N_MIB_ENABLE_BIT		15	/* global counting */
#define RTL8309N_MIB_RESET_REG		17	/* bit p: clear port p, self-clearing */
#define RTL8309N_MIB_SELECT_REG		18
#define RTL8309N_MIB_SELECT_PORT_SHIFT	4	/* bits 7..4 port, bits 3..0 counter */
#define RTL8309N_MIB_SELECT_BUSY_BIT	15	/* start; cleared once latched */
#define RTL8309N_MIB_SELECT_BUSY	0x8000
#define RTL8309N_MIB_LOW_WORDS_REG	19	/* 19, 20: words of counter c */
#define RTL8309N_MIB_HIGH_WORDS_REG	21	/* 21, 22: words of counter c + 1 */
#define RTL8309N_MIB_OVERFLOW_REG	23	/* bit p: port p overflowed */

/* ---- Port and MAC mirroring ---- */
#define RTL8309N_MIRROR_ADDR		5
#define RTL8309N_MIRROR_PAGE		15
#define RTL8309N_MIRROR_CTRL_REG	16
#define RTL8309N_MIRROR_PORT_LSB	0	/* bits 3..0: mirror port */
#define RTL8309N_MIRROR_PORT_WIDTH	4
#define RTL8309N_MIRROR_MAC_EN_BIT	4
#define RTL8309N_MIRROR_SELF_FILTER_BIT	5
#define RTL8309N_MIRROR_PAUSE_BIT	6
#define RTL8309N_MIRROR_MASK_B_REG	17	/* bits 8..0 */
#define RTL8309N_MIRROR_MASK_A_REG	18	/* bits 8..0 */
#define RTL8309N_MIRROR_MASK_WIDTH	9
#define RTL8309N_MIRROR_MAC_REG		19	/* 19..21: MAC bytes 0/1, 2/3, 4/5 */

/* ---- STP and 802.1X ---- */
#define RTL8309N_STP_PAGE		2	/* on the port's own address */
#define RTL8309N_STP_REG		16
#define RTL8309N_STP_STATE_MASK		0x0003
#define RTL8309N_STP_STATE_MAX		3	/* highest code the getter reports */

#define RTL8309N_DOT1X_PORT_PAGE	3	/* on the port's own address */
#define RTL8309N_DOT1X_PORT_REG		16
#define RTL8309N_DOT1X_PORT_EN_BIT	0
#define RTL8309N_DOT1X_PORT_AUTH_BIT	1
#define RTL8309N_DOT1X_PORT_DIR_BIT	2
#define RTL8309N_DOT1X_MAC_EN_BIT	3

#define RTL8309N_DOT1X_GLB_ADDR		0
#define RTL8309N_DOT1X_GLB_PAGE		15
#define RTL8309N_DOT1X_GLB_REG		16
#define RTL8309N_DOT1X_UNAUTH_TYPE	1	/* unauthorised action: abnormal-packet type 1 */
#define RTL8309N_DOT1X_MAC_DIR_BIT	1

/* ---- ISP / WAN port ---- */
#define RTL8309N_ISP_ADDR		1
#define RTL8309N_ISP_PAGE		17
#define RTL8309N_ISP_CTRL_REG		16
#define RTL8309N_ISP_EN_BIT		0
#define RTL8309N_ISP_WAN_REG		17
#define RTL8309N_ISP_WAN_WIDTH		4	/* read back as bits 3..0 */
#define RTL8309N_ISP_MAC_REG		18	/* 18..20, MAC byte 2k in bits 7..0 */

/* ---- Wake-up ---- */
#define RTL8309N_WKP_ADDR		7
#define RTL8309N_WKP_PAGE		14
#define RTL8309N_WKP_CTRL_REG		20
#define RTL8309N_WKP_EN1_BIT		0
#define RTL8309N_WKP_EN2_BIT		1
#define RTL8309N_WKP_LINK_EN_BIT	2
#define RTL8309N_WKP_FRAME_EN_BIT	3
#define RTL8309N_WKP_LINK_MASK_REG	21
#define RTL8309N_WKP_LINK_STATUS_REG	22	/* read only */
#define RTL8309N_WKP_FRAME_MASK1_REG	23
#define RTL8309N_WKP_FRAME_MASK2_REG	24
#define RTL8309N_WKP_FRAME_REG		25
#define RTL8309N_WKP_FRAME_FLAG1_BIT	0
#define RTL8309N_WKP_FRAME_FLAG2_BIT	1
#define RTL8309N_WKP_FRAME_STATUS_BIT	2	/* read only */

#endif /* RTL8309N_REGS_H */
