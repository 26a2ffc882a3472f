// SPDX-License-Identifier: GPL-2.0
/*
 * Interrupt controller (global enable, source mask, status) and the
 * per-port storm filters.
 *
 * Each port has three filters of a control, a rate and a second value
 * register; storm types 1 and 2 share the middle one, whose type-select
 * bit says which of the two it currently serves.
 */
#include "rtl8309n_internal.h"

s32 rtl8309n_intr_enable_set(u32 enabled, u32 mask)
{
	if (mask > RTL8309N_INTR_MASK_ALL)
		return RT_ERR_FAILED;

	/* A flag other than 0 or 1 updates the mask only. */
	if (enabled == RTL8309N_DISABLED || enabled == RTL8309N_ENABLED)
		rtl8309n_bits_set(RTL8309N_INTR_ADDR, RTL8309N_INTR_CTRL_REG, RTL8309N_INTR_PAGE,
				  RTL8309N_INTR_CTRL_EN, enabled);
	rtl8309n_bits_set(RTL8309N_INTR_ADDR, RTL8309N_INTR_CTRL_REG, RTL8309N_INTR_PAGE,
			  RTL8309N_INTR_CTRL_SOURCES, mask);
	return RT_ERR_OK;
}

s32 rtl8309n_intr_enable_get(u32 *pEnabled, u32 *pMask)
{
	if (!pEnabled || !pMask)
		return RT_ERR_FAILED;

	rtl8309n_bits_get(RTL8309N_INTR_ADDR, RTL8309N_INTR_CTRL_REG, RTL8309N_INTR_PAGE,
			  RTL8309N_INTR_CTRL_EN, pEnabled);
	rtl8309n_bits_get(RTL8309N_INTR_ADDR, RTL8309N_INTR_CTRL_REG, RTL8309N_INTR_PAGE,
			  RTL8309N_INTR_CTRL_SOURCES, pMask);
	return RT_ERR_OK;
}

/*
 * The value goes to the whole status register; whether the chip treats
 * the written ones as acknowledgements is its own business.
 */
s32 rtl8309n_intr_status_set(u32 status)
{
	return rtl8309n_reg_set_max(RTL8309N_INTR_ADDR, RTL8309N_INTR_STATUS_REG,
				    RTL8309N_INTR_PAGE, status, RTL8309N_INTR_MASK_ALL);
}

s32 rtl8309n_intr_status_get(u32 *pStatus)
{
	return rtl8309n_reg_get_masked(RTL8309N_INTR_ADDR, RTL8309N_INTR_STATUS_REG,
				       RTL8309N_INTR_PAGE, RTL8309N_INTR_MASK_ALL, pStatus);
}

/* Control register of each storm type's filter; rate and value follow it. */
static const u8 storm_ctrl_reg[RTL8309N_STORM_TYPE_MAX + 1] = {
	RTL8309N_STORM0_CTRL_REG, RTL8309N_STORM12_CTRL_REG,
	RTL8309N_STORM12_CTRL_REG, RTL8309N_STORM3_CTRL_REG,
};

/* A rate has 17 bits: bit 16 in the control register, bits 15..0 in the rate register. */
#define STORM_RATE_LOW_BITS	16

static const struct rtl8309n_field storm_global =
	RTL8309N_FIELD(RTL8309N_STORM_GLB_ADDR, RTL8309N_STORM_GLB_REG, RTL8309N_STORM_GLB_PAGE,
		       RTL8309N_STORM_GLB_FLAG, RTL8309N_FIELD_FLAG, RTL8309N_GLOBAL);

static int storm_args_bad(u32 port, u32 type)
{
	return port > RTL8309N_MAX_PORT || type > RTL8309N_STORM_TYPE_MAX;
}

static int storm_type_shared(u32 type)
{
	return storm_ctrl_reg[type] == RTL8309N_STORM12_CTRL_REG;
}

/* Point the shared filter at type 1 or type 2. */
static void storm_type_select(u32 port, u32 type)
{
	rtl8309n_bits_set(port, RTL8309N_STORM12_CTRL_REG, RTL8309N_STORM_PAGE,
			  RTL8309N_STORM_CTRL_TYPE2, type == 2);
}

static void storm_ctrl_set(u32 port, u32 type, u32 mask, u32 value)
{
	rtl8309n_bits_set(port, storm_ctrl_reg[type], RTL8309N_STORM_PAGE, mask, value);
}

static u32 storm_ctrl_get(u32 port, u32 type, u32 mask)
{
	u32 value = 0;

	rtl8309n_bits_get(port, storm_ctrl_reg[type], RTL8309N_STORM_PAGE, mask, &value);
	return value;
}

static void storm_value_set(u32 port, u32 type, u32 offset, u32 value)
{
	rtl8309n_reg_set(port, storm_ctrl_reg[type] + offset, RTL8309N_STORM_PAGE, (u16)value);
}

static u32 storm_value_get(u32 port, u32 type, u32 offset)
{
	u32 value = 0;

	rtl8309n_reg_get(port, storm_ctrl_reg[type] + offset, RTL8309N_STORM_PAGE, &value);
	return value;
}

/* Enabling type 1 or 2 takes the shared filter over from the other one. */
s32 rtl8309n_storm_filterEnable_set(u32 port, u32 type, u32 enabled)
{
	if (storm_args_bad(port, type))
		return RT_ERR_FAILED;

	if (storm_type_shared(type))
		storm_type_select(port, type);
	storm_ctrl_set(port, type, RTL8309N_STORM_CTRL_EN, enabled == RTL8309N_ENABLED);
	return RT_ERR_OK;
}

/* Type 1 or 2 reads as disabled while the shared filter serves the other. */
s32 rtl8309n_storm_filterEnable_get(u32 port, u32 type, u32 *pEnabled)
{
	u32 type2 = type == 2;
	u32 data;

	if (!pEnabled || storm_args_bad(port, type))
		return RT_ERR_FAILED;

	data = 0;
	rtl8309n_reg_get(port, storm_ctrl_reg[type], RTL8309N_STORM_PAGE, &data);
	if (storm_type_shared(type) &&
	    rtl8309n_field_extract(RTL8309N_STORM_CTRL_TYPE2, data) != type2)
		*pEnabled = 0;
	else
		*pEnabled = rtl8309n_field_extract(RTL8309N_STORM_CTRL_EN, data);
	return RT_ERR_OK;
}

/*
 * The writes keep the chip library's order: control bits, rate, type
 * select (shared filter only), second value, and the global flag last.
 */
s32 rtl8309n_storm_filterAttr_set(u32 port, u32 type, const rtl8309n_storm_attr *pAttr)
{
	if (!pAttr || storm_args_bad(port, type))
		return RT_ERR_FAILED;

	storm_ctrl_set(port, type, RTL8309N_STORM_CTRL_FLAG, pAttr->ctrlFlag != 0);
	storm_ctrl_set(port, type, RTL8309N_STORM_CTRL_RATE_BIT16,
		       (pAttr->rate >> STORM_RATE_LOW_BITS) & 1);
	storm_value_set(port, type, RTL8309N_STORM_RATE_OFS, (u16)pAttr->rate);
	if (storm_type_shared(type))
		storm_type_select(port, type);
	storm_value_set(port, type, RTL8309N_STORM_PARAM_OFS, pAttr->param);
	return rtl8309n_field_set(&storm_global, 0, pAttr->globalFlag);
}

/* Types 1 and 2 read the same attributes whichever the filter serves. */
s32 rtl8309n_storm_filterAttr_get(u32 port, u32 type, rtl8309n_storm_attr *pAttr)
{
	if (!pAttr || storm_args_bad(port, type))
		return RT_ERR_FAILED;

	pAttr->ctrlFlag = storm_ctrl_get(port, type, RTL8309N_STORM_CTRL_FLAG);
	pAttr->rate = storm_ctrl_get(port, type, RTL8309N_STORM_CTRL_RATE_BIT16) <<
		      STORM_RATE_LOW_BITS;
	pAttr->rate |= storm_value_get(port, type, RTL8309N_STORM_RATE_OFS);
	pAttr->param = storm_value_get(port, type, RTL8309N_STORM_PARAM_OFS);
	return rtl8309n_field_get(&storm_global, 0, &pAttr->globalFlag);
}

/* Status goes to whichever type the shared filter serves: no type select. */
s32 rtl8309n_storm_filterStatus_set(u32 port, u32 type, u32 enabled)
{
	if (storm_args_bad(port, type))
		return RT_ERR_FAILED;
	storm_ctrl_set(port, type, RTL8309N_STORM_CTRL_STATUS, enabled == RTL8309N_ENABLED);
	return RT_ERR_OK;
}

s32 rtl8309n_storm_filterStatus_get(u32 port, u32 type, u32 *pEnabled)
{
	if (storm_args_bad(port, type) || !pEnabled)
		return RT_ERR_FAILED;
	*pEnabled = storm_ctrl_get(port, type, RTL8309N_STORM_CTRL_STATUS);
	return RT_ERR_OK;
}
