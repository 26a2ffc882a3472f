// Port- and MAC-based mirroring registers.
#include "chip_fixture.h"

#include <array>

namespace {

class MirrorTest : public ChipTest {};

TEST_F(MirrorTest, PortBasedSetForcesSelfFilterAndKeepsOtherBits)
{
	set_sw(5, 15, 16, 0xFF53);  // MAC mirroring and pause on, port 3, self-filter off
	set_sw(5, 15, 17, 0xFFFF);
	set_sw(5, 15, 18, 0xFE00);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_portBased_set(8, 0x1FF, 0));
	EXPECT_EQ(0xFF78, sw(5, 15, 16));
	EXPECT_EQ(0xFFFF, sw(5, 15, 18));
	EXPECT_EQ(0xFE00, sw(5, 15, 17));
	u32 port = 0, a = 0, b = 1;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_portBased_get(&port, &a, &b));
	EXPECT_EQ(std::make_tuple(8u, 0x1FFu, 0u), std::make_tuple(port, a, b));

	ClearTrace();
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mirror_portBased_set(0, 0x200, 0));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mirror_portBased_set(0, 0, 0x200));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mirror_portBased_set(9, 0, 0));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mirror_portBased_get(&port, &a, nullptr));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mirror_macBased_set(nullptr, 1));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mirror_macBased_get(nullptr, &a));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mirror_selfFilterEnable_get(nullptr));
	EXPECT_TRUE(trace().empty());
}

TEST_F(MirrorTest, FlagsTakeOnlyOneAsEnable)
{
	for (u32 in : {1u, 0u, 2u}) {
		u32 self = 9, pause = 9;
		ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_selfFilterEnable_set(in));
		ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_pauseFrameEnable_set(in));
		EXPECT_EQ(in == 1 ? 0x0060 : 0, sw(5, 15, 16)) << in;
		ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_selfFilterEnable_get(&self));
		ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_pauseFrameEnable_get(&pause));
		EXPECT_EQ(std::make_tuple(in == 1, in == 1), std::make_tuple(self == 1, pause == 1));
	}
}

TEST_F(MirrorTest, MacBasedByteOrder)
{
	const std::array<u8, 6> mac{0x00, 0x11, 0x22, 0x33, 0x44, 0x55};
	std::array<u8, 6> out{};
	u32 en = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_macBased_set(mac.data(), 1));
	EXPECT_EQ(W(5, 21, 0x5544), trace().back()) << "enable first, then 19, 20, 21";
	EXPECT_EQ(std::make_tuple(0x0010, 0x1100, 0x3322, 0x5544),
		  std::make_tuple(sw(5, 15, 16), sw(5, 15, 19), sw(5, 15, 20), sw(5, 15, 21)));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_macBased_get(out.data(), &en));
	EXPECT_EQ(mac, out);
	EXPECT_EQ(1u, en);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mirror_macBased_set(mac.data(), 2));
	EXPECT_EQ(0, sw(5, 15, 16));
}

}  // namespace
