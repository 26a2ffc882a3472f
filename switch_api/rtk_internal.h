/* SPDX-License-Identifier: GPL-2.0 */
/*
 * Argument checks shared by the rtk_ block files.
 *
 * Each check returns RT_ERR_OK or its own result code, so a call's checks
 * chain with the GNU "?:" operator in the order the call defines them; the
 * first failing check ends the chain before the register layer is reached:
 *
 *	return rtk_chk_port(port) ?: rtk_chk_ptr(pout) ?:
 *	       rtk_ret(rtl8309n_..._get(port, pout));
 */
#ifndef RTK_INTERNAL_H
#define RTK_INTERNAL_H

#include "rtk_api.h"

/* Any register-layer failure reaches the API's callers as RT_ERR_FAILED. */
static inline rtk_api_ret_t rtk_ret(s32 layer_ret)
{
	return layer_ret == RT_ERR_OK ? RT_ERR_OK : RT_ERR_FAILED;
}

/* @value above @max gives @err. */
static inline rtk_api_ret_t rtk_chk_max(u32 value, u32 max, rtk_api_ret_t err)
{
	return value > max ? err : RT_ERR_OK;
}

/* Any switch port, 0..8. */
static inline rtk_api_ret_t rtk_chk_port(rtk_port_t port)
{
	return rtk_chk_max(port, RTL8309N_MAX_PORT, RT_ERR_PORT_ID);
}

/* A port with an embedded PHY, 0..7. */
static inline rtk_api_ret_t rtk_chk_phy_port(rtk_port_t port)
{
	return rtk_chk_max(port, RTL8309N_MAX_PHY_PORT, RT_ERR_PORT_ID);
}

static inline rtk_api_ret_t rtk_chk_ptr(const void *p)
{
	return p ? RT_ERR_OK : RT_ERR_NULL_POINTER;
}

static inline rtk_api_ret_t rtk_chk_portmask(rtk_portmask_t mask)
{
	return rtk_chk_max(mask, RTL8309N_PORT_MASK_ALL, RT_ERR_PORT_MASK);
}

/* An enable flag as the API takes it: 0 or 1. */
static inline rtk_api_ret_t rtk_chk_enable(rtk_enable_t enable)
{
	return rtk_chk_max(enable, RTL8309N_ENABLED, RT_ERR_ENABLE);
}

/* The register layer's enable flags are 1 or 0; anything else reads as 0. */
static inline rtk_enable_t rtk_flag(u32 layer_flag)
{
	return layer_flag == RTL8309N_ENABLED ? RTL8309N_ENABLED : RTL8309N_DISABLED;
}

/*
 * Stores an output that a call does not require: its pointer is not one of
 * the call's checks, so a null one just leaves that output out.
 */
static inline void rtk_put_opt(u32 *pout, u32 value)
{
	if (pout)
		*pout = value;
}

/*
 * A MAC argument that must be present and of kind @group (1 multicast,
 * 0 unicast); the two failure codes differ from call to call.
 */
static inline rtk_api_ret_t rtk_chk_mac(const u8 *mac, int group, rtk_api_ret_t null_err,
					rtk_api_ret_t kind_err)
{
	if (!mac)
		return null_err;
	return rtl8309n_mac_is_mcast(mac) == group ? RT_ERR_OK : kind_err;
}

/*
 * A plain register write whose result the call does not report: once its
 * checks have passed, such a call always succeeds.
 */
static inline rtk_api_ret_t rtk_ret_ok(s32 layer_ret)
{
	(void)layer_ret;
	return RT_ERR_OK;
}

#endif /* RTK_INTERNAL_H */
