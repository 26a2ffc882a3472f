// SPDX-License-Identifier: GPL-2.0
/*
 * A tiny switch for board tests of the switch-framework stand-in: device
 * "dummy" with 4 ports, 4 VLAN slots and CPU port 3, whose settings live in
 * memory.  Port 0 has a 100 Mbit/s full-duplex autonegotiated link, the
 * others none until a "link" is set on them.  fault=noalias or fault=noops
 * registers it without that field, for the stand-in to refuse.
 */
#include <linux/module.h>
#include <linux/switch.h>

#define DUMMY_PORTS	4
#define DUMMY_VLANS	4

static struct dummy {
	struct switch_dev dev;
	u32 enable_vlan;
	int pvid[DUMMY_PORTS];
	struct switch_port_link link[DUMMY_PORTS];
	struct switch_port members[DUMMY_VLANS][DUMMY_PORTS];
	unsigned int n_members[DUMMY_VLANS];
	char name[16];
} dummy;

static char *fault = "";
module_param(fault, charp, 0444);
MODULE_PARM_DESC(fault, "register without a field: noalias or noops");

static int dummy_get_enable_vlan(struct switch_dev *dev, const struct switch_attr *attr,
				 struct switch_val *val)
{
	val->value.i = dummy.enable_vlan;
	return 0;
}

static int dummy_set_enable_vlan(struct switch_dev *dev, const struct switch_attr *attr,
				 struct switch_val *val)
{
	dummy.enable_vlan = val->value.i;
	return 0;
}

static int dummy_get_port_name(struct switch_dev *dev, const struct switch_attr *attr,
			       struct switch_val *val)
{
	snprintf(dummy.name, sizeof(dummy.name), "port%u", val->port_vlan);
	val->value.s = dummy.name;
	return 0;
}

static int dummy_get_vlan_ports(struct switch_dev *dev, struct switch_val *val)
{
	val->len = dummy.n_members[val->port_vlan];
	memcpy(val->value.ports, dummy.members[val->port_vlan],
	       val->len * sizeof(*val->value.ports));
	return 0;
}

static int dummy_set_vlan_ports(struct switch_dev *dev, struct switch_val *val)
{
	if (val->port_vlan == 0)
		return -EINVAL;		/* like drivers that keep slot 0 unused */
	dummy.n_members[val->port_vlan] = val->len;
	memcpy(dummy.members[val->port_vlan], val->value.ports,
	       val->len * sizeof(*val->value.ports));
	return 0;
}

static int dummy_get_port_pvid(struct switch_dev *dev, int port, int *val)
{
	*val = dummy.pvid[port];
	return 0;
}

static int dummy_set_port_pvid(struct switch_dev *dev, int port, int val)
{
	dummy.pvid[port] = val;
	return 0;
}

static int dummy_get_port_link(struct switch_dev *dev, int port, struct switch_port_link *link)
{
	*link = dummy.link[port];
	return 0;
}

static int dummy_set_port_link(struct switch_dev *dev, int port, struct switch_port_link *link)
{
	if (link->speed != 10 && link->speed != 100)
		return -EOPNOTSUPP;
	dummy.link[port] = *link;
	dummy.link[port].link = true;
	return 0;
}

static int dummy_apply(struct switch_dev *dev)
{
	pr_info("swconfig_dummy: apply, enable_vlan %u\n", dummy.enable_vlan);
	return 0;
}

static int dummy_reset(struct switch_dev *dev)
{
	dummy.enable_vlan = 0;
	memset(dummy.pvid, 0, sizeof(dummy.pvid));
	memset(dummy.n_members, 0, sizeof(dummy.n_members));
	return 0;
}

static const struct switch_attr dummy_globals[] = {
	{ .type = SWITCH_TYPE_INT, .name = "enable_vlan", .description = "Enable VLAN mode",
	  .set = dummy_set_enable_vlan, .get = dummy_get_enable_vlan },
};

static const struct switch_attr dummy_port_attrs[] = {
	{ .type = SWITCH_TYPE_STRING, .name = "name", .description = "Port name",
	  .get = dummy_get_port_name },
};

static const struct switch_dev_ops dummy_ops = {
	.attr_global = { .attr = dummy_globals, .n_attr = ARRAY_SIZE(dummy_globals) },
	.attr_port = { .attr = dummy_port_attrs, .n_attr = ARRAY_SIZE(dummy_port_attrs) },
	.get_vlan_ports = dummy_get_vlan_ports,
	.set_vlan_ports = dummy_set_vlan_ports,
	.get_port_pvid = dummy_get_port_pvid,
	.set_port_pvid = dummy_set_port_pvid,
	.apply_config = dummy_apply,
	.reset_switch = dummy_reset,
	.get_port_link = dummy_get_port_link,
	.set_port_link = dummy_set_port_link,
};

static int __init dummy_init(void)
{
	dummy.dev.ops = strcmp(fault, "noops") ? &dummy_ops : NULL;
	dummy.dev.name = "dummy";
	dummy.dev.alias = strcmp(fault, "noalias") ? "dummy" : NULL;
	dummy.dev.ports = DUMMY_PORTS;
	dummy.dev.vlans = DUMMY_VLANS;
	dummy.dev.cpu_port = 3;
	dummy.link[0] = (struct switch_port_link){ .link = true, .duplex = true, .aneg = true,
						   .speed = SWITCH_PORT_SPEED_100 };
	return register_switch(&dummy.dev, NULL);
}

static void __exit dummy_exit(void)
{
	unregister_switch(&dummy.dev);
}

module_init(dummy_init);
module_exit(dummy_exit);

MODULE_LICENSE("GPL");
MODULE_DESCRIPTION("Dummy switch for board tests of the switch framework stand-in");
