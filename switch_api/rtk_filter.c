// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ ingress ACL: a set of rules keyed by (port, protocol, data) over
 * the chip's 16 indexed entries.  The chip is the only store: every search
 * reads the entries anew.
 */
#include "rtk_internal.h"

/*
 * The register layer's action codes for the API actions.  The chip's
 * 2-bit field then holds the API action itself, so every rule reads back
 * as it was written.
 */
static const u32 acl_action_code[] = {
	[RTK_ACL_ACT_DROP] = RTL8309N_ACL_ACT_DROP,
	[RTK_ACL_ACT_PERMIT] = RTL8309N_ACL_ACT_PERMIT,
	[RTK_ACL_ACT_TRAP_CPU] = RTL8309N_ACL_ACT_TRAP_CPU,
	[RTK_ACL_ACT_MIRROR] = RTL8309N_ACL_ACT_MIRROR,
};

#define ACL_ACTION_MAX	RTK_ACL_ACT_MIRROR
#define ACL_PRIO_MAX	3
#define ACL_PROTO_MAX	RTK_ACL_PROTO_TCPUDP

/* What a search finds when no entry fits. */
#define ACL_NONE	RTK_ACL_ENTRY_NUM

/* What a search looks for. */
enum acl_target { ACL_FIND_KEY, ACL_FIND_FREE };

/* What init and delete write: port 9 marks the entry unused. */
static const acl_entry acl_free_entry = {
	.priority = 0,
	.action = RTL8309N_ACL_ACT_DROP,
	.port = RTK_ACL_PORT_FREE,
	.protocol = 0,
	.data = 0,
};

static int acl_is_key(const acl_entry *entry, const acl_rule *rule)
{
	/* 32-bit compare: rule data above 0xFFFF never matches an entry */
	return entry->port == rule->port && entry->protocol == rule->protocol &&
	       entry->data == rule->data;
}

/*
 * Index of the first entry with @rule's key, or of the first free entry,
 * into *@pidx, ACL_NONE when there is none; the entry itself is left in
 * *@pentry.  RT_ERR_FAILED when an entry cannot be read.
 */
static rtk_api_ret_t acl_find(const acl_rule *rule, enum acl_target target, u32 *pidx,
			      acl_entry *pentry)
{
	u32 idx;

	for (idx = 0; idx < RTK_ACL_ENTRY_NUM; idx++) {
		if (rtl8309n_acl_entry_get(idx, pentry) != RT_ERR_OK)
			return RT_ERR_FAILED;
		if (target == ACL_FIND_FREE ? pentry->port == RTK_ACL_PORT_FREE
					    : acl_is_key(pentry, rule))
			break;
	}
	*pidx = idx;
	return RT_ERR_OK;
}

static rtk_api_ret_t acl_write(u32 idx, const acl_entry *entry)
{
	return rtk_ret(rtl8309n_acl_entry_set(idx, entry));
}

/* Checks of a rule carrying an action and a priority, given the port bound. */
static rtk_api_ret_t acl_chk_rule(const acl_rule *rule, u32 port_max)
{
	if (!rule)
		return RT_ERR_NULL_POINTER;
	if (rule->action > ACL_ACTION_MAX || rule->port > port_max ||
	    rule->priority > ACL_PRIO_MAX || rule->protocol > ACL_PROTO_MAX)
		return RT_ERR_INPUT;
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_filter_igrAcl_init(void)
{
	u32 idx;

	for (idx = 0; idx < RTK_ACL_ENTRY_NUM; idx++)
		if (acl_write(idx, &acl_free_entry) != RT_ERR_OK)
			return RT_ERR_FAILED;
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_filter_igrAcl_rule_add(acl_rule *prule)
{
	acl_entry entry;
	u32 idx;
	rtk_api_ret_t ret;

	ret = acl_chk_rule(prule, RTK_ACL_PORT_MAX) ?: acl_find(prule, ACL_FIND_KEY, &idx, &entry);
	if (ret != RT_ERR_OK)
		return ret;
	if (idx == ACL_NONE) {
		ret = acl_find(prule, ACL_FIND_FREE, &idx, &entry);
		if (ret != RT_ERR_OK)
			return ret;
		if (idx == ACL_NONE)
			return RT_ERR_TBL_FULL;
		entry.port = prule->port;
		entry.protocol = prule->protocol;
		entry.data = prule->data;
	}
	/* an existing key keeps its entry and only changes what it does */
	entry.priority = prule->priority;
	entry.action = acl_action_code[prule->action];
	return acl_write(idx, &entry);
}

rtk_api_ret_t rtk_filter_igrAcl_rule_get(acl_rule *prule)
{
	acl_entry entry;
	u32 idx, action;
	rtk_api_ret_t ret;

	if (!prule)
		return RT_ERR_NULL_POINTER;
	if (prule->port > RTL8309N_MAX_PORT || prule->protocol > ACL_PROTO_MAX)
		return RT_ERR_INPUT;
	ret = acl_find(prule, ACL_FIND_KEY, &idx, &entry);
	if (ret != RT_ERR_OK || idx == ACL_NONE)
		return RT_ERR_FAILED;

	prule->priority = entry.priority;
	/* a code no API action produces leaves the caller's action as it was */
	for (action = 0; action <= ACL_ACTION_MAX; action++)
		if (acl_action_code[action] == entry.action)
			prule->action = action;
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_filter_igrAcl_rule_del(acl_rule *prule)
{
	acl_entry entry;
	u32 idx = ACL_NONE;
	rtk_api_ret_t ret = acl_chk_rule(prule, RTL8309N_MAX_PORT) ?:
			    acl_find(prule, ACL_FIND_KEY, &idx, &entry);

	/* callers have always been told RT_ERR_INPUT for an unknown rule */
	if (ret == RT_ERR_OK && idx == ACL_NONE)
		ret = RT_ERR_INPUT;
	return ret ?: acl_write(idx, &acl_free_entry);
}
