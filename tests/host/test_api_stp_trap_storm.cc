// rtk_ spanning tree, traps and storm filters: argument checks and the
// value translations between the API and the chip.
#include "api_test.h"

namespace {

class ApiStpTrapStormTest : public ApiTest {};

TEST_F(ApiStpTrapStormTest, ChecksInOrderBeforeAnyChipAccess)
{
	static u32 out;
	static rtk_storm_attr_t attr;
	ExpectChecks({
		{"stp port before state", [] { return rtk_stp_mstpState_set(0, 9, 4); }, RT_ERR_PORT_ID},
		{"stp state 4", [] { return rtk_stp_mstpState_set(0, 0, 4); }, RT_ERR_MSTP_STATE},
		{"stp get null", [] { return rtk_stp_mstpState_get(0, 0, nullptr); }, RT_ERR_NULL_POINTER},
		{"mcast port 9 though unused", [] { return rtk_trap_unknownMcastPktAction_set(9, 0, 2); }, RT_ERR_PORT_ID},
		{"mcast type 0", [] { return rtk_trap_unknownMcastPktAction_set(0, 0, 0); }, RT_ERR_INPUT},
		{"mcast type 3", [] { return rtk_trap_unknownMcastPktAction_set(0, 3, 0); }, RT_ERR_INPUT},
		{"mcast action 2", [] { return rtk_trap_unknownMcastPktAction_set(0, 1, 2); }, RT_ERR_INPUT},
		{"mcast get type before null", [] { return rtk_trap_unknownMcastPktAction_get(0, 0, nullptr); }, RT_ERR_INPUT},
		{"mcast get null", [] { return rtk_trap_unknownMcastPktAction_get(0, 2, nullptr); }, RT_ERR_NULL_POINTER},
		{"igmp type 4", [] { return rtk_trap_igmpCtrlPktAction_set(4, 0); }, RT_ERR_INPUT},
		{"igmp action 5", [] { return rtk_trap_igmpCtrlPktAction_set(0, 5); }, RT_ERR_INPUT},
		{"igmp get type before null", [] { return rtk_trap_igmpCtrlPktAction_get(4, nullptr); }, RT_ERR_INPUT},
		{"igmp get null", [] { return rtk_trap_igmpCtrlPktAction_get(3, nullptr); }, RT_ERR_NULL_POINTER},
		{"storm port before type", [] { return rtk_storm_filterEnable_set(9, 4, 1); }, RT_ERR_PORT_ID},
		{"storm type 4", [] { return rtk_storm_filterEnable_set(0, 4, 1); }, RT_ERR_INPUT},
		{"storm get type before null", [] { return rtk_storm_filterEnable_get(0, 4, nullptr); }, RT_ERR_INPUT},
		{"storm attr null", [] { return rtk_storm_filterAttr_set(8, 3, nullptr); }, RT_ERR_NULL_POINTER},
		{"storm attr get port 9", [] { return rtk_storm_filterAttr_get(9, 0, &attr); }, RT_ERR_PORT_ID},
		{"storm status type 4", [] { return rtk_storm_filterStatus_set(0, 4, 1); }, RT_ERR_INPUT},
		{"storm status get null", [] { return rtk_storm_filterStatus_get(0, 0, nullptr); }, RT_ERR_NULL_POINTER},
		{"storm status get port 9", [] { return rtk_storm_filterStatus_get(9, 0, &out); }, RT_ERR_PORT_ID},
	});
}

TEST_F(ApiStpTrapStormTest, StpStateOnlyWhenTheRegisterHoldsOne)
{
	u32 state = 9;
	ASSERT_EQ(RT_ERR_OK, rtk_stp_mstpState_set(0, 4, RTK_STP_STATE_FORWARDING));
	EXPECT_EQ(3, sw(4, 2, 16));
	ASSERT_EQ(RT_ERR_OK, rtk_stp_mstpState_get(5, 4, &state));
	EXPECT_EQ(3u, state);
	set_sw(4, 2, 16, 0x0006);
	state = 9;
	EXPECT_EQ(RT_ERR_OK, rtk_stp_mstpState_get(0, 4, &state));
	EXPECT_EQ(9u, state);
}

TEST_F(ApiStpTrapStormTest, TrapTypesAndActionsAreTranslated)
{
	u32 action = 9;
	// IGMP types 1 and 2 swap: API type 1 is reserved-multicast entry 14,
	// the low slot of register 23.
	ASSERT_EQ(RT_ERR_OK, rtk_trap_igmpCtrlPktAction_set(1, RTK_TRAP_IGMP_TRAP_CPU));
	EXPECT_EQ(0x0002, sw(2, 15, 23));
	ASSERT_EQ(RT_ERR_OK, rtk_trap_igmpCtrlPktAction_get(1, &action));
	EXPECT_EQ(2u, action);
	ASSERT_EQ(RT_ERR_OK, rtk_trap_igmpCtrlPktAction_set(2, RTK_TRAP_IGMP_DROP));
	EXPECT_EQ(0x0300, sw(2, 15, 22)) << "API type 2 is entry 13";
	ASSERT_EQ(RT_ERR_OK, rtk_trap_igmpCtrlPktAction_set(1, RTK_TRAP_IGMP_FORWARD_ALT));
	EXPECT_EQ(0x0000, sw(2, 15, 23));

	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_set(0, 1, RTK_TRAP_MCAST_DROP));
	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_set(0, 2, RTK_TRAP_MCAST_DROP));
	EXPECT_EQ(0x0600, sw(6, 15, 16));
	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_set(0, 1, RTK_TRAP_MCAST_FORWARD));
	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_get(8, 1, &action));
	EXPECT_EQ(0u, action);
	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_get(8, 2, &action));
	EXPECT_EQ(1u, action);
}

TEST_F(ApiStpTrapStormTest, StormAttributesRoundTrip)
{
	rtk_storm_attr_t in{1, 0x1ABCD, 0x1234, 1}, out{};
	ASSERT_EQ(RT_ERR_OK, rtk_storm_filterAttr_set(5, 0, &in));
	ASSERT_EQ(RT_ERR_OK, rtk_storm_filterAttr_get(5, 0, &out));
	EXPECT_EQ((std::vector<u32>{1, 0x1ABCD, 0x1234, 1}),
		  (std::vector<u32>{out.ctrlFlag, out.rate, out.param, out.globalFlag}));
}

}  // namespace
