// LED and buzzer block; loop detection: RLDP control bits, attributes and
// the RLPP action.
#include "regfield_check.h"

#include <cstring>

namespace {

class LedTest : public FieldTest {};

TEST_F(LedTest, SingleBitsPlacementAndPolarity)
{
	CheckAll({
		{"reset blink (disable bit)", ACCESSORS(led_rstBlinkEnable), 1, 16, 14, 4, 1, true},
		{"rldp", ACCESSORS(led_rldpEnable), 1, 16, 14, 5, 1},
		{"led1", ACCESSORS(led_led1Enable), 1, 16, 14, 14, 1},
	});
	CheckCodeBit(ACCESSORS(led_rlppRldp_blinkRate), 1, 16, 14, 6, 3, 2);
	CheckCodeBit(ACCESSORS(led_buzzerForm), 1, 16, 14, 7, 1, 0);
}

// Cable-test LED: states fold to two bits; group 0 reads back as 4..7.
TEST_F(LedTest, CableTestStateFolding)
{
	const struct { u32 group, state, result; u16 bits; u32 got_state, got_result; } cases[] = {  // bits 13..8
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
		EXPECT_EQ(std::make_tuple(c.group, c.got_state, c.got_result), std::make_tuple(g, s, r));
	}
}

TEST_F(LedTest, ModeMaskCpuValuesAndRefusals)
{
	u32 a = 0, b = 0;
	set_sw(1, 14, 16, 0xFFF0);
	ExpectSet(rtl8309n_led_modeBlinkRate_set(6, 1), 1, 14, 16, 0xFFFE);
	ExpectSet(rtl8309n_led_rlppLedMsk_set(0xFF), 1, 14, 19, 0x00FF);
	set_sw(1, 14, 17, 0x1122);
	set_sw(1, 14, 18, 0x3344);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_led_cpu_set(1, 0xAB, 0xCD));
	EXPECT_EQ(Pair(0xAB22, 0xCD44), Pair(sw(1, 14, 17), sw(1, 14, 18)));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_led_cpu_get(0, &a, &b));
	EXPECT_EQ(Pair(0x22, 0x44), Pair(a, b));
	ExpectChecks({
		{"cpu group 2 is accepted and writes nothing", [] { return rtl8309n_led_cpu_set(2, 1, 1); }, RT_ERR_OK},
		{"mode 7", [] { return rtl8309n_led_modeBlinkRate_set(7, 0); }},
		{"blink rate 1", [] { return rtl8309n_led_rlppRldp_blinkRate_set(1); }},
		{"rtct state 8", [] { return rtl8309n_led_rtct_set(0, 8, 5); }},
		{"cpu set value 256", [] { return rtl8309n_led_cpu_set(0, 0, 0x100); }},
	});
}

class RldpTest : public FieldTest {};

TEST_F(RldpTest, ControlBitsPlacementAndPolarity)
{
	CheckAll({
		{"enable (disable bit)", ACCESSORS(rldp_enable), 4, 19, 14, 0, 1, true},
		{"priority", ACCESSORS(rldp_priEnable), 4, 19, 14, 4, 1},
		{"ttl", ACCESSORS(rldp_ttlEnable), 4, 19, 14, 7, 1},
		{"storm filter (disable bit)", ACCESSORS(rldp_stormFilterEnable), 4, 19, 14, 12, 1, true},
		{"vlan tag", ACCESSORS(rldp_vlanTagEnable), 4, 19, 14, 13, 1},
	});
	CheckCodeBit(ACCESSORS(rlpp_action), 4, 19, 14, 1, 0, 2);

	// Unlike its siblings, the identifier flag takes any non-zero value.
	set_sw(4, 14, 19, 0x0000);
	ExpectSet(rtl8309n_rldp_identifierEnable_set(2), 4, 14, 19, 0x4000);
	ExpectSet(rtl8309n_rldp_identifierEnable_set(0), 4, 14, 19, 0x0000);
}

TEST_F(RldpTest, ControlAttributesAndTheSixteenQuirk)
{
	rtl8309n_rldp_controlAttr in = {3, 2, 9, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}}, out = {};
	u32 v = 9;
	set_sw(4, 14, 19, 0x7FFF);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_controlAttr_set(&in));
	EXPECT_EQ(0x79DF, sw(4, 14, 19)) << "bits 3-2, 6-5, 11-8 replaced, the rest kept";
	EXPECT_EQ(Pair(0x1100, 0x5544), Pair(sw(4, 14, 16), sw(4, 14, 18)));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_controlAttr_get(&out));
	EXPECT_EQ(std::make_tuple(3u, 2u, 9u, 0),
		  std::make_tuple(out.attr1, out.attr2, out.attr3, memcmp(in.mac, out.mac, 6)));
	set_sw(4, 14, 19, 0x0000);
	in.attr3 = 16;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_controlAttr_set(&in));
	EXPECT_EQ(0x1000, sw(4, 14, 19) & 0x1F00) << "16 lands on bit 12, field left 0";
	ExpectGot(rtl8309n_rldp_stormFilterEnable_get(&v), v, 0u, "which reads as the storm filter disabled");
	ExpectSet(rtl8309n_rldp_protocol_set(0x1A5), 4, 14, 21, 0x00A5, "8 bits written");
	set_sw(4, 14, 20, 0x8001);
	ExpectGot(rtl8309n_rldp_loopStatus_get(&v), v, 0x8001u);
	rtl8309n_rldp_controlAttr bad[] = {{0, 0, 17, {}}, {4, 0, 0, {}}, {0, 4, 0, {}}};
	ExpectChecks({
		{"rlpp action 1", [] { return rtl8309n_rlpp_action_set(1); }},
		{"attr3 17", [&] { return rtl8309n_rldp_controlAttr_set(&bad[0]); }},
		{"attr get null", [] { return rtl8309n_rldp_controlAttr_get(nullptr); }},
	});
}

}  // namespace
