// Chip-wide operations: PHY reset poll outcome, maximum frame length.
#include "regfield_check.h"

#include <algorithm>

namespace {

class SwitchTest : public FieldTest {
protected:
	// Reads of MII register 0 of @phy in the trace.
	long CtrlReads(u32 phy)
	{
		return std::count_if(trace().begin(), trace().end(), [phy](const Txn &t) {
			return t.op == 'R' && t.addr == phy && t.reg == 0;
		});
	}
};

// The poll makes up to 101 reads; only a reset seen done on the 101st fails.
TEST_F(SwitchTest, PhyResetReportsFailureOnlyAtCountHundred)
{
	const struct {
		u32 busy_reads;	// reads that still see the reset bit set
		s32 expected;
		long polls;
	} cases[] = {
		{0, RT_ERR_OK, 1},
		{99, RT_ERR_OK, 100},
		{100, RT_ERR_FAILED, 101},
		{101, RT_ERR_OK, 101},
		{SIM_FOREVER, RT_ERR_OK, 101},
	};

	for (const auto &c : cases) {
		SCOPED_TRACE(c.busy_reads);
		rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_PHY, 2, 0, 0, 0x8000, c.busy_reads);
		ClearTrace();
		EXPECT_EQ(c.expected, rtl8309n_phy_reset(2));
		EXPECT_EQ(1 + c.polls, CtrlReads(2)) << "the set's own read, then the polls";
	}
	EXPECT_EQ(0x3100, phy(2, 0, 0) & 0x3100) << "defaults restored by the reset";
}

TEST_F(SwitchTest, PhyResetOfPortSevenIsSilentAndEightRefused)
{
	EXPECT_EQ(RT_ERR_OK, rtl8309n_phy_reset(7));
	EXPECT_TRUE(trace().empty());
	CheckRefused({{"phy 8", [] { return rtl8309n_phy_reset(8); }}});
	EXPECT_EQ(RT_ERR_OK, rtl8309n_asic_init());
	EXPECT_TRUE(trace().empty());
}

TEST_F(SwitchTest, MaxPacketLengthModes)
{
	const struct { u32 mode; u16 bits76; u32 read_len; } cases[] = {
		{RTL8309N_MAXPKTLEN_1518, 0x00, 1518},
		{RTL8309N_MAXPKTLEN_USER, 0x80, 564},  // 4660: only bits 11..0 kept
		{RTL8309N_MAXPKTLEN_2048, 0x40, 2048},
		{RTL8309N_MAXPKTLEN_16000, 0xC0, 16000},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.mode);
		set_sw(7, 17, 16, 0xFF3F);
		set_sw(7, 17, 17, 0xF000);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_switch_maxPktLen_set(c.mode, 4660));
		EXPECT_EQ(0xFF3F | c.bits76, sw(7, 17, 16));
		EXPECT_EQ(c.mode == RTL8309N_MAXPKTLEN_USER ? 564 : 0xF000, sw(7, 17, 17));
		u32 mode = 9, len = 0;
		ASSERT_EQ(RT_ERR_OK, rtl8309n_switch_maxPktLen_get(&mode, &len));
		EXPECT_EQ(c.mode, mode);
		EXPECT_EQ(c.read_len, len);
	}
	u32 v = 0;
	CheckRefused({
		{"mode 4", [] { return rtl8309n_switch_maxPktLen_set(4, 1518); }},
		{"null mode", [&] { return rtl8309n_switch_maxPktLen_get(nullptr, &v); }},
	});
}

}  // namespace
