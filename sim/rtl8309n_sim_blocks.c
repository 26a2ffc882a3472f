// SPDX-License-Identifier: GPL-2.0
/*
 * Chip behaviour of the RTL8309N model, register by register.
 *
 * Each block contributes handlers and rows of rtl8309n_sim_handlers[]; a
 * register without a row is plain storage.  Coordinates are the chip's
 * (space, SMI address mask, page, register).
 */
#include "rtl8309n_sim.h"

#define BIT16(n)	((u16)(1u << (n)))
#define ADDR(n)		((u16)(1u << (n)))
#define ALL_PHYS	0x00FF	/* embedded PHYs 0..7 */
#define ALL_ADDRS	0x01FF

static u16 *sw_reg(struct rtl8309n_sim *s, u32 addr, u32 page, u32 reg)
{
	return &s->sw[addr][page][reg];
}

/* ---- Embedded PHYs: MII registers on PHY page 0 ---- */

#define MII_CTRL_DEFAULT	0x3100	/* autoneg on, 100 Mbit/s, full duplex */
#define MII_STATUS_DEFAULT	0x7809	/* 10/100 capable, autoneg capable */
#define MII_ADV_DEFAULT		0x01E1
#define MII_LPA_LINK		0x45E1
#define MII_CTRL_RESET		BIT16(15)
#define MII_CTRL_RESTART_AN	BIT16(9)
#define MII_STATUS_ANDONE	BIT16(5)
#define MII_STATUS_LINK		BIT16(2)

static void phy_defaults(struct rtl8309n_sim *s, u32 phy)
{
	s->phy[phy][0][0] = MII_CTRL_DEFAULT;
	s->phy[phy][0][1] = MII_STATUS_DEFAULT;
	s->phy[phy][0][4] = MII_ADV_DEFAULT;
}

/* Reset and autoneg restart are self-clearing; a reset also restores the
 * PHY's defaults. */
static void mii_ctrl_write(struct rtl8309n_sim *s, const struct sim_loc *loc,
			   u16 old, u16 *cell)
{
	u16 started = *cell & (MII_CTRL_RESET | MII_CTRL_RESTART_AN);

	(void)old;
	if (*cell & MII_CTRL_RESET) {
		phy_defaults(s, loc->addr);
		*cell |= MII_CTRL_RESET;
	}
	if (started)
		rtl8309n_sim_busy_start(s, loc, started);
}

/* Link status is latched low: a drop is reported once even if the link is
 * back, then the current level. */
static u16 mii_status_read(struct rtl8309n_sim *s, const struct sim_loc *loc, u16 *cell)
{
	u32 phy = loc->addr;
	u16 value = *cell & (u16)~(MII_STATUS_LINK | MII_STATUS_ANDONE);

	if (phy >= SIM_NUM_PHY)
		return *cell;
	if (s->link_up[phy] && !s->link_dropped[phy])
		value |= MII_STATUS_LINK;
	if (s->link_up[phy])
		value |= MII_STATUS_ANDONE;
	s->link_dropped[phy] = 0;
	return value;
}

static u16 mii_lpa_read(struct rtl8309n_sim *s, const struct sim_loc *loc, u16 *cell)
{
	(void)cell;
	return loc->addr < SIM_NUM_PHY && s->link_up[loc->addr] ? MII_LPA_LINK : 0;
}

static void read_only_write(struct rtl8309n_sim *s, const struct sim_loc *loc,
			    u16 old, u16 *cell)
{
	(void)s;
	(void)loc;
	*cell = old;
}

/* ---- L2 table: SMI address 6, page 15 ---- */

#define L2_ADDR		6
#define L2_PAGE		15
#define L2_CMD		18
#define L2_DATA		19	/* 19..22: control word, MAC words */
#define L2_CMD_INDEX	0x07FF
#define L2_CMD_BUSY	BIT16(11)
#define L2_CMD_READ	BIT16(12)

static void l2_cmd_write(struct rtl8309n_sim *s, const struct sim_loc *loc,
			 u16 old, u16 *cell)
{
	u16 *data = sw_reg(s, L2_ADDR, L2_PAGE, L2_DATA);
	u16 *entry = s->l2[*cell & L2_CMD_INDEX];
	u32 i;

	(void)old;
	if (!(*cell & L2_CMD_BUSY))
		return;
	for (i = 0; i < SIM_L2_WORDS; i++) {
		if (*cell & L2_CMD_READ)
			data[i] = entry[i];
		else
			entry[i] = data[i];
	}
	rtl8309n_sim_busy_start(s, loc, L2_CMD_BUSY);
}

/* ---- ACL table: SMI address 3, page 15 ---- */

#define ACL_ADDR	3
#define ACL_PAGE	15
#define ACL_CMD		17
#define ACL_DATA	18
#define ACL_FIELDS	19
#define ACL_CMD_INDEX	0x000F
#define ACL_CMD_READ	BIT16(14)
#define ACL_CMD_BUSY	BIT16(15)
#define ACL_FIELDS_MASK	0x03FF

static void acl_cmd_write(struct rtl8309n_sim *s, const struct sim_loc *loc,
			  u16 old, u16 *cell)
{
	u16 *data = sw_reg(s, ACL_ADDR, ACL_PAGE, ACL_DATA);
	u16 *fields = sw_reg(s, ACL_ADDR, ACL_PAGE, ACL_FIELDS);
	u32 idx = *cell & ACL_CMD_INDEX;

	(void)old;
	if (!(*cell & ACL_CMD_BUSY))
		return;
	if (*cell & ACL_CMD_READ) {
		*data = s->acl_data[idx];
		*fields = (u16)((*fields & ~ACL_FIELDS_MASK) | s->acl_fields[idx]);
	} else {
		s->acl_data[idx] = *data;
		s->acl_fields[idx] = *fields & ACL_FIELDS_MASK;
	}
	rtl8309n_sim_busy_start(s, loc, ACL_CMD_BUSY);
}

/* ---- MIB counters: SMI address 4, page 15 ---- */

#define MIB_ADDR	4
#define MIB_PAGE	15
#define MIB_RESET	17
#define MIB_SELECT	18
#define MIB_WORDS	19	/* 19..22 */
#define MIB_SEL_ID	0x000F
#define MIB_SEL_PORT_SHIFT 4
#define MIB_SEL_BUSY	BIT16(15)

/* A latch puts the selected 32-bit id into both word pairs: 19/20 serve a
 * packet counter or the low half of a byte counter, 21/22 the high half
 * read after selecting id + 1. */
static void mib_select_write(struct rtl8309n_sim *s, const struct sim_loc *loc,
			     u16 old, u16 *cell)
{
	u16 *words = sw_reg(s, MIB_ADDR, MIB_PAGE, MIB_WORDS);
	u32 port = (*cell >> MIB_SEL_PORT_SHIFT) & 0xF;
	u32 value;

	(void)old;
	if (!(*cell & MIB_SEL_BUSY))
		return;
	value = port < SIM_NUM_ADDR ? s->mib[port][*cell & MIB_SEL_ID] : 0;
	words[0] = words[2] = (u16)value;
	words[1] = words[3] = (u16)(value >> 16);
	rtl8309n_sim_busy_start(s, loc, MIB_SEL_BUSY);
}

static void mib_reset_write(struct rtl8309n_sim *s, const struct sim_loc *loc,
			    u16 old, u16 *cell)
{
	u16 started = *cell & 0x01FF;
	u32 port;

	(void)old;

	for (port = 0; port < SIM_NUM_ADDR; port++)
		if (started & (1u << port))
			__builtin_memset(s->mib[port], 0, sizeof(s->mib[port]));
	if (started)
		rtl8309n_sim_busy_start(s, loc, started);
}

/* ---- Loop detection and wake-up status: page 14 ---- */

#define STATUS_PAGE		14
#define RLDP_ADDR		4
#define RLDP_STATUS		20
#define WKP_ADDR		7
#define WKP_LINK_STATUS		22
#define WKP_FRAME		25
#define WKP_FRAME_STATUS	BIT16(2)

/* The frame wake-up flags are writable; the status bit beside them is not. */
static void wkp_frame_write(struct rtl8309n_sim *s, const struct sim_loc *loc,
			    u16 old, u16 *cell)
{
	(void)s;
	(void)loc;
	*cell = (u16)((*cell & ~WKP_FRAME_STATUS) | (old & WKP_FRAME_STATUS));
}

/* ---- QoS soft reset (0, 16, 14) bit 1: self-clearing ---- */

#define QOS_RESET_ADDR		0
#define QOS_RESET_PAGE		14
#define QOS_RESET_REG		16
#define QOS_RESET_BIT		BIT16(1)

static void qos_reset_write(struct rtl8309n_sim *s, const struct sim_loc *loc,
			    u16 old, u16 *cell)
{
	(void)old;
	if (*cell & QOS_RESET_BIT)
		rtl8309n_sim_busy_start(s, loc, QOS_RESET_BIT);
}

/* ---- MAC port status: (2, 18..22, 14), read-only ---- */

#define EXT0_STATUS_ADDR	2
#define EXT0_STATUS_PAGE	14

const struct sim_handler rtl8309n_sim_handlers[] = {
	/* space            addresses      page reg  on_write          on_read */
	{ SIM_SPACE_PHY,    ALL_PHYS,      0,   0,   mii_ctrl_write,   NULL },
	{ SIM_SPACE_PHY,    ALL_PHYS,      0,   1,   NULL,             mii_status_read },
	{ SIM_SPACE_PHY,    ALL_ADDRS,     0,   2,   read_only_write,  NULL },
	{ SIM_SPACE_PHY,    ALL_ADDRS,     0,   3,   read_only_write,  NULL },
	{ SIM_SPACE_PHY,    ALL_PHYS,      0,   5,   read_only_write,  mii_lpa_read },
	{ SIM_SPACE_SWITCH, ADDR(L2_ADDR), L2_PAGE, L2_CMD, l2_cmd_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(ACL_ADDR), ACL_PAGE, ACL_CMD, acl_cmd_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(MIB_ADDR), MIB_PAGE, MIB_SELECT, mib_select_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(MIB_ADDR), MIB_PAGE, MIB_RESET, mib_reset_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(QOS_RESET_ADDR), QOS_RESET_PAGE, QOS_RESET_REG,
	  qos_reset_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(EXT0_STATUS_ADDR), EXT0_STATUS_PAGE, 18, read_only_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(EXT0_STATUS_ADDR), EXT0_STATUS_PAGE, 19, read_only_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(EXT0_STATUS_ADDR), EXT0_STATUS_PAGE, 20, read_only_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(EXT0_STATUS_ADDR), EXT0_STATUS_PAGE, 21, read_only_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(EXT0_STATUS_ADDR), EXT0_STATUS_PAGE, 22, read_only_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(RLDP_ADDR), STATUS_PAGE, RLDP_STATUS, read_only_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(WKP_ADDR), STATUS_PAGE, WKP_LINK_STATUS, read_only_write, NULL },
	{ SIM_SPACE_SWITCH, ADDR(WKP_ADDR), STATUS_PAGE, WKP_FRAME, wkp_frame_write, NULL },
};

const u32 rtl8309n_sim_handler_count =
	sizeof(rtl8309n_sim_handlers) / sizeof(rtl8309n_sim_handlers[0]);

void rtl8309n_sim_blocks_init(struct rtl8309n_sim *s)
{
	u32 addr;

	for (addr = 0; addr < SIM_NUM_ADDR; addr++) {
		s->phy[addr][0][2] = SIM_PHY_ID1;
		s->phy[addr][0][3] = SIM_PHY_ID2;
		if (addr < SIM_NUM_PHY)
			phy_defaults(s, addr);
	}
}
