/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N MIB counters: per-port counting, clearing and overflow flags, and
 * counters latched one at a time into a window of four registers.
 */
#ifndef RTL8309N_MIB_H
#define RTL8309N_MIB_H

#include "rtl8309n_types.h"

#define RTL8309N_MIB_ADDR		4
#define RTL8309N_MIB_PAGE		15

/* Counting control: (4, 16, 15); bit p: port p counts */
#define RTL8309N_MIB_CTRL_REG		16
#define   RTL8309N_MIB_CTRL_ENABLE	0x8000	/* global counting */

/* Clearing: (4, 17, 15); bit p: clear port p, self-clearing */
#define RTL8309N_MIB_RESET_REG		17

/* Counter selection: (4, 18, 15) */
#define RTL8309N_MIB_SELECT_REG		18
#define   RTL8309N_MIB_SELECT_COUNTER	0x000F
#define   RTL8309N_MIB_SELECT_PORT	0x00F0
#define   RTL8309N_MIB_SELECT_BUSY	0x8000	/* start; cleared once latched */

/* Latched words: counter c in 19, 20; a byte counter's c + 1 in 21, 22 */
#define RTL8309N_MIB_LOW_WORDS_REG	19
#define RTL8309N_MIB_HIGH_WORDS_REG	21

/* Overflow flags: (4, 23, 15) */
#define RTL8309N_MIB_OVERFLOW_REG	23
#define   RTL8309N_MIB_OVERFLOW_PORT(p)	RTL8309N_BIT(p)	/* port p overflowed */

/* Byte counters span identifiers c and c + 1; packet counters are 2..15. */
#define RTL8309N_MIB_TX_BYTES		0
#define RTL8309N_MIB_RX_BYTES		2
#define RTL8309N_MIB_PKT_MIN		2
#define RTL8309N_MIB_PKT_MAX		15
#define RTL8309N_MIB_BYTE_WORDS		4	/* 16-bit words, word 0 least significant */

s32 rtl8309n_mib_enable_set(u32 enabled);
/* Delivers the flag but always returns RT_ERR_FAILED. */
s32 rtl8309n_mib_enable_get(u32 *penabled);
s32 rtl8309n_mib_start(u32 port);
s32 rtl8309n_mib_stop(u32 port);
s32 rtl8309n_mib_overFlowFlag_set(u32 port, u32 flag);
s32 rtl8309n_mib_overFlowFlag_get(u32 port, u32 *pflag);
/* @counter is RTL8309N_MIB_TX_BYTES or _RX_BYTES; @value has 4 elements. */
s32 rtl8309n_mib_byteCnt_get(u32 port, u32 counter, u32 *value);
s32 rtl8309n_mib_pktCnt_get(u32 port, u32 counter, u32 *value);
/* Waits without bound for the chip to finish clearing. */
s32 rtl8309n_mib_reset(u32 port);

#endif /* RTL8309N_MIB_H */
