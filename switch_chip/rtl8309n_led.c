// SPDX-License-Identifier: GPL-2.0
/*
 * LED and buzzer block: LED mode and blink rates, the loop-detection LED,
 * the cable-test LED state and the CPU-driven LED values.
 */
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"

#define LED_MODE_MAX		6
#define LED_BLINK_MAX		1
#define LED_MODE_MASK		0x7	/* mode in bits 2..0, blink rate in bit 3 */
#define LED_MODE_FIELD_WIDTH	4
#define LED_RLPP_RATE_SET	3	/* loop LED blink rates the one bit stands for */
#define LED_RLPP_RATE_CLEAR	2
#define LED_RLPP_MSK_MAX	0xFF
#define LED_BUZZER_FORM_MAX	1
#define LED_RTCT_GROUP_MAX	1
#define LED_RTCT_STATE_MAX	7
#define LED_RTCT_RESULT_MAX	7
#define LED_RTCT_STATE_MASK	0x3
#define LED_RTCT_G0_STATE_BASE	4	/* group 0 reports its state as 4..7 */
#define LED_CPU_GROUP_MAX	1
#define LED_CPU_GROUP_NONE	2	/* accepted by the setter, writes nothing */
#define LED_CPU_VALUE_MAX	0xFF

enum led_flag {
	LED_RST_BLINK,
	LED_RLDP,
	LED_LED1,
	LED_BUZZER,
	LED_FLAGS
};

#define LED_FLAG(bit, pol) \
	RTL8309N_GLOBAL_BIT(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE, bit, pol)

static const struct rtl8309n_regfield led_flags[LED_FLAGS] = {
	[LED_RST_BLINK] = LED_FLAG(RTL8309N_LED_RSTBLINK_DIS_BIT, RTL8309N_ACTIVE_LOW),
	[LED_RLDP] = LED_FLAG(RTL8309N_LED_RLDP_EN_BIT, RTL8309N_ACTIVE_HIGH),
	[LED_LED1] = LED_FLAG(RTL8309N_LED_LED1_EN_BIT, RTL8309N_ACTIVE_HIGH),
	[LED_BUZZER] = LED_FLAG(RTL8309N_LED_BUZZER_BIT, RTL8309N_ACTIVE_HIGH),
};

static const struct rtl8309n_regfield led_rlpp_rate =
	LED_FLAG(RTL8309N_LED_RLPP_RATE_BIT, RTL8309N_ACTIVE_HIGH);

RTL8309N_GLOBAL_ACCESSORS(led_rstBlinkEnable, u32, led_flags[LED_RST_BLINK])
RTL8309N_GLOBAL_ACCESSORS(led_rldpEnable, u32, led_flags[LED_RLDP])
RTL8309N_GLOBAL_ACCESSORS(led_led1Enable, u32, led_flags[LED_LED1])

s32 rtl8309n_led_modeBlinkRate_set(u32 mode, u32 rate)
{
	if (mode > LED_MODE_MAX || rate > LED_BLINK_MAX)
		return RT_ERR_FAILED;
	rtl8309n_lsb_field_set(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE,
			   RTL8309N_LED_MODE_SHIFT, LED_MODE_FIELD_WIDTH,
			   mode | (rate << RTL8309N_LED_BLINK_SHIFT));
	return RT_ERR_OK;
}

s32 rtl8309n_led_modeBlinkRate_get(u32 *pMode, u32 *pRate)
{
	u32 data = 0;

	if (!pMode || !pRate)
		return RT_ERR_FAILED;
	rtl8309n_reg_get(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE, &data);
	*pMode = (data >> RTL8309N_LED_MODE_SHIFT) & LED_MODE_MASK;
	*pRate = (data >> RTL8309N_LED_BLINK_SHIFT) & 1;
	return RT_ERR_OK;
}

s32 rtl8309n_led_rlppRldp_blinkRate_set(u32 rate)
{
	return rtl8309n_regfield_code_set(&led_rlpp_rate, 0, rate, LED_RLPP_RATE_SET,
					  LED_RLPP_RATE_CLEAR);
}

s32 rtl8309n_led_rlppRldp_blinkRate_get(u32 *pRate)
{
	return rtl8309n_regfield_code_get(&led_rlpp_rate, 0, pRate, LED_RLPP_RATE_SET,
					  LED_RLPP_RATE_CLEAR);
}

s32 rtl8309n_led_rlppLedMsk_set(u32 mask)
{
	return rtl8309n_reg_set_max(RTL8309N_LED_ADDR, RTL8309N_LED_RLPP_MSK_REG,
				    RTL8309N_LED_PAGE, mask, LED_RLPP_MSK_MAX);
}

s32 rtl8309n_led_rlppLedMsk_get(u32 *pMask)
{
	return rtl8309n_reg_get_low(RTL8309N_LED_ADDR, RTL8309N_LED_RLPP_MSK_REG,
				    RTL8309N_LED_PAGE, 16, pMask);
}

s32 rtl8309n_led_buzzerForm_set(u32 form)
{
	if (form > LED_BUZZER_FORM_MAX)
		return RT_ERR_FAILED;
	return rtl8309n_regfield_set(&led_flags[LED_BUZZER], 0, form);
}

s32 rtl8309n_led_buzzerForm_get(u32 *pForm)
{
	return rtl8309n_regfield_get(&led_flags[LED_BUZZER], 0, pForm);
}

/*
 * The chip keeps two bits of cable-test state per group, so states 4..7
 * fold onto 0..3; the getter reports group 0 back as 4..7.  Result 7 is
 * the only one with a bit of its own; everything else reads back as 5.
 */
s32 rtl8309n_led_rtct_set(u32 group, u32 state, u32 result)
{
	u32 shift;

	if (group > LED_RTCT_GROUP_MAX || state > LED_RTCT_STATE_MAX ||
	    result > LED_RTCT_RESULT_MAX)
		return RT_ERR_FAILED;

	shift = group ? RTL8309N_LED_RTCT_G1_SHIFT : RTL8309N_LED_RTCT_G0_SHIFT;
	rtl8309n_regbit_set(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG,
			    RTL8309N_LED_RTCT_GROUP_BIT, RTL8309N_LED_PAGE, group);
	rtl8309n_reg_update(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE,
			    (LED_RTCT_STATE_MASK << shift) | (1u << RTL8309N_LED_RTCT_RESULT_BIT),
			    ((state & LED_RTCT_STATE_MASK) << shift) |
			    ((u32)(result == 7) << RTL8309N_LED_RTCT_RESULT_BIT));
	return RT_ERR_OK;
}

s32 rtl8309n_led_rtct_get(u32 *pGroup, u32 *pState, u32 *pResult)
{
	u32 data = 0;

	if (!pGroup || !pState || !pResult)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE, &data);
	*pResult = (data >> RTL8309N_LED_RTCT_RESULT_BIT) & 1 ? 7 : 5;
	*pGroup = (data >> RTL8309N_LED_RTCT_GROUP_BIT) & 1;
	if (*pGroup)
		*pState = (data >> RTL8309N_LED_RTCT_G1_SHIFT) & LED_RTCT_STATE_MASK;
	else
		*pState = LED_RTCT_G0_STATE_BASE +
			  ((data >> RTL8309N_LED_RTCT_G0_SHIFT) & LED_RTCT_STATE_MASK);
	return RT_ERR_OK;
}

/* Group 0 owns the low byte of both value registers, group 1 the high. */
static const u8 led_cpu_reg[2] = { RTL8309N_LED_CPU1_REG, RTL8309N_LED_CPU2_REG };

s32 rtl8309n_led_cpu_set(u32 group, u32 value1, u32 value2)
{
	const u32 values[2] = { value1, value2 };
	u32 i;

	if (group > LED_CPU_GROUP_NONE || value1 > LED_CPU_VALUE_MAX ||
	    value2 > LED_CPU_VALUE_MAX)
		return RT_ERR_FAILED;
	if (group == LED_CPU_GROUP_NONE)
		return RT_ERR_OK;

	for (i = 0; i < 2; i++)
		rtl8309n_lsb_field_set(RTL8309N_LED_ADDR, led_cpu_reg[i], RTL8309N_LED_PAGE, group * 8,
				   8, values[i]);
	return RT_ERR_OK;
}

s32 rtl8309n_led_cpu_get(u32 group, u32 *pValue1, u32 *pValue2)
{
	u32 *const out[2] = { pValue1, pValue2 };
	u32 i;

	if (group > LED_CPU_GROUP_MAX || !pValue1 || !pValue2)
		return RT_ERR_FAILED;

	for (i = 0; i < 2; i++)
		rtl8309n_lsb_field_get(RTL8309N_LED_ADDR, led_cpu_reg[i], RTL8309N_LED_PAGE, group * 8,
				   8, out[i]);
	return RT_ERR_OK;
}
