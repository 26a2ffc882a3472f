// SPDX-License-Identifier: GPL-2.0
/*
 * ISP mode: the WAN port and the MAC address the chip uses on it.
 */
#include "rtl8309n_internal.h"

/* One past the last port: the chip library lets 9 through. */
#define ISP_WAN_PORT_MAX	(RTL8309N_MAX_PORT + 1)

static const struct rtl8309n_field isp_enable =
	RTL8309N_FIELD(RTL8309N_ISP_ADDR, RTL8309N_ISP_CTRL_REG, RTL8309N_ISP_PAGE,
		       RTL8309N_ISP_CTRL_EN, RTL8309N_FIELD_FLAG, RTL8309N_GLOBAL);

s32 rtl8309n_isp_enable_set(u32 enabled)
{
	return rtl8309n_field_set(&isp_enable, 0, enabled);
}

s32 rtl8309n_isp_enable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&isp_enable, 0, pEnabled);
}

s32 rtl8309n_isp_mac_set(const u16 *pMac)
{
	u32 i;

	if (!pMac)
		return RT_ERR_FAILED;
	for (i = 0; i < 3; i++)
		rtl8309n_reg_set(RTL8309N_ISP_ADDR, RTL8309N_ISP_MAC_REG + i, RTL8309N_ISP_PAGE,
				 pMac[i]);
	return RT_ERR_OK;
}

s32 rtl8309n_isp_mac_get(u8 *pMac)
{
	if (!pMac)
		return RT_ERR_FAILED;
	rtl8309n_mac_regs_get(RTL8309N_ISP_ADDR, RTL8309N_ISP_MAC_REG, RTL8309N_ISP_PAGE, 0, pMac);
	return RT_ERR_OK;
}

s32 rtl8309n_isp_wanPort_set(u32 port)
{
	return rtl8309n_reg_set_max(RTL8309N_ISP_ADDR, RTL8309N_ISP_WAN_REG, RTL8309N_ISP_PAGE,
				    port, ISP_WAN_PORT_MAX);
}

s32 rtl8309n_isp_wanPort_get(u32 *pPort)
{
	return rtl8309n_reg_get_masked(RTL8309N_ISP_ADDR, RTL8309N_ISP_WAN_REG, RTL8309N_ISP_PAGE,
				       RTL8309N_ISP_WAN_PORT, pPort);
}
