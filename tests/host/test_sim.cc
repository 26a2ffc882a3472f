// The chip model's own behaviour that the library's polls depend on.
#include "chip_fixture.h"

namespace {

class SimTest : public ChipTest {};

TEST_F(SimTest, LinkStatusIsLatchedLow)
{
	u32 v = 0;
	rtl8309n_sim_set_link(&sim(), 3, 1);
	rtl8309n_phyReg_get(3, 1, 0, &v);
	EXPECT_EQ(0x24u, v & 0x24) << "up and negotiated";

	rtl8309n_sim_set_link(&sim(), 3, 0);
	rtl8309n_sim_set_link(&sim(), 3, 1);
	rtl8309n_phyReg_get(3, 1, 0, &v);
	EXPECT_EQ(0u, v & 0x4) << "a drop shows once";
	rtl8309n_phyReg_get(3, 1, 0, &v);
	EXPECT_EQ(0x4u, v & 0x4);
}

TEST_F(SimTest, SelfClearingBitsAndFaults)
{
	u32 v = 1;

	rtl8309n_phyRegBit_set(1, 0, 15, 0, 1);  // PHY reset
	rtl8309n_phyRegBit_get(1, 0, 15, 0, &v);
	EXPECT_EQ(0u, v);

	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_PHY, 1, 0, 0, 0x8000, 2);
	rtl8309n_phyRegBit_set(1, 0, 15, 0, 1);
	for (int i = 0; i < 2; i++) {
		rtl8309n_phyRegBit_get(1, 0, 15, 0, &v);
		EXPECT_EQ(1u, v) << "read " << i;
	}
	rtl8309n_phyRegBit_get(1, 0, 15, 0, &v);
	EXPECT_EQ(0u, v);

	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 6, 15, 18, 0x0800, SIM_FOREVER);
	rtl8309n_reg_set(6, 18, 15, 0x0800);
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_poll_bit_clear(6, 18, 11, 15, RTL8309N_POLL_READS));
}

TEST_F(SimTest, IndirectTablesKeepEntries)
{
	u32 v = 0;

	// L2: write entry 1500 through the data registers, read it back.
	for (u32 r = 19; r <= 22; r++)
		rtl8309n_reg_set(6, r, 15, static_cast<u16>(0x1000 + r));
	rtl8309n_reg_set(6, 18, 15, 0x0800 | 1500);
	for (u32 r = 19; r <= 22; r++)
		rtl8309n_reg_set(6, r, 15, 0);
	rtl8309n_reg_set(6, 18, 15, 0x1800 | 1500);
	EXPECT_EQ(RT_ERR_OK, rtl8309n_poll_bit_clear(6, 18, 11, 15, 1));
	rtl8309n_reg_get(6, 21, 15, &v);
	EXPECT_EQ(0x1015u, v);

	// MIB: a preset counter appears in the data words after a latch.
	rtl8309n_sim_mib_set(&sim(), 5, 7, 0x00120034);
	rtl8309n_reg_set(4, 18, 15, 0x8000 | (5 << 4) | 7);
	rtl8309n_reg_get(4, 19, 15, &v);
	EXPECT_EQ(0x0034u, v);
	rtl8309n_reg_get(4, 20, 15, &v);
	EXPECT_EQ(0x0012u, v);
}

}  // namespace
