// SPDX-License-Identifier: GPL-2.0
/*
 * Wake-up block: the wake-up enables, link-change wake-up with its port
 * mask, and frame wake-up with two port masks and two flags.
 */
#include "rtl8309n_internal.h"

#define WKP_FLAG(reg, mask)						\
	RTL8309N_FIELD(RTL8309N_WKP_ADDR, reg, RTL8309N_WKP_PAGE, mask, RTL8309N_FIELD_FLAG,	\
		       RTL8309N_GLOBAL)

static const struct rtl8309n_field wkp_link_en =
	WKP_FLAG(RTL8309N_WKP_CTRL_REG, RTL8309N_WKP_CTRL_LINK_EN);
static const struct rtl8309n_field wkp_frame_en =
	WKP_FLAG(RTL8309N_WKP_CTRL_REG, RTL8309N_WKP_CTRL_FRAME_EN);
static const struct rtl8309n_field wkp_frame_status =
	WKP_FLAG(RTL8309N_WKP_FRAME_REG, RTL8309N_WKP_FRAME_STATUS);

static int wkp_bad_flag(u32 value)
{
	return value > 1;
}

/* Two flags (0 or 1) of @regad, at @first and @second, in one update. */
static void wkp_pair_set(u32 regad, u32 first, u32 second, u32 first_val, u32 second_val)
{
	rtl8309n_reg_update(RTL8309N_WKP_ADDR, regad, RTL8309N_WKP_PAGE, first | second,
			    rtl8309n_field_prep(first, first_val) |
			    rtl8309n_field_prep(second, second_val));
}

static void wkp_pair_get(u32 regad, u32 first, u32 second, u32 *pFirst, u32 *pSecond)
{
	u32 data = 0;

	rtl8309n_reg_get(RTL8309N_WKP_ADDR, regad, RTL8309N_WKP_PAGE, &data);
	*pFirst = rtl8309n_field_extract(first, data);
	*pSecond = rtl8309n_field_extract(second, data);
}

static void wkp_mask_set(u32 regad, u32 portmask)
{
	rtl8309n_reg_set(RTL8309N_WKP_ADDR, regad, RTL8309N_WKP_PAGE, (u16)portmask);
}

static void wkp_mask_get(u32 regad, u32 *pPortmask)
{
	rtl8309n_reg_get_masked(RTL8309N_WKP_ADDR, regad, RTL8309N_WKP_PAGE,
				RTL8309N_WKP_MASK_PORTS, pPortmask);
}

s32 rtl8309n_wkp_enable_set(u32 enabled1, u32 enabled2)
{
	if (wkp_bad_flag(enabled1) || wkp_bad_flag(enabled2))
		return RT_ERR_FAILED;
	wkp_pair_set(RTL8309N_WKP_CTRL_REG, RTL8309N_WKP_CTRL_EN1, RTL8309N_WKP_CTRL_EN2,
		     enabled1, enabled2);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_enable_get(u32 *pEnabled1, u32 *pEnabled2)
{
	if (!pEnabled1 || !pEnabled2)
		return RT_ERR_FAILED;
	wkp_pair_get(RTL8309N_WKP_CTRL_REG, RTL8309N_WKP_CTRL_EN1, RTL8309N_WKP_CTRL_EN2,
		     pEnabled1, pEnabled2);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_linkchngEnable_set(u32 enabled, u32 portmask)
{
	if (wkp_bad_flag(enabled) || portmask > RTL8309N_PORT_MASK_ALL)
		return RT_ERR_FAILED;
	rtl8309n_field_set(&wkp_link_en, 0, enabled);
	wkp_mask_set(RTL8309N_WKP_LINK_MASK_REG, portmask);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_linkchngEnable_get(u32 *pEnabled, u32 *pPortmask)
{
	if (!pEnabled || !pPortmask)
		return RT_ERR_FAILED;
	rtl8309n_field_get(&wkp_link_en, 0, pEnabled);
	wkp_mask_get(RTL8309N_WKP_LINK_MASK_REG, pPortmask);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_linkchangeStatus_get(u32 *pStatus)
{
	return rtl8309n_reg_get_masked(RTL8309N_WKP_ADDR, RTL8309N_WKP_LINK_STATUS_REG,
				       RTL8309N_WKP_PAGE, RTL8309N_GENMASK(15, 0), pStatus);
}

s32 rtl8309n_wkp_frameEnable_set(u32 enabled, u32 portmask1, u32 portmask2, u32 flag1, u32 flag2)
{
	if (wkp_bad_flag(enabled) || portmask1 > RTL8309N_PORT_MASK_ALL ||
	    portmask2 > RTL8309N_PORT_MASK_ALL || wkp_bad_flag(flag1) || wkp_bad_flag(flag2))
		return RT_ERR_FAILED;
	rtl8309n_field_set(&wkp_frame_en, 0, enabled);
	wkp_mask_set(RTL8309N_WKP_FRAME_MASK1_REG, portmask1);
	wkp_mask_set(RTL8309N_WKP_FRAME_MASK2_REG, portmask2);
	wkp_pair_set(RTL8309N_WKP_FRAME_REG, RTL8309N_WKP_FRAME_FLAG1, RTL8309N_WKP_FRAME_FLAG2,
		     flag1, flag2);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_frameEnable_get(u32 *pEnabled, u32 *pPortmask1, u32 *pPortmask2,
				 u32 *pFlag1, u32 *pFlag2)
{
	if (!pEnabled || !pPortmask1 || !pPortmask2 || !pFlag1 || !pFlag2)
		return RT_ERR_FAILED;
	rtl8309n_field_get(&wkp_frame_en, 0, pEnabled);
	wkp_mask_get(RTL8309N_WKP_FRAME_MASK1_REG, pPortmask1);
	wkp_mask_get(RTL8309N_WKP_FRAME_MASK2_REG, pPortmask2);
	wkp_pair_get(RTL8309N_WKP_FRAME_REG, RTL8309N_WKP_FRAME_FLAG1, RTL8309N_WKP_FRAME_FLAG2,
		     pFlag1, pFlag2);
	return RT_ERR_OK;
}

s32 rtl8309n_wkp_frameStatus_get(u32 *pStatus)
{
	if (!pStatus)
		return RT_ERR_FAILED;
	rtl8309n_field_get(&wkp_frame_status, 0, pStatus);
	return RT_ERR_OK;
}
