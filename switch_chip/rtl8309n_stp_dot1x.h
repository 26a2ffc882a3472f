/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N spanning-tree port state and IEEE 802.1X controls.
 */
#ifndef RTL8309N_STP_DOT1X_H
#define RTL8309N_STP_DOT1X_H

#include "rtl8309n_types.h"

/* Spanning-tree state, per port: (port, 16, 2) */
#define RTL8309N_STP_PAGE		2
#define RTL8309N_STP_REG		16
#define   RTL8309N_STP_STATE		0x0003
#define RTL8309N_STP_STATE_MAX		3	/* highest code the getter reports */

/* 802.1X per port: (port, 16, 3) */
#define RTL8309N_DOT1X_PORT_PAGE	3
#define RTL8309N_DOT1X_PORT_REG		16
#define   RTL8309N_DOT1X_PORT_EN	0x0001
#define   RTL8309N_DOT1X_PORT_AUTH	0x0002
#define   RTL8309N_DOT1X_PORT_DIR	0x0004
#define   RTL8309N_DOT1X_PORT_MAC_EN	0x0008

/* 802.1X global: (0, 16, 15) */
#define RTL8309N_DOT1X_GLB_ADDR		0
#define RTL8309N_DOT1X_GLB_PAGE		15
#define RTL8309N_DOT1X_GLB_REG		16
#define   RTL8309N_DOT1X_GLB_ABNORMAL1_TRAP	0x0001	/* abnormal type 1: 1 trap */
#define   RTL8309N_DOT1X_GLB_MAC_DIR	0x0002

#define RTL8309N_DOT1X_UNAUTH_TYPE	1	/* unauthorised action: abnormal-packet type 1 */

s32 rtl8309n_stp_set(u32 port, u32 state);
s32 rtl8309n_stp_get(u32 port, u32 *pState);
s32 rtl8309n_dot1x_portBasedEnable_set(u32 port, u32 enabled);
s32 rtl8309n_dot1x_portBasedEnable_get(u32 port, u32 *pEnabled);
s32 rtl8309n_dot1x_macBasedEnable_set(u32 port, u32 enabled);
s32 rtl8309n_dot1x_macBasedEnable_get(u32 port, u32 *pEnabled);
s32 rtl8309n_dot1x_portBased_set(u32 port, u32 isAuth, u32 direction);
s32 rtl8309n_dot1x_portBased_get(u32 port, u32 *pIsAuth, u32 *pDirection);
s32 rtl8309n_dot1x_macBased_set(u32 direction);
s32 rtl8309n_dot1x_macBased_get(u32 *pDirection);
s32 rtl8309n_dot1x_unauthPktAction_set(u32 action);
s32 rtl8309n_dot1x_unauthPktAction_get(u32 *pAction);

#endif /* RTL8309N_STP_DOT1X_H */
