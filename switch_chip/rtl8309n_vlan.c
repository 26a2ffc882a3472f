// SPDX-License-Identifier: GPL-2.0
/*
 * 802.1Q VLAN block: the global control register, the per-port VLAN and tag
 * registers, and the 16-entry VLAN table.  Tag insert/remove modes and
 * unmatched-VID actions are stored as the caller gives them; what each mode,
 * action or leaky type does on the wire is the chip's business.
 */
#include "rtl8309n_internal.h"

#define VLAN_CTRL_FIELD(mask, kind)					\
	RTL8309N_FIELD(RTL8309N_VLAN_CTRL_ADDR, RTL8309N_VLAN_CTRL_REG,	\
		       RTL8309N_VLAN_PAGE, mask, kind, RTL8309N_GLOBAL)
#define VLAN_PORT_FIELD(mask, kind)					\
	RTL8309N_FIELD(RTL8309N_VLAN_PORT_ADDR, RTL8309N_VLAN_PORT_REG,	\
		       RTL8309N_VLAN_PAGE, mask, kind, RTL8309N_PORT_REG)
#define VLAN_TAG_FIELD(mask, kind)					\
	RTL8309N_FIELD(0, RTL8309N_VLAN_TAG_REG, RTL8309N_VLAN_TAG_PAGE,	\
		       mask, kind, RTL8309N_PORT_ADDR)

static const struct rtl8309n_field vlan_enable =
	VLAN_CTRL_FIELD(RTL8309N_VLAN_CTRL_ENABLE, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field vlan_igr_filter =
	VLAN_CTRL_FIELD(RTL8309N_VLAN_CTRL_IGR_FILTER_OFF, RTL8309N_FIELD_FLAG_INV);
static const struct rtl8309n_field vlan_unmatch_act =
	VLAN_CTRL_FIELD(RTL8309N_VLAN_CTRL_UNMATCH_ACT, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field vlan_fixmc_fid_en =
	VLAN_CTRL_FIELD(RTL8309N_VLAN_CTRL_FIXMC_FID_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field vlan_fixmc_fid =
	VLAN_CTRL_FIELD(RTL8309N_VLAN_CTRL_FIXMC_FID, RTL8309N_FIELD_VALUE);

/* One disable bit per leaky type 0..4; type 5 is accepted but has none. */
#define VLAN_LEAKY_FIELD(t)	\
	VLAN_CTRL_FIELD(RTL8309N_VLAN_CTRL_LEAKY_OFF(t), RTL8309N_FIELD_FLAG_INV)
static const struct rtl8309n_field vlan_leaky[RTL8309N_VLAN_LEAKY_TYPES] = {
	VLAN_LEAKY_FIELD(0), VLAN_LEAKY_FIELD(1), VLAN_LEAKY_FIELD(2),
	VLAN_LEAKY_FIELD(3), VLAN_LEAKY_FIELD(4),
	RTL8309N_NO_FIELD(RTL8309N_GLOBAL),
};

static const struct rtl8309n_field vlan_accept =
	VLAN_PORT_FIELD(RTL8309N_VLAN_PORT_ACCEPT, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field vlan_tag_aware =
	VLAN_PORT_FIELD(RTL8309N_VLAN_PORT_TAG_AWARE, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field vlan_discard_nonpvid =
	VLAN_PORT_FIELD(RTL8309N_VLAN_PORT_DISCARD_NONPVID, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field vlan_pvid_index =
	VLAN_PORT_FIELD(RTL8309N_VLAN_PORT_PVID_INDEX, RTL8309N_FIELD_VALUE);

static const struct rtl8309n_field vlan_null_vid =
	VLAN_TAG_FIELD(RTL8309N_VLAN_TAG_NULL_VID, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field vlan_tag_insrem =
	VLAN_TAG_FIELD(RTL8309N_VLAN_TAG_INSREM, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field vlan_igr_ins_en =
	VLAN_TAG_FIELD(RTL8309N_VLAN_TAG_IGR_INS_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field vlan_igr_ins_mask =
	VLAN_TAG_FIELD(RTL8309N_VLAN_TAG_IGR_INS_MASK, RTL8309N_FIELD_VALUE);

/* ---- Global control ---- */

s32 rtl8309n_vlan_enable_set(s32 enabled)
{
	return rtl8309n_field_set(&vlan_enable, 0, (u32)enabled);
}

s32 rtl8309n_vlan_enable_get(u32 *penabled)
{
	return rtl8309n_field_get(&vlan_enable, 0, penabled);
}

s32 rtl8309n_vlan_igrFilterEnable_set(s32 enabled)
{
	return rtl8309n_field_set(&vlan_igr_filter, 0, (u32)enabled);
}

s32 rtl8309n_vlan_igrFilterEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&vlan_igr_filter, 0, penabled);
}

s32 rtl8309n_vlan_unmatchVidAction_set(u32 action)
{
	return rtl8309n_field_code_set(&vlan_unmatch_act, 0, action,
				       RTL8309N_VLAN_UNMATCH_ACT_2, RTL8309N_VLAN_UNMATCH_ACT_3);
}

s32 rtl8309n_vlan_unmatchVidAction_get(u32 *paction)
{
	return rtl8309n_field_code_get(&vlan_unmatch_act, 0, paction,
				       RTL8309N_VLAN_UNMATCH_ACT_2, RTL8309N_VLAN_UNMATCH_ACT_3);
}

s32 rtl8309n_vlan_leakyEnable_set(u32 type, u32 enabled)
{
	return rtl8309n_field_set(RTL8309N_PICK(vlan_leaky, type), 0, enabled);
}

s32 rtl8309n_vlan_leakyEnable_get(u32 type, u32 *penabled)
{
	return rtl8309n_field_get(RTL8309N_PICK(vlan_leaky, type), 0, penabled);
}

s32 rtl8309n_vlan_fixMcastFidEnable_set(s32 enabled)
{
	return rtl8309n_field_set(&vlan_fixmc_fid_en, 0, (u32)enabled);
}

s32 rtl8309n_vlan_fixMcastFidEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&vlan_fixmc_fid_en, 0, penabled);
}

s32 rtl8309n_vlan_fixMcastFid_set(u32 fid)
{
	return rtl8309n_field_set(&vlan_fixmc_fid, 0, fid);
}

s32 rtl8309n_vlan_fixMcastFid_get(u32 *pfid)
{
	return rtl8309n_field_get(&vlan_fixmc_fid, 0, pfid);
}

/* ---- Per port ---- */

s32 rtl8309n_vlan_portAcceptFrameType_set(u32 port, u32 type)
{
	return rtl8309n_field_set(&vlan_accept, port, type);
}

s32 rtl8309n_vlan_portAcceptFrameType_get(u32 port, u32 *ptype)
{
	return rtl8309n_field_get(&vlan_accept, port, ptype);
}

s32 rtl8309n_vlan_tagAwareEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&vlan_tag_aware, port, enabled);
}

s32 rtl8309n_vlan_tagAwareEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&vlan_tag_aware, port, penabled);
}

s32 rtl8309n_vlan_discardNonPvidPktEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&vlan_discard_nonpvid, port, enabled);
}

s32 rtl8309n_vlan_discardNonPvidPktEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&vlan_discard_nonpvid, port, penabled);
}

s32 rtl8309n_vlan_portPvidIndex_set(u32 port, u32 index)
{
	return rtl8309n_field_set(&vlan_pvid_index, port, index);
}

s32 rtl8309n_vlan_portPvidIndex_get(u32 port, u32 *pindex)
{
	return rtl8309n_field_get(&vlan_pvid_index, port, pindex);
}

s32 rtl8309n_vlan_nullVidReplaceEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&vlan_null_vid, port, enabled);
}

s32 rtl8309n_vlan_nullVidReplaceEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&vlan_null_vid, port, penabled);
}

s32 rtl8309n_vlan_tagInsertRemove_set(u32 port, u32 mode)
{
	return rtl8309n_field_set(&vlan_tag_insrem, port, mode);
}

s32 rtl8309n_vlan_tagInsertRemove_get(u32 port, u32 *pmode)
{
	return rtl8309n_field_get(&vlan_tag_insrem, port, pmode);
}

s32 rtl8309n_vlan_igrPortTagInsertEnable_set(u32 port, u32 enabled)
{
	return rtl8309n_field_set(&vlan_igr_ins_en, port, enabled);
}

s32 rtl8309n_vlan_igrPortTagInsertEnable_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(&vlan_igr_ins_en, port, penabled);
}

s32 rtl8309n_vlan_igrPortTagInsert_set(u32 port, u32 portmask)
{
	return rtl8309n_field_set(&vlan_igr_ins_mask, port, portmask);
}

s32 rtl8309n_vlan_igrPortTagInsert_get(u32 port, u32 *pportmask)
{
	return rtl8309n_field_get(&vlan_igr_ins_mask, port, pportmask);
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
			 (u16)(vid | rtl8309n_field_prep(RTL8309N_VLAN_ENTRY_FID, fid)));
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
	*pvid = rtl8309n_field_extract(RTL8309N_VLAN_ENTRY_VID, word);
	*pfid = rtl8309n_field_extract(RTL8309N_VLAN_ENTRY_FID, word);
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
