// SPDX-License-Identifier: GPL-2.0
/*
 * Chip-wide operations: initialisation, PHY software reset and the maximum
 * frame length.
 */
#include "rtl8309n_internal.h"

s32 rtl8309n_asic_init(void)
{
	return RT_ERR_OK;
}

/*
 * The reset poll reads back to back, with no delay (the PHY finishes within
 * a few MDIO transactions), and makes up to 101 passes.  Only a count of
 * exactly 100 is reported as failure: a reset seen finishing on the 101st
 * read fails, one still running after all 101 reads passes.  Callers rely on
 * that outcome, so it is kept.
 *
 * PHY 7 is out of reach of the bit accessors: its reset writes nothing, its
 * reads are refused and leave @busy set, so it makes 101 silent passes and
 * reports success.
 */
#define PHY_RESET_PASSES	101
#define PHY_RESET_FAIL_COUNT	100

s32 rtl8309n_phy_reset(u32 phy)
{
	const u32 reset_bit = rtl8309n_mask_shift(RTL8309N_MII_CTRL_RESET);
	u32 busy = 1;
	u32 count;

	if (phy > RTL8309N_MAX_PHY_PORT)
		return RT_ERR_FAILED;

	rtl8309n_phyRegBit_set(phy, RTL8309N_MII_CTRL, reset_bit, RTL8309N_MII_PAGE, 1);
	for (count = 0; count < PHY_RESET_PASSES; count++) {
		rtl8309n_phyRegBit_get(phy, RTL8309N_MII_CTRL, reset_bit, RTL8309N_MII_PAGE,
				       &busy);
		if (!busy)
			break;
	}
	return count == PHY_RESET_FAIL_COUNT ? RT_ERR_FAILED : RT_ERR_OK;
}

#define PKTLEN_FIELD(reg, mask)						\
	RTL8309N_FIELD(RTL8309N_PKTLEN_ADDR, reg, RTL8309N_PKTLEN_PAGE, mask,	\
		       RTL8309N_FIELD_VALUE, RTL8309N_GLOBAL)

static const struct rtl8309n_field pktlen_mode =
	PKTLEN_FIELD(RTL8309N_PKTLEN_CTRL_REG, RTL8309N_PKTLEN_CTRL_MODE);
static const struct rtl8309n_field pktlen_user =
	PKTLEN_FIELD(RTL8309N_PKTLEN_USER_REG, RTL8309N_PKTLEN_USER_LEN);

/*
 * Chip mode -> code of the mode field.  The two middle modes swap their
 * bits, so the table is its own inverse and also maps a code back to its
 * mode.
 */
static const u8 pktlen_code[] = {
	[RTL8309N_MAXPKTLEN_1518] = 0,
	[RTL8309N_MAXPKTLEN_USER] = 2,
	[RTL8309N_MAXPKTLEN_2048] = 1,
	[RTL8309N_MAXPKTLEN_16000] = 3,
};

static const u16 pktlen_fixed[] = {
	[RTL8309N_MAXPKTLEN_1518] = 1518,
	[RTL8309N_MAXPKTLEN_2048] = 2048,
	[RTL8309N_MAXPKTLEN_16000] = 16000,
};

s32 rtl8309n_switch_maxPktLen_set(u32 type, u32 len)
{
	if (type >= RTL8309N_ARRAY_SIZE(pktlen_code))
		return RT_ERR_FAILED;

	rtl8309n_field_set(&pktlen_mode, 0, pktlen_code[type]);
	/* The user length is written whole: bits 15..12 go out as 0. */
	len &= RTL8309N_PKTLEN_USER_LEN;
	if (type == RTL8309N_MAXPKTLEN_USER)
		rtl8309n_reg_set(RTL8309N_PKTLEN_ADDR, RTL8309N_PKTLEN_USER_REG,
				 RTL8309N_PKTLEN_PAGE, (u16)len);
	return RT_ERR_OK;
}

s32 rtl8309n_switch_maxPktLen_get(u32 *ptype, u32 *plen)
{
	u32 code = 0;

	if (!ptype || !plen)
		return RT_ERR_FAILED;

	rtl8309n_field_get(&pktlen_mode, 0, &code);
	*ptype = pktlen_code[code];
	if (*ptype == RTL8309N_MAXPKTLEN_USER)
		return rtl8309n_field_get(&pktlen_user, 0, plen);
	*plen = pktlen_fixed[*ptype];
	return RT_ERR_OK;
}
