// SPDX-License-Identifier: GPL-2.0
/*
 * Reserved-multicast (RMA) action table, IGMP snooping enables and the
 * per-class trap actions for unknown IP multicast and abnormal packets.
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

#define RMA_ACTION_MAX		3	/* action codes the slot can carry */
#define IGMP_TYPE_MAX		3
#define ABNORMAL_TYPE_MAX	4
#define IGMP_CTRL_ACTION_MAX	5	/* 4 and 5 pass and are stored as 0 */

/*
 * Slot layout: action in bits 1..0, flag in bit 2, value from bit 3.  The
 * fields are not masked: an oversized value runs on into the bits above the
 * slot, which is how the chip library has always written them.
 */
static u32 rma_slot_pack(u32 action, u32 flag, u32 value)
{
	return action | (flag << RTL8309N_RMA_FLAG_SHIFT) | (value << RTL8309N_RMA_VALUE_SHIFT);
}

static void rma_slot_unpack(u32 slot, rtl8309n_rma_entry *pEntry)
{
	pEntry->action = slot & RTL8309N_RMA_ACTION_MASK;
	pEntry->flag = (slot >> RTL8309N_RMA_FLAG_SHIFT) & 1;
	pEntry->value = (slot >> RTL8309N_RMA_VALUE_SHIFT) & RTL8309N_RMA_VALUE_MASK;
}

static u32 rma_entry_reg(u32 index)
{
	return RTL8309N_RMA_REG_BASE + index / 2;
}

static u32 rma_entry_shift(u32 index)
{
	return (index & 1) ? RTL8309N_RMA_HIGH_SLOT : 0;
}

s32 rtl8309n_rma_entry_set(u32 index, const rtl8309n_rma_entry *pEntry)
{
	u32 action, shift;

	if (!pEntry || index > RTL8309N_RMA_ENTRY_MAX)
		return RT_ERR_FAILED;

	action = pEntry->action <= RMA_ACTION_MAX ? pEntry->action : RTL8309N_ACT_FORWARD;
	shift = rma_entry_shift(index);
	rtl8309n_reg_update(RTL8309N_RMA_ADDR, rma_entry_reg(index), RTL8309N_RMA_PAGE,
			    RTL8309N_RMA_SLOT_MASK << shift,
			    rma_slot_pack(action, pEntry->flag == 1, pEntry->value) << shift);
	return RT_ERR_OK;
}

s32 rtl8309n_rma_entry_get(u32 index, rtl8309n_rma_entry *pEntry)
{
	u32 data = 0;

	if (!pEntry || index > RTL8309N_RMA_ENTRY_MAX)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(RTL8309N_RMA_ADDR, rma_entry_reg(index), RTL8309N_RMA_PAGE, &data);
	rma_slot_unpack(data >> rma_entry_shift(index), pEntry);
	return RT_ERR_OK;
}

/* The user entry takes its fields exactly as given, unlike the fixed ones. */
s32 rtl8309n_rma_userentry_set(const rtl8309n_rma_entry *pEntry, const u16 *pMac)
{
	u32 i;

	if (!pEntry || !pMac)
		return RT_ERR_FAILED;

	rtl8309n_reg_update(RTL8309N_RMA_ADDR, RTL8309N_RMA_USER_REG, RTL8309N_RMA_PAGE,
			    RTL8309N_RMA_SLOT_MASK << RTL8309N_RMA_HIGH_SLOT,
			    rma_slot_pack(pEntry->action, pEntry->flag, pEntry->value)
			    << RTL8309N_RMA_HIGH_SLOT);
	for (i = 0; i < 3; i++)
		rtl8309n_reg_set(RTL8309N_RMA_ADDR, RTL8309N_RMA_USER_MAC_REG + i,
				 RTL8309N_RMA_PAGE, pMac[i]);
	return RT_ERR_OK;
}

s32 rtl8309n_rma_userentry_get(rtl8309n_rma_entry *pEntry, u8 *pMac)
{
	u32 data = 0;

	if (!pEntry || !pMac)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(RTL8309N_RMA_ADDR, RTL8309N_RMA_USER_REG, RTL8309N_RMA_PAGE, &data);
	rma_slot_unpack(data >> RTL8309N_RMA_HIGH_SLOT, pEntry);
	rtl8309n_mac_regs_get(RTL8309N_RMA_ADDR, RTL8309N_RMA_USER_MAC_REG, RTL8309N_RMA_PAGE,
			      0, pMac);
	return RT_ERR_OK;
}

#define IGMP_BIT(bit, pol) \
	RTL8309N_GLOBAL_BIT(RTL8309N_IGMP_ADDR, RTL8309N_IGMP_REG, RTL8309N_IGMP_PAGE, bit, pol)

/* Types 2 and 3 share one disable bit. */
static const struct rtl8309n_regfield igmp_enable[] = {
	IGMP_BIT(RTL8309N_IGMP_TYPE0_EN_BIT, RTL8309N_ACTIVE_HIGH),
	IGMP_BIT(RTL8309N_IGMP_TYPE1_EN_BIT, RTL8309N_ACTIVE_HIGH),
	IGMP_BIT(RTL8309N_IGMP_TYPE23_DIS_BIT, RTL8309N_ACTIVE_LOW),
	IGMP_BIT(RTL8309N_IGMP_TYPE23_DIS_BIT, RTL8309N_ACTIVE_LOW),
};

s32 rtl8309n_igmp_enable_set(u32 type, u32 enabled)
{
	return rtl8309n_regfield_set(RTL8309N_PICK(igmp_enable, type), 0, enabled);
}

s32 rtl8309n_igmp_enable_get(u32 type, u32 *pEnabled)
{
	return rtl8309n_regfield_get(RTL8309N_PICK(igmp_enable, type), 0, pEnabled);
}

#define TRAP_BIT(bit, pol) \
	RTL8309N_GLOBAL_BIT(RTL8309N_TRAP_ADDR, RTL8309N_TRAP_REG, RTL8309N_TRAP_PAGE, bit, pol)

/* Unknown IP multicast: a set bit drops, a clear one forwards. */
static const struct rtl8309n_regfield unknown_mc_drop[] = {
	TRAP_BIT(RTL8309N_TRAP_UNKNOWN_MC0_BIT, RTL8309N_ACTIVE_HIGH),
	TRAP_BIT(RTL8309N_TRAP_UNKNOWN_MC1_BIT, RTL8309N_ACTIVE_HIGH),
};

/*
 * Abnormal packets, read as "trap to the CPU" flags: the bits on address 0
 * are set to trap, those on address 6 are set to drop.  The chip really
 * has the two polarities, so each row keeps its own.  Type 4 has no bit.
 */
static const struct rtl8309n_regfield abnormal_trap[] = {
	RTL8309N_GLOBAL_BIT(RTL8309N_TRAP_ABNORMAL0_ADDR, RTL8309N_TRAP_ABNORMAL0_REG,
			    RTL8309N_TRAP_ABNORMAL0_PAGE, RTL8309N_TRAP_ABNORMAL0_BIT,
			    RTL8309N_ACTIVE_HIGH),
	RTL8309N_GLOBAL_BIT(RTL8309N_TRAP_ABNORMAL1_ADDR, RTL8309N_TRAP_ABNORMAL1_REG,
			    RTL8309N_TRAP_ABNORMAL1_PAGE, RTL8309N_TRAP_ABNORMAL1_BIT,
			    RTL8309N_ACTIVE_HIGH),
	TRAP_BIT(RTL8309N_TRAP_ABNORMAL2_BIT, RTL8309N_ACTIVE_LOW),
	TRAP_BIT(RTL8309N_TRAP_ABNORMAL3_BIT, RTL8309N_ACTIVE_LOW),
	RTL8309N_REGFIELD_NONE(RTL8309N_GLOBAL),
};

s32 rtl8309n_trap_unknownIPMcastPktAction_set(u32 type, u32 action)
{
	return rtl8309n_regfield_code_set(RTL8309N_PICK(unknown_mc_drop, type), 0, action,
					  RTL8309N_ACT_DROP, RTL8309N_ACT_FORWARD);
}

s32 rtl8309n_trap_unknownIPMcastPktAction_get(u32 type, u32 *pAction)
{
	return rtl8309n_regfield_code_get(RTL8309N_PICK(unknown_mc_drop, type), 0, pAction,
					  RTL8309N_ACT_DROP, RTL8309N_ACT_FORWARD);
}

s32 rtl8309n_trap_abnormalPktAction_set(u32 type, u32 action)
{
	return rtl8309n_regfield_code_set(RTL8309N_PICK(abnormal_trap, type), 0, action,
					  RTL8309N_ACT_TRAP, RTL8309N_ACT_DROP);
}

/* Type 4 is accepted and, having no bit, leaves the output alone. */
s32 rtl8309n_trap_abnormalPktAction_get(u32 type, u32 *pAction)
{
	if (!pAction || type > ABNORMAL_TYPE_MAX)
		return RT_ERR_FAILED;
	if (!abnormal_trap[type].width)
		return RT_ERR_OK;
	return rtl8309n_regfield_code_get(&abnormal_trap[type], 0, pAction,
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
