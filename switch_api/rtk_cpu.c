// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ CPU-port API: the CPU port function and which port is the CPU port.
 */
#include "rtk_internal.h"

rtk_api_ret_t rtk_cpu_enable_set(rtk_enable_t enable)
{
	/* Any value but 1 switches the function off, as the chip layer does. */
	return rtk_ret_ok(rtl8309n_cpu_enable_set(enable));
}

rtk_api_ret_t rtk_cpu_enable_get(rtk_enable_t *penable)
{
	u32 enabled = 0;
	rtk_api_ret_t ret;

	ret = rtk_chk_ptr(penable) ?: rtk_ret(rtl8309n_cpu_enable_get(&enabled));
	if (ret == RT_ERR_OK)
		*penable = rtk_flag(enabled);
	return ret;
}

rtk_api_ret_t rtk_cpu_tagPort_set(rtk_port_t port, rtk_cpu_insert_t mode)
{
	return rtk_chk_port(port) ?:
	       rtk_ret(rtl8309n_cpu_port_set(port, mode == CPU_INSERT_TO_ALL));
}

rtk_api_ret_t rtk_cpu_tagPort_get(rtk_port_t *pport, rtk_cpu_insert_t *pmode)
{
	u32 insert = 0;
	rtk_api_ret_t ret;

	ret = rtk_chk_ptr(pport) ?: rtk_chk_ptr(pmode) ?:
	      rtk_ret(rtl8309n_cpu_port_get(pport, &insert));
	if (ret != RT_ERR_OK)
		return ret;
	if (*pport == RTL8309N_CPU_PORT_NONE)
		return RT_ERR_FAILED;
	*pmode = insert == RTL8309N_ENABLED ? CPU_INSERT_TO_ALL : CPU_INSERT_TO_NONE;
	return RT_ERR_OK;
}
