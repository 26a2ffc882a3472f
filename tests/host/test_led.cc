// LED and buzzer block.
#include "regfield_check.h"

namespace {

class LedTest : public FieldTest {};

TEST_F(LedTest, SingleBitsPlacementAndPolarity)
{
	CheckAll({
		{"reset blink (disable bit)", rtl8309n_led_rstBlinkEnable_set,
		 rtl8309n_led_rstBlinkEnable_get, 1, 16, 14, 4, 1, true, 0},
		{"rldp", rtl8309n_led_rldpEnable_set, rtl8309n_led_rldpEnable_get, 1, 16, 14, 5, 1, false, 0},
		{"led1", rtl8309n_led_led1Enable_set, rtl8309n_led_led1Enable_get, 1, 16, 14, 14, 1, false, 0},
	});
	CheckCodeBit(rtl8309n_led_rlppRldp_blinkRate_set, rtl8309n_led_rlppRldp_blinkRate_get,
		     1, 16, 14, 6, 3, 2);
	CheckCodeBit(rtl8309n_led_buzzerForm_set, rtl8309n_led_buzzerForm_get, 1, 16, 14, 7, 1, 0);
}

// Cable-test LED: states fold to two bits; group 0 reads back as 4..7.
TEST_F(LedTest, CableTestStateFolding)
{
	const struct {
		u32 group, state, result;
		u16 bits;  // bits 13..8 of (1, 16, 14)
		u32 got_state, got_result;
	} cases[] = {
		{1, 5, 7, 0x2900, 1, 7}, {1, 7, 0, 0x1900, 3, 5}, {1, 4, 7, 0x2100, 0, 7},
		{0, 2, 7, 0x2400, 6, 7}, {0, 7, 6, 0x0600, 7, 5}, {0, 0, 5, 0x0000, 4, 5},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(std::to_string(c.group) + "/" + std::to_string(c.state));
		const u16 other = c.group ? 0x0000 : 0x1800;  // group 1's state survives
		u32 g = 9, s = 9, r = 9;

		set_sw(1, 14, 16, other | 0x00FF);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_led_rtct_set(c.group, c.state, c.result));
		EXPECT_EQ(c.bits | other | 0x00FF, sw(1, 14, 16));
		ASSERT_EQ(RT_ERR_OK, rtl8309n_led_rtct_get(&g, &s, &r));
		EXPECT_EQ((std::vector<u32>{c.group, c.got_state, c.got_result}),
			  (std::vector<u32>{g, s, r}));
	}
}

TEST_F(LedTest, ModeMaskCpuValuesAndRefusals)
{
	u32 a = 0, b = 0;

	set_sw(1, 14, 16, 0xFFF0);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_led_modeBlinkRate_set(6, 1));
	EXPECT_EQ(0xFFFE, sw(1, 14, 16));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_led_rlppLedMsk_set(0xFF));
	EXPECT_EQ(0x00FF, sw(1, 14, 19));

	set_sw(1, 14, 17, 0x1122);
	set_sw(1, 14, 18, 0x3344);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_led_cpu_set(1, 0xAB, 0xCD));
	EXPECT_EQ(0xAB22, sw(1, 14, 17));
	EXPECT_EQ(0xCD44, sw(1, 14, 18));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_led_cpu_get(0, &a, &b));
	EXPECT_EQ(std::make_pair(0x22u, 0x44u), std::make_pair(a, b));
	ClearTrace();
	EXPECT_EQ(RT_ERR_OK, rtl8309n_led_cpu_set(2, 1, 1));
	EXPECT_TRUE(trace().empty()) << "group 2 is accepted and writes nothing";

	CheckRefused({
		{"mode 7", [] { return rtl8309n_led_modeBlinkRate_set(7, 0); }},
		{"blink rate 1", [] { return rtl8309n_led_rlppRldp_blinkRate_set(1); }},
		{"buzzer form 2", [] { return rtl8309n_led_buzzerForm_set(2); }},
		{"mask 0x100", [] { return rtl8309n_led_rlppLedMsk_set(0x100); }},
		{"rtct state 8", [] { return rtl8309n_led_rtct_set(0, 8, 5); }},
		{"rtct result 8", [] { return rtl8309n_led_rtct_set(1, 0, 8); }},
		{"cpu set value 256", [] { return rtl8309n_led_cpu_set(0, 0, 0x100); }},
		{"cpu get group 2", [&] { return rtl8309n_led_cpu_get(2, &a, &b); }},
	});
}

}  // namespace
