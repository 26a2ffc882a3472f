// SPDX-License-Identifier: GPL-2.0
/*
 * QoS priorities: the number of output queues, the per-port map from
 * internal priority (0..3) to queue, the priority sources (port, 802.1Q
 * tag, DSCP, IP address, ACL) with their enables and arbitration weights,
 * 802.1p re-marking, and the per-port queue schedulers.
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

#define HIGH	RTL8309N_ACTIVE_HIGH
#define LOW	RTL8309N_ACTIVE_LOW

static const struct rtl8309n_regfield qos_soft_reset =
	RTL8309N_GLOBAL_FIELD(RTL8309N_QOS_RESET_ADDR, RTL8309N_QOS_RESET_REG,
			      RTL8309N_QOS_RESET_PAGE, RTL8309N_QOS_RESET_BIT, 1);

/* Stored as the number of queues - 1. */
static const struct rtl8309n_regfield qos_queue_num =
	RTL8309N_GLOBAL_FIELD(RTL8309N_QOS_ADDR, RTL8309N_QOS_QNUM_REG, RTL8309N_QOS_PAGE, 0, 2);

/* Queue of internal priority p in (6, 17 + port, 16): priority 0 on top. */
#define QMAP(lsb)							\
	{ RTL8309N_QOS_MAP_ADDR, RTL8309N_QOS_QMAP_REG, RTL8309N_QOS_PAGE,	\
	  lsb, 2, HIGH, RTL8309N_PORT_REG }
static const struct rtl8309n_regfield qos_qmap[RTL8309N_QOS_MAX_PRI + 1] = {
	QMAP(6), QMAP(4), QMAP(2), QMAP(0),
};

/* 802.1p value written into the egress tag for internal priority p. */
#define REMARK(p)							\
	{ RTL8309N_QOS_MAP_ADDR, RTL8309N_QOS_1P_REMARK_REG, RTL8309N_QOS_PAGE,	\
	  (p) * RTL8309N_QOS_1P_REMARK_WIDTH, RTL8309N_QOS_1P_REMARK_WIDTH,	\
	  HIGH, RTL8309N_GLOBAL }
static const struct rtl8309n_regfield qos_1p_remark[RTL8309N_QOS_MAX_PRI + 1] = {
	REMARK(0), REMARK(1), REMARK(2), REMARK(3),
};

/* Per port, page 10. */
#define PORT_PRI(reg, lsb, width, pol)					\
	{ 0, reg, RTL8309N_QOS_PORT_PAGE, lsb, width, pol, RTL8309N_PORT_ADDR }
static const struct rtl8309n_regfield qos_1p_remark_en =
	PORT_PRI(RTL8309N_QOS_SRC_REG, RTL8309N_QOS_1P_REMARK_EN_BIT, 1, HIGH);
static const struct rtl8309n_regfield qos_port_pri =
	PORT_PRI(RTL8309N_QOS_PORT_PRI_REG, 0, 2, HIGH);
static const struct rtl8309n_regfield qos_1q_pri_bit2 =
	PORT_PRI(RTL8309N_QOS_1Q_PORT_PRI_REG, RTL8309N_QOS_1Q_PORT_PRI_BIT2, 1, HIGH);

/*
 * Disable bit of each priority source, by register-layer code.  Codes 0, 5
 * and 6 name no source: the setter writes nothing, the getter reports 0.
 */
#define SRC_OFF(bit)	PORT_PRI(RTL8309N_QOS_SRC_REG, bit, 1, LOW)
static const struct rtl8309n_regfield qos_src[RTL8309N_PRISRC_ACL + 1] = {
	[0] = RTL8309N_REGFIELD_NONE(RTL8309N_PORT_ADDR),
	[RTL8309N_PRISRC_PORT] = SRC_OFF(RTL8309N_QOS_SRC_PORT_OFF_BIT),
	[RTL8309N_PRISRC_DOT1Q] = SRC_OFF(RTL8309N_QOS_SRC_1Q_OFF_BIT),
	[RTL8309N_PRISRC_DSCP] = SRC_OFF(RTL8309N_QOS_SRC_DSCP_OFF_BIT),
	[RTL8309N_PRISRC_IP_ADDR] = SRC_OFF(RTL8309N_QOS_SRC_IP_OFF_BIT),
	[5] = RTL8309N_REGFIELD_NONE(RTL8309N_PORT_ADDR),
	[6] = RTL8309N_REGFIELD_NONE(RTL8309N_PORT_ADDR),
	[RTL8309N_PRISRC_ACL] = SRC_OFF(RTL8309N_QOS_SRC_ACL_OFF_BIT),
};

/* IP-address entries A and B share (4, 22, 16), B four bits above A. */
#define IP_CTRL(entry, lsb, width)					\
	{ RTL8309N_QOS_IP_ADDR, RTL8309N_QOS_IP_CTRL_REG, RTL8309N_QOS_PAGE,	\
	  (lsb) + (entry) * RTL8309N_QOS_IP_ENTRY_SHIFT, width, HIGH, RTL8309N_GLOBAL }
static const struct rtl8309n_regfield qos_ip_en[] = {
	IP_CTRL(RTL8309N_QOS_IP_ENTRY_A, RTL8309N_QOS_IP_EN_BIT, 1),
	IP_CTRL(RTL8309N_QOS_IP_ENTRY_B, RTL8309N_QOS_IP_EN_BIT, 1),
};
static const struct rtl8309n_regfield qos_ip_pri[] = {
	IP_CTRL(RTL8309N_QOS_IP_ENTRY_A, RTL8309N_QOS_IP_PRI_LSB, 2),
	IP_CTRL(RTL8309N_QOS_IP_ENTRY_B, RTL8309N_QOS_IP_PRI_LSB, 2),
};

/* Strict-priority flag of queue q, above the queue's WRR weight (page 9). */
#define STRICT(q)							\
	{ 0, RTL8309N_QOS_SCHED_REG + (q) / 2, RTL8309N_QOS_SCHED_PAGE,	\
	  RTL8309N_QOS_SCHED_STRICT_BIT + ((q) % 2) * RTL8309N_QOS_SCHED_UPPER_SHIFT, 1, \
	  HIGH, RTL8309N_PORT_ADDR }
static const struct rtl8309n_regfield qos_strict[RTL8309N_QOS_MAX_QUEUE + 1] = {
	STRICT(0), STRICT(1), STRICT(2), STRICT(3),
};

RTL8309N_PORT_SEL_ACCESSORS(qos_priToQueMap, qos_qmap, 0)
RTL8309N_SEL_ACCESSORS(qos_1pRemark, qos_1p_remark)
RTL8309N_PORT_ACCESSORS(qos_1pRemarkEnable, qos_1p_remark_en)
RTL8309N_PORT_ACCESSORS(qos_portPri, qos_port_pri)
RTL8309N_PORT_SEL_ACCESSORS(qos_priSrcEnable, qos_src, 0)
RTL8309N_SEL_ACCESSORS(qos_ipAddrPriEnable, qos_ip_en)
RTL8309N_PORT_SEL_ACCESSORS(qos_queueStrictPriEnable, qos_strict, 0)

/* ---- Queues ---- */

s32 rtl8309n_qos_softReset_set(void)
{
	return rtl8309n_regfield_set(&qos_soft_reset, 0, RTL8309N_ENABLED);
}

/* The new count takes effect through the soft reset, always the last write. */
s32 rtl8309n_qos_queueNum_set(u32 num)
{
	/* 0 wraps round to a count the field refuses */
	if (rtl8309n_regfield_set(&qos_queue_num, 0, num - 1) != RT_ERR_OK)
		return RT_ERR_FAILED;
	return rtl8309n_qos_softReset_set();
}

s32 rtl8309n_qos_queueNum_get(u32 *pnum)
{
	s32 ret = rtl8309n_regfield_get(&qos_queue_num, 0, pnum);

	if (ret == RT_ERR_OK)
		(*pnum)++;
	return ret;
}

/* ---- Priority sources ---- */

/*
 * The register holds a 3-bit tag priority of which this library uses 0..3:
 * bit 2 is cleared by a separate write first, then @pri is OR-ed in as
 * given (callers keep it within 0..3).  A port whose bit 2 is set has a
 * priority the getter cannot name, and it fails.
 */
s32 rtl8309n_qos_1QPortPri_set(u32 port, u32 pri)
{
	if (rtl8309n_regfield_set(&qos_1q_pri_bit2, port, RTL8309N_DISABLED) != RT_ERR_OK)
		return RT_ERR_FAILED;
	return rtl8309n_reg_update(port, RTL8309N_QOS_1Q_PORT_PRI_REG, RTL8309N_QOS_PORT_PAGE,
				   RTL8309N_FIELD_MASK(2), pri);
}

s32 rtl8309n_qos_1QPortPri_get(u32 port, u32 *ppri)
{
	u32 data = 0;

	if (port > RTL8309N_MAX_PORT || !ppri)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(port, RTL8309N_QOS_1Q_PORT_PRI_REG, RTL8309N_QOS_PORT_PAGE, &data);
	if (data & (1u << RTL8309N_QOS_1Q_PORT_PRI_BIT2))
		return RT_ERR_FAILED;
	*ppri = data & RTL8309N_FIELD_MASK(2);
	return RT_ERR_OK;
}

/* Entry @i of a 2-bit remapping table of SMI address 5, eight to a register. */
static const struct rtl8309n_regfield *remap_field(struct rtl8309n_regfield *f, u32 first_reg,
						   u32 entries, u32 i)
{
	if (i >= entries)
		return NULL;
	*f = (struct rtl8309n_regfield){
		RTL8309N_QOS_ADDR, first_reg + i / 8, RTL8309N_QOS_PAGE, 2 * (i % 8), 2,
		HIGH, RTL8309N_GLOBAL,
	};
	return f;
}

static s32 remap_set(u32 first_reg, u32 entries, u32 i, u32 pri)
{
	struct rtl8309n_regfield f;

	return rtl8309n_regfield_set(remap_field(&f, first_reg, entries, i), 0, pri);
}

static s32 remap_get(u32 first_reg, u32 entries, u32 i, u32 *ppri)
{
	struct rtl8309n_regfield f;

	return rtl8309n_regfield_get(remap_field(&f, first_reg, entries, i), 0, ppri);
}

s32 rtl8309n_qos_1pPriRemap_set(u32 dot1p, u32 pri)
{
	return remap_set(RTL8309N_QOS_1P_REMAP_REG, RTL8309N_QOS_MAX_1P + 1, dot1p, pri);
}

s32 rtl8309n_qos_1pPriRemap_get(u32 dot1p, u32 *ppri)
{
	return remap_get(RTL8309N_QOS_1P_REMAP_REG, RTL8309N_QOS_MAX_1P + 1, dot1p, ppri);
}

s32 rtl8309n_qos_dscpPriRemap_set(u32 dscp, u32 pri)
{
	return remap_set(RTL8309N_QOS_DSCP_REMAP_REG, RTL8309N_QOS_MAX_DSCP + 1, dscp, pri);
}

s32 rtl8309n_qos_dscpPriRemap_get(u32 dscp, u32 *ppri)
{
	return remap_get(RTL8309N_QOS_DSCP_REMAP_REG, RTL8309N_QOS_MAX_DSCP + 1, dscp, ppri);
}

/*
 * The chip keeps the four weights interleaved: 2-bit slots from bit 0 of
 * (5, 17, 16) up hold weights 0, 3, 1, 2.  The setter checks them in that
 * same order, before any access.
 */
static const u8 arbit_slot_weight[RTL8309N_WEIGHT_NUM] = {
	RTL8309N_WEIGHT_PORT, RTL8309N_WEIGHT_ACL, RTL8309N_WEIGHT_DOT1Q, RTL8309N_WEIGHT_DSCP,
};

#define ARBIT_WEIGHT_MAX	3

s32 rtl8309n_qos_priSrcArbit_set(const rtl8309n_qos_priArbitPara_t *pweights)
{
	u32 bits = 0;
	u32 slot;

	if (!pweights)
		return RT_ERR_FAILED;
	for (slot = 0; slot < RTL8309N_WEIGHT_NUM; slot++) {
		u32 weight = pweights->weight[arbit_slot_weight[slot]];

		if (weight > ARBIT_WEIGHT_MAX)
			return RT_ERR_FAILED;
		bits |= weight << (2 * slot);
	}
	return rtl8309n_lsb_field_set(RTL8309N_QOS_ADDR, RTL8309N_QOS_ARBIT_REG, RTL8309N_QOS_PAGE,
				  0, 2 * RTL8309N_WEIGHT_NUM, bits);
}

s32 rtl8309n_qos_priSrcArbit_get(rtl8309n_qos_priArbitPara_t *pweights)
{
	u32 data = 0;
	u32 slot;

	if (!pweights)
		return RT_ERR_FAILED;
	for (slot = 0; slot < RTL8309N_WEIGHT_NUM; slot++)
		pweights->weight[slot] = 0;

	rtl8309n_reg_get(RTL8309N_QOS_ADDR, RTL8309N_QOS_ARBIT_REG, RTL8309N_QOS_PAGE, &data);
	for (slot = 0; slot < RTL8309N_WEIGHT_NUM; slot++)
		pweights->weight[arbit_slot_weight[slot]] = (data >> (2 * slot)) & ARBIT_WEIGHT_MAX;
	return RT_ERR_OK;
}

/* ---- IP-address priority ---- */

/*
 * @pri is compared as a signed number, and what passes is OR-ed in
 * unmasked: a negative priority spills over the neighbouring bits.  Callers
 * of the chip library depend on exactly this, so it is not tightened.
 */
s32 rtl8309n_qos_ipAddrPri_set(u32 entry, s32 pri)
{
	const struct rtl8309n_regfield *f = RTL8309N_PICK(qos_ip_pri, entry);

	if (!f || pri > RTL8309N_QOS_MAX_PRI)
		return RT_ERR_FAILED;
	return rtl8309n_reg_update(f->phyad, f->regad, f->npage,
				   RTL8309N_FIELD_MASK(f->width) << f->lsb, (u32)pri << f->lsb);
}

s32 rtl8309n_qos_ipAddrPri_get(u32 entry, u32 *ppri)
{
	return rtl8309n_regfield_get(RTL8309N_PICK(qos_ip_pri, entry), 0, ppri);
}

/* A 32-bit value in two registers, low half first. */
static void ip_word_set(u32 reg, u32 value)
{
	rtl8309n_reg_set(RTL8309N_QOS_IP_ADDR, reg, RTL8309N_QOS_PAGE, (u16)value);
	rtl8309n_reg_set(RTL8309N_QOS_IP_ADDR, reg + 1, RTL8309N_QOS_PAGE, (u16)(value >> 16));
}

static u32 ip_word_get(u32 reg)
{
	u32 lo = 0, hi = 0;

	rtl8309n_reg_get(RTL8309N_QOS_IP_ADDR, reg, RTL8309N_QOS_PAGE, &lo);
	rtl8309n_reg_get(RTL8309N_QOS_IP_ADDR, reg + 1, RTL8309N_QOS_PAGE, &hi);
	return lo + (hi << 16);
}

/* Entry e: address in registers 23 + 4e and 24 + 4e, mask in the next two. */
static u32 ip_entry_reg(u32 entry)
{
	return RTL8309N_QOS_IP_DATA_REG + entry * RTL8309N_QOS_IP_DATA_REGS;
}

s32 rtl8309n_qos_ipAddr_set(u32 entry, u32 ipaddr, u32 ipmask)
{
	if (entry > RTL8309N_QOS_IP_ENTRY_B)
		return RT_ERR_FAILED;

	ip_word_set(ip_entry_reg(entry), ipaddr);
	ip_word_set(ip_entry_reg(entry) + 2, ipmask);
	return RT_ERR_OK;
}

s32 rtl8309n_qos_ipAddr_get(u32 entry, u32 *pipaddr, u32 *pipmask)
{
	if (entry > RTL8309N_QOS_IP_ENTRY_B || !pipaddr || !pipmask)
		return RT_ERR_FAILED;

	*pipaddr = ip_word_get(ip_entry_reg(entry));
	*pipmask = ip_word_get(ip_entry_reg(entry) + 2);
	return RT_ERR_OK;
}

/* ---- Queue scheduler ---- */

/*
 * Queues 2q and 2q + 1 share register 17 + q of page 9: a 7-bit weight each,
 * under their strict-priority flags, which weight writes keep.
 */
s32 rtl8309n_qos_queueWrr_set(u32 port, struct rtl8309n_qos_queueWeight weights)
{
	const u8 *w = weights.weight;
	u32 q;

	if (port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;
	for (q = 0; q <= RTL8309N_QOS_MAX_QUEUE; q++)
		if (w[q] > RTL8309N_QOS_MAX_WRR_WEIGHT)
			return RT_ERR_FAILED;

	for (q = 0; q <= RTL8309N_QOS_MAX_QUEUE; q += 2)
		rtl8309n_reg_update(port, RTL8309N_QOS_SCHED_REG + q / 2, RTL8309N_QOS_SCHED_PAGE,
				    RTL8309N_QOS_SCHED_WEIGHTS,
				    w[q] | (u32)w[q + 1] << RTL8309N_QOS_SCHED_UPPER_SHIFT);
	return RT_ERR_OK;
}

s32 rtl8309n_qos_queueWrr_get(u32 port, struct rtl8309n_qos_queueWeight *pweights)
{
	u32 data = 0;
	u32 q;

	if (port > RTL8309N_MAX_PORT || !pweights)
		return RT_ERR_FAILED;

	for (q = 0; q <= RTL8309N_QOS_MAX_QUEUE; q += 2) {
		rtl8309n_reg_get(port, RTL8309N_QOS_SCHED_REG + q / 2, RTL8309N_QOS_SCHED_PAGE,
				 &data);
		pweights->weight[q] = data & RTL8309N_QOS_MAX_WRR_WEIGHT;
		pweights->weight[q + 1] =
			(data >> RTL8309N_QOS_SCHED_UPPER_SHIFT) & RTL8309N_QOS_MAX_WRR_WEIGHT;
	}
	return RT_ERR_OK;
}
