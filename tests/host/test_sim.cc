// The chip model's own behaviour that the library's polls depend on (its
// indirect tables are covered through the L2, ACL and MIB tests).
#include "chip_fixture.h"

namespace {

class SimTest : public ChipTest {};

TEST_F(SimTest, LatchedLinkSelfClearingBitsAndFaults)
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
	v = 1;
	rtl8309n_phyRegBit_set(1, 0, 15, 0, 1);  // PHY reset
	rtl8309n_phyRegBit_get(1, 0, 15, 0, &v);
	EXPECT_EQ(0u, v);
	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_PHY, 1, 0, 0, 0x8000, 2);
	rtl8309n_phyRegBit_set(1, 0, 15, 0, 1);
	for (u32 expect : {1u, 1u, 0u}) {
		rtl8309n_phyRegBit_get(1, 0, 15, 0, &v);
		EXPECT_EQ(expect, v);
	}
	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 6, 15, 18, 0x0800, SIM_FOREVER);
	rtl8309n_reg_set(6, 18, 15, 0x0800);
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_poll_bit_clear(6, 18, 11, 15, RTL8309N_POLL_READS));
}

}  // namespace
