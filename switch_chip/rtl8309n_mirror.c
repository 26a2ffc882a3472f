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
#include "rtl8309n_regs.h"

enum mirror_field_id {
	MIRROR_F_PORT,
	MIRROR_F_MAC_EN,
	MIRROR_F_SELF_FILTER,
	MIRROR_F_PAUSE,
	MIRROR_F_MASK_B,
	MIRROR_F_MASK_A,
};

#define MIRROR_FIELD(reg, lsb, width)	\
	RTL8309N_GLOBAL_FIELD(RTL8309N_MIRROR_ADDR, reg, RTL8309N_MIRROR_PAGE, lsb, width)

static const struct rtl8309n_regfield mirror_fields[] = {
	[MIRROR_F_PORT] = MIRROR_FIELD(RTL8309N_MIRROR_CTRL_REG, RTL8309N_MIRROR_PORT_LSB,
				       RTL8309N_MIRROR_PORT_WIDTH),
	[MIRROR_F_MAC_EN] = MIRROR_FIELD(RTL8309N_MIRROR_CTRL_REG, RTL8309N_MIRROR_MAC_EN_BIT, 1),
	[MIRROR_F_SELF_FILTER] = MIRROR_FIELD(RTL8309N_MIRROR_CTRL_REG,
					      RTL8309N_MIRROR_SELF_FILTER_BIT, 1),
	[MIRROR_F_PAUSE] = MIRROR_FIELD(RTL8309N_MIRROR_CTRL_REG, RTL8309N_MIRROR_PAUSE_BIT, 1),
	[MIRROR_F_MASK_B] = MIRROR_FIELD(RTL8309N_MIRROR_MASK_B_REG, 0, RTL8309N_MIRROR_MASK_WIDTH),
	[MIRROR_F_MASK_A] = MIRROR_FIELD(RTL8309N_MIRROR_MASK_A_REG, 0, RTL8309N_MIRROR_MASK_WIDTH),
};

static s32 mirror_set(enum mirror_field_id id, u32 value)
{
	return rtl8309n_regfield_set(&mirror_fields[id], 0, value);
}

static s32 mirror_get(enum mirror_field_id id, u32 *pvalue)
{
	return rtl8309n_regfield_get(&mirror_fields[id], 0, pvalue);
}

RTL8309N_GLOBAL_ACCESSORS(mirror_selfFilterEnable, u32, mirror_fields[MIRROR_F_SELF_FILTER])
RTL8309N_GLOBAL_ACCESSORS(mirror_pauseFrameEnable, u32, mirror_fields[MIRROR_F_PAUSE])

/* Setting a mirror port always turns self-filtering on, whatever it was. */
s32 rtl8309n_mirror_portBased_set(u32 mirport, u32 maskA, u32 maskB)
{
	if (maskA > RTL8309N_PORT_MASK_ALL || maskB > RTL8309N_PORT_MASK_ALL ||
	    mirport > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;

	mirror_set(MIRROR_F_PORT, mirport);
	mirror_set(MIRROR_F_SELF_FILTER, RTL8309N_ENABLED);
	mirror_set(MIRROR_F_MASK_A, maskA);
	mirror_set(MIRROR_F_MASK_B, maskB);
	return RT_ERR_OK;
}

s32 rtl8309n_mirror_portBased_get(u32 *pmirport, u32 *pmaskA, u32 *pmaskB)
{
	if (!pmirport || !pmaskA || !pmaskB)
		return RT_ERR_FAILED;

	mirror_get(MIRROR_F_PORT, pmirport);
	mirror_get(MIRROR_F_MASK_A, pmaskA);
	mirror_get(MIRROR_F_MASK_B, pmaskB);
	return RT_ERR_OK;
}

/* The enable bit goes first, then the address, one plain write per byte pair. */
s32 rtl8309n_mirror_macBased_set(const u8 *mac, u32 enabled)
{
	if (!mac)
		return RT_ERR_FAILED;

	mirror_set(MIRROR_F_MAC_EN, enabled);
	rtl8309n_mac_regs_set(RTL8309N_MIRROR_ADDR, RTL8309N_MIRROR_MAC_REG, RTL8309N_MIRROR_PAGE,
			      0, mac);
	return RT_ERR_OK;
}

s32 rtl8309n_mirror_macBased_get(u8 *mac, u32 *penabled)
{
	if (!mac || !penabled)
		return RT_ERR_FAILED;

	mirror_get(MIRROR_F_MAC_EN, penabled);
	rtl8309n_mac_regs_get(RTL8309N_MIRROR_ADDR, RTL8309N_MIRROR_MAC_REG, RTL8309N_MIRROR_PAGE,
			      0, mac);
	return RT_ERR_OK;
}
