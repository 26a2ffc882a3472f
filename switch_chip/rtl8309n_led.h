/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N LED and buzzer block: LED mode and blink rates, the
 * loop-detection LED, the cable-test LED state and the CPU-driven LED
 * values.
 */
#ifndef RTL8309N_LED_H
#define RTL8309N_LED_H

#include "rtl8309n_types.h"

/* SMI address 1, page 14 */
#define RTL8309N_LED_ADDR			1
#define RTL8309N_LED_PAGE			14
#define RTL8309N_LED_CTRL_REG			16
#define   RTL8309N_LED_CTRL_MODE		0x0007
#define   RTL8309N_LED_CTRL_BLINK		0x0008
#define   RTL8309N_LED_CTRL_RSTBLINK_OFF	0x0010
#define   RTL8309N_LED_CTRL_RLDP_EN		0x0020
#define   RTL8309N_LED_CTRL_RLPP_RATE3		0x0040	/* 1: rate 3, 0: rate 2 */
#define   RTL8309N_LED_CTRL_BUZZER		0x0080
#define   RTL8309N_LED_CTRL_RTCT_GROUP		0x0100
#define   RTL8309N_LED_CTRL_RTCT_G0_STATE	0x0600
#define   RTL8309N_LED_CTRL_RTCT_G1_STATE	0x1800
#define   RTL8309N_LED_CTRL_RTCT_RESULT7	0x2000	/* 1: result 7, 0: result 5 */
#define   RTL8309N_LED_CTRL_LED1_EN		0x4000
/* CPU-driven values: the first in 17, the second in 18, same layout */
#define RTL8309N_LED_CPU1_REG			17
#define RTL8309N_LED_CPU2_REG			18
#define   RTL8309N_LED_CPU_GROUP0		0x00FF
#define   RTL8309N_LED_CPU_GROUP1		0xFF00
#define RTL8309N_LED_RLPP_MSK_REG		19

s32 rtl8309n_led_rstBlinkEnable_set(u32 enabled);
s32 rtl8309n_led_rstBlinkEnable_get(u32 *pEnabled);
s32 rtl8309n_led_rldpEnable_set(u32 enabled);
s32 rtl8309n_led_rldpEnable_get(u32 *pEnabled);
s32 rtl8309n_led_led1Enable_set(u32 enabled);
s32 rtl8309n_led_led1Enable_get(u32 *pEnabled);
s32 rtl8309n_led_modeBlinkRate_set(u32 mode, u32 rate);
s32 rtl8309n_led_modeBlinkRate_get(u32 *pMode, u32 *pRate);
s32 rtl8309n_led_rlppRldp_blinkRate_set(u32 rate);
s32 rtl8309n_led_rlppRldp_blinkRate_get(u32 *pRate);
s32 rtl8309n_led_rlppLedMsk_set(u32 mask);
s32 rtl8309n_led_rlppLedMsk_get(u32 *pMask);
s32 rtl8309n_led_buzzerForm_set(u32 form);
s32 rtl8309n_led_buzzerForm_get(u32 *pForm);
s32 rtl8309n_led_rtct_set(u32 group, u32 state, u32 result);
s32 rtl8309n_led_rtct_get(u32 *pGroup, u32 *pState, u32 *pResult);
s32 rtl8309n_led_cpu_set(u32 group, u32 value1, u32 value2);
s32 rtl8309n_led_cpu_get(u32 group, u32 *pValue1, u32 *pValue2);

#endif /* RTL8309N_LED_H */
