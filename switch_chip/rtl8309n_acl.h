/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N ACL table: 16 ingress entries reached one at a time through the
 * command, data and fields registers of SMI address 3, page 15.
 */
#ifndef RTL8309N_ACL_H
#define RTL8309N_ACL_H

#include "rtl8309n_types.h"

#define RTL8309N_ACL_ADDR		3
#define RTL8309N_ACL_PAGE		15

/* Table access: (3, 16, 15) */
#define RTL8309N_ACL_ACCESS_REG		16
#define   RTL8309N_ACL_ACCESS_EN	0x0001

/* Command: (3, 17, 15) */
#define RTL8309N_ACL_CMD_REG		17
#define   RTL8309N_ACL_CMD_INDEX	0x000F	/* entry index */
#define   RTL8309N_ACL_CMD_READ		0x4000	/* 1 read, 0 write */
#define   RTL8309N_ACL_CMD_BUSY		0x8000	/* start; the chip clears it */

/* Entry data: (3, 18, 15), the 16 bits compared */
#define RTL8309N_ACL_DATA_REG		18

/* Entry fields: (3, 19, 15); bits 15..10 are not ours */
#define RTL8309N_ACL_FIELDS_REG		19
#define   RTL8309N_ACL_FIELDS		0x03FF
#define   RTL8309N_ACL_FIELDS_PROTO	0x0003
#define   RTL8309N_ACL_FIELDS_PORT	0x003C
#define   RTL8309N_ACL_FIELDS_ACT	0x00C0	/* the chip's action value */
#define   RTL8309N_ACL_FIELDS_PRI	0x0300

/* Every entry write also sets bits 0, 5, 6 and 7 of (2, 16, 17). */
#define RTL8309N_ACL_WRITE_ADDR		2
#define RTL8309N_ACL_WRITE_REG		16
#define RTL8309N_ACL_WRITE_PAGE		17
#define   RTL8309N_ACL_WRITE_BITS	0x00E1

#define RTL8309N_ACL_ENTRY_NUM		16
#define RTL8309N_ACL_MAX_PORT		10	/* 9 marks a free entry */

/* What the entry's 16-bit data is compared with. */
#define RTL8309N_ACL_PROTO_ETHERTYPE	0
#define RTL8309N_ACL_PROTO_TCP_PORT	1
#define RTL8309N_ACL_PROTO_UDP_PORT	2
#define RTL8309N_ACL_PROTO_TCPUDP_PORT	3

/*
 * Register-layer action codes of an entry.  Code 1 is a second spelling
 * of drop: it is stored as the chip's drop value and so reads back as 3.
 */
#define RTL8309N_ACL_ACT_PERMIT		0
#define RTL8309N_ACL_ACT_DROP_ALT	1
#define RTL8309N_ACL_ACT_TRAP_CPU	2
#define RTL8309N_ACL_ACT_DROP		3
#define RTL8309N_ACL_ACT_MIRROR		4
#define RTL8309N_ACL_ACT_MAX		4

typedef struct acl_entry {
	u32 priority;	/* 0..3, internal priority of matching frames */
	u32 action;	/* RTL8309N_ACL_ACT_* */
	u32 port;	/* ingress port 0..8; 9 free; 10 accepted */
	u32 protocol;	/* RTL8309N_ACL_PROTO_* */
	u32 data;	/* only bits 15..0 reach the chip */
} acl_entry;

s32 rtl8309n_acl_entry_set(u32 index, const acl_entry *entry);
s32 rtl8309n_acl_entry_get(u32 index, acl_entry *entry);

#endif /* RTL8309N_ACL_H */
