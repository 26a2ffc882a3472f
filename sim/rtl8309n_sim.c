// SPDX-License-Identifier: GPL-2.0
/*
 * Core of the RTL8309N model: page routing, storage, busy bits, log, faults.
 */
#include "rtl8309n_sim.h"

#define PAGECTL_PHY_MODE	0x8000
#define PAGE_REG		31
#define PAGECTL_ADDR		8

void rtl8309n_sim_init(struct rtl8309n_sim *s)
{
	__builtin_memset(s, 0, sizeof(*s));
	/* Power-on: PHY space selected, every PHY on page 0, so a bus scan
	 * finds the identifiers where the MII standard puts them. */
	s->pagectl = PAGECTL_PHY_MODE;
	rtl8309n_sim_blocks_init(s);
}

static int loc_equal(const struct sim_loc *a, const struct sim_loc *b)
{
	return a->space == b->space && a->addr == b->addr &&
	       a->page == b->page && a->reg == b->reg;
}

u16 *rtl8309n_sim_reg(struct rtl8309n_sim *s, enum sim_space space, u32 addr,
		      u32 page, u32 reg)
{
	if (addr >= SIM_NUM_ADDR || reg >= SIM_NUM_REGS)
		return NULL;
	if (space == SIM_SPACE_PHY)
		return page < SIM_PHY_PAGES ? &s->phy[addr][page][reg] : NULL;
	return page < SIM_SWITCH_PAGES ? &s->sw[addr][page][reg] : NULL;
}

u16 rtl8309n_sim_peek(struct rtl8309n_sim *s, enum sim_space space, u32 addr,
		      u32 page, u32 reg)
{
	u16 *cell = rtl8309n_sim_reg(s, space, addr, page, reg);

	return cell ? *cell : 0;
}

void rtl8309n_sim_poke(struct rtl8309n_sim *s, enum sim_space space, u32 addr,
		       u32 page, u32 reg, u16 value)
{
	u16 *cell = rtl8309n_sim_reg(s, space, addr, page, reg);

	if (cell)
		*cell = value;
}

/* Where does (addr, reg) land under the current page selection? */
static void route(const struct rtl8309n_sim *s, u32 addr, u32 reg, struct sim_loc *loc)
{
	loc->addr = (u8)addr;
	loc->reg = (u8)reg;
	if (s->pagectl & PAGECTL_PHY_MODE) {
		loc->space = SIM_SPACE_PHY;
		/* Address 8 has no PHY page register of its own. */
		loc->page = addr < SIM_NUM_PHY ? (u8)(s->phy_page[addr] & 0xFF) : 0;
	} else {
		loc->space = SIM_SPACE_SWITCH;
		loc->page = (u8)(s->pagectl & 0xFF);
	}
}

/* Register 31 is the page register: of the chip at 8, of each PHY below. */
static u16 *page_reg(struct rtl8309n_sim *s, u32 addr)
{
	return addr == PAGECTL_ADDR ? &s->pagectl : &s->phy_page[addr];
}

/*
 * The PHYs' page registers answer only in PHY mode: in switch mode register
 * 31 of addresses 0..7 is a plain switch register (VLAN entry 15, say).
 */
static int is_page_reg(const struct rtl8309n_sim *s, u32 addr, u32 reg)
{
	return reg == PAGE_REG && (addr == PAGECTL_ADDR || (s->pagectl & PAGECTL_PHY_MODE));
}

static const struct sim_handler *find_handler(const struct sim_loc *loc)
{
	u32 i;

	for (i = 0; i < rtl8309n_sim_handler_count; i++) {
		const struct sim_handler *h = &rtl8309n_sim_handlers[i];

		if (h->space == loc->space && (h->addr_mask & (1u << loc->addr)) &&
		    h->page == loc->page && h->reg == loc->reg)
			return h;
	}
	return NULL;
}

static void log_txn(struct rtl8309n_sim *s, int write, u32 addr, u32 reg,
		    const struct sim_loc *loc, s32 value)
{
	struct sim_txn *t = &s->log[s->log_total % SIM_LOG_SIZE];

	t->write = (u8)write;
	t->addr = (u8)addr;
	t->reg = (u8)reg;
	t->space = loc ? loc->space : 0xFF;
	t->page = loc ? loc->page : 0xFF;
	t->value = value;
	s->log_total++;
	if (write)
		s->writes++;
	else
		s->reads++;
}

void rtl8309n_sim_busy_start(struct rtl8309n_sim *s, const struct sim_loc *loc, u16 mask)
{
	struct sim_busy *slot = NULL;
	u32 i;

	for (i = 0; i < SIM_MAX_BUSY; i++) {
		struct sim_busy *b = &s->busy[i];

		if (b->active && loc_equal(&b->loc, loc)) {
			slot = b;
			break;
		}
		if (!b->active && !slot)
			slot = b;
	}
	if (!slot)
		return;		/* more commands in flight than a chip has */
	slot->loc = *loc;
	slot->mask = mask;
	slot->active = 1;
	slot->reads_left = 0;
	if (s->busy_fault.armed && loc_equal(&s->busy_fault.loc, loc) &&
	    (s->busy_fault.mask & mask))
		slot->reads_left = s->busy_fault.reads;
}

/* A read of @loc: finished commands drop their busy bits first. */
static void busy_on_read(struct rtl8309n_sim *s, const struct sim_loc *loc, u16 *cell)
{
	u32 i;

	for (i = 0; i < SIM_MAX_BUSY; i++) {
		struct sim_busy *b = &s->busy[i];

		if (!b->active || !loc_equal(&b->loc, loc))
			continue;
		if (b->reads_left == 0) {
			*cell &= (u16)~b->mask;
			b->active = 0;
		} else if (b->reads_left != SIM_FOREVER) {
			b->reads_left--;
		}
	}
}

int rtl8309n_sim_mdio_read(struct rtl8309n_sim *s, u32 addr, u32 reg)
{
	const struct sim_handler *h;
	struct sim_loc loc;
	u16 *cell;
	u16 value;

	if (s->read_errors_left) {
		if (s->read_errors_left != SIM_FOREVER)
			s->read_errors_left--;
		log_txn(s, 0, addr, reg, NULL, s->read_error);
		return s->read_error;
	}
	if (addr >= SIM_NUM_ADDR || reg >= SIM_NUM_REGS) {
		log_txn(s, 0, addr, reg, NULL, 0xFFFF);
		return 0xFFFF;		/* nobody answers: the bus floats high */
	}
	if (is_page_reg(s, addr, reg)) {
		value = *page_reg(s, addr);
		log_txn(s, 0, addr, reg, NULL, value);
		return value;
	}

	route(s, addr, reg, &loc);
	cell = rtl8309n_sim_reg(s, loc.space, addr, loc.page, reg);
	if (!cell) {
		s->bad_page_accesses++;
		log_txn(s, 0, addr, reg, &loc, 0);
		return 0;
	}
	busy_on_read(s, &loc, cell);
	h = find_handler(&loc);
	value = (h && h->on_read) ? h->on_read(s, &loc, cell) : *cell;
	log_txn(s, 0, addr, reg, &loc, value);
	return value;
}

int rtl8309n_sim_mdio_write(struct rtl8309n_sim *s, u32 addr, u32 reg, u16 value)
{
	const struct sim_handler *h;
	struct sim_loc loc;
	u16 *cell;
	u16 old;

	if (addr >= SIM_NUM_ADDR || reg >= SIM_NUM_REGS) {
		log_txn(s, 1, addr, reg, NULL, value);
		return 0;
	}
	if (is_page_reg(s, addr, reg)) {
		*page_reg(s, addr) = value;
		log_txn(s, 1, addr, reg, NULL, value);
		return 0;
	}

	route(s, addr, reg, &loc);
	log_txn(s, 1, addr, reg, &loc, value);
	cell = rtl8309n_sim_reg(s, loc.space, addr, loc.page, reg);
	if (!cell) {
		s->bad_page_accesses++;
		return 0;
	}
	old = *cell;
	*cell = value;
	h = find_handler(&loc);
	if (h && h->on_write)
		h->on_write(s, &loc, old, cell);
	return 0;
}

void rtl8309n_sim_set_link(struct rtl8309n_sim *s, u32 phy, int up)
{
	if (phy >= SIM_NUM_PHY)
		return;
	if (s->link_up[phy] && !up)
		s->link_dropped[phy] = 1;
	s->link_up[phy] = up ? 1 : 0;
}

void rtl8309n_sim_mib_set(struct rtl8309n_sim *s, u32 port, u32 id, u32 value)
{
	if (port < SIM_NUM_ADDR && id < SIM_MIB_IDS)
		s->mib[port][id] = value;
}

void rtl8309n_sim_mib_set_bytes(struct rtl8309n_sim *s, u32 port, u32 id, u64 value)
{
	rtl8309n_sim_mib_set(s, port, id, (u32)value);
	rtl8309n_sim_mib_set(s, port, id + 1, (u32)(value >> 32));
}

void rtl8309n_sim_fault_busy(struct rtl8309n_sim *s, enum sim_space space, u32 addr,
			     u32 page, u32 reg, u16 mask, u32 reads)
{
	u32 i;

	if (!mask)
		for (i = 0; i < SIM_MAX_BUSY; i++)
			s->busy[i].reads_left = 0;
	s->busy_fault.armed = mask != 0;
	s->busy_fault.loc.space = (u8)space;
	s->busy_fault.loc.addr = (u8)addr;
	s->busy_fault.loc.page = (u8)page;
	s->busy_fault.loc.reg = (u8)reg;
	s->busy_fault.mask = mask;
	s->busy_fault.reads = reads;
}

void rtl8309n_sim_fault_read(struct rtl8309n_sim *s, s32 err, u32 count)
{
	s->read_error = err;
	s->read_errors_left = count;
}

void rtl8309n_sim_log_clear(struct rtl8309n_sim *s)
{
	s->log_total = 0;
	s->reads = 0;
	s->writes = 0;
}

u32 rtl8309n_sim_log_count(const struct rtl8309n_sim *s)
{
	return s->log_total;
}

const struct sim_txn *rtl8309n_sim_log_at(const struct rtl8309n_sim *s, u32 i)
{
	u32 first = s->log_total > SIM_LOG_SIZE ? s->log_total - SIM_LOG_SIZE : 0;

	if (i < first || i >= s->log_total)
		return NULL;
	return &s->log[i % SIM_LOG_SIZE];
}
