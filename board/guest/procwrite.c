// SPDX-License-Identifier: GPL-2.0
/*
 * procwrite FILE empty     write(2) of zero bytes
 * procwrite FILE fault N   write(2) of N bytes from an unmapped address
 *
 * Prints "write: RESULT" (the raw syscall result, -errno on failure).  These
 * are the two writes busybox cannot issue.  Freestanding: raw system calls
 * (arm64, or 32-bit ARM EABI), no libc, so the board needs no target C
 * library.
 */
#define AT_FDCWD	-100
#define O_WRONLY	1

#if defined(__aarch64__)
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
#elif defined(__arm__) && defined(__ARM_EABI__)
#define NR_OPENAT	322
#define NR_WRITE	4
#define NR_EXIT		1

/* EABI: the system call number in r7, arguments and result in r0.. */
static long sys3(long nr, long a, long b, long c)
{
	register long r7 __asm__("r7") = nr;
	register long r0 __asm__("r0") = a;
	register long r1 __asm__("r1") = b;
	register long r2 __asm__("r2") = c;

	__asm__ volatile("svc #0" : "+r"(r0) : "r"(r7), "r"(r1), "r"(r2) : "memory");
	return r0;
}
#else
#error "procwrite: arm64 or 32-bit ARM EABI only"
#endif

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

/*
 * Digits by subtraction: 32-bit ARM has no divide instruction to count on,
 * and libgcc's division helpers need a C library.
 */
static void say_num(long v)
{
	unsigned long long u = v < 0 ? -(unsigned long)v : (unsigned long)v;
	unsigned long long pow10[20];
	char buf[24], *p = buf;
	int n = 0;

	if (v < 0)
		*p++ = '-';
	pow10[0] = 1;
	while (pow10[n] * 10 <= u) {
		pow10[n + 1] = pow10[n] * 10;
		n++;
	}
	for (; n >= 0; n--) {
		*p = '0';
		while (u >= pow10[n]) {
			u -= pow10[n];
			(*p)++;
		}
		p++;
	}
	*p = 0;
	say(buf);
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

/*
 * The kernel enters with argc at the stack pointer.  On 32-bit ARM this is
 * assembled in ARM state; the linker makes the call a blx when start_c is
 * Thumb-2 code (Debian's armhf default).
 */
#if defined(__aarch64__)
__asm__(".text\n.global _start\n.type _start, %function\n_start:\n\tmov x0, sp\n\tbl start_c\n");
#else
__asm__(".text\n.global _start\n.type _start, %function\n_start:\n\tmov r0, sp\n\tbl start_c\n");
#endif
