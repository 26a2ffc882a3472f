/* SPDX-License-Identifier: GPL-2.0 */
/*
 * Switch-configuration framework ("swconfig") interface for kernels that do
 * not carry it.  A kernel with its own <linux/switch.h> wins: its include
 * directories come before this one on the compiler's command line.
 *
 * Records, fields and their order are the framework's public interface, so
 * that a driver built against this header works with the framework itself.
 * That holds only for the same kernel configuration: with
 * CONFIG_SWCONFIG_LEDS the framework's struct switch_dev is one pointer
 * longer, and a driver that disagrees has the framework write past it.
 */
#ifndef _LINUX_SWITCH_H
#define _LINUX_SWITCH_H

#include <linux/types.h>
#include <linux/list.h>
#include <linux/mutex.h>
#include <linux/netdevice.h>

struct device_node;
struct switch_led_trigger;
struct switch_dev;
struct switch_val;
struct switch_attr;

/* Attribute value types, as the netlink interface numbers them. */
enum switch_val_type {
	SWITCH_TYPE_UNSPEC,
	SWITCH_TYPE_INT,
	SWITCH_TYPE_STRING,
	SWITCH_TYPE_PORTS,
	SWITCH_TYPE_LINK,
	SWITCH_TYPE_NOVAL,
};

/* Attributes of a port entry; the flag's value is a bit index into flags. */
enum {
	SWITCH_PORT_UNSPEC,
	SWITCH_PORT_ID,
	SWITCH_PORT_FLAG_TAGGED,
	SWITCH_PORT_ATTR_MAX
};

int register_switch(struct switch_dev *dev, struct net_device *netdev);
void unregister_switch(struct switch_dev *dev);

struct switch_attrlist {
	int n_attr;
	const struct switch_attr *attr;
};

enum switch_port_speed {
	SWITCH_PORT_SPEED_UNKNOWN = 0,
	SWITCH_PORT_SPEED_10 = 10,
	SWITCH_PORT_SPEED_100 = 100,
	SWITCH_PORT_SPEED_1000 = 1000,
};

struct switch_port_link {
	bool link;
	bool duplex;
	bool aneg;
	bool tx_flow;
	bool rx_flow;
	enum switch_port_speed speed;
	u32 eee;	/* ethtool advertisement bits */
};

struct switch_port_stats {
	unsigned long long tx_bytes;
	unsigned long long rx_bytes;
};

struct switch_dev_ops {
	struct switch_attrlist attr_global, attr_port, attr_vlan;

	int (*get_vlan_ports)(struct switch_dev *dev, struct switch_val *val);
	int (*set_vlan_ports)(struct switch_dev *dev, struct switch_val *val);

	int (*get_port_pvid)(struct switch_dev *dev, int port, int *val);
	int (*set_port_pvid)(struct switch_dev *dev, int port, int val);

	int (*apply_config)(struct switch_dev *dev);
	int (*reset_switch)(struct switch_dev *dev);

	int (*get_port_link)(struct switch_dev *dev, int port,
			     struct switch_port_link *link);
	int (*set_port_link)(struct switch_dev *dev, int port,
			     struct switch_port_link *link);
	int (*get_port_stats)(struct switch_dev *dev, int port,
			      struct switch_port_stats *stats);

	int (*phy_read16)(struct switch_dev *dev, int addr, u8 reg, u16 *value);
	int (*phy_write16)(struct switch_dev *dev, int addr, u8 reg, u16 value);
};

struct switch_port {
	u32 id;
	u32 flags;	/* bit SWITCH_PORT_FLAG_TAGGED: member leaves tagged */
};

struct switch_portmap {
	u32 virt;
	const char *s;
};

struct switch_dev {
	struct device_node *of_node;
	const struct switch_dev_ops *ops;
	/* filled in by register_switch */
	char devname[IFNAMSIZ];

	const char *name;
	/* must be set: the framework uses it unchecked */
	const char *alias;
	struct net_device *netdev;

	unsigned int ports;
	unsigned int vlans;
	unsigned int cpu_port;

	/* the framework's own */
	unsigned int id;
	struct list_head dev_list;
	unsigned long def_global, def_port, def_vlan;

	struct mutex sw_mutex;
	struct switch_port *portbuf;
	struct switch_portmap *portmap;
	struct switch_port_link linkbuf;

	char buf[128];

#ifdef CONFIG_SWCONFIG_LEDS
	/* present when the framework is built with LED triggers */
	struct switch_led_trigger *led_trigger;
#endif
};

struct switch_val {
	const struct switch_attr *attr;
	unsigned int port_vlan;
	unsigned int len;
	union {
		const char *s;
		u32 i;
		struct switch_port *ports;
		struct switch_port_link *link;
	} value;
};

struct switch_attr {
	int disabled;
	int type;
	const char *name;
	const char *description;

	int (*set)(struct switch_dev *dev, const struct switch_attr *attr,
		   struct switch_val *val);
	int (*get)(struct switch_dev *dev, const struct switch_attr *attr,
		   struct switch_val *val);

	/* for the driver's own use */
	int id;
	int ofs;
	int max;
};

#endif /* _LINUX_SWITCH_H */
