// rtk_ L2 table: argument checks with their deliberate differences, and the
// chip's table after address add, get and delete.
#include "api_test.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

class ApiL2Test : public ApiTest {};

rtk_l2_ucastAddr_t Addr(u8 port, u8 fid, u32 age, u8 is_static, const u8 *mac)
{
	rtk_l2_ucastAddr_t a{0, 0, 0, is_static, port, fid, age, {}};
	std::copy(mac, mac + 6, a.mac);
	return a;
}

TEST_F(ApiL2Test, ChecksInOrderBeforeAnyChipAccess)
{
	static u32 out;
	static rtk_l2_ucastAddr_t a;
	auto add = [](void (*tweak)(rtk_l2_ucastAddr_t &), u32 fid = 1) {
		return [tweak, fid] {
			rtk_l2_ucastAddr_t r = Addr(1, 1, 300, 1, kMacA);
			tweak(r);
			return rtk_l2_addr_add(kMacA, fid, &r);
		};
	};
	ExpectChecks({
		{"add null mac", [] { return rtk_l2_addr_add(nullptr, 0, &a); }, RT_ERR_NULL_POINTER},
		{"add null record", [] { return rtk_l2_addr_add(kMacA, 0, nullptr); }, RT_ERR_NULL_POINTER},
		{"add multicast key", [] { return rtk_l2_addr_add(kMcast, 9, &a); }, RT_ERR_MAC},
		{"add fid 4 before record", add([](auto &r) { r.port = 9; }, 4), RT_ERR_L2_FID},
		{"add auth 2", add([](auto &r) { r.auth = 2; }), RT_ERR_INPUT},
		{"add block10 2", add([](auto &r) { r.block10 = 2; }), RT_ERR_INPUT},
		{"add block9 2", add([](auto &r) { r.block9 = 2; }), RT_ERR_INPUT},
		{"add isStatic 2 before port", add([](auto &r) { r.isStatic = 2; r.port = 9; }), RT_ERR_INPUT},
		{"add age 301", add([](auto &r) { r.age = 301; }), RT_ERR_INPUT},
		{"add port 9 before record fid", add([](auto &r) { r.port = 9; r.fid = 4; }), RT_ERR_PORT_ID},
		{"add record fid 4", add([](auto &r) { r.fid = 4; }), RT_ERR_INPUT},
		{"add record multicast", add([](auto &r) { r.mac[0] = 1; }), RT_ERR_MAC},
		{"get kind before null record", [] { return rtk_l2_addr_get(kMcast, 9, nullptr); }, RT_ERR_MAC},
		{"get fid 4 before null", [] { return rtk_l2_addr_get(kMacA, 4, nullptr); }, RT_ERR_L2_FID},
		{"get null record", [] { return rtk_l2_addr_get(kMacA, 3, nullptr); }, RT_ERR_NULL_POINTER},
		{"get null mac", [] { return rtk_l2_addr_get(nullptr, 3, &a); }, RT_ERR_NULL_POINTER},
		{"del null mac is a MAC error", [] { return rtk_l2_addr_del(nullptr, 0); }, RT_ERR_MAC},
		{"del multicast", [] { return rtk_l2_addr_del(kMcast, 0); }, RT_ERR_MAC},
		{"del fid 5", [] { return rtk_l2_addr_del(kMacA, 5); }, RT_ERR_L2_FID},
		{"del admits fid 4, the chip refuses", [] { return rtk_l2_addr_del(kMacA, 4); }, RT_ERR_FAILED},
		{"mc add null", [] { return rtk_l2_mcastAddr_add(nullptr, 0, 1); }, RT_ERR_NULL_POINTER},
		{"mc add unicast", [] { return rtk_l2_mcastAddr_add(kMacA, 9, 1); }, RT_ERR_MAC},
		{"mc add fid 4", [] { return rtk_l2_mcastAddr_add(kMcast, 4, 0x200); }, RT_ERR_L2_FID},
		{"mc add mask 0x200", [] { return rtk_l2_mcastAddr_add(kMcast, 3, 0x200); }, RT_ERR_PORT_MASK},
		{"mc get null out before kind", [] { return rtk_l2_mcastAddr_get(kMacA, 0, nullptr); }, RT_ERR_NULL_POINTER},
		{"mc get unicast", [] { return rtk_l2_mcastAddr_get(kMacA, 0, &out); }, RT_ERR_MAC},
		{"mc get fid 4", [] { return rtk_l2_mcastAddr_get(kMcast, 4, &out); }, RT_ERR_L2_FID},
		{"mc del null mac is a plain failure", [] { return rtk_l2_mcastAddr_del(nullptr, 0); }, RT_ERR_FAILED},
		{"mc del unicast", [] { return rtk_l2_mcastAddr_del(kMacA, 0); }, RT_ERR_MAC},
		{"mc del fid 4", [] { return rtk_l2_mcastAddr_del(kMcast, 4); }, RT_ERR_L2_FID},
		{"sys enable get null", [] { return rtk_l2_limitLearningSysCntEnable_get(nullptr); }, RT_ERR_FAILED},
		{"sys limit a 256", [] { return rtk_l2_limitLearningSysCnt_set(256, 0); }, RT_ERR_INPUT},
		{"sys limit b 512", [] { return rtk_l2_limitLearningSysCnt_set(0, 512); }, RT_ERR_INPUT},
		{"sys limit get null", [] { return rtk_l2_limitLearningSysCnt_get(&out, nullptr); }, RT_ERR_NULL_POINTER},
		{"port enable port 9", [] { return rtk_l2_limitLearningCntEnable_set(9, 1); }, RT_ERR_PORT_ID},
		{"port enable get null", [] { return rtk_l2_limitLearningCntEnable_get(8, nullptr); }, RT_ERR_NULL_POINTER},
		{"port limit port before limit", [] { return rtk_l2_limitLearningCnt_set(9, 32); }, RT_ERR_PORT_ID},
		{"port limit 32", [] { return rtk_l2_limitLearningCnt_set(0, 32); }, RT_ERR_LIMITED_L2ENTRY_NUM},
		{"port limit get null", [] { return rtk_l2_limitLearningCnt_get(0, nullptr); }, RT_ERR_NULL_POINTER},
		{"limit action 1", [] { return rtk_l2_limitLearningCntAction_set(0, 1); }, RT_ERR_NOT_ALLOWED},
		{"limit action 3", [] { return rtk_l2_limitLearningCntAction_set(99, 3); }, RT_ERR_NOT_ALLOWED},
		{"limit action get null", [] { return rtk_l2_limitLearningCntAction_get(99, nullptr); }, RT_ERR_NULL_POINTER},
		{"sys count null", [] { return rtk_l2_learningSysCnt_get(nullptr); }, RT_ERR_NULL_POINTER},
		{"port count port 9", [] { return rtk_l2_learningCnt_get(9, nullptr); }, RT_ERR_PORT_ID},
	});
}

TEST_F(ApiL2Test, UnicastAddAgeGetDelete)
{
	rtk_l2_ucastAddr_t in = Addr(5, 1, 200, 1, kMacA), out{};
	in.block9 = 1;
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_add(kMacA, 1, &in));
	// fid 1, port 5, age 2 (stored 0b11), static, block9
	EXPECT_EQ(0x3D5, L2Ctrl(Way(kBucketA, 3)));
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_get(kMacA, 1, &out));
	EXPECT_EQ(0, memcmp(&in, &out, sizeof(in)));

	in.age = 150;	// no chip age: stored as aged out
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_add(kMacA, 1, &in));
	EXPECT_EQ(0x315, L2Ctrl(Way(kBucketA, 3)));
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_get(kMacA, 1, &out));
	EXPECT_EQ(0u, out.age);

	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_del(kMacA, 1));
	EXPECT_EQ(0, L2Ctrl(Way(kBucketA, 3)));
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_l2_addr_del(kMacA, 1));
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_l2_addr_get(kMacA, 1, &out));
}

TEST_F(ApiL2Test, FullBucketsUnicastFailsMulticastSucceeds)
{
	u8 other[6] = {0x00, 0x02, 0x03, 0x04, 0x05, 0x06};
	u32 mcast_bucket = 0, mask = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_MacToIdx_get(kMcast, 0, &mcast_bucket));

	ASSERT_EQ(RT_ERR_OK, rtk_l2_mcastAddr_add(kMcast, 0, 0x109));
	ASSERT_EQ(RT_ERR_OK, rtk_l2_mcastAddr_get(kMcast, 0, &mask));
	EXPECT_EQ(0x109u, mask);
	ASSERT_EQ(RT_ERR_OK, rtk_l2_mcastAddr_del(kMcast, 0));
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_l2_mcastAddr_get(kMcast, 0, &mask));
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_l2_mcastAddr_del(kMcast, 0));

	for (u32 w = 0; w < 4; w++) {
		PutL2(Way(kBucketB, w), 0x0100, other);
		PutL2(Way(mcast_bucket, w), 0x0100, other);
	}
	rtk_l2_ucastAddr_t in = Addr(2, 0, 300, 0, kMacB);
	EXPECT_EQ(RT_ERR_L2_NO_EMPTY_ENTRY, rtk_l2_addr_add(kMacB, 0, &in));
	EXPECT_EQ(RT_ERR_OK, rtk_l2_mcastAddr_add(kMcast, 0, 0x003));
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_l2_mcastAddr_get(kMcast, 0, &mask)) << "nothing written";
}

TEST_F(ApiL2Test, LearningLimitActionIsGlobal)
{
	const std::pair<u32, u16> rows[] = {{RTK_L2_LIMIT_ACT_TRAP_CPU, 0x0200},
					    {RTK_L2_LIMIT_ACT_DROP, 0x0000}};
	for (const auto &[action, reg17] : rows) {
		u32 back = 9;
		ASSERT_EQ(RT_ERR_OK, rtk_l2_limitLearningCntAction_set(7, action));
		EXPECT_EQ(reg17, sw(6, 15, 17));
		ASSERT_EQ(RT_ERR_OK, rtk_l2_limitLearningCntAction_get(3, &back));
		EXPECT_EQ(action, back);
	}
}

}  // namespace
