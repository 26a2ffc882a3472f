// rtk_ 802.1X: argument checks with their deliberate differences, port-based
// state updates, and the authorised flag of existing L2 entries.
#include "api_test.h"

#include <cstring>

namespace {

class ApiDot1xTest : public ApiTest {};

TEST_F(ApiDot1xTest, ChecksInOrderBeforeAnyChipAccess)
{
	static u32 out;
	ExpectChecks({
		{"unauth oper 2", [] { return rtk_dot1x_unauthPacketOper_set(99, 2); }, RT_ERR_DOT1X_UNAUTH_OPER},
		{"unauth get null", [] { return rtk_dot1x_unauthPacketOper_get(99, nullptr); }, RT_ERR_NULL_POINTER},
		{"port enable port 9", [] { return rtk_dot1x_portBasedEnable_set(9, 1); }, RT_ERR_PORT_ID},
		{"port enable get port before null", [] { return rtk_dot1x_portBasedEnable_get(9, nullptr); }, RT_ERR_PORT_ID},
		{"port enable get null", [] { return rtk_dot1x_portBasedEnable_get(0, nullptr); }, RT_ERR_NULL_POINTER},
		{"auth status port before status", [] { return rtk_dot1x_portBasedAuthStatus_set(9, 3); }, RT_ERR_PORT_ID},
		{"auth status 3", [] { return rtk_dot1x_portBasedAuthStatus_set(0, 3); }, RT_ERR_DOT1X_PORTBASEDAUTH},
		{"auth status get null", [] { return rtk_dot1x_portBasedAuthStatus_get(0, nullptr); }, RT_ERR_NULL_POINTER},
		{"port direction 2", [] { return rtk_dot1x_portBasedDirection_set(0, 2); }, RT_ERR_DOT1X_PORTBASEDOPDIR},
		{"port direction get port 9", [] { return rtk_dot1x_portBasedDirection_get(9, &out); }, RT_ERR_PORT_ID},
		{"mac enable port 9", [] { return rtk_dot1x_macBasedEnable_set(9, 1); }, RT_ERR_PORT_ID},
		{"mac enable get null", [] { return rtk_dot1x_macBasedEnable_get(8, nullptr); }, RT_ERR_NULL_POINTER},
		{"mac direction 3 (2 is taken)", [] { return rtk_dot1x_macBasedDirection_set(3); }, RT_ERR_DOT1X_MACBASEDOPDIR},
		{"mac direction get null", [] { return rtk_dot1x_macBasedDirection_get(nullptr); }, RT_ERR_NULL_POINTER},
		{"auth add null", [] { return rtk_dot1x_macBasedAuthMac_add(nullptr, 0); }, RT_ERR_NULL_POINTER},
		{"auth add multicast", [] { return rtk_dot1x_macBasedAuthMac_add(kMcast, 9); }, RT_ERR_MAC},
		{"auth add fid 5", [] { return rtk_dot1x_macBasedAuthMac_add(kMacA, 5); }, RT_ERR_L2_FID},
		{"auth add fid 4 has no bucket", [] { return rtk_dot1x_macBasedAuthMac_add(kMacA, 4); }, RT_ERR_FAILED},
		{"auth del null", [] { return rtk_dot1x_macBasedAuthMac_del(nullptr, 0); }, RT_ERR_NULL_POINTER},
		{"auth del multicast has its own code", [] { return rtk_dot1x_macBasedAuthMac_del(kMcast, 0); }, RT_ERR_DOT1X_MAC},
		{"auth del fid 5", [] { return rtk_dot1x_macBasedAuthMac_del(kMacA, 5); }, RT_ERR_L2_FID},
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
	EXPECT_EQ(0x0855, L2Ctrl(Way(kBucketA, 1)));
	EXPECT_EQ(0x0055, L2Ctrl(Way(kBucketA, 0))) << "only the first match";
	EXPECT_EQ(0x0095, L2Ctrl(Way(kBucketA, 3)));
	EXPECT_EQ(0x5E4D, sim().l2[Way(kBucketA, 1)][1]);
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_macBasedAuthMac_del(kMacA, 1));
	EXPECT_EQ(0x0055, L2Ctrl(Way(kBucketA, 1)));
}

TEST_F(ApiDot1xTest, PortBasedUpdatesKeepTheOtherField)
{
	u32 v = 9;
	set_sw(3, 3, 16, 0x0006);	// authorised, direction 1
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_portBasedAuthStatus_set(3, 2));
	EXPECT_EQ(0x0004, sw(3, 3, 16)) << "2 is unauthorised";
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_portBasedAuthStatus_set(3, 1));
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_portBasedDirection_set(3, 0));
	EXPECT_EQ(0x0002, sw(3, 3, 16));
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_portBasedAuthStatus_get(3, &v));
	EXPECT_EQ(1u, v);
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_portBasedDirection_get(3, &v));
	EXPECT_EQ(0u, v);

	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_macBasedDirection_set(2));
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_unauthPacketOper_set(0, RTK_DOT1X_UNAUTH_TRAP_CPU));
	EXPECT_EQ(0x0003, sw(0, 15, 16));
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_unauthPacketOper_set(0, RTK_DOT1X_UNAUTH_DROP));
	ASSERT_EQ(RT_ERR_OK, rtk_dot1x_unauthPacketOper_get(0, &v));
	EXPECT_EQ(0u, v);
}

}  // namespace
