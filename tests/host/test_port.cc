// Port control: embedded PHY bits, learning, isolation, the MAC port's mode
// and forced link.
#include "regfield_check.h"

#include <tuple>

namespace {

using Ability = rtl8309n_port_macAbility;

auto Fields(const Ability &a)
{
	return std::tie(a.speed, a.duplex, a.link, a.nway, a.txpause, a.rxpause);
}

class PortTest : public FieldTest {};

TEST_F(PortTest, PhyBits)
{
	u32 v = 9;

	rtl8309n_sim_set_link(&sim(), 3, 0);
	rtl8309n_sim_set_link(&sim(), 3, 1);  // a drop latched, link back: read twice
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyLinkStatus_get(3, &v));
	EXPECT_EQ(1u, v);

	rtl8309n_sim_set_link(&sim(), 7, 1);
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyLinkStatus_get(7, &v));
	EXPECT_EQ(0u, v) << "PHY 7 is not read and reported down";
	EXPECT_TRUE(trace().empty());
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyAutoNegoDone_get(7, &v));
	EXPECT_EQ(1u, v) << "but auto-negotiation and loopback reach it";

	set_phy(7, 0, 0, 0x1100);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyLoopback_set(7, 1));
	EXPECT_EQ(0x5100, phy(7, 0, 0));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyLoopback_get(7, &v));
	EXPECT_EQ(1u, v);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_phyLoopback_set(7, 2));
	EXPECT_EQ(0x1100, phy(7, 0, 0)) << "only exactly 1 enables";

	CheckRefused({
		{"link port 8", [&] { return rtl8309n_port_phyLinkStatus_get(8, &v); }},
		{"link null", [] { return rtl8309n_port_phyLinkStatus_get(0, nullptr); }},
		{"an-done port 8", [&] { return rtl8309n_port_phyAutoNegoDone_get(8, &v); }},
		{"loopback port 8", [] { return rtl8309n_port_phyLoopback_set(8, 1); }},
	});
}

TEST_F(PortTest, LearningAndIsolation)
{
	CheckAll({{"learn 0", ACCESSORS(port_MacLearnEnable, 0u), 0, 16, 5, 0, 1, false, 0},
		  {"learn 8", ACCESSORS(port_MacLearnEnable, 8u), 8, 16, 5, 0, 1, false, 0}});

	set_sw(8, 4, 16, 0xFE00);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_isolation_set(8, 0x1FF));
	EXPECT_EQ(0x01FF, sw(8, 4, 16)) << "the mask is written whole";
	set_sw(8, 4, 16, 0xFE05);
	u32 mask = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_port_isolation_get(8, &mask));
	EXPECT_EQ(0x005u, mask);
	CheckRefused({
		{"mask 0x200", [] { return rtl8309n_port_isolation_set(0, 0x200); }},
		{"port 9", [] { return rtl8309n_port_isolation_set(9, 1); }},
	});
}

TEST_F(PortTest, Ext0ModeCodes)
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
}

TEST_F(PortTest, Ext0ForcedLinkBits)
{
	const struct {
		u32 mode;
		Ability in;  // speed, duplex, link, nway, txpause, rxpause
		u16 low_byte;
		Ability out;
	} cases[] = {
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

	auto bad = [](Ability a) {
		return [a] { return rtl8309n_port_macForceLinkExt0_set(0, &a); };
	};
	const Ability ok = {};
	u32 mode;
	CheckRefused({
		{"null", [] { return rtl8309n_port_macForceLinkExt0_set(0, nullptr); }},
		{"mode 6", [&] { return rtl8309n_port_macForceLinkExt0_set(6, &ok); }},
		{"speed 4", bad({4, 0, 0, 0, 0, 0})},
		{"duplex 2", bad({0, 2, 0, 0, 0, 0})},
		{"nway 2", bad({0, 0, 0, 2, 0, 0})},
		{"txpause 2", bad({0, 0, 0, 0, 2, 0})},
		{"rxpause 2", bad({0, 0, 0, 0, 0, 2})},
		{"get null", [&] { return rtl8309n_port_macForceLinkExt0_get(&mode, nullptr); }},
		{"status null", [&] { return rtl8309n_port_macAbilityExt0_get(&mode, nullptr); }},
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

}  // namespace
