/* SPDX-License-Identifier: GPL-2.0 */
/*
 * Fixed-width integer types and register mask helpers for the RTL8309N
 * chip library.
 *
 * The register layer, the rtk_ API and the chip model are built both into
 * the kernel module and into host test programs, so they must not pull in
 * anything but the integer types of whichever side builds them.
 */
#ifndef RTL8309N_TYPES_H
#define RTL8309N_TYPES_H

#ifdef __KERNEL__
#include <linux/types.h>
#else
#include <stddef.h>
#include <stdint.h>
typedef uint8_t u8;
typedef uint16_t u16;
typedef uint32_t u32;
typedef uint64_t u64;
typedef int32_t s32;
#endif

#ifndef NULL
#define NULL ((void *)0)
#endif

/* Register masks, like the kernel's BIT() and GENMASK() for 16-bit registers. */
#define RTL8309N_BIT(n)		((u16)(1u << (n)))
#define RTL8309N_GENMASK(h, l)	((u16)(((1u << ((h) - (l) + 1)) - 1) << (l)))

#endif /* RTL8309N_TYPES_H */
