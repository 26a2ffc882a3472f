// SPDX-License-Identifier: GPL-2.0
/*
 * Port- and MAC-based mirroring of the RTL8309N family, SMI address 5,
 * page 15.
 *
 * Mask A (register 18) and mask B (register 17) are carried in that order;
 * which of them picks received and which transmitted traffic is the
 * chip's business, the layer only stores them.
 */
#include "rtl8309n_internal.h"

#define MIRROR_FIELD(reg, mask, kind)					\
	RTL8309N_FIELD(RTL8309N_MIRROR_ADDR, reg, RTL8309N_MIRROR_PAGE, mask, kind,	\
		       RTL8309N_GLOBAL)
#define MIRROR_CTRL_FIELD(mask, kind)	MIRROR_FIELD(RTL8309N_MIRROR_CTRL_REG, mask, kind)

static const struct rtl8309n_field mirror_port =
	MIRROR_CTRL_FIELD(RTL8309N_MIRROR_CTRL_PORT, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field mirror_mac_en =
	MIRROR_CTRL_FIELD(RTL8309N_MIRROR_CTRL_MAC_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field mirror_self_filter =
	MIRROR_CTRL_FIELD(RTL8309N_MIRROR_CTRL_SELF_FILTER, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field mirror_pause =
	MIRROR_CTRL_FIELD(RTL8309N_MIRROR_CTRL_PAUSE, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field mirror_mask_a =
	MIRROR_FIELD(RTL8309N_MIRROR_MASK_A_REG, RTL8309N_MIRROR_MASK_PORTS, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field mirror_mask_b =
	MIRROR_FIELD(RTL8309N_MIRROR_MASK_B_REG, RTL8309N_MIRROR_MASK_PORTS, RTL8309N_FIELD_VALUE);

s32 rtl8309n_mirror_selfFilterEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&mirror_self_filter, 0, enabled);
}

s32 rtl8309n_mirror_selfFilterEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&mirror_self_filter, 0, penabled);
}

s32 rtl8309n_mirror_pauseFrameEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&mirror_pause, 0, enabled);
}

s32 rtl8309n_mirror_pauseFrameEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&mirror_pause, 0, penabled);
}

/* Setting a mirror port always turns self-filtering on, whatever it was. */
s32 rtl8309n_mirror_portBased_set(u32 mirport, u32 maskA, u32 maskB)
{
	if (maskA > RTL8309N_PORT_MASK_ALL || maskB > RTL8309N_PORT_MASK_ALL ||
	    mirport > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;

	rtl8309n_field_set(&mirror_port, 0, mirport);
	rtl8309n_field_set(&mirror_self_filter, 0, RTL8309N_ENABLED);
	rtl8309n_field_set(&mirror_mask_a, 0, maskA);
	rtl8309n_field_set(&mirror_mask_b, 0, maskB);
	return RT_ERR_OK;
}

s32 rtl8309n_mirror_portBased_get(u32 *pmirport, u32 *pmaskA, u32 *pmaskB)
{
	if (!pmirport || !pmaskA || !pmaskB)
		return RT_ERR_FAILED;

	rtl8309n_field_get(&mirror_port, 0, pmirport);
	rtl8309n_field_get(&mirror_mask_a, 0, pmaskA);
	rtl8309n_field_get(&mirror_mask_b, 0, pmaskB);
	return RT_ERR_OK;
}

/* The enable bit goes first, then the address, one plain write per byte pair. */
s32 rtl8309n_mirror_macBased_set(const u8 *mac, u32 enabled)
{
	if (!mac)
		return RT_ERR_FAILED;

	rtl8309n_field_set(&mirror_mac_en, 0, enabled);
	rtl8309n_mac_regs_set(RTL8309N_MIRROR_ADDR, RTL8309N_MIRROR_MAC_REG, RTL8309N_MIRROR_PAGE,
			      0, mac);
	return RT_ERR_OK;
}

s32 rtl8309n_mirror_macBased_get(u8 *mac, u32 *penabled)
{
	if (!mac || !penabled)
		return RT_ERR_FAILED;

	rtl8309n_field_get(&mirror_mac_en, 0, penabled);
	rtl8309n_mac_regs_get(RTL8309N_MIRROR_ADDR, RTL8309N_MIRROR_MAC_REG, RTL8309N_MIRROR_PAGE,
			      0, mac);
	return RT_ERR_OK;
}
