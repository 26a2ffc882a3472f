// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ VLAN API: VLANs by VID over the chip's 16-entry VLAN table, port
 * VLAN ids, ingress filtering and accepted frame types.
 *
 * No copy of the table is kept: every lookup reads the chip.  An entry with
 * VID 0 is free.  Lookup, then write, is not atomic; callers do not run two
 * VLAN updates at once.
 */
#include "rtk_internal.h"

#define NO_ENTRY	(-1)

struct vlan_entry {
	u32 vid;
	u32 mbrmsk;
	u32 untagmsk;
	u32 fid;
};

/* Where a lookup found its VID, and the lowest free entry it saw. */
struct vlan_slot {
	u32 index;
	struct vlan_entry entry;
	s32 lowest_free;	/* NO_ENTRY: none seen */
};

static rtk_api_ret_t vlan_entry_read(u32 index, struct vlan_entry *e)
{
	return rtk_ret(rtl8309n_vlan_entry_get(index, &e->vid, &e->mbrmsk, &e->untagmsk, &e->fid));
}

/*
 * Looks @vid up from the top entry down and stops at its entry, so an
 * existing VLAN is always found before a free entry is taken.  Returns
 * RT_ERR_VLAN_ENTRY_NOT_FOUND after a full scan without it.
 */
static rtk_api_ret_t vlan_find(rtk_vlan_t vid, struct vlan_slot *slot)
{
	s32 i;

	slot->index = 0;
	slot->lowest_free = NO_ENTRY;
	for (i = RTL8309N_VLAN_ENTRY_NUM - 1; i >= 0; i--) {
		if (vlan_entry_read(i, &slot->entry) != RT_ERR_OK)
			return RT_ERR_FAILED;
		if (slot->entry.vid == 0) {
			slot->lowest_free = i;
		} else if (slot->entry.vid == vid) {
			slot->index = i;
			return RT_ERR_OK;
		}
	}
	return RT_ERR_VLAN_ENTRY_NOT_FOUND;
}

static rtk_api_ret_t chk_vid(rtk_vlan_t vid)
{
	return vid < RTK_VLAN_ID_MIN || vid > RTK_VLAN_ID_MAX ? RT_ERR_VLAN_VID : RT_ERR_OK;
}

rtk_api_ret_t rtk_vlan_init(void)
{
	rtl8309n_vlan_init();
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_vlan_set(rtk_vlan_t vid, rtk_portmask_t mbrmsk, rtk_portmask_t untagmsk,
			   rtk_fid_t fid)
{
	struct vlan_slot slot;
	rtk_api_ret_t ret;

	ret = chk_vid(vid) ?: rtk_chk_portmask(untagmsk) ?: rtk_chk_portmask(mbrmsk) ?:
	      rtk_chk_max(fid, RTL8309N_VLAN_MAX_FID, RT_ERR_INPUT);
	if (ret != RT_ERR_OK)
		return ret;

	ret = vlan_find(vid, &slot);
	if (ret == RT_ERR_VLAN_ENTRY_NOT_FOUND) {
		if (slot.lowest_free == NO_ENTRY)
			return RT_ERR_TBL_FULL;
		slot.index = slot.lowest_free;
	} else if (ret != RT_ERR_OK) {
		return ret;
	}

	/* Empty masks delete the VLAN, or leave the free entry free. */
	if (!mbrmsk && !untagmsk)
		vid = 0;
	rtl8309n_vlan_entry_set(slot.index, vid, mbrmsk, untagmsk, fid);
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_vlan_get(rtk_vlan_t vid, rtk_portmask_t *pmbrmsk, rtk_portmask_t *puntagmsk,
			   rtk_fid_t *pfid)
{
	struct vlan_slot slot;
	rtk_api_ret_t ret;

	ret = chk_vid(vid) ?: rtk_chk_ptr(pmbrmsk) ?: rtk_chk_ptr(puntagmsk) ?:
	      rtk_chk_ptr(pfid) ?: vlan_find(vid, &slot);
	if (ret != RT_ERR_OK)
		return ret;
	*pmbrmsk = slot.entry.mbrmsk;
	*puntagmsk = slot.entry.untagmsk;
	*pfid = slot.entry.fid;
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_vlan_destroy(rtk_vlan_t vid)
{
	struct vlan_slot slot;

	return chk_vid(vid) ?: vlan_find(vid, &slot) ?:
	       rtk_ret(rtl8309n_vlan_entry_set(slot.index, 0, 0, 0, 0));
}

rtk_api_ret_t rtk_vlan_portPvid_set(rtk_port_t port, rtk_vlan_t pvid, rtk_pri_t priority)
{
	struct vlan_slot slot;
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: chk_vid(pvid) ?:
	      rtk_chk_max(priority, RTK_VLAN_PORT_PRI_MAX, RT_ERR_VLAN_PRIORITY) ?:
	      vlan_find(pvid, &slot);
	if (ret != RT_ERR_OK)
		return ret;
	rtl8309n_vlan_portPvidIndex_set(port, slot.index);
	rtl8309n_qos_1QPortPri_set(port, priority);
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_vlan_portPvid_get(rtk_port_t port, rtk_vlan_t *ppvid, rtk_pri_t *ppriority)
{
	struct vlan_entry entry;
	u32 index = 0;
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: rtk_chk_ptr(ppvid) ?: rtk_chk_ptr(ppriority) ?:
	      rtk_ret(rtl8309n_vlan_portPvidIndex_get(port, &index)) ?:
	      vlan_entry_read(index, &entry);
	if (ret != RT_ERR_OK)
		return ret;
	*ppvid = entry.vid;
	return rtk_ret(rtl8309n_qos_1QPortPri_get(port, ppriority));
}

rtk_api_ret_t rtk_vlan_portIFilterEnable_set(rtk_port_t port, rtk_enable_t enable)
{
	return rtk_chk_port(port) ?: rtk_ret(rtl8309n_vlan_igrFilterEnable_set(enable));
}

rtk_api_ret_t rtk_vlan_portIFilterEnable_get(rtk_port_t port, rtk_enable_t *penable)
{
	u32 enabled = 0;
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: rtk_chk_ptr(penable) ?:
	      rtk_ret(rtl8309n_vlan_igrFilterEnable_get(&enabled));
	if (ret == RT_ERR_OK)
		*penable = rtk_flag(enabled);
	return ret;
}

/* The chip's accepted-frame-type field per API type; chip value 0 has no API meaning. */
static const u8 accept_type_to_chip[ACCEPT_FRAME_TYPE_END] = {
	[ACCEPT_FRAME_TYPE_ALL] = 3,
	[ACCEPT_FRAME_TYPE_TAG_ONLY] = 2,
	[ACCEPT_FRAME_TYPE_UNTAG_ONLY] = 1,
};

rtk_api_ret_t rtk_vlan_portAcceptFrameType_set(rtk_port_t port,
					       rtk_vlan_acceptFrameType_t accept_frame_type)
{
	rtk_api_ret_t ret;
	u32 chip_type;

	ret = rtk_chk_port(port) ?:
	      rtk_chk_max(accept_frame_type, ACCEPT_FRAME_TYPE_END - 1,
			  RT_ERR_VLAN_ACCEPT_FRAME_TYPE);
	if (ret != RT_ERR_OK)
		return ret;
	chip_type = accept_type_to_chip[accept_frame_type];
	return rtk_ret(rtl8309n_vlan_portAcceptFrameType_set(port, chip_type));
}

rtk_api_ret_t rtk_vlan_portAcceptFrameType_get(rtk_port_t port,
					       rtk_vlan_acceptFrameType_t *paccept_frame_type)
{
	u32 chip = 0, type;
	rtk_api_ret_t ret;

	ret = rtk_chk_port(port) ?: rtk_chk_ptr(paccept_frame_type) ?:
	      rtk_ret(rtl8309n_vlan_portAcceptFrameType_get(port, &chip));
	if (ret != RT_ERR_OK)
		return ret;
	for (type = 0; type < ACCEPT_FRAME_TYPE_END; type++) {
		if (accept_type_to_chip[type] == chip) {
			*paccept_frame_type = type;
			return RT_ERR_OK;
		}
	}
	return RT_ERR_VLAN_ACCEPT_FRAME_TYPE;
}
