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
#include "rtl8309n_regs.h"

#define HIGH	RTL8309N_ACTIVE_HIGH
#define LOW	RTL8309N_ACTIVE_LOW

/* Per port (SMI address = port), page 9. */
#define BW(reg, lsb, width, pol)					\
	{ 0, reg, RTL8309N_BW_PAGE, lsb, width, pol, RTL8309N_PORT_ADDR }

#define RATE(reg)	BW(reg, 0, RTL8309N_BW_RATE_WIDTH, HIGH)

/* By direction: RTL8309N_QOS_INGRESS, RTL8309N_QOS_EGRESS. */
static const struct rtl8309n_regfield bw_port_rate[] = {
	RATE(RTL8309N_BW_IGR_RATE_REG), RATE(RTL8309N_BW_EGR_RATE_REG),
};
static const struct rtl8309n_regfield bw_ifg_include[] = {
	BW(RTL8309N_BW_IGR_CTRL_REG, RTL8309N_BW_IGR_IFG_BIT, 1, HIGH),
	BW(RTL8309N_BW_EGR_CTRL_REG, RTL8309N_BW_EGR_NO_IFG_BIT, 1, LOW),
};
static const struct rtl8309n_regfield bw_port_leaky[] = {
	BW(RTL8309N_BW_IGR_CTRL_REG, RTL8309N_BW_IGR_NO_LEAKY_BIT, 1, LOW),
	BW(RTL8309N_BW_EGR_CTRL_REG, RTL8309N_BW_EGR_LEAKY_BIT, 1, HIGH),
};

/* By queue - 2: only queues 2 and 3 have a rate limit. */
#define BW_FIRST_QUEUE		2
static const struct rtl8309n_regfield bw_queue_rate[] = {
	RATE(RTL8309N_BW_Q2_RATE_REG), RATE(RTL8309N_BW_Q3_RATE_REG),
};
static const struct rtl8309n_regfield bw_queue_leaky[] = {
	BW(RTL8309N_BW_EGR_CTRL_REG, RTL8309N_BW_Q2_LEAKY_BIT, 1, HIGH),
	BW(RTL8309N_BW_EGR_CTRL_REG, RTL8309N_BW_Q3_LEAKY_BIT, 1, HIGH),
};

/* Flow control of SMI address 7, page 16: mostly disable bits. */
#define FLC(reg, pol, index)						\
	{ RTL8309N_FLC_ADDR, reg, RTL8309N_FLC_PAGE, 0, 1, pol, index }
static const struct rtl8309n_regfield flc_port_dsc =
	FLC(RTL8309N_FLC_DSC_OFF_REG, LOW, RTL8309N_PORT_BIT);
static const struct rtl8309n_regfield flc_egress =
	FLC(RTL8309N_FLC_EGR_OFF_REG, LOW, RTL8309N_PORT_BIT);
static const struct rtl8309n_regfield flc_ingress =
	FLC(RTL8309N_FLC_IGR_REG, HIGH, RTL8309N_GLOBAL);

/* Port thresholds, by kind: two whole registers each (the port's own address). */
static const struct rtl8309n_regfield flc_port_thr[RTL8309N_QOS_PORT_THR_KINDS] = {
	{ 0, RTL8309N_FLC_PTHR0_REG, RTL8309N_FLC_PTHR0_PAGE, 0, 16, HIGH, RTL8309N_PORT_ADDR },
	{ 0, RTL8309N_FLC_PTHR1_REG, RTL8309N_FLC_PTHR1_PAGE, 0, 16, HIGH, RTL8309N_PORT_ADDR },
};

RTL8309N_FIELD_ACCESSORS(qos_portRate_IfgIncludeEnable, (u32 sel, u32 port, u32 value),
			 (u32 sel, u32 port, u32 *pvalue), RTL8309N_PICK(bw_ifg_include, sel), port)
RTL8309N_PORT_SEL_ACCESSORS(qos_portLeakyBktEnable, bw_port_leaky, 0)
RTL8309N_PORT_SEL_ACCESSORS(qos_queueLeakyBktEnable, bw_queue_leaky, BW_FIRST_QUEUE)
RTL8309N_PORT_ACCESSORS(qos_portDscFlcEnable, flc_port_dsc)
RTL8309N_PORT_ACCESSORS(qos_egrFlcEnable, flc_egress)
RTL8309N_GLOBAL_ACCESSORS(qos_igrFlcEnable, u32, flc_ingress)

/* ---- Rates ---- */

s32 rtl8309n_qos_portRate_set(u32 port, u32 rate, u32 direction)
{
	if (rate > RTL8309N_QOS_RATE_MAX(port))
		return RT_ERR_FAILED;
	return rtl8309n_regfield_set(RTL8309N_PICK(bw_port_rate, direction), port, rate);
}

s32 rtl8309n_qos_portRate_get(u32 port, u32 *prate, u32 direction)
{
	return rtl8309n_regfield_get(RTL8309N_PICK(bw_port_rate, direction), port, prate);
}

/* A queue's rate owns its register: it is written whole. */
s32 rtl8309n_qos_queueRate_set(u32 port, u32 queue, u32 rate)
{
	const struct rtl8309n_regfield *f = RTL8309N_PICK(bw_queue_rate, queue - BW_FIRST_QUEUE);

	if (!f || port > RTL8309N_MAX_PORT || rate > RTL8309N_QOS_RATE_MAX(port))
		return RT_ERR_FAILED;
	return rtl8309n_reg_set(port, f->regad, f->npage, (u16)rate);
}

s32 rtl8309n_qos_queueRate_get(u32 port, u32 queue, u32 *prate)
{
	return rtl8309n_regfield_get(RTL8309N_PICK(bw_queue_rate, queue - BW_FIRST_QUEUE), port,
				     prate);
}

/* ---- Flow control ---- */

/*
 * Queue flow control disable bits, four per port: ports 0..3 in register
 * 25, ports 4..7 in register 26, and port 8 in bits 15..12 of register 24,
 * beside the per-port egress bits.
 */
static const struct rtl8309n_regfield *queue_flc_field(struct rtl8309n_regfield *f, u32 port,
						       u32 queue)
{
	u32 per_reg = RTL8309N_FLC_QUEUE_PORTS_PER_REG;
	u32 reg, lsb;

	if (port > RTL8309N_MAX_PORT || queue > RTL8309N_QOS_MAX_QUEUE)
		return NULL;
	if (port == RTL8309N_MAX_PORT) {
		reg = RTL8309N_FLC_EGR_OFF_REG;
		lsb = RTL8309N_FLC_CPU_QUEUE_OFF_LSB + queue;
	} else {
		reg = RTL8309N_FLC_QUEUE_OFF_REG + port / per_reg;
		lsb = (port % per_reg) * (RTL8309N_QOS_MAX_QUEUE + 1) + queue;
	}
	*f = (struct rtl8309n_regfield){
		RTL8309N_FLC_ADDR, reg, RTL8309N_FLC_PAGE, lsb, 1, LOW, RTL8309N_GLOBAL,
	};
	return f;
}

s32 rtl8309n_qos_queueFlcEnable_set(u32 port, u32 queue, u32 enabled)
{
	struct rtl8309n_regfield f;

	return rtl8309n_regfield_set(queue_flc_field(&f, port, queue), 0, enabled);
}

s32 rtl8309n_qos_queueFlcEnable_get(u32 port, u32 queue, u32 *penabled)
{
	struct rtl8309n_regfield f;

	return rtl8309n_regfield_get(queue_flc_field(&f, port, queue), 0, penabled);
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

/* Both thresholds are written unchecked, the first then the second. */
s32 rtl8309n_qos_portFlcThr_set(u32 port, u32 thr1, u32 thr2, u32 type)
{
	const struct rtl8309n_regfield *f = RTL8309N_PICK(flc_port_thr, type);

	if (port > RTL8309N_MAX_PORT || !f)
		return RT_ERR_FAILED;

	rtl8309n_reg_set(port, f->regad, f->npage, (u16)thr1);
	rtl8309n_reg_set(port, f->regad + 1, f->npage, (u16)thr2);
	return RT_ERR_OK;
}

s32 rtl8309n_qos_portFlcThr_get(u32 port, u32 *pthr1, u32 *pthr2, u32 type)
{
	const struct rtl8309n_regfield *f = RTL8309N_PICK(flc_port_thr, type);

	if (port > RTL8309N_MAX_PORT || !f || !pthr1 || !pthr2)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(port, f->regad, f->npage, pthr1);
	rtl8309n_reg_get(port, f->regad + 1, f->npage, pthr2);
	return RT_ERR_OK;
}
