// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ spanning tree: one state per port.  The chip has a single tree, so
 * the instance argument is not looked at.
 */
#include "rtk_internal.h"

rtk_api_ret_t rtk_stp_mstpState_set(rtk_stp_msti_id_t msti, rtk_port_t port,
				    rtk_stp_state_t state)
{
	(void)msti;
	return rtk_chk_port(port) ?:
	       rtk_chk_max(state, RTK_STP_STATE_FORWARDING, RT_ERR_MSTP_STATE) ?:
	       rtk_ret(rtl8309n_stp_set(port, state));
}

rtk_api_ret_t rtk_stp_mstpState_get(rtk_stp_msti_id_t msti, rtk_port_t port,
				    rtk_stp_state_t *pstate)
{
	/* stays out of range unless the register layer delivers a state */
	u32 state = ~0u;
	rtk_api_ret_t ret;

	(void)msti;
	ret = rtk_chk_port(port) ?: rtk_chk_ptr(pstate) ?: rtk_ret(rtl8309n_stp_get(port, &state));
	if (ret == RT_ERR_OK && state <= RTK_STP_STATE_FORWARDING)
		*pstate = state;
	return ret;
}
