// SPDX-License-Identifier: GPL-2.0
/*
 * 802.1Q VLAN block: the global control register, the per-port VLAN and tag
 * registers, and the 16-entry VLAN table.  Tag insert/remove modes and
 * unmatched-VID actions are stored as the caller gives them; what each mode,
 * action or leaky type does on the wire is the chip's business.
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

#define CTRL(lsb, width, pol)						\
	{ RTL8309N_VLAN_CTRL_ADDR, RTL8309N_VLAN_CTRL_REG, RTL8309N_VLAN_PAGE,	\
	  lsb, width, pol, RTL8309N_GLOBAL }
/* (0, 17 + port, 16) */
#define PORT_VLAN(lsb, width)						\
	{ RTL8309N_VLAN_PORT_ADDR, RTL8309N_VLAN_PORT_REG, RTL8309N_VLAN_PAGE,	\
	  lsb, width, RTL8309N_ACTIVE_HIGH, RTL8309N_PORT_REG }
/* (port, 16, 6) */
#define PORT_TAG(lsb, width)						\
	{ 0, RTL8309N_VLAN_TAG_REG, RTL8309N_VLAN_TAG_PAGE,			\
	  lsb, width, RTL8309N_ACTIVE_HIGH, RTL8309N_PORT_ADDR }

#define HIGH	RTL8309N_ACTIVE_HIGH
#define LOW	RTL8309N_ACTIVE_LOW

static const struct rtl8309n_regfield vlan_enable = CTRL(RTL8309N_VLAN_ENABLE_BIT, 1, HIGH);
static const struct rtl8309n_regfield vlan_igr_filter =
	CTRL(RTL8309N_VLAN_IGR_FILTER_OFF_BIT, 1, LOW);
static const struct rtl8309n_regfield vlan_unmatch_act =
	CTRL(RTL8309N_VLAN_UNMATCH_ACT_BIT, 1, HIGH);
static const struct rtl8309n_regfield vlan_fixmc_fid_en =
	CTRL(RTL8309N_VLAN_FIXMC_FID_EN_BIT, 1, HIGH);
static const struct rtl8309n_regfield vlan_fixmc_fid = CTRL(RTL8309N_VLAN_FIXMC_FID_LSB, 2, HIGH);

/* One disable bit per leaky type 0..4; type 5 is accepted but has none. */
static const struct rtl8309n_regfield vlan_leaky[RTL8309N_VLAN_LEAKY_TYPES] = {
	CTRL(RTL8309N_VLAN_LEAKY_OFF_BIT + 0, 1, LOW),
	CTRL(RTL8309N_VLAN_LEAKY_OFF_BIT + 1, 1, LOW),
	CTRL(RTL8309N_VLAN_LEAKY_OFF_BIT + 2, 1, LOW),
	CTRL(RTL8309N_VLAN_LEAKY_OFF_BIT + 3, 1, LOW),
	CTRL(RTL8309N_VLAN_LEAKY_OFF_BIT + 4, 1, LOW),
	RTL8309N_NO_FIELD(RTL8309N_GLOBAL),
};

static const struct rtl8309n_regfield vlan_accept = PORT_VLAN(RTL8309N_VLAN_ACCEPT_LSB, 2);
static const struct rtl8309n_regfield vlan_tag_aware = PORT_VLAN(RTL8309N_VLAN_TAG_AWARE_BIT, 1);
static const struct rtl8309n_regfield vlan_discard_nonpvid =
	PORT_VLAN(RTL8309N_VLAN_DISCARD_NONPVID_BIT, 1);
static const struct rtl8309n_regfield vlan_pvid_index = PORT_VLAN(RTL8309N_VLAN_PVID_INDEX_LSB, 4);

static const struct rtl8309n_regfield vlan_null_vid = PORT_TAG(RTL8309N_VLAN_NULL_VID_BIT, 1);
static const struct rtl8309n_regfield vlan_tag_insrem = PORT_TAG(RTL8309N_VLAN_TAG_INSREM_LSB, 2);
static const struct rtl8309n_regfield vlan_igr_ins_en = PORT_TAG(RTL8309N_VLAN_IGR_INS_EN_BIT, 1);
static const struct rtl8309n_regfield vlan_igr_ins_mask =
	PORT_TAG(RTL8309N_VLAN_IGR_INS_MASK_LSB, 9);

/* ---- Global control, ports, tags ---- */

RTL8309N_GLOBAL_ACCESSORS(vlan_enable, s32, vlan_enable)
RTL8309N_GLOBAL_ACCESSORS(vlan_igrFilterEnable, s32, vlan_igr_filter)
RTL8309N_GLOBAL_ACCESSORS(vlan_fixMcastFidEnable, s32, vlan_fixmc_fid_en)
RTL8309N_GLOBAL_ACCESSORS(vlan_fixMcastFid, u32, vlan_fixmc_fid)
RTL8309N_SEL_ACCESSORS(vlan_leakyEnable, vlan_leaky)
RTL8309N_PORT_ACCESSORS(vlan_portAcceptFrameType, vlan_accept)
RTL8309N_PORT_ACCESSORS(vlan_tagAwareEnable, vlan_tag_aware)
RTL8309N_PORT_ACCESSORS(vlan_discardNonPvidPktEnable, vlan_discard_nonpvid)
RTL8309N_PORT_ACCESSORS(vlan_portPvidIndex, vlan_pvid_index)
RTL8309N_PORT_ACCESSORS(vlan_nullVidReplaceEnable, vlan_null_vid)
RTL8309N_PORT_ACCESSORS(vlan_tagInsertRemove, vlan_tag_insrem)
RTL8309N_PORT_ACCESSORS(vlan_igrPortTagInsertEnable, vlan_igr_ins_en)
RTL8309N_PORT_ACCESSORS(vlan_igrPortTagInsert, vlan_igr_ins_mask)

s32 rtl8309n_vlan_unmatchVidAction_set(u32 action)
{
	return rtl8309n_regfield_code_set(&vlan_unmatch_act, 0, action,
					  RTL8309N_VLAN_UNMATCH_ACT_2, RTL8309N_VLAN_UNMATCH_ACT_3);
}

s32 rtl8309n_vlan_unmatchVidAction_get(u32 *paction)
{
	return rtl8309n_regfield_code_get(&vlan_unmatch_act, 0, paction,
					  RTL8309N_VLAN_UNMATCH_ACT_2, RTL8309N_VLAN_UNMATCH_ACT_3);
}

/* ---- Table ---- */

/*
 * An entry is three whole words, always written and read in the order VID
 * and FID, member mask, untag mask.  VID 4095 is accepted here; the API
 * keeps VIDs to 1..4094.
 */
s32 rtl8309n_vlan_entry_set(u32 index, u32 vid, u32 mbrmsk, u32 untagmsk, u32 fid)
{
	u32 reg = RTL8309N_VLAN_ENTRY_REG + index;

	if (vid > RTL8309N_VLAN_MAX_VID || index >= RTL8309N_VLAN_ENTRY_NUM ||
	    mbrmsk > RTL8309N_PORT_MASK_ALL || untagmsk > RTL8309N_PORT_MASK_ALL ||
	    fid > RTL8309N_VLAN_MAX_FID)
		return RT_ERR_FAILED;

	rtl8309n_reg_set(RTL8309N_VLAN_ENTRY_VID_ADDR, reg, RTL8309N_VLAN_PAGE,
			 (u16)(vid | fid << RTL8309N_VLAN_ENTRY_FID_SHIFT));
	rtl8309n_reg_set(RTL8309N_VLAN_ENTRY_MBR_ADDR, reg, RTL8309N_VLAN_PAGE, (u16)mbrmsk);
	rtl8309n_reg_set(RTL8309N_VLAN_ENTRY_UNTAG_ADDR, reg, RTL8309N_VLAN_PAGE, (u16)untagmsk);
	return RT_ERR_OK;
}

s32 rtl8309n_vlan_entry_get(u32 index, u32 *pvid, u32 *pmbrmsk, u32 *puntagmsk, u32 *pfid)
{
	u32 reg = RTL8309N_VLAN_ENTRY_REG + index;
	u32 word = 0;

	if (!pvid || !pmbrmsk || !puntagmsk || !pfid || index >= RTL8309N_VLAN_ENTRY_NUM)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(RTL8309N_VLAN_ENTRY_VID_ADDR, reg, RTL8309N_VLAN_PAGE, &word);
	*pvid = word & RTL8309N_VLAN_ENTRY_VID_MASK;
	*pfid = (word >> RTL8309N_VLAN_ENTRY_FID_SHIFT) & RTL8309N_VLAN_ENTRY_FID_MASK;
	rtl8309n_reg_get(RTL8309N_VLAN_ENTRY_MBR_ADDR, reg, RTL8309N_VLAN_PAGE, &word);
	*pmbrmsk = word & RTL8309N_PORT_MASK_ALL;
	rtl8309n_reg_get(RTL8309N_VLAN_ENTRY_UNTAG_ADDR, reg, RTL8309N_VLAN_PAGE, &word);
	*puntagmsk = word & RTL8309N_PORT_MASK_ALL;
	return RT_ERR_OK;
}

/* The default: every port a member of VLAN 1 (entry 0, no untagged ports). */
#define VLAN_DEFAULT_VID		1
#define VLAN_DEFAULT_ACCEPT		3

s32 rtl8309n_vlan_init(void)
{
	u32 i;

	for (i = 0; i < RTL8309N_VLAN_ENTRY_NUM; i++)
		rtl8309n_vlan_entry_set(i, 0, 0, 0, 0);
	rtl8309n_vlan_igrFilterEnable_set(RTL8309N_DISABLED);
	for (i = 0; i <= RTL8309N_MAX_PORT; i++) {
		rtl8309n_vlan_portAcceptFrameType_set(i, VLAN_DEFAULT_ACCEPT);
		rtl8309n_vlan_tagAwareEnable_set(i, RTL8309N_ENABLED);
	}
	rtl8309n_vlan_entry_set(0, VLAN_DEFAULT_VID, RTL8309N_PORT_MASK_ALL, 0, 0);
	for (i = 0; i <= RTL8309N_MAX_PORT; i++)
		rtl8309n_vlan_portPvidIndex_set(i, 0);
	rtl8309n_vlan_enable_set(RTL8309N_ENABLED);
	return RT_ERR_OK;
}
