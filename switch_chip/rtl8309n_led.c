// SPDX-License-Identifier: GPL-2.0
/*
 * LED and buzzer block: LED mode and blink rates, the loop-detection LED,
 * the cable-test LED state and the CPU-driven LED values.
 */
#include "rtl8309n_internal.h"

#define LED_MODE_MAX		6
#define LED_BLINK_MAX		1
#define LED_RLPP_RATE_SET	3	/* loop LED blink rates the one bit stands for */
#define LED_RLPP_RATE_CLEAR	2
#define LED_RLPP_MSK_MAX	0xFF
#define LED_BUZZER_FORM_MAX	1
#define LED_RTCT_GROUP_MAX	1
#define LED_RTCT_STATE_MAX	7
#define LED_RTCT_RESULT_MAX	7
#define LED_RTCT_RESULT_SET	7	/* the one result with a bit of its own */
#define LED_RTCT_RESULT_CLEAR	5
#define LED_RTCT_G0_STATE_BASE	4	/* group 0 reports its state as 4..7 */
#define LED_CPU_GROUP_MAX	1
#define LED_CPU_GROUP_NONE	2	/* accepted by the setter, writes nothing */
#define LED_CPU_VALUE_MAX	0xFF

#define LED_CTRL_FIELD(mask, kind)						\
	RTL8309N_FIELD(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE, mask, kind,	\
		       RTL8309N_GLOBAL)

static const struct rtl8309n_field led_rst_blink =
	LED_CTRL_FIELD(RTL8309N_LED_CTRL_RSTBLINK_OFF, RTL8309N_FIELD_FLAG_INV);
static const struct rtl8309n_field led_rldp =
	LED_CTRL_FIELD(RTL8309N_LED_CTRL_RLDP_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field led_led1 =
	LED_CTRL_FIELD(RTL8309N_LED_CTRL_LED1_EN, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field led_buzzer =
	LED_CTRL_FIELD(RTL8309N_LED_CTRL_BUZZER, RTL8309N_FIELD_FLAG);
static const struct rtl8309n_field led_rlpp_rate =
	LED_CTRL_FIELD(RTL8309N_LED_CTRL_RLPP_RATE3, RTL8309N_FIELD_FLAG);

s32 rtl8309n_led_rstBlinkEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&led_rst_blink, 0, enabled);
}

s32 rtl8309n_led_rstBlinkEnable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&led_rst_blink, 0, pEnabled);
}

s32 rtl8309n_led_rldpEnable_set(u32 enabled)
{
	return rtl8309n_field_set(&led_rldp, 0, enabled);
}

s32 rtl8309n_led_rldpEnable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&led_rldp, 0, pEnabled);
}

s32 rtl8309n_led_led1Enable_set(u32 enabled)
{
	return rtl8309n_field_set(&led_led1, 0, enabled);
}

s32 rtl8309n_led_led1Enable_get(u32 *pEnabled)
{
	return rtl8309n_field_get(&led_led1, 0, pEnabled);
}

s32 rtl8309n_led_modeBlinkRate_set(u32 mode, u32 rate)
{
	if (mode > LED_MODE_MAX || rate > LED_BLINK_MAX)
		return RT_ERR_FAILED;
	rtl8309n_reg_update(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE,
			    RTL8309N_LED_CTRL_MODE | RTL8309N_LED_CTRL_BLINK,
			    rtl8309n_field_prep(RTL8309N_LED_CTRL_MODE, mode) |
			    rtl8309n_field_prep(RTL8309N_LED_CTRL_BLINK, rate));
	return RT_ERR_OK;
}

s32 rtl8309n_led_modeBlinkRate_get(u32 *pMode, u32 *pRate)
{
	u32 data = 0;

	if (!pMode || !pRate)
		return RT_ERR_FAILED;
	rtl8309n_reg_get(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE, &data);
	*pMode = rtl8309n_field_extract(RTL8309N_LED_CTRL_MODE, data);
	*pRate = rtl8309n_field_extract(RTL8309N_LED_CTRL_BLINK, data);
	return RT_ERR_OK;
}

s32 rtl8309n_led_rlppRldp_blinkRate_set(u32 rate)
{
	return rtl8309n_field_code_set(&led_rlpp_rate, 0, rate, LED_RLPP_RATE_SET,
				       LED_RLPP_RATE_CLEAR);
}

s32 rtl8309n_led_rlppRldp_blinkRate_get(u32 *pRate)
{
	return rtl8309n_field_code_get(&led_rlpp_rate, 0, pRate, LED_RLPP_RATE_SET,
				       LED_RLPP_RATE_CLEAR);
}

/* Written as a byte, read back whole. */
s32 rtl8309n_led_rlppLedMsk_set(u32 mask)
{
	return rtl8309n_reg_set_max(RTL8309N_LED_ADDR, RTL8309N_LED_RLPP_MSK_REG,
				    RTL8309N_LED_PAGE, mask, LED_RLPP_MSK_MAX);
}

s32 rtl8309n_led_rlppLedMsk_get(u32 *pMask)
{
	return rtl8309n_reg_get_masked(RTL8309N_LED_ADDR, RTL8309N_LED_RLPP_MSK_REG,
				       RTL8309N_LED_PAGE, RTL8309N_GENMASK(15, 0), pMask);
}

s32 rtl8309n_led_buzzerForm_set(u32 form)
{
	if (form > LED_BUZZER_FORM_MAX)
		return RT_ERR_FAILED;
	return rtl8309n_field_set(&led_buzzer, 0, form);
}

s32 rtl8309n_led_buzzerForm_get(u32 *pForm)
{
	return rtl8309n_field_get(&led_buzzer, 0, pForm);
}

/*
 * The chip keeps two bits of cable-test state per group, so states 4..7
 * fold onto 0..3; the getter reports group 0 back as 4..7.  Result 7 is
 * the only one with a bit of its own; everything else reads back as 5.
 */
s32 rtl8309n_led_rtct_set(u32 group, u32 state, u32 result)
{
	u32 state_mask;

	if (group > LED_RTCT_GROUP_MAX || state > LED_RTCT_STATE_MAX ||
	    result > LED_RTCT_RESULT_MAX)
		return RT_ERR_FAILED;

	state_mask = group ? RTL8309N_LED_CTRL_RTCT_G1_STATE : RTL8309N_LED_CTRL_RTCT_G0_STATE;
	rtl8309n_bits_set(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE,
			  RTL8309N_LED_CTRL_RTCT_GROUP, group);
	rtl8309n_reg_update(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE,
			    state_mask | RTL8309N_LED_CTRL_RTCT_RESULT7,
			    rtl8309n_field_prep(state_mask, state) |
			    rtl8309n_field_prep(RTL8309N_LED_CTRL_RTCT_RESULT7,
						result == LED_RTCT_RESULT_SET));
	return RT_ERR_OK;
}

s32 rtl8309n_led_rtct_get(u32 *pGroup, u32 *pState, u32 *pResult)
{
	u32 data = 0;

	if (!pGroup || !pState || !pResult)
		return RT_ERR_FAILED;

	rtl8309n_reg_get(RTL8309N_LED_ADDR, RTL8309N_LED_CTRL_REG, RTL8309N_LED_PAGE, &data);
	*pResult = data & RTL8309N_LED_CTRL_RTCT_RESULT7 ? LED_RTCT_RESULT_SET :
							   LED_RTCT_RESULT_CLEAR;
	*pGroup = rtl8309n_field_extract(RTL8309N_LED_CTRL_RTCT_GROUP, data);
	if (*pGroup)
		*pState = rtl8309n_field_extract(RTL8309N_LED_CTRL_RTCT_G1_STATE, data);
	else
		*pState = LED_RTCT_G0_STATE_BASE +
			  rtl8309n_field_extract(RTL8309N_LED_CTRL_RTCT_G0_STATE, data);
	return RT_ERR_OK;
}

/* Value registers and each group's byte in them. */
static const u8 led_cpu_reg[2] = { RTL8309N_LED_CPU1_REG, RTL8309N_LED_CPU2_REG };
static const u16 led_cpu_group[LED_CPU_GROUP_MAX + 1] = {
	RTL8309N_LED_CPU_GROUP0, RTL8309N_LED_CPU_GROUP1,
};

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
		rtl8309n_bits_set(RTL8309N_LED_ADDR, led_cpu_reg[i], RTL8309N_LED_PAGE,
				  led_cpu_group[group], values[i]);
	return RT_ERR_OK;
}

s32 rtl8309n_led_cpu_get(u32 group, u32 *pValue1, u32 *pValue2)
{
	u32 *const out[2] = { pValue1, pValue2 };
	u32 i;

	if (group > LED_CPU_GROUP_MAX || !pValue1 || !pValue2)
		return RT_ERR_FAILED;

	for (i = 0; i < 2; i++)
		rtl8309n_bits_get(RTL8309N_LED_ADDR, led_cpu_reg[i], RTL8309N_LED_PAGE,
				  led_cpu_group[group], out[i]);
	return RT_ERR_OK;
}
