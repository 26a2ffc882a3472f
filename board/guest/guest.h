/* SPDX-License-Identifier: GPL-2.0 */
/*
 * Freestanding support for the virtual board's small guest programs
 * (the C files of board/guest/bin): raw system calls (arm64, or 32-bit ARM EABI), no
 * libc, so the board needs no target C library.  Each program defines
 * run(argc, argv) and ends with GUEST_MAIN.
 */
#ifndef BOARD_GUEST_H
#define BOARD_GUEST_H

#define AT_FDCWD	-100
#define O_RDONLY	0
#define O_WRONLY	1
#define O_RDWR		2

#if defined(__aarch64__)
#define NR_IOCTL	29
#define NR_OPENAT	56
#define NR_CLOSE	57
#define NR_READ		63
#define NR_WRITE	64
#define NR_EXIT		93
#define NR_SOCKET	198

static inline long sys3(long nr, long a, long b, long c)
{
	register long x8 __asm__("x8") = nr;
	register long x0 __asm__("x0") = a;
	register long x1 __asm__("x1") = b;
	register long x2 __asm__("x2") = c;

	__asm__ volatile("svc #0" : "+r"(x0) : "r"(x8), "r"(x1), "r"(x2) : "memory");
	return x0;
}
#elif defined(__arm__) && defined(__ARM_EABI__)
#define NR_EXIT		1
#define NR_READ		3
#define NR_WRITE	4
#define NR_CLOSE	6
#define NR_IOCTL	54
#define NR_SOCKET	281
#define NR_OPENAT	322

/* EABI: the system call number in r7, arguments and result in r0.. */
static inline long sys3(long nr, long a, long b, long c)
{
	register long r7 __asm__("r7") = nr;
	register long r0 __asm__("r0") = a;
	register long r1 __asm__("r1") = b;
	register long r2 __asm__("r2") = c;

	__asm__ volatile("svc #0" : "+r"(r0) : "r"(r7), "r"(r1), "r"(r2) : "memory");
	return r0;
}
#else
#error "guest programs: arm64 or 32-bit ARM EABI only"
#endif

static inline int streq(const char *a, const char *b)
{
	while (*a && *a == *b)
		a++, b++;
	return *a == *b;
}

static inline long slen(const char *s)
{
	long n = 0;

	while (s[n])
		n++;
	return n;
}

static inline void say(const char *s)
{
	sys3(NR_WRITE, 1, (long)s, slen(s));
}

/*
 * Digits by subtraction: 32-bit ARM has no divide instruction to count on,
 * and libgcc's division helpers need a C library.
 */
static inline void say_num(long v)
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

/* "<prefix><what>: <err>" on stdout; 1, a program's failure status. */
static inline int say_err(const char *prefix, const char *what, long err)
{
	say(prefix);
	say(what);
	say(": ");
	say_num(err);
	say("\n");
	return 1;
}

/* A decimal number; anything else ends it. */
static inline long parse(const char *s)
{
	long v = 0;

	while (*s >= '0' && *s <= '9')
		v = v * 10 + *s++ - '0';
	return v;
}

static int run(int argc, char **argv);

/*
 * The kernel enters with argc at the stack pointer.  On 32-bit ARM this is
 * assembled in ARM state; the linker makes the call a blx when start_c is
 * Thumb-2 code (Debian's armhf default).
 */
#if defined(__aarch64__)
#define GUEST_ENTRY "\tmov x0, sp\n\tbl start_c\n"
#else
#define GUEST_ENTRY "\tmov r0, sp\n\tbl start_c\n"
#endif

#define GUEST_MAIN							\
void _start(void);							\
__attribute__((used)) static void start_c(long *sp)			\
{									\
	sys3(NR_EXIT, run((int)sp[0], (char **)(sp + 1)), 0, 0);	\
}									\
__asm__(".text\n.global _start\n.type _start, %function\n_start:\n" GUEST_ENTRY)

#endif
