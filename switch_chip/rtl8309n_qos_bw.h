/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N QoS bandwidth block: per-port ingress and egress rate limits
 * with their leaky buckets and inter-frame-gap accounting, the rate limits
 * of queues 2 and 3, and flow control per queue, per port and chip-wide.
 */
#ifndef RTL8309N_QOS_BW_H
#define RTL8309N_QOS_BW_H

#include "rtl8309n_types.h"

/* Rates and leaky buckets: (port, reg, 9) */
#define RTL8309N_BW_PAGE			9
#define RTL8309N_BW_EGR_CTRL_REG		16
#define   RTL8309N_BW_EGR_CTRL_Q2_LEAKY		0x0001
#define   RTL8309N_BW_EGR_CTRL_Q3_LEAKY		0x0002
#define   RTL8309N_BW_EGR_CTRL_LEAKY		0x0004
#define   RTL8309N_BW_EGR_CTRL_NO_IFG		0x0008	/* 1: IFG not counted */
#define RTL8309N_BW_Q2_RATE_REG			21
#define RTL8309N_BW_Q3_RATE_REG			22
#define RTL8309N_BW_EGR_RATE_REG		26
#define RTL8309N_BW_IGR_CTRL_REG		27
#define   RTL8309N_BW_IGR_CTRL_NO_LEAKY		0x0001	/* 1: leaky bucket off */
#define   RTL8309N_BW_IGR_CTRL_IFG		0x0002
#define RTL8309N_BW_IGR_RATE_REG		28
/* Every rate register: the rate in the chip's steps */
#define   RTL8309N_BW_RATE			0x0FFF

/* Queue thresholds: kind k of queue q at (port, 16 + 2q + k % 2, 11 + k / 2) */
#define RTL8309N_FLC_QTHR_PAGE			11
#define RTL8309N_FLC_QTHR_REG			16
/* Port thresholds: two whole registers per kind */
#define RTL8309N_FLC_PTHR0_PAGE			13
#define RTL8309N_FLC_PTHR0_REG			17	/* 17, 18 */
#define RTL8309N_FLC_PTHR1_PAGE			11
#define RTL8309N_FLC_PTHR1_REG			24	/* 24, 25 */

/* Chip-wide flow control: SMI address 7, page 16 */
#define RTL8309N_FLC_ADDR			7
#define RTL8309N_FLC_PAGE			16
#define RTL8309N_FLC_IGR_REG			18
#define   RTL8309N_FLC_IGR_EN			0x0001
#define RTL8309N_FLC_DSC_OFF_REG		23
#define   RTL8309N_FLC_DSC_OFF_PORT(p)		RTL8309N_BIT(p)
#define RTL8309N_FLC_EGR_OFF_REG		24
#define   RTL8309N_FLC_EGR_OFF_PORT(p)		RTL8309N_BIT(p)
#define   RTL8309N_FLC_EGR_OFF_CPU_QUEUE(q)	RTL8309N_BIT(12 + (q))	/* port 8's queues */
/* Queue flow control off, four bits a port: ports 0..3 in 25, 4..7 in 26 */
#define RTL8309N_FLC_QUEUE_OFF_REG		25
#define   RTL8309N_FLC_QUEUE_OFF(n, q)		RTL8309N_BIT(4 * (n) + (q))	/* n: port % 4 */
#define RTL8309N_FLC_QUEUE_PORTS_PER_REG	4

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

#endif /* RTL8309N_QOS_BW_H */
