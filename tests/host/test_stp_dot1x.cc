// STP state and 802.1X controls.
#include "regfield_check.h"

namespace {

class StpDot1xTest : public FieldTest {};

TEST_F(StpDot1xTest, BitPlacementAndPolarity)
{
	CheckAll({
		{"portBasedEnable port 5", [](u32 v) { return rtl8309n_dot1x_portBasedEnable_set(5, v); },
		 [](u32 *p) { return rtl8309n_dot1x_portBasedEnable_get(5, p); }, 5, 16, 3, 0, 1, false, 0},
		{"macBasedEnable port 8", [](u32 v) { return rtl8309n_dot1x_macBasedEnable_set(8, v); },
		 [](u32 *p) { return rtl8309n_dot1x_macBasedEnable_get(8, p); }, 8, 16, 3, 3, 1, false, 0},
	});
	CheckCodeBit(rtl8309n_dot1x_macBased_set, rtl8309n_dot1x_macBased_get, 0, 16, 15, 1, 1, 0);
	CheckCodeBit(rtl8309n_dot1x_unauthPktAction_set, rtl8309n_dot1x_unauthPktAction_get,
		     0, 16, 15, 0, 2, 3);

	u32 auth = 9, dir = 9;
	set_sw(2, 3, 16, 0x0009);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_dot1x_portBased_set(2, 1, 2));
	EXPECT_EQ(0x000F, sw(2, 3, 16)) << "any non-zero direction sets bit 2";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_dot1x_portBased_get(2, &auth, &dir));
	EXPECT_EQ(std::make_pair(1u, 1u), std::make_pair(auth, dir));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_dot1x_portBased_set(2, 2, 0));
	EXPECT_EQ(0x0009, sw(2, 3, 16)) << "only exactly 1 authorises";
}

TEST_F(StpDot1xTest, EveryStateChangeRewritesTheStpReservedMulticastEntry)
{
	u32 state = 77;

	set_sw(2, 15, 16, 0xA51F);  // entry 0 scrambled, entry 1 must survive
	ASSERT_EQ(RT_ERR_OK, rtl8309n_stp_set(4, 2));
	EXPECT_EQ(0xA502, sw(2, 15, 16)) << "entry 0: trap, flag 0, value 0";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_stp_get(4, &state));
	EXPECT_EQ(2u, state);

	set_sw(2, 15, 16, 0x001D);
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_stp_set(4, 2));
	EXPECT_EQ(0x0002, sw(2, 15, 16)) << "rewritten although the state is unchanged";
	EXPECT_EQ((std::vector<std::pair<u32, u32>>{{2, 16}, {4, 16}}), DataWrites());

	ASSERT_EQ(RT_ERR_OK, rtl8309n_stp_set(4, 4));
	EXPECT_EQ(0x0004, sw(4, 2, 16)) << "state 4 lands on bit 2, bits 1..0 cleared";
	EXPECT_EQ(RT_ERR_OK, rtl8309n_stp_get(4, &state));
	EXPECT_EQ(2u, state) << "an unnamed register value leaves the output alone";
}

TEST_F(StpDot1xTest, PortNineOnlyForTheEnablesAndNoTrafficOnRefusal)
{
	u32 v = 0;

	ClearTrace();
	EXPECT_EQ(RT_ERR_OK, rtl8309n_dot1x_portBasedEnable_set(9, 1));
	EXPECT_EQ(RT_ERR_OK, rtl8309n_dot1x_macBasedEnable_get(9, &v));
	EXPECT_TRUE(trace().empty()) << "there is no SMI address 9 to reach";

	CheckRefused({
		{"stp_set port 9", [] { return rtl8309n_stp_set(9, 0); }},
		{"stp_set state 5", [] { return rtl8309n_stp_set(0, 5); }},
		{"stp_get null", [] { return rtl8309n_stp_get(0, nullptr); }},
		{"portBasedEnable_set port 10", [] { return rtl8309n_dot1x_portBasedEnable_set(10, 1); }},
		{"macBasedEnable_get null", [] { return rtl8309n_dot1x_macBasedEnable_get(0, nullptr); }},
		{"portBased_set port 9", [] { return rtl8309n_dot1x_portBased_set(9, 1, 0); }},
		{"portBased_get null", [&] { return rtl8309n_dot1x_portBased_get(0, &v, nullptr); }},
		{"macBased direction 2", [] { return rtl8309n_dot1x_macBased_set(2); }},
		{"unauthPktAction 0", [] { return rtl8309n_dot1x_unauthPktAction_set(0); }},
	});
}

}  // namespace
