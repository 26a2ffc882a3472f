// SPDX-License-Identifier: GPL-2.0
/*
 * rtk_ switch API: switch-wide settings.
 */
#include "rtk_internal.h"

/* The chip's standard limit is programmed as 1518 bytes but reported as 1522. */
#define STD_LEN_SET		1518
#define STD_LEN_REPORTED	1522
#define LEN_2048		2048
#define LEN_16000		16000

rtk_api_ret_t rtk_switch_init(void)
{
	return RT_ERR_OK;
}

rtk_api_ret_t rtk_switch_maxPktLen_set(rtk_switch_maxPktLen_t len_class)
{
	if (len_class >= MAXPKTLEN_END)
		return RT_ERR_INPUT;

	switch (len_class) {
	case MAXPKTLEN_1518B:
	case MAXPKTLEN_1522B:
	case MAXPKTLEN_1526B:
		return rtk_ret(rtl8309n_switch_maxPktLen_set(RTL8309N_MAXPKTLEN_1518, STD_LEN_SET));
	case MAXPKTLEN_2048B:
		return rtk_ret(rtl8309n_switch_maxPktLen_set(RTL8309N_MAXPKTLEN_2048, LEN_2048));
	default:
		return RT_ERR_FAILED;
	}
}

rtk_api_ret_t rtk_switch_maxPktLen_get(rtk_switch_maxPktLen_t *plen_class, u32 *plen)
{
	u32 mode = 0, len = 0, len_class;
	s32 ret;

	if (!plen)
		return RT_ERR_NULL_POINTER;
	ret = rtl8309n_switch_maxPktLen_get(&mode, &len);
	if (ret != RT_ERR_OK)
		return ret;

	switch (mode) {
	case RTL8309N_MAXPKTLEN_1518:
		len_class = MAXPKTLEN_1522B;
		len = STD_LEN_REPORTED;
		break;
	case RTL8309N_MAXPKTLEN_USER:
		len_class = MAXPKTLEN_USER;	/* with the programmed length */
		break;
	case RTL8309N_MAXPKTLEN_2048:
		len_class = MAXPKTLEN_2048B;
		len = LEN_2048;
		break;
	case RTL8309N_MAXPKTLEN_16000:
		len_class = MAXPKTLEN_16000B;
		len = LEN_16000;
		break;
	default:
		return RT_ERR_FAILED;
	}
	rtk_put_opt(plen_class, len_class);
	*plen = len;
	return RT_ERR_OK;
}
