// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ L2 table: unicast and multicast addresses keyed by (MAC, FID), and
 * the learning limits and counters.
 *
 * The bounds and codes differ on purpose between sibling calls (a null MAC
 * is RT_ERR_MAC, RT_ERR_NULL_POINTER or RT_ERR_FAILED, the unicast delete
 * takes fid 4); callers depend on each as it stands.
 */
#include "rtk_internal.h"

#define L2_FLAG_MAX		1
#define L2_LIMIT_CNT_MAX	31
#define L2_SYS_LIMIT_A_MAX	255
#define L2_SYS_LIMIT_B_MAX	511
#define L2_DEL_FID_MAX		(RTK_L2_FID_MAX + 1)

/*
 * The register layer's address results as one call reports them: a full
 * bucket as @full, a missing entry as @not_found, anything else failed.
 */
static rtk_api_ret_t l2_ret(s32 layer_ret, rtk_api_ret_t full, rtk_api_ret_t not_found)
{
	switch (layer_ret) {
	case RT_ERR_OK:
		return RT_ERR_OK;
	case RTL8309N_L2_BUCKET_FULL:
		return full;
	case RTL8309N_L2_NOT_FOUND:
		return not_found;
	default:
		return RT_ERR_FAILED;
	}
}

/*
 * The chip knows four ages only.  An age that passed the checks but is no
 * multiple of the step is stored as code 0 (aged out) rather than rounded
 * to an age nobody asked for.
 */
static u32 l2_age_code(u32 age)
{
	return age % RTK_L2_AGE_STEP ? 0 : age / RTK_L2_AGE_STEP;
}

static rtk_api_ret_t l2_chk_ucast_addr(const rtk_l2_ucastAddr_t *paddr)
{
	if (paddr->auth > L2_FLAG_MAX || paddr->block10 > L2_FLAG_MAX ||
	    paddr->block9 > L2_FLAG_MAX || paddr->isStatic > L2_FLAG_MAX ||
	    paddr->age > RTK_L2_AGE_MAX)
		return RT_ERR_INPUT;
	return rtk_chk_port(paddr->port) ?: rtk_chk_max(paddr->fid, RTK_L2_FID_MAX, RT_ERR_INPUT) ?:
	       rtk_chk_mac(paddr->mac, 0, RT_ERR_MAC, RT_ERR_MAC);
}

static rtk_api_ret_t l2_chk_fid(u32 fid, u32 max)
{
	return rtk_chk_max(fid, max, RT_ERR_L2_FID);
}

rtk_api_ret_t rtk_l2_addr_add(const u8 *mac, u32 fid, const rtk_l2_ucastAddr_t *paddr)
{
	rtl8309n_l2_ucastEntry entry;
	rtk_api_ret_t ret;
	u32 idx;

	ret = rtk_chk_ptr(paddr) ?: rtk_chk_mac(mac, 0, RT_ERR_NULL_POINTER, RT_ERR_MAC) ?:
	      l2_chk_fid(fid, RTK_L2_FID_MAX) ?: l2_chk_ucast_addr(paddr);
	if (ret != RT_ERR_OK)
		return ret;

	entry.isStatic = paddr->isStatic;
	entry.auth = paddr->auth;
	entry.block10 = paddr->block10;
	entry.block9 = paddr->block9;
	entry.age = l2_age_code(paddr->age);
	entry.port = paddr->port;
	entry.fid = paddr->fid;
	rtl8309n_mac_copy(entry.mac, paddr->mac);
	return l2_ret(rtl8309n_l2_ucastAddr_add(mac, fid, &entry, &idx),
		      RT_ERR_L2_NO_EMPTY_ENTRY, RT_ERR_FAILED);
}

rtk_api_ret_t rtk_l2_addr_get(const u8 *mac, u32 fid, rtk_l2_ucastAddr_t *paddr)
{
	rtl8309n_l2_ucastEntry entry;
	rtk_api_ret_t ret;
	u32 idx;

	/*
	 * The kind of the MAC is checked before its presence; a missing MAC
	 * skips that check instead of being read.
	 */
	ret = (mac && rtl8309n_mac_is_mcast(mac) ? RT_ERR_MAC : RT_ERR_OK) ?:
	      l2_chk_fid(fid, RTK_L2_FID_MAX) ?: rtk_chk_ptr(mac) ?: rtk_chk_ptr(paddr) ?:
	      l2_ret(rtl8309n_l2_ucastAddr_get(mac, fid, &entry, &idx),
		     RT_ERR_FAILED, RT_ERR_L2_ENTRY_NOTFOUND);
	if (ret != RT_ERR_OK)
		return ret;

	paddr->auth = entry.auth;
	paddr->block10 = entry.block10;
	paddr->block9 = entry.block9;
	paddr->isStatic = entry.isStatic;
	paddr->port = entry.port;
	paddr->fid = entry.fid;
	paddr->age = entry.age * RTK_L2_AGE_STEP;
	rtl8309n_mac_copy(paddr->mac, entry.mac);
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_l2_addr_del(const u8 *mac, u32 fid)
{
	u32 idx;

	return rtk_chk_mac(mac, 0, RT_ERR_MAC, RT_ERR_MAC) ?: l2_chk_fid(fid, L2_DEL_FID_MAX) ?:
	       l2_ret(rtl8309n_l2_ucastAddr_del(mac, fid, &idx),
		      RT_ERR_FAILED, RT_ERR_L2_ENTRY_NOTFOUND);
}

/*
 * The register layer reports a multicast bucket without a replaceable way
 * as "not found"; that has always been a success here.
 */
rtk_api_ret_t rtk_l2_mcastAddr_add(const u8 *mac, u32 fid, rtk_portmask_t portmask)
{
	u32 idx;

	return rtk_chk_mac(mac, 1, RT_ERR_NULL_POINTER, RT_ERR_MAC) ?:
	       l2_chk_fid(fid, RTK_L2_FID_MAX) ?:
	       rtk_chk_max(portmask, RTL8309N_PORT_MASK_ALL, RT_ERR_PORT_MASK) ?:
	       l2_ret(rtl8309n_l2_mcastAddr_add(mac, fid, portmask, &idx),
		      RT_ERR_L2_NO_EMPTY_ENTRY, RT_ERR_OK);
}

rtk_api_ret_t rtk_l2_mcastAddr_get(const u8 *mac, u32 fid, rtk_portmask_t *pportmask)
{
	u32 idx;

	return rtk_chk_ptr(mac) ?: rtk_chk_ptr(pportmask) ?:
	       rtk_chk_mac(mac, 1, RT_ERR_NULL_POINTER, RT_ERR_MAC) ?:
	       l2_chk_fid(fid, RTK_L2_FID_MAX) ?:
	       l2_ret(rtl8309n_l2_mcastAddr_get(mac, fid, pportmask, &idx),
		      RT_ERR_FAILED, RT_ERR_L2_ENTRY_NOTFOUND);
}

rtk_api_ret_t rtk_l2_mcastAddr_del(const u8 *mac, u32 fid)
{
	u32 idx;

	return rtk_chk_mac(mac, 1, RT_ERR_FAILED, RT_ERR_MAC) ?: l2_chk_fid(fid, RTK_L2_FID_MAX) ?:
	       l2_ret(rtl8309n_l2_mcastAddr_del(mac, fid, &idx),
		      RT_ERR_FAILED, RT_ERR_L2_ENTRY_NOTFOUND);
}

rtk_api_ret_t rtk_l2_limitLearningSysCntEnable_set(rtk_enable_t enable)
{
	return rtk_ret_ok(rtl8309n_l2_systemMacLimitEnable_set(enable));
}

/* A null @penable is the register layer's failure, as RT_ERR_FAILED. */
rtk_api_ret_t rtk_l2_limitLearningSysCntEnable_get(rtk_enable_t *penable)
{
	return rtk_ret(rtl8309n_l2_systemMacLimitEnable_get(penable));
}

rtk_api_ret_t rtk_l2_limitLearningSysCnt_set(u32 mac_cnt_a, u32 mac_cnt_b)
{
	return rtk_chk_max(mac_cnt_a, L2_SYS_LIMIT_A_MAX, RT_ERR_INPUT) ?:
	       rtk_chk_max(mac_cnt_b, L2_SYS_LIMIT_B_MAX, RT_ERR_INPUT) ?:
	       rtk_ret(rtl8309n_l2_systemMacLimit_set(mac_cnt_a, mac_cnt_b));
}

rtk_api_ret_t rtk_l2_limitLearningSysCnt_get(u32 *pmac_cnt_a, u32 *pmac_cnt_b)
{
	return rtk_chk_ptr(pmac_cnt_a) ?: rtk_chk_ptr(pmac_cnt_b) ?:
	       rtk_ret(rtl8309n_l2_systemMacLimit_get(pmac_cnt_a, pmac_cnt_b));
}

rtk_api_ret_t rtk_l2_limitLearningCntEnable_set(rtk_port_t port, rtk_enable_t enable)
{
	return rtk_chk_port(port) ?: rtk_ret(rtl8309n_l2_portMacLimitEnable_set(port, enable));
}

rtk_api_ret_t rtk_l2_limitLearningCntEnable_get(rtk_port_t port, rtk_enable_t *penable)
{
	return rtk_chk_port(port) ?: rtk_chk_ptr(penable) ?:
	       rtk_ret(rtl8309n_l2_portMacLimitEnable_get(port, penable));
}

rtk_api_ret_t rtk_l2_limitLearningCnt_set(rtk_port_t port, u32 mac_cnt)
{
	return rtk_chk_port(port) ?:
	       rtk_chk_max(mac_cnt, L2_LIMIT_CNT_MAX, RT_ERR_LIMITED_L2ENTRY_NUM) ?:
	       rtk_ret(rtl8309n_l2_portMacLimit_set(port, mac_cnt));
}

rtk_api_ret_t rtk_l2_limitLearningCnt_get(rtk_port_t port, u32 *pmac_cnt)
{
	return rtk_chk_port(port) ?: rtk_chk_ptr(pmac_cnt) ?:
	       rtk_ret(rtl8309n_l2_portMacLimit_get(port, pmac_cnt));
}

rtk_api_ret_t rtk_l2_limitLearningCntAction_set(rtk_port_t port,
						rtk_l2_limitLearnCntAction_t action)
{
	(void)port;
	switch (action) {
	case RTK_L2_LIMIT_ACT_DROP:
		return rtk_ret(rtl8309n_l2_macLimitAction_set(RTL8309N_ACT_DROP));
	case RTK_L2_LIMIT_ACT_TRAP_CPU:
		return rtk_ret(rtl8309n_l2_macLimitAction_set(RTL8309N_ACT_TRAP));
	default:
		return RT_ERR_NOT_ALLOWED;
	}
}

rtk_api_ret_t rtk_l2_limitLearningCntAction_get(rtk_port_t port,
						rtk_l2_limitLearnCntAction_t *paction)
{
	u32 layer_action = 0;
	rtk_api_ret_t ret;

	(void)port;
	ret = rtk_chk_ptr(paction) ?: rtk_ret(rtl8309n_l2_macLimitAction_get(&layer_action));
	if (ret != RT_ERR_OK)
		return ret;
	*paction = layer_action == RTL8309N_ACT_TRAP ? RTK_L2_LIMIT_ACT_TRAP_CPU
						     : RTK_L2_LIMIT_ACT_DROP;
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_l2_learningSysCnt_get(u32 *pmac_cnt)
{
	return rtk_chk_ptr(pmac_cnt) ?: rtk_ret(rtl8309n_l2_systemLearningCnt_get(pmac_cnt));
}

rtk_api_ret_t rtk_l2_learningCnt_get(rtk_port_t port, u32 *pmac_cnt)
{
	return rtk_chk_port(port) ?: rtk_chk_ptr(pmac_cnt) ?:
	       rtk_ret(rtl8309n_l2_portlearningCnt_get(port, pmac_cnt));
}
