// SPDX-License-Identifier: GPL-2.0
/*
 * Realtek RTL8304MB switch on the MDIO bus of an i.MX6UL FEC.
 *
 * The chip answers at SMI addresses 0..8 of the FEC's MDIO bus; the PHY
 * layer binds this driver to addresses 0, 3 and 8 (see rtl8304_fixup).  The
 * driver reports a fixed 100/full link to the MAC, mirrors the two copper
 * ports onto link LEDs, exposes the switch through the swconfig framework
 * and offers a maintenance console in /proc/rtl8304 whose output goes to
 * the kernel log.  Register access goes through the rtl8309n_ register
 * layer and the rtk_ API, which reach the bus only through the SMI hooks
 * installed here.
 *
 * Locking: one mutex, rtl8304_lock, serialises every path that reaches the
 * chip (status poll, swconfig handlers, apply/reset, console) because the
 * register layer's page-select-then-access sequences are not atomic.  It
 * also guards S_state's lifetime, the GPIO bookkeeping and procfs_buffer.
 * A path that talks to the chip also holds the MDIO bus's own lock
 * (bus->mdio_lock) for all of its chip work and goes out with the bus's
 * unlocked accessors, one transaction per hook call, so that no other bus
 * user (the PHY layer, a SIOCGMIIREG ioctl from mii-tool, another driver)
 * lands between a page select and the access that follows it.
 *
 * Lock order: phydev->lock or the swconfig device mutex, then rtl8304_lock,
 * then bus->mdio_lock.  Nothing that holds rtl8304_lock calls into swconfig
 * registration or waits for /proc users.
 *
 * A chip that never clears a busy bit hangs the register layer's wait, and
 * with it the caller that started the sequence; the rest of the system must
 * not hang behind it.  So the status poll only tries the lock (the MAC's
 * link is fixed anyway, and the next poll refreshes the LEDs), user-space
 * entry points wait killably, and the SMI hooks yield the CPU on every
 * transaction.
 */
#include <linux/gpio.h>
#include <linux/kernel.h>
#include <linux/lockdep.h>
#include <linux/module.h>
#include <linux/mutex.h>
#include <linux/of.h>
#include <linux/of_gpio.h>
#include <linux/phy.h>
#include <linux/proc_fs.h>
#include <linux/slab.h>
#include <linux/string.h>
#include <linux/switch.h>
#include <linux/uaccess.h>
#include <linux/version.h>

#include "rtl8309n_asicdrv.h"
#include "rtk_api.h"

#define RTL8304_PHY_ID		0x00002070
#define RTL8304_FILE		"drivers/net/phy/rtl8304"
#define RTL8304_NAME		"RTL8304MB"
#define RTL8304_NUM_PORTS	4
#define RTL8304_NUM_VLANS	17
#define RTL8304_CPU_PORT	8
#define RTL8304_PROC_NAME	"rtl8304"
#define RTL8304_PROC_SIZE	1024

/* The legacy GPIO number space of the boards this driver serves. */
#define RTL8304_GPIO_LIMIT	512

/* MII basic control register values written straight to a chip PHY. */
#define RTL8304_BMCR_RESET	0x8000
#define RTL8304_BMCR_100M	0x2000
#define RTL8304_BMCR_ANEG	0x1000
#define RTL8304_BMCR_PDOWN	0x0800
#define RTL8304_BMCR_FULL	0x0100

struct rtl8304_port_state {
	u16 vlan_index;
	u16 pvid;
	u16 mask;
	u8 flags;
};

struct rtl8304_vlan_state {
	u8 port_based;
	u16 ports;
	u16 vid;
	u32 tagged;
};

struct rtl8304_state {
	struct switch_dev dev;
	struct mii_bus *bus;
	u32 enable_vlan;
	struct rtl8304_port_state port[RTL8304_NUM_PORTS];
	struct rtl8304_vlan_state vlan[RTL8304_NUM_VLANS];
	char buf[32];

	/* The fixup hands addresses 0, 3 and 8 of one bus to this driver, so
	 * one chip is probed three times.  The first probe sets the board up
	 * and later probes of the same bus share it; the last remove tears
	 * it down.
	 */
	struct mii_bus *owner;
	unsigned int refcnt;
	bool registered;
};

static DEFINE_MUTEX(rtl8304_lock);
static struct rtl8304_state *S_state;
static int switchnet_reset = -1;
static int led_gpio1 = -1;
static int led_gpio2 = -1;
/* Which of the lines above this driver requested, and so must free. */
static bool reset_owned, led1_owned, led2_owned;
/* One spare byte keeps the terminator inside for writes of 1024 or more. */
static char procfs_buffer[RTL8304_PROC_SIZE + 1];
static bool rtl8304_fixup_registered;

/* Switch-framework port -> chip port. */
static const u8 rtl8304_port_map[RTL8304_NUM_PORTS] = { 0, 3, 4, 8 };

static const char * const rtl8304_link_text[] = {
	"PORT_LINKDOWN", "PORT_LINKUP", "UNKNOW",
};

static const char * const rtl8304_speed_text[] = {
	"PORT_SPEED_10M", "PORT_SPEED_20M", "PORT_SPEED_100M",
	"PORT_SPEED_200M", "PORT_SPEED_1000M", "UNKNOW",
};

static const char * const rtl8304_duplex_text[] = {
	"PORT_HALF_DUPLEX", "PORT_FULL_DUPLEX", "UNKNOW",
};

static inline struct rtl8304_state *to_rtl8304(struct switch_dev *dev)
{
	return container_of(dev, struct rtl8304_state, dev);
}

static bool rtl8304_gpio_valid(int gpio)
{
#if LINUX_VERSION_CODE < KERNEL_VERSION(6, 2, 0)
	return (unsigned int)gpio < RTL8304_GPIO_LIMIT;
#else
	/* Since 6.2 chips without a fixed base are numbered from 512 up. */
	return gpio_is_valid(gpio);
#endif
}

/* Chip ports 0, 3 and 8 are the only ones the board wires up. */
static bool rtl8304_board_port(int port)
{
	return (port & ~8) == 0 || port == 3;
}

/* A framework port mask (bit n = framework port n) as a chip port mask. */
static u32 rtl8304_chip_mask(u32 mask)
{
	u32 chip = 0;
	int p;

	for (p = 0; p < RTL8304_NUM_PORTS; p++)
		if (mask & BIT(p))
			chip |= BIT(rtl8304_port_map[p]);
	return chip;
}

/* ---- SMI bridge ---- */

/* The register layer calls these with rtl8304_lock and the bus lock held
 * (rtl8304_lock_chip()).  Before config_init has stored the bus nothing is
 * sent: writes fail with -ENODEV and reads yield 0, so that no busy-bit
 * poll above can spin on garbage.  Addresses are bounded because the MDIO
 * core indexes its statistics by them.  The register layer ignores bus
 * errors, so they are logged here; and because its busy-bit waits have no
 * bound, every transaction gives the CPU away once, which keeps a stuck
 * chip from tripping the soft-lockup and RCU-stall detectors on kernels
 * without preemption.
 */
static int rtl8304_smiWrite(u32 phyad, u32 regad, u32 value)
{
	int err;

	lockdep_assert_held(&rtl8304_lock);

	if (!S_state || !S_state->bus)
		return -ENODEV;
	if (phyad >= PHY_MAX_ADDR)
		return -ENXIO;
	err = __mdiobus_write(S_state->bus, phyad, regad, (u16)value);
	if (err < 0)
		pr_warn_ratelimited("rtl8304: MDIO write failed: address %u register %u: %d\n",
				    phyad, regad, err);
	cond_resched();
	return err;
}

static int rtl8304_smiRead(u32 phyad, u32 regad, u32 *value)
{
	int ret;

	lockdep_assert_held(&rtl8304_lock);

	if (!S_state || !S_state->bus) {
		*value = 0;
		return 0;
	}
	if (phyad >= PHY_MAX_ADDR) {
		*value = (u32)-ENXIO;
		return 0;
	}
	ret = __mdiobus_read(S_state->bus, phyad, regad);
	if (ret < 0)
		pr_warn_ratelimited("rtl8304: MDIO read failed: address %u register %u: %d\n",
				    phyad, regad, ret);
	*value = (u32)ret;
	cond_resched();
	return 0;
}

/* The bus lock of a chip sequence; the bus cannot change under rtl8304_lock. */
static void rtl8304_bus_lock(void)
{
	lockdep_assert_held(&rtl8304_lock);
	if (S_state && S_state->bus)
		mutex_lock(&S_state->bus->mdio_lock);
}

static void rtl8304_bus_unlock(void)
{
	lockdep_assert_held(&rtl8304_lock);
	if (S_state && S_state->bus)
		mutex_unlock(&S_state->bus->mdio_lock);
}

/* Entry points that talk to the chip.  A killed waiter gets -EINTR and has
 * touched nothing.
 */
static int rtl8304_lock_chip(void)
{
	int err;

	err = mutex_lock_killable(&rtl8304_lock);
	if (err)
		return err;
	rtl8304_bus_lock();
	return 0;
}

static void rtl8304_unlock_chip(void)
{
	rtl8304_bus_unlock();
	mutex_unlock(&rtl8304_lock);
}

/* ---- Board GPIOs ---- */

/* Linux 6.2 dropped of_get_named_gpio_flags(); without flags it is the same lookup. */
static int rtl8304_get_gpio(struct device_node *np, const char *prop)
{
#if LINUX_VERSION_CODE < KERNEL_VERSION(6, 2, 0)
	return of_get_named_gpio_flags(np, prop, 0, NULL);
#else
	return of_get_named_gpio(np, prop, 0);
#endif
}

static void switch_reset(void)
{
	struct gpio_desc *desc;

	if (!rtl8304_gpio_valid(switchnet_reset)) {
		pr_err("switch reset gpio %d is invalid.\n", switchnet_reset);
		return;
	}

	/* A repeated request (console "switch reset") fails and goes on. */
	if (!gpio_request(switchnet_reset, "switchnet-reset"))
		reset_owned = true;
	desc = gpio_to_desc(switchnet_reset);
	gpiod_direction_output_raw(desc, 0);
	gpiod_set_raw_value(desc, 0);
	msleep(400);
	gpiod_set_raw_value(desc, 1);
	msleep(200);
}

/* Request an LED line and switch it dark; true when this driver owns it. */
static bool rtl8304_led_init(int gpio, const char *label)
{
	bool owned;

	if (!rtl8304_gpio_valid(gpio))
		return false;
	owned = !gpio_request(gpio, label);
	gpiod_set_raw_value(gpio_to_desc(gpio), 1);
	return owned;
}

/* LEDs are active low: lit while the chip port has link. */
static void rtl8304_led_update(int gpio, u32 port)
{
	rtk_port_linkStatus_t link = PORT_LINKDOWN;
	rtk_port_speed_t speed = PORT_SPEED_10M;
	rtk_port_duplex_t duplex = PORT_HALF_DUPLEX;

	if (!rtl8304_gpio_valid(gpio))
		return;
	rtk_port_phyStatus_get(port, &link, &speed, &duplex);
	gpiod_set_raw_value(gpio_to_desc(gpio), link == PORT_LINKUP ? 0 : 1);
}

static void rtl8304_free_gpios(void)
{
	if (reset_owned)
		gpio_free(switchnet_reset);
	if (led1_owned)
		gpio_free(led_gpio1);
	if (led2_owned)
		gpio_free(led_gpio2);
	reset_owned = false;
	led1_owned = false;
	led2_owned = false;
}

/* ---- Configuration apply and reset ---- */

/* Every VLAN the apply step programs uses this filtering database. */
#define RTL8304_APPLY_FID	1
/* Tag insert/remove mode of the framework's ports after an apply.  What
 * the chip does with each of its four modes is not documented to us; the
 * board has always run in mode 2.
 */
#define RTL8304_APPLY_TAG_MODE	2

/* "bridge mode": one VLAN with the board's ports as untagged members. */
#define RTL8304_BRIDGE_VID	1234
#define RTL8304_BRIDGE_FID	3

/* Opening of both ways of programming the chip (apply and "bridge mode"):
 * the VLAN block and the ACL table back to their defaults, with @cpu_port
 * as the CPU port and CPU tags inserted.  rtk_qos_init(0) fails without a
 * write; it is kept for the queue set-up it stands for.
 */
static void rtl8304_chip_restart(u32 cpu_port)
{
	rtk_qos_init(0);
	rtl8309n_cpu_enable_set(RTL8309N_ENABLED);
	if (cpu_port <= RTL8309N_MAX_PORT)
		rtl8309n_cpu_port_set(cpu_port, 1);
	rtl8309n_vlan_init();
	rtk_filter_igrAcl_init();
}

/* Port state from the VLANs: the highest VLAN that has a port as untagged
 * member names its PVID; port-based VLANs collect their members' masks.
 */
static void rtl8304_derive_ports(struct rtl8304_state *state, int ports, int vlans)
{
	int i, p;

	for (i = 1; i < vlans; i++) {
		struct rtl8304_vlan_state *v = &state->vlan[i];

		for (p = 0; p < ports; p++) {
			if (!(v->ports & BIT(p)))
				continue;
			if (!(v->tagged & BIT(p)))
				state->port[p].pvid = v->vid;
			if (v->port_based) {
				state->port[p].vlan_index = i;
				state->port[p].mask |= v->ports;
			}
		}
	}
}

/* Why the chip (or the API in front of it) refused a VLAN or a PVID. */
static const char *rtl8304_refusal(rtk_api_ret_t ret)
{
	switch (ret) {
	case RT_ERR_TBL_FULL:
		return "VLAN table full";
	case RT_ERR_VLAN_VID:
		return "VID outside 1..4094";
	case RT_ERR_VLAN_ENTRY_NOT_FOUND:
		return "no such VLAN";
	default:
		return "chip access failed";
	}
}

/* 802.1Q VLANs; port-based ones stay out of the chip's table.  The apply
 * goes on past a refusal (the table has 16 entries, entry 0 holding VLAN 1),
 * but says which VLAN did not make it.
 */
static void rtl8304_program_vlans(struct rtl8304_state *state, int vlans)
{
	rtk_api_ret_t ret;
	int i;

	for (i = 1; i < vlans; i++) {
		struct rtl8304_vlan_state *v = &state->vlan[i];
		u32 member, tagged;

		if (!v->ports || !v->vid || v->port_based)
			continue;
		member = rtl8304_chip_mask(v->ports);
		tagged = rtl8304_chip_mask(v->tagged);
		ret = rtk_vlan_set(v->vid, member, member & ~tagged & RTL8309N_PORT_MASK_ALL,
				   RTL8304_APPLY_FID);
		if (ret != RT_ERR_OK)
			pr_warn("rtl8304: apply: VLAN %u (slot %d) refused: %s\n",
				v->vid, i, rtl8304_refusal(ret));
	}
}

static void rtl8304_program_pvids(struct rtl8304_state *state, int ports)
{
	rtk_api_ret_t ret;
	int p;

	for (p = 0; p < ports; p++) {
		u16 pvid = state->port[p].pvid;

		if (pvid < 1 || pvid > 4094)
			continue;
		ret = rtk_vlan_portPvid_set(rtl8304_port_map[p], pvid, 0);
		if (ret != RT_ERR_OK)
			pr_warn("rtl8304: apply: PVID %u of port %d refused: %s\n",
				pvid, p, rtl8304_refusal(ret));
	}
}

static void rtl8304_set_tag_modes(int ports)
{
	int p;

	for (p = 0; p < ports; p++)
		rtl8309n_vlan_tagInsertRemove_set(rtl8304_port_map[p], RTL8304_APPLY_TAG_MODE);
}

static void rtl8304_apply(struct switch_dev *dev)
{
	struct rtl8304_state *state = to_rtl8304(dev);
	int ports = min_t(unsigned int, dev->ports, RTL8304_NUM_PORTS);
	int vlans = min_t(unsigned int, dev->vlans, RTL8304_NUM_VLANS);
	int p;

	lockdep_assert_held(&rtl8304_lock);

	for (p = 0; p < ports; p++)
		rtk_stat_port_reset(rtl8304_port_map[p]);
	rtl8304_chip_restart(dev->cpu_port);
	rtl8304_derive_ports(state, ports, vlans);
	rtl8304_program_vlans(state, vlans);
	rtl8304_program_pvids(state, ports);
	rtl8309n_vlan_igrFilterEnable_set(RTL8309N_ENABLED);
	rtl8304_set_tag_modes(ports);
}

static int rtl_hw_apply(struct switch_dev *dev)
{
	int err;

	err = rtl8304_lock_chip();
	if (err)
		return err;
	rtl8304_apply(dev);
	rtl8304_unlock_chip();
	return 0;
}

/* Called with rtl8304_lock and the bus lock held; flag 1 is the first
 * bring-up.
 */
static int __rtl_reset(struct switch_dev *dev, u8 flag)
{
	struct rtl8304_state *state = to_rtl8304(dev);
	int ports = min_t(unsigned int, dev->ports, RTL8304_NUM_PORTS);
	int vlans = min_t(unsigned int, dev->vlans, RTL8304_NUM_VLANS);
	int i;

	lockdep_assert_held(&rtl8304_lock);

	for (i = 1; i < vlans; i++)
		memset(&state->vlan[i], 0, sizeof(state->vlan[i]));
	state->enable_vlan = 0;
	for (i = 0; i < ports; i++) {
		memset(&state->port[i], 0, sizeof(state->port[i]));
		if (flag && i <= 2)
			rtl8304_smiWrite(rtl8304_port_map[i], MII_BMCR,
					 RTL8304_BMCR_RESET | RTL8304_BMCR_100M |
					 RTL8304_BMCR_ANEG | RTL8304_BMCR_FULL);
	}
	if (!flag)
		rtl8304_apply(dev);
	return 0;
}

static int rtl_reset(struct switch_dev *dev)
{
	int err;

	err = rtl8304_lock_chip();
	if (err)
		return err;
	__rtl_reset(dev, 0);
	rtl8304_unlock_chip();
	return 0;
}

/* ---- Switch-configuration device ---- */

/* The handlers below change only the soft configuration (apart from the
 * port-link pair); they take rtl8304_lock because the console reads the
 * same record, killably because a stuck apply or console command may hold
 * it for as long as the chip is stuck.  swconfig validates port and VLAN
 * indexes against the device before calling, the bounds checks here only
 * keep a stray caller inside the arrays.
 */

static bool rtl8304_vlan_bad(struct switch_dev *dev, unsigned int i)
{
	return i < 1 || i >= dev->vlans || i >= RTL8304_NUM_VLANS;
}

static int rtl_get_port_pvid(struct switch_dev *dev, int port, int *val)
{
	if ((unsigned int)port >= RTL8304_NUM_PORTS)
		return -EINVAL;
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	*val = to_rtl8304(dev)->port[port].pvid;
	mutex_unlock(&rtl8304_lock);
	return 0;
}

static int rtl_set_port_pvid(struct switch_dev *dev, int port, int val)
{
	if (val > 4095 || (unsigned int)port >= RTL8304_NUM_PORTS)
		return -EINVAL;
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	to_rtl8304(dev)->port[port].pvid = (u16)val;
	mutex_unlock(&rtl8304_lock);
	return 0;
}

static int rtl_get_vlan_ports(struct switch_dev *dev, struct switch_val *val)
{
	struct rtl8304_vlan_state *v;
	int p, n = 0;

	if (rtl8304_vlan_bad(dev, val->port_vlan))
		return -EINVAL;
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	v = &to_rtl8304(dev)->vlan[val->port_vlan];
	for (p = 0; p < dev->ports && p < RTL8304_NUM_PORTS; p++) {
		if (!(v->ports & BIT(p)))
			continue;
		val->value.ports[n].id = p;
		val->value.ports[n].flags =
			(v->tagged & BIT(p)) ? BIT(SWITCH_PORT_FLAG_TAGGED) : 0;
		n++;
	}
	mutex_unlock(&rtl8304_lock);
	val->len = n;
	return 0;
}

static int rtl_set_vlan_ports(struct switch_dev *dev, struct switch_val *val)
{
	struct rtl8304_vlan_state *v;
	unsigned int i;

	if (rtl8304_vlan_bad(dev, val->port_vlan))
		return -EINVAL;
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	v = &to_rtl8304(dev)->vlan[val->port_vlan];
	v->ports = 0;
	v->tagged = 0;
	/* A slot that never got a "vid" uses its own index. */
	if (!v->vid)
		v->vid = val->port_vlan;
	for (i = 0; i < val->len; i++) {
		u32 bit = BIT(val->value.ports[i].id % 32);

		v->ports |= bit;
		if (val->value.ports[i].flags & BIT(SWITCH_PORT_FLAG_TAGGED))
			v->tagged |= bit;
		else
			v->tagged &= ~bit;
	}
	mutex_unlock(&rtl8304_lock);
	return 0;
}

static int rtl_get_vlan_port_based(struct switch_dev *dev, const struct switch_attr *attr,
				   struct switch_val *val)
{
	if (rtl8304_vlan_bad(dev, val->port_vlan))
		return -EINVAL;
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	val->value.i = to_rtl8304(dev)->vlan[val->port_vlan].port_based ? 1 : 0;
	mutex_unlock(&rtl8304_lock);
	return 0;
}

static int rtl_set_vlan_port_based(struct switch_dev *dev, const struct switch_attr *attr,
				   struct switch_val *val)
{
	if (rtl8304_vlan_bad(dev, val->port_vlan))
		return -EINVAL;
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	to_rtl8304(dev)->vlan[val->port_vlan].port_based = val->value.i == 1;
	mutex_unlock(&rtl8304_lock);
	return 0;
}

static int rtl_get_vid(struct switch_dev *dev, const struct switch_attr *attr,
		       struct switch_val *val)
{
	if (rtl8304_vlan_bad(dev, val->port_vlan))
		return -EINVAL;
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	val->value.i = to_rtl8304(dev)->vlan[val->port_vlan].vid;
	mutex_unlock(&rtl8304_lock);
	return 0;
}

static int rtl_set_vid(struct switch_dev *dev, const struct switch_attr *attr,
		       struct switch_val *val)
{
	if (rtl8304_vlan_bad(dev, val->port_vlan))
		return -EINVAL;
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	to_rtl8304(dev)->vlan[val->port_vlan].vid = (u16)val->value.i;
	mutex_unlock(&rtl8304_lock);
	return 0;
}

static int rtl_get_enable_vlan(struct switch_dev *dev, const struct switch_attr *attr,
			       struct switch_val *val)
{
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	val->value.i = to_rtl8304(dev)->enable_vlan;
	mutex_unlock(&rtl8304_lock);
	return 0;
}

static int rtl_set_enable_vlan(struct switch_dev *dev, const struct switch_attr *attr,
			       struct switch_val *val)
{
	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	to_rtl8304(dev)->enable_vlan = val->value.i;
	mutex_unlock(&rtl8304_lock);
	return 0;
}

/* Every port but the asked one, e.g. port 1: "0x000d: 0 (1) 2 3 ". */
static int rtl_get_port_mask(struct switch_dev *dev, const struct switch_attr *attr,
			     struct switch_val *val)
{
	struct rtl8304_state *state = to_rtl8304(dev);
	unsigned int p = val->port_vlan;
	u32 m = ~(p < 32 ? BIT(p) : 0) & 0xF;
	unsigned int q;
	int len;

	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	len = scnprintf(state->buf, sizeof(state->buf), "0x%04x: ", m);
	for (q = 0; q < 4; q++) {
		if (m & BIT(q))
			len += scnprintf(state->buf + len, sizeof(state->buf) - len, "%u ", q);
		else if (q == p)
			len += scnprintf(state->buf + len, sizeof(state->buf) - len, "(%u) ", p);
	}
	mutex_unlock(&rtl8304_lock);
	val->value.s = state->buf;
	return 0;
}

static int rtl_get_port_link(struct switch_dev *dev, int port, struct switch_port_link *link)
{
	rtk_port_linkStatus_t up = PORT_LINKDOWN;
	rtk_port_speed_t speed = PORT_SPEED_10M;
	rtk_port_duplex_t duplex = PORT_HALF_DUPLEX;
	u32 nway = 0;
	u32 c;

	if ((unsigned int)port >= RTL8304_NUM_PORTS)
		return -EINVAL;
	c = rtl8304_port_map[port];

	if (rtl8304_lock_chip())
		return -EINTR;
	rtk_port_phyStatus_get(c, &up, &speed, &duplex);
	if (c == dev->cpu_port) {
		link->link = 1;
		link->duplex = 1;
		link->speed = SWITCH_PORT_SPEED_100;
	} else {
		link->link = up != 0;
		if (!link->link)
			goto out;
		link->duplex = duplex != 0;
		switch (speed) {
		case PORT_SPEED_100M:
			link->speed = SWITCH_PORT_SPEED_100;
			break;
		case PORT_SPEED_10M:
		case PORT_SPEED_20M:
			link->speed = SWITCH_PORT_SPEED_10;
			break;
		case PORT_SPEED_1000M:
			link->speed = SWITCH_PORT_SPEED_1000;
			break;
		default:
			link->speed = SWITCH_PORT_SPEED_UNKNOWN;
			break;
		}
	}
	rtl8309n_reg_get(c, RTL8309N_PORT_NWAY_REG, RTL8309N_PORT_NWAY_PAGE, &nway);
	link->aneg = !!(nway & RTL8309N_PORT_NWAY_ON);
out:
	rtl8304_unlock_chip();
	return 0;
}

/* Straight to the PHY's control register.  The autonegotiation request sets
 * only the reset bit and the 100 Mbit/s request carries it too: these are
 * the values the chip's PHYs want.
 */
static int rtl_set_port_link(struct switch_dev *dev, int port, struct switch_port_link *link)
{
	int c = (unsigned int)port < RTL8304_NUM_PORTS ? rtl8304_port_map[port] : port;
	u16 val;

	/* The MDIO core indexes its statistics by address: keep it in range. */
	if ((unsigned int)c >= PHY_MAX_ADDR)
		return -EINVAL;

	if (link->aneg) {
		val = RTL8304_BMCR_RESET;
	} else {
		val = link->duplex ? RTL8304_BMCR_FULL : 0;
		switch (link->speed) {
		case SWITCH_PORT_SPEED_10:
			break;
		case SWITCH_PORT_SPEED_100:
			val |= RTL8304_BMCR_RESET | RTL8304_BMCR_100M;
			break;
		case SWITCH_PORT_SPEED_UNKNOWN:
			val |= RTL8304_BMCR_PDOWN;
			break;
		default:
			return -ENOTSUPP;
		}
	}
	if (rtl8304_lock_chip())
		return -EINTR;
	rtl8304_smiWrite(c, MII_BMCR, val);
	rtl8304_unlock_chip();
	return 0;
}

static const struct switch_attr rtl_globals[] = {
	{
		.type = SWITCH_TYPE_INT,
		.name = "enable_vlan",
		.description = "Enable 802.1q VLAN support",
		.set = rtl_set_enable_vlan,
		.get = rtl_get_enable_vlan,
		.id = 0,
		.max = 0,
	},
};

/* Declared an integer although the answer is text; swconfig copes. */
static const struct switch_attr rtl_port[] = {
	{
		.type = SWITCH_TYPE_INT,
		.name = "mask",
		.description = "Port-based VLAN mask",
		.get = rtl_get_port_mask,
		.id = 0,
		.max = 0,
	},
};

static const struct switch_attr rtl_vlan[] = {
	{
		.type = SWITCH_TYPE_INT,
		.name = "port_based",
		.description = "Use port-based (non-802.1q) VLAN only",
		.set = rtl_set_vlan_port_based,
		.get = rtl_get_vlan_port_based,
		.id = 0,
		.max = 0,
	},
	{
		.type = SWITCH_TYPE_INT,
		.name = "vid",
		.description = "Get/set VLAN ID (1-4095)",
		.set = rtl_set_vid,
		.get = rtl_get_vid,
		.id = 1,
		.max = 4095,
	},
};

static const struct switch_dev_ops rtl8304_ops = {
	.attr_global = {
		.attr = rtl_globals,
		.n_attr = ARRAY_SIZE(rtl_globals),
	},
	.attr_port = {
		.attr = rtl_port,
		.n_attr = ARRAY_SIZE(rtl_port),
	},
	.attr_vlan = {
		.attr = rtl_vlan,
		.n_attr = ARRAY_SIZE(rtl_vlan),
	},
	.get_vlan_ports = rtl_get_vlan_ports,
	.set_vlan_ports = rtl_set_vlan_ports,
	.get_port_pvid = rtl_get_port_pvid,
	.set_port_pvid = rtl_set_port_pvid,
	.apply_config = rtl_hw_apply,
	.reset_switch = rtl_reset,
	.get_port_link = rtl_get_port_link,
	.set_port_link = rtl_set_port_link,
};

/* ---- /proc console ---- */

static void rtl8304_cmd_show_vlan(const int *arg)
{
	int i;

	pr_info("vlanid  ----->  mbrmsk  untagmsk\n");
	if (!S_state)
		return;
	for (i = 1; i < RTL8304_NUM_VLANS; i++) {
		u32 vid = S_state->vlan[i].vid;
		u32 member = 0, untag = 0, fid = 0;

		if (vid < 1 || vid > 4094)
			continue;
		rtk_vlan_get(vid, &member, &untag, &fid);
		if (member)
			pr_info("%d      ----->  0x%x    0x%x\n", vid, member, untag);
	}
}

/* The apply sequence with a fixed layout: ports 0, 3, 8 untagged in 1234. */
static void rtl8304_cmd_bridge_mode(const int *arg)
{
	static const u8 board_ports[] = { 0, 3, RTL8304_CPU_PORT };
	u32 mask = 0;
	int i;

	for (i = 0; i < ARRAY_SIZE(board_ports); i++) {
		rtk_stat_port_reset(board_ports[i]);
		mask |= BIT(board_ports[i]);
	}
	rtl8304_chip_restart(RTL8304_CPU_PORT);
	rtk_vlan_set(RTL8304_BRIDGE_VID, mask, mask, RTL8304_BRIDGE_FID);
	for (i = 0; i < ARRAY_SIZE(board_ports); i++)
		rtk_vlan_portPvid_set(board_ports[i], RTL8304_BRIDGE_VID, 0);
	rtl8309n_vlan_igrFilterEnable_set(RTL8309N_ENABLED);
}

static void rtl8304_cmd_set_pvid(const int *arg)
{
	if (!rtl8304_board_port(arg[0])) {
		pr_info("port must be 0(wan), 3(lan), 8(cpu port)\n");
		return;
	}
	rtk_vlan_portPvid_set(arg[0], arg[1], arg[2]);
	pr_info("===set port %d pvid to %d\n", arg[0], arg[1]);
}

static void rtl8304_cmd_get_pvid(const int *arg)
{
	u32 pvid = 0, priority = 0;

	if (!rtl8304_board_port(arg[0])) {
		pr_info("port must be 0(wan), 3(lan), 8(cpu port)\n");
		return;
	}
	rtk_vlan_portPvid_get(arg[0], &pvid, &priority);
	pr_info("===port = %d, pvid = 0x%x, priority = %d\n", arg[0], pvid, priority);
}

/* Masks of a VID outside 1..4094 are never read and print as 0. */
static void rtl8304_cmd_get_vlan(const int *arg)
{
	u32 member = 0, untag = 0, fid = 0;

	if (arg[0] >= 1 && arg[0] <= 4094)
		rtk_vlan_get(arg[0], &member, &untag, &fid);
	pr_info("===vid = %d, mbrmsk = %x, untagmsk = %x\n", arg[0], member, untag);
}

static void rtl8304_cmd_set_vlan(const int *arg)
{
	rtk_vlan_set(arg[0], arg[1], arg[2], 0);
	pr_info("===set vid %d to portmask %x untagmsk %x\n", arg[0], arg[1], arg[2]);
}

static void rtl8304_print_status(const char *title, rtk_port_linkStatus_t link,
				 rtk_port_speed_t speed, rtk_port_duplex_t duplex)
{
	pr_info("%s", title);
	pr_info("link   = %s\n", rtl8304_link_text[min_t(u32, link, 2)]);
	pr_info("speed  = %s\n", rtl8304_speed_text[min_t(u32, speed, 5)]);
	pr_info("duplex = %s\n", rtl8304_duplex_text[min_t(u32, duplex, 2)]);
}

static void rtl8304_cmd_phy_status(const int *arg)
{
	/* Left as "UNKNOW" for whatever the API cannot read. */
	rtk_port_linkStatus_t link[2] = { 2, 2 };
	rtk_port_speed_t speed[2] = { 5, 5 };
	rtk_port_duplex_t duplex[2] = { 2, 2 };

	rtk_port_phyStatus_get(0, &link[0], &speed[0], &duplex[0]);
	rtk_port_phyStatus_get(3, &link[1], &speed[1], &duplex[1]);
	rtl8304_print_status("LAN2 port phy status: \n", link[0], speed[0], duplex[0]);
	rtl8304_print_status("LAN1/WAN port phy status: \n", link[1], speed[1], duplex[1]);
}

static void rtl8304_cmd_get_phy_reg(const int *arg)
{
	rtk_port_phy_data_t a = 0, b = 0;

	rtk_port_phyReg_get(0, arg[0], &a);
	rtk_port_phyReg_get(3, arg[0], &b);
	pr_info("get phy reg %d, CPUPORT = 0x%x, WANPOAT = 0x%x, LANPORT = 0x%x\n",
		arg[0], 0, a, b);
}

/* Port 8 has no embedded PHY: the line is printed, nothing written. */
static void rtl8304_cmd_set_phy_reg(const int *arg)
{
	if (!rtl8304_board_port(arg[0])) {
		pr_info("port must be 0(wan port), 3(lan port), 8(cpu port)\n");
		return;
	}
	if (arg[0] <= RTL8309N_MAX_PHY_PORT)
		rtk_port_phyReg_set(arg[0], arg[1], arg[2]);
	pr_info("port %d phy reg %d set to 0x%x\n", arg[0], arg[1], arg[2]);
}

/* Reports the tag state as read, also when the chip names no CPU port. */
static void rtl8304_cmd_get_cpu_port(const int *arg)
{
	u32 port = 0, tag = 0;

	rtl8309n_cpu_portNumber_get(&port);
	rtl8309n_cpu_tagInsertEnable_get(&tag);
	pr_info("The cpu port:%d, tag %s\n", port, tag == 1 ? "enable" : "disable");
}

static void rtl8304_cmd_switch_reset(const int *arg)
{
	switch_reset();
}

static void rtl8304_cmd_reset_port(const int *arg)
{
	if (!rtl8304_board_port(arg[0])) {
		pr_info("not such port as %d\n", arg[0]);
		return;
	}
	pr_info("switch port %d reset\n", arg[0]);
	rtk_stat_port_reset(arg[0]);
}

/* mac1 and mac2 carry three bytes each, most significant first. */
static bool rtl8304_make_mac(const int *arg, u8 *mac)
{
	u32 mac1 = arg[2], mac2 = arg[3];

	mac[0] = mac1 >> 16;
	mac[1] = mac1 >> 8;
	mac[2] = mac1;
	mac[3] = mac2 >> 16;
	mac[4] = mac2 >> 8;
	mac[5] = mac2;
	return !rtl8309n_mac_is_mcast(mac);
}

/* The fid typed by the user is not used: the entry goes to FID 0.  The L2
 * record carries the MAC itself so that the authorisation below finds it.
 */
static void rtl8304_cmd_set_auth(const int *arg)
{
	rtk_l2_ucastAddr_t entry;
	u8 mac[6];

	pr_info("set auth port: %d, fid: %d, mac1: %x, mac2: %x\n", arg[0], 0, arg[2], arg[3]);
	rtl8309n_dot1x_macBased_set(RTK_DOT1X_DIRECTION_IN);
	if ((u32)arg[0] <= RTL8309N_MAX_PORT)
		rtl8309n_dot1x_macBasedEnable_set(arg[0], RTL8309N_ENABLED);
	if (rtl8304_make_mac(arg, mac)) {
		memset(&entry, 0, sizeof(entry));
		entry.auth = 1;
		entry.port = arg[0];
		memcpy(entry.mac, mac, sizeof(mac));
		rtk_l2_addr_add(mac, 0, &entry);
		rtk_dot1x_macBasedAuthMac_add(mac, 0);
	}
	pr_info("Will be set mac1: %x, mac2: %x, mac3: %x, mac4: %x, mac5: %x, mac6: %x\n",
		mac[0], mac[1], mac[2], mac[3], mac[4], mac[5]);
}

static void rtl8304_cmd_del_auth(const int *arg)
{
	u8 mac[6];

	pr_info("del auth port: %d, fid: %d, mac1: %x, mac2: %x\n", arg[0], 0, arg[2], arg[3]);
	if (rtl8304_make_mac(arg, mac))
		rtk_dot1x_macBasedAuthMac_del(mac, 0);
}

static void rtl8304_cmd_get_mib(const int *arg)
{
	u32 cnt[4] = { 0 };
	u32 counter;

	if (arg[1] == 88) {
		pr_info("get mib port: %d, rxbyecnt\n", arg[0]);
		counter = 2;
	} else if (arg[1] == 99) {
		pr_info("get mib port: %d, txbyecnt\n", arg[0]);
		counter = 0;
	} else {
		pr_info("get mib port: %d, val: %d\n", arg[0], arg[1]);
		counter = arg[1];
	}
	rtk_mib_get(arg[0], counter, cnt);
	pr_info("cntVal[0]: %x, cntVal[1]: %x\n", cnt[0], cnt[1]);
}

/* A command without arguments matches as a prefix of its full text; one
 * with arguments when sscanf fills all of them.  Commands that talk to the
 * chip hold the bus lock while they run; "switch reset" only drives the
 * reset line and sleeps, and leaves the bus to others meanwhile.
 */
struct rtl8304_cmd {
	const char *text;
	int nargs;
	bool nocase;
	bool chip;
	void (*run)(const int *arg);
};

static const struct rtl8304_cmd rtl8304_cmds[] = {
	{ "show all vlan", 0, true, true, rtl8304_cmd_show_vlan },
	{ "bridge mode", 0, true, true, rtl8304_cmd_bridge_mode },
	{ "set pvid %d %d %d", 3, false, true, rtl8304_cmd_set_pvid },
	{ "get pvid %d", 1, false, true, rtl8304_cmd_get_pvid },
	{ "get vlanid info %d", 1, false, true, rtl8304_cmd_get_vlan },
	{ "set vlanid info %d %x %x", 3, false, true, rtl8304_cmd_set_vlan },
	{ "get phy status", 0, true, true, rtl8304_cmd_phy_status },
	{ "get phy reg %d", 1, false, true, rtl8304_cmd_get_phy_reg },
	{ "set phy reg %d %d %x", 3, false, true, rtl8304_cmd_set_phy_reg },
	{ "get cpu port", 0, false, true, rtl8304_cmd_get_cpu_port },
	{ "switch reset", 0, true, false, rtl8304_cmd_switch_reset },
	{ "reset port %d", 1, false, true, rtl8304_cmd_reset_port },
	{ "set auth mac %d %d %x %x", 4, false, true, rtl8304_cmd_set_auth },
	{ "del auth mac %d %d %x %x", 4, false, true, rtl8304_cmd_del_auth },
	{ "get mib %d %d", 2, false, true, rtl8304_cmd_get_mib },
};

static bool rtl8304_cmd_match(const struct rtl8304_cmd *cmd, const char *buf, int *arg)
{
	size_t len = strlen(cmd->text);

	if (cmd->nargs)
		return sscanf(buf, cmd->text, &arg[0], &arg[1], &arg[2], &arg[3]) == cmd->nargs;
	if (cmd->nocase)
		return !strncasecmp(buf, cmd->text, len);
	return !strncmp(buf, cmd->text, len);
}

static ssize_t rtl8304_proc_read(struct file *file, char __user *buf, size_t count,
				 loff_t *ppos)
{
	static const char * const usage[] = {
		"switch: RTL8304N\n", "Usage: \n", "bridge mode\n", "get phy status\n",
		"get phy reg <addr>\n", "set phy reg <port> <addr> <val>\n", "switch reset\n",
		"show all vlan\n", "get vlanid info <vlanid>\n",
		"set vlanid info <vlanid> <portmask> <untagmask>\n", "get pvid <port>\n",
		"set pvid <port> <pvid> <priority>\n", "get cpu port\n", "reset port <num>\n",
		"\n",
	};
	int i;

	for (i = 0; i < ARRAY_SIZE(usage); i++)
		pr_info("%s", usage[i]);
	return 0;
}

static ssize_t rtl8304_proc_write(struct file *file, const char __user *buf, size_t count,
				  loff_t *ppos)
{
	size_t n = min_t(size_t, count, RTL8304_PROC_SIZE);
	int arg[4] = { 0 };
	unsigned long left;
	ssize_t ret = n;
	int i;

	if (mutex_lock_killable(&rtl8304_lock))
		return -EINTR;
	left = copy_from_user(procfs_buffer, buf, n);
	if (left) {
		memset(procfs_buffer + n - left, 0, left);
		ret = -EFAULT;
		goto out;
	}
	procfs_buffer[n] = '\0';

	for (i = 0; i < ARRAY_SIZE(rtl8304_cmds); i++) {
		const struct rtl8304_cmd *cmd = &rtl8304_cmds[i];

		if (!rtl8304_cmd_match(cmd, procfs_buffer, arg))
			continue;
		if (cmd->chip)
			rtl8304_bus_lock();
		cmd->run(arg);
		if (cmd->chip)
			rtl8304_bus_unlock();
		goto out;
	}
	pr_info("***commamd unknow!\n");
out:
	mutex_unlock(&rtl8304_lock);
	return ret;
}

static const struct proc_ops rtl8304_proc_fops = {
	.proc_read = rtl8304_proc_read,
	.proc_write = rtl8304_proc_write,
};

/* ---- PHY driver ---- */

/* Board bring-up of the first probe; called with rtl8304_lock held. */
static int rtl8304_board_setup(struct phy_device *phydev)
{
	struct rtl8304_state *state;
	struct device_node *np;

	np = of_find_compatible_node(NULL, NULL, "fsl,imx6ul-fec");
	if (!np) {
		pr_err("........failed to find <fsl,imx6ul-fec> node\n");
		return -ENOMEM;
	}
	switchnet_reset = rtl8304_get_gpio(np, "switchnet-reset");
	switch_reset();
	led_gpio1 = rtl8304_get_gpio(np, "led-gpio1");
	led_gpio2 = rtl8304_get_gpio(np, "led-gpio2");
	of_node_put(np);

	led1_owned = rtl8304_led_init(led_gpio1, "rtl8304 lan1/wan link led");
	led2_owned = rtl8304_led_init(led_gpio2, "rtl8304 lan2 link led");

	/* A failed probe gives back what it took: no remove will follow. */
	state = kzalloc(sizeof(*state), GFP_KERNEL);
	if (!state) {
		pr_info("....rtl8304_state..kzalloc S_state faild!\n");
		rtl8304_free_gpios();
		return -ENOMEM;
	}
	state->owner = phydev->mdio.bus;
	state->refcnt = 1;
	S_state = state;

	if (!proc_create(RTL8304_PROC_NAME, 0644, NULL, &rtl8304_proc_fops)) {
		remove_proc_entry(RTL8304_PROC_NAME, NULL);
		pr_err("Error: Could not initialize /proc/rtl8304\n");
		S_state = NULL;
		rtl8304_free_gpios();
		kfree(state);
		return -ENOMEM;
	}
	return 0;
}

static int rtl8304_probe(struct phy_device *phydev)
{
	int ret = 0;

	mutex_lock(&rtl8304_lock);
	if (!S_state)
		ret = rtl8304_board_setup(phydev);
	else if (S_state->owner != phydev->mdio.bus)
		ret = -EBUSY;		/* one chip per system */
	else if (!S_state->refcnt)
		ret = -EPROBE_DEFER;	/* the last remove is still tearing down */
	else
		S_state->refcnt++;
	mutex_unlock(&rtl8304_lock);
	return ret;
}

static int rtl8304_config_init(struct phy_device *phydev)
{
	struct rtl8304_state *state;
	struct switch_dev *dev;
	bool do_register;
	int err;

	/* An attach (e.g. the MAC being opened) may come while the chip is
	 * stuck; let its caller be killed rather than hang for good.
	 */
	err = mutex_lock_killable(&rtl8304_lock);
	if (err)
		return err;
	state = S_state;
	if (!state) {
		mutex_unlock(&rtl8304_lock);
		return -ENODEV;
	}
	dev = &state->dev;
	/* A re-attach runs this again: the device stays registered once. */
	do_register = !state->registered;
	if (do_register) {
		dev->ops = &rtl8304_ops;
		dev->name = RTL8304_NAME;
		dev->alias = RTL8304_NAME;
		dev->ports = RTL8304_NUM_PORTS;
		dev->vlans = RTL8304_NUM_VLANS;
		dev->cpu_port = RTL8304_CPU_PORT;
		state->registered = true;
	}
	state->bus = phydev->mdio.bus;
	rtl8304_bus_lock();
	__rtl_reset(dev, 1);
	rtl8304_unlock_chip();

	if (!do_register)
		return 0;

	pr_info("....Registering %s switch...\n", dev->name);
	err = register_switch(dev, phydev->attached_dev);
	if (err < 0) {
		pr_err("[%s]       [%d] register_switch faild, err: %d\n",
		       "rtl8304_config_init", 677, err);
		mutex_lock(&rtl8304_lock);
		state->registered = false;
		mutex_unlock(&rtl8304_lock);
		return err;
	}
	return 0;
}

/* The link to the MAC is fixed; autonegotiation happens on the copper side. */
static int rtl8304_config_aneg(struct phy_device *phydev)
{
	return 0;
}

/* The PHY state machine never waits behind the chip: while another path
 * holds it (possibly stuck on a busy bit) this poll leaves the LEDs as they
 * are and the next one catches up.  phy_stop() and detaching the MAC wait
 * for a running poll, so they stay prompt too.
 */
static int rtl8304_read_status(struct phy_device *phydev)
{
	phydev->speed = SPEED_100;
	phydev->duplex = DUPLEX_FULL;
	phydev->link = 1;

	if (!mutex_trylock(&rtl8304_lock))
		return 0;
	/* Cross-wired on the board: port 0 drives "lan2", port 3 "lan1/wan". */
	if (S_state && S_state->bus) {
		rtl8304_bus_lock();
		rtl8304_led_update(led_gpio2, 0);
		rtl8304_led_update(led_gpio1, 3);
		rtl8304_bus_unlock();
	}
	mutex_unlock(&rtl8304_lock);
	return 0;
}

/* The last of the chip's bound addresses to go undoes the whole board
 * setup: switch device, /proc entry, GPIOs and state.  swconfig and /proc
 * wait for their running handlers, which take rtl8304_lock, so both are
 * torn down without holding it.
 */
static void rtl8304_remove(struct phy_device *phydev)
{
	struct rtl8304_state *state;

	mutex_lock(&rtl8304_lock);
	state = S_state;
	if (!state || state->owner != phydev->mdio.bus || --state->refcnt) {
		mutex_unlock(&rtl8304_lock);
		return;
	}
	mutex_unlock(&rtl8304_lock);

	if (state->registered)
		unregister_switch(&state->dev);
	remove_proc_entry(RTL8304_PROC_NAME, NULL);

	mutex_lock(&rtl8304_lock);
	S_state = NULL;
	rtl8304_free_gpios();
	mutex_unlock(&rtl8304_lock);
	kfree(state);
}

static struct phy_driver rtl8304_driver = {
	.phy_id = RTL8304_PHY_ID,
	.name = "Realtek RTL8304MB",
	.phy_id_mask = 0xffffffff,
	.features = PHY_BASIC_FEATURES,
	.flags = 0,
	.config_init = rtl8304_config_init,
	.probe = rtl8304_probe,
	.config_aneg = rtl8304_config_aneg,
	.read_status = rtl8304_read_status,
	.remove = rtl8304_remove,
};

/* ---- Module ---- */

/* Addresses 0, 3 and 8 are the chip's copper ports and its CPU port. */
static int rtl8304_fixup(struct phy_device *phydev)
{
	if (rtl8304_board_port(phydev->mdio.addr))
		phydev->phy_id = RTL8304_PHY_ID;
	return 0;
}

static int rtl8304_read_model(struct device_node *np, u8 *buf, size_t size, size_t len,
			      int line)
{
	memset(buf, 0, size);
	if (of_property_read_variable_u8_array(np, "platform", buf, len, 0) < 0) {
		pr_err("file:%s, line:%d, get num property failed!\n", RTL8304_FILE, line);
		return -1;
	}
	return 0;
}

/* Board model from the device tree.  Known models are compared by prefix
 * with growing read lengths; an unknown model of six or more bytes counts
 * as supported (code 0).
 */
static int get_platform(void)
{
	static const struct {
		const char *model;
		int code;
		int line;	/* reported when the read of strlen(model) fails */
	} models[] = {
		{ "J410", 4, 1069 },
		{ "K12M3", 0, 1080 },
		{ "K24M3", 1, 1080 },
		{ "K480M3", 2, 1093 },
		{ "K960M3", 3, 1093 },
	};
	struct device_node *np;
	size_t have = 0;
	int code = 0;
	u8 buf[8];
	int i;

	np = of_find_compatible_node(NULL, NULL, "fsl,tw-platform");
	if (!np) {
		pr_err("file:%s, line:%d, get device node failed!\n", RTL8304_FILE, 1061);
		return -1;
	}
	for (i = 0; i < ARRAY_SIZE(models); i++) {
		size_t len = strlen(models[i].model);

		if (len != have) {
			if (rtl8304_read_model(np, buf, sizeof(buf), len, models[i].line)) {
				code = -1;
				break;
			}
			have = len;
		}
		if (!strncmp(buf, models[i].model, len)) {
			code = models[i].code;
			break;
		}
	}
	of_node_put(np);	/* nothing keeps the node */
	return code;
}

/* An unsupported board loads the module idle (status 0): nothing is
 * registered, and unloading it repeats the platform check and its message.
 */
static int __init rtl_init(void)
{
	int ret;

	if (get_platform() != 0) {
		pr_err("...The platform not support rtl8304!\n");
		return 0;
	}

	psmiWrite = rtl8304_smiWrite;
	psmiRead = rtl8304_smiRead;
	rtl8304_fixup_registered = !phy_register_fixup_for_id(PHY_ANY_ID, rtl8304_fixup);

	ret = phy_driver_register(&rtl8304_driver, THIS_MODULE);
	/* The fixup must not outlive the module that holds its code. */
	if (ret && rtl8304_fixup_registered) {
		phy_unregister_fixup_for_id(PHY_ANY_ID);
		rtl8304_fixup_registered = false;
	}
	return ret;
}

static void __exit rtl_exit(void)
{
	if (get_platform() != 0) {
		pr_err("...The platform not support rtl8304!\n");
		return;
	}

	phy_driver_unregister(&rtl8304_driver);
	/* The PHY layer removes the first wildcard fixup of this bus id; no
	 * other driver on this board registers one.
	 */
	if (rtl8304_fixup_registered)
		phy_unregister_fixup_for_id(PHY_ANY_ID);
	rtl8304_fixup_registered = false;
}

module_init(rtl_init);
module_exit(rtl_exit);

MODULE_LICENSE("GPL");
MODULE_DESCRIPTION("Realtek RTL8304MB Driver");
