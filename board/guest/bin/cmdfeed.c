// SPDX-License-Identifier: GPL-2.0
/*
 * cmdfeed FILE <COMMANDS
 *
 * Each line of standard input is one command for a command file such as the
 * swconfig stand-in's (/sys/kernel/debug/swconfig-test/cmd): written to FILE
 * with one write(2), newline included as echo writes it, then the answer
 * read back from the file's start and printed on one line, the answer's lines
 * joined by ';' (an empty answer gives an empty line).  One output line per
 * command, so answers line up with a list of expected ones, at thousands of
 * commands a second where a shell needs a process for every read.
 * Freestanding (guest.h).
 */
#include "guest.h"

#define LINE_MAX	512
#define ANSWER_MAX	9000
#define SEEK_SET	0
#if defined(__aarch64__)
#define NR_LSEEK	62
#else
#define NR_LSEEK	19
#endif

static char in[4096], line[LINE_MAX + 1], answer[ANSWER_MAX];

static long fail(const char *what, long err)
{
	return say_err("cmdfeed: ", what, err);
}

/* Write one command, print its answer; nonzero when FD cannot be read. */
static int feed(long fd, long len)
{
	long n = 0, got = 0, i;

	line[len] = '\n';
	sys3(NR_WRITE, fd, (long)line, len + 1);	/* a refusal shows in the answer */
	sys3(NR_LSEEK, fd, 0, SEEK_SET);
	while (got < ANSWER_MAX && (n = sys3(NR_READ, fd, (long)answer + got, ANSWER_MAX - got)) > 0)
		got += n;
	if (n < 0)
		return fail("read", n);
	if (got && answer[got - 1] == '\n')
		got--;
	for (i = 0; i < got; i++)
		if (answer[i] == '\n')
			answer[i] = ';';
	answer[got] = '\n';
	sys3(NR_WRITE, 1, (long)answer, got + 1);
	return 0;
}

static int run(int argc, char **argv)
{
	long fd, n, i, len = 0;

	if (argc != 2) {
		say("usage: cmdfeed FILE <COMMANDS\n");
		return 2;
	}
	fd = sys3(NR_OPENAT, AT_FDCWD, (long)argv[1], O_RDWR);
	if (fd < 0)
		return fail("open", fd);
	while ((n = sys3(NR_READ, 0, (long)in, sizeof(in))) > 0) {
		for (i = 0; i < n; i++) {
			if (in[i] != '\n') {
				if (len == LINE_MAX)
					return fail("line longer than", LINE_MAX);
				line[len++] = in[i];
				continue;
			}
			if (feed(fd, len))
				return 1;
			len = 0;
		}
	}
	if (n < 0)
		return fail("read", n);
	if (len && feed(fd, len))
		return 1;
	return 0;
}

GUEST_MAIN;
