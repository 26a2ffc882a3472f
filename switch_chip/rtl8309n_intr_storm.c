// SPDX-License-Identifier: GPL-2.0
/*
 * Interrupt controller (global enable, source mask, status) and the
 * per-port storm filters.
 *
 * Each port has three filter blocks of a control, a rate and a second value
 * register; storm types 1 and 2 share the middle block, whose type-select
 * bit says which of the two it currently serves.
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

s32 rtl8309n_intr_enable_set(u32 enabled, u32 mask)
{
	if (mask > RTL8309N_INTR_MASK_ALL)
		return RT_ERR_FAILED;

	/* A flag other than 0 or 1 updates the mask only. */
	if (enabled == RTL8309N_DISABLED || enabled == RTL8309N_ENABLED)
		rtl8309n_regbit_set(RTL8309N_INTR_ADDR, RTL8309N_INTR_CTRL_REG,
				    RTL8309N_INTR_GLOBAL_EN_BIT, RTL8309N_INTR_PAGE, enabled);
	rtl8309n_lsb_field_set(RTL8309N_INTR_ADDR, RTL8309N_INTR_CTRL_REG, RTL8309N_INTR_PAGE, 0,
			   RTL8309N_INTR_SOURCES, mask);
	return RT_ERR_OK;
}

s32 rtl8309n_intr_enable_get(u32 *pEnabled, u32 *pMask)
{
	if (!pEnabled || !pMask)
		return RT_ERR_FAILED;

	rtl8309n_regbit_get(RTL8309N_INTR_ADDR, RTL8309N_INTR_CTRL_REG,
			    RTL8309N_INTR_GLOBAL_EN_BIT, RTL8309N_INTR_PAGE, pEnabled);
	rtl8309n_lsb_field_get(RTL8309N_INTR_ADDR, RTL8309N_INTR_CTRL_REG, RTL8309N_INTR_PAGE, 0,
			   RTL8309N_INTR_SOURCES, pMask);
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
	return rtl8309n_reg_get_low(RTL8309N_INTR_ADDR, RTL8309N_INTR_STATUS_REG,
				    RTL8309N_INTR_PAGE, RTL8309N_INTR_SOURCES, pStatus);
}

/* Control register of each storm type's block; rate and value follow it. */
static const u8 storm_ctrl_reg[RTL8309N_STORM_TYPE_MAX + 1] = {
	RTL8309N_STORM0_CTRL_REG, RTL8309N_STORM12_CTRL_REG,
	RTL8309N_STORM12_CTRL_REG, RTL8309N_STORM3_CTRL_REG,
};

static int storm_args_bad(u32 port, u32 type)
{
	return port > RTL8309N_MAX_PORT || type > RTL8309N_STORM_TYPE_MAX;
}

static int storm_type_shared(u32 type)
{
	return storm_ctrl_reg[type] == RTL8309N_STORM12_CTRL_REG;
}

/* Point the shared block at type 1 or type 2. */
static void storm_type_select(u32 port, u32 type)
{
	rtl8309n_regbit_set(port, RTL8309N_STORM12_CTRL_REG, RTL8309N_STORM_TYPESEL_BIT,
			    RTL8309N_STORM_PAGE, type == 2);
}

static void storm_ctrl_bit_set(u32 port, u32 type, u32 bit, u32 value)
{
	rtl8309n_regbit_set(port, storm_ctrl_reg[type], bit, RTL8309N_STORM_PAGE, value);
}

static u32 storm_ctrl_bit_get(u32 port, u32 type, u32 bit)
{
	u32 value = 0;

	rtl8309n_regbit_get(port, storm_ctrl_reg[type], bit, RTL8309N_STORM_PAGE, &value);
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

static const struct rtl8309n_regfield storm_global =
	RTL8309N_GLOBAL_BIT(RTL8309N_STORM_GLB_ADDR, RTL8309N_STORM_GLB_REG,
			    RTL8309N_STORM_GLB_PAGE, RTL8309N_STORM_GLB_BIT, RTL8309N_ACTIVE_HIGH);

/* Enabling type 1 or 2 takes the shared filter over from the other one. */
s32 rtl8309n_storm_filterEnable_set(u32 port, u32 type, u32 enabled)
{
	if (storm_args_bad(port, type))
		return RT_ERR_FAILED;

	if (storm_type_shared(type))
		storm_type_select(port, type);
	storm_ctrl_bit_set(port, type, RTL8309N_STORM_EN_BIT, enabled == RTL8309N_ENABLED);
	return RT_ERR_OK;
}

/* Type 1 or 2 reads as disabled while the shared filter serves the other. */
s32 rtl8309n_storm_filterEnable_get(u32 port, u32 type, u32 *pEnabled)
{
	u32 data;

	if (!pEnabled || storm_args_bad(port, type))
		return RT_ERR_FAILED;

	data = 0;
	rtl8309n_reg_get(port, storm_ctrl_reg[type], RTL8309N_STORM_PAGE, &data);
	if (storm_type_shared(type) &&
	    ((data >> RTL8309N_STORM_TYPESEL_BIT) & 1) != (type == 2))
		*pEnabled = 0;
	else
		*pEnabled = (data >> RTL8309N_STORM_EN_BIT) & 1;
	return RT_ERR_OK;
}

/*
 * The writes keep the chip library's order: control bits, rate, type
 * select (shared block only), second value, and the global flag last.
 */
s32 rtl8309n_storm_filterAttr_set(u32 port, u32 type, const rtl8309n_storm_attr *pAttr)
{
	if (!pAttr || storm_args_bad(port, type))
		return RT_ERR_FAILED;

	storm_ctrl_bit_set(port, type, RTL8309N_STORM_CTRLFLAG_BIT, pAttr->ctrlFlag != 0);
	storm_ctrl_bit_set(port, type, RTL8309N_STORM_RATE_HI_BIT, (pAttr->rate >> 16) & 1);
	storm_value_set(port, type, RTL8309N_STORM_RATE_OFS,
			pAttr->rate & RTL8309N_STORM_RATE_LO_MASK);
	if (storm_type_shared(type))
		storm_type_select(port, type);
	storm_value_set(port, type, RTL8309N_STORM_PARAM_OFS, pAttr->param);
	return rtl8309n_regfield_set(&storm_global, 0, pAttr->globalFlag);
}

/* Types 1 and 2 read the same attributes whichever the filter serves. */
s32 rtl8309n_storm_filterAttr_get(u32 port, u32 type, rtl8309n_storm_attr *pAttr)
{
	if (!pAttr || storm_args_bad(port, type))
		return RT_ERR_FAILED;

	pAttr->ctrlFlag = storm_ctrl_bit_get(port, type, RTL8309N_STORM_CTRLFLAG_BIT);
	pAttr->rate = storm_ctrl_bit_get(port, type, RTL8309N_STORM_RATE_HI_BIT) << 16;
	pAttr->rate |= storm_value_get(port, type, RTL8309N_STORM_RATE_OFS);
	pAttr->param = storm_value_get(port, type, RTL8309N_STORM_PARAM_OFS);
	return rtl8309n_regfield_get(&storm_global, 0, &pAttr->globalFlag);
}

/* Status goes to whichever type the shared block serves: no type select. */
s32 rtl8309n_storm_filterStatus_set(u32 port, u32 type, u32 enabled)
{
	if (storm_args_bad(port, type))
		return RT_ERR_FAILED;
	storm_ctrl_bit_set(port, type, RTL8309N_STORM_STATUS_BIT, enabled == RTL8309N_ENABLED);
	return RT_ERR_OK;
}

s32 rtl8309n_storm_filterStatus_get(u32 port, u32 type, u32 *pEnabled)
{
	if (storm_args_bad(port, type) || !pEnabled)
		return RT_ERR_FAILED;
	*pEnabled = storm_ctrl_bit_get(port, type, RTL8309N_STORM_STATUS_BIT);
	return RT_ERR_OK;
}
