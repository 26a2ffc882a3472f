/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N family register layer: result codes, port vocabulary, the two
 * SMI transport hooks and every rtl8309n_ operation, grouped by chip block.
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
 * Block operations follow, one section per source file.  Keep each section
 * in the order of its source file.
 */

/* ---- QoS priority sources, remapping, queues (rtl8309n_qos_pri.c) ---- */

#define RTL8309N_QOS_MAX_PRI		3	/* internal priorities 0..3 */
#define RTL8309N_QOS_MAX_QUEUE		3
#define RTL8309N_QOS_MAX_1P		7
#define RTL8309N_QOS_MAX_DSCP		63
#define RTL8309N_QOS_MAX_WRR_WEIGHT	127

/* Priority sources, by the register layer's code; 0, 5 and 6 name none. */
#define RTL8309N_PRISRC_PORT		1
#define RTL8309N_PRISRC_DOT1Q		2
#define RTL8309N_PRISRC_DSCP		3
#define RTL8309N_PRISRC_IP_ADDR		4
#define RTL8309N_PRISRC_ACL		7

/* Arbitration weights (0..3) between priority sources, in record order. */
enum rtl8309n_qos_weight {
	RTL8309N_WEIGHT_PORT = 0,
	RTL8309N_WEIGHT_DOT1Q = 1,
	RTL8309N_WEIGHT_DSCP = 2,
	RTL8309N_WEIGHT_ACL = 3,
	RTL8309N_WEIGHT_NUM
};

typedef struct rtl8309n_qos_priArbitPara_s {
	u32 weight[RTL8309N_WEIGHT_NUM];
} rtl8309n_qos_priArbitPara_t;

/* WRR weights (0..127) of queues 0..3 of one port. */
struct rtl8309n_qos_queueWeight {
	u8 weight[4];
};

/* IP-address priority entries. */
#define RTL8309N_QOS_IP_ENTRY_A		0
#define RTL8309N_QOS_IP_ENTRY_B		1

s32 rtl8309n_qos_softReset_set(void);
/* 1..4 queues; the setter ends with the QoS soft reset. */
s32 rtl8309n_qos_queueNum_set(u32 num);
s32 rtl8309n_qos_queueNum_get(u32 *pnum);
s32 rtl8309n_qos_priToQueMap_set(u32 port, u32 pri, u32 queue);
s32 rtl8309n_qos_priToQueMap_get(u32 port, u32 pri, u32 *pqueue);
s32 rtl8309n_qos_1pRemarkEnable_set(u32 port, u32 enabled);
s32 rtl8309n_qos_1pRemarkEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_qos_1pRemark_set(u32 pri, u32 dot1p);
s32 rtl8309n_qos_1pRemark_get(u32 pri, u32 *pdot1p);
s32 rtl8309n_qos_portPri_set(u32 port, u32 pri);
s32 rtl8309n_qos_portPri_get(u32 port, u32 *ppri);
/* @pri is not range-checked: callers keep it within 0..3. */
s32 rtl8309n_qos_1QPortPri_set(u32 port, u32 pri);
s32 rtl8309n_qos_1QPortPri_get(u32 port, u32 *ppri);
s32 rtl8309n_qos_1pPriRemap_set(u32 dot1p, u32 pri);
s32 rtl8309n_qos_1pPriRemap_get(u32 dot1p, u32 *ppri);
s32 rtl8309n_qos_dscpPriRemap_set(u32 dscp, u32 pri);
s32 rtl8309n_qos_dscpPriRemap_get(u32 dscp, u32 *ppri);
s32 rtl8309n_qos_priSrcArbit_set(const rtl8309n_qos_priArbitPara_t *pweights);
s32 rtl8309n_qos_priSrcArbit_get(rtl8309n_qos_priArbitPara_t *pweights);
/* @type: RTL8309N_PRISRC_*; codes 0, 5, 6 are accepted and change nothing. */
s32 rtl8309n_qos_priSrcEnable_set(u32 port, u32 type, u32 enabled);
s32 rtl8309n_qos_priSrcEnable_get(u32 port, u32 type, u32 *penabled);
s32 rtl8309n_qos_ipAddrPriEnable_set(u32 entry, u32 enabled);
s32 rtl8309n_qos_ipAddrPriEnable_get(u32 entry, u32 *penabled);
/* @pri is checked as a signed number: negative values are not refused. */
s32 rtl8309n_qos_ipAddrPri_set(u32 entry, s32 pri);
s32 rtl8309n_qos_ipAddrPri_get(u32 entry, u32 *ppri);
s32 rtl8309n_qos_ipAddr_set(u32 entry, u32 ipaddr, u32 ipmask);
s32 rtl8309n_qos_ipAddr_get(u32 entry, u32 *pipaddr, u32 *pipmask);
s32 rtl8309n_qos_queueWrr_set(u32 port, struct rtl8309n_qos_queueWeight weights);
s32 rtl8309n_qos_queueWrr_get(u32 port, struct rtl8309n_qos_queueWeight *pweights);
s32 rtl8309n_qos_queueStrictPriEnable_set(u32 port, u32 queue, u32 enabled);
s32 rtl8309n_qos_queueStrictPriEnable_get(u32 port, u32 queue, u32 *penabled);

/* ---- QoS bandwidth, leaky bucket, flow control (rtl8309n_qos_bw.c) ---- */

/* Directions of the per-port rate calls. */
#define RTL8309N_QOS_INGRESS		0
#define RTL8309N_QOS_EGRESS		1

/* Highest rate (in the chip's rate steps) of a port or of its queues. */
#define RTL8309N_QOS_RATE_MAX(port)	(((port) & ~8u) == 0 ? 3200u : 1600u)
#define RTL8309N_QOS_MAX_FLC_THR	127
#define RTL8309N_QOS_FLC_THR_KINDS	4
#define RTL8309N_QOS_PORT_THR_KINDS	2

/* Note the argument orders: they differ between calls on purpose. */
s32 rtl8309n_qos_portRate_set(u32 port, u32 rate, u32 direction);
s32 rtl8309n_qos_portRate_get(u32 port, u32 *prate, u32 direction);
/* Queues 2 and 3 only. */
s32 rtl8309n_qos_queueRate_set(u32 port, u32 queue, u32 rate);
s32 rtl8309n_qos_queueRate_get(u32 port, u32 queue, u32 *prate);
s32 rtl8309n_qos_portRate_IfgIncludeEnable_set(u32 direction, u32 port, u32 enabled);
s32 rtl8309n_qos_portRate_IfgIncludeEnable_get(u32 direction, u32 port, u32 *penabled);
s32 rtl8309n_qos_portLeakyBktEnable_set(u32 port, u32 direction, u32 enabled);
s32 rtl8309n_qos_portLeakyBktEnable_get(u32 port, u32 direction, u32 *penabled);
s32 rtl8309n_qos_queueLeakyBktEnable_set(u32 port, u32 queue, u32 enabled);
s32 rtl8309n_qos_queueLeakyBktEnable_get(u32 port, u32 queue, u32 *penabled);
s32 rtl8309n_qos_queueFlcEnable_set(u32 port, u32 queue, u32 enabled);
s32 rtl8309n_qos_queueFlcEnable_get(u32 port, u32 queue, u32 *penabled);
s32 rtl8309n_qos_queueFlcThr_set(u32 port, u32 queue, u32 type, u32 thr);
s32 rtl8309n_qos_queueFlcThr_get(u32 port, u32 queue, u32 type, u32 *pthr);
s32 rtl8309n_qos_portDscFlcEnable_set(u32 port, u32 enabled);
s32 rtl8309n_qos_portDscFlcEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_qos_egrFlcEnable_set(u32 port, u32 enabled);
s32 rtl8309n_qos_egrFlcEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_qos_portFlcThr_set(u32 port, u32 thr1, u32 thr2, u32 type);
s32 rtl8309n_qos_portFlcThr_get(u32 port, u32 *pthr1, u32 *pthr2, u32 type);
s32 rtl8309n_qos_igrFlcEnable_set(u32 enabled);
s32 rtl8309n_qos_igrFlcEnable_get(u32 *penabled);

/* ---- L2 address table (rtl8309n_l2.c) ---- */

#define RTL8309N_L2_ENTRY_NUM		2048
#define RTL8309N_L2_BUCKET_NUM		512	/* 9-bit hash; way w at hash + 512 * w */
#define RTL8309N_L2_WAY_NUM		4
#define RTL8309N_L2_MAX_FID		3
#define RTL8309N_L2_MAX_AGE		3
#define RTL8309N_L2_NO_INDEX		10000	/* index output when nothing was found */
#define RTL8309N_MAC_LEN		6

/* Group (multicast) address: bit 0 of the first byte. */
static inline int rtl8309n_mac_is_mcast(const u8 *mac)
{
	return mac[0] & 0x01;
}

/* The action controls take RTL8309N_ACT_TRAP or RTL8309N_ACT_DROP. */
typedef struct rtl8309n_l2_ucastEntry {
	u32 isStatic;
	u32 auth;	/* authorised by 802.1X */
	u32 block10;
	u32 block9;
	u32 age;	/* 0 (aged out) .. 3 */
	u32 port;
	u32 fid;
	u8 mac[RTL8309N_MAC_LEN];
} rtl8309n_l2_ucastEntry;

typedef struct rtl8309n_l2_mcastEntry {
	u32 valid;
	u32 fid;
	u32 portMask;
	u8 mac[RTL8309N_MAC_LEN];
} rtl8309n_l2_mcastEntry;

s32 rtl8309n_l2_MacToIdx_get(const u8 *mac, u32 fid, u32 *pindex);
s32 rtl8309n_l2_hashmode_set(u32 mode);
s32 rtl8309n_l2_hashmode_get(u32 *pmode);

s32 rtl8309n_l2_ucastEntry_set(u32 index, const rtl8309n_l2_ucastEntry *entry);
s32 rtl8309n_l2_ucastEntry_get(u32 index, rtl8309n_l2_ucastEntry *entry);
s32 rtl8309n_l2_mcastEntry_set(u32 index, const rtl8309n_l2_mcastEntry *entry);
s32 rtl8309n_l2_mcastEntry_get(u32 index, rtl8309n_l2_mcastEntry *entry);
s32 rtl8309n_l2_macAddr_get(u32 index, u8 *mac);

/*
 * Address operations over the four ways of the bucket of (mac, fid); *pindex
 * gets the entry index used, or RTL8309N_L2_NO_INDEX.
 */
s32 rtl8309n_l2_ucastAddr_add(const u8 *mac, u32 fid, const rtl8309n_l2_ucastEntry *entry,
			      u32 *pindex);
s32 rtl8309n_l2_ucastAddr_get(const u8 *mac, u32 fid, rtl8309n_l2_ucastEntry *entry,
			      u32 *pindex);
s32 rtl8309n_l2_ucastAddr_del(const u8 *mac, u32 fid, u32 *pindex);
s32 rtl8309n_l2_mcastAddr_add(const u8 *mac, u32 fid, u32 portMask, u32 *pindex);
s32 rtl8309n_l2_mcastAddr_get(const u8 *mac, u32 fid, u32 *pportMask, u32 *pindex);
s32 rtl8309n_l2_mcastAddr_del(const u8 *mac, u32 fid, u32 *pindex);

s32 rtl8309n_l2_portMacLimitEnable_set(u32 port, u32 enabled);
s32 rtl8309n_l2_portMacLimitEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_l2_portMacLimit_set(u32 port, u32 limit);
s32 rtl8309n_l2_portMacLimit_get(u32 port, u32 *plimit);
s32 rtl8309n_l2_systemMacLimitEnable_set(u32 enabled);
s32 rtl8309n_l2_systemMacLimitEnable_get(u32 *penabled);
s32 rtl8309n_l2_systemMacLimit_set(u32 limitA, u32 limitB);
s32 rtl8309n_l2_systemMacLimit_get(u32 *plimitA, u32 *plimitB);
s32 rtl8309n_l2_macLimitAction_set(u32 action);
s32 rtl8309n_l2_macLimitAction_get(u32 *paction);
s32 rtl8309n_l2_systemLearningCnt_get(u32 *pcount);
s32 rtl8309n_l2_portlearningCnt_get(u32 port, u32 *pcount);
s32 rtl8309n_l2_lruEnable_set(u32 enabled);
s32 rtl8309n_l2_lruEnable_get(u32 *penabled);
s32 rtl8309n_l2_camEnable_set(u32 enabled);
s32 rtl8309n_l2_camEnable_get(u32 *penabled);
s32 rtl8309n_l2_flushEnable_set(u32 enabled);
s32 rtl8309n_l2_flushEnable_get(u32 *penabled);
s32 rtl8309n_l2_agingEnable_set(u32 enabled);
s32 rtl8309n_l2_agingEnable_get(u32 *penabled);
s32 rtl8309n_l2_fastAgingEnable_set(u32 enabled);
s32 rtl8309n_l2_fastAgingEnable_get(u32 *penabled);
s32 rtl8309n_l2_dpMskEnable_set(u32 enabled);
s32 rtl8309n_l2_dpMskEnable_get(u32 *penabled);
s32 rtl8309n_l2_unkownDaDropEnable_set(u32 enabled);
s32 rtl8309n_l2_unkownDaDropEnable_get(u32 *penabled);
s32 rtl8309n_l2_sablockAction_set(u32 action);
s32 rtl8309n_l2_sablockAction_get(u32 *paction);
s32 rtl8309n_l2_dablockAction_set(u32 action);
s32 rtl8309n_l2_dablockAction_get(u32 *paction);

/* ---- Traps, reserved multicast, IGMP (rtl8309n_trap.c) ---- */
/* Packet actions of the register layer (L2, trap and reserved multicast) */
#define RTL8309N_ACT_FORWARD		0
#define RTL8309N_ACT_TRAP		2	/* to the CPU port */
#define RTL8309N_ACT_DROP		3

#define RTL8309N_RMA_ENTRY_MAX		18	/* fixed entries 0..18 */
#define RTL8309N_RMA_STP_ENTRY		0	/* rewritten by every STP state change */
#define RTL8309N_RMA_IGMP_ENTRY		12	/* 12..15: IGMP control types 0..3 */

/* One reserved-multicast slot; value 1 of action is carried but unused. */
typedef struct rtl8309n_rma_entry {
	u32 action;	/* 0..3 */
	u32 flag;	/* 0 or 1 */
	u32 value;	/* 2 bits */
} rtl8309n_rma_entry;

s32 rtl8309n_rma_entry_set(u32 index, const rtl8309n_rma_entry *pEntry);
s32 rtl8309n_rma_entry_get(u32 index, rtl8309n_rma_entry *pEntry);
/* @pMac: three words, MAC byte 2k in bits 7..0 of word k */
s32 rtl8309n_rma_userentry_set(const rtl8309n_rma_entry *pEntry, const u16 *pMac);
/* @pMac: six bytes */
s32 rtl8309n_rma_userentry_get(rtl8309n_rma_entry *pEntry, u8 *pMac);
s32 rtl8309n_igmp_enable_set(u32 type, u32 enabled);
s32 rtl8309n_igmp_enable_get(u32 type, u32 *pEnabled);
s32 rtl8309n_trap_unknownIPMcastPktAction_set(u32 type, u32 action);
s32 rtl8309n_trap_unknownIPMcastPktAction_get(u32 type, u32 *pAction);
s32 rtl8309n_trap_abnormalPktAction_set(u32 type, u32 action);
s32 rtl8309n_trap_abnormalPktAction_get(u32 type, u32 *pAction);
s32 rtl8309n_trap_igmpCtrlPktAction_set(u32 type, u32 action);
s32 rtl8309n_trap_igmpCtrlPktAction_get(u32 type, u32 *pAction);

/* ---- Interrupts and storm filtering (rtl8309n_intr_storm.c) ---- */
#define RTL8309N_INTR_MASK_ALL		0x1FFF	/* 13 interrupt sources */
#define RTL8309N_STORM_TYPE_MAX		3	/* types 1 and 2 share one filter */

typedef struct rtl8309n_storm_attr {
	u32 ctrlFlag;	/* written as (is not 0) */
	u32 rate;	/* 17 bits */
	u32 param;	/* 16 bits */
	u32 globalFlag;	/* one flag for all ports and types, written as (is 1) */
} rtl8309n_storm_attr;

s32 rtl8309n_intr_enable_set(u32 enabled, u32 mask);
s32 rtl8309n_intr_enable_get(u32 *pEnabled, u32 *pMask);
s32 rtl8309n_intr_status_set(u32 status);
s32 rtl8309n_intr_status_get(u32 *pStatus);
s32 rtl8309n_storm_filterEnable_set(u32 port, u32 type, u32 enabled);
s32 rtl8309n_storm_filterEnable_get(u32 port, u32 type, u32 *pEnabled);
s32 rtl8309n_storm_filterAttr_set(u32 port, u32 type, const rtl8309n_storm_attr *pAttr);
s32 rtl8309n_storm_filterAttr_get(u32 port, u32 type, rtl8309n_storm_attr *pAttr);
s32 rtl8309n_storm_filterStatus_set(u32 port, u32 type, u32 enabled);
s32 rtl8309n_storm_filterStatus_get(u32 port, u32 type, u32 *pEnabled);

/* ---- Loop detection RLDP/RLPP (rtl8309n_rldp.c) ---- */
typedef struct rtl8309n_rldp_controlAttr {
	u32 attr1;	/* 0..3 */
	u32 attr2;	/* 0..3 */
	u32 attr3;	/* 0..16; 16 lands on the storm-filter bit */
	u8 mac[6];
} rtl8309n_rldp_controlAttr;

s32 rtl8309n_rldp_enable_set(u32 enabled);
s32 rtl8309n_rldp_enable_get(u32 *pEnabled);
s32 rtl8309n_rldp_priEnable_set(u32 enabled);
s32 rtl8309n_rldp_priEnable_get(u32 *pEnabled);
s32 rtl8309n_rldp_ttlEnable_set(u32 enabled);
s32 rtl8309n_rldp_ttlEnable_get(u32 *pEnabled);
s32 rtl8309n_rldp_stormFilterEnable_set(u32 enabled);
s32 rtl8309n_rldp_stormFilterEnable_get(u32 *pEnabled);
s32 rtl8309n_rldp_vlanTagEnable_set(u32 enabled);
s32 rtl8309n_rldp_vlanTagEnable_get(u32 *pEnabled);
s32 rtl8309n_rldp_identifierEnable_set(u32 enabled);
s32 rtl8309n_rldp_identifierEnable_get(u32 *pEnabled);
s32 rtl8309n_rlpp_action_set(u32 action);
s32 rtl8309n_rlpp_action_get(u32 *pAction);
s32 rtl8309n_rldp_controlAttr_set(const rtl8309n_rldp_controlAttr *pAttr);
s32 rtl8309n_rldp_controlAttr_get(rtl8309n_rldp_controlAttr *pAttr);
s32 rtl8309n_rldp_protocol_set(u32 protocol);
s32 rtl8309n_rldp_protocol_get(u32 *pProtocol);
s32 rtl8309n_rldp_loopStatus_get(u32 *pStatus);

/* ---- LEDs and buzzer (rtl8309n_led.c) ---- */
s32 rtl8309n_led_rstBlinkEnable_set(u32 enabled);
s32 rtl8309n_led_rstBlinkEnable_get(u32 *pEnabled);
s32 rtl8309n_led_rldpEnable_set(u32 enabled);
s32 rtl8309n_led_rldpEnable_get(u32 *pEnabled);
s32 rtl8309n_led_led1Enable_set(u32 enabled);
s32 rtl8309n_led_led1Enable_get(u32 *pEnabled);
s32 rtl8309n_led_modeBlinkRate_set(u32 mode, u32 rate);
s32 rtl8309n_led_modeBlinkRate_get(u32 *pMode, u32 *pRate);
s32 rtl8309n_led_rlppRldp_blinkRate_set(u32 rate);
s32 rtl8309n_led_rlppRldp_blinkRate_get(u32 *pRate);
s32 rtl8309n_led_rlppLedMsk_set(u32 mask);
s32 rtl8309n_led_rlppLedMsk_get(u32 *pMask);
s32 rtl8309n_led_buzzerForm_set(u32 form);
s32 rtl8309n_led_buzzerForm_get(u32 *pForm);
s32 rtl8309n_led_rtct_set(u32 group, u32 state, u32 result);
s32 rtl8309n_led_rtct_get(u32 *pGroup, u32 *pState, u32 *pResult);
s32 rtl8309n_led_cpu_set(u32 group, u32 value1, u32 value2);
s32 rtl8309n_led_cpu_get(u32 group, u32 *pValue1, u32 *pValue2);

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
