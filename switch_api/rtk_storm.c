// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ storm filters: four per port, with an enable, a status bit and rate
 * attributes each.
 */
#include "rtk_internal.h"

/* Every storm call checks the port, then the type (then its pointer). */
static rtk_api_ret_t storm_chk(rtk_port_t port, rtk_rate_storm_group_t storm_type)
{
	return rtk_chk_port(port) ?: rtk_chk_max(storm_type, RTK_STORM_TYPE_MAX, RT_ERR_INPUT);
}

rtk_api_ret_t rtk_storm_filterEnable_set(rtk_port_t port, rtk_rate_storm_group_t storm_type,
					 rtk_enable_t enable)
{
	return storm_chk(port, storm_type) ?:
	       rtk_ret(rtl8309n_storm_filterEnable_set(port, storm_type, rtk_flag(enable)));
}

rtk_api_ret_t rtk_storm_filterEnable_get(rtk_port_t port, rtk_rate_storm_group_t storm_type,
					 rtk_enable_t *penable)
{
	u32 layer_enable = 0;
	rtk_api_ret_t ret;

	ret = storm_chk(port, storm_type) ?: rtk_chk_ptr(penable) ?:
	      rtk_ret(rtl8309n_storm_filterEnable_get(port, storm_type, &layer_enable));
	if (ret == RT_ERR_OK)
		*penable = rtk_flag(layer_enable);
	return ret;
}

rtk_api_ret_t rtk_storm_filterAttr_set(rtk_port_t port, rtk_rate_storm_group_t storm_type,
				       rtk_storm_attr_t *pstorm_data)
{
	rtl8309n_storm_attr attr;
	rtk_api_ret_t ret;

	ret = storm_chk(port, storm_type) ?: rtk_chk_ptr(pstorm_data);
	if (ret != RT_ERR_OK)
		return ret;
	attr.ctrlFlag = pstorm_data->ctrlFlag;
	attr.rate = pstorm_data->rate;
	attr.param = pstorm_data->param;
	attr.globalFlag = rtk_flag(pstorm_data->globalFlag);
	return rtk_ret(rtl8309n_storm_filterAttr_set(port, storm_type, &attr));
}

rtk_api_ret_t rtk_storm_filterAttr_get(rtk_port_t port, rtk_rate_storm_group_t storm_type,
				       rtk_storm_attr_t *pstorm_data)
{
	rtl8309n_storm_attr attr;
	rtk_api_ret_t ret;

	ret = storm_chk(port, storm_type) ?: rtk_chk_ptr(pstorm_data) ?:
	      rtk_ret(rtl8309n_storm_filterAttr_get(port, storm_type, &attr));
	if (ret != RT_ERR_OK)
		return ret;
	pstorm_data->ctrlFlag = attr.ctrlFlag;
	pstorm_data->rate = attr.rate;
	pstorm_data->param = attr.param;
	pstorm_data->globalFlag = rtk_flag(attr.globalFlag);
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_storm_filterStatus_set(rtk_port_t port, rtk_rate_storm_group_t storm_type,
					 rtk_enable_t enable)
{
	return storm_chk(port, storm_type) ?:
	       rtk_ret(rtl8309n_storm_filterStatus_set(port, storm_type, rtk_flag(enable)));
}

rtk_api_ret_t rtk_storm_filterStatus_get(rtk_port_t port, rtk_rate_storm_group_t storm_type,
					 rtk_enable_t *penable)
{
	return storm_chk(port, storm_type) ?: rtk_chk_ptr(penable) ?:
	       rtk_ret(rtl8309n_storm_filterStatus_get(port, storm_type, penable));
}
