// SPDX-License-Identifier: GPL-2.0
/*
 * procwrite FILE empty     write(2) of zero bytes
 * procwrite FILE fault N   write(2) of N bytes from an unmapped address
 *
 * Prints "write: RESULT" (the raw syscall result, -errno on failure).  These
 * are the two writes busybox cannot issue.  Freestanding: raw system calls
 * (arm64, or 32-bit ARM EABI), no libc, so the board needs no target C
 * library (guest.h).
 */
#include "guest.h"

static int run(int argc, char **argv)
{
	long fd, ret;

	if (argc < 3 || (streq(argv[2], "fault") && argc < 4)) {
		say("usage: procwrite FILE empty | procwrite FILE fault N\n");
		return 2;
	}
	fd = sys3(NR_OPENAT, AT_FDCWD, (long)argv[1], O_WRONLY);
	if (fd < 0)
		return say_err("", "open", fd);
	if (streq(argv[2], "empty"))
		ret = sys3(NR_WRITE, fd, (long)"", 0);
	else	/* page 0 is never mapped */
		ret = sys3(NR_WRITE, fd, 16, parse(argv[3]));
	say("write: ");
	say_num(ret);
	say("\n");
	return 0;
}

GUEST_MAIN;
