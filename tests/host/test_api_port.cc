// Switch and port API: check order, PHY abilities and status at the MII level.
#include "api_test.h"

#include <algorithm>

namespace {

class ApiPortTest : public ApiTest {};

// The eight flags in record order.
std::vector<u32> Flags(const rtk_port_phy_ability_t &a)
{
	return {a.autoNegotiation, a.half10,   a.full10,      a.half100,
		a.full100,         a.full1000, a.flowControl, a.asymFlowControl};
}

rtk_port_phy_ability_t g_ab;
u32 g_a, g_b, g_c;

TEST_F(ApiPortTest, ChecksComeFirstInOrderWithoutBusTraffic)
{
	ExpectChecks({
		{"maxPktLen class 9", [] { return rtk_switch_maxPktLen_set(9); }, RT_ERR_INPUT},
		{"maxPktLen class 3 not offered", [] { return rtk_switch_maxPktLen_set(3); }, RT_ERR_FAILED},
		{"maxPktLen class 7 read-only", [] { return rtk_switch_maxPktLen_set(7); }, RT_ERR_FAILED},
		{"maxPktLen_get null length", [] { return rtk_switch_maxPktLen_get(&g_a, nullptr); },
		 RT_ERR_NULL_POINTER},
		{"autoNego port before record", [] { return rtk_port_phyAutoNegoAbility_set(8, nullptr); },
		 RT_ERR_PORT_ID},
		{"autoNego null", [] { return rtk_port_phyAutoNegoAbility_set(0, nullptr); },
		 RT_ERR_NULL_POINTER},
		{"autoNego pause 2",
		 [] { g_ab = {0, 0, 0, 0, 0, 9, 0, 2}; return rtk_port_phyAutoNegoAbility_set(0, &g_ab); },
		 RT_ERR_INPUT},
		{"forceMode autoNegotiation 2",
		 [] { g_ab = {2, 0, 0, 0, 0, 0, 0, 0}; return rtk_port_phyForceModeAbility_set(0, &g_ab); },
		 RT_ERR_INPUT},
		{"forceMode_get null", [] { return rtk_port_phyForceModeAbility_get(7, nullptr); },
		 RT_ERR_NULL_POINTER},
		{"phyStatus port 8", [] { return rtk_port_phyStatus_get(8, &g_a, &g_b, &g_c); }, RT_ERR_PORT_ID},
		{"phyStatus null link", [] { return rtk_port_phyStatus_get(0, nullptr, &g_b, &g_c); },
		 RT_ERR_NULL_POINTER},
		{"isolation port 9", [] { return rtk_port_isolation_set(9, 0); }, RT_ERR_PORT_ID},
		{"isolation mask 0x200", [] { return rtk_port_isolation_set(8, 0x200); }, RT_ERR_PORT_MASK},
	});
	EXPECT_EQ(2u, g_ab.autoNegotiation) << "a refused record is not touched";
}

TEST_F(ApiPortTest, MaxPacketLengthClasses)
{
	u32 cls = 99, len = 0;

	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_set(MAXPKTLEN_2048B));
	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_get(nullptr, &len));
	EXPECT_EQ(2048u, len);
	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_set(MAXPKTLEN_1526B));
	EXPECT_EQ(0, sw(7, 17, 16) & 0xC0);
	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_get(&cls, &len));
	EXPECT_EQ((std::vector<u32>{MAXPKTLEN_1522B, 1522}), (std::vector<u32>{cls, len}))
		<< "programmed as 1518, reported as 1522";

	set_sw(7, 17, 16, 0x00C0);
	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_get(&cls, &len));
	EXPECT_EQ((std::vector<u32>{MAXPKTLEN_16000B, 16000}), (std::vector<u32>{cls, len}));
	set_sw(7, 17, 16, 0x0080);
	set_sw(7, 17, 17, 1700);
	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_get(&cls, &len));
	EXPECT_EQ((std::vector<u32>{MAXPKTLEN_USER, 1700}), (std::vector<u32>{cls, len}));
}

TEST_F(ApiPortTest, AutoNegotiationAbilities)
{
	rtk_port_phy_ability_t ab = {0, 1, 0, 0, 1, 1, 0, 1}, got = {};

	set_phy(2, 0, 4, 0xFFFF);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyAutoNegoAbility_set(2, &ab));
	EXPECT_EQ(1u, ab.autoNegotiation) << "stored into the caller's record";
	EXPECT_EQ(0xFB3F, phy(2, 0, 4)) << "ability bits replaced, the rest kept";
	EXPECT_EQ(0x1200, phy(2, 0, 0)) << "forced bits cleared, enabled and restarted";

	EXPECT_EQ(RT_ERR_OK, rtk_port_phyAutoNegoAbility_get(2, &got));
	EXPECT_EQ((std::vector<u32>{1, 1, 0, 0, 1, 0, 0, 1}), Flags(got));
	EXPECT_EQ(RT_ERR_PHY_AUTO_NEGO_MODE, rtk_port_phyForceModeAbility_get(2, &got));
	EXPECT_EQ(1u, got.autoNegotiation) << "nothing stored";
}

TEST_F(ApiPortTest, ForcedModeAbilities)
{
	rtk_port_phy_ability_t ab = {1, 0, 1, 0, 1, 0, 1, 0}, got;

	ASSERT_EQ(RT_ERR_OK, rtk_port_phyForceModeAbility_set(5, &ab));
	EXPECT_EQ(0u, ab.autoNegotiation);
	EXPECT_EQ(0x0401, phy(5, 0, 4)) << "speeds withdrawn, pause as asked";
	EXPECT_EQ(0x2100, phy(5, 0, 0)) << "the fastest of full10 and full100";
	got = {9, 9, 9, 9, 9, 9, 9, 9};
	EXPECT_EQ(RT_ERR_OK, rtk_port_phyForceModeAbility_get(5, &got));
	EXPECT_EQ((std::vector<u32>{0, 0, 0, 0, 1, 0, 1, 0}), Flags(got));
	EXPECT_EQ(RT_ERR_PHY_FORCE_MODE, rtk_port_phyAutoNegoAbility_get(5, &got));
	EXPECT_EQ((std::vector<u32>{0, 0, 0, 0, 0, 0, 1, 0}), Flags(got)) << "filled all the same";

	for (auto m : {std::pair<rtk_port_phy_ability_t, u16>{{0, 1, 1, 1, 0, 0, 0, 0}, 0x2000},
		       {{0, 1, 1, 0, 0, 0, 0, 0}, 0x0100}, {{0, 0, 0, 0, 0, 1, 0, 0}, 0x0000}}) {
		ASSERT_EQ(RT_ERR_OK, rtk_port_phyForceModeAbility_set(5, &m.first));
		EXPECT_EQ(m.second, phy(5, 0, 0));
	}
}

TEST_F(ApiPortTest, PhyStatus)
{
	u32 link = 9, speed = 9, duplex = 9;

	ASSERT_EQ(RT_ERR_OK, rtk_port_phyStatus_get(3, &link, &speed, &duplex));
	EXPECT_EQ((std::vector<u32>{PORT_LINKDOWN, PORT_SPEED_10M, PORT_HALF_DUPLEX}),
		  (std::vector<u32>{link, speed, duplex}));

	rtl8309n_sim_set_link(&sim(), 3, 1);
	rtl8309n_sim_set_link(&sim(), 3, 0);
	rtl8309n_sim_set_link(&sim(), 3, 1);  // the drop is latched: cleared by the double read
	set_phy(3, 0, 0, 0x2100);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyStatus_get(3, &link, &speed, &duplex));
	EXPECT_EQ((std::vector<u32>{PORT_LINKUP, PORT_SPEED_100M, PORT_FULL_DUPLEX}),
		  (std::vector<u32>{link, speed, duplex}));

	rtl8309n_sim_set_link(&sim(), 7, 1);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyStatus_get(7, &link, nullptr, nullptr));
	EXPECT_EQ(PORT_LINKDOWN, link) << "port 7's link is not read";
}

TEST_F(ApiPortTest, StuckRestartBitEndsTheStatusPoll)
{
	u32 link = 0, speed = 9, duplex = 9;

	rtl8309n_sim_set_link(&sim(), 0, 1);
	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_PHY, 0, 0, 0, 0x0200, SIM_FOREVER);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyReg_set(0, 0, 0x3300));
	ClearTrace();
	EXPECT_EQ(RT_ERR_FAILED, rtk_port_phyStatus_get(0, &link, &speed, &duplex));
	EXPECT_EQ((std::vector<u32>{PORT_LINKUP, 9}), (std::vector<u32>{link, speed}));
	EXPECT_EQ(1000, std::count(trace().begin(), trace().end(), R(0, 0, 0x3300)));

	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_PHY, 0, 0, 0, 0x0200, 3);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyReg_set(0, 0, 0x1300));
	EXPECT_EQ(RT_ERR_OK, rtk_port_phyStatus_get(0, &link, &speed, &duplex));
	EXPECT_EQ((std::vector<u32>{PORT_SPEED_10M, PORT_FULL_DUPLEX}),
		  (std::vector<u32>{speed, duplex})) << "once the restart is over";
}

}  // namespace
