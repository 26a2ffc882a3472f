// SPDX-License-Identifier: GPL-2.0
/*
 * CPU port block: which port is the CPU port, the CPU tag on frames to and
 * from it, and the port's learning and CRC check.  All of it lives in
 * (2, 16, 17), apart from the per-port tag insertion mask in (2, 17, 17).
 */
#include "rtl8309n_internal.h"

#define CPU_CTRL_FIELD(mask, kind)					\
	RTL8309N_FIELD(RTL8309N_CPU_ADDR, RTL8309N_CPU_CTRL_REG, RTL8309N_CPU_PAGE,	\
		       mask, kind, RTL8309N_GLOBAL)

static const struct rtl8309n_field cpu_enable =
	CPU_CTRL_FIELD(RTL8309N_CPU_CTRL_DISABLE, RTL8309N_FIELD_FLAG_INV);
static const struct rtl8309n_field cpu_port_number =
	CPU_CTRL_FIELD(RTL8309N_CPU_CTRL_PORT, RTL8309N_FIELD_VALUE);
static const struct rtl8309n_field cpu_tag_aware =
	CPU_CTRL_FIELD(RTL8309N_CPU_CTRL_TAG_AWARE, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field cpu_tag_insert =
	CPU_CTRL_FIELD(RTL8309N_CPU_CTRL_TAG_INSERT, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field cpu_tag_remove =
	CPU_CTRL_FIELD(RTL8309N_CPU_CTRL_TAG_REMOVE, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field cpu_noncpu_rxtag =
	CPU_CTRL_FIELD(RTL8309N_CPU_CTRL_NONCPU_RXTAG, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field cpu_learn =
	CPU_CTRL_FIELD(RTL8309N_CPU_CTRL_LEARN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field cpu_check_crc =
	CPU_CTRL_FIELD(RTL8309N_CPU_CTRL_NO_CRC, RTL8309N_FIELD_FLAG_INV);

/* Bit p of the insertion mask for ports 0..8; "port" 9 is accepted, bitless. */
static const struct rtl8309n_field cpu_insert_mask[] = {
	RTL8309N_FIELD(RTL8309N_CPU_ADDR, RTL8309N_CPU_INSERT_MASK_REG, RTL8309N_CPU_PAGE,
		       RTL8309N_CPU_INSERT_MASK_PORT(0), RTL8309N_FIELD_FLAG, RTL8309N_PORT_BIT),
	RTL8309N_NO_FIELD(RTL8309N_GLOBAL),
};

static const struct rtl8309n_field *insert_mask_field(u32 port)
{
	return &cpu_insert_mask[port == RTL8309N_CPU_PORT_NONE];
}

s32 rtl8309n_cpu_enable_set(s32 enabled)
{
	return rtl8309n_field_set(&cpu_enable, 0, (u32)enabled);
}

s32 rtl8309n_cpu_enable_get(u32 *penabled)
{
	return rtl8309n_field_get(&cpu_enable, 0, penabled);
}

s32 rtl8309n_cpu_portNumber_set(u32 port)
{
	if (port > RTL8309N_CPU_PORT_NONE)
		return RT_ERR_FAILED;
	return rtl8309n_field_set(&cpu_port_number, 0, port);
}

s32 rtl8309n_cpu_portNumber_get(u32 *pport)
{
	return rtl8309n_field_get(&cpu_port_number, 0, pport);
}

s32 rtl8309n_cpu_cpuTagAwareEnable_set(s32 enabled)
{
	return rtl8309n_field_set(&cpu_tag_aware, 0, (u32)enabled);
}

s32 rtl8309n_cpu_cpuTagAwareEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&cpu_tag_aware, 0, penabled);
}

s32 rtl8309n_cpu_tagInsertEnable_set(s32 enabled)
{
	return rtl8309n_field_set(&cpu_tag_insert, 0, (u32)enabled);
}

s32 rtl8309n_cpu_tagInsertEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&cpu_tag_insert, 0, penabled);
}

s32 rtl8309n_cpu_tagRemoveEnable_set(s32 enabled)
{
	return rtl8309n_field_set(&cpu_tag_remove, 0, (u32)enabled);
}

s32 rtl8309n_cpu_tagRemoveEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&cpu_tag_remove, 0, penabled);
}

s32 rtl8309n_cpu_nonCpuPortRxCpuTag_set(u32 action)
{
	return rtl8309n_field_code_set(&cpu_noncpu_rxtag, 0, action,
				       RTL8309N_CPU_NONCPU_RXTAG_ACT_0,
				       RTL8309N_CPU_NONCPU_RXTAG_ACT_3);
}

s32 rtl8309n_cpu_nonCpuPortRxCpuTag_get(u32 *paction)
{
	return rtl8309n_field_code_get(&cpu_noncpu_rxtag, 0, paction,
				       RTL8309N_CPU_NONCPU_RXTAG_ACT_0,
				       RTL8309N_CPU_NONCPU_RXTAG_ACT_3);
}

s32 rtl8309n_cpu_learnEnable_set(s32 enabled)
{
	return rtl8309n_field_set(&cpu_learn, 0, (u32)enabled);
}

s32 rtl8309n_cpu_learnEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&cpu_learn, 0, penabled);
}

s32 rtl8309n_cpu_checkCrcEnable_set(s32 enabled)
{
	return rtl8309n_field_set(&cpu_check_crc, 0, (u32)enabled);
}

s32 rtl8309n_cpu_checkCrcEnable_get(u32 *penabled)
{
	return rtl8309n_field_get(&cpu_check_crc, 0, penabled);
}

s32 rtl8309n_cpu_tagInsertMask_set(u32 port, s32 enabled)
{
	return rtl8309n_field_set(insert_mask_field(port), port, (u32)enabled);
}

s32 rtl8309n_cpu_tagInsertMask_get(u32 port, u32 *penabled)
{
	return rtl8309n_field_get(insert_mask_field(port), port, penabled);
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
