// rtk_ mirroring: argument checks and the mirror registers.
#include "api_test.h"

namespace {

class ApiMirrorTest : public ApiTest {};

TEST_F(ApiMirrorTest, ChecksInOrderBeforeAnyChipAccess)
{
	static u32 ok = 0x1FF, big = 0x200, out;
	static u8 mac[6];
	ExpectChecks({
		{"port 9 before pointers", [] { return rtk_mirror_portBased_set(9, nullptr, nullptr); }, RT_ERR_PORT_ID},
		{"null rx mask", [] { return rtk_mirror_portBased_set(8, nullptr, &big); }, RT_ERR_NULL_POINTER},
		{"null tx mask before rx mask range", [] { return rtk_mirror_portBased_set(8, &big, nullptr); }, RT_ERR_NULL_POINTER},
		{"rx mask 0x200", [] { return rtk_mirror_portBased_set(8, &big, &ok); }, RT_ERR_PORT_MASK},
		{"tx mask 0x200", [] { return rtk_mirror_portBased_set(8, &ok, &big); }, RT_ERR_PORT_MASK},
		{"get null port", [] { return rtk_mirror_portBased_get(nullptr, &out, &out); }, RT_ERR_NULL_POINTER},
		{"get null tx", [] { return rtk_mirror_portBased_get(&out, &out, nullptr); }, RT_ERR_NULL_POINTER},
		{"mac set null mac is a plain failure", [] { return rtk_mirror_macBased_set(nullptr, 1); }, RT_ERR_FAILED},
		{"mac get null mac", [] { return rtk_mirror_macBased_get(nullptr, &out); }, RT_ERR_FAILED},
		{"mac get null enable", [] { return rtk_mirror_macBased_get(mac, nullptr); }, RT_ERR_FAILED},
	});
}

TEST_F(ApiMirrorTest, SettingsReachTheChipAndReadBack)
{
	u32 rx = 0x1FF, tx = 0x009, port = 0;
	set_sw(5, 15, 17, 0xFE00);
	ASSERT_EQ(RT_ERR_OK, rtk_mirror_portBased_set(8, &rx, &tx));
	EXPECT_EQ(0x1FF, sw(5, 15, 18)) << "rx is mask A";
	EXPECT_EQ(0xFE09, sw(5, 15, 17)) << "tx is mask B";
	EXPECT_EQ(0x28, sw(5, 15, 16)) << "port 8, self-filter on";
	rx = tx = 0;
	ASSERT_EQ(RT_ERR_OK, rtk_mirror_portBased_get(&port, &rx, &tx));
	EXPECT_EQ((std::vector<u32>{8, 0x1FF, 9}), (std::vector<u32>{port, rx, tx}));

	u8 mac[6] = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}, back[6] = {};
	u32 en = 7;
	ASSERT_EQ(RT_ERR_OK, rtk_mirror_macBased_set(mac, 1));
	EXPECT_EQ(0x1100, sw(5, 15, 19));
	ASSERT_EQ(RT_ERR_OK, rtk_mirror_macBased_get(back, &en));
	EXPECT_EQ(1u, en);
	EXPECT_EQ(0x55, back[5]);
}

}  // namespace
