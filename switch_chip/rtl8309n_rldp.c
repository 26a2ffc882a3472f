// SPDX-License-Identifier: GPL-2.0
/*
 * Loop detection: the RLDP protocol controls and the RLPP loop action.
 *
 * Most settings are single bits of one control register; the enable and
 * the storm-filter bits are disable bits in the chip.
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

#define RLDP_ATTR12_MAX		3
/* 16 is accepted and lands on the storm-filter bit above the field. */
#define RLDP_ATTR3_MAX		16
#define RLDP_CTRL_ATTR_BITS	((RTL8309N_RLDP_ATTR12_MASK << RTL8309N_RLDP_ATTR1_SHIFT) | \
				 (RTL8309N_RLDP_ATTR12_MASK << RTL8309N_RLDP_ATTR2_SHIFT) | \
				 (RTL8309N_RLDP_ATTR3_MASK << RTL8309N_RLDP_ATTR3_SHIFT))
#define RLDP_PROTOCOL_MASK	0xFF

enum rldp_flag {
	RLDP_ENABLE,
	RLDP_PRI,
	RLDP_TTL,
	RLDP_STORM,
	RLDP_VLANTAG,
	RLDP_IDENTIFIER,
	RLDP_FLAGS
};

#define RLDP_FLAG(bit, pol) \
	RTL8309N_GLOBAL_BIT(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_CTRL_REG, RTL8309N_RLDP_PAGE, bit, pol)

static const struct rtl8309n_regfield rldp_flags[RLDP_FLAGS] = {
	[RLDP_ENABLE] = RLDP_FLAG(RTL8309N_RLDP_DIS_BIT, RTL8309N_ACTIVE_LOW),
	[RLDP_PRI] = RLDP_FLAG(RTL8309N_RLDP_PRI_EN_BIT, RTL8309N_ACTIVE_HIGH),
	[RLDP_TTL] = RLDP_FLAG(RTL8309N_RLDP_TTL_EN_BIT, RTL8309N_ACTIVE_HIGH),
	[RLDP_STORM] = RLDP_FLAG(RTL8309N_RLDP_STORM_DIS_BIT, RTL8309N_ACTIVE_LOW),
	[RLDP_VLANTAG] = RLDP_FLAG(RTL8309N_RLDP_VLANTAG_EN_BIT, RTL8309N_ACTIVE_HIGH),
	[RLDP_IDENTIFIER] = RLDP_FLAG(RTL8309N_RLDP_ID_EN_BIT, RTL8309N_ACTIVE_HIGH),
};

/* The RLPP action bit: set for action 0, clear for action 2. */
static const struct rtl8309n_regfield rlpp_action =
	RLDP_FLAG(RTL8309N_RLPP_ACTION_BIT, RTL8309N_ACTIVE_HIGH);

/*
 * The chip library leaves these getters' pointers unchecked; a null one is
 * refused here like everywhere else rather than written through.
 */
RTL8309N_GLOBAL_ACCESSORS(rldp_enable, u32, rldp_flags[RLDP_ENABLE])
RTL8309N_GLOBAL_ACCESSORS(rldp_priEnable, u32, rldp_flags[RLDP_PRI])
RTL8309N_GLOBAL_ACCESSORS(rldp_ttlEnable, u32, rldp_flags[RLDP_TTL])
RTL8309N_GLOBAL_ACCESSORS(rldp_stormFilterEnable, u32, rldp_flags[RLDP_STORM])
RTL8309N_GLOBAL_ACCESSORS(rldp_vlanTagEnable, u32, rldp_flags[RLDP_VLANTAG])

/* Unlike its siblings, this one takes any non-zero value as "enable". */
s32 rtl8309n_rldp_identifierEnable_set(u32 enabled)
{
	return rtl8309n_regfield_set(&rldp_flags[RLDP_IDENTIFIER], 0, enabled != 0);
}

s32 rtl8309n_rldp_identifierEnable_get(u32 *pEnabled)
{
	return rtl8309n_regfield_get(&rldp_flags[RLDP_IDENTIFIER], 0, pEnabled);
}

s32 rtl8309n_rlpp_action_set(u32 action)
{
	return rtl8309n_regfield_code_set(&rlpp_action, 0, action, RTL8309N_ACT_FORWARD,
					  RTL8309N_ACT_TRAP);
}

s32 rtl8309n_rlpp_action_get(u32 *pAction)
{
	return rtl8309n_regfield_code_get(&rlpp_action, 0, pAction, RTL8309N_ACT_FORWARD,
					  RTL8309N_ACT_TRAP);
}

s32 rtl8309n_rldp_controlAttr_set(const rtl8309n_rldp_controlAttr *pAttr)
{
	if (!pAttr || pAttr->attr1 > RLDP_ATTR12_MAX || pAttr->attr2 > RLDP_ATTR12_MAX ||
	    pAttr->attr3 > RLDP_ATTR3_MAX)
		return RT_ERR_FAILED;

	rtl8309n_reg_update(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_CTRL_REG, RTL8309N_RLDP_PAGE,
			    RLDP_CTRL_ATTR_BITS,
			    (pAttr->attr1 << RTL8309N_RLDP_ATTR1_SHIFT) |
			    (pAttr->attr2 << RTL8309N_RLDP_ATTR2_SHIFT) |
			    (pAttr->attr3 << RTL8309N_RLDP_ATTR3_SHIFT));
	rtl8309n_mac_regs_set(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_MAC_REG, RTL8309N_RLDP_PAGE, 0,
			      pAttr->mac);
	return RT_ERR_OK;
}

s32 rtl8309n_rldp_controlAttr_get(rtl8309n_rldp_controlAttr *pAttr)
{
	u32 data = 0;

	if (!pAttr)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_CTRL_REG, RTL8309N_RLDP_PAGE, &data);
	pAttr->attr1 = (data >> RTL8309N_RLDP_ATTR1_SHIFT) & RTL8309N_RLDP_ATTR12_MASK;
	pAttr->attr2 = (data >> RTL8309N_RLDP_ATTR2_SHIFT) & RTL8309N_RLDP_ATTR12_MASK;
	pAttr->attr3 = (data >> RTL8309N_RLDP_ATTR3_SHIFT) & RTL8309N_RLDP_ATTR3_MASK;
	rtl8309n_mac_regs_get(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_MAC_REG, RTL8309N_RLDP_PAGE, 0,
			      pAttr->mac);
	return RT_ERR_OK;
}

s32 rtl8309n_rldp_protocol_set(u32 protocol)
{
	rtl8309n_reg_set(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_PROTO_REG, RTL8309N_RLDP_PAGE,
			 (u16)(protocol & RLDP_PROTOCOL_MASK));
	return RT_ERR_OK;
}

s32 rtl8309n_rldp_protocol_get(u32 *pProtocol)
{
	return rtl8309n_reg_get_low(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_PROTO_REG, RTL8309N_RLDP_PAGE,
				    16, pProtocol);
}

s32 rtl8309n_rldp_loopStatus_get(u32 *pStatus)
{
	return rtl8309n_reg_get_low(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_STATUS_REG,
				    RTL8309N_RLDP_PAGE, 16, pStatus);
}
