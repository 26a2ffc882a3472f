// SPDX-License-Identifier: GPL-2.0
/*
 * Per-port control: the embedded PHYs' link, auto-negotiation and loopback,
 * address learning, port isolation, and the interface mode and forced link
 * of the MAC port (port 8, "extension port 0").
 */
#include "rtl8309n_internal.h"

/* ---- Embedded PHYs ---- */

s32 rtl8309n_port_phyLinkStatus_get(u32 port, u32 *plinkStatus)
{
	const u32 link_bit = rtl8309n_mask_shift(RTL8309N_MII_STATUS_LINK);
	u32 link = 0;

	if (!plinkStatus || port > RTL8309N_MAX_PHY_PORT)
		return RT_ERR_FAILED;

	/*
	 * Link is latched low: the first read clears a past drop, the second
	 * tells the state now.  The bit accessors refuse PHY 7, which reads
	 * nothing here and is reported as link down.
	 */
	rtl8309n_phyRegBit_get(port, RTL8309N_MII_STATUS, link_bit, RTL8309N_MII_PAGE, &link);
	rtl8309n_phyRegBit_get(port, RTL8309N_MII_STATUS, link_bit, RTL8309N_MII_PAGE, &link);
	*plinkStatus = link;
	return RT_ERR_OK;
}

/*
 * The other MII bits go through the word accessors, which reach PHY 7 and
 * check the port themselves (0..7).
 */
static s32 mii_bit_get(u32 port, u32 reg, u32 mask, u32 *pvalue)
{
	u32 data = 0;
	s32 ret;

	if (!pvalue)
		return RT_ERR_FAILED;
	ret = rtl8309n_phyReg_get(port, reg, RTL8309N_MII_PAGE, &data);
	if (ret != RT_ERR_OK)
		return ret;
	*pvalue = rtl8309n_field_extract(mask, data);
	return RT_ERR_OK;
}

s32 rtl8309n_port_phyAutoNegoDone_get(u32 port, u32 *pdone)
{
	return mii_bit_get(port, RTL8309N_MII_STATUS, RTL8309N_MII_STATUS_ANDONE, pdone);
}

s32 rtl8309n_port_phyLoopback_set(u32 port, u32 enabled)
{
	u32 data = 0;

	if (port > RTL8309N_MAX_PHY_PORT)
		return RT_ERR_FAILED;

	rtl8309n_phyReg_get(port, RTL8309N_MII_CTRL, RTL8309N_MII_PAGE, &data);
	data &= ~RTL8309N_MII_CTRL_LOOPBACK;
	data |= rtl8309n_field_prep(RTL8309N_MII_CTRL_LOOPBACK, enabled == RTL8309N_ENABLED);
	return rtl8309n_phyReg_set(port, RTL8309N_MII_CTRL, RTL8309N_MII_PAGE, (u16)data);
}

s32 rtl8309n_port_phyLoopback_get(u32 port, u32 *penabled)
{
	return mii_bit_get(port, RTL8309N_MII_CTRL, RTL8309N_MII_CTRL_LOOPBACK, penabled);
}

/* ---- Learning and isolation, ports 0..8 ---- */

static const struct rtl8309n_field port_learn =
	RTL8309N_FIELD(0, RTL8309N_PORT_LEARN_REG, RTL8309N_PORT_LEARN_PAGE,
		       RTL8309N_PORT_LEARN_EN, RTL8309N_FIELD_FLAG, RTL8309N_PORT_ADDR);
static const struct rtl8309n_field port_isolation =
	RTL8309N_FIELD(0, RTL8309N_PORT_ISO_REG, RTL8309N_PORT_ISO_PAGE,
		       RTL8309N_PORT_ISO_MASK, RTL8309N_FIELD_VALUE, RTL8309N_PORT_ADDR);

s32 rtl8309n_port_MacLearnEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&port_learn, port, enabled);
}

s32 rtl8309n_port_MacLearnEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&port_learn, port, penabled);
}

/* The mask owns the register: it is written whole, bits 15..9 as 0. */
s32 rtl8309n_port_isolation_set(u32 port, u32 portmask)
{
	if (portmask > RTL8309N_PORT_MASK_ALL || port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;
	return rtl8309n_reg_set(port, RTL8309N_PORT_ISO_REG, RTL8309N_PORT_ISO_PAGE, (u16)portmask);
}

s32 rtl8309n_port_isolation_get(u32 port, u32 *pportmask)
{
	return rtl8309n_field_get(&port_isolation, port, pportmask);
}

/* ---- MAC port (extension port 0) ---- */

#define EXT0_MODE_FIELD(mask)						\
	RTL8309N_FIELD(RTL8309N_EXT0_MODE_ADDR, RTL8309N_EXT0_MODE_REG,		\
		       RTL8309N_EXT0_MODE_PAGE, mask, RTL8309N_FIELD_VALUE, RTL8309N_GLOBAL)

static const struct rtl8309n_field ext0_mode = EXT0_MODE_FIELD(RTL8309N_EXT0_MODE_CODE);
/* Mode 5 is set by clearing bits 1..0 alone: bit 2 stays as it was. */
static const struct rtl8309n_field ext0_mode5 = EXT0_MODE_FIELD(RTL8309N_EXT0_MODE_CODE_LOW);

#define EXT0_MODE_KEEP_BIT2	5

static const struct rtl8309n_field ext0_force =
	RTL8309N_FIELD(RTL8309N_EXT0_FORCE_ADDR, RTL8309N_EXT0_FORCE_REG, RTL8309N_EXT0_FORCE_PAGE,
		       RTL8309N_EXT0_FORCE_BYTE, RTL8309N_FIELD_VALUE, RTL8309N_GLOBAL);

/* Mode -> code written; and code read -> mode (4 and 0 give 5, 7 gives 4). */
static const u8 ext0_mode_code[RTL8309N_EXT0_MODE_NUM] = { 2, 6, 1, 5, 3, 0 };
static const u8 ext0_code_mode[8] = { 5, 2, 0, 4, 5, 3, 1, 4 };

/* Modes 0 and 1 run the port at twice the rate its speed bit names. */
static u32 ext0_speed(u32 mode, u32 fast)
{
	u32 speed = fast ? RTL8309N_PORT_SPEED_100M : RTL8309N_PORT_SPEED_10M;

	return mode <= 1 ? speed + 1 : speed;
}

static u32 ext0_mode_get(void)
{
	u32 code = 0;

	rtl8309n_field_get(&ext0_mode, 0, &code);
	return ext0_code_mode[code];
}

s32 rtl8309n_port_macForceLinkExt0_set(u32 mode, const struct rtl8309n_port_macAbility *pability)
{
	const struct rtl8309n_port_macAbility *a = pability;
	u32 force;

	if (!a || mode >= RTL8309N_EXT0_MODE_NUM || a->nway > 1 ||
	    a->speed > RTL8309N_PORT_SPEED_200M || a->duplex > 1 || a->rxpause > 1 ||
	    a->txpause > 1)
		return RT_ERR_FAILED;

	rtl8309n_field_set(mode == EXT0_MODE_KEEP_BIT2 ? &ext0_mode5 : &ext0_mode, 0,
			   ext0_mode_code[mode]);

	/* The link flag is not range-checked: any non-zero value sets its bit. */
	force = rtl8309n_field_prep(RTL8309N_EXT0_FORCE_NO_NWAY, a->nway != 1) |
		rtl8309n_field_prep(RTL8309N_EXT0_FORCE_LINK, a->link != 0) |
		rtl8309n_field_prep(RTL8309N_EXT0_FORCE_DUPLEX, a->duplex == 1) |
		rtl8309n_field_prep(RTL8309N_EXT0_FORCE_SPEED,
				    a->speed >= RTL8309N_PORT_SPEED_100M) |
		rtl8309n_field_prep(RTL8309N_EXT0_FORCE_TXPAUSE, a->txpause == 1) |
		rtl8309n_field_prep(RTL8309N_EXT0_FORCE_RXPAUSE, a->rxpause == 1);
	return rtl8309n_field_set(&ext0_force, 0, force);
}

s32 rtl8309n_port_macForceLinkExt0_get(u32 *pmode, struct rtl8309n_port_macAbility *pability)
{
	u32 force = 0;

	if (!pmode || !pability)
		return RT_ERR_FAILED;

	*pmode = ext0_mode_get();
	rtl8309n_reg_get(RTL8309N_EXT0_FORCE_ADDR, RTL8309N_EXT0_FORCE_REG,
			 RTL8309N_EXT0_FORCE_PAGE, &force);
	pability->link = !!(force & RTL8309N_EXT0_FORCE_LINK);
	pability->nway = !(force & RTL8309N_EXT0_FORCE_NO_NWAY);
	pability->txpause = !!(force & RTL8309N_EXT0_FORCE_TXPAUSE);
	pability->rxpause = !!(force & RTL8309N_EXT0_FORCE_RXPAUSE);
	pability->duplex = !!(force & RTL8309N_EXT0_FORCE_DUPLEX);
	pability->speed = ext0_speed(*pmode, !!(force & RTL8309N_EXT0_FORCE_SPEED));
	return RT_ERR_OK;
}

static u32 ext0_status(u32 reg)
{
	u32 value = 0;

	rtl8309n_reg_get(RTL8309N_EXT0_STATUS_ADDR, reg, RTL8309N_EXT0_STATUS_PAGE, &value);
	return value >= RTL8309N_EXT0_STATUS_TRUE;
}

/* The status has no auto-negotiation flag: nway is left as it was. */
s32 rtl8309n_port_macAbilityExt0_get(u32 *pmode, struct rtl8309n_port_macAbility *pstatus)
{
	if (!pmode || !pstatus)
		return RT_ERR_FAILED;

	*pmode = ext0_mode_get();
	pstatus->link = ext0_status(RTL8309N_EXT0_STATUS_LINK_REG);
	pstatus->speed = ext0_speed(*pmode, ext0_status(RTL8309N_EXT0_STATUS_SPEED_REG));
	pstatus->duplex = ext0_status(RTL8309N_EXT0_STATUS_DUPLEX_REG);
	pstatus->txpause = ext0_status(RTL8309N_EXT0_STATUS_TXPAUSE_REG);
	pstatus->rxpause = ext0_status(RTL8309N_EXT0_STATUS_RXPAUSE_REG);
	return RT_ERR_OK;
}
