// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ rate API: per-port ingress and egress bandwidth limits.
 *
 * A rate is a count of the chip's 64 kbit/s steps, passed to the chip
 * unchanged: 1600 steps (102.4 Mbit/s) cover a 100 Mbit/s port; ports 0
 * and 8 take up to 3200.
 */
#include "rtk_internal.h"

/*
 * Both directions: leaky bucket on, rate, then whether the inter-frame gap
 * counts.  Only the ingress bucket switch reports a failure; the egress
 * one is not checked.
 */
static rtk_api_ret_t rate_set(rtk_port_t port, rtk_rate_t rate, rtk_enable_t ifg_include,
			      u32 dir, rtk_api_ret_t rate_err)
{
	rtk_api_ret_t ret;
	s32 bucket;

	ret = rtk_chk_port(port) ?: rtk_chk_max(rate, RTL8309N_QOS_RATE_MAX(port), rate_err) ?:
	      rtk_chk_enable(ifg_include);
	if (ret != RT_ERR_OK)
		return ret;

	bucket = rtl8309n_qos_portLeakyBktEnable_set(port, dir, RTL8309N_ENABLED);
	if (dir == RTL8309N_QOS_INGRESS && bucket != RT_ERR_OK)
		return RT_ERR_FAILED;
	ret = rtk_ret(rtl8309n_qos_portRate_set(port, rate, dir));
	if (ret != RT_ERR_OK)
		return ret;
	rtl8309n_qos_portRate_IfgIncludeEnable_set(dir, port, ifg_include);
	return RT_ERR_OK;
}

/* A failure to read the rate is passed on as the chip layer gave it. */
static rtk_api_ret_t rate_get(rtk_port_t port, rtk_rate_t *prate, rtk_enable_t *pifg_include,
			      u32 dir)
{
	u32 include = 0;
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: rtk_chk_ptr(prate) ?: rtk_chk_ptr(pifg_include) ?:
	      rtl8309n_qos_portRate_get(port, prate, dir) ?:
	      rtk_ret(rtl8309n_qos_portRate_IfgIncludeEnable_get(dir, port, &include));
	if (ret == RT_ERR_OK)
		*pifg_include = rtk_flag(include);
	return ret;
}

rtk_api_ret_t rtk_rate_igrBandwidthCtrlRate_set(rtk_port_t port, rtk_rate_t rate,
						rtk_enable_t ifg_include)
{
	return rate_set(port, rate, ifg_include, RTL8309N_QOS_INGRESS, RT_ERR_INBW_RATE);
}

rtk_api_ret_t rtk_rate_egrBandwidthCtrlRate_set(rtk_port_t port, rtk_rate_t rate,
						rtk_enable_t ifg_include)
{
	return rate_set(port, rate, ifg_include, RTL8309N_QOS_EGRESS, RT_ERR_QOS_EBW_RATE);
}

rtk_api_ret_t rtk_rate_igrBandwidthCtrlRate_get(rtk_port_t port, rtk_rate_t *prate,
						rtk_enable_t *pifg_include)
{
	return rate_get(port, prate, pifg_include, RTL8309N_QOS_INGRESS);
}

rtk_api_ret_t rtk_rate_egrBandwidthCtrlRate_get(rtk_port_t port, rtk_rate_t *prate,
						rtk_enable_t *pifg_include)
{
	return rate_get(port, prate, pifg_include, RTL8309N_QOS_EGRESS);
}
