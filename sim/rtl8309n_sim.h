/* SPDX-License-Identifier: GPL-2.0 */
/*
 * Behavioural model of an RTL8309N-family switch as seen from its MDIO bus.
 *
 * Freestanding C: no allocation, no I/O, all state in one caller-owned
 * struct, so the same files build into host tests and into the virtual
 * board's kernel module.  The model answers MDIO reads and writes of SMI
 * addresses 0..8 the way the chip does: page routing through the page-control
 * register, separate storage per (space, address, page, register), PHY
 * identifiers, latched-low link status, self-clearing command bits with the
 * L2, ACL and MIB machinery behind them, a transaction log and fault
 * injection.
 *
 * Chip behaviour beyond plain storage lives in per-register handlers listed
 * in one table (rtl8309n_sim_blocks.c); modelling a new block means adding
 * its handlers and table rows there.
 */
#ifndef RTL8309N_SIM_H
#define RTL8309N_SIM_H

#include "rtl8309n_types.h"

#define SIM_NUM_ADDR		9	/* SMI addresses 0..8 */
#define SIM_NUM_PHY		8	/* embedded PHYs at addresses 0..7 */
#define SIM_SWITCH_PAGES	18
#define SIM_PHY_PAGES		19
#define SIM_NUM_REGS		32
#define SIM_LOG_SIZE		1024	/* ring of the most recent transactions */
#define SIM_L2_ENTRIES		2048
#define SIM_L2_WORDS		4	/* control word, MAC 4-5, MAC 2-3, MAC 0-1 */
#define SIM_ACL_ENTRIES		16
#define SIM_MIB_IDS		16
#define SIM_MAX_BUSY		8

#define SIM_PHY_ID1		0x001C	/* what the model answers in MII regs 2/3 */
#define SIM_PHY_ID2		0xC852
#define SIM_FOREVER		0xFFFFFFFFu

enum sim_space {
	SIM_SPACE_SWITCH = 0,
	SIM_SPACE_PHY = 1,
};

/* Where a transaction landed after page routing. */
struct sim_loc {
	u8 space;
	u8 addr;
	u8 page;
	u8 reg;
};

struct sim_txn {
	u8 write;	/* 1 write, 0 read */
	u8 addr;
	u8 reg;
	u8 space;	/* after routing; page as routed */
	u8 page;
	u8 pad[3];
	s32 value;	/* value written, or value/error returned by the read */
};

/* A self-clearing bit group still reading as set for @reads_left reads. */
struct sim_busy {
	struct sim_loc loc;
	u16 mask;
	u8 active;
	u32 reads_left;	/* SIM_FOREVER: never clears */
};

struct rtl8309n_sim {
	/* Page routing */
	u16 pagectl;			/* SMI address 8, register 31 */
	u16 phy_page[SIM_NUM_PHY];	/* register 31 of each PHY */

	/* Register storage */
	u16 sw[SIM_NUM_ADDR][SIM_SWITCH_PAGES][SIM_NUM_REGS];
	u16 phy[SIM_NUM_ADDR][SIM_PHY_PAGES][SIM_NUM_REGS];

	/* PHY link state: current level and the latched-low event */
	u8 link_up[SIM_NUM_PHY];
	u8 link_dropped[SIM_NUM_PHY];

	/* Indirect tables behind command registers */
	u16 l2[SIM_L2_ENTRIES][SIM_L2_WORDS];
	u16 acl_data[SIM_ACL_ENTRIES];
	u16 acl_fields[SIM_ACL_ENTRIES];	/* bits 0-9 of the fields register */
	u32 mib[SIM_NUM_ADDR][SIM_MIB_IDS];	/* a byte counter spans ids c, c+1 */

	struct sim_busy busy[SIM_MAX_BUSY];

	/* Fault injection */
	struct {
		u8 armed;
		struct sim_loc loc;
		u16 mask;
		u32 reads;		/* reads that still see the bit set */
	} busy_fault;
	s32 read_error;			/* negative errno a failing read returns */
	u32 read_errors_left;		/* SIM_FOREVER: every read fails */

	/* Accounting */
	u32 reads;
	u32 writes;
	u32 bad_page_accesses;		/* switch page > 17 selected while accessed */
	u32 log_total;			/* transactions logged since the last clear */
	struct sim_txn log[SIM_LOG_SIZE];
};

/* Power-on state. */
void rtl8309n_sim_init(struct rtl8309n_sim *s);

/* The MDIO side: a read returns the 16-bit value or a negative errno. */
int rtl8309n_sim_mdio_read(struct rtl8309n_sim *s, u32 addr, u32 reg);
int rtl8309n_sim_mdio_write(struct rtl8309n_sim *s, u32 addr, u32 reg, u16 value);

/* Back door for tests: storage of a routed register, no side effects. */
u16 *rtl8309n_sim_reg(struct rtl8309n_sim *s, enum sim_space space, u32 addr,
		      u32 page, u32 reg);
u16 rtl8309n_sim_peek(struct rtl8309n_sim *s, enum sim_space space, u32 addr,
		      u32 page, u32 reg);
void rtl8309n_sim_poke(struct rtl8309n_sim *s, enum sim_space space, u32 addr,
		       u32 page, u32 reg, u16 value);

/* PHY link level; a drop latches until the next read of MII status. */
void rtl8309n_sim_set_link(struct rtl8309n_sim *s, u32 phy, int up);

/* MIB counter preset: one 32-bit id, or a 64-bit byte counter (ids c, c+1). */
void rtl8309n_sim_mib_set(struct rtl8309n_sim *s, u32 port, u32 id, u32 value);
void rtl8309n_sim_mib_set_bytes(struct rtl8309n_sim *s, u32 port, u32 id, u64 value);

/*
 * Make the self-clearing bits @mask of a register read as set for @reads
 * reads after each start (SIM_FOREVER: stuck).  Disarm with mask 0: the
 * chip recovers, and every command still in flight (one held forever
 * included) finishes at the next read of its register.
 */
void rtl8309n_sim_fault_busy(struct rtl8309n_sim *s, enum sim_space space, u32 addr,
			     u32 page, u32 reg, u16 mask, u32 reads);
/* Make the next @count reads (SIM_FOREVER: all) fail with @err (< 0). */
void rtl8309n_sim_fault_read(struct rtl8309n_sim *s, s32 err, u32 count);

/* Transaction log: entries since the last clear, oldest first. */
void rtl8309n_sim_log_clear(struct rtl8309n_sim *s);
u32 rtl8309n_sim_log_count(const struct rtl8309n_sim *s);
const struct sim_txn *rtl8309n_sim_log_at(const struct rtl8309n_sim *s, u32 i);

/* ---- For block handlers (rtl8309n_sim_blocks.c) ---- */

struct sim_handler {
	u8 space;
	u16 addr_mask;		/* bit n: SMI address n */
	u8 page;
	u8 reg;
	/* After the write stored @cell (old value in @old); may rewrite it. */
	void (*on_write)(struct rtl8309n_sim *s, const struct sim_loc *loc,
			 u16 old, u16 *cell);
	/* Value a read returns; the stored cell may be updated. */
	u16 (*on_read)(struct rtl8309n_sim *s, const struct sim_loc *loc, u16 *cell);
};

extern const struct sim_handler rtl8309n_sim_handlers[];
extern const u32 rtl8309n_sim_handler_count;

/* Hold @mask of @loc set until the chip "finishes" (honours busy faults). */
void rtl8309n_sim_busy_start(struct rtl8309n_sim *s, const struct sim_loc *loc,
			     u16 mask);
/* Reset values of a block's registers, applied by rtl8309n_sim_init. */
void rtl8309n_sim_blocks_init(struct rtl8309n_sim *s);

#endif /* RTL8309N_SIM_H */
