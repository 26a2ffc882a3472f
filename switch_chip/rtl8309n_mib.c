// SPDX-License-Identifier: GPL-2.0
/*
 * MIB counters of the RTL8309N family, SMI address 4, page 15.
 *
 * A counter is read by writing its port and identifier with the busy bit
 * to the selection register; once the chip has latched it (busy clear)
 * its words stand in registers 19..22.  A byte counter takes two latches,
 * identifiers c and c + 1, each with its own poll.  Results are stored
 * only after every latch succeeded.
 */
#include "rtl8309n_internal.h"

#define MIB_BYTE_COUNTER_BITS	0x2	/* identifier 0 or 2, nothing else */

static const struct rtl8309n_field mib_enable =
	RTL8309N_FIELD(RTL8309N_MIB_ADDR, RTL8309N_MIB_CTRL_REG, RTL8309N_MIB_PAGE,
		       RTL8309N_MIB_CTRL_ENABLE, RTL8309N_FIELD_FLAG, RTL8309N_GLOBAL);
static const struct rtl8309n_field mib_overflow =
	RTL8309N_FIELD(RTL8309N_MIB_ADDR, RTL8309N_MIB_OVERFLOW_REG, RTL8309N_MIB_PAGE,
		       RTL8309N_MIB_OVERFLOW_PORT(0), RTL8309N_FIELD_FLAG, RTL8309N_PORT_BIT);

static s32 mib_bit_set(u32 regad, u32 bit, u32 value)
{
	return rtl8309n_regbit_set(RTL8309N_MIB_ADDR, regad, bit, RTL8309N_MIB_PAGE, value);
}

/*
 * Latch counter @id of @port and fetch the two words from @first_reg on
 * (the low one first).
 */
static s32 mib_latch_words(u32 port, u32 id, u32 first_reg, u32 *lo, u32 *hi)
{
	rtl8309n_reg_set(RTL8309N_MIB_ADDR, RTL8309N_MIB_SELECT_REG, RTL8309N_MIB_PAGE,
			 (u16)(rtl8309n_field_prep(RTL8309N_MIB_SELECT_COUNTER, id) |
			       rtl8309n_field_prep(RTL8309N_MIB_SELECT_PORT, port) |
			       RTL8309N_MIB_SELECT_BUSY));
	if (rtl8309n_poll_bit_clear(RTL8309N_MIB_ADDR, RTL8309N_MIB_SELECT_REG,
				    rtl8309n_mask_shift(RTL8309N_MIB_SELECT_BUSY),
				    RTL8309N_MIB_PAGE, RTL8309N_POLL_READS) != RT_ERR_OK)
		return RT_ERR_FAILED;
	rtl8309n_reg_get(RTL8309N_MIB_ADDR, first_reg, RTL8309N_MIB_PAGE, lo);
	rtl8309n_reg_get(RTL8309N_MIB_ADDR, first_reg + 1, RTL8309N_MIB_PAGE, hi);
	return RT_ERR_OK;
}

s32 rtl8309n_mib_enable_set(u32 enabled)
{
	if (enabled > RTL8309N_ENABLED)
		return RT_ERR_FAILED;
	return rtl8309n_field_set(&mib_enable, 0, enabled);
}

/*
 * The flag is delivered, yet the call reports RT_ERR_FAILED: existing
 * callers depend on that, so its result is no error indication.
 */
s32 rtl8309n_mib_enable_get(u32 *penabled)
{
	if (!penabled)
		return RT_ERR_FAILED;
	rtl8309n_field_get(&mib_enable, 0, penabled);
	return RT_ERR_FAILED;
}

/* Start and stop leave the port unchecked; the bit primitive refuses bits above 15. */
s32 rtl8309n_mib_start(u32 port)
{
	return mib_bit_set(RTL8309N_MIB_CTRL_REG, port, 1);
}

s32 rtl8309n_mib_stop(u32 port)
{
	return mib_bit_set(RTL8309N_MIB_CTRL_REG, port, 0);
}

s32 rtl8309n_mib_overFlowFlag_set(u32 port, u32 flag)
{
	return rtl8309n_field_set(&mib_overflow, port, flag);
}

/* No pointer check of its own; the field accessor refuses NULL before any bus access. */
s32 rtl8309n_mib_overFlowFlag_get(u32 port, u32 *pflag)
{
	return rtl8309n_field_get(&mib_overflow, port, pflag);
}

s32 rtl8309n_mib_byteCnt_get(u32 port, u32 counter, u32 *value)
{
	u32 words[RTL8309N_MIB_BYTE_WORDS] = { 0 };
	u32 i;

	if (port > RTL8309N_MAX_PORT || (counter & ~MIB_BYTE_COUNTER_BITS) || !value)
		return RT_ERR_FAILED;

	if (mib_latch_words(port, counter, RTL8309N_MIB_LOW_WORDS_REG,
			    &words[0], &words[1]) != RT_ERR_OK ||
	    mib_latch_words(port, counter + 1, RTL8309N_MIB_HIGH_WORDS_REG,
			    &words[2], &words[3]) != RT_ERR_OK)
		return RT_ERR_FAILED;
	for (i = 0; i < RTL8309N_MIB_BYTE_WORDS; i++)
		value[i] = words[i];
	return RT_ERR_OK;
}

s32 rtl8309n_mib_pktCnt_get(u32 port, u32 counter, u32 *value)
{
	u32 lo = 0, hi = 0;

	if (port > RTL8309N_MAX_PORT || !value || counter < RTL8309N_MIB_PKT_MIN ||
	    counter > RTL8309N_MIB_PKT_MAX)
		return RT_ERR_FAILED;

	if (mib_latch_words(port, counter, RTL8309N_MIB_LOW_WORDS_REG, &lo, &hi) != RT_ERR_OK)
		return RT_ERR_FAILED;
	*value = lo | hi << 16;
	return RT_ERR_OK;
}

/*
 * Clearing is waited for without a bound or a delay: the counters must be
 * zero when this returns, so a chip that never finishes hangs the caller.
 */
s32 rtl8309n_mib_reset(u32 port)
{
	u32 busy = 1;

	if (port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;

	rtl8309n_field_set(&mib_enable, 0, RTL8309N_ENABLED);
	mib_bit_set(RTL8309N_MIB_RESET_REG, port, 1);
	do {
		rtl8309n_regbit_get(RTL8309N_MIB_ADDR, RTL8309N_MIB_RESET_REG, port,
				    RTL8309N_MIB_PAGE, &busy);
	} while (busy);
	mib_bit_set(RTL8309N_MIB_CTRL_REG, port, 1);
	return RT_ERR_OK;
}
