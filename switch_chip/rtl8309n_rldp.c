// SPDX-License-Identifier: GPL-2.0
/*
 * Loop detection: the RLDP protocol controls and the RLPP loop action.
 *
 * Most settings are single bits of one control register; the enable and
 * the storm-filter bits are disable bits in the chip.
 */
#include "rtl8309n_internal.h"

#define RLDP_ATTR12_MAX		3
/* 16 is accepted and lands on the storm-filter bit above the field. */
#define RLDP_ATTR3_MAX		16
#define RLDP_CTRL_ATTRS		(RTL8309N_RLDP_CTRL_ATTR1 | RTL8309N_RLDP_CTRL_ATTR2 |	\
				 RTL8309N_RLDP_CTRL_ATTR3)

#define RLDP_CTRL_FIELD(mask, kind)						\
	RTL8309N_FIELD(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_CTRL_REG, RTL8309N_RLDP_PAGE,	\
		       mask, kind, RTL8309N_GLOBAL)

static const struct rtl8309n_field rldp_enable =
	RLDP_CTRL_FIELD(RTL8309N_RLDP_CTRL_OFF, RTL8309N_FIELD_FLAG_INV);
static const struct rtl8309n_field rldp_pri =
	RLDP_CTRL_FIELD(RTL8309N_RLDP_CTRL_PRI_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field rldp_ttl =
	RLDP_CTRL_FIELD(RTL8309N_RLDP_CTRL_TTL_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field rldp_storm =
	RLDP_CTRL_FIELD(RTL8309N_RLDP_CTRL_STORM_OFF, RTL8309N_FIELD_FLAG_INV);
static const struct rtl8309n_field rldp_vlan_tag =
	RLDP_CTRL_FIELD(RTL8309N_RLDP_CTRL_VLANTAG_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field rldp_identifier =
	RLDP_CTRL_FIELD(RTL8309N_RLDP_CTRL_ID_EN, RTL8309N_FIELD_FLAG);
/* The RLPP action bit: set for action 0, clear for action 2. */
static const struct rtl8309n_field rlpp_forward =
	RLDP_CTRL_FIELD(RTL8309N_RLDP_CTRL_RLPP_FORWARD, RTL8309N_FIELD_FLAG);

/*
 * The chip library leaves the flag getters' pointers unchecked; a null one
 * is refused here like everywhere else rather than written through.
 */

s32 rtl8309n_rldp_enable_set(u32 enabled)
{
	return rtl8309n_field_set(&rldp_enable, 0, enabled);
}

s32 rtl8309n_rldp_enable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&rldp_enable, 0, pEnabled);
}

s32 rtl8309n_rldp_priEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&rldp_pri, 0, enabled);
}

s32 rtl8309n_rldp_priEnable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&rldp_pri, 0, pEnabled);
}

s32 rtl8309n_rldp_ttlEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&rldp_ttl, 0, enabled);
}

s32 rtl8309n_rldp_ttlEnable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&rldp_ttl, 0, pEnabled);
}

s32 rtl8309n_rldp_stormFilterEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&rldp_storm, 0, enabled);
}

s32 rtl8309n_rldp_stormFilterEnable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&rldp_storm, 0, pEnabled);
}

s32 rtl8309n_rldp_vlanTagEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&rldp_vlan_tag, 0, enabled);
}

s32 rtl8309n_rldp_vlanTagEnable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&rldp_vlan_tag, 0, pEnabled);
}

/* Unlike its siblings, this one takes any non-zero value as "enable". */
s32 rtl8309n_rldp_identifierEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&rldp_identifier, 0, enabled != 0);
}

s32 rtl8309n_rldp_identifierEnable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&rldp_identifier, 0, pEnabled);
}

s32 rtl8309n_rlpp_action_set(u32 action)
{
	return rtl8309n_field_code_set(&rlpp_forward, 0, action, RTL8309N_ACT_FORWARD,
				       RTL8309N_ACT_TRAP);
}

s32 rtl8309n_rlpp_action_get(u32 *pAction)
{
	return rtl8309n_field_code_get(&rlpp_forward, 0, pAction, RTL8309N_ACT_FORWARD,
				       RTL8309N_ACT_TRAP);
}

/* attr3 is shifted in unmasked: 16 reaches the storm-filter bit above its field. */
s32 rtl8309n_rldp_controlAttr_set(const rtl8309n_rldp_controlAttr *pAttr)
{
	if (!pAttr || pAttr->attr1 > RLDP_ATTR12_MAX || pAttr->attr2 > RLDP_ATTR12_MAX ||
	    pAttr->attr3 > RLDP_ATTR3_MAX)
		return RT_ERR_FAILED;

	rtl8309n_reg_update(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_CTRL_REG, RTL8309N_RLDP_PAGE,
			    RLDP_CTRL_ATTRS,
			    rtl8309n_field_prep(RTL8309N_RLDP_CTRL_ATTR1, pAttr->attr1) |
			    rtl8309n_field_prep(RTL8309N_RLDP_CTRL_ATTR2, pAttr->attr2) |
			    pAttr->attr3 << rtl8309n_mask_shift(RTL8309N_RLDP_CTRL_ATTR3));
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
	pAttr->attr1 = rtl8309n_field_extract(RTL8309N_RLDP_CTRL_ATTR1, data);
	pAttr->attr2 = rtl8309n_field_extract(RTL8309N_RLDP_CTRL_ATTR2, data);
	pAttr->attr3 = rtl8309n_field_extract(RTL8309N_RLDP_CTRL_ATTR3, data);
	rtl8309n_mac_regs_get(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_MAC_REG, RTL8309N_RLDP_PAGE, 0,
			      pAttr->mac);
	return RT_ERR_OK;
}

/* Written as a byte, read back whole. */
s32 rtl8309n_rldp_protocol_set(u32 protocol)
{
	rtl8309n_reg_set(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_PROTO_REG, RTL8309N_RLDP_PAGE,
			 (u16)rtl8309n_field_prep(RTL8309N_RLDP_PROTO, protocol));
	return RT_ERR_OK;
}

s32 rtl8309n_rldp_protocol_get(u32 *pProtocol)
{
	return rtl8309n_reg_get_masked(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_PROTO_REG,
				       RTL8309N_RLDP_PAGE, RTL8309N_GENMASK(15, 0), pProtocol);
}

s32 rtl8309n_rldp_loopStatus_get(u32 *pStatus)
{
	return rtl8309n_reg_get_masked(RTL8309N_RLDP_ADDR, RTL8309N_RLDP_STATUS_REG,
				       RTL8309N_RLDP_PAGE, RTL8309N_GENMASK(15, 0), pStatus);
}
