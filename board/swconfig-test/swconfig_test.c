// SPDX-License-Identifier: GPL-2.0
/*
 * Stand-in for the switch-configuration framework on the virtual board
 * (test only): register_switch()/unregister_switch() and a command file that
 * takes the words of a swconfig command line in place of the netlink
 * interface and the swconfig tool.
 *
 *   echo 'dev RTL8304MB vlan 2 set ports "0 1t"' >/sys/kernel/debug/swconfig-test/cmd
 *   cat /sys/kernel/debug/swconfig-test/cmd
 *
 * Commands: "list", and "dev NAME [port N | vlan N] get KEY | set KEY [VALUE] |
 * help" with NAME the device name (switch0) or its alias.  Reading the file
 * gives the last command's answer as the swconfig tool prints it, or
 * "error -N" for a failure, which the write also returns.  Commands and
 * errors go to the kernel log too.
 *
 * Like the framework: the attributes "apply" and "reset" (global), "pvid"
 * and "link" (port) and "ports" (VLAN) exist where the driver has the
 * operation behind them; port and VLAN numbers are checked against the
 * device's counts; setting VLAN ports first sets the PVID of every untagged
 * member to the VLAN index; operations run under the device's sw_mutex.
 */
#include <linux/ctype.h>
#include <linux/debugfs.h>
#include <linux/kernel.h>
#include <linux/list.h>
#include <linux/module.h>
#include <linux/mutex.h>
#include <linux/slab.h>
#include <linux/string.h>
#include <linux/switch.h>
#include <linux/uaccess.h>

#define CMD_MAX		256
#define ANSWER_MAX	4096
#define MAX_WORDS	12
#define SWT_DEVNAME	"switch%d"

static LIST_HEAD(swt_devs);
static DEFINE_MUTEX(swt_list_lock);	/* swt_devs, swt_busy; never held across an op */
static DECLARE_WAIT_QUEUE_HEAD(swt_idle);
static int swt_busy;			/* a command is using a device */

static DEFINE_MUTEX(swt_cmd_lock);	/* one command at a time, and the answer */
static char swt_answer[ANSWER_MAX];
static size_t swt_answer_len;
static struct dentry *swt_dir;

/* ---- Registration ---- */

static bool swt_registered(struct switch_dev *dev)
{
	struct switch_dev *sw;

	list_for_each_entry(sw, &swt_devs, dev_list)
		if (sw == dev)
			return true;
	return false;
}

int register_switch(struct switch_dev *dev, struct net_device *netdev)
{
	struct switch_dev *sw;
	unsigned long in_use = 0;
	bool twice;
	int i;

	/* A second registration would corrupt the framework's list. */
	mutex_lock(&swt_list_lock);
	twice = swt_registered(dev);
	mutex_unlock(&swt_list_lock);
	if (twice) {
		pr_err("swconfig-test: %s registered twice\n", dev->devname);
		return -EBUSY;
	}
	if (!dev->ops || !dev->name)
		return -EINVAL;
	if (netdev) {
		dev->netdev = netdev;
		if (!dev->alias)
			dev->alias = netdev->name;
	}
	if (!dev->alias)
		return -EINVAL;
	dev->portbuf = NULL;
	if (dev->ports) {
		dev->portbuf = kcalloc(dev->ports, sizeof(*dev->portbuf), GFP_KERNEL);
		if (!dev->portbuf)
			return -ENOMEM;
	}
	mutex_init(&dev->sw_mutex);

	mutex_lock(&swt_list_lock);
	list_for_each_entry(sw, &swt_devs, dev_list)
		if (sscanf(sw->devname, SWT_DEVNAME, &i) == 1 && i < BITS_PER_LONG)
			set_bit(i, &in_use);
	i = find_first_zero_bit(&in_use, BITS_PER_LONG);
	snprintf(dev->devname, IFNAMSIZ, SWT_DEVNAME, i);
	list_add_tail(&dev->dev_list, &swt_devs);
	mutex_unlock(&swt_list_lock);
	pr_info("swconfig-test: registered %s: %s(%s), ports %u, vlans %u, cpu port %u\n",
		dev->devname, dev->alias, dev->name, dev->ports, dev->vlans, dev->cpu_port);
	return 0;
}
EXPORT_SYMBOL(register_switch);

void unregister_switch(struct switch_dev *dev)
{
	bool found;

	mutex_lock(&swt_list_lock);
	found = swt_registered(dev);
	mutex_unlock(&swt_list_lock);
	if (!found) {
		pr_err("swconfig-test: unregister of a switch not registered\n");
		return;
	}
	mutex_lock(&dev->sw_mutex);
	mutex_lock(&swt_list_lock);
	list_del(&dev->dev_list);
	mutex_unlock(&swt_list_lock);
	mutex_unlock(&dev->sw_mutex);
	/* No command may still hold the device when its owner frees it. */
	wait_event(swt_idle, !READ_ONCE(swt_busy));
	kfree(dev->portbuf);
	dev->portbuf = NULL;
	pr_info("swconfig-test: unregistered %s\n", dev->devname);
}
EXPORT_SYMBOL(unregister_switch);

/* Find a device by name or alias and mark the command as using it. */
static struct switch_dev *swt_get_dev(const char *name)
{
	struct switch_dev *sw, *dev = NULL;

	mutex_lock(&swt_list_lock);
	list_for_each_entry(sw, &swt_devs, dev_list) {
		if (!strcmp(sw->devname, name) || (sw->alias && !strcmp(sw->alias, name))) {
			dev = sw;
			swt_busy = 1;
			break;
		}
	}
	mutex_unlock(&swt_list_lock);
	return dev;
}

static void swt_put_dev(void)
{
	mutex_lock(&swt_list_lock);
	swt_busy = 0;
	mutex_unlock(&swt_list_lock);
	wake_up(&swt_idle);
}

/* ---- The framework's own attributes ---- */

static int swt_apply(struct switch_dev *dev, const struct switch_attr *attr,
		     struct switch_val *val)
{
	return dev->ops->apply_config ? dev->ops->apply_config(dev) : -EOPNOTSUPP;
}

static int swt_reset(struct switch_dev *dev, const struct switch_attr *attr,
		     struct switch_val *val)
{
	return dev->ops->reset_switch ? dev->ops->reset_switch(dev) : -EOPNOTSUPP;
}

static int swt_get_pvid(struct switch_dev *dev, const struct switch_attr *attr,
			struct switch_val *val)
{
	int pvid = 0, ret;

	if (!dev->ops->get_port_pvid)
		return -EOPNOTSUPP;
	ret = dev->ops->get_port_pvid(dev, val->port_vlan, &pvid);
	val->value.i = pvid;
	return ret;
}

static int swt_set_pvid(struct switch_dev *dev, const struct switch_attr *attr,
			struct switch_val *val)
{
	if (!dev->ops->set_port_pvid)
		return -EOPNOTSUPP;
	return dev->ops->set_port_pvid(dev, val->port_vlan, val->value.i);
}

static int swt_get_link(struct switch_dev *dev, const struct switch_attr *attr,
			struct switch_val *val)
{
	if (!dev->ops->get_port_link)
		return -EOPNOTSUPP;
	return dev->ops->get_port_link(dev, val->port_vlan, val->value.link);
}

static int swt_set_link(struct switch_dev *dev, const struct switch_attr *attr,
			struct switch_val *val)
{
	if (!dev->ops->set_port_link)
		return -EOPNOTSUPP;
	return dev->ops->set_port_link(dev, val->port_vlan, val->value.link);
}

static int swt_get_ports(struct switch_dev *dev, const struct switch_attr *attr,
			 struct switch_val *val)
{
	if (!dev->ops->get_vlan_ports)
		return -EOPNOTSUPP;
	return dev->ops->get_vlan_ports(dev, val);
}

static int swt_set_ports(struct switch_dev *dev, const struct switch_attr *attr,
			 struct switch_val *val)
{
	struct switch_port *ports = val->value.ports;
	int i;

	if (!dev->ops->set_vlan_ports)
		return -EOPNOTSUPP;
	for (i = 0; i < val->len; i++) {
		if (ports[i].id >= dev->ports)
			return -EINVAL;
		if (dev->ops->set_port_pvid &&
		    !(ports[i].flags & BIT(SWITCH_PORT_FLAG_TAGGED)))
			dev->ops->set_port_pvid(dev, ports[i].id, val->port_vlan);
	}
	return dev->ops->set_vlan_ports(dev, val);
}

static const struct switch_attr swt_global_attrs[] = {
	{ .type = SWITCH_TYPE_NOVAL, .name = "apply",
	  .description = "Activate changes in the hardware", .set = swt_apply },
	{ .type = SWITCH_TYPE_NOVAL, .name = "reset",
	  .description = "Reset the switch", .set = swt_reset },
};

static const struct switch_attr swt_port_attrs[] = {
	{ .type = SWITCH_TYPE_INT, .name = "pvid", .description = "Primary VLAN ID",
	  .set = swt_set_pvid, .get = swt_get_pvid },
	{ .type = SWITCH_TYPE_LINK, .name = "link", .description = "Get port link information",
	  .set = swt_set_link, .get = swt_get_link },
};

static const struct switch_attr swt_vlan_attrs[] = {
	{ .type = SWITCH_TYPE_PORTS, .name = "ports", .description = "VLAN port mapping",
	  .set = swt_set_ports, .get = swt_get_ports },
};

enum swt_scope { SCOPE_GLOBAL, SCOPE_PORT, SCOPE_VLAN };

/* Does the device have the operation behind a framework attribute? */
static bool swt_default_present(struct switch_dev *dev, const struct switch_attr *a)
{
	const struct switch_dev_ops *ops = dev->ops;

	if (a->set == swt_set_pvid)
		return ops->get_port_pvid || ops->set_port_pvid;
	if (a->set == swt_set_link)
		return !!ops->get_port_link;
	if (a->set == swt_set_ports)
		return ops->get_vlan_ports || ops->set_vlan_ports;
	return true;
}

static void swt_lists(struct switch_dev *dev, enum swt_scope scope,
		      const struct switch_attr **defs, int *n_defs,
		      const struct switch_attrlist **list)
{
	static const struct { const struct switch_attr *a; int n; } d[] = {
		[SCOPE_GLOBAL] = { swt_global_attrs, ARRAY_SIZE(swt_global_attrs) },
		[SCOPE_PORT] = { swt_port_attrs, ARRAY_SIZE(swt_port_attrs) },
		[SCOPE_VLAN] = { swt_vlan_attrs, ARRAY_SIZE(swt_vlan_attrs) },
	};

	*defs = d[scope].a;
	*n_defs = d[scope].n;
	*list = scope == SCOPE_GLOBAL ? &dev->ops->attr_global :
		scope == SCOPE_PORT ? &dev->ops->attr_port : &dev->ops->attr_vlan;
}

static const struct switch_attr *swt_find_attr(struct switch_dev *dev, enum swt_scope scope,
					       const char *name)
{
	const struct switch_attrlist *list;
	const struct switch_attr *defs;
	int i, n_defs;

	swt_lists(dev, scope, &defs, &n_defs, &list);
	for (i = 0; i < n_defs; i++)
		if (!strcmp(defs[i].name, name) && swt_default_present(dev, &defs[i]))
			return &defs[i];
	for (i = 0; i < list->n_attr; i++)
		if (!list->attr[i].disabled && !strcmp(list->attr[i].name, name))
			return &list->attr[i];
	return NULL;
}

/* ---- Answers ---- */

static __printf(1, 2) void swt_out(const char *fmt, ...)
{
	va_list args;

	va_start(args, fmt);
	swt_answer_len += vscnprintf(swt_answer + swt_answer_len,
				     ANSWER_MAX - swt_answer_len, fmt, args);
	va_end(args);
}

static const char *swt_speed_str(int speed)
{
	switch (speed) {
	case 10:
		return "10baseT";
	case 100:
		return "100baseT";
	case 1000:
		return "1000baseT";
	default:
		return "unknown";
	}
}

static const char *swt_type_str(int type)
{
	static const char * const names[] = {
		[SWITCH_TYPE_UNSPEC] = "unknown", [SWITCH_TYPE_INT] = "int",
		[SWITCH_TYPE_STRING] = "string", [SWITCH_TYPE_PORTS] = "ports",
		[SWITCH_TYPE_LINK] = "link", [SWITCH_TYPE_NOVAL] = "none",
	};

	return type >= 0 && type < ARRAY_SIZE(names) ? names[type] : "unknown";
}

static void swt_print_val(const struct switch_attr *attr, const struct switch_val *val)
{
	const struct switch_port_link *link = val->value.link;
	int i;

	switch (attr->type) {
	case SWITCH_TYPE_INT:
		/*
		 * An integer attribute whose handler answers through the string
		 * member: the framework would pass on the low 32 bits of the
		 * pointer; the text is more use to a test.
		 */
		if (upper_32_bits((unsigned long)val->value.s))
			swt_out("%s", val->value.s);
		else
			swt_out("%d", val->value.i);
		break;
	case SWITCH_TYPE_STRING:
		swt_out("%s", val->value.s ? val->value.s : "");
		break;
	case SWITCH_TYPE_PORTS:
		for (i = 0; i < val->len; i++)
			swt_out("%u%s ", val->value.ports[i].id,
				val->value.ports[i].flags & BIT(SWITCH_PORT_FLAG_TAGGED) ? "t" : "");
		break;
	case SWITCH_TYPE_LINK:
		if (link->link)
			swt_out("port:%d link:up speed:%s %s-duplex %s%s%s",
				val->port_vlan, swt_speed_str(link->speed),
				link->duplex ? "full" : "half", link->tx_flow ? "txflow " : "",
				link->rx_flow ? "rxflow " : "", link->aneg ? "auto" : "");
		else
			swt_out("port:%d link:down", val->port_vlan);
		break;
	default:
		swt_out("?unknown-type?");
	}
	swt_out("\n");
}

static void swt_help(struct switch_dev *dev)
{
	static const char * const titles[] = { "switch", "vlan", "port" };
	static const enum swt_scope order[] = { SCOPE_GLOBAL, SCOPE_VLAN, SCOPE_PORT };
	const struct switch_attrlist *list;
	const struct switch_attr *defs, *a;
	int i, s, n_defs, id;

	swt_out("%s: %s(%s), ports: %u (cpu @ %u), vlans: %u\n", dev->devname, dev->alias,
		dev->name, dev->ports, dev->cpu_port, dev->vlans);
	for (s = 0; s < ARRAY_SIZE(order); s++) {
		swt_lists(dev, order[s], &defs, &n_defs, &list);
		swt_out("     --%s\n", titles[s]);
		id = 0;
		for (i = 0; i < n_defs + list->n_attr; i++) {
			a = i < n_defs ? &defs[i] : &list->attr[i - n_defs];
			if (i < n_defs ? !swt_default_present(dev, a) : a->disabled)
				continue;
			swt_out("\tAttribute %d (%s): %s (%s)\n", ++id, swt_type_str(a->type),
				a->name, a->description);
		}
	}
}

/* ---- Parsing values ---- */

/* "0 1t 3": port ids with an optional t for tagged members. */
static int swt_parse_ports(struct switch_dev *dev, char *str, struct switch_val *val)
{
	struct switch_port *ports = dev->portbuf;
	char *w;

	val->len = 0;
	while ((w = strsep(&str, " ")) != NULL) {
		size_t n = strlen(w);
		bool tagged = n && w[n - 1] == 't';

		if (!n)
			continue;
		if (tagged)
			w[n - 1] = '\0';
		if (val->len >= dev->ports || kstrtou32(w, 10, &ports[val->len].id))
			return -EINVAL;
		ports[val->len].flags = tagged ? BIT(SWITCH_PORT_FLAG_TAGGED) : 0;
		val->len++;
	}
	val->value.ports = ports;
	return 0;
}

/* "speed 100 duplex full autoneg off", in any order, any subset. */
static int swt_parse_link(char *str, struct switch_port_link *link)
{
	char *key, *arg;
	int speed;

	while ((key = strsep(&str, " ")) != NULL) {
		if (!*key)
			continue;
		arg = strsep(&str, " ");
		if (!arg)
			return -EINVAL;
		if (!strcmp(key, "speed") && !kstrtoint(arg, 10, &speed))
			link->speed = speed;
		else if (!strcmp(key, "duplex") && (!strcmp(arg, "full") || !strcmp(arg, "half")))
			link->duplex = !strcmp(arg, "full");
		else if (!strcmp(key, "autoneg") && (!strcmp(arg, "on") || !strcmp(arg, "off")))
			link->aneg = !strcmp(arg, "on");
		else
			return -EINVAL;
	}
	return 0;
}

/* ---- Commands ---- */

/* Split into words; "..." and '...' group words. */
static int swt_split(char *line, char **words)
{
	int n = 0;
	char *p = line;

	for (;;) {
		char quote = 0;

		p = skip_spaces(p);
		if (!*p)
			return n;
		if (n == MAX_WORDS)
			return -EINVAL;
		if (*p == '"' || *p == '\'')
			quote = *p++;
		words[n++] = p;
		while (*p && (quote ? *p != quote : !isspace(*p)))
			p++;
		if (quote && !*p)
			return -EINVAL;
		if (*p)
			*p++ = '\0';
	}
}

static int swt_attr_cmd(struct switch_dev *dev, enum swt_scope scope, unsigned int index,
			char **w, int n)
{
	const struct switch_attr *attr;
	struct switch_val val = { .port_vlan = index };
	char value[CMD_MAX] = "";
	bool set;
	int i, ret;

	if (n < 2 || (strcmp(w[0], "get") && strcmp(w[0], "set")))
		return -EINVAL;
	set = !strcmp(w[0], "set");
	if (!set && n != 2)
		return -EINVAL;
	attr = swt_find_attr(dev, scope, w[1]);
	if (!attr)
		return -EINVAL;
	val.attr = attr;
	/* A value may come as one quoted word or as the remaining words. */
	for (i = 2; i < n; i++) {
		if (i > 2)
			strlcat(value, " ", sizeof(value));
		strlcat(value, w[i], sizeof(value));
	}

	if (!set) {
		if (!attr->get)
			return -EOPNOTSUPP;
		if (attr->type == SWITCH_TYPE_PORTS)
			val.value.ports = dev->portbuf;
		memset(&dev->linkbuf, 0, sizeof(dev->linkbuf));
		if (attr->type == SWITCH_TYPE_LINK)
			val.value.link = &dev->linkbuf;
		ret = attr->get(dev, attr, &val);
		if (!ret)
			swt_print_val(attr, &val);
		return ret;
	}

	if (!attr->set)
		return -EOPNOTSUPP;
	if (attr->type != SWITCH_TYPE_NOVAL && n < 3)
		return -EINVAL;
	switch (attr->type) {
	case SWITCH_TYPE_INT:
		ret = kstrtos32(value, 0, (s32 *)&val.value.i);
		break;
	case SWITCH_TYPE_STRING:
		val.value.s = value;
		ret = 0;
		break;
	case SWITCH_TYPE_PORTS:
		ret = swt_parse_ports(dev, value, &val);
		break;
	case SWITCH_TYPE_LINK:
		memset(&dev->linkbuf, 0, sizeof(dev->linkbuf));
		val.value.link = &dev->linkbuf;
		ret = swt_parse_link(value, &dev->linkbuf);
		break;
	default:
		ret = 0;
	}
	return ret ? ret : attr->set(dev, attr, &val);
}

static int swt_dev_cmd(char **w, int n)
{
	enum swt_scope scope = SCOPE_GLOBAL;
	struct switch_dev *dev;
	unsigned int index = 0;
	int ret;

	dev = swt_get_dev(w[0]);
	if (!dev)
		return -ENODEV;
	mutex_lock(&dev->sw_mutex);
	w++;
	n--;
	ret = -ENODEV;
	mutex_lock(&swt_list_lock);
	if (!swt_registered(dev))	/* unregistered while we waited */
		n = -1;
	mutex_unlock(&swt_list_lock);
	if (n < 0)
		goto out;
	ret = -EINVAL;
	if (n >= 2 && (!strcmp(w[0], "port") || !strcmp(w[0], "vlan"))) {
		scope = w[0][0] == 'p' ? SCOPE_PORT : SCOPE_VLAN;
		if (kstrtouint(w[1], 10, &index) ||
		    index >= (scope == SCOPE_PORT ? dev->ports : dev->vlans))
			goto out;
		w += 2;
		n -= 2;
	}
	if (n == 1 && !strcmp(w[0], "help") && scope == SCOPE_GLOBAL) {
		swt_help(dev);
		ret = 0;
	} else {
		ret = swt_attr_cmd(dev, scope, index, w, n);
	}
out:
	mutex_unlock(&dev->sw_mutex);
	swt_put_dev();
	return ret;
}

static int swt_run(char *line)
{
	char *w[MAX_WORDS];
	struct switch_dev *sw;
	int n;

	n = swt_split(line, w);
	if (n < 0)
		return n;
	if (n == 1 && !strcmp(w[0], "list")) {
		mutex_lock(&swt_list_lock);
		list_for_each_entry(sw, &swt_devs, dev_list)
			swt_out("Found: %s - %s\n", sw->devname, sw->alias);
		mutex_unlock(&swt_list_lock);
		return 0;
	}
	if (n >= 3 && !strcmp(w[0], "dev"))
		return swt_dev_cmd(w + 1, n - 1);
	return -EINVAL;
}

static ssize_t swt_cmd_write(struct file *file, const char __user *ubuf, size_t len,
			     loff_t *ppos)
{
	char line[CMD_MAX], *nl;
	int ret;

	if (len >= CMD_MAX)
		return -EINVAL;
	if (copy_from_user(line, ubuf, len))
		return -EFAULT;
	line[len] = '\0';
	nl = strchr(line, '\n');
	if (nl)
		*nl = '\0';

	mutex_lock(&swt_cmd_lock);
	swt_answer_len = 0;
	swt_answer[0] = '\0';
	pr_info("swconfig-test: > %s\n", line);
	ret = swt_run(line);
	if (ret) {
		swt_answer_len = 0;
		swt_out("error %d\n", ret);
	}
	if (ret)
		pr_info("swconfig-test: error %d\n", ret);
	mutex_unlock(&swt_cmd_lock);
	return ret ? ret : len;
}

static ssize_t swt_cmd_read(struct file *file, char __user *ubuf, size_t len, loff_t *ppos)
{
	ssize_t ret;

	mutex_lock(&swt_cmd_lock);
	ret = simple_read_from_buffer(ubuf, len, ppos, swt_answer, swt_answer_len);
	mutex_unlock(&swt_cmd_lock);
	return ret;
}

static const struct file_operations swt_cmd_fops = {
	.owner = THIS_MODULE,
	.write = swt_cmd_write,
	.read = swt_cmd_read,
	.llseek = default_llseek,
};

static int __init swt_init(void)
{
	swt_dir = debugfs_create_dir("swconfig-test", NULL);
	debugfs_create_file("cmd", 0644, swt_dir, NULL, &swt_cmd_fops);
	return 0;
}

static void __exit swt_exit(void)
{
	debugfs_remove_recursive(swt_dir);
	if (!list_empty(&swt_devs))
		pr_err("swconfig-test: unloaded with switches still registered\n");
}

module_init(swt_init);
module_exit(swt_exit);

MODULE_LICENSE("GPL");
MODULE_DESCRIPTION("Switch-configuration framework stand-in for board tests");
