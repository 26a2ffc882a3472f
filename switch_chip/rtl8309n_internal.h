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

#endif /* RTL8309N_INTERNAL_H */
