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

/*
 * FIELD_PREP()/FIELD_GET() for masks known only at run time (a field of a
 * per-port bit, a table picked by selector).  @mask must not be 0.
 */
static inline u32 rtl8309n_mask_shift(u32 mask)
{
	return (u32)__builtin_ctz(mask);
}

static inline u32 rtl8309n_field_prep(u32 mask, u32 value)
{
	return (value << rtl8309n_mask_shift(mask)) & mask;
}

static inline u32 rtl8309n_field_extract(u32 mask, u32 reg)
{
	return (reg & mask) >> rtl8309n_mask_shift(mask);
}

/*
 * Read-modify-write of the bits of @mask in a switch register: @value is
 * the field's value (not yet shifted), cut to the mask; range checks
 * belong to the caller.
 */
s32 rtl8309n_bits_set(u32 phyad, u32 regad, u32 npage, u32 mask, u32 value);
/* The field of @mask, shifted down. */
s32 rtl8309n_bits_get(u32 phyad, u32 regad, u32 npage, u32 mask, u32 *pvalue);

/* Polarity of a chip bit that carries an enable flag. */
enum rtl8309n_polarity {
	RTL8309N_ACTIVE_HIGH = 0,	/* bit set means enabled */
	RTL8309N_ACTIVE_LOW = 1,	/* bit set means disabled */
};

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
 * A value kept in a register of its own: the setter refuses a value above
 * @max and writes the whole register; the getter refuses a null pointer
 * and reports the bits of @mask.  Both fail before any bus access.
 */
s32 rtl8309n_reg_set_max(u32 phyad, u32 regad, u32 npage, u32 value, u32 max);
s32 rtl8309n_reg_get_masked(u32 phyad, u32 regad, u32 npage, u32 mask, u32 *pvalue);

/* ---- Register fields ---- */

/* What a field holds, and so how its accessors treat a value. */
enum rtl8309n_field_kind {
	/*
	 * A selector the chip keeps no bit for: setting it changes nothing,
	 * reading it reports 0.
	 */
	RTL8309N_FIELD_NONE = 0,
	/* A number: refused above what the mask holds. */
	RTL8309N_FIELD_VALUE,
	/* An enable flag in one bit: exactly 1 enables, anything else disables. */
	RTL8309N_FIELD_FLAG,
	/* The same, kept by the chip as a disable bit. */
	RTL8309N_FIELD_FLAG_INV,
};

/*
 * How a per-port field moves with the port: the port number is its SMI
 * address, an offset to its register or an offset to its bits.  Chip-wide
 * fields ignore the port.
 */
enum rtl8309n_port_index {
	RTL8309N_GLOBAL = 0,
	RTL8309N_PORT_ADDR,	/* SMI address = port */
	RTL8309N_PORT_REG,	/* register = regad + port */
	RTL8309N_PORT_BIT,	/* mask << port */
};

/* A register field as a block's register table names it. */
struct rtl8309n_field {
	u8 phyad;	/* unused with RTL8309N_PORT_ADDR */
	u8 regad;
	u8 npage;
	u8 kind;	/* enum rtl8309n_field_kind */
	u8 index;	/* enum rtl8309n_port_index */
	u16 mask;	/* the field's bits for port 0 */
};

/* The one constructor of a field: coordinates, mask, kind, port index. */
#define RTL8309N_FIELD(addr, reg, page, msk, knd, idx)			\
	{ .phyad = (addr), .regad = (reg), .npage = (page), .mask = (msk),	\
	  .kind = (knd), .index = (idx) }

/* A selector without a chip bit (see RTL8309N_FIELD_NONE). */
#define RTL8309N_NO_FIELD(idx)	{ .kind = RTL8309N_FIELD_NONE, .index = (idx) }

/*
 * Field accessors.  They refuse, before any bus access, a NULL field (a
 * selector out of range, see RTL8309N_PICK), a port above RTL8309N_MAX_PORT
 * for per-port fields, a value wider than a value field, and a NULL result
 * pointer.  Flags go through rtl8309n_flag_set/get with their polarity,
 * values through rtl8309n_bits_set/get.
 */
s32 rtl8309n_field_set(const struct rtl8309n_field *f, u32 port, u32 value);
s32 rtl8309n_field_get(const struct rtl8309n_field *f, u32 port, u32 *pvalue);

/*
 * A one-bit field that selects between two codes (packet actions and the
 * like): @code_set when the bit is set, @code_clear when it is clear.  Any
 * other code is refused before any bus access.
 */
s32 rtl8309n_field_code_set(const struct rtl8309n_field *f, u32 port, u32 code,
			    u32 code_set, u32 code_clear);
s32 rtl8309n_field_code_get(const struct rtl8309n_field *f, u32 port, u32 *pcode,
			    u32 code_set, u32 code_clear);

#define RTL8309N_ARRAY_SIZE(a)	(sizeof(a) / sizeof((a)[0]))
/* Entry @sel of a field table, or NULL (refused by the accessors) past its end. */
#define RTL8309N_PICK(tbl, sel)	\
	((u32)(sel) < RTL8309N_ARRAY_SIZE(tbl) ? &(tbl)[sel] : NULL)

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
