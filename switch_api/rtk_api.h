/* SPDX-License-Identifier: GPL-2.0 */
/*
 * rtk_ switch API: chip-neutral records and calls over the RTL8309N
 * register layer.
 *
 * Every call checks its arguments in a fixed order and returns the first
 * failing check's code before any chip access; a failing register-layer
 * call comes back as RT_ERR_FAILED.  Result codes are the library's, from
 * the register layer's header.  Nothing here allocates, locks or keeps
 * state: the chip is the only store, outputs go through pointers.
 */
#ifndef RTK_API_H
#define RTK_API_H

#include "rtl8309n_asicdrv.h"

typedef s32 rtk_api_ret_t;	/* RT_ERR_* result code */
typedef u32 rtk_port_t;		/* port number 0..8 */
typedef u32 rtk_portmask_t;	/* bit n = port n, at most RTL8309N_PORT_MASK_ALL */
typedef u32 rtk_enable_t;	/* RTL8309N_DISABLED or RTL8309N_ENABLED */
typedef u32 rtk_port_phy_reg_t;	/* MII register number 0..31 */
typedef u32 rtk_port_phy_data_t;	/* 16-bit MII register value */

/*
 * Records and enumerations follow, one section per source file; keep each
 * section in the order of its source file.
 */

/* ---- Switch and port (rtk_port.c, rtk_switch.c) ---- */

/* Link state of a port's PHY; the proc console indexes its texts by it. */
enum rtk_port_link {
	PORT_LINKDOWN = 0,
	PORT_LINKUP = 1,
};

typedef u32 rtk_port_linkStatus_t;	/* enum rtk_port_link */

/* Line speed; 20M and 200M are the MAC port's double-rate modes. */
enum rtk_port_speed {
	PORT_SPEED_10M = 0,
	PORT_SPEED_20M = 1,
	PORT_SPEED_100M = 2,
	PORT_SPEED_200M = 3,
	PORT_SPEED_1000M = 4,
};

typedef u32 rtk_port_speed_t;		/* enum rtk_port_speed */

/* Duplex of a port's link. */
enum rtk_port_duplex {
	PORT_HALF_DUPLEX = 0,
	PORT_FULL_DUPLEX = 1,
};

typedef u32 rtk_port_duplex_t;		/* enum rtk_port_duplex */

/*
 * What a PHY auto-negotiates with (advertises) or is forced to; every field
 * is 0 or 1.  The chip has no gigabit: full1000 is never programmed.
 */
typedef struct rtk_port_phy_ability_s {
	u32 autoNegotiation;	/* 1: the PHY auto-negotiates */
	u32 half10;		/* 10 Mbit/s half duplex */
	u32 full10;		/* 10 Mbit/s full duplex */
	u32 half100;		/* 100 Mbit/s half duplex */
	u32 full100;		/* 100 Mbit/s full duplex */
	u32 full1000;		/* 1000 Mbit/s full duplex: unsupported */
	u32 flowControl;	/* symmetric PAUSE */
	u32 asymFlowControl;	/* asymmetric PAUSE */
} rtk_port_phy_ability_t;

/*
 * Maximum frame length classes, named after their length in bytes.  The
 * chip knows four limits only: 1518 (set by any of the first three classes,
 * read back as MAXPKTLEN_1522B), 2048, 16000 and a user-programmed length;
 * the last two can be read back but not set through the API.
 */
enum rtk_switch_maxPktLen {
	MAXPKTLEN_1518B = 0,
	MAXPKTLEN_1522B = 1,
	MAXPKTLEN_1526B = 2,
	MAXPKTLEN_1536B = 3,	/* 1536..1600: not offered by the chip */
	MAXPKTLEN_1552B = 4,
	MAXPKTLEN_1600B = 5,
	MAXPKTLEN_2048B = 6,
	MAXPKTLEN_16000B = 7,	/* jumbo frames; read back only */
	MAXPKTLEN_USER = 8,	/* user-programmed length; read back only */
	MAXPKTLEN_END		/* number of classes */
};

typedef u32 rtk_switch_maxPktLen_t;	/* enum rtk_switch_maxPktLen */

/* Raw MII register access to the embedded PHY of @port (0..7), page 0. */
rtk_api_ret_t rtk_port_phyReg_set(rtk_port_t port, rtk_port_phy_reg_t reg,
				  rtk_port_phy_data_t value);
rtk_api_ret_t rtk_port_phyReg_get(rtk_port_t port, rtk_port_phy_reg_t reg,
				  rtk_port_phy_data_t *pdata);

/*
 * Auto-negotiation with the abilities of @pability, restarted at once;
 * autoNegotiation in the record is set to 1.  The getter reports
 * RT_ERR_PHY_FORCE_MODE for a forced PHY, with the record filled all the same.
 */
rtk_api_ret_t rtk_port_phyAutoNegoAbility_set(rtk_port_t port, rtk_port_phy_ability_t *pability);
rtk_api_ret_t rtk_port_phyAutoNegoAbility_get(rtk_port_t port, rtk_port_phy_ability_t *pability);

/*
 * Forced mode at the fastest of full100, half100, full10 (else 10 Mbit/s
 * half duplex), with the PAUSE abilities of @pability; autoNegotiation in
 * the record is set to 0.  The getter reports RT_ERR_PHY_AUTO_NEGO_MODE for
 * an auto-negotiating PHY and then stores nothing.
 */
rtk_api_ret_t rtk_port_phyForceModeAbility_set(rtk_port_t port, rtk_port_phy_ability_t *pability);
rtk_api_ret_t rtk_port_phyForceModeAbility_get(rtk_port_t port, rtk_port_phy_ability_t *pability);

/*
 * Link, speed and duplex of @port's PHY; speed and duplex are the PHY's
 * control-register setting.  A null @pspeed or @pduplex is not an error:
 * that output is just not stored.
 */
rtk_api_ret_t rtk_port_phyStatus_get(rtk_port_t port, rtk_port_linkStatus_t *plinkStatus,
				     rtk_port_speed_t *pspeed, rtk_port_duplex_t *pduplex);

/* Ports that frames received on @port may be forwarded to. */
rtk_api_ret_t rtk_port_isolation_set(rtk_port_t port, rtk_portmask_t portmask);
rtk_api_ret_t rtk_port_isolation_get(rtk_port_t port, rtk_portmask_t *pportmask);

/* Nothing to do for this chip. */
rtk_api_ret_t rtk_switch_init(void);

/*
 * Maximum frame length.  The getter reports the class and the length in
 * bytes; a null @plen_class is not an error, the class is just not stored.
 */
rtk_api_ret_t rtk_switch_maxPktLen_set(rtk_switch_maxPktLen_t len_class);
rtk_api_ret_t rtk_switch_maxPktLen_get(rtk_switch_maxPktLen_t *plen_class, u32 *plen);

/* ---- VLAN and CPU port (rtk_vlan.c, rtk_cpu.c) ---- */

typedef u32 rtk_vlan_t;		/* 802.1Q VLAN id, 1..4094 */
typedef u32 rtk_fid_t;		/* filtering database id, 0..3 */
typedef u32 rtk_pri_t;		/* priority; its range depends on the call */

#define RTK_VLAN_ID_MIN		1
#define RTK_VLAN_ID_MAX		4094
#define RTK_VLAN_PORT_PRI_MAX	3	/* 802.1Q port priority */

/* Frames a port accepts on ingress. */
enum rtk_vlan_acceptFrameType {
	ACCEPT_FRAME_TYPE_ALL = 0,		/* tagged and untagged */
	ACCEPT_FRAME_TYPE_TAG_ONLY = 1,		/* 802.1Q-tagged only */
	ACCEPT_FRAME_TYPE_UNTAG_ONLY = 2,	/* untagged (and priority-tagged) only */
	ACCEPT_FRAME_TYPE_END			/* number of types */
};

typedef u32 rtk_vlan_acceptFrameType_t;	/* enum rtk_vlan_acceptFrameType */

/* Whether frames sent to the CPU port carry the CPU tag naming their ingress port. */
enum rtk_cpu_insert {
	CPU_INSERT_TO_NONE = 0,	/* no CPU tag (any value but 1 means this) */
	CPU_INSERT_TO_ALL = 1,	/* every frame to the CPU port is tagged */
};

typedef u32 rtk_cpu_insert_t;	/* enum rtk_cpu_insert */

/* VLAN block defaults: VLAN 1 in entry 0 with every port, the PVID of all. */
rtk_api_ret_t rtk_vlan_init(void);

/*
 * Creates or updates VLAN @vid; with both masks empty it deletes the VLAN
 * (or creates nothing).  RT_ERR_TBL_FULL when all 16 entries are in use.
 */
rtk_api_ret_t rtk_vlan_set(rtk_vlan_t vid, rtk_portmask_t mbrmsk, rtk_portmask_t untagmsk,
			   rtk_fid_t fid);
rtk_api_ret_t rtk_vlan_get(rtk_vlan_t vid, rtk_portmask_t *pmbrmsk, rtk_portmask_t *puntagmsk,
			   rtk_fid_t *pfid);
rtk_api_ret_t rtk_vlan_destroy(rtk_vlan_t vid);

/*
 * Port VLAN id (which must name an existing VLAN) and 802.1Q port priority
 * 0..3.  The getter reports PVID 0 once the VLAN has been deleted.
 */
rtk_api_ret_t rtk_vlan_portPvid_set(rtk_port_t port, rtk_vlan_t pvid, rtk_pri_t priority);
rtk_api_ret_t rtk_vlan_portPvid_get(rtk_port_t port, rtk_vlan_t *ppvid, rtk_pri_t *ppriority);

/*
 * VLAN ingress filtering.  The chip has one filter for all ports: @port is
 * checked and otherwise ignored.
 */
rtk_api_ret_t rtk_vlan_portIFilterEnable_set(rtk_port_t port, rtk_enable_t enable);
rtk_api_ret_t rtk_vlan_portIFilterEnable_get(rtk_port_t port, rtk_enable_t *penable);

rtk_api_ret_t rtk_vlan_portAcceptFrameType_set(rtk_port_t port,
					       rtk_vlan_acceptFrameType_t accept_frame_type);
rtk_api_ret_t rtk_vlan_portAcceptFrameType_get(rtk_port_t port,
					       rtk_vlan_acceptFrameType_t *paccept_frame_type);

/* The chip's CPU port function as a whole. */
rtk_api_ret_t rtk_cpu_enable_set(rtk_enable_t enable);
rtk_api_ret_t rtk_cpu_enable_get(rtk_enable_t *penable);

/*
 * Makes @port the CPU port (tag awareness, tag removal, learning and CRC
 * check on, 802.1X off on the port).  The getter fails while no CPU port is
 * set, with *pport already holding the chip's "none" value 9.
 */
rtk_api_ret_t rtk_cpu_tagPort_set(rtk_port_t port, rtk_cpu_insert_t mode);
rtk_api_ret_t rtk_cpu_tagPort_get(rtk_port_t *pport, rtk_cpu_insert_t *pmode);

/* ---- QoS and rate (rtk_qos.c, rtk_rate.c) ---- */

typedef u32 rtk_queue_num_t;	/* number of output queues per port, 1..4 */
typedef u32 rtk_qid_t;		/* output queue 0 .. number of queues - 1 */
typedef u32 rtk_dscp_t;		/* DiffServ code point, 0..63 */
typedef u32 rtk_rate_t;		/* bandwidth in 64 kbit/s steps (1600: 102.4 Mbit/s) */

#define RTK_MAX_NUM_OF_QUEUE	4
#define RTK_PRI_MAX		3	/* internal priority 0..3 */
#define RTK_DOT1P_PRI_MAX	7	/* 802.1p user priority 0..7 */
#define RTK_DSCP_MAX		63

/* Sources a port may take a frame's internal priority from. */
enum rtk_qos_priSrc {
	PRI_SRC_ACL = 0,	/* the matching ACL rule's priority */
	PRI_SRC_IP_ADDR = 1,	/* the IP-address priority entries */
	PRI_SRC_DSCP = 2,	/* the DSCP remapping table */
	PRI_SRC_PORT = 3,	/* the port-based priority */
	PRI_SRC_DOT1Q = 4,	/* the 802.1Q tag's priority, remapped */
	PRI_SRC_END		/* number of sources */
};

typedef u32 rtk_qos_priSrc_t;	/* enum rtk_qos_priSrc */

/*
 * Weights of the priority sources when several apply to a frame, each
 * 0..3; the field order is the chip's weight 0..3.
 */
typedef struct rtk_priority_select_s {
	u32 port_pri;		/* port-based priority */
	u32 dot1q_pri;		/* 802.1Q tag priority */
	u32 dscp_pri;		/* DSCP priority */
	u32 acl_pri;		/* ACL priority */
} rtk_priority_select_t;

/* Output queue of each internal priority. */
typedef struct rtk_qos_pri2queue_s {
	rtk_qid_t pri2queue[RTK_PRI_MAX + 1];	/* indexed by internal priority */
} rtk_qos_pri2queue_t;

/*
 * @queue_num queues on every port with an even priority-to-queue map, flow
 * control on, then a QoS soft reset.  Any @queue_num outside 1..4 (0 too)
 * fails with nothing written.
 */
rtk_api_ret_t rtk_qos_init(rtk_queue_num_t queue_num);

rtk_api_ret_t rtk_qos_priSrcEnable_set(rtk_port_t port, rtk_qos_priSrc_t type,
				       rtk_enable_t enable);
rtk_api_ret_t rtk_qos_priSrcEnable_get(rtk_port_t port, rtk_qos_priSrc_t type,
				       rtk_enable_t *penable);

rtk_api_ret_t rtk_qos_priSel_set(rtk_priority_select_t *ppriDec);
rtk_api_ret_t rtk_qos_priSel_get(rtk_priority_select_t *ppriDec);

/* Internal priority of 802.1p priority @dot1p_pri. */
rtk_api_ret_t rtk_qos_1pPriRemap_set(rtk_pri_t dot1p_pri, rtk_pri_t int_pri);
rtk_api_ret_t rtk_qos_1pPriRemap_get(rtk_pri_t dot1p_pri, rtk_pri_t *pint_pri);

/* Internal priority of DSCP @dscp. */
rtk_api_ret_t rtk_qos_dscpPriRemap_set(rtk_dscp_t dscp, rtk_pri_t int_pri);
rtk_api_ret_t rtk_qos_dscpPriRemap_get(rtk_dscp_t dscp, rtk_pri_t *pint_pri);

/* Port-based internal priority. */
rtk_api_ret_t rtk_qos_portPri_set(rtk_port_t port, rtk_pri_t int_pri);
rtk_api_ret_t rtk_qos_portPri_get(rtk_port_t port, rtk_pri_t *pint_pri);

/*
 * Priority-to-queue map of @port.  The setter also makes @queue_num the
 * chip-wide number of queues and stops at the first queue id out of range,
 * leaving the lower priorities written.
 */
rtk_api_ret_t rtk_qos_priMap_set(rtk_port_t port, rtk_queue_num_t queue_num,
				 rtk_qos_pri2queue_t *ppri2qid);
rtk_api_ret_t rtk_qos_priMap_get(rtk_port_t port, rtk_queue_num_t queue_num,
				 rtk_qos_pri2queue_t *ppri2qid);

/* 802.1p re-marking of frames sent from @port. */
rtk_api_ret_t rtk_qos_1pRemarkEnable_set(rtk_port_t port, rtk_enable_t enable);
rtk_api_ret_t rtk_qos_1pRemarkEnable_get(rtk_port_t port, rtk_enable_t *penable);

/* 802.1p priority written into the tag of frames of internal priority @int_pri. */
rtk_api_ret_t rtk_qos_1pRemark_set(rtk_pri_t int_pri, rtk_pri_t dot1p_pri);
rtk_api_ret_t rtk_qos_1pRemark_get(rtk_pri_t int_pri, rtk_pri_t *pdot1p_pri);

/*
 * Ingress and egress rate limit of @port, at most 3200 on ports 0 and 8 and
 * 1600 on the others; @ifg_include 1 counts the inter-frame gap towards the
 * rate.
 */
rtk_api_ret_t rtk_rate_igrBandwidthCtrlRate_set(rtk_port_t port, rtk_rate_t rate,
						rtk_enable_t ifg_include);
rtk_api_ret_t rtk_rate_igrBandwidthCtrlRate_get(rtk_port_t port, rtk_rate_t *prate,
						rtk_enable_t *pifg_include);
rtk_api_ret_t rtk_rate_egrBandwidthCtrlRate_set(rtk_port_t port, rtk_rate_t rate,
						rtk_enable_t ifg_include);
rtk_api_ret_t rtk_rate_egrBandwidthCtrlRate_get(rtk_port_t port, rtk_rate_t *prate,
						rtk_enable_t *pifg_include);

/* ---- ACL, mirror, counters (rtk_filter.c, rtk_mirror.c, rtk_stat.c) ---- */

/* What an ACL rule does with a matching frame; the value is the chip's action field. */
enum rtk_filter_aclAction {
	RTK_ACL_ACT_DROP = 0,
	RTK_ACL_ACT_PERMIT = 1,		/* forward normally, at the rule's priority */
	RTK_ACL_ACT_TRAP_CPU = 2,	/* to the CPU port instead */
	RTK_ACL_ACT_MIRROR = 3,		/* forward, and copy to the mirror port */
};

/* What the 16-bit data of an ACL rule is compared with. */
enum rtk_filter_aclProto {
	RTK_ACL_PROTO_ETHERTYPE = 0,	/* the frame's EtherType */
	RTK_ACL_PROTO_TCP = 1,		/* a TCP port number */
	RTK_ACL_PROTO_UDP = 2,		/* a UDP port number */
	RTK_ACL_PROTO_TCPUDP = 3,	/* a TCP or UDP port number */
};

#define RTK_ACL_ENTRY_NUM	RTL8309N_ACL_ENTRY_NUM	/* rules the chip holds */
#define RTK_ACL_PORT_FREE	9	/* port value of an unused table entry */
#define RTK_ACL_PORT_MAX	10	/* highest port a rule add takes (get/delete: 8) */

/*
 * An ingress ACL rule.  The table keeps at most one entry per key
 * (port, protocol, data); adding an existing key updates its priority and
 * action in place.
 */
typedef struct acl_rule_s {
	u32 port;	/* ingress port 0..8; 9 is the free-entry marker */
	u32 protocol;	/* enum rtk_filter_aclProto */
	u32 data;	/* EtherType or L4 port; only the low 16 bits reach the chip */
	u32 priority;	/* internal priority 0..3 given to matching frames */
	u32 action;	/* enum rtk_filter_aclAction */
} acl_rule;

/* Every entry free.  A failure stops at that entry, the earlier ones are free. */
rtk_api_ret_t rtk_filter_igrAcl_init(void);
/* Updates the entry of the rule's key, else takes the first free one (RT_ERR_TBL_FULL). */
rtk_api_ret_t rtk_filter_igrAcl_rule_add(acl_rule *prule);
/* Fills priority and action of the entry keyed like @prule; none: RT_ERR_FAILED. */
rtk_api_ret_t rtk_filter_igrAcl_rule_get(acl_rule *prule);
/* Frees the entry keyed like @prule; none: RT_ERR_INPUT. */
rtk_api_ret_t rtk_filter_igrAcl_rule_del(acl_rule *prule);

/*
 * Port-based mirroring: frames received on the ports of the rx mask and
 * sent by the ports of the tx mask are copied to the mirror port.  A set
 * also turns the chip's mirror self-filter on.
 */
rtk_api_ret_t rtk_mirror_portBased_set(rtk_port_t mirroring_port, rtk_portmask_t *prx_mask,
				       rtk_portmask_t *ptx_mask);
rtk_api_ret_t rtk_mirror_portBased_get(rtk_port_t *pmirroring_port, rtk_portmask_t *prx_mask,
				       rtk_portmask_t *ptx_mask);
/* MAC-based mirroring of the frames of one address.  A null @mac is RT_ERR_FAILED. */
rtk_api_ret_t rtk_mirror_macBased_set(const u8 *mac, rtk_enable_t enable);
rtk_api_ret_t rtk_mirror_macBased_get(u8 *mac, rtk_enable_t *penable);

/*
 * Per-port counters.  A byte counter is 64 bits, delivered as four 16-bit
 * words, least significant first; a packet counter is 32 bits.
 */
enum rtk_mib_counter {
	RTK_MIB_TX_BYTES = 0,	/* transmitted bytes (ids 0 and 1) */
	RTK_MIB_RX_BYTES = 2,	/* received bytes (ids 2 and 3) */
	RTK_MIB_PKT_FIRST = 4,	/* packet counters 4..15 */
	RTK_MIB_PKT_LAST = 15,
};

typedef u32 rtk_mib_counter_t;		/* enum rtk_mib_counter */
#define RTK_MIB_CNTVAL_WORDS	4	/* size of the result area of rtk_mib_get */

/*
 * Read @counter of @port into @cntVal (RTK_MIB_CNTVAL_WORDS words): a byte
 * counter fills all four, a packet counter word 0.  Ids 1 and 3 are the
 * upper halves of the byte counters: nothing is read, RT_ERR_OK.
 */
rtk_api_ret_t rtk_mib_get(rtk_port_t port, rtk_mib_counter_t counter, u32 *cntVal);
/* Zero the counters of @port (0..8) and leave counting on. */
rtk_api_ret_t rtk_stat_port_reset(rtk_port_t port);
/*
 * The reset itself, without the API's port check, for callers that chose
 * the port themselves; a failure is RT_ERR_STAT_PORT_CNTR_FAIL.
 */
rtk_api_ret_t rtk_stat_portCntr_reset(rtk_port_t port);

/* ---- L2 table (rtk_l2.c) ---- */

#define RTK_MAC_ADDR_LEN	RTL8309N_MAC_LEN	/* bytes, byte 0 first on the wire */
#define RTK_L2_FID_MAX		RTL8309N_L2_MAX_FID	/* filtering ids 0..3 */
#define RTK_L2_AGE_STEP		100	/* API age per chip age code */
#define RTK_L2_AGE_MAX		300	/* age of a fresh entry (chip code 3) */

/*
 * A unicast address of the L2 table.  Every flag is 0 or 1.  The age is the
 * chip's 2-bit age code times RTK_L2_AGE_STEP: 0 (aged out), 100, 200, 300.
 */
typedef struct rtk_l2_ucastAddr_s {
	u8 auth;	/* authorised by MAC-based 802.1X */
	u8 block10;	/* address block flag, entry bit 10 */
	u8 block9;	/* address block flag, entry bit 9 */
	u8 isStatic;	/* kept by aging and never replaced by learning */
	u8 port;	/* port the address is reached through, 0..8 */
	u8 fid;		/* filtering id stored in the entry, 0..3 */
	u32 age;	/* 0, 100, 200 or 300 */
	u8 mac[RTK_MAC_ADDR_LEN];	/* unicast address stored in the entry */
} rtk_l2_ucastAddr_t;

/* What the chip does with a frame whose source would exceed a learning limit. */
enum rtk_l2_limitLearnAction {
	RTK_L2_LIMIT_ACT_DROP = 0,
	RTK_L2_LIMIT_ACT_TRAP_CPU = 2,
};

typedef u32 rtk_l2_limitLearnCntAction_t;	/* enum rtk_l2_limitLearnAction */

/*
 * Unicast addresses keyed by (mac, fid): the key picks the hash bucket,
 * @paddr is what is written.  A bucket without a free or learned way is
 * RT_ERR_L2_NO_EMPTY_ENTRY; an unknown address RT_ERR_L2_ENTRY_NOTFOUND.
 * The delete takes fid 4, which the chip then refuses (RT_ERR_FAILED).
 */
rtk_api_ret_t rtk_l2_addr_add(const u8 *mac, u32 fid, const rtk_l2_ucastAddr_t *paddr);
rtk_api_ret_t rtk_l2_addr_get(const u8 *mac, u32 fid, rtk_l2_ucastAddr_t *paddr);
rtk_api_ret_t rtk_l2_addr_del(const u8 *mac, u32 fid);

/*
 * Multicast addresses with their member ports.  The add reports a bucket
 * without a replaceable way as success, writing nothing.
 */
rtk_api_ret_t rtk_l2_mcastAddr_add(const u8 *mac, u32 fid, rtk_portmask_t portmask);
rtk_api_ret_t rtk_l2_mcastAddr_get(const u8 *mac, u32 fid, rtk_portmask_t *pportmask);
rtk_api_ret_t rtk_l2_mcastAddr_del(const u8 *mac, u32 fid);

/* System-wide learning limit: its enable and its two values (8 and 9 bits). */
rtk_api_ret_t rtk_l2_limitLearningSysCntEnable_set(rtk_enable_t enable);
rtk_api_ret_t rtk_l2_limitLearningSysCntEnable_get(rtk_enable_t *penable);
rtk_api_ret_t rtk_l2_limitLearningSysCnt_set(u32 mac_cnt_a, u32 mac_cnt_b);
rtk_api_ret_t rtk_l2_limitLearningSysCnt_get(u32 *pmac_cnt_a, u32 *pmac_cnt_b);

/* Per-port learning limit, 0..31 addresses. */
rtk_api_ret_t rtk_l2_limitLearningCntEnable_set(rtk_port_t port, rtk_enable_t enable);
rtk_api_ret_t rtk_l2_limitLearningCntEnable_get(rtk_port_t port, rtk_enable_t *penable);
rtk_api_ret_t rtk_l2_limitLearningCnt_set(rtk_port_t port, u32 mac_cnt);
rtk_api_ret_t rtk_l2_limitLearningCnt_get(rtk_port_t port, u32 *pmac_cnt);

/* The limit action is chip-wide: @port is not looked at. */
rtk_api_ret_t rtk_l2_limitLearningCntAction_set(rtk_port_t port,
						rtk_l2_limitLearnCntAction_t action);
rtk_api_ret_t rtk_l2_limitLearningCntAction_get(rtk_port_t port,
						rtk_l2_limitLearnCntAction_t *paction);

/* Addresses learned so far, system-wide and per port. */
rtk_api_ret_t rtk_l2_learningSysCnt_get(u32 *pmac_cnt);
rtk_api_ret_t rtk_l2_learningCnt_get(rtk_port_t port, u32 *pmac_cnt);

/* ---- STP, 802.1X, trap, storm (rtk_stp.c, rtk_dot1x.c, rtk_trap.c, rtk_storm.c) ---- */

/* Spanning-tree state of a port. */
enum rtk_stp_state {
	RTK_STP_STATE_DISABLED = 0,
	RTK_STP_STATE_BLOCKING = 1,	/* also listening */
	RTK_STP_STATE_LEARNING = 2,
	RTK_STP_STATE_FORWARDING = 3,
};

typedef u32 rtk_stp_state_t;		/* enum rtk_stp_state */
typedef u32 rtk_stp_msti_id_t;		/* spanning-tree instance: the chip has one */

/*
 * The state of @port; @msti is not looked at.  The getter leaves @pstate
 * alone (and succeeds) when the chip's register holds more than a state.
 */
rtk_api_ret_t rtk_stp_mstpState_set(rtk_stp_msti_id_t msti, rtk_port_t port,
				    rtk_stp_state_t state);
rtk_api_ret_t rtk_stp_mstpState_get(rtk_stp_msti_id_t msti, rtk_port_t port,
				    rtk_stp_state_t *pstate);

/* What happens to frames from unauthorised ports and addresses. */
enum rtk_dot1x_unauthOper {
	RTK_DOT1X_UNAUTH_DROP = 0,
	RTK_DOT1X_UNAUTH_TRAP_CPU = 1,
};

typedef u32 rtk_dot1x_unauth_action_t;	/* enum rtk_dot1x_unauthOper */

/* Port-based authorisation state; the setter also takes 2, as unauthorised. */
enum rtk_dot1x_authStatus {
	RTK_DOT1X_UNAUTHORIZED = 0,
	RTK_DOT1X_AUTHORIZED = 1,
};

typedef u32 rtk_dot1x_auth_status_t;	/* enum rtk_dot1x_authStatus */

/*
 * Which traffic of an unauthorised port or address is controlled; the
 * MAC-based setter also takes 2, as "in".
 */
enum rtk_dot1x_direction {
	RTK_DOT1X_DIRECTION_BOTH = 0,	/* received and sent frames */
	RTK_DOT1X_DIRECTION_IN = 1,	/* received frames only */
};

typedef u32 rtk_dot1x_direction_t;	/* enum rtk_dot1x_direction */

/* Unauthorised-packet operation; chip-wide, @port is not looked at. */
rtk_api_ret_t rtk_dot1x_unauthPacketOper_set(rtk_port_t port,
					     rtk_dot1x_unauth_action_t unauth_action);
rtk_api_ret_t rtk_dot1x_unauthPacketOper_get(rtk_port_t port,
					     rtk_dot1x_unauth_action_t *punauth_action);

rtk_api_ret_t rtk_dot1x_portBasedEnable_set(rtk_port_t port, rtk_enable_t enable);
rtk_api_ret_t rtk_dot1x_portBasedEnable_get(rtk_port_t port, rtk_enable_t *penable);
rtk_api_ret_t rtk_dot1x_portBasedAuthStatus_set(rtk_port_t port,
						rtk_dot1x_auth_status_t port_auth);
rtk_api_ret_t rtk_dot1x_portBasedAuthStatus_get(rtk_port_t port,
						rtk_dot1x_auth_status_t *pport_auth);
rtk_api_ret_t rtk_dot1x_portBasedDirection_set(rtk_port_t port,
					       rtk_dot1x_direction_t port_direction);
rtk_api_ret_t rtk_dot1x_portBasedDirection_get(rtk_port_t port,
					       rtk_dot1x_direction_t *pport_direction);

rtk_api_ret_t rtk_dot1x_macBasedEnable_set(rtk_port_t port, rtk_enable_t enable);
rtk_api_ret_t rtk_dot1x_macBasedEnable_get(rtk_port_t port, rtk_enable_t *penable);
/* The MAC-based direction is chip-wide. */
rtk_api_ret_t rtk_dot1x_macBasedDirection_set(rtk_dot1x_direction_t mac_direction);
rtk_api_ret_t rtk_dot1x_macBasedDirection_get(rtk_dot1x_direction_t *pmac_direction);

/*
 * Mark an address already in the L2 table as authorised (add) or not (del):
 * only the first entry of the bucket holding @mac changes, and only in its
 * authorised flag.  No entry: RT_ERR_L2_ENTRY_NOTFOUND.
 */
rtk_api_ret_t rtk_dot1x_macBasedAuthMac_add(const u8 *mac, u32 fid);
rtk_api_ret_t rtk_dot1x_macBasedAuthMac_del(const u8 *mac, u32 fid);

/* Two classes of unknown IP multicast. */
enum rtk_trap_mcastType {
	RTK_TRAP_MCAST_IPV4 = 1,
	RTK_TRAP_MCAST_IPV6 = 2,
};

typedef u32 rtk_mcast_type_t;		/* enum rtk_trap_mcastType */

enum rtk_trap_mcastAction {
	RTK_TRAP_MCAST_FORWARD = 0,
	RTK_TRAP_MCAST_DROP = 1,
};

typedef u32 rtk_trap_mcast_action_t;	/* enum rtk_trap_mcastAction */

/* Unknown multicast handling is chip-wide: @port is checked, not used. */
rtk_api_ret_t rtk_trap_unknownMcastPktAction_set(rtk_port_t port, rtk_mcast_type_t type,
						 rtk_trap_mcast_action_t mcast_action);
rtk_api_ret_t rtk_trap_unknownMcastPktAction_get(rtk_port_t port, rtk_mcast_type_t type,
						 rtk_trap_mcast_action_t *pmcast_action);

/*
 * IGMP/MLD control-packet classes 0..3, numbered as the chip's reserved
 * multicast table lists them, and their actions.  Action 1 is passed to the
 * chip as it stands; 4 is taken as forward.
 */
typedef u32 rtk_igmp_type_t;		/* 0..3 */
enum rtk_trap_igmpAction {
	RTK_TRAP_IGMP_FORWARD = 0,
	RTK_TRAP_IGMP_TRAP_CPU = 2,
	RTK_TRAP_IGMP_DROP = 3,
	RTK_TRAP_IGMP_FORWARD_ALT = 4,	/* read back as RTK_TRAP_IGMP_FORWARD */
};

typedef u32 rtk_trap_igmp_action_t;	/* enum rtk_trap_igmpAction */

rtk_api_ret_t rtk_trap_igmpCtrlPktAction_set(rtk_igmp_type_t type,
					     rtk_trap_igmp_action_t igmp_action);
rtk_api_ret_t rtk_trap_igmpCtrlPktAction_get(rtk_igmp_type_t type,
					     rtk_trap_igmp_action_t *pigmp_action);

/*
 * Storm filters: four per port, types 0..3.  Types 1 and 2 share one
 * filter of the chip; enabling either, or setting its attributes, hands the
 * filter to that type.
 */
#define RTK_STORM_TYPE_MAX	3
typedef u32 rtk_rate_storm_group_t;	/* storm type 0..3 */

/* Rate attributes of a storm filter, in the chip's units. */
typedef struct rtk_storm_attr_s {
	u32 ctrlFlag;	/* the filter's control flag, 0 or 1 */
	u32 rate;	/* 17-bit rate threshold */
	u32 param;	/* 16-bit second parameter */
	u32 globalFlag;	/* storm flag shared by every port and type, 0 or 1 */
} rtk_storm_attr_t;

rtk_api_ret_t rtk_storm_filterEnable_set(rtk_port_t port, rtk_rate_storm_group_t storm_type,
					 rtk_enable_t enable);
rtk_api_ret_t rtk_storm_filterEnable_get(rtk_port_t port, rtk_rate_storm_group_t storm_type,
					 rtk_enable_t *penable);
rtk_api_ret_t rtk_storm_filterAttr_set(rtk_port_t port, rtk_rate_storm_group_t storm_type,
				       rtk_storm_attr_t *pstorm_data);
rtk_api_ret_t rtk_storm_filterAttr_get(rtk_port_t port, rtk_rate_storm_group_t storm_type,
				       rtk_storm_attr_t *pstorm_data);
/* The filter's status bit, as the chip reports and takes it. */
rtk_api_ret_t rtk_storm_filterStatus_set(rtk_port_t port, rtk_rate_storm_group_t storm_type,
					 rtk_enable_t enable);
rtk_api_ret_t rtk_storm_filterStatus_get(rtk_port_t port, rtk_rate_storm_group_t storm_type,
					 rtk_enable_t *penable);

#endif /* RTK_API_H */
