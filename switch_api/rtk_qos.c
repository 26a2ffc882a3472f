// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ QoS API: priority sources and their weights, priority remapping,
 * output queues and 802.1p re-marking.
 */
#include "rtk_internal.h"

/* Register-layer code of each priority source; source t is disable bit t. */
static const u8 pri_src_code[PRI_SRC_END] = {
	[PRI_SRC_ACL] = RTL8309N_PRISRC_ACL,
	[PRI_SRC_IP_ADDR] = RTL8309N_PRISRC_IP_ADDR,
	[PRI_SRC_DSCP] = RTL8309N_PRISRC_DSCP,
	[PRI_SRC_PORT] = RTL8309N_PRISRC_PORT,
	[PRI_SRC_DOT1Q] = RTL8309N_PRISRC_DOT1Q,
};

/* Queue of each internal priority, per number of queues 1..4: spread evenly. */
static const u8 init_pri2queue[RTK_MAX_NUM_OF_QUEUE][RTK_PRI_MAX + 1] = {
	{ 0, 0, 0, 0 },
	{ 0, 0, 1, 1 },
	{ 0, 1, 1, 2 },
	{ 0, 1, 2, 3 },
};

static rtk_api_ret_t chk_queue_num(rtk_queue_num_t queue_num)
{
	return queue_num < 1 || queue_num > RTK_MAX_NUM_OF_QUEUE ? RT_ERR_QUEUE_NUM : RT_ERR_OK;
}

/*
 * The kernel module calls this with 0 queues on its apply path: the queue
 * count is refused before anything is written, and the chip's QoS setup is
 * left as it was.  Results after that point are not looked at.
 */
rtk_api_ret_t rtk_qos_init(rtk_queue_num_t queue_num)
{
	const u8 *map;
	u32 port, pri, q;

	if (rtl8309n_qos_queueNum_set(queue_num) != RT_ERR_OK)
		return RT_ERR_FAILED;
	if (chk_queue_num(queue_num) != RT_ERR_OK)
		return RT_ERR_QUEUE_NUM;	/* the chip layer refused it already */
	map = init_pri2queue[queue_num - 1];

	for (port = 0; port <= RTL8309N_MAX_PORT; port++)
		for (pri = 0; pri <= RTK_PRI_MAX; pri++)
			rtl8309n_qos_priToQueMap_set(port, pri, map[pri]);

	for (port = 0; port <= RTL8309N_MAX_PORT; port++) {
		rtl8309n_qos_portDscFlcEnable_set(port, RTL8309N_ENABLED);
		for (q = 0; q < queue_num; q++)
			rtl8309n_qos_queueFlcEnable_set(port, q, RTL8309N_ENABLED);
		rtl8309n_qos_egrFlcEnable_set(port, RTL8309N_ENABLED);
	}
	rtl8309n_qos_igrFlcEnable_set(RTL8309N_ENABLED);
	rtl8309n_qos_softReset_set();
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_qos_priSrcEnable_set(rtk_port_t port, rtk_qos_priSrc_t type,
				       rtk_enable_t enable)
{
	return rtk_chk_port(port) ?: rtk_chk_max(type, PRI_SRC_END - 1, RT_ERR_INPUT) ?:
	       rtk_ret(rtl8309n_qos_priSrcEnable_set(port, pri_src_code[type],
						     enable == RTL8309N_ENABLED));
}

/* The result pointer is left to the chip layer's null check. */
rtk_api_ret_t rtk_qos_priSrcEnable_get(rtk_port_t port, rtk_qos_priSrc_t type,
				       rtk_enable_t *penable)
{
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: rtk_chk_max(type, PRI_SRC_END - 1, RT_ERR_INPUT) ?:
	      rtk_ret(rtl8309n_qos_priSrcEnable_get(port, pri_src_code[type], penable));
	if (ret == RT_ERR_OK)
		*penable = rtk_flag(*penable);
	return ret;
}

rtk_api_ret_t rtk_qos_priSel_set(rtk_priority_select_t *ppriDec)
{
	rtl8309n_qos_priArbitPara_t weights;
	rtk_api_ret_t ret;

	ret = rtk_chk_ptr(ppriDec) ?:
	      rtk_chk_max(ppriDec->dscp_pri, RTK_PRI_MAX, RT_ERR_INPUT) ?:
	      rtk_chk_max(ppriDec->dot1q_pri, RTK_PRI_MAX, RT_ERR_INPUT) ?:
	      rtk_chk_max(ppriDec->port_pri, RTK_PRI_MAX, RT_ERR_INPUT) ?:
	      rtk_chk_max(ppriDec->acl_pri, RTK_PRI_MAX, RT_ERR_INPUT);
	if (ret != RT_ERR_OK)
		return ret;
	weights.weight[RTL8309N_WEIGHT_PORT] = ppriDec->port_pri;
	weights.weight[RTL8309N_WEIGHT_DOT1Q] = ppriDec->dot1q_pri;
	weights.weight[RTL8309N_WEIGHT_DSCP] = ppriDec->dscp_pri;
	weights.weight[RTL8309N_WEIGHT_ACL] = ppriDec->acl_pri;
	return rtl8309n_qos_priSrcArbit_set(&weights);
}

rtk_api_ret_t rtk_qos_priSel_get(rtk_priority_select_t *ppriDec)
{
	rtl8309n_qos_priArbitPara_t weights;
	rtk_api_ret_t ret;

	ret = rtk_chk_ptr(ppriDec) ?: rtk_ret(rtl8309n_qos_priSrcArbit_get(&weights));
	if (ret != RT_ERR_OK)
		return ret;
	ppriDec->port_pri = weights.weight[RTL8309N_WEIGHT_PORT];
	ppriDec->dot1q_pri = weights.weight[RTL8309N_WEIGHT_DOT1Q];
	ppriDec->dscp_pri = weights.weight[RTL8309N_WEIGHT_DSCP];
	ppriDec->acl_pri = weights.weight[RTL8309N_WEIGHT_ACL];
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_qos_1pPriRemap_set(rtk_pri_t dot1p_pri, rtk_pri_t int_pri)
{
	return rtk_chk_max(int_pri, RTK_PRI_MAX, RT_ERR_QOS_1P_PRIORITY) ?:
	       rtk_chk_max(dot1p_pri, RTK_DOT1P_PRI_MAX, RT_ERR_VLAN_PRIORITY) ?:
	       rtk_ret(rtl8309n_qos_1pPriRemap_set(dot1p_pri, int_pri));
}

/* One above the setter's bound passes here and is refused by the chip layer. */
rtk_api_ret_t rtk_qos_1pPriRemap_get(rtk_pri_t dot1p_pri, rtk_pri_t *pint_pri)
{
	return rtk_chk_ptr(pint_pri) ?:
	       rtk_chk_max(dot1p_pri, RTK_DOT1P_PRI_MAX + 1, RT_ERR_VLAN_PRIORITY) ?:
	       rtk_ret(rtl8309n_qos_1pPriRemap_get(dot1p_pri, pint_pri));
}

/* Priority 4 passes here and is refused by the chip layer. */
rtk_api_ret_t rtk_qos_dscpPriRemap_set(rtk_dscp_t dscp, rtk_pri_t int_pri)
{
	return rtk_chk_max(dscp, RTK_DSCP_MAX, RT_ERR_QOS_DSCP_VALUE) ?:
	       rtk_chk_max(int_pri, RTK_PRI_MAX + 1, RT_ERR_QOS_1P_PRIORITY) ?:
	       rtk_ret(rtl8309n_qos_dscpPriRemap_set(dscp, int_pri));
}

rtk_api_ret_t rtk_qos_dscpPriRemap_get(rtk_dscp_t dscp, rtk_pri_t *pint_pri)
{
	return rtk_chk_max(dscp, RTK_DSCP_MAX, RT_ERR_QOS_DSCP_VALUE) ?: rtk_chk_ptr(pint_pri) ?:
	       rtk_ret(rtl8309n_qos_dscpPriRemap_get(dscp, pint_pri));
}

rtk_api_ret_t rtk_qos_portPri_set(rtk_port_t port, rtk_pri_t int_pri)
{
	return rtk_chk_port(port) ?: rtk_chk_max(int_pri, RTK_PRI_MAX, RT_ERR_QOS_1P_PRIORITY) ?:
	       rtk_ret(rtl8309n_qos_portPri_set(port, int_pri));
}

rtk_api_ret_t rtk_qos_portPri_get(rtk_port_t port, rtk_pri_t *pint_pri)
{
	return rtk_chk_port(port) ?: rtk_chk_ptr(pint_pri) ?:
	       rtk_ret(rtl8309n_qos_portPri_get(port, pint_pri));
}

static rtk_api_ret_t priMap_check(rtk_port_t port, rtk_queue_num_t queue_num,
				  const rtk_qos_pri2queue_t *ppri2qid)
{
	return rtk_chk_port(port) ?: chk_queue_num(queue_num) ?: rtk_chk_ptr(ppri2qid);
}

/* Nothing is undone when a queue id turns out to be out of range. */
rtk_api_ret_t rtk_qos_priMap_set(rtk_port_t port, rtk_queue_num_t queue_num,
				 rtk_qos_pri2queue_t *ppri2qid)
{
	rtk_api_ret_t ret;
	u32 pri;

	ret = priMap_check(port, queue_num, ppri2qid) ?:
	      rtk_ret(rtl8309n_qos_queueNum_set(queue_num));
	for (pri = 0; ret == RT_ERR_OK && pri <= RTK_PRI_MAX; pri++) {
		u32 qid = ppri2qid->pri2queue[pri];

		ret = rtk_chk_max(qid, queue_num - 1, RT_ERR_QUEUE_ID) ?:
		      rtk_ret(rtl8309n_qos_priToQueMap_set(port, pri, qid));
	}
	return ret;
}

/* @queue_num is checked but does not change what is read. */
rtk_api_ret_t rtk_qos_priMap_get(rtk_port_t port, rtk_queue_num_t queue_num,
				 rtk_qos_pri2queue_t *ppri2qid)
{
	rtk_api_ret_t ret;
	u32 pri;

	ret = priMap_check(port, queue_num, ppri2qid);
	for (pri = 0; ret == RT_ERR_OK && pri <= RTK_PRI_MAX; pri++)
		ret = rtk_ret(rtl8309n_qos_priToQueMap_get(port, pri, &ppri2qid->pri2queue[pri]));
	return ret;
}

rtk_api_ret_t rtk_qos_1pRemarkEnable_set(rtk_port_t port, rtk_enable_t enable)
{
	return rtk_chk_port(port) ?: rtk_ret_ok(rtl8309n_qos_1pRemarkEnable_set(port, enable));
}

rtk_api_ret_t rtk_qos_1pRemarkEnable_get(rtk_port_t port, rtk_enable_t *penable)
{
	u32 enabled = 0;
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: rtk_chk_ptr(penable) ?:
	      rtk_ret(rtl8309n_qos_1pRemarkEnable_get(port, &enabled));
	if (ret == RT_ERR_OK)
		*penable = rtk_flag(enabled);
	return ret;
}

/* 802.1p value 8 passes here and is refused by the chip layer. */
rtk_api_ret_t rtk_qos_1pRemark_set(rtk_pri_t int_pri, rtk_pri_t dot1p_pri)
{
	return rtk_chk_max(int_pri, RTK_PRI_MAX, RT_ERR_QOS_1P_PRIORITY) ?:
	       rtk_chk_max(dot1p_pri, RTK_DOT1P_PRI_MAX + 1, RT_ERR_VLAN_PRIORITY) ?:
	       rtk_ret(rtl8309n_qos_1pRemark_set(int_pri, dot1p_pri));
}

rtk_api_ret_t rtk_qos_1pRemark_get(rtk_pri_t int_pri, rtk_pri_t *pdot1p_pri)
{
	return rtk_chk_max(int_pri, RTK_PRI_MAX, RT_ERR_QOS_1P_PRIORITY) ?:
	       rtk_chk_ptr(pdot1p_pri) ?:
	       rtk_ret(rtl8309n_qos_1pRemark_get(int_pri, pdot1p_pri));
}
