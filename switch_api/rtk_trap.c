// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ traps: unknown IP multicast and IGMP/MLD control packets.  Both
 * settings are chip-wide.
 */
#include "rtk_internal.h"

#define TRAP_IGMP_TYPE_MAX	3

/*
 * The API numbers the two middle IGMP classes the other way round from the
 * chip's reserved-multicast table; the swap applies to both directions.
 */
static const u32 trap_igmp_layer_type[TRAP_IGMP_TYPE_MAX + 1] = { 0, 2, 1, 3 };

/* The port is checked although the setting is chip-wide. */
static rtk_api_ret_t trap_chk_mcast(rtk_port_t port, rtk_mcast_type_t type)
{
	if (port > RTL8309N_MAX_PORT)
		return RT_ERR_PORT_ID;
	if (type != RTK_TRAP_MCAST_IPV4 && type != RTK_TRAP_MCAST_IPV6)
		return RT_ERR_INPUT;
	return RT_ERR_OK;
}

/* API multicast types 1 and 2 are the register layer's types 0 and 1. */
static u32 trap_mcast_layer_type(rtk_mcast_type_t type)
{
	return type - RTK_TRAP_MCAST_IPV4;
}

rtk_api_ret_t rtk_trap_unknownMcastPktAction_set(rtk_port_t port, rtk_mcast_type_t type,
						 rtk_trap_mcast_action_t mcast_action)
{
	u32 layer_action = mcast_action == RTK_TRAP_MCAST_FORWARD ? RTL8309N_ACT_FORWARD
								  : RTL8309N_ACT_DROP;
	u32 layer_type = trap_mcast_layer_type(type);

	return trap_chk_mcast(port, type) ?:
	       rtk_chk_max(mcast_action, RTK_TRAP_MCAST_DROP, RT_ERR_INPUT) ?:
	       rtk_ret(rtl8309n_trap_unknownIPMcastPktAction_set(layer_type, layer_action));
}

rtk_api_ret_t rtk_trap_unknownMcastPktAction_get(rtk_port_t port, rtk_mcast_type_t type,
						 rtk_trap_mcast_action_t *pmcast_action)
{
	u32 layer_action = RTL8309N_ACT_FORWARD;
	u32 layer_type = trap_mcast_layer_type(type);
	rtk_api_ret_t ret;

	ret = trap_chk_mcast(port, type) ?: rtk_chk_ptr(pmcast_action) ?:
	      rtk_ret(rtl8309n_trap_unknownIPMcastPktAction_get(layer_type, &layer_action));
	if (ret == RT_ERR_OK)
		*pmcast_action = layer_action == RTL8309N_ACT_FORWARD ? RTK_TRAP_MCAST_FORWARD
									: RTK_TRAP_MCAST_DROP;
	return ret;
}

rtk_api_ret_t rtk_trap_igmpCtrlPktAction_set(rtk_igmp_type_t type,
					     rtk_trap_igmp_action_t igmp_action)
{
	if (type > TRAP_IGMP_TYPE_MAX || igmp_action > RTK_TRAP_IGMP_FORWARD_ALT)
		return RT_ERR_INPUT;
	if (igmp_action == RTK_TRAP_IGMP_FORWARD_ALT)
		igmp_action = RTK_TRAP_IGMP_FORWARD;
	return rtk_ret(rtl8309n_trap_igmpCtrlPktAction_set(trap_igmp_layer_type[type],
							    igmp_action));
}

rtk_api_ret_t rtk_trap_igmpCtrlPktAction_get(rtk_igmp_type_t type,
					     rtk_trap_igmp_action_t *pigmp_action)
{
	/* stays out of range unless the register layer delivers an action */
	u32 layer_action = ~0u;
	rtk_api_ret_t ret;

	ret = rtk_chk_max(type, TRAP_IGMP_TYPE_MAX, RT_ERR_INPUT) ?: rtk_chk_ptr(pigmp_action);
	if (ret == RT_ERR_OK)
		ret = rtk_ret(rtl8309n_trap_igmpCtrlPktAction_get(trap_igmp_layer_type[type],
								  &layer_action));
	if (ret == RT_ERR_OK && layer_action <= RTK_TRAP_IGMP_DROP)
		*pigmp_action = layer_action;
	return ret;
}
