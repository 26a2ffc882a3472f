// Register access primitives: bus sequences, argument checks, PHY bit quirks.
#include "chip_fixture.h"

namespace {

u32 g_out;

class PrimitiveTest : public ChipTest {};

TEST_F(PrimitiveTest, BusSequencesAreTheChipProtocol)
{
	const struct { const char *name; std::function<void(rtl8309n_sim &)> setup; std::function<s32()> action;
		       Trace expected; } cases[] = {
		{"reg_set parks the PHY page on 10, keeps its high byte",
		 [](rtl8309n_sim &s) { s.phy_page[2] = 0x5507; }, [] { return rtl8309n_reg_set(2, 16, 3, 0x1234); },
		 {W(8, 31, 0x8000), R(2, 31, 0x5507), W(2, 31, 0x550A), R(8, 31, 0x8000), W(8, 31, 0x0003),
		  W(2, 16, 0x1234)}},
		{"reg_set on address 8 goes through the page control itself",
		 [](rtl8309n_sim &) {}, [] { return rtl8309n_reg_set(8, 20, 17, 0xBEEF); },
		 {W(8, 31, 0x8000), R(8, 31, 0x8000), W(8, 31, 0x800A), R(8, 31, 0x800A), W(8, 31, 0x0011),
		  W(8, 20, 0xBEEF)}},
		{"reg_get selects the page only, keeping bits 8..14",
		 [](rtl8309n_sim &s) { s.pagectl = 0xB4FF; s.sw[5][9][18] = 0xCAFE; },
		 [] { return rtl8309n_reg_get(5, 18, 9, &g_out); },
		 {R(8, 31, 0xB4FF), W(8, 31, 0x3409), R(5, 18, 0xCAFE)}},
		{"phyReg_set ends with the 0xFFFF7FFF exit write",
		 [](rtl8309n_sim &s) { s.phy_page[7] = 0x4400; }, [] { return rtl8309n_phyReg_set(7, 4, 18, 0x05E1); },
		 {W(8, 31, 0x8000), R(7, 31, 0x4400), W(7, 31, 0x4412), W(7, 4, 0x05E1), W(8, 31, 0xFFFF7FFF)}},
		{"phyReg_get reads the identifier on page 0",
		 [](rtl8309n_sim &s) { s.phy_page[3] = 0x0005; }, [] { return rtl8309n_phyReg_get(3, 2, 0, &g_out); },
		 {W(8, 31, 0x8000), R(3, 31, 0x0005), W(3, 31, 0x0000), R(3, 2, SIM_PHY_ID1), W(8, 31, 0xFFFF7FFF)}},
		{"regbit_set is one reg_get and one reg_set",
		 [](rtl8309n_sim &s) { s.pagectl = 0x0004; s.sw[4][4][16] = 0x0001; },
		 [] { return rtl8309n_regbit_set(4, 16, 15, 4, 1); },
		 {R(8, 31, 0x0004), W(8, 31, 0x0004), R(4, 16, 0x0001), W(8, 31, 0x8000), R(4, 31, 0x0000),
		  W(4, 31, 0x000A), R(8, 31, 0x8000), W(8, 31, 0x0004), W(4, 16, 0x8001)}},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.name);
		rtl8309n_sim_init(&sim());
		c.setup(sim());
		ClearTrace();
		EXPECT_EQ(RT_ERR_OK, c.action());
		EXPECT_EQ(c.expected, trace());
	}
}

TEST_F(PrimitiveTest, BadArgumentsFailWithoutBusTraffic)
{
	u32 v = 0;
	ExpectChecks({
		{"reg_set address 9", [] { return rtl8309n_reg_set(9, 0, 0, 1); }},
		{"reg_set page 18", [] { return rtl8309n_reg_set(0, 0, 18, 1); }},
		{"reg_get page 18", [&] { return rtl8309n_reg_get(0, 0, 18, &v); }},
		{"regbit_set bit 16", [] { return rtl8309n_regbit_set(0, 0, 16, 0, 1); }},
		{"regbit_set value 2", [] { return rtl8309n_regbit_set(0, 0, 1, 0, 2); }},
		{"regbit_get null", [] { return rtl8309n_regbit_get(0, 0, 1, 0, nullptr); }},
		{"phyReg_set address 8", [] { return rtl8309n_phyReg_set(8, 0, 0, 1); }},
		{"phyReg_set page 19", [] { return rtl8309n_phyReg_set(0, 0, 19, 1); }},
		{"phyReg_get null", [] { return rtl8309n_phyReg_get(0, 0, 0, nullptr); }},
		{"phyRegBit_set address 7", [] { return rtl8309n_phyRegBit_set(7, 0, 1, 0, 1); }},
		{"phyRegBit_get null", [] { return rtl8309n_phyRegBit_get(0, 0, 1, 0, nullptr); }},
		{"rtk phyReg_get port before pointer", [] { return rtk_port_phyReg_get(8, 0, nullptr); }, RT_ERR_PORT_ID},
		{"rtk phyReg_get null", [] { return rtk_port_phyReg_get(0, 0, nullptr); }, RT_ERR_NULL_POINTER},
	});
	EXPECT_EQ(RT_ERR_OK, rtl8309n_reg_set(8, 0, 17, 1)) << "limits accepted at the edge";
	EXPECT_EQ(RT_ERR_OK, rtl8309n_phyReg_get(7, 0, 18, &v));
	EXPECT_EQ(RT_ERR_OK, rtl8309n_phyReg_set(7, 0, 18, 1));
	EXPECT_EQ(RT_ERR_OK, rtl8309n_phyRegBit_set(6, 0, 1, 18, 1));
}

TEST_F(PrimitiveTest, PhyBitAccessorQuirksAndUncheckedBusErrors)
{
	u32 v = 0;
	set_phy(2, 3, 20, 0x0010);
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_phyRegBit_set(2, 20, 20, 3, 1));
	EXPECT_EQ(0x0010, phy(2, 3, 20)) << "bit 20 is past the 16-bit word";
	EXPECT_EQ(10u, trace().size());
	ASSERT_EQ(RT_ERR_OK, rtl8309n_phyRegBit_set(2, 20, 3, 3, 2));
	EXPECT_EQ(0x0018, phy(2, 3, 20)) << "any non-zero value sets";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_phyRegBit_set(2, 20, 4, 3, 0));
	EXPECT_EQ(0x0008, phy(2, 3, 20));
	ExpectGot(rtl8309n_phyRegBit_get(2, 20, 35, 3, &v), v, 1u, "bit number taken modulo 32");
	EXPECT_EQ(RT_ERR_OK, rtl8309n_phyReg_set(7, 20, 3, 0x1));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_phyRegBit_set(7, 20, 0, 3, 1));
	rtl8309n_sim_fault_read(&sim(), -5, SIM_FOREVER);
	EXPECT_EQ(RT_ERR_OK, rtl8309n_phyReg_get(1, 1, 0, &v));
	EXPECT_EQ(0xFFFBu, v) << "-5 as stored by the bridge, cut to 16 bits";
	EXPECT_EQ(RT_ERR_OK, rtl8309n_reg_get(1, 16, 0, &v));
	EXPECT_EQ(0xFFFBu, v);
}

}  // namespace
