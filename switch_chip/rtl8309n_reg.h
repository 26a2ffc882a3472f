/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N register access primitives: the page control that routes SMI
 * addresses 0..8 to the switch or the PHY register space, the standard MII
 * registers of the embedded PHYs, and the word and bit accessors of both
 * spaces.
 */
#ifndef RTL8309N_REG_H
#define RTL8309N_REG_H

#include "rtl8309n_types.h"

/* Page control: (8, 31); register 31 of each PHY holds that PHY's page */
#define RTL8309N_PAGECTL_ADDR		8
#define RTL8309N_PAGE_REG		31
#define   RTL8309N_PAGECTL_PHY_MODE	0x8000	/* a PHY page is in use */
#define   RTL8309N_PAGECTL_MODE_PAGE_MASK 0x80FF	/* mode bit plus switch page */
#define   RTL8309N_PAGE_BYTE_MASK	0x00FF	/* page of a PHY's register 31 */
#define RTL8309N_PAGECTL_PHY_EXIT	0xFFFF7FFF	/* hook carries 0x7FFF: PHY mode off */
#define RTL8309N_PHY_PARK_PAGE		0x0A	/* PHY page parked on by switch writes */

/* Standard MII registers, PHY page 0 */
#define RTL8309N_MII_PAGE		0
#define RTL8309N_MII_CTRL		0
#define   RTL8309N_MII_CTRL_RESET	0x8000	/* self-clearing */
#define   RTL8309N_MII_CTRL_LOOPBACK	0x4000
#define   RTL8309N_MII_CTRL_ANEN	0x1000
#define   RTL8309N_MII_CTRL_RESTART_AN	0x0200
#define RTL8309N_MII_STATUS		1
#define   RTL8309N_MII_STATUS_ANDONE	0x0020
#define   RTL8309N_MII_STATUS_LINK	0x0004	/* latched low */
#define RTL8309N_MII_PHYID1		2
#define RTL8309N_MII_PHYID2		3
#define RTL8309N_MII_AN_ADV		4
#define RTL8309N_MII_AN_LPA		5

/*
 * Register access primitives.  Switch registers: SMI address 0..8, page
 * 0..17.  PHY registers: PHY 0..7 (0..6 for the bit accessors), PHY page
 * 0..18.  Arguments out of range are refused before any bus access.
 */
s32 rtl8309n_reg_set(u32 phyad, u32 regad, u32 npage, u16 value);
s32 rtl8309n_reg_get(u32 phyad, u32 regad, u32 npage, u32 *pvalue);
s32 rtl8309n_regbit_set(u32 phyad, u32 regad, u32 bit, u32 npage, u32 value);
s32 rtl8309n_regbit_get(u32 phyad, u32 regad, u32 bit, u32 npage, u32 *pvalue);
s32 rtl8309n_phyReg_set(u32 phyad, u32 regad, u32 npage, u16 value);
s32 rtl8309n_phyReg_get(u32 phyad, u32 regad, u32 npage, u32 *pvalue);
s32 rtl8309n_phyRegBit_set(u32 phyad, u32 regad, u32 bit, u32 npage, u32 value);
s32 rtl8309n_phyRegBit_get(u32 phyad, u32 regad, u32 bit, u32 npage, u32 *pvalue);

#endif /* RTL8309N_REG_H */
