// SPDX-License-Identifier: GPL-2.0
/*
 * Wake-up block: the wake-up enables, link-change wake-up with its port
 * mask, and frame wake-up with two port masks and two flags.
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

#define WKP_PORTMASK_WIDTH	9

static int wkp_bad_flag(u32 value)
{
	return value > 1;
}

/* Two flags kept side by side in bits 0 and 1 of @regad, one update. */
static void wkp_pair_set(u32 regad, u32 first, u32 second)
{
	rtl8309n_lsb_field_set(RTL8309N_WKP_ADDR, regad, RTL8309N_WKP_PAGE, 0, 2,
			   first | (second << 1));
}

static void wkp_pair_get(u32 regad, u32 *pFirst, u32 *pSecond)
{
	u32 data = 0;

	rtl8309n_reg_get(RTL8309N_WKP_ADDR, regad, RTL8309N_WKP_PAGE, &data);
	*pFirst = data & 1;
	*pSecond = (data >> 1) & 1;
}

static void wkp_ctrl_bit_set(u32 bit, u32 value)
{
	rtl8309n_regbit_set(RTL8309N_WKP_ADDR, RTL8309N_WKP_CTRL_REG, bit, RTL8309N_WKP_PAGE,
			    value);
}

static void wkp_bit_get(u32 regad, u32 bit, u32 *pValue)
{
	rtl8309n_regbit_get(RTL8309N_WKP_ADDR, regad, bit, RTL8309N_WKP_PAGE, pValue);
}

static void wkp_mask_set(u32 regad, u32 portmask)
{
	rtl8309n_reg_set(RTL8309N_WKP_ADDR, regad, RTL8309N_WKP_PAGE, (u16)portmask);
}

static void wkp_mask_get(u32 regad, u32 *pPortmask)
{
	rtl8309n_reg_get_low(RTL8309N_WKP_ADDR, regad, RTL8309N_WKP_PAGE, WKP_PORTMASK_WIDTH,
			     pPortmask);
}

s32 rtl8309n_wkp_enable_set(u32 enabled1, u32 enabled2)
{
	if (wkp_bad_flag(enabled1) || wkp_bad_flag(enabled2))
		return RT_ERR_FAILED;
	wkp_pair_set(RTL8309N_WKP_CTRL_REG, enabled1, enabled2);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_enable_get(u32 *pEnabled1, u32 *pEnabled2)
{
	if (!pEnabled1 || !pEnabled2)
		return RT_ERR_FAILED;
	wkp_pair_get(RTL8309N_WKP_CTRL_REG, pEnabled1, pEnabled2);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_linkchngEnable_set(u32 enabled, u32 portmask)
{
	if (wkp_bad_flag(enabled) || portmask > RTL8309N_PORT_MASK_ALL)
		return RT_ERR_FAILED;
	wkp_ctrl_bit_set(RTL8309N_WKP_LINK_EN_BIT, enabled);
	wkp_mask_set(RTL8309N_WKP_LINK_MASK_REG, portmask);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_linkchngEnable_get(u32 *pEnabled, u32 *pPortmask)
{
	if (!pEnabled || !pPortmask)
		return RT_ERR_FAILED;
	wkp_bit_get(RTL8309N_WKP_CTRL_REG, RTL8309N_WKP_LINK_EN_BIT, pEnabled);
	wkp_mask_get(RTL8309N_WKP_LINK_MASK_REG, pPortmask);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_linkchangeStatus_get(u32 *pStatus)
{
	return rtl8309n_reg_get_low(RTL8309N_WKP_ADDR, RTL8309N_WKP_LINK_STATUS_REG,
				    RTL8309N_WKP_PAGE, 16, pStatus);
}

s32 rtl8309n_wkp_frameEnable_set(u32 enabled, u32 portmask1, u32 portmask2, u32 flag1, u32 flag2)
{
	if (wkp_bad_flag(enabled) || portmask1 > RTL8309N_PORT_MASK_ALL ||
	    portmask2 > RTL8309N_PORT_MASK_ALL || wkp_bad_flag(flag1) || wkp_bad_flag(flag2))
		return RT_ERR_FAILED;
	wkp_ctrl_bit_set(RTL8309N_WKP_FRAME_EN_BIT, enabled);
	wkp_mask_set(RTL8309N_WKP_FRAME_MASK1_REG, portmask1);
	wkp_mask_set(RTL8309N_WKP_FRAME_MASK2_REG, portmask2);
	wkp_pair_set(RTL8309N_WKP_FRAME_REG, flag1, flag2);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_frameEnable_get(u32 *pEnabled, u32 *pPortmask1, u32 *pPortmask2,
				 u32 *pFlag1, u32 *pFlag2)
{
	if (!pEnabled || !pPortmask1 || !pPortmask2 || !pFlag1 || !pFlag2)
		return RT_ERR_FAILED;
	wkp_bit_get(RTL8309N_WKP_CTRL_REG, RTL8309N_WKP_FRAME_EN_BIT, pEnabled);
	wkp_mask_get(RTL8309N_WKP_FRAME_MASK1_REG, pPortmask1);
	wkp_mask_get(RTL8309N_WKP_FRAME_MASK2_REG, pPortmask2);
	wkp_pair_get(RTL8309N_WKP_FRAME_REG, pFlag1, pFlag2);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_frameStatus_get(u32 *pStatus)
{
	if (!pStatus)
		return RT_ERR_FAILED;
	wkp_bit_get(RTL8309N_WKP_FRAME_REG, RTL8309N_WKP_FRAME_STATUS_BIT, pStatus);
	return RT_ERR_OK;
}
