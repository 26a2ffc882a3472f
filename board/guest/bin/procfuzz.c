// SPDX-License-Identifier: GPL-2.0
/*
 * procfuzz FILE SEED FIRST COUNT   write cases FIRST .. FIRST+COUNT-1 of SEED
 * procfuzz show SEED CASE          print one case, C-escaped, without writing it
 *
 * Hostile input for the /proc/rtl8304 console.  Every case is one write(2)
 * whose bytes depend only on the seed and the case number, so any case can
 * be replayed on its own and a range of cases runs the same in any batch:
 *
 *  - random bytes, 0..2048 of them (NULs and high bytes included), either
 *    drawn from all 256 values or from the letters and digits of commands;
 *  - a console command with out-of-range, negative, huge or malformed
 *    numbers, then mangled: arguments dropped, junk appended, letters
 *    changed in case, cut short, a NUL put inside, separators changed;
 *  - a buffer that faults: at an unmapped address, or running off the end
 *    of the stack mapping part-way.
 *
 * "switch reset" is not among the commands: each one holds the chip in reset
 * for 600 ms, and mangled forms of it would be just as slow.
 *
 * The console takes at most 1024 bytes per write: the expected result is
 * min(length, 1024), or -EFAULT (-14) when those bytes are not all readable.
 * Any other result is printed with its case and counted; the exit status is 1
 * if there was one.  Freestanding (guest.h): no division anywhere, 32-bit
 * ARM has no divide instruction to count on.
 */
#include "guest.h"

#define MAX_CASE	2048
#define CONSOLE_MAX	1024
#define EFAULT		14
#define AT_NULL		0
#define AT_EXECFN	31
#define PAGE		4096UL

/* splitmix64: one multiply-xorshift step per number, no division. */
struct rng {
	unsigned long long s;
};

static unsigned long long rng_next(struct rng *r)
{
	unsigned long long z = (r->s += 0x9e3779b97f4a7c15ULL);

	z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
	z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
	return z ^ (z >> 31);
}

/* 0 .. n-1 by multiply and shift. */
static unsigned long below(struct rng *r, unsigned long n)
{
	return (unsigned long)(((rng_next(r) >> 32) * (unsigned long long)n) >> 32);
}

static const char *pick(struct rng *r, const char *const *list, unsigned long n)
{
	return list[below(r, n)];
}

#define PICK(r, list) pick(r, list, sizeof(list) / sizeof(list[0]))

/*
 * The console's commands, "switch reset" left out (see above), with their
 * weights per 1000.  A command that reaches the chip costs tens of
 * milliseconds on the board, "bridge mode" (the whole VLAN block, the ACL
 * table) hundreds, an unknown or refused one about one: the commands that
 * take no numbers are rare, and the numbers are mostly ones the console or
 * the API must refuse.
 */
static const struct {
	const char *text;
	unsigned int weight;
} commands[] = {
	{ "bridge mode", 1 }, { "show all vlan", 10 }, { "get phy status", 10 },
	{ "get cpu port", 10 }, { "set pvid %d %d %d", 97 }, { "get pvid %d", 97 },
	{ "get vlanid info %d", 97 }, { "set vlanid info %d %x %x", 97 },
	{ "get phy reg %d", 97 }, { "set phy reg %d %d %x", 97 }, { "reset port %d", 97 },
	{ "set auth mac %d %d %x %x", 97 }, { "del auth mac %d %d %x %x", 97 },
	{ "get mib %d %d", 96 },
};

static const char *const decimals[] = {
	"0", "1", "3", "8", "9", "-1", "-8", "16", "31", "32", "88", "99", "100",
	"255", "256", "1234", "4094", "4095", "4096", "65535", "65536", "2147483647",
	"-2147483648", "2147483648", "4294967295", "4294967296", "99999999999999999999",
	"-99999999999999999999", "007", "+3", "3x", "0x10", "-", "", "1e3",
};

static const char *const hexes[] = {
	"0", "1", "9", "109", "1ff", "200", "fff", "ffff", "10000", "7fffffff",
	"80000000", "ffffffff", "100000000", "fffffffffffffffff", "0x1ff", "0X109",
	"-1", "-1ff", "1a2b3c", "010203", "zz", "", "0x",
};

static const char letters[] = "abcdefghilmnoprstuvwxy0123456789 -\t\n";

struct fuzz_case {
	char buf[MAX_CASE + 64];
	unsigned long len;
	int kind;		/* enum below */
	unsigned long readable;	/* bytes that can be copied; the rest faults */
	const char *addr;	/* the write's buffer */
};

enum { RANDOM, COMMAND, UNMAPPED, STACK_END, KINDS };

static const char *const kind_names[KINDS] = {
	"random bytes", "mangled command", "unmapped buffer", "buffer over the stack's end",
};

static unsigned long put(char *dst, unsigned long at, const char *s)
{
	while (*s && at < MAX_CASE)
		dst[at++] = *s++;
	return at;
}

/* A random number in decimal (d) or hex (x), as the console's sscanf sees it. */
static unsigned long put_random_number(struct rng *r, char *dst, unsigned long at, char conv)
{
	static const char digits[] = "0123456789abcdef";
	unsigned long n = 1 + below(r, 12), base = conv == 'x' ? 16 : 10;

	if (below(r, 4) == 0 && at < MAX_CASE)
		dst[at++] = '-';
	while (n-- && at < MAX_CASE)
		dst[at++] = digits[below(r, base)];
	return at;
}

static void make_command(struct rng *r, struct fuzz_case *c)
{
	unsigned long at = 0, i, mutations, w = below(r, 1000);
	int args = 0, keep;
	const char *t;

	for (i = 0; w >= commands[i].weight; i++)
		w -= commands[i].weight;
	t = commands[i].text;

	for (i = 0; t[i]; i++)
		args += t[i] == '%';
	keep = below(r, 5) ? args : (int)below(r, args + 1);	/* missing arguments */

	for (i = 0; t[i] && at < MAX_CASE; i++) {
		if (t[i] != '%') {
			c->buf[at++] = t[i];
			continue;
		}
		i++;
		if (keep-- <= 0) {	/* drop this argument and what follows */
			while (at && c->buf[at - 1] == ' ')
				at--;
			break;
		}
		if (below(r, 4) == 0)
			at = put_random_number(r, c->buf, at, t[i]);
		else
			at = put(c->buf, at, t[i] == 'x' ? PICK(r, hexes) : PICK(r, decimals));
	}

	for (mutations = below(r, 4); mutations; mutations--) {
		switch (below(r, 6)) {
		case 0:	/* trailing junk */
			at = put(c->buf, at, below(r, 2) ? " 7 junk" : " 1 2 3 4 5 6 7 8 9");
			break;
		case 1:	/* case changes */
			for (i = 0; i < at; i++)
				if (below(r, 3) == 0 && ((c->buf[i] | 0x20) >= 'a' && (c->buf[i] | 0x20) <= 'z'))
					c->buf[i] ^= 0x20;
			break;
		case 2:	/* cut short */
			at = below(r, at + 1);
			break;
		case 3:	/* a NUL inside, the rest still written */
			if (at)
				c->buf[below(r, at)] = 0;
			break;
		case 4:	/* other separators */
			for (i = 0; i < at; i++)
				if (c->buf[i] == ' ' && below(r, 2))
					c->buf[i] = below(r, 2) ? '\t' : '\n';
			break;
		default:	/* a high byte or a stray character */
			if (at)
				c->buf[below(r, at)] = below(r, 2) ? (char)(0x80 + below(r, 128)) : '%';
			break;
		}
	}
	if (below(r, 2) && at < MAX_CASE)	/* as echo writes it */
		c->buf[at++] = '\n';
	c->len = at;
}

static void make_random(struct rng *r, struct fuzz_case *c)
{
	unsigned long i, span = below(r, 10);
	int any = below(r, 2);

	c->len = below(r, span < 5 ? 65 : span < 8 ? CONSOLE_MAX + 80 : MAX_CASE + 1);
	for (i = 0; i < c->len; i++)
		c->buf[i] = any ? (char)rng_next(r) : letters[below(r, sizeof(letters) - 1)];
}

static void make_case(unsigned long long seed, unsigned long n, const char *stack_end,
		      struct fuzz_case *c)
{
	struct rng r = { seed * 0xd1342543de82ef95ULL + n * 0x2545f4914f6cdd1dULL };
	unsigned long roll = below(&r, 100), k;

	c->addr = c->buf;
	if (roll < 45) {
		c->kind = RANDOM;
		make_random(&r, c);
		c->readable = c->len;
	} else if (roll < 95) {
		c->kind = COMMAND;
		make_command(&r, c);
		c->readable = c->len;
	} else if (roll < 97) {
		c->kind = UNMAPPED;
		c->addr = (const char *)16;	/* page 0 is never mapped */
		c->len = below(&r, MAX_CASE + 1);
		c->readable = 0;
	} else {
		c->kind = STACK_END;
		k = 1 + below(&r, CONSOLE_MAX);
		c->addr = stack_end - k;
		c->len = 1 + below(&r, MAX_CASE);
		c->readable = k;
	}
}

static long expected(const struct fuzz_case *c)
{
	unsigned long n = c->len < CONSOLE_MAX ? c->len : CONSOLE_MAX;

	return n <= c->readable ? (long)n : -EFAULT;
}

/*
 * The end of the stack mapping: the kernel puts the program's file name
 * (AT_EXECFN) right below its top, and nothing is mapped above it.
 */
static const char *find_stack_end(char **argv)
{
	unsigned long *aux, end;
	char **p = argv;

	while (*p)
		p++;
	for (p++; *p; p++)
		;
	for (aux = (unsigned long *)(p + 1); aux[0] != AT_NULL; aux += 2)
		if (aux[0] == AT_EXECFN) {
			end = aux[1] + slen((const char *)aux[1]) + 1;
			return (const char *)((end + PAGE - 1) & ~(PAGE - 1));
		}
	return 0;
}

static void show(const struct fuzz_case *c)
{
	static const char hex[] = "0123456789abcdef";
	char out[8];
	unsigned long i;

	say(kind_names[c->kind]);
	say(", ");
	say_num(c->len);
	say(" bytes");
	if (c->kind == UNMAPPED || c->kind == STACK_END) {
		say(", ");
		say_num(c->readable);
		say(" readable\n");
		return;
	}
	say(": \"");
	for (i = 0; i < c->len; i++) {
		unsigned char b = c->buf[i];

		if (b == '\\' || b == '"') {
			out[0] = '\\', out[1] = b, out[2] = 0;
		} else if (b >= 0x20 && b < 0x7f) {
			out[0] = b, out[1] = 0;
		} else {
			out[0] = '\\', out[1] = 'x', out[2] = hex[b >> 4], out[3] = hex[b & 15];
			out[4] = 0;
		}
		say(out);
	}
	say("\"\n");
}

static struct fuzz_case fc;
static unsigned long counts[KINDS];

static int run(int argc, char **argv)
{
	unsigned long first, n, i, bad = 0;
	const char *stack_end = find_stack_end(argv);
	unsigned long long seed;
	long fd, ret;

	if (argc == 4 && streq(argv[1], "show")) {
		make_case(parse(argv[2]), parse(argv[3]), stack_end, &fc);
		show(&fc);
		return 0;
	}
	if (argc != 5 || !stack_end) {
		say("usage: procfuzz FILE SEED FIRST COUNT | procfuzz show SEED CASE\n");
		return 2;
	}
	seed = parse(argv[2]);
	first = parse(argv[3]);
	n = parse(argv[4]);
	fd = sys3(NR_OPENAT, AT_FDCWD, (long)argv[1], O_WRONLY);
	if (fd < 0)
		return say_err("procfuzz: ", "open", fd);
	for (i = first; i < first + n; i++) {
		make_case(seed, i, stack_end, &fc);
		counts[fc.kind]++;
		ret = sys3(NR_WRITE, fd, (long)fc.addr, fc.len);
		if (ret == expected(&fc))
			continue;
		if (++bad <= 10) {
			say("procfuzz: case ");
			say_num(i);
			say(": write returned ");
			say_num(ret);
			say(", expected ");
			say_num(expected(&fc));
			say(": ");
			show(&fc);
		}
	}
	sys3(NR_CLOSE, fd, 0, 0);
	say("procfuzz: cases ");
	say_num(first);
	say("..");
	say_num(first + n - 1);
	for (i = 0; i < KINDS; i++) {
		say(i ? ", " : ": ");
		say_num(counts[i]);
		say(" ");
		say(kind_names[i]);
	}
	say("; unexpected results: ");
	say_num(bad);
	say("\n");
	return bad != 0;
}

GUEST_MAIN;
