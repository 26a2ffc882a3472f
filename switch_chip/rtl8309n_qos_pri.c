// SPDX-License-Identifier: GPL-2.0
/*
 * QoS priorities: the number of output queues, the per-port map from
 * internal priority (0..3) to queue, the priority sources (port, 802.1Q
 * tag, DSCP, IP address, ACL) with their enables and arbitration weights,
 * 802.1p re-marking, and the per-port queue schedulers.
 */
#include "rtl8309n_internal.h"

#define QOS_GLOBAL_FIELD(reg, mask, kind)					\
	RTL8309N_FIELD(RTL8309N_QOS_ADDR, reg, RTL8309N_QOS_PAGE, mask, kind, RTL8309N_GLOBAL)
#define QOS_MAP_FIELD(reg, mask, index)						\
	RTL8309N_FIELD(RTL8309N_QOS_MAP_ADDR, reg, RTL8309N_QOS_PAGE, mask,	\
		       RTL8309N_FIELD_VALUE, index)
#define QOS_IP_CTRL_FIELD(mask, kind)						\
	RTL8309N_FIELD(RTL8309N_QOS_IP_ADDR, RTL8309N_QOS_IP_CTRL_REG, RTL8309N_QOS_PAGE,	\
		       mask, kind, RTL8309N_GLOBAL)
#define QOS_PORT_FIELD(reg, mask, kind)						\
	RTL8309N_FIELD(0, reg, RTL8309N_QOS_PORT_PAGE, mask, kind, RTL8309N_PORT_ADDR)
#define QOS_SCHED_FIELD(reg, mask)						\
	RTL8309N_FIELD(0, reg, RTL8309N_QOS_SCHED_PAGE, mask, RTL8309N_FIELD_FLAG,	\
		       RTL8309N_PORT_ADDR)

static const struct rtl8309n_field qos_soft_reset =
	RTL8309N_FIELD(RTL8309N_QOS_RESET_ADDR, RTL8309N_QOS_RESET_REG, RTL8309N_QOS_RESET_PAGE,
		       RTL8309N_QOS_RESET, RTL8309N_FIELD_FLAG, RTL8309N_GLOBAL);
static const struct rtl8309n_field qos_queue_num =
	QOS_GLOBAL_FIELD(RTL8309N_QOS_QNUM_REG, RTL8309N_QOS_QNUM, RTL8309N_FIELD_VALUE);

/* By internal priority. */
#define QOS_QMAP_FIELD(p)	\
	QOS_MAP_FIELD(RTL8309N_QOS_QMAP_REG, RTL8309N_QOS_QMAP_PRI(p), RTL8309N_PORT_REG)
static const struct rtl8309n_field qos_qmap[RTL8309N_QOS_MAX_PRI + 1] = {
	QOS_QMAP_FIELD(0), QOS_QMAP_FIELD(1), QOS_QMAP_FIELD(2), QOS_QMAP_FIELD(3),
};

/* 802.1p value written into the egress tag, by internal priority. */
#define QOS_REMARK_FIELD(p)	\
	QOS_MAP_FIELD(RTL8309N_QOS_1P_REMARK_REG, RTL8309N_QOS_1P_REMARK(p), RTL8309N_GLOBAL)
static const struct rtl8309n_field qos_1p_remark[RTL8309N_QOS_MAX_PRI + 1] = {
	QOS_REMARK_FIELD(0), QOS_REMARK_FIELD(1), QOS_REMARK_FIELD(2), QOS_REMARK_FIELD(3),
};

static const struct rtl8309n_field qos_1p_remark_en =
	QOS_PORT_FIELD(RTL8309N_QOS_SRC_REG, RTL8309N_QOS_SRC_1P_REMARK_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field qos_port_pri =
	QOS_PORT_FIELD(RTL8309N_QOS_PORT_PRI_REG, RTL8309N_QOS_PORT_PRI, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field qos_1q_pri_upper =
	QOS_PORT_FIELD(RTL8309N_QOS_1Q_PORT_PRI_REG, RTL8309N_QOS_1Q_PORT_PRI_UPPER,
		       RTL8309N_FIELD_FLAG);

/*
 * Disable bit of each priority source, by register-layer code.  Codes 0, 5
 * and 6 name no source: the setter writes nothing, the getter reports 0.
 */
#define QOS_SRC_FIELD(mask)	\
	QOS_PORT_FIELD(RTL8309N_QOS_SRC_REG, mask, RTL8309N_FIELD_FLAG_INV)
static const struct rtl8309n_field qos_src[RTL8309N_PRISRC_ACL + 1] = {
	[0] = RTL8309N_NO_FIELD(RTL8309N_PORT_ADDR),
	[RTL8309N_PRISRC_PORT] = QOS_SRC_FIELD(RTL8309N_QOS_SRC_PORT_OFF),
	[RTL8309N_PRISRC_DOT1Q] = QOS_SRC_FIELD(RTL8309N_QOS_SRC_1Q_OFF),
	[RTL8309N_PRISRC_DSCP] = QOS_SRC_FIELD(RTL8309N_QOS_SRC_DSCP_OFF),
	[RTL8309N_PRISRC_IP_ADDR] = QOS_SRC_FIELD(RTL8309N_QOS_SRC_IP_OFF),
	[5] = RTL8309N_NO_FIELD(RTL8309N_PORT_ADDR),
	[6] = RTL8309N_NO_FIELD(RTL8309N_PORT_ADDR),
	[RTL8309N_PRISRC_ACL] = QOS_SRC_FIELD(RTL8309N_QOS_SRC_ACL_OFF),
};

/* By entry: RTL8309N_QOS_IP_ENTRY_A, RTL8309N_QOS_IP_ENTRY_B. */
static const struct rtl8309n_field qos_ip_en[] = {
	QOS_IP_CTRL_FIELD(RTL8309N_QOS_IP_CTRL_EN_A, RTL8309N_FIELD_FLAG),
	QOS_IP_CTRL_FIELD(RTL8309N_QOS_IP_CTRL_EN_B, RTL8309N_FIELD_FLAG),
};

static const struct rtl8309n_field qos_ip_pri[] = {
	QOS_IP_CTRL_FIELD(RTL8309N_QOS_IP_CTRL_PRI_A, RTL8309N_FIELD_VALUE),
	QOS_IP_CTRL_FIELD(RTL8309N_QOS_IP_CTRL_PRI_B, RTL8309N_FIELD_VALUE),
};

/* Strict-priority flag of each queue, above the queue's WRR weight. */
static const struct rtl8309n_field qos_strict[RTL8309N_QOS_MAX_QUEUE + 1] = {
	QOS_SCHED_FIELD(RTL8309N_QOS_SCHED_REG, RTL8309N_QOS_SCHED_STRICT_EVEN),
	QOS_SCHED_FIELD(RTL8309N_QOS_SCHED_REG, RTL8309N_QOS_SCHED_STRICT_ODD),
	QOS_SCHED_FIELD(RTL8309N_QOS_SCHED_REG + 1, RTL8309N_QOS_SCHED_STRICT_EVEN),
	QOS_SCHED_FIELD(RTL8309N_QOS_SCHED_REG + 1, RTL8309N_QOS_SCHED_STRICT_ODD),
};

/* ---- Queues ---- */

s32 rtl8309n_qos_softReset_set(void)
{
	return rtl8309n_field_set(&qos_soft_reset, 0, RTL8309N_ENABLED);
}

/* The new count takes effect through the soft reset, always the last write. */
s32 rtl8309n_qos_queueNum_set(u32 num)
{
	/* 0 wraps round to a count the field refuses */
	if (rtl8309n_field_set(&qos_queue_num, 0, num - 1) != RT_ERR_OK)
		return RT_ERR_FAILED;
	return rtl8309n_qos_softReset_set();
}

s32 rtl8309n_qos_queueNum_get(u32 *pnum)
{
	s32 ret = rtl8309n_field_get(&qos_queue_num, 0, pnum);

	if (ret == RT_ERR_OK)
		(*pnum)++;
	return ret;
}

s32 rtl8309n_qos_priToQueMap_set(u32 port, u32 pri, u32 queue)
{
	return rtl8309n_field_set(RTL8309N_PICK(qos_qmap, pri), port, queue);
}

s32 rtl8309n_qos_priToQueMap_get(u32 port, u32 pri, u32 *pqueue)
{
	return rtl8309n_field_get(RTL8309N_PICK(qos_qmap, pri), port, pqueue);
}

/* ---- 802.1p re-marking ---- */

s32 rtl8309n_qos_1pRemarkEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&qos_1p_remark_en, port, enabled);
}

s32 rtl8309n_qos_1pRemarkEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&qos_1p_remark_en, port, penabled);
}

s32 rtl8309n_qos_1pRemark_set(u32 pri, u32 dot1p)
{
	return rtl8309n_field_set(RTL8309N_PICK(qos_1p_remark, pri), 0, dot1p);
}

s32 rtl8309n_qos_1pRemark_get(u32 pri, u32 *pdot1p)
{
	return rtl8309n_field_get(RTL8309N_PICK(qos_1p_remark, pri), 0, pdot1p);
}

/* ---- Priority sources ---- */

s32 rtl8309n_qos_portPri_set(u32 port, u32 pri)
{
	return rtl8309n_field_set(&qos_port_pri, port, pri);
}

s32 rtl8309n_qos_portPri_get(u32 port, u32 *ppri)
{
	return rtl8309n_field_get(&qos_port_pri, port, ppri);
}

/*
 * The register holds a 3-bit tag priority of which this library uses 0..3:
 * the upper bit is cleared by a separate write first, then @pri is OR-ed
 * in as given (callers keep it within 0..3).  A port whose upper bit is set
 * has a priority the getter cannot name, and it fails.
 */
s32 rtl8309n_qos_1QPortPri_set(u32 port, u32 pri)
{
	if (rtl8309n_field_set(&qos_1q_pri_upper, port, RTL8309N_DISABLED) != RT_ERR_OK)
		return RT_ERR_FAILED;
	return rtl8309n_reg_update(port, RTL8309N_QOS_1Q_PORT_PRI_REG, RTL8309N_QOS_PORT_PAGE,
				   RTL8309N_QOS_1Q_PORT_PRI, pri);
}

s32 rtl8309n_qos_1QPortPri_get(u32 port, u32 *ppri)
{
	u32 data = 0;

	if (port > RTL8309N_MAX_PORT || !ppri)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(port, RTL8309N_QOS_1Q_PORT_PRI_REG, RTL8309N_QOS_PORT_PAGE, &data);
	if (data & RTL8309N_QOS_1Q_PORT_PRI_UPPER)
		return RT_ERR_FAILED;
	*ppri = rtl8309n_field_extract(RTL8309N_QOS_1Q_PORT_PRI, data);
	return RT_ERR_OK;
}

/* Entry @i of a remapping table of SMI address 5, from @first_reg on. */
static const struct rtl8309n_field *remap_field(struct rtl8309n_field *f, u32 first_reg,
						u32 entries, u32 i)
{
	if (i >= entries)
		return NULL;
	*f = (struct rtl8309n_field)
		QOS_GLOBAL_FIELD(first_reg + i / RTL8309N_QOS_REMAP_PER_REG,
				 RTL8309N_QOS_REMAP_PRI(i % RTL8309N_QOS_REMAP_PER_REG),
				 RTL8309N_FIELD_VALUE);
	return f;
}

static s32 remap_set(u32 first_reg, u32 entries, u32 i, u32 pri)
{
	struct rtl8309n_field f;

	return rtl8309n_field_set(remap_field(&f, first_reg, entries, i), 0, pri);
}

static s32 remap_get(u32 first_reg, u32 entries, u32 i, u32 *ppri)
{
	struct rtl8309n_field f;

	return rtl8309n_field_get(remap_field(&f, first_reg, entries, i), 0, ppri);
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
 * The chip keeps the four weights interleaved: the slots from the bottom
 * of (5, 17, 16) up hold weights 0, 3, 1, 2.  The setter checks them in
 * that same order, before any access.
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
		bits |= rtl8309n_field_prep(RTL8309N_QOS_ARBIT_SLOT(slot), weight);
	}
	return rtl8309n_bits_set(RTL8309N_QOS_ADDR, RTL8309N_QOS_ARBIT_REG, RTL8309N_QOS_PAGE,
				 RTL8309N_QOS_ARBIT_WEIGHTS, bits);
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
		pweights->weight[arbit_slot_weight[slot]] =
			rtl8309n_field_extract(RTL8309N_QOS_ARBIT_SLOT(slot), data);
	return RT_ERR_OK;
}

s32 rtl8309n_qos_priSrcEnable_set(u32 port, u32 type, u32 enabled)
{
	return rtl8309n_field_set(RTL8309N_PICK(qos_src, type), port, enabled);
}

s32 rtl8309n_qos_priSrcEnable_get(u32 port, u32 type, u32 *penabled)
{
	return rtl8309n_field_get(RTL8309N_PICK(qos_src, type), port, penabled);
}

/* ---- IP-address priority ---- */

s32 rtl8309n_qos_ipAddrPriEnable_set(u32 entry, u32 enabled)
{
	return rtl8309n_field_set(RTL8309N_PICK(qos_ip_en, entry), 0, enabled);
}

s32 rtl8309n_qos_ipAddrPriEnable_get(u32 entry, u32 *penabled)
{
	return rtl8309n_field_get(RTL8309N_PICK(qos_ip_en, entry), 0, penabled);
}

/*
 * @pri is compared as a signed number, and what passes is OR-ed in
 * unmasked: a negative priority spills over the neighbouring bits.  Callers
 * of the chip library depend on exactly this, so it is not tightened.
 */
s32 rtl8309n_qos_ipAddrPri_set(u32 entry, s32 pri)
{
	const struct rtl8309n_field *f = RTL8309N_PICK(qos_ip_pri, entry);

	if (!f || pri > RTL8309N_QOS_MAX_PRI)
		return RT_ERR_FAILED;
	return rtl8309n_reg_update(f->phyad, f->regad, f->npage, f->mask,
				   (u32)pri << rtl8309n_mask_shift(f->mask));
}

s32 rtl8309n_qos_ipAddrPri_get(u32 entry, u32 *ppri)
{
	return rtl8309n_field_get(RTL8309N_PICK(qos_ip_pri, entry), 0, ppri);
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
 * Queues 2q and 2q + 1 share register 17 + q of page 9: a weight each,
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
				    RTL8309N_QOS_SCHED_WEIGHT_EVEN | RTL8309N_QOS_SCHED_WEIGHT_ODD,
				    rtl8309n_field_prep(RTL8309N_QOS_SCHED_WEIGHT_EVEN, w[q]) |
				    rtl8309n_field_prep(RTL8309N_QOS_SCHED_WEIGHT_ODD, w[q + 1]));
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
		pweights->weight[q] = rtl8309n_field_extract(RTL8309N_QOS_SCHED_WEIGHT_EVEN, data);
		pweights->weight[q + 1] =
			rtl8309n_field_extract(RTL8309N_QOS_SCHED_WEIGHT_ODD, data);
	}
	return RT_ERR_OK;
}

s32 rtl8309n_qos_queueStrictPriEnable_set(u32 port, u32 queue, u32 enabled)
{
	return rtl8309n_field_set(RTL8309N_PICK(qos_strict, queue), port, enabled);
}

s32 rtl8309n_qos_queueStrictPriEnable_get(u32 port, u32 queue, u32 *penabled)
{
	return rtl8309n_field_get(RTL8309N_PICK(qos_strict, queue), port, penabled);
}
