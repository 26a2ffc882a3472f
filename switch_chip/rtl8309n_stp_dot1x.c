// SPDX-License-Identifier: GPL-2.0
/*
 * Spanning-tree port state and the IEEE 802.1X controls.
 *
 * MAC-based authorisation itself is the L2 entry's auth bit; this block only
 * holds the per-port enables and directions and the global settings.
 */
#include "rtl8309n_internal.h"

/* The per-port 802.1X enables reach one port further than the other calls. */
#define DOT1X_ENABLE_MAX_PORT	(RTL8309N_MAX_PORT + 1)
/*
 * One past the last state passes the check and is OR-ed in as it stands:
 * it lands on bit 2 and leaves bits 1..0 clear.  The bound is the chip
 * library's and is kept.
 */
#define STP_SET_MAX_STATE	4

/* BPDUs must keep reaching the CPU whatever state a port is put in. */
static const rtl8309n_rma_entry stp_rma = { RTL8309N_ACT_TRAP, 0, 0 };

s32 rtl8309n_stp_set(u32 port, u32 state)
{
	if (port > RTL8309N_MAX_PORT || state > STP_SET_MAX_STATE)
		return RT_ERR_FAILED;

	rtl8309n_rma_entry_set(RTL8309N_RMA_STP_ENTRY, &stp_rma);
	rtl8309n_reg_update(port, RTL8309N_STP_REG, RTL8309N_STP_PAGE,
			    RTL8309N_STP_STATE, state);
	return RT_ERR_OK;
}

s32 rtl8309n_stp_get(u32 port, u32 *pState)
{
	u32 data = 0;

	if (!pState || port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;

	/* Any other bit of the register set means no state we can name. */
	rtl8309n_reg_get(port, RTL8309N_STP_REG, RTL8309N_STP_PAGE, &data);
	if (data <= RTL8309N_STP_STATE_MAX)
		*pState = data;
	return RT_ERR_OK;
}

#define DOT1X_PORT_FIELD(mask)						\
	RTL8309N_FIELD(0, RTL8309N_DOT1X_PORT_REG, RTL8309N_DOT1X_PORT_PAGE, mask,	\
		       RTL8309N_FIELD_FLAG, RTL8309N_PORT_ADDR)

static const struct rtl8309n_field dot1x_port_en = DOT1X_PORT_FIELD(RTL8309N_DOT1X_PORT_EN);
static const struct rtl8309n_field dot1x_port_auth = DOT1X_PORT_FIELD(RTL8309N_DOT1X_PORT_AUTH);
static const struct rtl8309n_field dot1x_port_dir = DOT1X_PORT_FIELD(RTL8309N_DOT1X_PORT_DIR);
static const struct rtl8309n_field dot1x_mac_en = DOT1X_PORT_FIELD(RTL8309N_DOT1X_PORT_MAC_EN);

static const struct rtl8309n_field dot1x_mac_dir =
	RTL8309N_FIELD(RTL8309N_DOT1X_GLB_ADDR, RTL8309N_DOT1X_GLB_REG, RTL8309N_DOT1X_GLB_PAGE,
		       RTL8309N_DOT1X_GLB_MAC_DIR, RTL8309N_FIELD_FLAG, RTL8309N_GLOBAL);

/*
 * Port 9 has no registers: the field accessors refuse it without traffic,
 * and the enables still report success for it.
 */
static s32 dot1x_port_flag_set(const struct rtl8309n_field *f, u32 port, u32 enabled)
{
	if (port > DOT1X_ENABLE_MAX_PORT)
		return RT_ERR_FAILED;
	rtl8309n_field_set(f, port, enabled);
	return RT_ERR_OK;
}

static s32 dot1x_port_flag_get(const struct rtl8309n_field *f, u32 port, u32 *pEnabled)
{
	if (!pEnabled || port > DOT1X_ENABLE_MAX_PORT)
		return RT_ERR_FAILED;
	rtl8309n_field_get(f, port, pEnabled);
	return RT_ERR_OK;
}

s32 rtl8309n_dot1x_portBasedEnable_set(u32 port, u32 enabled)
{
	return dot1x_port_flag_set(&dot1x_port_en, port, enabled);
}

s32 rtl8309n_dot1x_portBasedEnable_get(u32 port, u32 *pEnabled)
{
	return dot1x_port_flag_get(&dot1x_port_en, port, pEnabled);
}

s32 rtl8309n_dot1x_macBasedEnable_set(u32 port, u32 enabled)
{
	return dot1x_port_flag_set(&dot1x_mac_en, port, enabled);
}

s32 rtl8309n_dot1x_macBasedEnable_get(u32 port, u32 *pEnabled)
{
	return dot1x_port_flag_get(&dot1x_mac_en, port, pEnabled);
}

s32 rtl8309n_dot1x_portBased_set(u32 port, u32 isAuth, u32 direction)
{
	if (port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;

	rtl8309n_field_set(&dot1x_port_auth, port, isAuth);
	/* Any non-zero direction sets the bit, unlike the exactly-1 flags. */
	rtl8309n_field_set(&dot1x_port_dir, port, direction != 0);
	return RT_ERR_OK;
}

s32 rtl8309n_dot1x_portBased_get(u32 port, u32 *pIsAuth, u32 *pDirection)
{
	u32 data = 0;

	if (!pIsAuth || !pDirection || port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(port, RTL8309N_DOT1X_PORT_REG, RTL8309N_DOT1X_PORT_PAGE, &data);
	*pIsAuth = rtl8309n_field_extract(RTL8309N_DOT1X_PORT_AUTH, data);
	*pDirection = rtl8309n_field_extract(RTL8309N_DOT1X_PORT_DIR, data);
	return RT_ERR_OK;
}

s32 rtl8309n_dot1x_macBased_set(u32 direction)
{
	if (direction > 1)
		return RT_ERR_FAILED;
	return rtl8309n_field_set(&dot1x_mac_dir, 0, direction);
}

s32 rtl8309n_dot1x_macBased_get(u32 *pDirection)
{
	return rtl8309n_field_get(&dot1x_mac_dir, 0, pDirection);
}

/* The unauthorised-packet action is the abnormal-packet trap of type 1. */
s32 rtl8309n_dot1x_unauthPktAction_set(u32 action)
{
	return rtl8309n_trap_abnormalPktAction_set(RTL8309N_DOT1X_UNAUTH_TYPE, action);
}

s32 rtl8309n_dot1x_unauthPktAction_get(u32 *pAction)
{
	return rtl8309n_trap_abnormalPktAction_get(RTL8309N_DOT1X_UNAUTH_TYPE, pAction);
}
