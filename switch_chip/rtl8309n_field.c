// SPDX-License-Identifier: GPL-2.0
/*
 * Field and flag helpers of the register layer, on top of the primitives.
 */
#include "rtl8309n_internal.h"

s32 rtl8309n_field_set(u32 phyad, u32 regad, u32 npage, u32 lsb, u32 width, u32 value)
{
	u32 mask = RTL8309N_FIELD_MASK(width) << lsb;
	u32 data = 0;
	s32 ret;

	/* reg_get and reg_set check the same arguments: a failed read means
	 * the write would fail as well, so stop before any traffic. */
	ret = rtl8309n_reg_get(phyad, regad, npage, &data);
	if (ret != RT_ERR_OK)
		return ret;
	data = (data & ~mask) | ((value << lsb) & mask);
	return rtl8309n_reg_set(phyad, regad, npage, (u16)data);
}

s32 rtl8309n_field_get(u32 phyad, u32 regad, u32 npage, u32 lsb, u32 width, u32 *pvalue)
{
	u32 data = 0;
	s32 ret;

	ret = rtl8309n_reg_get(phyad, regad, npage, &data);
	if (ret != RT_ERR_OK)
		return ret;
	*pvalue = (data >> lsb) & RTL8309N_FIELD_MASK(width);
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
