/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N interrupt and storm-filter block: the interrupt controller
 * (global enable, source mask, status) and the per-port storm filters.
 */
#ifndef RTL8309N_INTR_STORM_H
#define RTL8309N_INTR_STORM_H

#include "rtl8309n_types.h"

/* Interrupt controller: SMI address 0, page 17 */
#define RTL8309N_INTR_ADDR			0
#define RTL8309N_INTR_PAGE			17
#define RTL8309N_INTR_CTRL_REG			16
#define   RTL8309N_INTR_CTRL_SOURCES		0x1FFF	/* bit s: source s enabled */
#define   RTL8309N_INTR_CTRL_EN			0x8000
#define RTL8309N_INTR_STATUS_REG		17	/* bit s: source s pending */

/*
 * Storm filters of a port: (port, reg, 8).  Each filter is a control
 * register with its rate and second value in the two registers above;
 * storm types 1 and 2 share one filter.
 */
#define RTL8309N_STORM_PAGE			8
#define RTL8309N_STORM3_CTRL_REG		16
#define RTL8309N_STORM12_CTRL_REG		19
#define RTL8309N_STORM0_CTRL_REG		22
#define   RTL8309N_STORM_CTRL_EN		0x0001
#define   RTL8309N_STORM_CTRL_FLAG		0x0002
#define   RTL8309N_STORM_CTRL_STATUS		0x0004
#define   RTL8309N_STORM_CTRL_TYPE2		0x0008	/* shared filter: 1 serves type 2 */
#define   RTL8309N_STORM_CTRL_RATE_BIT16	0x8000	/* bit 16 of the rate */
#define RTL8309N_STORM_RATE_OFS			1	/* rate bits 15..0 */
#define RTL8309N_STORM_PARAM_OFS		2

/* One flag for all ports and types: (6, 16, 14) */
#define RTL8309N_STORM_GLB_ADDR			6
#define RTL8309N_STORM_GLB_REG			16
#define RTL8309N_STORM_GLB_PAGE			14
#define   RTL8309N_STORM_GLB_FLAG		0x0001

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

#endif /* RTL8309N_INTR_STORM_H */
