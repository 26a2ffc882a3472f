/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N family register layer: result codes, port vocabulary, the two
 * SMI transport hooks and every rtl8309n_ operation, grouped by chip block.
 *
 * Every operation returns RT_ERR_OK or RT_ERR_FAILED (the L2 address
 * operations add RTL8309N_L2_BUCKET_FULL and RTL8309N_L2_NOT_FOUND), checks
 * its arguments before touching the bus and keeps no state: the chip is the
 * only store.  Callers serialise register sequences; nothing here locks.
 */
#ifndef RTL8309N_ASICDRV_H
#define RTL8309N_ASICDRV_H

#include "rtl8309n_types.h"

/* ---- Result codes of the whole library (register layer and rtk_ API) ---- */
#define RT_ERR_OK				0
#define RT_ERR_FAILED				(-1)	/* 0xFFFFFFFF */
#define RT_ERR_INPUT				1
#define RT_ERR_PORT_ID				3
#define RT_ERR_PORT_MASK			4
#define RT_ERR_NULL_POINTER			7
#define RT_ERR_QUEUE_ID				8
#define RT_ERR_QUEUE_NUM			9
#define RT_ERR_MAC				11
#define RT_ERR_NOT_ALLOWED			17
#define RT_ERR_ENABLE				21
#define RT_ERR_TBL_FULL				22
#define RT_ERR_VLAN_VID				0x100
#define RT_ERR_VLAN_PRIORITY			0x101
#define RT_ERR_VLAN_ACCEPT_FRAME_TYPE		0x103
#define RT_ERR_VLAN_ENTRY_NOT_FOUND		0x105
#define RT_ERR_MSTP_STATE			0x301
#define RT_ERR_LIMITED_L2ENTRY_NUM		0x605
#define RT_ERR_L2_FID				0x607
#define RT_ERR_L2_ENTRY_NOTFOUND		0x60A
#define RT_ERR_L2_NO_EMPTY_ENTRY		0x60B
#define RT_ERR_INBW_RATE			0xC05
#define RT_ERR_QOS_DSCP_VALUE			0xD01
#define RT_ERR_QOS_1P_PRIORITY			0xD02
#define RT_ERR_QOS_EBW_RATE			0xD07
#define RT_ERR_PHY_FORCE_MODE			0xE03
#define RT_ERR_PHY_AUTO_NEGO_MODE		0xE06
#define RT_ERR_STAT_PORT_CNTR_FAIL		0x1003
#define RT_ERR_DOT1X_PORTBASEDAUTH		0x1102
#define RT_ERR_DOT1X_PORTBASEDOPDIR		0x1103
#define RT_ERR_DOT1X_MACBASEDOPDIR		0x1105
#define RT_ERR_DOT1X_UNAUTH_OPER		0x1106
#define RT_ERR_DOT1X_MAC			0x1109
#define RTL8309N_L2_BUCKET_FULL			(-2)	/* 0xFFFFFFFE */
#define RTL8309N_L2_NOT_FOUND			(-3)	/* 0xFFFFFFFD */

/* ---- Ports, masks, enable values ---- */
#define RTL8309N_MAX_PORT		8	/* ports 0..8; 8 is the MAC (CPU) port */
#define RTL8309N_MAX_PHY_PORT		7	/* embedded PHYs at SMI addresses 0..7 */
#define RTL8309N_PORT_NUMBER		9
#define RTL8309N_PORT_MASK_ALL		0x1FF
#define RTL8309N_MAX_SMI_ADDR		8
#define RTL8309N_MAX_SWITCH_PAGE	17
#define RTL8309N_MAX_PHY_PAGE		18

#define RTL8309N_DISABLED		0
#define RTL8309N_ENABLED		1

/* ---- SMI transport: the only way the library reaches the chip ---- */
typedef int (*rtl8309n_smi_write_fn)(u32 phyad, u32 regad, u32 value);
typedef int (*rtl8309n_smi_read_fn)(u32 phyad, u32 regad, u32 *value);

extern rtl8309n_smi_write_fn psmiWrite;
extern rtl8309n_smi_read_fn psmiRead;

void register_smiwrite(rtl8309n_smi_write_fn fn);
void register_smiRead(rtl8309n_smi_read_fn fn);

/* ---- Register access primitives ---- */
s32 rtl8309n_reg_set(u32 phyad, u32 regad, u32 npage, u16 value);
s32 rtl8309n_reg_get(u32 phyad, u32 regad, u32 npage, u32 *pvalue);
s32 rtl8309n_regbit_set(u32 phyad, u32 regad, u32 bit, u32 npage, u32 value);
s32 rtl8309n_regbit_get(u32 phyad, u32 regad, u32 bit, u32 npage, u32 *pvalue);
s32 rtl8309n_phyReg_set(u32 phyad, u32 regad, u32 npage, u16 value);
s32 rtl8309n_phyReg_get(u32 phyad, u32 regad, u32 npage, u32 *pvalue);
s32 rtl8309n_phyRegBit_set(u32 phyad, u32 regad, u32 bit, u32 npage, u32 value);
s32 rtl8309n_phyRegBit_get(u32 phyad, u32 regad, u32 bit, u32 npage, u32 *pvalue);

/*
 * Block operations follow, one section per source file.  Keep each section
 * in the order of its source file.
 */

/* ---- Chip initialisation, PHY reset, maximum packet length (rtl8309n_switch.c) ---- */

/* Maximum frame length modes of the chip. */
#define RTL8309N_MAXPKTLEN_1518		0
#define RTL8309N_MAXPKTLEN_USER		1	/* length programmed, 0..4095 */
#define RTL8309N_MAXPKTLEN_2048		2
#define RTL8309N_MAXPKTLEN_16000	3

/* Nothing to set up on this chip. */
s32 rtl8309n_asic_init(void);
/* Software reset of the embedded PHY @phy (0..7); see the poll notes in the source. */
s32 rtl8309n_phy_reset(u32 phy);
/* @len is used by RTL8309N_MAXPKTLEN_USER only (bits 11..0). */
s32 rtl8309n_switch_maxPktLen_set(u32 type, u32 len);
s32 rtl8309n_switch_maxPktLen_get(u32 *ptype, u32 *plen);

/* ---- Port MAC and PHY control (rtl8309n_port.c) ---- */

/* Interface modes of the MAC port (port 8); 0 and 1 run at double rate. */
#define RTL8309N_EXT0_MODE_NUM		6

/* Speeds of the MAC port record; the double rates follow from the mode. */
#define RTL8309N_PORT_SPEED_10M		0
#define RTL8309N_PORT_SPEED_20M		1
#define RTL8309N_PORT_SPEED_100M	2
#define RTL8309N_PORT_SPEED_200M	3

/*
 * Forced link (or, from rtl8309n_port_macAbilityExt0_get, the status) of the
 * MAC port.  Flags are 1 or 0; nway is not part of the status.
 */
struct rtl8309n_port_macAbility {
	u32 speed;	/* RTL8309N_PORT_SPEED_* */
	u32 duplex;	/* 1: full duplex */
	u32 link;	/* 1: link up */
	u32 nway;	/* 1: auto-negotiation, 0: forced */
	u32 txpause;	/* 1: sends PAUSE frames */
	u32 rxpause;	/* 1: obeys PAUSE frames */
};

/* Embedded PHYs, ports 0..7 (PHY 7's link is not read: reported down). */
s32 rtl8309n_port_phyLinkStatus_get(u32 port, u32 *plinkStatus);
s32 rtl8309n_port_phyAutoNegoDone_get(u32 port, u32 *pdone);
s32 rtl8309n_port_phyLoopback_set(u32 port, u32 enabled);
s32 rtl8309n_port_phyLoopback_get(u32 port, u32 *penabled);
/* Ports 0..8. */
s32 rtl8309n_port_MacLearnEnable_set(u32 port, u32 enabled);
s32 rtl8309n_port_MacLearnEnable_get(u32 port, u32 *penabled);
s32 rtl8309n_port_isolation_set(u32 port, u32 portmask);
s32 rtl8309n_port_isolation_get(u32 port, u32 *pportmask);
/* The MAC port: mode 0..5 and forced link. */
s32 rtl8309n_port_macForceLinkExt0_set(u32 mode, const struct rtl8309n_port_macAbility *pability);
s32 rtl8309n_port_macForceLinkExt0_get(u32 *pmode, struct rtl8309n_port_macAbility *pability);
s32 rtl8309n_port_macAbilityExt0_get(u32 *pmode, struct rtl8309n_port_macAbility *pstatus);

/* ---- CPU port and CPU tag (rtl8309n_cpu.c) ---- */

#define RTL8309N_CPU_PORT_NONE		9	/* port number meaning "no CPU port" */
/* Actions for a CPU tag received on another port. */
#define RTL8309N_CPU_NONCPU_RXTAG_ACT_0	0
#define RTL8309N_CPU_NONCPU_RXTAG_ACT_3	3

/* Enable setters take exactly 1 as enable. */
s32 rtl8309n_cpu_enable_set(s32 enabled);
s32 rtl8309n_cpu_enable_get(u32 *penabled);
s32 rtl8309n_cpu_portNumber_set(u32 port);
s32 rtl8309n_cpu_portNumber_get(u32 *pport);
s32 rtl8309n_cpu_cpuTagAwareEnable_set(s32 enabled);
s32 rtl8309n_cpu_cpuTagAwareEnable_get(u32 *penabled);
s32 rtl8309n_cpu_tagInsertEnable_set(s32 enabled);
s32 rtl8309n_cpu_tagInsertEnable_get(u32 *penabled);
s32 rtl8309n_cpu_tagRemoveEnable_set(s32 enabled);
s32 rtl8309n_cpu_tagRemoveEnable_get(u32 *penabled);
s32 rtl8309n_cpu_nonCpuPortRxCpuTag_set(u32 action);
s32 rtl8309n_cpu_nonCpuPortRxCpuTag_get(u32 *paction);
s32 rtl8309n_cpu_learnEnable_set(s32 enabled);
s32 rtl8309n_cpu_learnEnable_get(u32 *penabled);
s32 rtl8309n_cpu_checkCrcEnable_set(s32 enabled);
s32 rtl8309n_cpu_checkCrcEnable_get(u32 *penabled);
/* Port 0..9; 9 names no bit: set writes nothing, get reports 0. */
s32 rtl8309n_cpu_tagInsertMask_set(u32 port, s32 enabled);
s32 rtl8309n_cpu_tagInsertMask_get(u32 port, u32 *penabled);
/* The CPU port (9: none) and whether CPU tags are inserted towards it. */
s32 rtl8309n_cpu_port_get(u32 *pport, u32 *ptag);
/* Make @port (0..8) the CPU port, with CPU-tag insertion when @tag != 0. */
s32 rtl8309n_cpu_port_set(u32 port, u32 tag);

/* ---- ACL table (rtl8309n_acl.c) ---- */

#define RTL8309N_ACL_ENTRY_NUM		16
#define RTL8309N_ACL_MAX_PORT		10	/* 9 marks a free entry */

/* What the entry's 16-bit data is compared with. */
#define RTL8309N_ACL_PROTO_ETHERTYPE	0
#define RTL8309N_ACL_PROTO_TCP_PORT	1
#define RTL8309N_ACL_PROTO_UDP_PORT	2
#define RTL8309N_ACL_PROTO_TCPUDP_PORT	3

/*
 * Register-layer action codes of an entry.  Code 1 is a second spelling
 * of drop: it is stored as the chip's drop value and so reads back as 3.
 */
#define RTL8309N_ACL_ACT_PERMIT		0
#define RTL8309N_ACL_ACT_DROP_ALT	1
#define RTL8309N_ACL_ACT_TRAP_CPU	2
#define RTL8309N_ACL_ACT_DROP		3
#define RTL8309N_ACL_ACT_MIRROR		4
#define RTL8309N_ACL_ACT_MAX		4

typedef struct acl_entry {
	u32 priority;	/* 0..3, internal priority of matching frames */
	u32 action;	/* RTL8309N_ACL_ACT_* */
	u32 port;	/* ingress port 0..8; 9 free; 10 accepted */
	u32 protocol;	/* RTL8309N_ACL_PROTO_* */
	u32 data;	/* only bits 15..0 reach the chip */
} acl_entry;

s32 rtl8309n_acl_entry_set(u32 index, const acl_entry *entry);
s32 rtl8309n_acl_entry_get(u32 index, acl_entry *entry);

/* ---- MIB counters (rtl8309n_mib.c) ---- */

/* Byte counters span identifiers c and c + 1; packet counters are 2..15. */
#define RTL8309N_MIB_TX_BYTES		0
#define RTL8309N_MIB_RX_BYTES		2
#define RTL8309N_MIB_PKT_MIN		2
#define RTL8309N_MIB_PKT_MAX		15
#define RTL8309N_MIB_BYTE_WORDS		4	/* 16-bit words, word 0 least significant */

s32 rtl8309n_mib_enable_set(u32 enabled);
/* Delivers the flag but always returns RT_ERR_FAILED. */
s32 rtl8309n_mib_enable_get(u32 *penabled);
s32 rtl8309n_mib_start(u32 port);
s32 rtl8309n_mib_stop(u32 port);
s32 rtl8309n_mib_overFlowFlag_set(u32 port, u32 flag);
s32 rtl8309n_mib_overFlowFlag_get(u32 port, u32 *pflag);
/* @counter is RTL8309N_MIB_TX_BYTES or _RX_BYTES; @value has 4 elements. */
s32 rtl8309n_mib_byteCnt_get(u32 port, u32 counter, u32 *value);
s32 rtl8309n_mib_pktCnt_get(u32 port, u32 counter, u32 *value);
/* Waits without bound for the chip to finish clearing. */
s32 rtl8309n_mib_reset(u32 port);

/* ---- Port and MAC mirroring (rtl8309n_mirror.c) ---- */

s32 rtl8309n_mirror_selfFilterEnable_set(u32 enabled);
s32 rtl8309n_mirror_selfFilterEnable_get(u32 *penabled);
s32 rtl8309n_mirror_pauseFrameEnable_set(u32 enabled);
s32 rtl8309n_mirror_pauseFrameEnable_get(u32 *penabled);
/* Mask A is chip register 18, mask B register 17; also turns self-filtering on. */
s32 rtl8309n_mirror_portBased_set(u32 mirport, u32 maskA, u32 maskB);
s32 rtl8309n_mirror_portBased_get(u32 *pmirport, u32 *pmaskA, u32 *pmaskB);
s32 rtl8309n_mirror_macBased_set(const u8 *mac, u32 enabled);
s32 rtl8309n_mirror_macBased_get(u8 *mac, u32 *penabled);

/* ---- STP and 802.1X (rtl8309n_stp_dot1x.c) ---- */
s32 rtl8309n_stp_set(u32 port, u32 state);
s32 rtl8309n_stp_get(u32 port, u32 *pState);
s32 rtl8309n_dot1x_portBasedEnable_set(u32 port, u32 enabled);
s32 rtl8309n_dot1x_portBasedEnable_get(u32 port, u32 *pEnabled);
s32 rtl8309n_dot1x_macBasedEnable_set(u32 port, u32 enabled);
s32 rtl8309n_dot1x_macBasedEnable_get(u32 port, u32 *pEnabled);
s32 rtl8309n_dot1x_portBased_set(u32 port, u32 isAuth, u32 direction);
s32 rtl8309n_dot1x_portBased_get(u32 port, u32 *pIsAuth, u32 *pDirection);
s32 rtl8309n_dot1x_macBased_set(u32 direction);
s32 rtl8309n_dot1x_macBased_get(u32 *pDirection);
s32 rtl8309n_dot1x_unauthPktAction_set(u32 action);
s32 rtl8309n_dot1x_unauthPktAction_get(u32 *pAction);

/* ---- ISP / WAN port (rtl8309n_isp.c) ---- */
s32 rtl8309n_isp_enable_set(u32 enabled);
s32 rtl8309n_isp_enable_get(u32 *pEnabled);
/* @pMac: three words, MAC byte 2k in bits 7..0 of word k */
s32 rtl8309n_isp_mac_set(const u16 *pMac);
/* @pMac: six bytes */
s32 rtl8309n_isp_mac_get(u8 *pMac);
s32 rtl8309n_isp_wanPort_set(u32 port);
s32 rtl8309n_isp_wanPort_get(u32 *pPort);

/* ---- Wake-up (rtl8309n_wol.c) ---- */
s32 rtl8309n_wkp_enable_set(u32 enabled1, u32 enabled2);
s32 rtl8309n_wkp_enable_get(u32 *pEnabled1, u32 *pEnabled2);
s32 rtl8309n_wkp_linkchngEnable_set(u32 enabled, u32 portmask);
s32 rtl8309n_wkp_linkchngEnable_get(u32 *pEnabled, u32 *pPortmask);
s32 rtl8309n_wkp_linkchangeStatus_get(u32 *pStatus);
s32 rtl8309n_wkp_frameEnable_set(u32 enabled, u32 portmask1, u32 portmask2, u32 flag1, u32 flag2);
s32 rtl8309n_wkp_frameEnable_get(u32 *pEnabled, u32 *pPortmask1, u32 *pPortmask2,
				 u32 *pFlag1, u32 *pFlag2);
s32 rtl8309n_wkp_frameStatus_get(u32 *pStatus);

/*
 * One header per chip block: its registers, with each register's fields
 * as masks under it, and its operations.
 */
#include "rtl8309n_reg.h"
#include "rtl8309n_switch.h"
#include "rtl8309n_port.h"
#include "rtl8309n_vlan.h"
#include "rtl8309n_cpu.h"
#include "rtl8309n_qos_pri.h"
#include "rtl8309n_qos_bw.h"
#include "rtl8309n_acl.h"
#include "rtl8309n_mib.h"
#include "rtl8309n_mirror.h"
#include "rtl8309n_l2.h"
#include "rtl8309n_stp_dot1x.h"
#include "rtl8309n_trap.h"
#include "rtl8309n_intr_storm.h"
#include "rtl8309n_rldp.h"
#include "rtl8309n_isp.h"
#include "rtl8309n_led.h"
#include "rtl8309n_wol.h"

#endif /* RTL8309N_ASICDRV_H */
