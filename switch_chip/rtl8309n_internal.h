/* SPDX-License-Identifier: GPL-2.0 */
/*
 * Helpers shared by the block files of the register layer.  Each keeps the
 * bus sequence of the primitive it stands for (one rtl8309n_reg_get, then
 * one rtl8309n_reg_set for an update), so a block function is its argument
 * checks plus one helper call and its trace is what the chip expects.
 */
#ifndef RTL8309N_INTERNAL_H
#define RTL8309N_INTERNAL_H

#include "rtl8309n_asicdrv.h"

#define RTL8309N_FIELD_MASK(width)	((width) >= 32 ? 0xFFFFFFFFu : ((1u << (width)) - 1))

/* Polarity of a chip bit that carries an enable flag. */
enum rtl8309n_polarity {
	RTL8309N_ACTIVE_HIGH = 0,	/* bit set means enabled */
	RTL8309N_ACTIVE_LOW = 1,	/* bit set means disabled */
};

/*
 * Read-modify-write of @width bits at @lsb of a switch register.  @value is
 * masked to the field; range checks belong to the caller.
 */
s32 rtl8309n_field_set(u32 phyad, u32 regad, u32 npage, u32 lsb, u32 width, u32 value);
/* Read @width bits at @lsb of a switch register. */
s32 rtl8309n_field_get(u32 phyad, u32 regad, u32 npage, u32 lsb, u32 width, u32 *pvalue);

/*
 * Enable flag kept in one chip bit: exactly 1 enables, anything else
 * disables, and an active-low bit is inverted on the way in and out.
 */
s32 rtl8309n_flag_set(u32 phyad, u32 regad, u32 bit, u32 npage, u32 enabled,
		      enum rtl8309n_polarity pol);
s32 rtl8309n_flag_get(u32 phyad, u32 regad, u32 bit, u32 npage, u32 *penabled,
		      enum rtl8309n_polarity pol);

/*
 * Poll a self-clearing busy bit with back-to-back reads, at most
 * @max_reads of them; RT_ERR_FAILED if it is still set after the last.
 */
s32 rtl8309n_poll_bit_clear(u32 phyad, u32 regad, u32 bit, u32 npage, u32 max_reads);

/* The read count of every indirect-table and counter busy poll. */
#define RTL8309N_POLL_READS	100

/*
 * Read-modify-write that clears @clear and ORs in @bits exactly as given,
 * for the few setters whose value the chip takes unmasked or that update
 * several fields of one register at once.
 */
s32 rtl8309n_reg_update(u32 phyad, u32 regad, u32 npage, u32 clear, u32 bits);

/*
 * A register field as the block files' tables name it.  Per-port settings
 * take the port number as SMI address, as offset to the register or as
 * offset to the bit; RTL8309N_GLOBAL fields ignore the port.
 */
enum rtl8309n_port_index {
	RTL8309N_GLOBAL = 0,
	RTL8309N_PORT_ADDR,	/* SMI address = port */
	RTL8309N_PORT_REG,	/* register = regad + port */
	RTL8309N_PORT_BIT,	/* lowest bit = lsb + port */
};

struct rtl8309n_regfield {
	u8 phyad;	/* unused with RTL8309N_PORT_ADDR */
	u8 regad;
	u8 npage;
	u8 lsb;
	u8 width;	/* 1: an enable flag; 0: no bit (see below) */
	u8 pol;		/* enum rtl8309n_polarity, for enable flags */
	u8 index;	/* enum rtl8309n_port_index */
};

/* A chip-wide field; one bit wide, an active-high enable flag. */
#define RTL8309N_GLOBAL_FIELD(addr, reg, page, lsb, width)	\
	{ addr, reg, page, lsb, width, RTL8309N_ACTIVE_HIGH, RTL8309N_GLOBAL }

/*
 * Some selectors are accepted although the chip keeps no bit for them:
 * writing such a "field" changes nothing, reading it reports 0.
 */
#define RTL8309N_NO_FIELD(idx)	{ .width = 0, .index = (idx) }

/*
 * A value kept in a register of its own: the setter refuses a value above
 * @max and writes the whole register; the getter refuses a null pointer
 * and reports the low @width bits.  Both fail before any bus access.
 */
s32 rtl8309n_reg_set_max(u32 phyad, u32 regad, u32 npage, u32 value, u32 max);
s32 rtl8309n_reg_get_low(u32 phyad, u32 regad, u32 npage, u32 width, u32 *pvalue);

/* A one-bit field of a fixed register: an enable flag or a two-code bit. */
#define RTL8309N_GLOBAL_BIT(addr, reg, page, bit, polarity)			\
	{ .phyad = (addr), .regad = (reg), .npage = (page), .lsb = (bit),	\
	  .width = 1, .pol = (polarity), .index = RTL8309N_GLOBAL }

/*
 * Field accessors.  They refuse, before any bus access, a NULL field (a
 * selector out of range, see RTL8309N_PICK), a port above RTL8309N_MAX_PORT
 * for per-port fields, a value wider than a multi-bit field, and a NULL
 * result pointer.  A one-bit field is an enable flag: exactly 1 enables,
 * anything else disables, through rtl8309n_flag_set/get with its polarity.
 * Multi-bit fields go through rtl8309n_field_set/get.
 */
s32 rtl8309n_regfield_set(const struct rtl8309n_regfield *f, u32 port, u32 value);
s32 rtl8309n_regfield_get(const struct rtl8309n_regfield *f, u32 port, u32 *pvalue);

/*
 * A one-bit field that selects between two codes (packet actions and the
 * like): @code_set when the bit is set, @code_clear when it is clear.  Any
 * other code is refused before any bus access.
 */
s32 rtl8309n_regfield_code_set(const struct rtl8309n_regfield *f, u32 port, u32 code,
			       u32 code_set, u32 code_clear);
s32 rtl8309n_regfield_code_get(const struct rtl8309n_regfield *f, u32 port, u32 *pcode,
			       u32 code_set, u32 code_clear);

#define RTL8309N_ARRAY_SIZE(a)	(sizeof(a) / sizeof((a)[0]))
/* Entry @sel of a field table, or NULL (refused by the accessors) past its end. */
#define RTL8309N_PICK(tbl, sel)	\
	((u32)(sel) < RTL8309N_ARRAY_SIZE(tbl) ? &(tbl)[sel] : NULL)

/*
 * Accessor pairs that are nothing but one field: each defines
 * rtl8309n_<name>_set and rtl8309n_<name>_get (prototypes in
 * rtl8309n_asicdrv.h) with the argument lists given, over @field for @port.
 * A block file lists its plain accessors as one line each, beside its
 * register map; anything with checks or steps of its own is written out.
 */
#define RTL8309N_FIELD_ACCESSORS(name, set_params, get_params, field, port)	\
	s32 rtl8309n_##name##_set set_params					\
	{									\
		return rtl8309n_regfield_set(field, port, (u32)value);		\
	}									\
	s32 rtl8309n_##name##_get get_params					\
	{									\
		return rtl8309n_regfield_get(field, port, pvalue);		\
	}

/* _set(type value), _get(u32 *pvalue): a chip-wide field. */
#define RTL8309N_GLOBAL_ACCESSORS(name, type, field)				\
	RTL8309N_FIELD_ACCESSORS(name, (type value), (u32 *pvalue), &(field), 0)

/* _set(u32 port, u32 value), _get(u32 port, u32 *pvalue). */
#define RTL8309N_PORT_ACCESSORS(name, field)					\
	RTL8309N_FIELD_ACCESSORS(name, (u32 port, u32 value), (u32 port, u32 *pvalue), \
				 &(field), port)

/* _set(u32 sel, u32 value), _get(u32 sel, u32 *pvalue): @table[sel]. */
#define RTL8309N_SEL_ACCESSORS(name, table)					\
	RTL8309N_FIELD_ACCESSORS(name, (u32 sel, u32 value), (u32 sel, u32 *pvalue), \
				 RTL8309N_PICK(table, sel), 0)

/* _set(u32 port, u32 sel, u32 value), _get(...): @table[sel - @first]. */
#define RTL8309N_PORT_SEL_ACCESSORS(name, table, first)			\
	RTL8309N_FIELD_ACCESSORS(name, (u32 port, u32 sel, u32 value),		\
				 (u32 port, u32 sel, u32 *pvalue),		\
				 RTL8309N_PICK(table, sel - (first)), port)

/*
 * Start an indirect command by setting its self-clearing bit, then poll
 * that bit (RTL8309N_POLL_READS reads); RT_ERR_FAILED on a timeout.
 */
s32 rtl8309n_cmd_exec(u32 phyad, u32 regad, u32 bit, u32 npage);

/*
 * A MAC address kept in three consecutive registers from @first_reg, two
 * bytes each with the earlier byte in bits 7..0.  @reversed: the first
 * register holds bytes 4/5 and the last bytes 0/1, else bytes 0/1 come
 * first.  Registers are accessed in ascending order, results ignored.
 */
void rtl8309n_mac_regs_set(u32 phyad, u32 first_reg, u32 npage, int reversed, const u8 *mac);
void rtl8309n_mac_regs_get(u32 phyad, u32 first_reg, u32 npage, int reversed, u8 *mac);

#endif /* RTL8309N_INTERNAL_H */
