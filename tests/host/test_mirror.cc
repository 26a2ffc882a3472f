// Port- and MAC-based mirroring registers and the rtk_ mirror API.
#include "regfield_check.h"

#include <array>

namespace {

class MirrorTest : public FieldTest {};

TEST_F(MirrorTest, PortBasedSetForcesSelfFilterAndKeepsOtherBits)
{
	set_sw(5, 15, 16, 0xFF53);  // MAC mirroring and pause on, port 3, self-filter off
	set_sw(5, 15, 17, 0xFFFF);
	set_sw(5, 15, 18, 0xFE00);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_portBased_set(8, 0x1FF, 0));
	EXPECT_EQ(std::make_tuple(0xFF78, 0xFFFF, 0xFE00), std::make_tuple(sw(5, 15, 16), sw(5, 15, 18), sw(5, 15, 17)));
	u32 port = 0, a = 0, b = 1;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_portBased_get(&port, &a, &b));
	EXPECT_EQ(std::make_tuple(8u, 0x1FFu, 0u), std::make_tuple(port, a, b));
	ExpectChecks({
		{"rx mask 0x200", [] { return rtl8309n_mirror_portBased_set(0, 0x200, 0); }},
		{"port 9", [] { return rtl8309n_mirror_portBased_set(9, 0, 0); }},
		{"mac set null", [] { return rtl8309n_mirror_macBased_set(nullptr, 1); }},
	});
}

TEST_F(MirrorTest, FlagsTakeOnlyOneAsEnableAndMacByteOrder)
{
	CheckAll({{"self filter", ACCESSORS(mirror_selfFilterEnable), 5, 16, 15, 5, 1},
		  {"pause frames", ACCESSORS(mirror_pauseFrameEnable), 5, 16, 15, 6, 1}});
	const std::array<u8, 6> mac{0x00, 0x11, 0x22, 0x33, 0x44, 0x55};
	std::array<u8, 6> out{};
	u32 en = 0;
	set_sw(5, 15, 16, 0x0000);
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_macBased_set(mac.data(), 1));
	EXPECT_EQ((std::vector<Pair>{{5, 16}, {5, 19}, {5, 20}, {5, 21}}), DataWrites()) << "enable first";
	EXPECT_EQ(std::make_tuple(0x0010, 0x1100, 0x3322, 0x5544),
		  std::make_tuple(sw(5, 15, 16), sw(5, 15, 19), sw(5, 15, 20), sw(5, 15, 21)));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_macBased_get(out.data(), &en));
	EXPECT_EQ(mac, out);
	EXPECT_EQ(1u, en);
	ExpectSet(rtl8309n_mirror_macBased_set(mac.data(), 2), 5, 15, 16, 0);
}

class ApiMirrorTest : public ChipTest {};

TEST_F(ApiMirrorTest, ChecksInOrderBeforeAnyChipAccess)
{
	static u32 ok = 0x1FF, big = 0x200;
	ExpectChecks({
		{"port 9 before pointers", [] { return rtk_mirror_portBased_set(9, nullptr, nullptr); }, RT_ERR_PORT_ID},
		{"null rx mask", [] { return rtk_mirror_portBased_set(8, nullptr, &big); }, RT_ERR_NULL_POINTER},
		{"null tx before rx mask range", [] { return rtk_mirror_portBased_set(8, &big, nullptr); }, RT_ERR_NULL_POINTER},
		{"rx mask 0x200", [] { return rtk_mirror_portBased_set(8, &big, &ok); }, RT_ERR_PORT_MASK},
		{"mac set null mac is a plain failure", [] { return rtk_mirror_macBased_set(nullptr, 1); }},
	});
}

TEST_F(ApiMirrorTest, SettingsReachTheChipAndReadBack)
{
	u32 rx = 0x1FF, tx = 0x009, port = 0;
	set_sw(5, 15, 17, 0xFE00);
	ExpectSet(rtk_mirror_portBased_set(8, &rx, &tx), 5, 15, 18, 0x1FF, "rx is mask A");
	EXPECT_EQ(0xFE09, sw(5, 15, 17)) << "tx is mask B";
	EXPECT_EQ(0x28, sw(5, 15, 16)) << "port 8, self-filter on";
	rx = tx = 0;
	ASSERT_EQ(RT_ERR_OK, rtk_mirror_portBased_get(&port, &rx, &tx));
	EXPECT_EQ(std::make_tuple(8u, 0x1FFu, 9u), std::make_tuple(port, rx, tx));
}

}  // namespace
