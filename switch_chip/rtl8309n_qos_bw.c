// SPDX-License-Identifier: GPL-2.0
/*
 * QoS bandwidth: per-port ingress and egress rate limits with their leaky
 * buckets and inter-frame-gap accounting, rate limits of queues 2 and 3,
 * and flow control (per queue, per port, egress and ingress).
 *
 * Rates (12-bit fields) and flow control thresholds are kept in the chip's
 * own units, unconverted.  The four queue threshold kinds and the two port
 * threshold kinds are placed by register and page only; which on or off
 * level each one is, is up to the caller.
 */
#include "rtl8309n_internal.h"

#define BW_FIELD(reg, mask, kind)						\
	RTL8309N_FIELD(0, reg, RTL8309N_BW_PAGE, mask, kind, RTL8309N_PORT_ADDR)
#define BW_RATE_FIELD(reg)	BW_FIELD(reg, RTL8309N_BW_RATE, RTL8309N_FIELD_VALUE)
#define FLC_FIELD(reg, mask, kind, index)					\
	RTL8309N_FIELD(RTL8309N_FLC_ADDR, reg, RTL8309N_FLC_PAGE, mask, kind, index)

/* By direction: RTL8309N_QOS_INGRESS, RTL8309N_QOS_EGRESS. */
static const struct rtl8309n_field bw_port_rate[] = {
	BW_RATE_FIELD(RTL8309N_BW_IGR_RATE_REG),
	BW_RATE_FIELD(RTL8309N_BW_EGR_RATE_REG),
};

static const struct rtl8309n_field bw_ifg_include[] = {
	BW_FIELD(RTL8309N_BW_IGR_CTRL_REG, RTL8309N_BW_IGR_CTRL_IFG, RTL8309N_FIELD_FLAG),
	BW_FIELD(RTL8309N_BW_EGR_CTRL_REG, RTL8309N_BW_EGR_CTRL_NO_IFG, RTL8309N_FIELD_FLAG_INV),
};

static const struct rtl8309n_field bw_port_leaky[] = {
	BW_FIELD(RTL8309N_BW_IGR_CTRL_REG, RTL8309N_BW_IGR_CTRL_NO_LEAKY, RTL8309N_FIELD_FLAG_INV),
	BW_FIELD(RTL8309N_BW_EGR_CTRL_REG, RTL8309N_BW_EGR_CTRL_LEAKY, RTL8309N_FIELD_FLAG),
};

/* By queue - 2: only queues 2 and 3 have a rate limit. */
#define BW_FIRST_QUEUE		2
static const struct rtl8309n_field bw_queue_rate[] = {
	BW_RATE_FIELD(RTL8309N_BW_Q2_RATE_REG),
	BW_RATE_FIELD(RTL8309N_BW_Q3_RATE_REG),
};

static const struct rtl8309n_field bw_queue_leaky[] = {
	BW_FIELD(RTL8309N_BW_EGR_CTRL_REG, RTL8309N_BW_EGR_CTRL_Q2_LEAKY, RTL8309N_FIELD_FLAG),
	BW_FIELD(RTL8309N_BW_EGR_CTRL_REG, RTL8309N_BW_EGR_CTRL_Q3_LEAKY, RTL8309N_FIELD_FLAG),
};

static const struct rtl8309n_field flc_port_dsc =
	FLC_FIELD(RTL8309N_FLC_DSC_OFF_REG, RTL8309N_FLC_DSC_OFF_PORT(0), RTL8309N_FIELD_FLAG_INV,
		  RTL8309N_PORT_BIT);
static const struct rtl8309n_field flc_egress =
	FLC_FIELD(RTL8309N_FLC_EGR_OFF_REG, RTL8309N_FLC_EGR_OFF_PORT(0), RTL8309N_FIELD_FLAG_INV,
		  RTL8309N_PORT_BIT);
static const struct rtl8309n_field flc_ingress =
	FLC_FIELD(RTL8309N_FLC_IGR_REG, RTL8309N_FLC_IGR_EN, RTL8309N_FIELD_FLAG, RTL8309N_GLOBAL);

/* Port thresholds, by kind: two whole registers each, on the port's own address. */
struct flc_thr_regs {
	u8 reg;
	u8 page;
};

static const struct flc_thr_regs flc_port_thr[RTL8309N_QOS_PORT_THR_KINDS] = {
	{ RTL8309N_FLC_PTHR0_REG, RTL8309N_FLC_PTHR0_PAGE },
	{ RTL8309N_FLC_PTHR1_REG, RTL8309N_FLC_PTHR1_PAGE },
};

/* ---- Rates ---- */

s32 rtl8309n_qos_portRate_set(u32 port, u32 rate, u32 direction)
{
	if (rate > RTL8309N_QOS_RATE_MAX(port))
		return RT_ERR_FAILED;
	return rtl8309n_field_set(RTL8309N_PICK(bw_port_rate, direction), port, rate);
}

s32 rtl8309n_qos_portRate_get(u32 port, u32 *prate, u32 direction)
{
	return rtl8309n_field_get(RTL8309N_PICK(bw_port_rate, direction), port, prate);
}

/* A queue's rate owns its register: it is written whole. */
s32 rtl8309n_qos_queueRate_set(u32 port, u32 queue, u32 rate)
{
	const struct rtl8309n_field *f = RTL8309N_PICK(bw_queue_rate, queue - BW_FIRST_QUEUE);

	if (!f || port > RTL8309N_MAX_PORT || rate > RTL8309N_QOS_RATE_MAX(port))
		return RT_ERR_FAILED;
	return rtl8309n_reg_set(port, f->regad, f->npage, (u16)rate);
}

s32 rtl8309n_qos_queueRate_get(u32 port, u32 queue, u32 *prate)
{
	return rtl8309n_field_get(RTL8309N_PICK(bw_queue_rate, queue - BW_FIRST_QUEUE), port,
				  prate);
}

s32 rtl8309n_qos_portRate_IfgIncludeEnable_set(u32 direction, u32 port, u32 enabled)
{
	return rtl8309n_field_set(RTL8309N_PICK(bw_ifg_include, direction), port, enabled);
}

s32 rtl8309n_qos_portRate_IfgIncludeEnable_get(u32 direction, u32 port, u32 *penabled)
{
	return rtl8309n_field_get(RTL8309N_PICK(bw_ifg_include, direction), port, penabled);
}

s32 rtl8309n_qos_portLeakyBktEnable_set(u32 port, u32 direction, u32 enabled)
{
	return rtl8309n_field_set(RTL8309N_PICK(bw_port_leaky, direction), port, enabled);
}

s32 rtl8309n_qos_portLeakyBktEnable_get(u32 port, u32 direction, u32 *penabled)
{
	return rtl8309n_field_get(RTL8309N_PICK(bw_port_leaky, direction), port, penabled);
}

s32 rtl8309n_qos_queueLeakyBktEnable_set(u32 port, u32 queue, u32 enabled)
{
	return rtl8309n_field_set(RTL8309N_PICK(bw_queue_leaky, queue - BW_FIRST_QUEUE), port,
				  enabled);
}

s32 rtl8309n_qos_queueLeakyBktEnable_get(u32 port, u32 queue, u32 *penabled)
{
	return rtl8309n_field_get(RTL8309N_PICK(bw_queue_leaky, queue - BW_FIRST_QUEUE), port,
				  penabled);
}

/* ---- Flow control ---- */

/*
 * Queue flow control disable bits, four per port: ports 0..3 in register
 * 25, ports 4..7 in register 26, and port 8 in bits 15..12 of register 24,
 * beside the per-port egress bits.
 */
static const struct rtl8309n_field *queue_flc_field(struct rtl8309n_field *f, u32 port,
						    u32 queue)
{
	u32 per_reg = RTL8309N_FLC_QUEUE_PORTS_PER_REG;

	if (port > RTL8309N_MAX_PORT || queue > RTL8309N_QOS_MAX_QUEUE)
		return NULL;
	if (port == RTL8309N_MAX_PORT)
		*f = (struct rtl8309n_field)
			FLC_FIELD(RTL8309N_FLC_EGR_OFF_REG, RTL8309N_FLC_EGR_OFF_CPU_QUEUE(queue),
				  RTL8309N_FIELD_FLAG_INV, RTL8309N_GLOBAL);
	else
		*f = (struct rtl8309n_field)
			FLC_FIELD(RTL8309N_FLC_QUEUE_OFF_REG + port / per_reg,
				  RTL8309N_FLC_QUEUE_OFF(port % per_reg, queue),
				  RTL8309N_FIELD_FLAG_INV, RTL8309N_GLOBAL);
	return f;
}

s32 rtl8309n_qos_queueFlcEnable_set(u32 port, u32 queue, u32 enabled)
{
	struct rtl8309n_field f;

	return rtl8309n_field_set(queue_flc_field(&f, port, queue), 0, enabled);
}

s32 rtl8309n_qos_queueFlcEnable_get(u32 port, u32 queue, u32 *penabled)
{
	struct rtl8309n_field f;

	return rtl8309n_field_get(queue_flc_field(&f, port, queue), 0, penabled);
}

/*
 * Queue thresholds: register 16 + 2q for even kinds, 17 + 2q for odd ones,
 * on page 11 (kinds 0, 1) or 12 (kinds 2, 3); written whole.
 */
static u32 queue_thr_reg(u32 queue, u32 type)
{
	return RTL8309N_FLC_QTHR_REG + 2 * queue + type % 2;
}

static u32 queue_thr_page(u32 type)
{
	return RTL8309N_FLC_QTHR_PAGE + type / 2;
}

s32 rtl8309n_qos_queueFlcThr_set(u32 port, u32 queue, u32 type, u32 thr)
{
	if (port > RTL8309N_MAX_PORT || queue > RTL8309N_QOS_MAX_QUEUE ||
	    thr > RTL8309N_QOS_MAX_FLC_THR || type >= RTL8309N_QOS_FLC_THR_KINDS)
		return RT_ERR_FAILED;
	return rtl8309n_reg_set(port, queue_thr_reg(queue, type), queue_thr_page(type), (u16)thr);
}

s32 rtl8309n_qos_queueFlcThr_get(u32 port, u32 queue, u32 type, u32 *pthr)
{
	if (port > RTL8309N_MAX_PORT || queue > RTL8309N_QOS_MAX_QUEUE ||
	    type >= RTL8309N_QOS_FLC_THR_KINDS || !pthr)
		return RT_ERR_FAILED;

	*pthr = 0;
	return rtl8309n_reg_get(port, queue_thr_reg(queue, type), queue_thr_page(type), pthr);
}

s32 rtl8309n_qos_portDscFlcEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&flc_port_dsc, port, enabled);
}

s32 rtl8309n_qos_portDscFlcEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&flc_port_dsc, port, penabled);
}

s32 rtl8309n_qos_egrFlcEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&flc_egress, port, enabled);
}

s32 rtl8309n_qos_egrFlcEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&flc_egress, port, penabled);
}

/* Both thresholds are written unchecked, the first then the second. */
s32 rtl8309n_qos_portFlcThr_set(u32 port, u32 thr1, u32 thr2, u32 type)
{
	const struct flc_thr_regs *t = RTL8309N_PICK(flc_port_thr, type);

	if (port > RTL8309N_MAX_PORT || !t)
		return RT_ERR_FAILED;

	rtl8309n_reg_set(port, t->reg, t->page, (u16)thr1);
	rtl8309n_reg_set(port, t->reg + 1, t->page, (u16)thr2);
	return RT_ERR_OK;
}

s32 rtl8309n_qos_portFlcThr_get(u32 port, u32 *pthr1, u32 *pthr2, u32 type)
{
	const struct flc_thr_regs *t = RTL8309N_PICK(flc_port_thr, type);

	if (port > RTL8309N_MAX_PORT || !t || !pthr1 || !pthr2)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(port, t->reg, t->page, pthr1);
	rtl8309n_reg_get(port, t->reg + 1, t->page, pthr2);
	return RT_ERR_OK;
}

s32 rtl8309n_qos_igrFlcEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&flc_ingress, 0, enabled);
}

s32 rtl8309n_qos_igrFlcEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&flc_ingress, 0, penabled);
}
