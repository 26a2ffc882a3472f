// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ per-port counters: reading one counter, resetting a port's counters.
 */
#include "rtk_internal.h"

rtk_api_ret_t rtk_mib_get(rtk_port_t port, rtk_mib_counter_t counter, u32 *cntVal)
{
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: rtk_chk_max(counter, RTK_MIB_PKT_LAST, RT_ERR_INPUT) ?:
	      rtk_chk_ptr(cntVal);
	if (ret != RT_ERR_OK)
		return ret;

	switch (counter) {
	case RTK_MIB_TX_BYTES:
	case RTK_MIB_RX_BYTES:
		return rtk_ret(rtl8309n_mib_byteCnt_get(port, counter, cntVal));
	case RTK_MIB_TX_BYTES + 1:
	case RTK_MIB_RX_BYTES + 1:
		/* the upper halves of the byte counters come with them */
		return RT_ERR_OK;
	default:
		return rtk_ret(rtl8309n_mib_pktCnt_get(port, counter, &cntVal[0]));
	}
}

rtk_api_ret_t rtk_stat_port_reset(rtk_port_t port)
{
	return rtk_chk_port(port) ?: rtk_stat_portCntr_reset(port);
}

rtk_api_ret_t rtk_stat_portCntr_reset(rtk_port_t port)
{
	if (rtl8309n_mib_reset(port) != RT_ERR_OK)
		return RT_ERR_STAT_PORT_CNTR_FAIL;
	return RT_ERR_OK;
}
