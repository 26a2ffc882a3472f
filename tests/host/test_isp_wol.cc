// ISP/WAN block and wake-up block.
#include "regfield_check.h"

namespace {

class IspWolTest : public FieldTest {};

TEST_F(IspWolTest, IspEnableWanPortAndMac)
{
	const u16 words[3] = {0x1100, 0x3322, 0x5544};
	u8 mac[6] = {};
	u32 port = 0;

	Check({"isp enable", rtl8309n_isp_enable_set, rtl8309n_isp_enable_get, 1, 16, 17, 0, 1, false, 0});
	ASSERT_EQ(RT_ERR_OK, rtl8309n_isp_wanPort_set(9));
	EXPECT_EQ(0x0009, sw(1, 17, 17));
	set_sw(1, 17, 17, 0xFFF7);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_isp_wanPort_get(&port));
	EXPECT_EQ(7u, port) << "bits 3..0";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_isp_mac_set(words));
	EXPECT_EQ(0x5544, sw(1, 17, 20));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_isp_mac_get(mac));
	EXPECT_EQ((std::vector<u8>{0x00, 0x11, 0x22, 0x33, 0x44, 0x55}), std::vector<u8>(mac, mac + 6));
}

TEST_F(IspWolTest, WakeUpRegistersAndWriteOrder)
{
	u32 en = 9, m1 = 9, m2 = 9, f1 = 9, f2 = 9;

	set_sw(7, 14, 20, 0xFFF0);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_enable_set(0, 1));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_linkchngEnable_set(1, 0x1FF));
	EXPECT_EQ(0xFFF6, sw(7, 14, 20));
	EXPECT_EQ(0x01FF, sw(7, 14, 21));

	set_sw(7, 14, 25, 0x0004);  // frame wake-up status, read only
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_frameEnable_set(1, 0x101, 0x0F0, 1, 0));
	EXPECT_EQ((std::vector<std::pair<u32, u32>>{{7, 20}, {7, 23}, {7, 24}, {7, 25}}), DataWrites());
	EXPECT_EQ(0xFFFE, sw(7, 14, 20));
	EXPECT_EQ(0x0005, sw(7, 14, 25));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_frameEnable_get(&en, &m1, &m2, &f1, &f2));
	EXPECT_EQ((std::vector<u32>{1, 0x101, 0x0F0, 1, 0}), (std::vector<u32>{en, m1, m2, f1, f2}));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_frameStatus_get(&en));
	EXPECT_EQ(1u, en);

	CheckRefused({
		{"wan port 10", [] { return rtl8309n_isp_wanPort_set(10); }},
		{"isp mac set null", [] { return rtl8309n_isp_mac_set(nullptr); }},
		{"wkp enable 2", [] { return rtl8309n_wkp_enable_set(0, 2); }},
		{"link mask 0x200", [] { return rtl8309n_wkp_linkchngEnable_set(1, 0x200); }},
		{"frame flag2 2", [] { return rtl8309n_wkp_frameEnable_set(1, 0, 0, 0, 2); }},
		{"frame get null", [&] { return rtl8309n_wkp_frameEnable_get(&en, &en, &en, &en, nullptr); }},
	});
}

}  // namespace
