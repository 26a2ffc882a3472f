/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N QoS priority block: the number of output queues, the per-port
 * map from internal priority to queue, the priority sources with their
 * enables and arbitration weights, 802.1p remapping and re-marking, the
 * IP-address priority entries and the per-port queue schedulers.
 */
#ifndef RTL8309N_QOS_PRI_H
#define RTL8309N_QOS_PRI_H

#include "rtl8309n_types.h"

/* QoS soft reset: (0, 16, 14) */
#define RTL8309N_QOS_RESET_ADDR			0
#define RTL8309N_QOS_RESET_REG			16
#define RTL8309N_QOS_RESET_PAGE			14
#define   RTL8309N_QOS_RESET			0x0002	/* self-clearing */

/* Global priority tables: SMI address 5, page 16 */
#define RTL8309N_QOS_ADDR			5
#define RTL8309N_QOS_PAGE			16
#define RTL8309N_QOS_QNUM_REG			16
#define   RTL8309N_QOS_QNUM			0x0003	/* number of queues - 1 */
#define RTL8309N_QOS_ARBIT_REG			17
#define   RTL8309N_QOS_ARBIT_WEIGHTS		0x00FF
/* Weight slot s, from the bottom up: weights 0, 3, 1, 2 */
#define   RTL8309N_QOS_ARBIT_SLOT(s)		(0x0003 << (2 * (s)))
/* Tag priority t: (5, 18, 16); DSCP d: (5, 19 + d / 8, 16) */
#define RTL8309N_QOS_1P_REMAP_REG		18
#define RTL8309N_QOS_DSCP_REMAP_REG		19
#define   RTL8309N_QOS_REMAP_PRI(i)		(0x0003 << (2 * (i)))	/* i: 0..7 */
#define RTL8309N_QOS_REMAP_PER_REG		8

/* Egress re-marking and the per-port queue maps: SMI address 6, page 16 */
#define RTL8309N_QOS_MAP_ADDR			6
#define RTL8309N_QOS_1P_REMARK_REG		16
#define   RTL8309N_QOS_1P_REMARK(p)		(0x0007 << (3 * (p)))
/* Queue of internal priority p at port n: (6, 17 + n, 16), priority 0 on top */
#define RTL8309N_QOS_QMAP_REG			17
#define   RTL8309N_QOS_QMAP_PRI(p)		(0x00C0 >> (2 * (p)))

/* IP-address priority entries A and B: SMI address 4, page 16 */
#define RTL8309N_QOS_IP_ADDR			4
#define RTL8309N_QOS_IP_CTRL_REG		22
#define   RTL8309N_QOS_IP_CTRL_PRI_A		0x0003
#define   RTL8309N_QOS_IP_CTRL_EN_A		0x0004
#define   RTL8309N_QOS_IP_CTRL_PRI_B		0x0030
#define   RTL8309N_QOS_IP_CTRL_EN_B		0x0040
/* Entry e: address low, high, mask low, high in 23 + 4e .. 26 + 4e */
#define RTL8309N_QOS_IP_DATA_REG		23
#define RTL8309N_QOS_IP_DATA_REGS		4

/* Priority sources: (port, 16, 10) */
#define RTL8309N_QOS_PORT_PAGE			10
#define RTL8309N_QOS_SRC_REG			16
#define   RTL8309N_QOS_SRC_ACL_OFF		0x0001
#define   RTL8309N_QOS_SRC_IP_OFF		0x0002
#define   RTL8309N_QOS_SRC_DSCP_OFF		0x0004
#define   RTL8309N_QOS_SRC_PORT_OFF		0x0008
#define   RTL8309N_QOS_SRC_1Q_OFF		0x0010
#define   RTL8309N_QOS_SRC_1P_REMARK_EN		0x0020
#define RTL8309N_QOS_PORT_PRI_REG		17
#define   RTL8309N_QOS_PORT_PRI			0x0003
/* 802.1Q port priority: this library uses 0..3 only */
#define RTL8309N_QOS_1Q_PORT_PRI_REG		18
#define   RTL8309N_QOS_1Q_PORT_PRI		0x0003
#define   RTL8309N_QOS_1Q_PORT_PRI_UPPER	0x0004	/* priorities 4..7 */

/* Queue scheduler: queues 2q and 2q + 1 in (port, 17 + q, 9) */
#define RTL8309N_QOS_SCHED_PAGE			9
#define RTL8309N_QOS_SCHED_REG			17
#define   RTL8309N_QOS_SCHED_WEIGHT_EVEN	0x007F	/* WRR weight of queue 2q */
#define   RTL8309N_QOS_SCHED_STRICT_EVEN	0x0080
#define   RTL8309N_QOS_SCHED_WEIGHT_ODD		0x7F00	/* WRR weight of queue 2q + 1 */
#define   RTL8309N_QOS_SCHED_STRICT_ODD		0x8000

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

#endif /* RTL8309N_QOS_PRI_H */
