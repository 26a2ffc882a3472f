// SPDX-License-Identifier: GPL-2.0
/*
 * ACL table of the RTL8309N family: 16 ingress entries reached one at a
 * time through the command, data and fields registers of SMI address 3,
 * page 15.
 *
 * The chip's 2-bit action values are 0 drop, 1 permit, 2 trap to the CPU
 * and 3 mirror.  The layer's action codes are translated on the way in and
 * out by two tables that are deliberately not inverses: code 1 is stored
 * as drop and therefore reads back as code 3.
 *
 * Every entry write also sets bits 0, 5, 6 and 7 of (2, 16, 17).  They are
 * kept as one opaque mask that the ACL engine needs set once entries are
 * in use; nothing here reads or clears them, so they are not exposed on
 * their own.
 */
#include "rtl8309n_internal.h"

#define ACL_MAX_INDEX		(RTL8309N_ACL_ENTRY_NUM - 1)
#define ACL_MAX_PROTO		3
#define ACL_MAX_PRI		3

static const u8 acl_code_to_chip[RTL8309N_ACL_ACT_MAX + 1] = { 1, 0, 2, 0, 3 };
static const u8 acl_chip_to_code[4] = { 3, 0, 2, 4 };

#define ACL_FLAG(reg, mask)						\
	RTL8309N_FIELD(RTL8309N_ACL_ADDR, reg, RTL8309N_ACL_PAGE, mask, RTL8309N_FIELD_FLAG,	\
		       RTL8309N_GLOBAL)

static const struct rtl8309n_field acl_access_en =
	ACL_FLAG(RTL8309N_ACL_ACCESS_REG, RTL8309N_ACL_ACCESS_EN);
static const struct rtl8309n_field acl_cmd_read =
	ACL_FLAG(RTL8309N_ACL_CMD_REG, RTL8309N_ACL_CMD_READ);

static void acl_access(u32 on)
{
	rtl8309n_field_set(&acl_access_en, 0, on);
}

static void acl_index_select(u32 index)
{
	rtl8309n_bits_set(RTL8309N_ACL_ADDR, RTL8309N_ACL_CMD_REG, RTL8309N_ACL_PAGE,
			  RTL8309N_ACL_CMD_INDEX, index);
}

/*
 * Start the command in direction @read (entry index already selected) and
 * wait for it.  A timeout leaves the access bit set; the next access sets
 * it again anyway.
 */
static s32 acl_command(u32 read)
{
	rtl8309n_field_set(&acl_cmd_read, 0, read);
	return rtl8309n_cmd_exec(RTL8309N_ACL_ADDR, RTL8309N_ACL_CMD_REG,
				 rtl8309n_mask_shift(RTL8309N_ACL_CMD_BUSY), RTL8309N_ACL_PAGE);
}

/* Entry pointer: a NULL one is refused rather than dereferenced. */
s32 rtl8309n_acl_entry_set(u32 index, const acl_entry *entry)
{
	u32 word, mark = 0;

	if (!entry || index > ACL_MAX_INDEX || entry->port > RTL8309N_ACL_MAX_PORT ||
	    entry->action > RTL8309N_ACL_ACT_MAX || entry->protocol > ACL_MAX_PROTO ||
	    entry->priority > ACL_MAX_PRI)
		return RT_ERR_FAILED;

	word = rtl8309n_field_prep(RTL8309N_ACL_FIELDS_PROTO, entry->protocol) |
	       rtl8309n_field_prep(RTL8309N_ACL_FIELDS_PORT, entry->port) |
	       rtl8309n_field_prep(RTL8309N_ACL_FIELDS_ACT, acl_code_to_chip[entry->action]) |
	       rtl8309n_field_prep(RTL8309N_ACL_FIELDS_PRI, entry->priority);

	acl_access(1);
	rtl8309n_reg_get(RTL8309N_ACL_WRITE_ADDR, RTL8309N_ACL_WRITE_REG, RTL8309N_ACL_WRITE_PAGE,
			 &mark);
	rtl8309n_reg_set(RTL8309N_ACL_WRITE_ADDR, RTL8309N_ACL_WRITE_REG, RTL8309N_ACL_WRITE_PAGE,
			 (u16)(mark | RTL8309N_ACL_WRITE_BITS));
	acl_index_select(index);
	rtl8309n_reg_set(RTL8309N_ACL_ADDR, RTL8309N_ACL_DATA_REG, RTL8309N_ACL_PAGE,
			 (u16)(entry->data & 0xFFFF));
	rtl8309n_bits_set(RTL8309N_ACL_ADDR, RTL8309N_ACL_FIELDS_REG, RTL8309N_ACL_PAGE,
			  RTL8309N_ACL_FIELDS, word);
	if (acl_command(0) != RT_ERR_OK)
		return RT_ERR_FAILED;
	acl_access(0);
	return RT_ERR_OK;
}

s32 rtl8309n_acl_entry_get(u32 index, acl_entry *entry)
{
	u32 word = 0, data = 0;

	if (index > ACL_MAX_INDEX || !entry)
		return RT_ERR_FAILED;

	acl_access(1);
	acl_index_select(index);
	if (acl_command(1) != RT_ERR_OK)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(RTL8309N_ACL_ADDR, RTL8309N_ACL_FIELDS_REG, RTL8309N_ACL_PAGE, &word);
	entry->priority = rtl8309n_field_extract(RTL8309N_ACL_FIELDS_PRI, word);
	entry->port = rtl8309n_field_extract(RTL8309N_ACL_FIELDS_PORT, word);
	entry->action = acl_chip_to_code[rtl8309n_field_extract(RTL8309N_ACL_FIELDS_ACT, word)];
	entry->protocol = rtl8309n_field_extract(RTL8309N_ACL_FIELDS_PROTO, word);
	rtl8309n_reg_get(RTL8309N_ACL_ADDR, RTL8309N_ACL_DATA_REG, RTL8309N_ACL_PAGE, &data);
	entry->data = data & 0xFFFF;
	acl_access(0);
	return RT_ERR_OK;
}
