// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ port API: embedded PHY access, PHY abilities and status, port
 * isolation.
 *
 * The PHYs of ports 0..7 are driven through their standard MII control and
 * advertisement registers on PHY page 0.
 */
#include "rtk_internal.h"

/* MII control register */
#define CTRL_SPEED_100		0x2000	/* forced speed: 100 Mbit/s, else 10 */
#define CTRL_ANEG_ENABLE	RTL8309N_MII_CTRL_ANEN
#define CTRL_ANEG_RESTART	RTL8309N_MII_CTRL_RESTART_AN
#define CTRL_FULL_DUPLEX	0x0100
#define CTRL_MODE_MASK		(CTRL_SPEED_100 | CTRL_ANEG_ENABLE | CTRL_FULL_DUPLEX)

/* MII advertisement register */
#define ADV_10_HALF		0x0020
#define ADV_10_FULL		0x0040
#define ADV_100_HALF		0x0080
#define ADV_100_FULL		0x0100
#define ADV_PAUSE		0x0400
#define ADV_ASYM_PAUSE		0x0800
#define ADV_PAUSE_MASK		(ADV_PAUSE | ADV_ASYM_PAUSE)
#define ADV_ABILITY_MASK	(ADV_10_HALF | ADV_10_FULL | ADV_100_HALF | ADV_100_FULL | \
				 ADV_PAUSE_MASK)

/*
 * The PHY clears its auto-negotiation restart bit within microseconds.  The
 * bound only keeps a dead or absent PHY from hanging the caller, which is
 * the PHY state machine's periodic status poll.
 */
#define RESTART_POLL_READS	1000

rtk_api_ret_t rtk_port_phyReg_set(rtk_port_t port, rtk_port_phy_reg_t reg,
				  rtk_port_phy_data_t value)
{
	return rtk_chk_phy_port(port) ?:
	       rtk_ret(rtl8309n_phyReg_set(port, reg, RTL8309N_MII_PAGE, (u16)value));
}

rtk_api_ret_t rtk_port_phyReg_get(rtk_port_t port, rtk_port_phy_reg_t reg,
				  rtk_port_phy_data_t *pdata)
{
	return rtk_chk_phy_port(port) ?: rtk_chk_ptr(pdata) ?:
	       rtk_ret(rtl8309n_phyReg_get(port, reg, RTL8309N_MII_PAGE, pdata));
}

static rtk_api_ret_t phy_update(rtk_port_t port, u32 reg, u32 clear, u32 set)
{
	u32 value = 0;

	return rtk_port_phyReg_get(port, reg, &value) ?:
	       rtk_port_phyReg_set(port, reg, (value & ~clear) | set);
}

static u32 adv_from_ability(const rtk_port_phy_ability_t *ability)
{
	return (ability->half10 ? ADV_10_HALF : 0) |
	       (ability->full10 ? ADV_10_FULL : 0) |
	       (ability->half100 ? ADV_100_HALF : 0) |
	       (ability->full100 ? ADV_100_FULL : 0) |
	       (ability->flowControl ? ADV_PAUSE : 0) |
	       (ability->asymFlowControl ? ADV_ASYM_PAUSE : 0);
}

/* The six advertised abilities; autoNegotiation and full1000 are left alone. */
static void ability_from_adv(u32 adv, rtk_port_phy_ability_t *ability)
{
	ability->half10 = !!(adv & ADV_10_HALF);
	ability->full10 = !!(adv & ADV_10_FULL);
	ability->half100 = !!(adv & ADV_100_HALF);
	ability->full100 = !!(adv & ADV_100_FULL);
	ability->flowControl = !!(adv & ADV_PAUSE);
	ability->asymFlowControl = !!(adv & ADV_ASYM_PAUSE);
}

/* Forced mode: the fastest ability asked for, 10 Mbit/s half duplex if none. */
static u32 ctrl_forced_mode(const rtk_port_phy_ability_t *ability)
{
	if (ability->full100)
		return CTRL_SPEED_100 | CTRL_FULL_DUPLEX;
	if (ability->half100)
		return CTRL_SPEED_100;
	if (ability->full10)
		return CTRL_FULL_DUPLEX;
	return 0;
}

/*
 * Checks of both ability setters, then the caller's autoNegotiation field
 * := @autoneg; it keeps that value even if the PHY then fails.
 */
static rtk_api_ret_t ability_claim(rtk_port_t port, rtk_port_phy_ability_t *ability, u32 autoneg)
{
	rtk_api_ret_t ret = rtk_chk_phy_port(port) ?: rtk_chk_ptr(ability);

	if (ret != RT_ERR_OK)
		return ret;
	/* full1000 is not checked: the chip has no gigabit to program */
	if (ability->half10 > 1 || ability->full10 > 1 || ability->half100 > 1 ||
	    ability->full100 > 1 || ability->autoNegotiation > 1 ||
	    ability->asymFlowControl > 1 || ability->flowControl > 1)
		return RT_ERR_INPUT;
	ability->autoNegotiation = autoneg;
	return RT_ERR_OK;
}

/* Checks of both ability getters, then the control and advertisement registers. */
static rtk_api_ret_t ability_read(rtk_port_t port, const rtk_port_phy_ability_t *ability,
				  u32 *pctrl, u32 *padv)
{
	return rtk_chk_phy_port(port) ?: rtk_chk_ptr(ability) ?:
	       rtk_port_phyReg_get(port, RTL8309N_MII_CTRL, pctrl) ?:
	       rtk_port_phyReg_get(port, RTL8309N_MII_AN_ADV, padv);
}

/*
 * The record says autoNegotiation 1 by now, so the restart bit always goes
 * with the enable.
 */
rtk_api_ret_t rtk_port_phyAutoNegoAbility_set(rtk_port_t port, rtk_port_phy_ability_t *pability)
{
	return ability_claim(port, pability, 1) ?:
	       phy_update(port, RTL8309N_MII_AN_ADV, ADV_ABILITY_MASK,
			  adv_from_ability(pability)) ?:
	       phy_update(port, RTL8309N_MII_CTRL, CTRL_MODE_MASK,
			  CTRL_ANEG_ENABLE | CTRL_ANEG_RESTART);
}

/* The record is filled even when the PHY turns out to be in forced mode. */
rtk_api_ret_t rtk_port_phyAutoNegoAbility_get(rtk_port_t port, rtk_port_phy_ability_t *pability)
{
	u32 ctrl = 0, adv = 0;
	rtk_api_ret_t ret = ability_read(port, pability, &ctrl, &adv);

	if (ret != RT_ERR_OK)
		return ret;
	ability_from_adv(adv, pability);
	pability->autoNegotiation = !!(ctrl & CTRL_ANEG_ENABLE);
	return pability->autoNegotiation ? RT_ERR_OK : RT_ERR_PHY_FORCE_MODE;
}

/* All speed abilities are withdrawn from the advertisement; PAUSE stays as asked. */
rtk_api_ret_t rtk_port_phyForceModeAbility_set(rtk_port_t port, rtk_port_phy_ability_t *pability)
{
	return ability_claim(port, pability, 0) ?:
	       phy_update(port, RTL8309N_MII_AN_ADV, ADV_ABILITY_MASK,
			  adv_from_ability(pability) & ADV_PAUSE_MASK) ?:
	       phy_update(port, RTL8309N_MII_CTRL, CTRL_MODE_MASK, ctrl_forced_mode(pability));
}

/* Nothing is stored for an auto-negotiating PHY. */
rtk_api_ret_t rtk_port_phyForceModeAbility_get(rtk_port_t port, rtk_port_phy_ability_t *pability)
{
	u32 ctrl = 0, adv = 0;
	rtk_api_ret_t ret = ability_read(port, pability, &ctrl, &adv);

	if (ret == RT_ERR_OK && (ctrl & CTRL_ANEG_ENABLE))
		ret = RT_ERR_PHY_AUTO_NEGO_MODE;
	if (ret != RT_ERR_OK)
		return ret;

	ability_from_adv(adv & ADV_PAUSE_MASK, pability);
	pability->full1000 = 0;
	switch (ctrl & (CTRL_SPEED_100 | CTRL_FULL_DUPLEX)) {
	case CTRL_SPEED_100 | CTRL_FULL_DUPLEX:
		pability->full100 = 1;
		break;
	case CTRL_SPEED_100:
		pability->half100 = 1;
		break;
	case CTRL_FULL_DUPLEX:
		pability->full10 = 1;
		break;
	default:
		pability->half10 = 1;
		break;
	}
	pability->autoNegotiation = 0;
	return RT_ERR_OK;
}

/* Reads the control register until a pending restart is over; see RESTART_POLL_READS. */
static rtk_api_ret_t phy_ctrl_settled(rtk_port_t port, u32 *pctrl)
{
	u32 i;

	for (i = 0; i < RESTART_POLL_READS; i++) {
		if (rtk_port_phyReg_get(port, RTL8309N_MII_CTRL, pctrl) != RT_ERR_OK)
			return RT_ERR_FAILED;
		if (!(*pctrl & CTRL_ANEG_RESTART))
			return RT_ERR_OK;
	}
	return RT_ERR_FAILED;
}

/*
 * Speed and duplex come from the control register, which is what the PHY
 * was told to do, not from the negotiation result.
 */
rtk_api_ret_t rtk_port_phyStatus_get(rtk_port_t port, rtk_port_linkStatus_t *plinkStatus,
				     rtk_port_speed_t *pspeed, rtk_port_duplex_t *pduplex)
{
	u32 link = PORT_LINKDOWN;	/* port 7: no link is read, so down */
	u32 ctrl = 0;
	rtk_api_ret_t ret;

	ret = rtk_chk_phy_port(port) ?: rtk_chk_ptr(plinkStatus) ?:
	      rtk_ret(rtl8309n_port_phyLinkStatus_get(port, &link));
	if (ret != RT_ERR_OK)
		return ret;

	if (!link) {
		*plinkStatus = PORT_LINKDOWN;
		rtk_put_opt(pspeed, PORT_SPEED_10M);
		rtk_put_opt(pduplex, PORT_HALF_DUPLEX);
		return RT_ERR_OK;
	}
	*plinkStatus = PORT_LINKUP;
	ret = phy_ctrl_settled(port, &ctrl);
	if (ret != RT_ERR_OK)
		return ret;
	rtk_put_opt(pspeed, (ctrl & CTRL_SPEED_100) ? PORT_SPEED_100M : PORT_SPEED_10M);
	rtk_put_opt(pduplex, (ctrl & CTRL_FULL_DUPLEX) ? PORT_FULL_DUPLEX : PORT_HALF_DUPLEX);
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_port_isolation_set(rtk_port_t port, rtk_portmask_t portmask)
{
	return rtk_chk_port(port) ?: rtk_chk_portmask(portmask) ?:
	       rtk_ret(rtl8309n_port_isolation_set(port, portmask));
}

rtk_api_ret_t rtk_port_isolation_get(rtk_port_t port, rtk_portmask_t *pportmask)
{
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: rtk_chk_ptr(pportmask) ?:
	      rtk_ret(rtl8309n_port_isolation_get(port, pportmask));
	if (ret == RT_ERR_OK)
		*pportmask &= RTL8309N_PORT_MASK_ALL;
	return ret;
}
