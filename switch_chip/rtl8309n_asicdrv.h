/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N family register layer: result codes, port vocabulary, the two
 * SMI transport hooks, and every rtl8309n_ operation through the headers
 * of the chip blocks included at the end.
 *
 * Every operation returns RT_ERR_OK or RT_ERR_FAILED (the L2 address
 * operations add RTL8309N_L2_BUCKET_FULL and RTL8309N_L2_NOT_FOUND), checks
 * its arguments before touching the bus and keeps no state: the chip is the
 * only store.  Callers serialise register sequences; nothing here locks.
 */
#ifndef RTL8309N_ASICDRV_H
#define RTL8309N_ASICDRV_H

#include "rtl8309n_types.h"

/* ---- Result codes of the whole library (register layer and rtk_ API) ---- */
#define RT_ERR_OK				0
#define RT_ERR_FAILED				(-1)	/* 0xFFFFFFFF */
#define RT_ERR_INPUT				1
#define RT_ERR_PORT_ID				3
#define RT_ERR_PORT_MASK			4
#define RT_ERR_NULL_POINTER			7
#define RT_ERR_QUEUE_ID				8
#define RT_ERR_QUEUE_NUM			9
#define RT_ERR_MAC				11
#define RT_ERR_NOT_ALLOWED			17
#define RT_ERR_ENABLE				21
#define RT_ERR_TBL_FULL				22
#define RT_ERR_VLAN_VID				0x100
#define RT_ERR_VLAN_PRIORITY			0x101
#define RT_ERR_VLAN_ACCEPT_FRAME_TYPE		0x103
#define RT_ERR_VLAN_ENTRY_NOT_FOUND		0x105
#define RT_ERR_MSTP_STATE			0x301
#define RT_ERR_LIMITED_L2ENTRY_NUM		0x605
#define RT_ERR_L2_FID				0x607
#define RT_ERR_L2_ENTRY_NOTFOUND		0x60A
#define RT_ERR_L2_NO_EMPTY_ENTRY		0x60B
#define RT_ERR_INBW_RATE			0xC05
#define RT_ERR_QOS_DSCP_VALUE			0xD01
#define RT_ERR_QOS_1P_PRIORITY			0xD02
#define RT_ERR_QOS_EBW_RATE			0xD07
#define RT_ERR_PHY_FORCE_MODE			0xE03
#define RT_ERR_PHY_AUTO_NEGO_MODE		0xE06
#define RT_ERR_STAT_PORT_CNTR_FAIL		0x1003
#define RT_ERR_DOT1X_PORTBASEDAUTH		0x1102
#define RT_ERR_DOT1X_PORTBASEDOPDIR		0x1103
#define RT_ERR_DOT1X_MACBASEDOPDIR		0x1105
#define RT_ERR_DOT1X_UNAUTH_OPER		0x1106
#define RT_ERR_DOT1X_MAC			0x1109
#define RTL8309N_L2_BUCKET_FULL			(-2)	/* 0xFFFFFFFE */
#define RTL8309N_L2_NOT_FOUND			(-3)	/* 0xFFFFFFFD */

/* ---- Ports, masks, enable values ---- */
#define RTL8309N_MAX_PORT		8	/* ports 0..8; 8 is the MAC (CPU) port */
#define RTL8309N_MAX_PHY_PORT		7	/* embedded PHYs at SMI addresses 0..7 */
#define RTL8309N_PORT_NUMBER		9
#define RTL8309N_PORT_MASK_ALL		0x1FF
#define RTL8309N_MAX_SMI_ADDR		8
#define RTL8309N_MAX_SWITCH_PAGE	17
#define RTL8309N_MAX_PHY_PAGE		18

#define RTL8309N_DISABLED		0
#define RTL8309N_ENABLED		1

/* ---- SMI transport: the only way the library reaches the chip ---- */
typedef int (*rtl8309n_smi_write_fn)(u32 phyad, u32 regad, u32 value);
typedef int (*rtl8309n_smi_read_fn)(u32 phyad, u32 regad, u32 *value);

extern rtl8309n_smi_write_fn psmiWrite;
extern rtl8309n_smi_read_fn psmiRead;

void register_smiwrite(rtl8309n_smi_write_fn fn);
void register_smiRead(rtl8309n_smi_read_fn fn);

/*
 * One header per chip block: its registers, with each register's fields
 * as masks under it, and its operations.
 */
#include "rtl8309n_reg.h"
#include "rtl8309n_switch.h"
#include "rtl8309n_port.h"
#include "rtl8309n_vlan.h"
#include "rtl8309n_cpu.h"
#include "rtl8309n_qos_pri.h"
#include "rtl8309n_qos_bw.h"
#include "rtl8309n_acl.h"
#include "rtl8309n_mib.h"
#include "rtl8309n_mirror.h"
#include "rtl8309n_l2.h"
#include "rtl8309n_stp_dot1x.h"
#include "rtl8309n_trap.h"
#include "rtl8309n_intr_storm.h"
#include "rtl8309n_rldp.h"
#include "rtl8309n_isp.h"
#include "rtl8309n_led.h"
#include "rtl8309n_wol.h"

#endif /* RTL8309N_ASICDRV_H */
