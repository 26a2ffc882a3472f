// SPDX-License-Identifier: GPL-2.0
/*
 * Register access primitives of the RTL8309N family.
 *
 * All switch and PHY registers sit behind SMI addresses 0..8.  Register 31
 * of address 8 is the page control: bit 15 set selects the PHY register
 * space (each PHY then takes its page from its own register 31), bit 15
 * clear selects the switch space with the switch page in the low byte.
 *
 * The bus sequences below are the chip's access protocol, including the
 * writes that look redundant (parking the PHY page on 10 before a switch
 * write, the 0x7FFF exit from PHY mode), and are kept exactly.  Hook
 * results are not examined: a failed read yields whatever the transport
 * stored, masked to 16 bits.
 */
#include "rtl8309n_internal.h"

rtl8309n_smi_write_fn psmiWrite;
rtl8309n_smi_read_fn psmiRead;

void register_smiwrite(rtl8309n_smi_write_fn fn)
{
	psmiWrite = fn;
}

void register_smiRead(rtl8309n_smi_read_fn fn)
{
	psmiRead = fn;
}

static u32 smi_read(u32 phyad, u32 regad)
{
	u32 value = 0;

	psmiRead(phyad, regad, &value);
	return value;
}

/* Replace the low byte of a page register with @page. */
static void page_select(u32 phyad, u32 keep_mask, u32 page)
{
	u32 t = smi_read(phyad, RTL8309N_PAGE_REG);

	psmiWrite(phyad, RTL8309N_PAGE_REG, (t & ~keep_mask) | page);
}

/* Leave PHY mode and select switch page @npage. */
static void switch_page_select(u32 npage)
{
	page_select(RTL8309N_PAGECTL_ADDR, RTL8309N_PAGECTL_MODE_PAGE_MASK, npage);
}

/* Enter PHY mode and point PHY @phyad's own page register at @npage. */
static void phy_page_select(u32 phyad, u32 npage)
{
	psmiWrite(RTL8309N_PAGECTL_ADDR, RTL8309N_PAGE_REG, RTL8309N_PAGECTL_PHY_MODE);
	page_select(phyad, RTL8309N_PAGE_BYTE_MASK, npage);
}

static int switch_args_bad(u32 phyad, u32 npage)
{
	return phyad > RTL8309N_MAX_SMI_ADDR || npage > RTL8309N_MAX_SWITCH_PAGE;
}

s32 rtl8309n_reg_set(u32 phyad, u32 regad, u32 npage, u16 value)
{
	if (switch_args_bad(phyad, npage))
		return RT_ERR_FAILED;

	phy_page_select(phyad, RTL8309N_PHY_PARK_PAGE);
	switch_page_select(npage);
	psmiWrite(phyad, regad, value);
	return RT_ERR_OK;
}

/* Unlike the setter, the getter does not park the PHY page first. */
s32 rtl8309n_reg_get(u32 phyad, u32 regad, u32 npage, u32 *pvalue)
{
	if (switch_args_bad(phyad, npage))
		return RT_ERR_FAILED;

	switch_page_select(npage);
	*pvalue = smi_read(phyad, regad) & 0xFFFF;
	return RT_ERR_OK;
}

s32 rtl8309n_regbit_set(u32 phyad, u32 regad, u32 bit, u32 npage, u32 value)
{
	u32 data = 0;

	if (switch_args_bad(phyad, npage) || bit > 15 || value > 1)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(phyad, regad, npage, &data);
	if (value)
		data |= 1u << bit;
	else
		data &= ~(1u << bit);
	rtl8309n_reg_set(phyad, regad, npage, (u16)data);
	return RT_ERR_OK;
}

s32 rtl8309n_regbit_get(u32 phyad, u32 regad, u32 bit, u32 npage, u32 *pvalue)
{
	u32 data = 0;

	if (switch_args_bad(phyad, npage) || !pvalue || bit > 15)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(phyad, regad, npage, &data);
	*pvalue = (data >> bit) & 1;
	return RT_ERR_OK;
}

s32 rtl8309n_phyReg_set(u32 phyad, u32 regad, u32 npage, u16 value)
{
	if (phyad > RTL8309N_MAX_PHY_PORT || npage > RTL8309N_MAX_PHY_PAGE)
		return RT_ERR_FAILED;

	phy_page_select(phyad, npage);
	psmiWrite(phyad, regad, value);
	psmiWrite(RTL8309N_PAGECTL_ADDR, RTL8309N_PAGE_REG, RTL8309N_PAGECTL_PHY_EXIT);
	return RT_ERR_OK;
}

s32 rtl8309n_phyReg_get(u32 phyad, u32 regad, u32 npage, u32 *pvalue)
{
	if (!pvalue || npage > RTL8309N_MAX_PHY_PAGE || phyad > RTL8309N_MAX_PHY_PORT)
		return RT_ERR_FAILED;

	phy_page_select(phyad, npage);
	*pvalue = smi_read(phyad, regad) & 0xFFFF;
	psmiWrite(RTL8309N_PAGECTL_ADDR, RTL8309N_PAGE_REG, RTL8309N_PAGECTL_PHY_EXIT);
	return RT_ERR_OK;
}

/*
 * The bit accessors stop at PHY 6, one below the word accessors; callers
 * (the PHY reset among them) rely on PHY 7 being unreachable bit-wise.  The
 * bit number is taken modulo 32 and not checked, so bits 16..31 change
 * nothing once the word is cut to 16 bits.
 */
#define RTL8309N_MAX_PHY_BIT_PORT	6

s32 rtl8309n_phyRegBit_set(u32 phyad, u32 regad, u32 bit, u32 npage, u32 value)
{
	u32 data = 0;

	if (phyad > RTL8309N_MAX_PHY_BIT_PORT || npage > RTL8309N_MAX_PHY_PAGE)
		return RT_ERR_FAILED;

	rtl8309n_phyReg_get(phyad, regad, npage, &data);
	if (value)
		data |= 1u << (bit % 32);
	else
		data &= ~(1u << (bit % 32));
	rtl8309n_phyReg_set(phyad, regad, npage, (u16)data);
	return RT_ERR_OK;
}

s32 rtl8309n_phyRegBit_get(u32 phyad, u32 regad, u32 bit, u32 npage, u32 *pvalue)
{
	u32 data = 0;

	if (!pvalue || npage > RTL8309N_MAX_PHY_PAGE || phyad > RTL8309N_MAX_PHY_BIT_PORT)
		return RT_ERR_FAILED;

	rtl8309n_phyReg_get(phyad, regad, npage, &data);
	*pvalue = (data >> (bit % 32)) & 1;
	return RT_ERR_OK;
}
