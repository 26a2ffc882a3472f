// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ port API: embedded PHY access.
 */
#include "rtk_api.h"
#include "../switch_chip/rtl8309n_regs.h"

rtk_api_ret_t rtk_port_phyReg_set(rtk_port_t port, rtk_port_phy_reg_t reg,
				  rtk_port_phy_data_t value)
{
	if (port > RTL8309N_MAX_PHY_PORT)
		return RT_ERR_PORT_ID;

	if (rtl8309n_phyReg_set(port, reg, RTL8309N_MII_PAGE, (u16)value) != RT_ERR_OK)
		return RT_ERR_FAILED;
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_port_phyReg_get(rtk_port_t port, rtk_port_phy_reg_t reg,
				  rtk_port_phy_data_t *pdata)
{
	if (port > RTL8309N_MAX_PHY_PORT)
		return RT_ERR_PORT_ID;
	if (!pdata)
		return RT_ERR_NULL_POINTER;

	if (rtl8309n_phyReg_get(port, reg, RTL8309N_MII_PAGE, pdata) != RT_ERR_OK)
		return RT_ERR_FAILED;
	return RT_ERR_OK;
}
