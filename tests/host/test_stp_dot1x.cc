// STP state and 802.1X controls; the rtk_ 802.1X API with its deliberate
// differences, port-based updates and the authorised flag of L2 entries.
#include "regfield_check.h"

#include <cstring>

namespace {

class StpDot1xTest : public FieldTest {};

TEST_F(StpDot1xTest, BitPlacementAndPolarity)
{
	CheckAll({{"portBasedEnable port 5", ACCESSORS(dot1x_portBasedEnable, 5u), 5, 16, 3, 0, 1},
		  {"macBasedEnable port 8", ACCESSORS(dot1x_macBasedEnable, 8u), 8, 16, 3, 3, 1}});
	CheckCodeBit(ACCESSORS(dot1x_macBased), 0, 16, 15, 1, 1, 0);
	CheckCodeBit(ACCESSORS(dot1x_unauthPktAction), 0, 16, 15, 0, 2, 3);
	u32 auth = 9, dir = 9;
	set_sw(2, 3, 16, 0x0009);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_dot1x_portBased_set(2, 1, 2));
	EXPECT_EQ(0x000F, sw(2, 3, 16)) << "any non-zero direction sets bit 2";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_dot1x_portBased_get(2, &auth, &dir));
	EXPECT_EQ(Pair(1, 1), Pair(auth, dir));
	ExpectSet(rtl8309n_dot1x_portBased_set(2, 2, 0), 2, 3, 16, 0x0009, "only exactly 1 authorises");
}

TEST_F(StpDot1xTest, EveryStateChangeRewritesTheStpReservedMulticastEntry)
{
	u32 state = 77;
	set_sw(2, 15, 16, 0xA51F);  // entry 0 scrambled, entry 1 must survive
	ExpectSet(rtl8309n_stp_set(4, 2), 2, 15, 16, 0xA502, "entry 0: trap, flag 0, value 0");
	ExpectGot(rtl8309n_stp_get(4, &state), state, 2u);
	set_sw(2, 15, 16, 0x001D);
	ClearTrace();
	ExpectSet(rtl8309n_stp_set(4, 2), 2, 15, 16, 0x0002, "rewritten although the state is unchanged");
	EXPECT_EQ((std::vector<Pair>{{2, 16}, {4, 16}}), DataWrites());
	ExpectSet(rtl8309n_stp_set(4, 4), 4, 2, 16, 0x0004, "state 4 lands on bit 2, bits 1..0 cleared");
	EXPECT_EQ(RT_ERR_OK, rtl8309n_stp_get(4, &state));
	EXPECT_EQ(2u, state) << "an unnamed register value leaves the output alone";
}

TEST_F(StpDot1xTest, PortNineOnlyForTheEnablesAndNoTrafficOnRefusal)
{
	u32 v = 0;
	ExpectChecks({
		{"portBasedEnable port 9: no address 9", [] { return rtl8309n_dot1x_portBasedEnable_set(9, 1); }, RT_ERR_OK},
		{"macBasedEnable_get port 9", [&] { return rtl8309n_dot1x_macBasedEnable_get(9, &v); }, RT_ERR_OK},
		{"stp_set port 9", [] { return rtl8309n_stp_set(9, 0); }},
		{"stp_set state 5", [] { return rtl8309n_stp_set(0, 5); }},
		{"portBasedEnable_set port 10", [] { return rtl8309n_dot1x_portBasedEnable_set(10, 1); }},
		{"portBased_set port 9", [] { return rtl8309n_dot1x_portBased_set(9, 1, 0); }},
		{"macBased direction 2", [] { return rtl8309n_dot1x_macBased_set(2); }},
		{"unauthPktAction 0", [] { return rtl8309n_dot1x_unauthPktAction_set(0); }},
	});
}

class ApiDot1xTest : public ChipTest {};

TEST_F(ApiDot1xTest, ChecksInOrderBeforeAnyChipAccess)
{
	ExpectChecks({
		{"unauth oper 2", [] { return rtk_dot1x_unauthPacketOper_set(99, 2); }, RT_ERR_DOT1X_UNAUTH_OPER},
		{"auth status port before status", [] { return rtk_dot1x_portBasedAuthStatus_set(9, 3); }, RT_ERR_PORT_ID},
		{"auth status 3", [] { return rtk_dot1x_portBasedAuthStatus_set(0, 3); }, RT_ERR_DOT1X_PORTBASEDAUTH},
		{"port direction 2", [] { return rtk_dot1x_portBasedDirection_set(0, 2); }, RT_ERR_DOT1X_PORTBASEDOPDIR},
		{"mac direction 3 (2 is taken)", [] { return rtk_dot1x_macBasedDirection_set(3); }, RT_ERR_DOT1X_MACBASEDOPDIR},
		{"auth add null", [] { return rtk_dot1x_macBasedAuthMac_add(nullptr, 0); }, RT_ERR_NULL_POINTER},
		{"auth add multicast", [] { return rtk_dot1x_macBasedAuthMac_add(kMcast, 9); }, RT_ERR_MAC},
		{"auth add fid 5", [] { return rtk_dot1x_macBasedAuthMac_add(kMacA, 5); }, RT_ERR_L2_FID},
		{"auth add fid 4 has no bucket", [] { return rtk_dot1x_macBasedAuthMac_add(kMacA, 4); }},
		{"auth del multicast: own code", [] { return rtk_dot1x_macBasedAuthMac_del(kMcast, 0); }, RT_ERR_DOT1X_MAC},
	});
}

TEST_F(ApiDot1xTest, AuthMacTouchesOnlyTheAuthorisedBitOfAnExistingEntry)
{
	u8 other[6] = {0x00, 0x02, 0x03, 0x04, 0x05, 0x06};
	PutL2(Way(kBucketA, 3), 0x0095, other);
	auto before = std::vector<u16>(&sim().l2[0][0], &sim().l2[0][0] + sizeof(sim().l2) / 2);
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_dot1x_macBasedAuthMac_add(kMacA, 1));
	EXPECT_EQ(0, memcmp(before.data(), sim().l2, sizeof(sim().l2))) << "nothing created";
	PutL2(Way(kBucketA, 1), 0x0055, kMacA);	// learned: fid 1, port 5, age 1
	PutL2(Way(kBucketA, 0), 0x0055, kMacA);
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_macBasedAuthMac_add(kMacA, 1));
	EXPECT_EQ(std::make_tuple(0x0855, 0x0055, 0x0095), std::make_tuple(L2Ctrl(Way(kBucketA, 1)),
		  L2Ctrl(Way(kBucketA, 0)), L2Ctrl(Way(kBucketA, 3)))) << "only the first match";
	EXPECT_EQ(0x5E4D, sim().l2[Way(kBucketA, 1)][1]);
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_macBasedAuthMac_del(kMacA, 1));
	EXPECT_EQ(0x0055, L2Ctrl(Way(kBucketA, 1)));
}

TEST_F(ApiDot1xTest, PortBasedUpdatesKeepTheOtherField)
{
	u32 a = 9, d = 9;
	set_sw(3, 3, 16, 0x0006);	// authorised, direction 1
	ExpectSet(rtk_dot1x_portBasedAuthStatus_set(3, 2), 3, 3, 16, 0x0004, "2 is unauthorised");
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_portBasedAuthStatus_set(3, 1));
	ExpectSet(rtk_dot1x_portBasedDirection_set(3, 0), 3, 3, 16, 0x0002);
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_portBasedAuthStatus_get(3, &a));
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_portBasedDirection_get(3, &d));
	EXPECT_EQ(Pair(1, 0), Pair(a, d));
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_macBasedDirection_set(2));
	ExpectSet(rtk_dot1x_unauthPacketOper_set(0, RTK_DOT1X_UNAUTH_TRAP_CPU), 0, 15, 16, 0x0003);
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_unauthPacketOper_set(0, RTK_DOT1X_UNAUTH_DROP));
	ExpectGot(rtk_dot1x_unauthPacketOper_get(0, &a), a, 0u);
}

}  // namespace
