// SPDX-License-Identifier: GPL-2.0
/*
 * Virtual board for the RTL8304MB driver (test only).
 *
 * The chip model of sim/ answers on a real mii_bus (SMI addresses 0..8), and
 * a stand-in for the i.MX6UL FEC attaches its net_device to the switch's
 * MAC-side port at address 8, so the PHY layer runs the bound driver's
 * config_init and polls its read_status like on the board.  Whatever driver
 * binds address 8 (the rtl8304 driver through its fixup, or the generic PHY
 * driver) is attached the same way.
 *
 * eth0 comes up at load; like the FEC, bringing it down stops the PHY state
 * machine (a quiet bus) and bringing it up starts it again, and it passes
 * the MII ioctls (SIOCGMIIPHY, SIOCGMIIREG, SIOCSMIIREG) to the PHY layer.
 *
 * Controls in /sys/kernel/debug/rtl8304-board/:
 *   link   write "PHY up|down" (PHY 0..7); read: one "phy N up|down" line each
 *   mdio   write "ADDR REG" to read, "ADDR REG VALUE" to write through the bus
 *          (page routing, faults and the log apply); read: "0xNNNN" or
 *          "error -N" of the last bus read
 *   reg    write "SPACE ADDR PAGE REG" to select a register, with " VALUE" to
 *          store into it; read: "0xNNNN" of the selected one.  SPACE is sw or
 *          phy; the model's storage is used directly (no bus traffic, no
 *          side effects, page selection untouched)
 *   vlan   read: the VLAN block decoded (control word, 16 entries, per port
 *          PVID index, the VID it selects and the tag mode)
 *   log    read: the most recent bus transactions, oldest first
 *   stats  read: transaction counts; write "clear" to clear them and the
 *          transaction log
 *   fault  write "busy SPACE ADDR PAGE REG MASK READS|forever", "busy off"
 *          (commands in flight then finish at their next poll),
 *          "read ERRNO COUNT|forever", "read off"; read: what is armed
 *   mib    write "PORT ID VALUE" (32-bit counter) or "bytes PORT ID VALUE"
 */
#include <linux/debugfs.h>
#include <linux/etherdevice.h>
#include <linux/gpio.h>
#include <linux/mm.h>
#include <linux/module.h>
#include <linux/mutex.h>
#include <linux/netdevice.h>
#include <linux/of.h>
#include <linux/of_gpio.h>
#include <linux/phy.h>
#include <linux/platform_device.h>
#include <linux/rtnetlink.h>
#include <linux/seq_file.h>
#include <linux/slab.h>
#include <linux/uaccess.h>
#include <linux/version.h>

#include "rtl8309n_sim.h"

#define BOARD_NAME	"rtl8304-board"
#define CPU_PORT_ADDR	8
#define CMD_MAX		96

struct board {
	struct mutex lock;		/* the model, from bus callbacks and debugfs */
	struct rtl8309n_sim *sim;
	struct sim_loc sel;		/* register selected through "reg" */
	int mdio_result;		/* last read through "mdio" */
	struct mii_bus *bus;
	struct net_device *ndev;
	struct phy_device *phydev;	/* attached CPU-port PHY, NULL if none */
	struct dentry *dir;
};

static struct platform_device *board_pdev;

/* ---- MDIO bus ---- */

static int board_mdio_read(struct mii_bus *bus, int addr, int reg)
{
	struct board *b = bus->priv;
	int ret;

	mutex_lock(&b->lock);
	ret = rtl8309n_sim_mdio_read(b->sim, addr, reg);
	mutex_unlock(&b->lock);
	return ret;
}

static int board_mdio_write(struct mii_bus *bus, int addr, int reg, u16 val)
{
	struct board *b = bus->priv;
	int ret;

	mutex_lock(&b->lock);
	ret = rtl8309n_sim_mdio_write(b->sim, addr, reg, val);
	mutex_unlock(&b->lock);
	return ret;
}

/*
 * On the board the boot loader's pin set-up leaves the LED pins as outputs
 * (dark); the driver only sets their level.  Do the same here.
 */
static void board_preset_leds(struct device *dev)
{
	static const char * const props[] = { "led-gpio1", "led-gpio2" };
	struct device_node *np;
	int i, gpio;

	np = of_find_compatible_node(NULL, NULL, "fsl,imx6ul-fec");
	if (!np)
		return;
	for (i = 0; i < ARRAY_SIZE(props); i++) {
		gpio = of_get_named_gpio(np, props[i], 0);
		if (!gpio_is_valid(gpio))
			continue;
		if (gpio_request_one(gpio, GPIOF_OUT_INIT_HIGH, "board pin set-up")) {
			dev_warn(dev, "cannot preset %s (GPIO %d)\n", props[i], gpio);
			continue;
		}
		gpio_free(gpio);
	}
	of_node_put(np);
}

/* ---- FEC stand-in ---- */

static int board_ndo_open(struct net_device *ndev)
{
	if (ndev->phydev)
		phy_start(ndev->phydev);
	netif_start_queue(ndev);
	return 0;
}

static int board_ndo_stop(struct net_device *ndev)
{
	netif_stop_queue(ndev);
	if (ndev->phydev)
		phy_stop(ndev->phydev);
	return 0;
}

/* No wire behind the MAC: frames are counted and dropped. */
static netdev_tx_t board_ndo_xmit(struct sk_buff *skb, struct net_device *ndev)
{
	ndev->stats.tx_dropped++;
	dev_kfree_skb_any(skb);
	return NETDEV_TX_OK;
}

/*
 * MII ioctls go to the attached PHY as the FEC sends them (fec_enet_ioctl):
 * refused while the interface is down, and the request's phy_id picks the
 * MDIO address, so mii-tool and phytool reach any address of the bus.
 */
static int board_ndo_eth_ioctl(struct net_device *ndev, struct ifreq *rq, int cmd)
{
	if (!netif_running(ndev))
		return -EINVAL;
	if (!ndev->phydev)
		return -ENODEV;
	return phy_mii_ioctl(ndev->phydev, rq, cmd);
}

static const struct net_device_ops board_netdev_ops = {
	.ndo_open = board_ndo_open,
	.ndo_stop = board_ndo_stop,
	.ndo_start_xmit = board_ndo_xmit,
	.ndo_eth_ioctl = board_ndo_eth_ioctl,
};

static void board_adjust_link(struct net_device *ndev)
{
	phy_print_status(ndev->phydev);
}

/* ---- debugfs ---- */

/* The board behind a debugfs file opened by single_open() or simple_open(). */
static struct board *file_board(struct file *file)
{
	return ((struct seq_file *)file->private_data)->private;
}

static struct board *simple_board(struct file *file)
{
	return file->private_data;
}

/* Parse "sw"/"phy" (or 0/1). */
static int parse_space(const char *word, u8 *space)
{
	if (!strcmp(word, "sw") || !strcmp(word, "0"))
		*space = SIM_SPACE_SWITCH;
	else if (!strcmp(word, "phy") || !strcmp(word, "1"))
		*space = SIM_SPACE_PHY;
	else
		return -EINVAL;
	return 0;
}

static const char *space_name(u8 space)
{
	return space == SIM_SPACE_PHY ? "phy" : "sw";
}

/* "forever" or a number of reads. */
static int parse_count(const char *word, u32 *count)
{
	if (!strcmp(word, "forever")) {
		*count = SIM_FOREVER;
		return 0;
	}
	return kstrtou32(word, 0, count);
}

/* Copy a command line from user space and split it into at most @max words. */
static int board_words(const char __user *ubuf, size_t len, char *buf, char **words,
		       int max)
{
	char *p, *w;
	int n = 0;

	if (len == 0 || len >= CMD_MAX)
		return -EINVAL;
	if (copy_from_user(buf, ubuf, len))
		return -EFAULT;
	buf[len] = '\0';
	p = strim(buf);
	while ((w = strsep(&p, " \t\n")) != NULL) {
		if (!*w)
			continue;
		if (n == max)
			return -EINVAL;
		words[n++] = w;
	}
	return n;
}

/*
 * A debugfs command file: split the line into at most @max words and hand
 * them to @run, which returns 0 or an error.  Words beyond @max fail here.
 */
#define BOARD_MAX_WORDS	7

static ssize_t board_cmd(struct board *b, const char __user *ubuf, size_t len, int max,
			 int (*run)(struct board *b, char **w, int n))
{
	char buf[CMD_MAX], *w[BOARD_MAX_WORDS];
	int n, ret;

	n = board_words(ubuf, len, buf, w, max);
	if (n < 0)
		return n;
	ret = run(b, w, n);
	return ret < 0 ? ret : len;
}

#define BOARD_CMD_WRITE(name, max_words, board_of)					\
static ssize_t name##_write(struct file *file, const char __user *ubuf, size_t len,	\
			    loff_t *ppos)						\
{											\
	BUILD_BUG_ON((max_words) > BOARD_MAX_WORDS);					\
	return board_cmd(board_of(file), ubuf, len, max_words, name##_cmd);		\
}

static int link_show(struct seq_file *m, void *v)
{
	struct board *b = m->private;
	int i;

	mutex_lock(&b->lock);
	for (i = 0; i < SIM_NUM_PHY; i++)
		seq_printf(m, "phy %d %s\n", i, b->sim->link_up[i] ? "up" : "down");
	mutex_unlock(&b->lock);
	return 0;
}

static int link_cmd(struct board *b, char **w, int n)
{
	u32 phy;
	int up;

	if (n != 2 || kstrtou32(w[0], 0, &phy) || phy >= SIM_NUM_PHY)
		return -EINVAL;
	if (!strcmp(w[1], "up") || !strcmp(w[1], "1"))
		up = 1;
	else if (!strcmp(w[1], "down") || !strcmp(w[1], "0"))
		up = 0;
	else
		return -EINVAL;
	mutex_lock(&b->lock);
	rtl8309n_sim_set_link(b->sim, phy, up);
	mutex_unlock(&b->lock);
	return 0;
}
BOARD_CMD_WRITE(link, 2, file_board)

static int mdio_show(struct seq_file *m, void *v)
{
	struct board *b = m->private;
	int ret;

	mutex_lock(&b->lock);
	ret = b->mdio_result;
	mutex_unlock(&b->lock);
	if (ret < 0)
		seq_printf(m, "error %d\n", ret);
	else
		seq_printf(m, "0x%04x\n", ret);
	return 0;
}

static int mdio_cmd(struct board *b, char **w, int n)
{
	u32 addr, reg;
	u16 val;
	int ret;

	if (n < 2 || kstrtou32(w[0], 0, &addr) || kstrtou32(w[1], 0, &reg) ||
	    addr >= PHY_MAX_ADDR || reg > 31 || (n == 3 && kstrtou16(w[2], 0, &val)))
		return -EINVAL;
	if (n == 3)
		return mdiobus_write(b->bus, addr, reg, val);
	ret = mdiobus_read(b->bus, addr, reg);
	mutex_lock(&b->lock);
	b->mdio_result = ret;
	mutex_unlock(&b->lock);
	return 0;
}
BOARD_CMD_WRITE(mdio, 3, file_board)

static int reg_show(struct seq_file *m, void *v)
{
	struct board *b = m->private;
	u16 val;

	mutex_lock(&b->lock);
	val = rtl8309n_sim_peek(b->sim, b->sel.space, b->sel.addr, b->sel.page, b->sel.reg);
	mutex_unlock(&b->lock);
	seq_printf(m, "0x%04x\n", val);
	return 0;
}

static int reg_cmd(struct board *b, char **w, int n)
{
	struct sim_loc loc;
	u32 addr, page, reg;
	u16 val;

	if (n < 4 || parse_space(w[0], &loc.space) || kstrtou32(w[1], 0, &addr) ||
	    kstrtou32(w[2], 0, &page) || kstrtou32(w[3], 0, &reg) ||
	    (n == 5 && kstrtou16(w[4], 0, &val)))
		return -EINVAL;
	mutex_lock(&b->lock);
	if (!rtl8309n_sim_reg(b->sim, loc.space, addr, page, reg)) {
		mutex_unlock(&b->lock);
		return -ERANGE;
	}
	loc.addr = addr;
	loc.page = page;
	loc.reg = reg;
	b->sel = loc;
	if (n == 5)
		rtl8309n_sim_poke(b->sim, loc.space, addr, page, reg, val);
	mutex_unlock(&b->lock);
	return 0;
}
BOARD_CMD_WRITE(reg, 5, file_board)

/*
 * VLAN block: entries at (1|2|3, 16 + i, 16), control (0, 16, 16),
 * per-port VLAN register (0, 17 + p, 16), tag register (p, 16, 6).
 */
static int vlan_show(struct seq_file *m, void *v)
{
	struct board *b = m->private;
	struct rtl8309n_sim *s = b->sim;
	u16 ctrl, vid[16], fid[16], mbr[16], untag[16], pvlan, tag;
	int i;

	mutex_lock(&b->lock);
	ctrl = rtl8309n_sim_peek(s, SIM_SPACE_SWITCH, 0, 16, 16);
	for (i = 0; i < 16; i++) {
		u16 w = rtl8309n_sim_peek(s, SIM_SPACE_SWITCH, 1, 16, 16 + i);

		vid[i] = w & 0xfff;
		fid[i] = (w >> 12) & 0x3;
		mbr[i] = rtl8309n_sim_peek(s, SIM_SPACE_SWITCH, 2, 16, 16 + i) & 0x1ff;
		untag[i] = rtl8309n_sim_peek(s, SIM_SPACE_SWITCH, 3, 16, 16 + i) & 0x1ff;
	}
	seq_printf(m, "control 0x%04x enable %d ingress_filter %d\n", ctrl, ctrl & 1,
		   !(ctrl & 2));
	for (i = 0; i < 16; i++)
		seq_printf(m, "entry %2d vid %4u fid %u member 0x%03x untag 0x%03x\n",
			   i, vid[i], fid[i], mbr[i], untag[i]);
	for (i = 0; i < SIM_NUM_ADDR; i++) {
		pvlan = rtl8309n_sim_peek(s, SIM_SPACE_SWITCH, 0, 16, 17 + i);
		tag = rtl8309n_sim_peek(s, SIM_SPACE_SWITCH, i, 6, 16);
		seq_printf(m, "port %d pvid_index %2u pvid %4u accept %u tag_aware %u tag_mode %u\n",
			   i, (pvlan >> 4) & 0xf, vid[(pvlan >> 4) & 0xf], pvlan & 3,
			   (pvlan >> 2) & 1, (tag >> 1) & 3);
	}
	mutex_unlock(&b->lock);
	return 0;
}

static int stats_show(struct seq_file *m, void *v)
{
	struct board *b = m->private;

	mutex_lock(&b->lock);
	seq_printf(m, "reads %u\nwrites %u\nbad_page_accesses %u\nlogged %u\n",
		   b->sim->reads, b->sim->writes, b->sim->bad_page_accesses,
		   rtl8309n_sim_log_count(b->sim));
	mutex_unlock(&b->lock);
	return 0;
}

static int stats_cmd(struct board *b, char **w, int n)
{
	if (n != 1 || strcmp(w[0], "clear"))
		return -EINVAL;
	mutex_lock(&b->lock);
	rtl8309n_sim_log_clear(b->sim);
	b->sim->bad_page_accesses = 0;
	mutex_unlock(&b->lock);
	return 0;
}
BOARD_CMD_WRITE(stats, 1, file_board)

static int log_show(struct seq_file *m, void *v)
{
	struct board *b = m->private;
	const struct sim_txn *t;
	u32 i, total;

	mutex_lock(&b->lock);
	total = rtl8309n_sim_log_count(b->sim);
	for (i = total > SIM_LOG_SIZE ? total - SIM_LOG_SIZE : 0; i < total; i++) {
		t = rtl8309n_sim_log_at(b->sim, i);
		seq_printf(m, "%c addr %u reg %2u", t->write ? 'W' : 'R', t->addr, t->reg);
		if (t->space == 0xff)
			seq_puts(m, " unrouted");
		else
			seq_printf(m, " %s page %u", space_name(t->space), t->page);
		if (t->value < 0)
			seq_printf(m, " error %d\n", t->value);
		else
			seq_printf(m, " value 0x%04x\n", t->value);
	}
	mutex_unlock(&b->lock);
	return 0;
}

static void show_count(struct seq_file *m, u32 count)
{
	if (count == SIM_FOREVER)
		seq_puts(m, "forever\n");
	else
		seq_printf(m, "%u\n", count);
}

static int fault_show(struct seq_file *m, void *v)
{
	struct board *b = m->private;
	struct rtl8309n_sim *s = b->sim;

	mutex_lock(&b->lock);
	if (s->busy_fault.armed) {
		seq_printf(m, "busy %s %u %u %u 0x%04x ", space_name(s->busy_fault.loc.space),
			   s->busy_fault.loc.addr, s->busy_fault.loc.page, s->busy_fault.loc.reg,
			   s->busy_fault.mask);
		show_count(m, s->busy_fault.reads);
	} else {
		seq_puts(m, "busy off\n");
	}
	if (s->read_errors_left) {
		seq_printf(m, "read %d ", s->read_error);
		show_count(m, s->read_errors_left);
	} else {
		seq_puts(m, "read off\n");
	}
	mutex_unlock(&b->lock);
	return 0;
}

static int fault_cmd(struct board *b, char **w, int n)
{
	u32 addr, page, reg, count;
	u16 mask;
	s32 err;
	u8 space;
	int ret = 0;

	mutex_lock(&b->lock);
	if (n == 2 && !strcmp(w[0], "busy") && !strcmp(w[1], "off")) {
		rtl8309n_sim_fault_busy(b->sim, SIM_SPACE_SWITCH, 0, 0, 0, 0, 0);
			} else if (n == 7 && !strcmp(w[0], "busy") && !parse_space(w[1], &space) &&
		   !kstrtou32(w[2], 0, &addr) && !kstrtou32(w[3], 0, &page) &&
		   !kstrtou32(w[4], 0, &reg) && !kstrtou16(w[5], 0, &mask) &&
		   !parse_count(w[6], &count)) {
		rtl8309n_sim_fault_busy(b->sim, space, addr, page, reg, mask, count);
	} else if (n == 2 && !strcmp(w[0], "read") && !strcmp(w[1], "off")) {
		rtl8309n_sim_fault_read(b->sim, 0, 0);
	} else if (n == 3 && !strcmp(w[0], "read") && !kstrtos32(w[1], 0, &err) && err < 0 &&
		   !parse_count(w[2], &count)) {
		rtl8309n_sim_fault_read(b->sim, err, count);
	} else {
		ret = -EINVAL;
	}
	mutex_unlock(&b->lock);
	return ret;
}
BOARD_CMD_WRITE(fault, 7, file_board)

static int mib_cmd(struct board *b, char **w, int n)
{
	u32 port, id;
	u64 val;
	int bytes;

	bytes = n == 4 && !strcmp(w[0], "bytes");
	if (n != 3 + bytes || kstrtou32(w[bytes], 0, &port) ||
	    kstrtou32(w[bytes + 1], 0, &id) || kstrtou64(w[bytes + 2], 0, &val) ||
	    port >= SIM_NUM_ADDR || id + bytes >= SIM_MIB_IDS || (!bytes && val > U32_MAX))
		return -EINVAL;
	mutex_lock(&b->lock);
	if (bytes)
		rtl8309n_sim_mib_set_bytes(b->sim, port, id, val);
	else
		rtl8309n_sim_mib_set(b->sim, port, id, val);
	mutex_unlock(&b->lock);
	return 0;
}
BOARD_CMD_WRITE(mib, 4, simple_board)

#define BOARD_SEQ_FOPS(name, writer)						\
static int name##_open(struct inode *inode, struct file *file)			\
{										\
	return single_open(file, name##_show, inode->i_private);		\
}										\
static const struct file_operations name##_fops = {				\
	.owner = THIS_MODULE,							\
	.open = name##_open,							\
	.read = seq_read,							\
	.llseek = seq_lseek,							\
	.release = single_release,						\
	.write = writer,							\
}

BOARD_SEQ_FOPS(link, link_write);
BOARD_SEQ_FOPS(mdio, mdio_write);
BOARD_SEQ_FOPS(reg, reg_write);
BOARD_SEQ_FOPS(vlan, NULL);
BOARD_SEQ_FOPS(stats, stats_write);
BOARD_SEQ_FOPS(log, NULL);
BOARD_SEQ_FOPS(fault, fault_write);

static const struct file_operations mib_fops = {
	.owner = THIS_MODULE,
	.open = simple_open,
	.write = mib_write,
};

static void board_debugfs_init(struct board *b)
{
	b->dir = debugfs_create_dir(BOARD_NAME, NULL);
	debugfs_create_file("link", 0644, b->dir, b, &link_fops);
	debugfs_create_file("mdio", 0644, b->dir, b, &mdio_fops);
	debugfs_create_file("reg", 0644, b->dir, b, &reg_fops);
	debugfs_create_file("vlan", 0444, b->dir, b, &vlan_fops);
	debugfs_create_file("stats", 0644, b->dir, b, &stats_fops);
	debugfs_create_file("log", 0444, b->dir, b, &log_fops);
	debugfs_create_file("fault", 0644, b->dir, b, &fault_fops);
	debugfs_create_file("mib", 0200, b->dir, b, &mib_fops);
}

/* ---- Platform driver ---- */

/*
 * Attach the MAC to the switch's MAC-side port.  A driver whose config_init
 * fails leaves the board without a MAC but with its bus, so that tests can
 * still look at the chip and the log.
 */
static void board_attach_mac(struct platform_device *pdev, struct board *b)
{
	struct phy_device *phydev = mdiobus_get_phy(b->bus, CPU_PORT_ADDR);
	int ret;

	if (!phydev) {
		dev_err(&pdev->dev, "no PHY at address %d\n", CPU_PORT_ADDR);
		return;
	}
	ret = phy_connect_direct(b->ndev, phydev, board_adjust_link, PHY_INTERFACE_MODE_MII);
	if (ret) {
		dev_err(&pdev->dev, "phy_connect_direct to address %d failed: %d\n",
			CPU_PORT_ADDR, ret);
		return;
	}
	b->phydev = phydev;
	dev_info(&pdev->dev, "%s attached to %s (%s)\n", netdev_name(b->ndev),
		 phydev_name(phydev), phydev->drv ? phydev->drv->name : "no driver");
}

static int board_probe(struct platform_device *pdev)
{
	struct board *b;
	int ret;

	b = devm_kzalloc(&pdev->dev, sizeof(*b), GFP_KERNEL);
	if (!b)
		return -ENOMEM;
	b->sim = kvzalloc(sizeof(*b->sim), GFP_KERNEL);
	if (!b->sim)
		return -ENOMEM;
	mutex_init(&b->lock);
	rtl8309n_sim_init(b->sim);
	b->sel.space = SIM_SPACE_PHY;

	board_preset_leds(&pdev->dev);

	ret = -ENOMEM;
	b->bus = mdiobus_alloc();
	if (!b->bus)
		goto err_sim;
	b->bus->name = BOARD_NAME;
	snprintf(b->bus->id, MII_BUS_ID_SIZE, "%s", BOARD_NAME);
	b->bus->read = board_mdio_read;
	b->bus->write = board_mdio_write;
	b->bus->priv = b;
	b->bus->parent = &pdev->dev;
	b->bus->phy_mask = ~0x1ffu;	/* the chip answers at SMI addresses 0..8 */

	b->ndev = alloc_etherdev(0);
	if (!b->ndev)
		goto err_bus_free;
	SET_NETDEV_DEV(b->ndev, &pdev->dev);
	b->ndev->netdev_ops = &board_netdev_ops;
	eth_hw_addr_random(b->ndev);
	ret = register_netdev(b->ndev);
	if (ret)
		goto err_ndev_free;

	/* The scan binds PHY drivers: the rtl8304 probe runs from here. */
	ret = mdiobus_register(b->bus);
	if (ret)
		goto err_ndev_unreg;

	board_attach_mac(pdev, b);
	rtnl_lock();
	ret = dev_open(b->ndev, NULL);	/* starts the PHY state machine */
	rtnl_unlock();
	if (ret)
		dev_warn(&pdev->dev, "cannot bring %s up: %d\n", netdev_name(b->ndev), ret);
	board_debugfs_init(b);
	platform_set_drvdata(pdev, b);
	return 0;

err_ndev_unreg:
	unregister_netdev(b->ndev);
err_ndev_free:
	free_netdev(b->ndev);
err_bus_free:
	mdiobus_free(b->bus);
err_sim:
	kvfree(b->sim);
	return ret;
}

static void board_teardown(struct platform_device *pdev)
{
	struct board *b = platform_get_drvdata(pdev);

	debugfs_remove_recursive(b->dir);
	/* Before the net_device goes: detaching removes sysfs links under it. */
	if (b->phydev)
		phy_disconnect(b->phydev);
	unregister_netdev(b->ndev);
	mdiobus_unregister(b->bus);
	mdiobus_free(b->bus);
	free_netdev(b->ndev);
	kvfree(b->sim);
}

/* Linux 6.11 made the platform driver's remove callback return void. */
#if LINUX_VERSION_CODE >= KERNEL_VERSION(6, 11, 0)
static void board_remove(struct platform_device *pdev)
{
	board_teardown(pdev);
}
#else
static int board_remove(struct platform_device *pdev)
{
	board_teardown(pdev);
	return 0;
}
#endif

static struct platform_driver board_driver = {
	.probe = board_probe,
	.remove = board_remove,
	.driver = {
		.name = BOARD_NAME,
	},
};

static int __init board_init(void)
{
	int ret;

	ret = platform_driver_register(&board_driver);
	if (ret)
		return ret;
	board_pdev = platform_device_register_simple(BOARD_NAME, PLATFORM_DEVID_NONE, NULL, 0);
	if (IS_ERR(board_pdev)) {
		platform_driver_unregister(&board_driver);
		return PTR_ERR(board_pdev);
	}
	/* A board that failed to come up is reported by a failing load. */
	if (!platform_get_drvdata(board_pdev)) {
		platform_device_unregister(board_pdev);
		platform_driver_unregister(&board_driver);
		return -ENODEV;
	}
	return 0;
}

static void __exit board_exit(void)
{
	platform_device_unregister(board_pdev);
	platform_driver_unregister(&board_driver);
}

module_init(board_init);
module_exit(board_exit);

MODULE_LICENSE("GPL");
MODULE_DESCRIPTION("Virtual RTL8304MB board: chip model on an MDIO bus, FEC stand-in");
