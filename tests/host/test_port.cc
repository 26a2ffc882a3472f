// Port control: embedded PHY bits, learning, isolation, the MAC port's mode
// and forced link; chip-wide PHY reset and frame length; the rtk_ switch and
// port API over them.
#include "regfield_check.h"

#include <tuple>

namespace {

using Ability = rtl8309n_port_macAbility;

auto Fields(const Ability &a) { return std::tie(a.speed, a.duplex, a.link, a.nway, a.txpause, a.rxpause); }

class PortTest : public FieldTest {};

TEST_F(PortTest, PhyBits)
{
	u32 v = 9;
	rtl8309n_sim_set_link(&sim(), 3, 0);
	rtl8309n_sim_set_link(&sim(), 3, 1);  // a drop latched, link back: read twice
	ExpectGot(rtl8309n_port_phyLinkStatus_get(3, &v), v, 1u);
	rtl8309n_sim_set_link(&sim(), 7, 1);
	ClearTrace();
	ExpectGot(rtl8309n_port_phyLinkStatus_get(7, &v), v, 0u, "PHY 7 is not read and reported down");
	EXPECT_TRUE(trace().empty());
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyAutoNegoDone_get(7, &v));
	EXPECT_EQ(1u, v) << "but auto-negotiation and loopback reach it";
	set_phy(7, 0, 0, 0x1100);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyLoopback_set(7, 1));
	EXPECT_EQ(0x5100, phy(7, 0, 0));
	ExpectGot(rtl8309n_port_phyLoopback_get(7, &v), v, 1u);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyLoopback_set(7, 2));
	EXPECT_EQ(0x1100, phy(7, 0, 0)) << "only exactly 1 enables";
	ExpectChecks({
		{"link port 8", [&] { return rtl8309n_port_phyLinkStatus_get(8, &v); }},
		{"link null", [] { return rtl8309n_port_phyLinkStatus_get(0, nullptr); }},
		{"an-done port 8", [&] { return rtl8309n_port_phyAutoNegoDone_get(8, &v); }},
		{"loopback port 8", [] { return rtl8309n_port_phyLoopback_set(8, 1); }},
	});
}

TEST_F(PortTest, LearningAndIsolation)
{
	CheckAll({{"learn 0", ACCESSORS(port_MacLearnEnable, 0u), 0, 16, 5, 0, 1},
		  {"learn 8", ACCESSORS(port_MacLearnEnable, 8u), 8, 16, 5, 0, 1}});
	set_sw(8, 4, 16, 0xFE00);
	ExpectSet(rtl8309n_port_isolation_set(8, 0x1FF), 8, 4, 16, 0x01FF, "the mask is written whole");
	set_sw(8, 4, 16, 0xFE05);
	u32 mask = 0;
	ExpectGot(rtl8309n_port_isolation_get(8, &mask), mask, 0x005u);
	ExpectChecks({{"mask 0x200", [] { return rtl8309n_port_isolation_set(0, 0x200); }},
		      {"port 9", [] { return rtl8309n_port_isolation_set(9, 1); }}});
}

TEST_F(PortTest, Ext0ModeCodesAndForcedLinkBits)
{
	const u16 written[] = {2, 6, 1, 5, 3};
	const Ability off = {};
	for (u32 mode = 0; mode < 6; mode++) {
		for (u16 bg : {0xFFF8, 0xFFFF}) {
			set_sw(3, 17, 16, bg);
			ASSERT_EQ(RT_ERR_OK, rtl8309n_port_macForceLinkExt0_set(mode, &off));
			u16 code = mode < 5 ? written[mode] : (bg & 4);  // mode 5 keeps bit 2
			EXPECT_EQ((bg & ~7) | code, sw(3, 17, 16)) << "mode " << mode;
		}
	}
	const u32 mode_of_code[8] = {5, 2, 0, 4, 5, 3, 1, 4};
	for (u16 code = 0; code < 8; code++) {
		u32 mode = 9;
		Ability a;
		set_sw(3, 17, 16, code);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_port_macForceLinkExt0_get(&mode, &a));
		EXPECT_EQ(mode_of_code[code], mode) << "code " << code;
	}
	const struct { u32 mode; Ability in; u16 low_byte; Ability out; } cases[] = {
		// in/out: speed, duplex, link, nway, txpause, rxpause
		{2, {3, 1, 1, 1, 1, 1}, 0x6E, {2, 1, 1, 1, 1, 1}},  // mode 2: no double rate
		{0, {3, 0, 0, 0, 0, 0}, 0x09, {3, 0, 0, 0, 0, 0}},
		{1, {1, 0, 5, 1, 0, 1}, 0x42, {1, 0, 1, 1, 0, 1}},  // link unchecked: 5 sets it
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.low_byte);
		set_sw(8, 0, 16, 0xA5FF);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_port_macForceLinkExt0_set(c.mode, &c.in));
		EXPECT_EQ(0xA500 | c.low_byte, sw(8, 0, 16)) << "bits 15..8 kept, 4 and 7 cleared";
		u32 mode = 9;
		Ability out = {};
		ASSERT_EQ(RT_ERR_OK, rtl8309n_port_macForceLinkExt0_get(&mode, &out));
		EXPECT_EQ(c.mode, mode);
		EXPECT_EQ(Fields(c.out), Fields(out));
	}
	auto bad = [](Ability a) { return [a] { return rtl8309n_port_macForceLinkExt0_set(0, &a); }; };
	const Ability ok = {};
	ExpectChecks({
		{"null", [] { return rtl8309n_port_macForceLinkExt0_set(0, nullptr); }},
		{"mode 6", [&] { return rtl8309n_port_macForceLinkExt0_set(6, &ok); }},
		{"txpause 2", bad({0, 0, 0, 0, 2, 0})},
	});
}

TEST_F(PortTest, Ext0StatusFromReadOnlyRegisters)
{
	// Registers 18..22: link, speed, duplex, txpause, rxpause; true from 0x100.
	const u16 regs[] = {0x0100, 0x00FF, 0xFFFF, 0x0000, 0x0180};
	for (u32 i = 0; i < 5; i++)
		set_sw(2, 14, 18 + i, regs[i]);
	set_sw(3, 17, 16, 6);  // mode 1: double rate
	u32 mode = 9;
	Ability st = {7, 7, 7, 7, 7, 7};
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_macAbilityExt0_get(&mode, &st));
	EXPECT_EQ(1u, mode);
	EXPECT_EQ(Fields(Ability{1, 1, 1, 7, 0, 1}), Fields(st)) << "20 Mbit/s; nway untouched";
	rtl8309n_reg_set(2, 18, 14, 0);
	EXPECT_EQ(0x0100, sw(2, 14, 18)) << "status is read-only";
}

using SwitchTest = PortTest;

// The poll makes up to 101 reads; only a reset seen done on the 101st fails.
TEST_F(SwitchTest, PhyResetReportsFailureOnlyAtCountHundred)
{
	const struct { u32 busy_reads; s32 expected; long polls; } cases[] = {  // busy: reads seeing the bit set
		{0, RT_ERR_OK, 1}, {99, RT_ERR_OK, 100}, {100, RT_ERR_FAILED, 101}, {101, RT_ERR_OK, 101},
		{SIM_FOREVER, RT_ERR_OK, 101},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.busy_reads);
		rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_PHY, 2, 0, 0, 0x8000, c.busy_reads);
		ClearTrace();
		EXPECT_EQ(c.expected, rtl8309n_phy_reset(2));
		EXPECT_EQ(1 + c.polls, Count('R', 2, 0)) << "the set's own read, then the polls";
	}
	EXPECT_EQ(0x3100, phy(2, 0, 0) & 0x3100) << "defaults restored by the reset";
	ExpectChecks({{"phy 7 is silent", [] { return rtl8309n_phy_reset(7); }, RT_ERR_OK},
		      {"phy 8", [] { return rtl8309n_phy_reset(8); }},
		      {"asic init is silent", [] { return rtl8309n_asic_init(); }, RT_ERR_OK}});
}

TEST_F(SwitchTest, MaxPacketLengthModes)
{
	const struct { u32 mode; u16 bits76; u32 read_len; } cases[] = {
		{RTL8309N_MAXPKTLEN_1518, 0x00, 1518}, {RTL8309N_MAXPKTLEN_USER, 0x80, 564},  // 4660: bits 11..0 kept
		{RTL8309N_MAXPKTLEN_2048, 0x40, 2048}, {RTL8309N_MAXPKTLEN_16000, 0xC0, 16000},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.mode);
		set_sw(7, 17, 16, 0xFF3F);
		set_sw(7, 17, 17, 0xF000);
		ExpectSet(rtl8309n_switch_maxPktLen_set(c.mode, 4660), 7, 17, 16, 0xFF3F | c.bits76);
		EXPECT_EQ(c.mode == RTL8309N_MAXPKTLEN_USER ? 564 : 0xF000, sw(7, 17, 17));
		u32 mode = 9, len = 0;
		ASSERT_EQ(RT_ERR_OK, rtl8309n_switch_maxPktLen_get(&mode, &len));
		EXPECT_EQ(Pair(c.mode, c.read_len), Pair(mode, len));
	}
	u32 v = 0;
	ExpectChecks({
		{"mode 4", [] { return rtl8309n_switch_maxPktLen_set(4, 1518); }},
		{"null mode", [&] { return rtl8309n_switch_maxPktLen_get(nullptr, &v); }},
	});
}

class ApiPortTest : public ChipTest {};

Vals Flags(const rtk_port_phy_ability_t &a)
{
	return {a.autoNegotiation, a.half10, a.full10, a.half100, a.full100, a.full1000, a.flowControl, a.asymFlowControl};
}

rtk_port_phy_ability_t g_ab;
u32 g_a, g_b, g_c;

TEST_F(ApiPortTest, ChecksComeFirstInOrderWithoutBusTraffic)
{
	ExpectChecks({
		{"maxPktLen class 9", [] { return rtk_switch_maxPktLen_set(9); }, RT_ERR_INPUT},
		{"maxPktLen class 3 not offered", [] { return rtk_switch_maxPktLen_set(3); }},
		{"maxPktLen class 7 read-only", [] { return rtk_switch_maxPktLen_set(7); }},
		{"maxPktLen_get null length", [] { return rtk_switch_maxPktLen_get(&g_a, nullptr); }, RT_ERR_NULL_POINTER},
		{"autoNego port before record", [] { return rtk_port_phyAutoNegoAbility_set(8, nullptr); }, RT_ERR_PORT_ID},
		{"autoNego pause 2", [] { g_ab = {0, 0, 0, 0, 0, 9, 0, 2}; return rtk_port_phyAutoNegoAbility_set(0, &g_ab); },
		 RT_ERR_INPUT},
		{"forceMode autoNegotiation 2",
		 [] { g_ab = {2, 0, 0, 0, 0, 0, 0, 0}; return rtk_port_phyForceModeAbility_set(0, &g_ab); }, RT_ERR_INPUT},
		{"phyStatus port 8", [] { return rtk_port_phyStatus_get(8, &g_a, &g_b, &g_c); }, RT_ERR_PORT_ID},
		{"isolation mask 0x200", [] { return rtk_port_isolation_set(8, 0x200); }, RT_ERR_PORT_MASK},
	});
	EXPECT_EQ(2u, g_ab.autoNegotiation) << "a refused record is not touched";
}

TEST_F(ApiPortTest, MaxPacketLengthClasses)
{
	u32 cls = 99, len = 0;
	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_set(MAXPKTLEN_2048B));
	ExpectGot(rtk_switch_maxPktLen_get(nullptr, &len), len, 2048u);
	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_set(MAXPKTLEN_1526B));
	ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_get(&cls, &len));
	EXPECT_EQ(Pair(MAXPKTLEN_1522B, 1522), Pair(cls, len)) << "programmed as 1518, reported as 1522";
	const struct { u16 mode, user; u32 cls, len; } reads[] = {
		{0x00C0, 0, MAXPKTLEN_16000B, 16000}, {0x0080, 1700, MAXPKTLEN_USER, 1700}};
	for (const auto &r : reads) {
		set_sw(7, 17, 16, r.mode);
		set_sw(7, 17, 17, r.user);
		ASSERT_EQ(RT_ERR_OK, rtk_switch_maxPktLen_get(&cls, &len));
		EXPECT_EQ(Pair(r.cls, r.len), Pair(cls, len));
	}
}

TEST_F(ApiPortTest, AutoNegotiationAndForcedAbilities)
{
	rtk_port_phy_ability_t ab = {0, 1, 0, 0, 1, 1, 0, 1}, got = {};
	set_phy(2, 0, 4, 0xFFFF);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyAutoNegoAbility_set(2, &ab));
	EXPECT_EQ(1u, ab.autoNegotiation) << "stored into the caller's record";
	EXPECT_EQ(0xFB3F, phy(2, 0, 4)) << "ability bits replaced, the rest kept";
	EXPECT_EQ(0x1200, phy(2, 0, 0)) << "forced bits cleared, enabled and restarted";
	EXPECT_EQ(RT_ERR_OK, rtk_port_phyAutoNegoAbility_get(2, &got));
	EXPECT_EQ((Vals{1, 1, 0, 0, 1, 0, 0, 1}), Flags(got));
	EXPECT_EQ(RT_ERR_PHY_AUTO_NEGO_MODE, rtk_port_phyForceModeAbility_get(2, &got));
	EXPECT_EQ(1u, got.autoNegotiation) << "nothing stored";
	ab = {1, 0, 1, 0, 1, 0, 1, 0};
	got = {9, 9, 9, 9, 9, 9, 9, 9};
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyForceModeAbility_set(5, &ab));
	EXPECT_EQ(0u, ab.autoNegotiation);
	EXPECT_EQ(0x0401, phy(5, 0, 4)) << "speeds withdrawn, pause as asked";
	EXPECT_EQ(0x2100, phy(5, 0, 0)) << "the fastest of full10 and full100";
	EXPECT_EQ(RT_ERR_OK, rtk_port_phyForceModeAbility_get(5, &got));
	EXPECT_EQ((Vals{0, 0, 0, 0, 1, 0, 1, 0}), Flags(got));
	EXPECT_EQ(RT_ERR_PHY_FORCE_MODE, rtk_port_phyAutoNegoAbility_get(5, &got));
	EXPECT_EQ((Vals{0, 0, 0, 0, 0, 0, 1, 0}), Flags(got)) << "filled all the same";
	for (auto m : {std::pair<rtk_port_phy_ability_t, u16>{{0, 1, 1, 1, 0, 0, 0, 0}, 0x2000},
		       {{0, 1, 1, 0, 0, 0, 0, 0}, 0x0100}, {{0, 0, 0, 0, 0, 1, 0, 0}, 0x0000}}) {
		ASSERT_EQ(RT_ERR_OK, rtk_port_phyForceModeAbility_set(5, &m.first));
		EXPECT_EQ(m.second, phy(5, 0, 0));
	}
}

TEST_F(ApiPortTest, PhyStatusAndTheRestartPoll)
{
	u32 link = 9, speed = 9, duplex = 9;
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyStatus_get(3, &link, &speed, &duplex));
	EXPECT_EQ((Vals{PORT_LINKDOWN, PORT_SPEED_10M, PORT_HALF_DUPLEX}), (Vals{link, speed, duplex}));
	rtl8309n_sim_set_link(&sim(), 3, 1);
	rtl8309n_sim_set_link(&sim(), 3, 0);
	rtl8309n_sim_set_link(&sim(), 3, 1);  // the drop is latched: cleared by the double read
	set_phy(3, 0, 0, 0x2100);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyStatus_get(3, &link, &speed, &duplex));
	EXPECT_EQ((Vals{PORT_LINKUP, PORT_SPEED_100M, PORT_FULL_DUPLEX}), (Vals{link, speed, duplex}));
	speed = 9;
	rtl8309n_sim_set_link(&sim(), 0, 1);
	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_PHY, 0, 0, 0, 0x0200, SIM_FOREVER);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyReg_set(0, 0, 0x3300));
	ClearTrace();
	EXPECT_EQ(RT_ERR_FAILED, rtk_port_phyStatus_get(0, &link, &speed, &duplex));
	EXPECT_EQ(Pair(PORT_LINKUP, 9), Pair(link, speed));
	EXPECT_EQ(1000, std::count(trace().begin(), trace().end(), R(0, 0, 0x3300)));
	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_PHY, 0, 0, 0, 0x0200, 3);
	ASSERT_EQ(RT_ERR_OK, rtk_port_phyReg_set(0, 0, 0x1300));
	EXPECT_EQ(RT_ERR_OK, rtk_port_phyStatus_get(0, &link, &speed, &duplex));
	EXPECT_EQ(Pair(PORT_SPEED_10M, PORT_FULL_DUPLEX), Pair(speed, duplex)) << "once the restart is over";
}

}  // namespace
