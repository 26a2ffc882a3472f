// SPDX-License-Identifier: GPL-2.0
/*
 * Field and flag helpers of the register layer, on top of the primitives.
 */
#include "rtl8309n_internal.h"

s32 rtl8309n_bits_set(u32 phyad, u32 regad, u32 npage, u32 mask, u32 value)
{
	u32 data = 0;
	s32 ret;

	/*
	 * reg_get and reg_set check the same arguments: a failed read means
	 * the write would fail as well, so stop before any traffic.
	 */
	ret = rtl8309n_reg_get(phyad, regad, npage, &data);
	if (ret != RT_ERR_OK)
		return ret;
	data = (data & ~mask) | rtl8309n_field_prep(mask, value);
	return rtl8309n_reg_set(phyad, regad, npage, (u16)data);
}

s32 rtl8309n_bits_get(u32 phyad, u32 regad, u32 npage, u32 mask, u32 *pvalue)
{
	u32 data = 0;
	s32 ret;

	ret = rtl8309n_reg_get(phyad, regad, npage, &data);
	if (ret != RT_ERR_OK)
		return ret;
	*pvalue = rtl8309n_field_extract(mask, data);
	return RT_ERR_OK;
}

s32 rtl8309n_flag_set(u32 phyad, u32 regad, u32 bit, u32 npage, u32 enabled,
		      enum rtl8309n_polarity pol)
{
	u32 bitval = (enabled == RTL8309N_ENABLED) ^ (pol == RTL8309N_ACTIVE_LOW);

	return rtl8309n_regbit_set(phyad, regad, bit, npage, bitval);
}

s32 rtl8309n_flag_get(u32 phyad, u32 regad, u32 bit, u32 npage, u32 *penabled,
		      enum rtl8309n_polarity pol)
{
	u32 bitval = 0;
	s32 ret;

	ret = rtl8309n_regbit_get(phyad, regad, bit, npage, &bitval);
	if (ret != RT_ERR_OK)
		return ret;
	*penabled = bitval ^ (pol == RTL8309N_ACTIVE_LOW);
	return RT_ERR_OK;
}

s32 rtl8309n_poll_bit_clear(u32 phyad, u32 regad, u32 bit, u32 npage, u32 max_reads)
{
	u32 busy = 1;
	u32 i;

	for (i = 0; i < max_reads; i++) {
		rtl8309n_regbit_get(phyad, regad, bit, npage, &busy);
		if (!busy)
			return RT_ERR_OK;
	}
	return RT_ERR_FAILED;
}

s32 rtl8309n_cmd_exec(u32 phyad, u32 regad, u32 bit, u32 npage)
{
	rtl8309n_regbit_set(phyad, regad, bit, npage, 1);
	return rtl8309n_poll_bit_clear(phyad, regad, bit, npage, RTL8309N_POLL_READS);
}

/* Byte pair held by the @i-th register of a MAC register triple. */
static u32 mac_pair(u32 i, int reversed)
{
	return reversed ? 2 - i : i;
}

void rtl8309n_mac_regs_set(u32 phyad, u32 first_reg, u32 npage, int reversed, const u8 *mac)
{
	u32 i;

	for (i = 0; i < 3; i++) {
		const u8 *pair = &mac[2 * mac_pair(i, reversed)];

		rtl8309n_reg_set(phyad, first_reg + i, npage, (u16)(pair[0] | (pair[1] << 8)));
	}
}

void rtl8309n_mac_regs_get(u32 phyad, u32 first_reg, u32 npage, int reversed, u8 *mac)
{
	u32 data;
	u32 i;

	for (i = 0; i < 3; i++) {
		u8 *pair = &mac[2 * mac_pair(i, reversed)];

		data = 0;
		rtl8309n_reg_get(phyad, first_reg + i, npage, &data);
		pair[0] = (u8)data;
		pair[1] = (u8)(data >> 8);
	}
}

s32 rtl8309n_reg_update(u32 phyad, u32 regad, u32 npage, u32 clear, u32 bits)
{
	u32 data = 0;
	s32 ret;

	ret = rtl8309n_reg_get(phyad, regad, npage, &data);
	if (ret != RT_ERR_OK)
		return ret;
	return rtl8309n_reg_set(phyad, regad, npage, (u16)((data & ~clear) | bits));
}

/* Coordinates of @f for @port; RT_ERR_FAILED if the field or port is refused. */
static s32 field_locate(const struct rtl8309n_field *f, u32 port, u32 *phyad,
			u32 *regad, u32 *mask)
{
	if (!f || (f->index != RTL8309N_GLOBAL && port > RTL8309N_MAX_PORT))
		return RT_ERR_FAILED;

	*phyad = f->index == RTL8309N_PORT_ADDR ? port : f->phyad;
	*regad = f->regad + (f->index == RTL8309N_PORT_REG ? port : 0);
	*mask = (u32)f->mask << (f->index == RTL8309N_PORT_BIT ? port : 0);
	return RT_ERR_OK;
}

static enum rtl8309n_polarity field_polarity(const struct rtl8309n_field *f)
{
	return f->kind == RTL8309N_FIELD_FLAG_INV ? RTL8309N_ACTIVE_LOW : RTL8309N_ACTIVE_HIGH;
}

s32 rtl8309n_field_set(const struct rtl8309n_field *f, u32 port, u32 value)
{
	u32 phyad, regad, mask;

	if (field_locate(f, port, &phyad, &regad, &mask) != RT_ERR_OK)
		return RT_ERR_FAILED;
	switch (f->kind) {
	case RTL8309N_FIELD_NONE:
		return RT_ERR_OK;
	case RTL8309N_FIELD_FLAG:
	case RTL8309N_FIELD_FLAG_INV:
		return rtl8309n_flag_set(phyad, regad, rtl8309n_mask_shift(mask), f->npage,
					 value, field_polarity(f));
	default:
		if (value > rtl8309n_field_extract(mask, mask))
			return RT_ERR_FAILED;
		return rtl8309n_bits_set(phyad, regad, f->npage, mask, value);
	}
}

s32 rtl8309n_field_get(const struct rtl8309n_field *f, u32 port, u32 *pvalue)
{
	u32 phyad, regad, mask;

	if (field_locate(f, port, &phyad, &regad, &mask) != RT_ERR_OK || !pvalue)
		return RT_ERR_FAILED;
	switch (f->kind) {
	case RTL8309N_FIELD_NONE:
		*pvalue = 0;
		return RT_ERR_OK;
	case RTL8309N_FIELD_FLAG:
	case RTL8309N_FIELD_FLAG_INV:
		return rtl8309n_flag_get(phyad, regad, rtl8309n_mask_shift(mask), f->npage,
					 pvalue, field_polarity(f));
	default:
		return rtl8309n_bits_get(phyad, regad, f->npage, mask, pvalue);
	}
}

s32 rtl8309n_field_code_set(const struct rtl8309n_field *f, u32 port, u32 code,
			    u32 code_set, u32 code_clear)
{
	if (code != code_set && code != code_clear)
		return RT_ERR_FAILED;
	return rtl8309n_field_set(f, port, code == code_set);
}

s32 rtl8309n_field_code_get(const struct rtl8309n_field *f, u32 port, u32 *pcode,
			    u32 code_set, u32 code_clear)
{
	u32 bit = 0;
	s32 ret;

	if (!pcode)
		return RT_ERR_FAILED;
	ret = rtl8309n_field_get(f, port, &bit);
	if (ret != RT_ERR_OK)
		return ret;
	*pcode = bit ? code_set : code_clear;
	return RT_ERR_OK;
}

s32 rtl8309n_reg_set_max(u32 phyad, u32 regad, u32 npage, u32 value, u32 max)
{
	if (value > max)
		return RT_ERR_FAILED;
	return rtl8309n_reg_set(phyad, regad, npage, (u16)value);
}

s32 rtl8309n_reg_get_masked(u32 phyad, u32 regad, u32 npage, u32 mask, u32 *pvalue)
{
	if (!pvalue)
		return RT_ERR_FAILED;
	return rtl8309n_bits_get(phyad, regad, npage, mask, pvalue);
}
