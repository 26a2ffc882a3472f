// SPDX-License-Identifier: GPL-2.0
/*
 * MII register access through a network interface, as mii-tool and phytool
 * do it: the SIOCGMIIPHY, SIOCGMIIREG and SIOCSMIIREG ioctls, which the
 * MAC driver hands to its PHY (phy_mii_ioctl), so each one is a single
 * MDIO transaction on the MAC's bus, taken whenever the bus is free.
 *
 *   miireg IFACE phy                      the MAC's PHY address
 *   miireg IFACE read ADDR REG            one read: "0xNNNN" or "error -N"
 *   miireg IFACE write ADDR REG VALUE     one write: "ok" or "error -N"
 *   miireg IFACE loop COUNT ADDR REG MASK VALUE
 *        COUNT reads; a read whose value ANDed with MASK is not VALUE is
 *        wrong.  Prints "reads N wrong W errors E" (then the first wrong
 *        value and the first error) and fails if W or E is not 0.
 *
 * Numbers are decimal or 0x-prefixed hexadecimal.
 *
 * What to read on the RTL8304MB: register 31 of address 8, the chip's page
 * control.  Every register-layer primitive ends with bit 15 clear (a switch
 * page selected, or 0x7FFF after a PHY access), while a switch write or a
 * PHY access runs with bit 15 set (PHY mode) between its page selection
 * and its access.  So "loop COUNT 8 31 0x8000 0" sees bit 15 set exactly
 * when a read lands inside a driver's page-select-then-access sequence.
 * The register is not behind a page: reading it never counts as an access
 * through a bad page and changes nothing.  Registers behind a page (the PHY
 * identifier at address 8, say) are no good for this: after a PHY access
 * the chip is left on switch page 0xFF, where every such read is one.
 *
 * "phy" reads register 31 as well: SIOCGMIIPHY goes on to read the
 * register asked for at the PHY's address.
 */
#include "guest.h"

#define AF_PACKET	17
#define SOCK_DGRAM	2
#define SIOCGMIIPHY	0x8947
#define SIOCGMIIREG	0x8948
#define SIOCSMIIREG	0x8949
#define IFNAMSIZ	16

/* struct ifreq: the name, then struct mii_ioctl_data in the union. */
struct mii_ifreq {
	char name[IFNAMSIZ];
	unsigned short phy_id;
	unsigned short reg_num;
	unsigned short val_in;
	unsigned short val_out;
	char pad[40 - IFNAMSIZ - 8];	/* sizeof(struct ifreq) on 64 bits */
};

static struct mii_ifreq req;
static long sock;

static int number(const char *s, unsigned long *v)
{
	unsigned long n = 0;
	int hex = s[0] == '0' && (s[1] == 'x' || s[1] == 'X');

	if (hex)
		s += 2;
	if (!*s)
		return -1;
	for (; *s; s++) {
		int d;

		if (*s >= '0' && *s <= '9')
			d = *s - '0';
		else if (hex && *s >= 'a' && *s <= 'f')
			d = *s - 'a' + 10;
		else if (hex && *s >= 'A' && *s <= 'F')
			d = *s - 'A' + 10;
		else
			return -1;
		n = hex ? n * 16 + d : n * 10 + d;
	}
	*v = n;
	return 0;
}

static void say_hex16(unsigned int v)
{
	static const char digit[] = "0123456789abcdef";
	char buf[7] = "0x";
	int i;

	for (i = 0; i < 4; i++)
		buf[2 + i] = digit[(v >> (12 - 4 * i)) & 0xf];
	buf[6] = 0;
	say(buf);
}

static void say_error(long err)
{
	say("error ");
	say_num(err);
	say("\n");
}

static long mii(unsigned int cmd, unsigned long addr, unsigned long reg, unsigned long val)
{
	req.phy_id = (unsigned short)addr;
	req.reg_num = (unsigned short)reg;
	req.val_in = (unsigned short)val;
	return sys3(NR_IOCTL, sock, cmd, (long)&req);
}

static int loop(unsigned long count, unsigned long addr, unsigned long reg,
		unsigned long mask, unsigned long value)
{
	unsigned long i, wrong = 0, errors = 0;
	unsigned int first_wrong = 0;
	long ret, first_error = 0;

	for (i = 0; i < count; i++) {
		ret = mii(SIOCGMIIREG, addr, reg, 0);
		if (ret < 0) {
			if (!errors++)
				first_error = ret;
		} else if ((req.val_out & mask) != value) {
			if (!wrong++)
				first_wrong = req.val_out;
		}
	}
	say("reads ");
	say_num(count);
	say(" wrong ");
	say_num(wrong);
	say(" errors ");
	say_num(errors);
	if (wrong) {
		say(" first ");
		say_hex16(first_wrong);
	}
	if (errors) {
		say(" first_error ");
		say_num(first_error);
	}
	say("\n");
	return wrong || errors;
}

static int usage(void)
{
	say("usage: miireg IFACE phy | read ADDR REG | write ADDR REG VALUE |\n"
	    "       loop COUNT ADDR REG MASK VALUE\n");
	return 2;
}

static int run(int argc, char **argv)
{
	unsigned long n[5];
	long ret;
	int i, args;

	if (argc < 3 || slen(argv[1]) >= IFNAMSIZ)
		return usage();
	if (streq(argv[2], "phy"))
		args = 0;
	else if (streq(argv[2], "read"))
		args = 2;
	else if (streq(argv[2], "write"))
		args = 3;
	else if (streq(argv[2], "loop"))
		args = 5;
	else
		return usage();
	if (argc != 3 + args)
		return usage();
	for (i = 0; i < args; i++)
		if (number(argv[3 + i], &n[i]))
			return usage();
	for (i = 0; argv[1][i]; i++)
		req.name[i] = argv[1][i];

	/* A packet socket: the board kernel has no IPv4, and any socket
	 * reaches the interface ioctls. */
	sock = sys3(NR_SOCKET, AF_PACKET, SOCK_DGRAM, 0);
	if (sock < 0) {
		say("socket: ");
		say_error(sock);
		return 1;
	}
	if (args == 5)
		return loop(n[0], n[1], n[2], n[3], n[4]);
	if (args == 0) {
		ret = mii(SIOCGMIIPHY, 0, 31, 0);
		if (ret < 0) {
			say_error(ret);
			return 1;
		}
		say_num(req.phy_id);
		say("\n");
		return 0;
	}
	ret = mii(args == 2 ? SIOCGMIIREG : SIOCSMIIREG, n[0], n[1], args == 3 ? n[2] : 0);
	if (ret < 0) {
		say_error(ret);
		return 1;
	}
	if (args == 2)
		say_hex16(req.val_out);
	else
		say("ok");
	say("\n");
	return 0;
}

GUEST_MAIN;
