// SPDX-License-Identifier: GPL-2.0
/*
 * Per-port control: the embedded PHYs' link, auto-negotiation and loopback,
 * address learning, port isolation, and the interface mode and forced link
 * of the MAC port (port 8, "extension port 0").
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

#define BIT_OF(data, bit)	(((data) >> (bit)) & 1u)

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

static const struct rtl8309n_regfield port_learn = {
	0, RTL8309N_PORT_LEARN_REG, RTL8309N_PORT_LEARN_PAGE, RTL8309N_PORT_LEARN_BIT, 1,
	RTL8309N_ACTIVE_HIGH, RTL8309N_PORT_ADDR,
};

static const struct rtl8309n_regfield port_isolation = {
	0, RTL8309N_PORT_ISO_REG, RTL8309N_PORT_ISO_PAGE, 0, RTL8309N_PORT_ISO_WIDTH,
	RTL8309N_ACTIVE_HIGH, RTL8309N_PORT_ADDR,
};

RTL8309N_PORT_ACCESSORS(port_MacLearnEnable, port_learn)

/* The mask owns the register: it is written whole, bits 15..9 as 0. */
s32 rtl8309n_port_isolation_set(u32 port, u32 portmask)
{
	if (portmask > RTL8309N_PORT_MASK_ALL || port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;
	return rtl8309n_reg_set(port, RTL8309N_PORT_ISO_REG, RTL8309N_PORT_ISO_PAGE, (u16)portmask);
}

s32 rtl8309n_port_isolation_get(u32 port, u32 *pportmask)
{
	return rtl8309n_regfield_get(&port_isolation, port, pportmask);
}

/* ---- MAC port (extension port 0) ---- */

#define EXT0_MODE(width)						\
	RTL8309N_GLOBAL_FIELD(RTL8309N_EXT0_MODE_ADDR, RTL8309N_EXT0_MODE_REG,	\
			      RTL8309N_EXT0_MODE_PAGE, 0, width)

static const struct rtl8309n_regfield ext0_mode = EXT0_MODE(RTL8309N_EXT0_MODE_WIDTH);
/* Mode 5 is set by clearing bits 1..0 alone: bit 2 stays as it was. */
static const struct rtl8309n_regfield ext0_mode5 = EXT0_MODE(RTL8309N_EXT0_MODE_WIDTH - 1);

#define EXT0_MODE_KEEP_BIT2	5

static const struct rtl8309n_regfield ext0_force =
	RTL8309N_GLOBAL_FIELD(RTL8309N_EXT0_FORCE_ADDR, RTL8309N_EXT0_FORCE_REG,
			      RTL8309N_EXT0_FORCE_PAGE, 0, RTL8309N_EXT0_FORCE_WIDTH);

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

	rtl8309n_regfield_get(&ext0_mode, 0, &code);
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

	rtl8309n_regfield_set(mode == EXT0_MODE_KEEP_BIT2 ? &ext0_mode5 : &ext0_mode, 0,
			      ext0_mode_code[mode]);

	/* The link flag is not range-checked: any non-zero value sets its bit. */
	force = (u32)(a->nway != 1) << RTL8309N_EXT0_FORCE_NO_NWAY_BIT |
		(u32)(a->link != 0) << RTL8309N_EXT0_FORCE_LINK_BIT |
		(u32)(a->duplex == 1) << RTL8309N_EXT0_FORCE_DUPLEX_BIT |
		(u32)(a->speed >= RTL8309N_PORT_SPEED_100M) << RTL8309N_EXT0_FORCE_SPEED_BIT |
		(u32)(a->txpause == 1) << RTL8309N_EXT0_FORCE_TXPAUSE_BIT |
		(u32)(a->rxpause == 1) << RTL8309N_EXT0_FORCE_RXPAUSE_BIT;
	return rtl8309n_regfield_set(&ext0_force, 0, force);
}

s32 rtl8309n_port_macForceLinkExt0_get(u32 *pmode, struct rtl8309n_port_macAbility *pability)
{
	u32 force = 0;

	if (!pmode || !pability)
		return RT_ERR_FAILED;

	*pmode = ext0_mode_get();
	rtl8309n_reg_get(RTL8309N_EXT0_FORCE_ADDR, RTL8309N_EXT0_FORCE_REG,
			 RTL8309N_EXT0_FORCE_PAGE, &force);
	pability->link = BIT_OF(force, RTL8309N_EXT0_FORCE_LINK_BIT);
	pability->nway = !BIT_OF(force, RTL8309N_EXT0_FORCE_NO_NWAY_BIT);
	pability->txpause = BIT_OF(force, RTL8309N_EXT0_FORCE_TXPAUSE_BIT);
	pability->rxpause = BIT_OF(force, RTL8309N_EXT0_FORCE_RXPAUSE_BIT);
	pability->duplex = BIT_OF(force, RTL8309N_EXT0_FORCE_DUPLEX_BIT);
	pability->speed = ext0_speed(*pmode, BIT_OF(force, RTL8309N_EXT0_FORCE_SPEED_BIT));
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
