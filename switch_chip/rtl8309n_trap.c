// SPDX-License-Identifier: GPL-2.0
/*
 * Reserved-multicast (RMA) action table, IGMP snooping enables and the
 * per-class trap actions for unknown IP multicast and abnormal packets.
 */
#include "rtl8309n_internal.h"

#define RMA_ACTION_MAX		3	/* action codes the slot can carry */
#define IGMP_TYPE_MAX		3
#define ABNORMAL_TYPE_MAX	4
#define IGMP_CTRL_ACTION_MAX	5	/* 4 and 5 pass and are stored as 0 */

/*
 * A slot holds action, flag and value from the bottom up.  They are packed
 * unmasked: an oversized value runs on into the bits above the slot, which
 * is how the chip library has always written them.
 */
static void rma_slot_set(u32 reg, u32 slot, u32 action, u32 flag, u32 value)
{
	u32 bits = action | flag << rtl8309n_mask_shift(RTL8309N_RMA_SLOT_FLAG) |
		   value << rtl8309n_mask_shift(RTL8309N_RMA_SLOT_VALUE);

	rtl8309n_reg_update(RTL8309N_RMA_ADDR, reg, RTL8309N_RMA_PAGE, slot,
			    bits << rtl8309n_mask_shift(slot));
}

static void rma_slot_get(u32 reg, u32 slot, rtl8309n_rma_entry *pEntry)
{
	u32 data = 0;

	rtl8309n_reg_get(RTL8309N_RMA_ADDR, reg, RTL8309N_RMA_PAGE, &data);
	data = rtl8309n_field_extract(slot, data);
	pEntry->action = rtl8309n_field_extract(RTL8309N_RMA_SLOT_ACTION, data);
	pEntry->flag = rtl8309n_field_extract(RTL8309N_RMA_SLOT_FLAG, data);
	pEntry->value = rtl8309n_field_extract(RTL8309N_RMA_SLOT_VALUE, data);
}

/* Fixed entries 2k and 2k + 1 share a register. */
static u32 rma_entry_reg(u32 index)
{
	return RTL8309N_RMA_REG + index / 2;
}

static u32 rma_entry_slot(u32 index)
{
	return (index & 1) ? RTL8309N_RMA_SLOT_ODD : RTL8309N_RMA_SLOT_EVEN;
}

s32 rtl8309n_rma_entry_set(u32 index, const rtl8309n_rma_entry *pEntry)
{
	u32 action;

	if (!pEntry || index > RTL8309N_RMA_ENTRY_MAX)
		return RT_ERR_FAILED;

	action = pEntry->action <= RMA_ACTION_MAX ? pEntry->action : RTL8309N_ACT_FORWARD;
	rma_slot_set(rma_entry_reg(index), rma_entry_slot(index), action, pEntry->flag == 1,
		     pEntry->value);
	return RT_ERR_OK;
}

s32 rtl8309n_rma_entry_get(u32 index, rtl8309n_rma_entry *pEntry)
{
	if (!pEntry || index > RTL8309N_RMA_ENTRY_MAX)
		return RT_ERR_FAILED;

	rma_slot_get(rma_entry_reg(index), rma_entry_slot(index), pEntry);
	return RT_ERR_OK;
}

/* The user entry takes its fields exactly as given, unlike the fixed ones. */
s32 rtl8309n_rma_userentry_set(const rtl8309n_rma_entry *pEntry, const u16 *pMac)
{
	u32 i;

	if (!pEntry || !pMac)
		return RT_ERR_FAILED;

	rma_slot_set(RTL8309N_RMA_USER_REG, RTL8309N_RMA_USER_SLOT, pEntry->action, pEntry->flag,
		     pEntry->value);
	for (i = 0; i < 3; i++)
		rtl8309n_reg_set(RTL8309N_RMA_ADDR, RTL8309N_RMA_USER_MAC_REG + i,
				 RTL8309N_RMA_PAGE, pMac[i]);
	return RT_ERR_OK;
}

s32 rtl8309n_rma_userentry_get(rtl8309n_rma_entry *pEntry, u8 *pMac)
{
	if (!pEntry || !pMac)
		return RT_ERR_FAILED;

	rma_slot_get(RTL8309N_RMA_USER_REG, RTL8309N_RMA_USER_SLOT, pEntry);
	rtl8309n_mac_regs_get(RTL8309N_RMA_ADDR, RTL8309N_RMA_USER_MAC_REG, RTL8309N_RMA_PAGE,
			      0, pMac);
	return RT_ERR_OK;
}

#define IGMP_FIELD(mask, kind)						\
	RTL8309N_FIELD(RTL8309N_IGMP_ADDR, RTL8309N_IGMP_REG, RTL8309N_IGMP_PAGE, mask, kind,	\
		       RTL8309N_GLOBAL)

/* Types 2 and 3 share one disable bit. */
static const struct rtl8309n_field igmp_enable[] = {
	IGMP_FIELD(RTL8309N_IGMP_TYPE0_EN, RTL8309N_FIELD_FLAG),
	IGMP_FIELD(RTL8309N_IGMP_TYPE1_EN, RTL8309N_FIELD_FLAG),
	IGMP_FIELD(RTL8309N_IGMP_TYPE23_OFF, RTL8309N_FIELD_FLAG_INV),
	IGMP_FIELD(RTL8309N_IGMP_TYPE23_OFF, RTL8309N_FIELD_FLAG_INV),
};

s32 rtl8309n_igmp_enable_set(u32 type, u32 enabled)
{
	return rtl8309n_field_set(RTL8309N_PICK(igmp_enable, type), 0, enabled);
}

s32 rtl8309n_igmp_enable_get(u32 type, u32 *pEnabled)
{
	return rtl8309n_field_get(RTL8309N_PICK(igmp_enable, type), 0, pEnabled);
}

#define TRAP_L2_CTRL_FIELD(mask, kind)					\
	RTL8309N_FIELD(RTL8309N_L2_ADDR, RTL8309N_L2_CTRL_REG, RTL8309N_L2_PAGE, mask, kind,	\
		       RTL8309N_GLOBAL)

/* Unknown IP multicast: a set bit drops, a clear one forwards. */
static const struct rtl8309n_field unknown_mc_drop[] = {
	TRAP_L2_CTRL_FIELD(RTL8309N_L2_CTRL_UNKNOWN_MC0_DROP, RTL8309N_FIELD_FLAG),
	TRAP_L2_CTRL_FIELD(RTL8309N_L2_CTRL_UNKNOWN_MC1_DROP, RTL8309N_FIELD_FLAG),
};

/*
 * Abnormal packets, read as "trap to the CPU" flags: the bits of types 0
 * and 1 are set to trap, those of types 2 and 3 (the L2 block actions) are
 * set to drop.  The chip really has the two polarities, so each row keeps
 * its own.  Type 4 has no bit.
 */
static const struct rtl8309n_field abnormal_trap[] = {
	RTL8309N_FIELD(RTL8309N_VLAN_CTRL_ADDR, RTL8309N_VLAN_CTRL_REG, RTL8309N_VLAN_PAGE,
		       RTL8309N_VLAN_CTRL_UNMATCH_ACT, RTL8309N_FIELD_FLAG, RTL8309N_GLOBAL),
	RTL8309N_FIELD(RTL8309N_DOT1X_GLB_ADDR, RTL8309N_DOT1X_GLB_REG, RTL8309N_DOT1X_GLB_PAGE,
		       RTL8309N_DOT1X_GLB_ABNORMAL1_TRAP, RTL8309N_FIELD_FLAG, RTL8309N_GLOBAL),
	TRAP_L2_CTRL_FIELD(RTL8309N_L2_CTRL_SA_BLOCK_DROP, RTL8309N_FIELD_FLAG_INV),
	TRAP_L2_CTRL_FIELD(RTL8309N_L2_CTRL_DA_BLOCK_DROP, RTL8309N_FIELD_FLAG_INV),
	RTL8309N_NO_FIELD(RTL8309N_GLOBAL),
};

s32 rtl8309n_trap_unknownIPMcastPktAction_set(u32 type, u32 action)
{
	return rtl8309n_field_code_set(RTL8309N_PICK(unknown_mc_drop, type), 0, action,
				       RTL8309N_ACT_DROP, RTL8309N_ACT_FORWARD);
}

s32 rtl8309n_trap_unknownIPMcastPktAction_get(u32 type, u32 *pAction)
{
	return rtl8309n_field_code_get(RTL8309N_PICK(unknown_mc_drop, type), 0, pAction,
				       RTL8309N_ACT_DROP, RTL8309N_ACT_FORWARD);
}

s32 rtl8309n_trap_abnormalPktAction_set(u32 type, u32 action)
{
	return rtl8309n_field_code_set(RTL8309N_PICK(abnormal_trap, type), 0, action,
				       RTL8309N_ACT_TRAP, RTL8309N_ACT_DROP);
}

/* Type 4 is accepted and, having no bit, leaves the output alone. */
s32 rtl8309n_trap_abnormalPktAction_get(u32 type, u32 *pAction)
{
	if (!pAction || type > ABNORMAL_TYPE_MAX)
		return RT_ERR_FAILED;
	if (abnormal_trap[type].kind == RTL8309N_FIELD_NONE)
		return RT_ERR_OK;
	return rtl8309n_field_code_get(&abnormal_trap[type], 0, pAction,
				       RTL8309N_ACT_TRAP, RTL8309N_ACT_DROP);
}

s32 rtl8309n_trap_igmpCtrlPktAction_set(u32 type, u32 action)
{
	rtl8309n_rma_entry entry = { action, 0, 0 };

	if (type > IGMP_TYPE_MAX || action > IGMP_CTRL_ACTION_MAX)
		return RT_ERR_FAILED;
	return rtl8309n_rma_entry_set(RTL8309N_RMA_IGMP_ENTRY + type, &entry);
}

s32 rtl8309n_trap_igmpCtrlPktAction_get(u32 type, u32 *pAction)
{
	rtl8309n_rma_entry entry = { 0, 0, 0 };

	if (!pAction || type > IGMP_TYPE_MAX)
		return RT_ERR_FAILED;
	rtl8309n_rma_entry_get(RTL8309N_RMA_IGMP_ENTRY + type, &entry);
	*pAction = entry.action;
	return RT_ERR_OK;
}
