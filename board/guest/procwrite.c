// SPDX-License-Identifier: GPL-2.0
/*
 * procwrite FILE empty     write(2) of zero bytes
 * procwrite FILE fault N   write(2) of N bytes from an unmapped address
 *
 * Prints "write: RESULT" (the raw syscall result, -errno on failure).  These
 * are the two writes busybox cannot issue.  Freestanding: raw arm64 system
 * calls, no libc, so the board needs no target C library.
 */
#define AT_FDCWD	-100
#define O_WRONLY	1
#define NR_OPENAT	56
#define NR_WRITE	64
#define NR_EXIT		93

static long sys3(long nr, long a, long b, long c)
{
	register long x8 __asm__("x8") = nr;
	register long x0 __asm__("x0") = a;
	register long x1 __asm__("x1") = b;
	register long x2 __asm__("x2") = c;

	__asm__ volatile("svc #0" : "+r"(x0) : "r"(x8), "r"(x1), "r"(x2) : "memory");
	return x0;
}

static int streq(const char *a, const char *b)
{
	while (*a && *a == *b)
		a++, b++;
	return *a == *b;
}

static void say(const char *s)
{
	long n = 0;

	while (s[n])
		n++;
	sys3(NR_WRITE, 1, (long)s, n);
}

static void say_num(long v)
{
	char buf[24], *p = buf + sizeof(buf) - 1;
	unsigned long u = v < 0 ? -(unsigned long)v : (unsigned long)v;

	*p = 0;
	do
		*--p = '0' + u % 10;
	while (u /= 10);
	if (v < 0)
		*--p = '-';
	say(p);
}

static long parse(const char *s)
{
	long v = 0;

	while (*s >= '0' && *s <= '9')
		v = v * 10 + *s++ - '0';
	return v;
}

static int run(int argc, char **argv)
{
	long fd, ret;

	if (argc < 3 || (streq(argv[2], "fault") && argc < 4)) {
		say("usage: procwrite FILE empty | procwrite FILE fault N\n");
		return 2;
	}
	fd = sys3(NR_OPENAT, AT_FDCWD, (long)argv[1], O_WRONLY);
	if (fd < 0) {
		say("open: ");
		say_num(fd);
		say("\n");
		return 1;
	}
	if (streq(argv[2], "empty"))
		ret = sys3(NR_WRITE, fd, (long)"", 0);
	else	/* page 0 is never mapped */
		ret = sys3(NR_WRITE, fd, 16, parse(argv[3]));
	say("write: ");
	say_num(ret);
	say("\n");
	return 0;
}

void _start(void);
__attribute__((used)) static void start_c(long *sp)
{
	sys3(NR_EXIT, run((int)sp[0], (char **)(sp + 1)), 0, 0);
}

/* The kernel enters with argc at the stack pointer. */
__asm__(".text\n.global _start\n_start:\n\tmov x0, sp\n\tbl start_c\n");
