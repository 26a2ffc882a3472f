// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ 802.1X: port-based and MAC-based authorisation and the handling of
 * unauthorised frames.  MAC-based authorisation is the authorised flag of
 * an address's L2 entry.
 *
 * The bounds differ on purpose between the port-based and MAC-based calls
 * (the MAC-based direction takes 2, the auth-MAC add and delete report a
 * multicast MAC with different codes); callers depend on each as it stands.
 */
#include "rtk_internal.h"

/* Abnormal-packet type of the register layer that is the unauthorised-frame action. */
#define DOT1X_ABNORMAL_TYPE	1

#define DOT1X_PORT_AUTH_MAX	2	/* 2 is taken as unauthorised */
#define DOT1X_MAC_DIR_MAX	2	/* 2 is taken as "in" */
#define DOT1X_AUTH_FID_MAX	(RTK_L2_FID_MAX + 1)

rtk_api_ret_t rtk_dot1x_unauthPacketOper_set(rtk_port_t port,
					     rtk_dot1x_unauth_action_t unauth_action)
{
	u32 layer_action = unauth_action == RTK_DOT1X_UNAUTH_TRAP_CPU ? RTL8309N_ACT_TRAP
								      : RTL8309N_ACT_DROP;

	(void)port;
	return rtk_chk_max(unauth_action, RTK_DOT1X_UNAUTH_TRAP_CPU, RT_ERR_DOT1X_UNAUTH_OPER) ?:
	       rtk_ret(rtl8309n_trap_abnormalPktAction_set(DOT1X_ABNORMAL_TYPE, layer_action));
}

rtk_api_ret_t rtk_dot1x_unauthPacketOper_get(rtk_port_t port,
					     rtk_dot1x_unauth_action_t *punauth_action)
{
	u32 layer_action = 0;
	rtk_api_ret_t ret;

	(void)port;
	ret = rtk_chk_ptr(punauth_action) ?:
	      rtk_ret(rtl8309n_trap_abnormalPktAction_get(DOT1X_ABNORMAL_TYPE, &layer_action));
	if (ret == RT_ERR_OK)
		*punauth_action = layer_action == RTL8309N_ACT_DROP ? RTK_DOT1X_UNAUTH_DROP
								       : RTK_DOT1X_UNAUTH_TRAP_CPU;
	return ret;
}

rtk_api_ret_t rtk_dot1x_portBasedEnable_set(rtk_port_t port, rtk_enable_t enable)
{
	return rtk_chk_port(port) ?: rtk_ret_ok(rtl8309n_dot1x_portBasedEnable_set(port, enable));
}

rtk_api_ret_t rtk_dot1x_portBasedEnable_get(rtk_port_t port, rtk_enable_t *penable)
{
	return rtk_chk_port(port) ?: rtk_chk_ptr(penable) ?:
	       rtk_ret(rtl8309n_dot1x_portBasedEnable_get(port, penable));
}

/*
 * The two halves of a port's port-based state, which the register layer
 * reads and writes together: an update reads both and writes both back,
 * so a failed read writes nothing.
 */
enum dot1x_port_field { DOT1X_FIELD_AUTH, DOT1X_FIELD_DIR, DOT1X_FIELDS };

static rtk_api_ret_t dot1x_port_read(rtk_port_t port, u32 state[DOT1X_FIELDS])
{
	return rtk_ret(rtl8309n_dot1x_portBased_get(port, &state[DOT1X_FIELD_AUTH],
						    &state[DOT1X_FIELD_DIR]));
}

static rtk_api_ret_t dot1x_port_update(rtk_port_t port, enum dot1x_port_field field, u32 value)
{
	u32 state[DOT1X_FIELDS] = { 0, 0 };
	rtk_api_ret_t ret = dot1x_port_read(port, state);

	if (ret != RT_ERR_OK)
		return ret;
	state[field] = value;
	return rtk_ret(rtl8309n_dot1x_portBased_set(port, state[DOT1X_FIELD_AUTH],
						    state[DOT1X_FIELD_DIR]));
}

static rtk_api_ret_t dot1x_port_get(rtk_port_t port, enum dot1x_port_field field, u32 *pout)
{
	u32 state[DOT1X_FIELDS] = { 0, 0 };
	rtk_api_ret_t ret = rtk_chk_port(port) ?: rtk_chk_ptr(pout) ?: dot1x_port_read(port, state);

	if (ret == RT_ERR_OK)
		*pout = rtk_flag(state[field]);
	return ret;
}

rtk_api_ret_t rtk_dot1x_portBasedAuthStatus_set(rtk_port_t port,
						rtk_dot1x_auth_status_t port_auth)
{
	return rtk_chk_port(port) ?:
	       rtk_chk_max(port_auth, DOT1X_PORT_AUTH_MAX, RT_ERR_DOT1X_PORTBASEDAUTH) ?:
	       dot1x_port_update(port, DOT1X_FIELD_AUTH, port_auth == RTK_DOT1X_AUTHORIZED);
}

rtk_api_ret_t rtk_dot1x_portBasedAuthStatus_get(rtk_port_t port,
						rtk_dot1x_auth_status_t *pport_auth)
{
	return dot1x_port_get(port, DOT1X_FIELD_AUTH, pport_auth);
}

rtk_api_ret_t rtk_dot1x_portBasedDirection_set(rtk_port_t port,
					       rtk_dot1x_direction_t port_direction)
{
	return rtk_chk_port(port) ?:
	       rtk_chk_max(port_direction, RTK_DOT1X_DIRECTION_IN, RT_ERR_DOT1X_PORTBASEDOPDIR) ?:
	       dot1x_port_update(port, DOT1X_FIELD_DIR, port_direction);
}

rtk_api_ret_t rtk_dot1x_portBasedDirection_get(rtk_port_t port,
					       rtk_dot1x_direction_t *pport_direction)
{
	return dot1x_port_get(port, DOT1X_FIELD_DIR, pport_direction);
}

rtk_api_ret_t rtk_dot1x_macBasedEnable_set(rtk_port_t port, rtk_enable_t enable)
{
	return rtk_chk_port(port) ?: rtk_ret_ok(rtl8309n_dot1x_macBasedEnable_set(port, enable));
}

rtk_api_ret_t rtk_dot1x_macBasedEnable_get(rtk_port_t port, rtk_enable_t *penable)
{
	return rtk_chk_port(port) ?: rtk_chk_ptr(penable) ?:
	       rtk_ret(rtl8309n_dot1x_macBasedEnable_get(port, penable));
}

rtk_api_ret_t rtk_dot1x_macBasedDirection_set(rtk_dot1x_direction_t mac_direction)
{
	return rtk_chk_max(mac_direction, DOT1X_MAC_DIR_MAX, RT_ERR_DOT1X_MACBASEDOPDIR) ?:
	       rtk_ret_ok(rtl8309n_dot1x_macBased_set(mac_direction != 0));
}

rtk_api_ret_t rtk_dot1x_macBasedDirection_get(rtk_dot1x_direction_t *pmac_direction)
{
	return rtk_chk_ptr(pmac_direction) ?: rtk_ret(rtl8309n_dot1x_macBased_get(pmac_direction));
}

/*
 * Set the authorised flag of the first way (3 down to 0) of @mac's bucket
 * that holds @mac, leaving the rest of the entry as it was.  Entries are
 * never created here.  fid 4 passes the API's check but has no bucket: the
 * hash refuses it, and that is a failure before the table is touched.
 */
static rtk_api_ret_t dot1x_auth_mark(const u8 *mac, u32 fid, u32 auth)
{
	rtl8309n_l2_ucastEntry entry;
	u32 bucket = 0, idx;
	int way;

	if (rtl8309n_l2_MacToIdx_get(mac, fid, &bucket) != RT_ERR_OK)
		return RT_ERR_FAILED;
	for (way = RTL8309N_L2_WAY_NUM - 1; way >= 0; way--) {
		idx = bucket + (u32)way * RTL8309N_L2_BUCKET_NUM;
		if (rtl8309n_l2_ucastEntry_get(idx, &entry) != RT_ERR_OK)
			return RT_ERR_FAILED;
		if (rtl8309n_mac_equal(entry.mac, mac)) {
			entry.auth = auth;
			return rtk_ret(rtl8309n_l2_ucastEntry_set(idx, &entry));
		}
	}
	return RT_ERR_L2_ENTRY_NOTFOUND;
}

rtk_api_ret_t rtk_dot1x_macBasedAuthMac_add(const u8 *mac, u32 fid)
{
	return rtk_chk_mac(mac, 0, RT_ERR_NULL_POINTER, RT_ERR_MAC) ?:
	       rtk_chk_max(fid, DOT1X_AUTH_FID_MAX, RT_ERR_L2_FID) ?:
	       dot1x_auth_mark(mac, fid, 1);
}

rtk_api_ret_t rtk_dot1x_macBasedAuthMac_del(const u8 *mac, u32 fid)
{
	return rtk_chk_mac(mac, 0, RT_ERR_NULL_POINTER, RT_ERR_DOT1X_MAC) ?:
	       rtk_chk_max(fid, DOT1X_AUTH_FID_MAX, RT_ERR_L2_FID) ?:
	       dot1x_auth_mark(mac, fid, 0);
}
