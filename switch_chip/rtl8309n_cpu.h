/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N CPU port block: which port is the CPU port, the CPU tag on frames
 * to and from it, and the port's learning and CRC check.
 */
#ifndef RTL8309N_CPU_H
#define RTL8309N_CPU_H

#include "rtl8309n_types.h"

#define RTL8309N_CPU_ADDR		2
#define RTL8309N_CPU_PAGE		17

/* CPU port control: (2, 16, 17) */
#define RTL8309N_CPU_CTRL_REG		16
#define   RTL8309N_CPU_CTRL_DISABLE	0x0001	/* 1: CPU port function off */
#define   RTL8309N_CPU_CTRL_PORT	0x001E	/* 9: no CPU port */
#define   RTL8309N_CPU_CTRL_TAG_AWARE	0x0020
#define   RTL8309N_CPU_CTRL_TAG_INSERT	0x0040
#define   RTL8309N_CPU_CTRL_TAG_REMOVE	0x0080
#define   RTL8309N_CPU_CTRL_NONCPU_RXTAG 0x0100	/* 1: action 0, 0: action 3 */
#define   RTL8309N_CPU_CTRL_LEARN	0x0200
#define   RTL8309N_CPU_CTRL_NO_CRC	0x0400	/* 1: CRC check off */

/* CPU tag insertion: (2, 17, 17) */
#define RTL8309N_CPU_INSERT_MASK_REG	17
#define   RTL8309N_CPU_INSERT_MASK_PORT(p) RTL8309N_BIT(p)	/* tag frames of port p */

#define RTL8309N_CPU_PORT_NONE		9	/* port number meaning "no CPU port" */
/* Actions for a CPU tag received on another port. */
#define RTL8309N_CPU_NONCPU_RXTAG_ACT_0	0
#define RTL8309N_CPU_NONCPU_RXTAG_ACT_3	3

/* Enable setters take exactly 1 as enable. */
s32 rtl8309n_cpu_enable_set(s32 enabled);
s32 rtl8309n_cpu_enable_get(u32 *penabled);
s32 rtl8309n_cpu_portNumber_set(u32 port);
s32 rtl8309n_cpu_portNumber_get(u32 *pport);
s32 rtl8309n_cpu_cpuTagAwareEnable_set(s32 enabled);
s32 rtl8309n_cpu_cpuTagAwareEnable_get(u32 *penabled);
s32 rtl8309n_cpu_tagInsertEnable_set(s32 enabled);
s32 rtl8309n_cpu_tagInsertEnable_get(u32 *penabled);
s32 rtl8309n_cpu_tagRemoveEnable_set(s32 enabled);
s32 rtl8309n_cpu_tagRemoveEnable_get(u32 *penabled);
s32 rtl8309n_cpu_nonCpuPortRxCpuTag_set(u32 action);
s32 rtl8309n_cpu_nonCpuPortRxCpuTag_get(u32 *paction);
s32 rtl8309n_cpu_learnEnable_set(s32 enabled);
s32 rtl8309n_cpu_learnEnable_get(u32 *penabled);
s32 rtl8309n_cpu_checkCrcEnable_set(s32 enabled);
s32 rtl8309n_cpu_checkCrcEnable_get(u32 *penabled);
/* Port 0..9; 9 names no bit: set writes nothing, get reports 0. */
s32 rtl8309n_cpu_tagInsertMask_set(u32 port, s32 enabled);
s32 rtl8309n_cpu_tagInsertMask_get(u32 port, u32 *penabled);
/* The CPU port (9: none) and whether CPU tags are inserted towards it. */
s32 rtl8309n_cpu_port_get(u32 *pport, u32 *ptag);
/* Make @port (0..8) the CPU port, with CPU-tag insertion when @tag != 0. */
s32 rtl8309n_cpu_port_set(u32 port, u32 tag);

#endif /* RTL8309N_CPU_H */
