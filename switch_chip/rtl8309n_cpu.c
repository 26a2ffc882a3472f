// SPDX-License-Identifier: GPL-2.0
/*
 * CPU port block: which port is the CPU port, the CPU tag on frames to and
 * from it, and the port's learning and CRC check.  All of it lives in
 * (2, 16, 17), apart from the per-port tag insertion mask in (2, 17, 17).
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

#define CTRL(lsb, width, pol)						\
	{ RTL8309N_CPU_ADDR, RTL8309N_CPU_CTRL_REG, RTL8309N_CPU_PAGE,	\
	  lsb, width, pol, RTL8309N_GLOBAL }

#define HIGH	RTL8309N_ACTIVE_HIGH
#define LOW	RTL8309N_ACTIVE_LOW

static const struct rtl8309n_regfield cpu_enable = CTRL(RTL8309N_CPU_DISABLE_BIT, 1, LOW);
static const struct rtl8309n_regfield cpu_port_number =
	CTRL(RTL8309N_CPU_PORT_LSB, RTL8309N_CPU_PORT_WIDTH, HIGH);
static const struct rtl8309n_regfield cpu_tag_aware = CTRL(RTL8309N_CPU_TAG_AWARE_BIT, 1, HIGH);
static const struct rtl8309n_regfield cpu_tag_insert = CTRL(RTL8309N_CPU_TAG_INSERT_BIT, 1, HIGH);
static const struct rtl8309n_regfield cpu_tag_remove = CTRL(RTL8309N_CPU_TAG_REMOVE_BIT, 1, HIGH);
static const struct rtl8309n_regfield cpu_noncpu_rxtag =
	CTRL(RTL8309N_CPU_NONCPU_RXTAG_BIT, 1, HIGH);
static const struct rtl8309n_regfield cpu_learn = CTRL(RTL8309N_CPU_LEARN_BIT, 1, HIGH);
static const struct rtl8309n_regfield cpu_check_crc = CTRL(RTL8309N_CPU_NO_CRC_BIT, 1, LOW);

/* Bit p of the insertion mask for ports 0..8; "port" 9 is accepted, bitless. */
static const struct rtl8309n_regfield cpu_insert_mask[] = {
	{ RTL8309N_CPU_ADDR, RTL8309N_CPU_INSERT_MASK_REG, RTL8309N_CPU_PAGE, 0, 1,
	  HIGH, RTL8309N_PORT_BIT },
	RTL8309N_REGFIELD_NONE(RTL8309N_GLOBAL),
};

static const struct rtl8309n_regfield *insert_mask_field(u32 port)
{
	return &cpu_insert_mask[port == RTL8309N_CPU_PORT_NONE];
}

RTL8309N_GLOBAL_ACCESSORS(cpu_enable, s32, cpu_enable)
RTL8309N_GLOBAL_ACCESSORS(cpu_cpuTagAwareEnable, s32, cpu_tag_aware)
RTL8309N_GLOBAL_ACCESSORS(cpu_tagInsertEnable, s32, cpu_tag_insert)
RTL8309N_GLOBAL_ACCESSORS(cpu_tagRemoveEnable, s32, cpu_tag_remove)
RTL8309N_GLOBAL_ACCESSORS(cpu_learnEnable, s32, cpu_learn)
RTL8309N_GLOBAL_ACCESSORS(cpu_checkCrcEnable, s32, cpu_check_crc)

s32 rtl8309n_cpu_portNumber_set(u32 port)
{
	if (port > RTL8309N_CPU_PORT_NONE)
		return RT_ERR_FAILED;
	return rtl8309n_regfield_set(&cpu_port_number, 0, port);
}

s32 rtl8309n_cpu_portNumber_get(u32 *pport)
{
	return rtl8309n_regfield_get(&cpu_port_number, 0, pport);
}

s32 rtl8309n_cpu_nonCpuPortRxCpuTag_set(u32 action)
{
	return rtl8309n_regfield_code_set(&cpu_noncpu_rxtag, 0, action,
					  RTL8309N_CPU_NONCPU_RXTAG_ACT_0,
					  RTL8309N_CPU_NONCPU_RXTAG_ACT_3);
}

s32 rtl8309n_cpu_nonCpuPortRxCpuTag_get(u32 *paction)
{
	return rtl8309n_regfield_code_get(&cpu_noncpu_rxtag, 0, paction,
					  RTL8309N_CPU_NONCPU_RXTAG_ACT_0,
					  RTL8309N_CPU_NONCPU_RXTAG_ACT_3);
}

s32 rtl8309n_cpu_tagInsertMask_set(u32 port, s32 enabled)
{
	return rtl8309n_regfield_set(insert_mask_field(port), port, (u32)enabled);
}

s32 rtl8309n_cpu_tagInsertMask_get(u32 port, u32 *penabled)
{
	return rtl8309n_regfield_get(insert_mask_field(port), port, penabled);
}

s32 rtl8309n_cpu_port_get(u32 *pport, u32 *ptag)
{
	if (!pport || !ptag)
		return RT_ERR_FAILED;

	rtl8309n_cpu_portNumber_get(pport);
	return rtl8309n_cpu_tagInsertEnable_get(ptag);
}

/*
 * One call that makes @port the CPU port: function on, CPU tags understood
 * and stripped, inserted as asked, CRC checked, addresses learnt.  802.1X
 * goes off on the port, or the host's own frames would wait for
 * authorisation.
 */
s32 rtl8309n_cpu_port_set(u32 port, u32 tag)
{
	if (port > RTL8309N_MAX_PORT)
		return RT_ERR_FAILED;

	rtl8309n_cpu_enable_set(RTL8309N_ENABLED);
	rtl8309n_cpu_cpuTagAwareEnable_set(RTL8309N_ENABLED);
	rtl8309n_cpu_tagInsertEnable_set(tag != 0);
	rtl8309n_cpu_tagRemoveEnable_set(RTL8309N_ENABLED);
	rtl8309n_cpu_portNumber_set(port);
	rtl8309n_cpu_checkCrcEnable_set(RTL8309N_ENABLED);
	rtl8309n_cpu_learnEnable_set(RTL8309N_ENABLED);
	rtl8309n_dot1x_portBasedEnable_set(port, RTL8309N_DISABLED);
	rtl8309n_dot1x_macBasedEnable_set(port, RTL8309N_DISABLED);
	return RT_ERR_OK;
}
