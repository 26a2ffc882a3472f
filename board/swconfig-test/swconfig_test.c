// SPDX-License-Identifier: GPL-2.0
/*
 * Stand-in for OpenWrt's switch-configuration framework on the virtual board
 * (test only).  It exports register_switch()/unregister_switch() and, in
 * place of the generic-netlink family and the swconfig tool, a debugfs file
 * that takes the words of a swconfig command line:
 *
 *   echo 'dev RTL8304MB vlan 2 set ports "0 1t"' >/sys/kernel/debug/swconfig-test/cmd
 *   cat /sys/kernel/debug/swconfig-test/cmd
 *
 * Commands: "list", and "dev DEV [port N | vlan N] help | show | get KEY |
 * set KEY [VALUE]" with DEV the device name (switch0) or its alias.  A value
 * is one quoted word or the remaining words.  Reading the file gives the last
 * command's answer as the tool prints it.  A failed command answers with the
 * tool's message and a last line "error -N", N also being the write's error:
 *
 *   Failed to set attribute: <errno text>   a set refused by framework or driver
 *   Failed to get attribute: <errno text>   the same for a get (this file's wording)
 *   any other message                        refused by the tool; the kernel was not asked
 *
 * What the framework and its tool do, and this file with them:
 *  - numbers (port, VLAN index, integer values, link speed) are read as C's
 *    atoi() reads them: "0x10" and "abc" are 0, "12abc" is 12;
 *  - a VLAN index >= vlans or a port index >= ports is -EINVAL before any
 *    handler; VLAN 0 reaches the driver; attr->max is never enforced;
 *  - an attribute without a get (set) handler is -EINVAL;
 *  - an integer attribute answers value.i and nothing else, so one whose
 *    handler answers in value.s reads as its pointer's low 32 bits on a
 *    64-bit kernel and as the whole pointer on a 32-bit one;
 *  - the port buffer (dev->ports entries) is zeroed before every port-list
 *    get and set; the link record before every link get and set;
 *  - each request looks the device up under the list lock and takes the
 *    device's sw_mutex while holding it; handlers run under sw_mutex.
 *
 * Test only: /sys/kernel/debug/swconfig-test/string takes "dev DEV
 * [port N | vlan N] get KEY" and answers the text the handler left in
 * value.s.  The framework has no such path; it lets tests read the text an
 * integer attribute's handler produced.
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
#include <linux/wait.h>

#define CMD_MAX		256
#define ANSWER_MAX	8192
#define ANSWER_RESERVE	64	/* kept free for the status line */
#define MAX_WORDS	16
#define MAX_ENTRIES	(CMD_MAX / 2)	/* port entries a command line can hold */
#define SWT_DEVNAME	"switch%d"

/* One debugfs file: its last answer, and the device its command holds. */
struct swt_session {
	const char *file;
	bool text;			/* test-only path: answers are value.s */
	struct mutex lock;		/* one command at a time; the buffers below */
	struct switch_dev *dev;		/* set under swt_list_lock */
	bool full;
	size_t len;
	char answer[ANSWER_MAX];
	char line[CMD_MAX];
	char value[CMD_MAX];
	struct switch_port ports[MAX_ENTRIES];
};

static struct swt_session swt_sessions[] = {
	{ .file = "cmd" },
	{ .file = "string", .text = true },
};

static LIST_HEAD(swt_devs);
static DEFINE_MUTEX(swt_list_lock);	/* swt_devs, swt_session.dev */
static DECLARE_WAIT_QUEUE_HEAD(swt_idle);
static struct dentry *swt_dir;

/* ---- Registration ---- */

static bool swt_registered(struct switch_dev *dev)
{
	struct switch_dev *sw;

	lockdep_assert_held(&swt_list_lock);
	list_for_each_entry(sw, &swt_devs, dev_list)
		if (sw == dev)
			return true;
	return false;
}

int register_switch(struct switch_dev *dev, struct net_device *netdev)
{
	struct switch_port *portbuf;
	unsigned long in_use = 0;
	struct switch_dev *sw;
	int i;

	/*
	 * The framework checks neither and crashes on a NULL alias; a test
	 * double that crashed too would hide which field was missing.
	 */
	if (!dev->ops) {
		pr_err("swconfig-test: switch %s has no ops\n", dev->name);
		return -EINVAL;
	}
	if (!dev->alias) {
		pr_err("swconfig-test: switch %s has no alias (the framework needs one)\n",
		       dev->name);
		return -EINVAL;
	}
	portbuf = kcalloc(dev->ports, sizeof(*portbuf), GFP_KERNEL);
	if (!portbuf)
		return -ENOMEM;

	mutex_lock(&swt_list_lock);
	/* A second registration would corrupt the list: refuse it. */
	if (swt_registered(dev)) {
		mutex_unlock(&swt_list_lock);
		kfree(portbuf);
		pr_err("swconfig-test: %s registered twice\n", dev->devname);
		return -EBUSY;
	}
	list_for_each_entry(sw, &swt_devs, dev_list)
		if (sscanf(sw->devname, SWT_DEVNAME, &i) == 1 && i >= 0 && i < BITS_PER_LONG)
			set_bit(i, &in_use);
	i = find_first_zero_bit(&in_use, BITS_PER_LONG);
	snprintf(dev->devname, IFNAMSIZ, SWT_DEVNAME, i);
	dev->id = i;
	dev->netdev = netdev;
	dev->portbuf = portbuf;
	memset(&dev->linkbuf, 0, sizeof(dev->linkbuf));
	mutex_init(&dev->sw_mutex);
	list_add_tail(&dev->dev_list, &swt_devs);
	mutex_unlock(&swt_list_lock);
	pr_info("swconfig-test: registered %s: %s(%s), ports %u, vlans %u, cpu port %u\n",
		dev->devname, dev->alias, dev->name, dev->ports, dev->vlans, dev->cpu_port);
	return 0;
}
EXPORT_SYMBOL(register_switch);

static bool swt_held(struct switch_dev *dev)
{
	int i;

	for (i = 0; i < ARRAY_SIZE(swt_sessions); i++)
		if (smp_load_acquire(&swt_sessions[i].dev) == dev)
			return true;
	return false;
}

void unregister_switch(struct switch_dev *dev)
{
	bool found;

	mutex_lock(&swt_list_lock);
	found = swt_registered(dev);
	if (found)
		list_del(&dev->dev_list);
	mutex_unlock(&swt_list_lock);
	if (!found) {
		pr_err("swconfig-test: unregister of a switch not registered\n");
		return;
	}
	/*
	 * No new request finds the device now.  Its owner frees it after we
	 * return, so wait until no command holds it: waiting on sw_mutex
	 * would not do, mutex_unlock() may touch the mutex after handing it on.
	 */
	wait_event(swt_idle, !swt_held(dev));
	kfree(dev->portbuf);
	dev->portbuf = NULL;
	pr_info("swconfig-test: unregistered %s\n", dev->devname);
}
EXPORT_SYMBOL(unregister_switch);

/* Find a device by name or alias; the session holds it until swt_release(). */
static struct switch_dev *swt_hold(struct swt_session *s, const char *name)
{
	struct switch_dev *sw;

	mutex_lock(&swt_list_lock);
	list_for_each_entry(sw, &swt_devs, dev_list) {
		if (!strcmp(sw->devname, name) || !strcmp(sw->alias, name)) {
			WRITE_ONCE(s->dev, sw);
			break;
		}
	}
	mutex_unlock(&swt_list_lock);
	return s->dev;
}

static void swt_release(struct swt_session *s)
{
	smp_store_release(&s->dev, NULL);
	wake_up(&swt_idle);
}

/* ---- Answers ---- */

static __printf(3, 0) void swt_vout(struct swt_session *s, size_t limit, const char *fmt,
				    va_list args)
{
	int n;

	if (s->full)
		return;
	n = vsnprintf(s->answer + s->len, limit - s->len, fmt, args);
	if (n >= limit - s->len) {
		s->answer[s->len] = '\0';	/* drop this and all that follows */
		s->full = true;
		return;
	}
	s->len += n;
}

static __printf(2, 3) void swt_out(struct swt_session *s, const char *fmt, ...)
{
	va_list args;

	va_start(args, fmt);
	swt_vout(s, ANSWER_MAX - ANSWER_RESERVE, fmt, args);
	va_end(args);
}

/* What the tool prints on its own: into the answer and the kernel log. */
static __printf(2, 3) void swt_tool_say(struct swt_session *s, const char *fmt, ...)
{
	char msg[CMD_MAX];
	va_list args;

	va_start(args, fmt);
	vscnprintf(msg, sizeof(msg), fmt, args);
	va_end(args);
	swt_out(s, "%s\n", msg);
	pr_info("swconfig-test: tool: %s\n", msg);
}

/* Errno texts as the tool shows a netlink error (C library wording). */
static const char *swt_strerror(int err)
{
	static const struct { int err; const char *text; } texts[] = {
		{ EPERM, "Operation not permitted" },
		{ ENOENT, "No such file or directory" },
		{ EIO, "Input/output error" },
		{ ENOMEM, "Cannot allocate memory" },
		{ EFAULT, "Bad address" },
		{ EBUSY, "Device or resource busy" },
		{ ENODEV, "No such device" },
		{ EINVAL, "Invalid argument" },
		{ EFBIG, "File too large" },
		{ ERANGE, "Numerical result out of range" },
		{ EOPNOTSUPP, "Operation not supported" },
		{ ETIMEDOUT, "Connection timed out" },
	};
	int i;

	for (i = 0; i < ARRAY_SIZE(texts); i++)
		if (texts[i].err == -err)
			return texts[i].text;
	return "Unknown error";		/* the number follows on the status line */
}

static const char *swt_speed_str(int speed)
{
	switch (speed) {
	case SWITCH_PORT_SPEED_10:
		return "10baseT";
	case SWITCH_PORT_SPEED_100:
		return "100baseT";
	case SWITCH_PORT_SPEED_1000:
		return "1000baseT";
	default:
		return "unknown";
	}
}

/* The tool's names; it has none for links. */
static const char *swt_type_str(int type)
{
	static const char * const names[] = {
		[SWITCH_TYPE_INT] = "int", [SWITCH_TYPE_STRING] = "string",
		[SWITCH_TYPE_PORTS] = "ports", [SWITCH_TYPE_NOVAL] = "none",
	};

	return type >= 0 && type < ARRAY_SIZE(names) && names[type] ? names[type] : "unknown";
}

/*
 * Test-only path: the text in value.s.  A handler that answered a number
 * left no pointer there, so read it with copy_from_kernel_nofault(): a
 * number reads as -EFAULT instead of faulting.
 */
static int swt_out_text(struct swt_session *s, const char *p)
{
	char text[CMD_MAX];
	int i;

	for (i = 0; p && i < sizeof(text); i++) {
		if (copy_from_kernel_nofault(&text[i], p + i, 1))
			return -EFAULT;
		if (!text[i]) {
			swt_out(s, "%s\n", text);
			return 0;
		}
	}
	return p ? -E2BIG : -EFAULT;
}

/* A get's reply, built under sw_mutex as the framework builds its message. */
static int swt_reply(struct swt_session *s, struct switch_dev *dev,
		     const struct switch_attr *attr, const struct switch_val *val)
{
	const struct switch_port_link *link = val->value.link;
	unsigned int i;

	if (s->text)
		return swt_out_text(s, val->value.s);
	switch (attr->type) {
	case SWITCH_TYPE_INT:
		/* value.i only, whatever the handler put into the union */
		swt_out(s, "%d", (int)val->value.i);
		break;
	case SWITCH_TYPE_STRING:
		swt_out(s, "%s", val->value.s ? val->value.s : "");
		break;
	case SWITCH_TYPE_PORTS:
		if (val->len > dev->ports) {
			pr_err("swconfig-test: %s answered %u port entries, the device has %u\n",
			       attr->name, val->len, dev->ports);
			return -EINVAL;
		}
		for (i = 0; i < val->len; i++)
			swt_out(s, "%u%s ", val->value.ports[i].id,
				val->value.ports[i].flags & BIT(SWITCH_PORT_FLAG_TAGGED) ? "t" : "");
		break;
	case SWITCH_TYPE_LINK:
		if (link->link)
			swt_out(s, "port:%u link:up speed:%s %s-duplex %s%s%s", val->port_vlan,
				swt_speed_str(link->speed), link->duplex ? "full" : "half",
				link->tx_flow ? "txflow " : "", link->rx_flow ? "rxflow " : "",
				link->aneg ? "auto" : "");
		else
			swt_out(s, "port:%u link:down", val->port_vlan);
		break;
	}
	swt_out(s, "\n");
	return 0;
}

/* ---- The framework's own attributes ---- */

static int swt_apply(struct switch_dev *dev, const struct switch_attr *attr,
		     struct switch_val *val)
{
	return dev->ops->apply_config ? dev->ops->apply_config(dev) : 0;
}

static int swt_reset(struct switch_dev *dev, const struct switch_attr *attr,
		     struct switch_val *val)
{
	return dev->ops->reset_switch ? dev->ops->reset_switch(dev) : 0;
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

/* Untagged members take the VLAN as their PVID before the driver sees the list. */
static int swt_set_ports(struct switch_dev *dev, const struct switch_attr *attr,
			 struct switch_val *val)
{
	struct switch_port *ports = val->value.ports;
	unsigned int i;

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

static const struct switch_attr swt_vlan_attrs[] = {
	{ .type = SWITCH_TYPE_PORTS, .name = "ports", .description = "VLAN port mapping",
	  .set = swt_set_ports, .get = swt_get_ports },
};

static const struct switch_attr swt_port_attrs[] = {
	{ .type = SWITCH_TYPE_INT, .name = "pvid", .description = "Primary VLAN ID",
	  .set = swt_set_pvid, .get = swt_get_pvid },
	{ .type = SWITCH_TYPE_LINK, .name = "link", .description = "Get port link information",
	  .set = swt_set_link, .get = swt_get_link },
};

/* In the order the tool's help prints them. */
enum swt_scope { SCOPE_GLOBAL, SCOPE_VLAN, SCOPE_PORT, N_SCOPES };

static const struct { const struct switch_attr *attr; int n; } swt_defaults[N_SCOPES] = {
	[SCOPE_GLOBAL] = { swt_global_attrs, ARRAY_SIZE(swt_global_attrs) },
	[SCOPE_VLAN] = { swt_vlan_attrs, ARRAY_SIZE(swt_vlan_attrs) },
	[SCOPE_PORT] = { swt_port_attrs, ARRAY_SIZE(swt_port_attrs) },
};

/*
 * Which operation offers which default attribute.  "apply" and "reset" are
 * always there: without apply_config/reset_switch they succeed and do
 * nothing.  "ports" and "pvid" come with either of their get/set
 * operations.  "link" comes with get_port_link: it is a report first ("Get
 * port link information"), and set_port_link alone has nothing to show.
 */
static bool swt_default_present(struct switch_dev *dev, const struct switch_attr *a)
{
	const struct switch_dev_ops *ops = dev->ops;

	if (a->get == swt_get_ports)
		return ops->get_vlan_ports || ops->set_vlan_ports;
	if (a->get == swt_get_pvid)
		return ops->get_port_pvid || ops->set_port_pvid;
	if (a->get == swt_get_link)
		return ops->get_port_link;
	return true;
}

static const struct switch_attrlist *swt_driver_attrs(struct switch_dev *dev,
						      enum swt_scope scope)
{
	return scope == SCOPE_GLOBAL ? &dev->ops->attr_global :
	       scope == SCOPE_VLAN ? &dev->ops->attr_vlan : &dev->ops->attr_port;
}

/* The i-th attribute as listed: the driver's own first, then the defaults. */
static const struct switch_attr *swt_attr_at(struct switch_dev *dev, enum swt_scope scope,
					     unsigned int i)
{
	const struct switch_attrlist *list = swt_driver_attrs(dev, scope);
	int k;

	for (k = 0; k < list->n_attr; k++)
		if (!list->attr[k].disabled && !i--)
			return &list->attr[k];
	for (k = 0; k < swt_defaults[scope].n; k++)
		if (swt_default_present(dev, &swt_defaults[scope].attr[k]) && !i--)
			return &swt_defaults[scope].attr[k];
	return NULL;
}

static const struct switch_attr *swt_find_attr(struct switch_dev *dev, enum swt_scope scope,
					       const char *name)
{
	const struct switch_attr *a;
	unsigned int i;

	for (i = 0; (a = swt_attr_at(dev, scope, i)); i++)
		if (!strcmp(a->name, name))
			return a;
	return NULL;
}

/* ---- Requests, as the netlink family handles them ---- */

/* A request: the attribute the tool resolved, and a set's value as sent. */
struct swt_req {
	const struct switch_attr *attr;
	enum swt_scope scope;
	u32 index;
	u32 i;
	const char *s;
	unsigned int len;
	const struct switch_port *ports;
	struct switch_port_link link;
};

static int swt_do_get(struct switch_dev *dev, const struct switch_attr *attr,
		      struct switch_val *val)
{
	if (!attr->get)
		return -EINVAL;
	if (attr->type == SWITCH_TYPE_PORTS) {
		memset(dev->portbuf, 0, dev->ports * sizeof(*dev->portbuf));
		val->value.ports = dev->portbuf;
	} else if (attr->type == SWITCH_TYPE_LINK) {
		memset(&dev->linkbuf, 0, sizeof(dev->linkbuf));
		val->value.link = &dev->linkbuf;
	}
	return attr->get(dev, attr, val);
}

static int swt_do_set(struct switch_dev *dev, const struct swt_req *rq, struct switch_val *val)
{
	const struct switch_attr *attr = rq->attr;

	if (!attr->set)
		return -EINVAL;
	switch (attr->type) {
	case SWITCH_TYPE_INT:
		val->value.i = rq->i;
		break;
	case SWITCH_TYPE_STRING:
		val->value.s = rq->s;
		break;
	case SWITCH_TYPE_PORTS:
		if (rq->len > dev->ports)
			return -EINVAL;
		memset(dev->portbuf, 0, dev->ports * sizeof(*dev->portbuf));
		memcpy(dev->portbuf, rq->ports, rq->len * sizeof(*dev->portbuf));
		val->len = rq->len;
		val->value.ports = dev->portbuf;
		break;
	case SWITCH_TYPE_LINK:
		/* The message carries these three. */
		memset(&dev->linkbuf, 0, sizeof(dev->linkbuf));
		dev->linkbuf.aneg = rq->link.aneg;
		dev->linkbuf.duplex = rq->link.duplex;
		dev->linkbuf.speed = rq->link.speed;
		val->value.link = &dev->linkbuf;
		break;
	}
	return attr->set(dev, attr, val);
}

static int swt_request(struct swt_session *s, struct switch_dev *dev, const struct swt_req *rq,
		       bool set)
{
	struct switch_val val = { .attr = rq->attr, .port_vlan = rq->index };
	int ret = -ENODEV;

	mutex_lock(&swt_list_lock);
	if (swt_registered(dev)) {
		mutex_lock(&dev->sw_mutex);
		ret = 0;
	}
	mutex_unlock(&swt_list_lock);
	if (ret)
		return ret;

	if ((rq->scope == SCOPE_VLAN && rq->index >= dev->vlans) ||
	    (rq->scope == SCOPE_PORT && rq->index >= dev->ports))
		ret = -EINVAL;
	else if (set)
		ret = swt_do_set(dev, rq, &val);
	else
		ret = swt_do_get(dev, rq->attr, &val) ?: swt_reply(s, dev, rq->attr, &val);
	mutex_unlock(&dev->sw_mutex);
	return ret;
}

/* ---- The tool ---- */

struct swt_cmd {
	struct swt_session *s;
	struct switch_dev *dev;
	enum swt_scope scope;
	u32 index;
};

/* C's atoi(): white space, a sign, decimal digits; the rest is ignored. */
static int swt_atoi(const char *p, const char **end)
{
	unsigned int v = 0;
	bool neg = false;

	p = skip_spaces(p);
	if (*p == '-' || *p == '+')
		neg = *p++ == '-';
	while (isdigit(*p))
		v = v * 10 + (*p++ - '0');
	if (end)
		*end = p;
	return neg ? -v : v;
}

/* "0 1t 3t": port numbers, t for tagged members. */
static int swt_tool_ports(struct swt_cmd *c, char *str, struct swt_req *rq)
{
	unsigned int max = min_t(unsigned int, c->dev->ports, MAX_ENTRIES);
	struct switch_port *ports = c->s->ports;
	const char *end;
	char *w;

	rq->len = 0;
	while ((w = strsep(&str, " ")) != NULL) {
		if (!*w)
			continue;
		if (rq->len == max) {
			swt_tool_say(c->s, "Too many ports for %s: it has %u", c->dev->devname,
				     c->dev->ports);
			return -EINVAL;
		}
		ports[rq->len].id = swt_atoi(w, &end);
		ports[rq->len].flags = 0;
		if (*end == 't' && !end[1]) {
			ports[rq->len].flags = BIT(SWITCH_PORT_FLAG_TAGGED);
		} else if (*end) {
			swt_tool_say(c->s, "Invalid port \"%s\": a number, t for tagged", w);
			return -EINVAL;
		}
		rq->len++;
	}
	rq->ports = ports;
	return 0;
}

static void swt_tool_flag(struct swt_cmd *c, const char *key, const char *arg,
			  const char *on, const char *off, bool *flag)
{
	if (!strcmp(arg, on) || !strcmp(arg, off))
		*flag = !strcmp(arg, on);
	else
		swt_tool_say(c->s, "Ignoring %s \"%s\": %s or %s", key, arg, on, off);
}

/* "autoneg on|off", "speed N", "duplex half|full"; other words are ignored. */
static void swt_tool_link(struct swt_cmd *c, char *str, struct switch_port_link *link)
{
	char *key, *arg;

	while ((key = strsep(&str, " ")) != NULL) {
		if (!*key)
			continue;
		if (strcmp(key, "autoneg") && strcmp(key, "speed") && strcmp(key, "duplex")) {
			swt_tool_say(c->s, "Ignoring unknown link word \"%s\"", key);
			continue;
		}
		do {
			arg = strsep(&str, " ");
		} while (arg && !*arg);
		if (!arg) {
			swt_tool_say(c->s, "Ignoring \"%s\" without a value", key);
			return;
		}
		if (!strcmp(key, "speed"))
			link->speed = swt_atoi(arg, NULL);
		else if (!strcmp(key, "autoneg"))
			swt_tool_flag(c, key, arg, "on", "off", &link->aneg);
		else
			swt_tool_flag(c, key, arg, "full", "half", &link->duplex);
	}
}

static const struct switch_attr *swt_tool_attr(struct swt_cmd *c, const char *name)
{
	const struct switch_attr *attr = swt_find_attr(c->dev, c->scope, name);

	if (!attr)
		swt_tool_say(c->s, "Unknown attribute \"%s\"", name);
	return attr;
}

static int swt_get(struct swt_cmd *c, const char *name)
{
	struct swt_req rq = { .scope = c->scope, .index = c->index };
	int ret;

	rq.attr = swt_tool_attr(c, name);
	if (!rq.attr)
		return -EINVAL;
	if (c->s->text && rq.attr->type != SWITCH_TYPE_INT &&
	    rq.attr->type != SWITCH_TYPE_STRING) {
		swt_tool_say(c->s, "The test-only text path reads int and string attributes");
		return -EINVAL;
	}
	ret = swt_request(c->s, c->dev, &rq, false);
	if (ret)
		swt_out(c->s, "Failed to get attribute: %s\n", swt_strerror(ret));
	return ret;
}

static int swt_set(struct swt_cmd *c, const char *name, char **w, int n)
{
	struct swt_req rq = { .scope = c->scope, .index = c->index };
	char *value = c->s->value;
	size_t len = 0;
	int i, ret;

	rq.attr = swt_tool_attr(c, name);
	if (!rq.attr)
		return -EINVAL;
	/* "apply" and "reset" with a value: the tool does nothing at all. */
	if (rq.attr->type == SWITCH_TYPE_NOVAL && n)
		return 0;
	if (rq.attr->type != SWITCH_TYPE_NOVAL && !n) {
		swt_tool_say(c->s, "Attribute \"%s\" needs a value", name);
		return -EINVAL;
	}
	value[0] = '\0';
	for (i = 0; i < n; i++)
		len += scnprintf(value + len, CMD_MAX - len, "%s%s", i ? " " : "", w[i]);

	switch (rq.attr->type) {
	case SWITCH_TYPE_INT:
		rq.i = swt_atoi(value, NULL);
		break;
	case SWITCH_TYPE_STRING:
		rq.s = value;
		break;
	case SWITCH_TYPE_PORTS:
		ret = swt_tool_ports(c, value, &rq);
		if (ret)
			return ret;
		break;
	case SWITCH_TYPE_LINK:
		swt_tool_link(c, value, &rq.link);
		break;
	}
	ret = swt_request(c->s, c->dev, &rq, true);
	if (ret)
		swt_out(c->s, "Failed to set attribute: %s\n", swt_strerror(ret));
	return ret;
}

static void swt_help(struct swt_cmd *c)
{
	static const char * const titles[N_SCOPES] = { "switch", "vlan", "port" };
	struct switch_dev *dev = c->dev;
	const struct switch_attr *a;
	unsigned int i;
	int scope;

	swt_out(c->s, "%s: %s(%s), ports: %u (cpu @ %u), vlans: %u\n", dev->devname,
		dev->alias, dev->name, dev->ports, dev->cpu_port, dev->vlans);
	for (scope = 0; scope < N_SCOPES; scope++) {
		swt_out(c->s, "     --%s\n", titles[scope]);
		for (i = 0; (a = swt_attr_at(dev, scope, i)); i++)
			swt_out(c->s, "\tAttribute %u (%s): %s (%s)\n", i + 1,
				swt_type_str(a->type), a->name, a->description);
	}
}

/* Every readable attribute of one port, VLAN or the switch; ??? for a failed get. */
static void swt_show_one(struct swt_cmd *c, enum swt_scope scope, u32 index)
{
	static const char * const titles[N_SCOPES] = { "Global attributes", "VLAN", "Port" };
	struct swt_req rq = { .scope = scope, .index = index };
	unsigned int i;

	if (scope == SCOPE_GLOBAL)
		swt_out(c->s, "%s:\n", titles[scope]);
	else
		swt_out(c->s, "%s %u:\n", titles[scope], index);
	for (i = 0; (rq.attr = swt_attr_at(c->dev, scope, i)); i++) {
		if (rq.attr->type == SWITCH_TYPE_NOVAL)
			continue;
		swt_out(c->s, "\t%s: ", rq.attr->name);
		if (swt_request(c->s, c->dev, &rq, false))
			swt_out(c->s, "???\n");
	}
}

static void swt_show(struct swt_cmd *c)
{
	u32 i;

	if (c->scope != SCOPE_GLOBAL) {
		swt_show_one(c, c->scope, c->index);
		return;
	}
	swt_show_one(c, SCOPE_GLOBAL, 0);
	for (i = 0; i < c->dev->ports; i++)
		swt_show_one(c, SCOPE_PORT, i);
	for (i = 0; i < c->dev->vlans; i++)
		swt_show_one(c, SCOPE_VLAN, i);
}

static int swt_dev_cmd(struct swt_cmd *c, char **w, int n)
{
	if (n >= 2 && (!strcmp(w[0], "port") || !strcmp(w[0], "vlan"))) {
		c->scope = w[0][0] == 'p' ? SCOPE_PORT : SCOPE_VLAN;
		c->index = swt_atoi(w[1], NULL);
		w += 2;
		n -= 2;
	}
	if (n == 2 && !strcmp(w[0], "get"))
		return swt_get(c, w[1]);
	if (c->s->text) {
		swt_tool_say(c->s, "Usage: dev DEV [port N | vlan N] get KEY");
		return -EINVAL;
	}
	if (n >= 2 && !strcmp(w[0], "set"))
		return swt_set(c, w[1], w + 2, n - 2);
	if (n == 1 && !strcmp(w[0], "help")) {
		swt_help(c);
		return 0;
	}
	if (n == 1 && !strcmp(w[0], "show")) {
		swt_show(c);
		return 0;
	}
	swt_tool_say(c->s, "Usage: dev DEV [port N | vlan N] (help | show | get KEY | set KEY [VALUE])");
	return -EINVAL;
}

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
			return -E2BIG;
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

static int swt_run(struct swt_session *s)
{
	struct swt_cmd c = { .s = s, .scope = SCOPE_GLOBAL };
	char *w[MAX_WORDS];
	struct switch_dev *sw;
	int n, ret;

	n = swt_split(s->line, w);
	if (n == -E2BIG)
		swt_tool_say(s, "More than %d words", MAX_WORDS);
	else if (n < 0)
		swt_tool_say(s, "Unbalanced quotes");
	if (n < 0)
		return -EINVAL;
	if (n == 1 && !strcmp(w[0], "list") && !s->text) {
		mutex_lock(&swt_list_lock);
		list_for_each_entry(sw, &swt_devs, dev_list)
			swt_out(s, "Found: %s - %s\n", sw->devname, sw->alias);
		mutex_unlock(&swt_list_lock);
		return 0;
	}
	if (n < 3 || strcmp(w[0], "dev")) {
		swt_tool_say(s, "Usage: list | dev DEV [port N | vlan N] ...");
		return -EINVAL;
	}
	c.dev = swt_hold(s, w[1]);
	if (!c.dev) {
		swt_tool_say(s, "No switch \"%s\" (see \"list\")", w[1]);
		return -ENODEV;
	}
	ret = swt_dev_cmd(&c, w + 2, n - 2);
	swt_release(s);
	return ret;
}

static ssize_t swt_cmd_write(struct file *file, const char __user *ubuf, size_t len,
			     loff_t *ppos)
{
	struct swt_session *s = file->private_data;
	int ret = 0;
	char *nl;

	mutex_lock(&s->lock);
	s->len = 0;
	s->full = false;
	s->answer[0] = '\0';
	if (len >= CMD_MAX) {
		swt_tool_say(s, "Command longer than %d bytes", CMD_MAX - 1);
		ret = -EINVAL;
	} else if (copy_from_user(s->line, ubuf, len)) {
		ret = -EFAULT;
	} else {
		s->line[len] = '\0';
		nl = strchr(s->line, '\n');
		if (nl)
			*nl = '\0';
		pr_info("swconfig-test: %s> %s\n", s->text ? "string" : "", s->line);
		ret = swt_run(s);
	}
	if (!ret && s->full) {
		pr_err("swconfig-test: answer longer than %d bytes\n", ANSWER_MAX);
		ret = -EFBIG;
	}
	if (ret) {
		/* Into the room kept free for it, whatever the answer left. */
		s->len += scnprintf(s->answer + s->len, ANSWER_MAX - s->len, "error %d\n", ret);
		pr_info("swconfig-test: error %d\n", ret);
	}
	mutex_unlock(&s->lock);
	return ret ? ret : len;
}

static ssize_t swt_cmd_read(struct file *file, char __user *ubuf, size_t len, loff_t *ppos)
{
	struct swt_session *s = file->private_data;
	ssize_t ret;

	mutex_lock(&s->lock);
	ret = simple_read_from_buffer(ubuf, len, ppos, s->answer, s->len);
	mutex_unlock(&s->lock);
	return ret;
}

static const struct file_operations swt_cmd_fops = {
	.owner = THIS_MODULE,
	.open = simple_open,
	.write = swt_cmd_write,
	.read = swt_cmd_read,
	.llseek = default_llseek,
};

static int __init swt_init(void)
{
	int i;

	swt_dir = debugfs_create_dir("swconfig-test", NULL);
	for (i = 0; i < ARRAY_SIZE(swt_sessions); i++) {
		mutex_init(&swt_sessions[i].lock);
		debugfs_create_file(swt_sessions[i].file, 0644, swt_dir, &swt_sessions[i],
				    &swt_cmd_fops);
	}
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
