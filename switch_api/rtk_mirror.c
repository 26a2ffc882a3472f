// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ mirroring: port-based (rx and tx port masks) and MAC-based.
 *
 * The rx mask is the chip's mask A, the tx mask its mask B; the register
 * layer takes them in that order.
 */
#include "rtk_internal.h"

rtk_api_ret_t rtk_mirror_portBased_set(rtk_port_t mirroring_port, rtk_portmask_t *prx_mask,
				       rtk_portmask_t *ptx_mask)
{
	rtk_api_ret_t ret;

	ret = rtk_chk_port(mirroring_port) ?: rtk_chk_ptr(prx_mask) ?: rtk_chk_ptr(ptx_mask);
	if (ret != RT_ERR_OK)
		return ret;
	return rtk_chk_max(*prx_mask, RTL8309N_PORT_MASK_ALL, RT_ERR_PORT_MASK) ?:
	       rtk_chk_max(*ptx_mask, RTL8309N_PORT_MASK_ALL, RT_ERR_PORT_MASK) ?:
	       rtk_ret(rtl8309n_mirror_portBased_set(mirroring_port, *prx_mask, *ptx_mask));
}

rtk_api_ret_t rtk_mirror_portBased_get(rtk_port_t *pmirroring_port, rtk_portmask_t *prx_mask,
				       rtk_portmask_t *ptx_mask)
{
	return rtk_chk_ptr(pmirroring_port) ?: rtk_chk_ptr(prx_mask) ?: rtk_chk_ptr(ptx_mask) ?:
	       rtk_ret(rtl8309n_mirror_portBased_get(pmirroring_port, prx_mask, ptx_mask));
}

/*
 * A missing address has always been RT_ERR_FAILED here, not the null-pointer
 * code: callers test for it.
 */
rtk_api_ret_t rtk_mirror_macBased_set(const u8 *mac, rtk_enable_t enable)
{
	if (!mac)
		return RT_ERR_FAILED;
	return rtk_ret(rtl8309n_mirror_macBased_set(mac, rtk_flag(enable)));
}

/* @penable is left to the register layer, which refuses a null one. */
rtk_api_ret_t rtk_mirror_macBased_get(u8 *mac, rtk_enable_t *penable)
{
	if (!mac)
		return RT_ERR_FAILED;
	return rtk_ret(rtl8309n_mirror_macBased_get(mac, penable));
}
