// rtk_ counters: argument checks, byte versus packet counters, port reset.
#include "api_test.h"

namespace {

class ApiStatTest : public ApiTest {};

TEST_F(ApiStatTest, ChecksInOrderBeforeAnyChipAccess)
{
	static u32 v[4];
	ExpectChecks({
		{"port 9 before counter and pointer", [] { return rtk_mib_get(9, 16, nullptr); }, RT_ERR_PORT_ID},
		{"counter 16 before pointer", [] { return rtk_mib_get(0, 16, nullptr); }, RT_ERR_INPUT},
		{"counter -1", [] { return rtk_mib_get(0, static_cast<u32>(-1), v); }, RT_ERR_INPUT},
		{"null result", [] { return rtk_mib_get(0, 4, nullptr); }, RT_ERR_NULL_POINTER},
		{"upper half of tx bytes", [] { return rtk_mib_get(0, 1, v); }, RT_ERR_OK},
		{"upper half of rx bytes", [] { return rtk_mib_get(8, 3, v); }, RT_ERR_OK},
		{"reset port 9", [] { return rtk_stat_port_reset(9); }, RT_ERR_PORT_ID},
		{"inner reset reports its own code", [] { return rtk_stat_portCntr_reset(9); },
		 RT_ERR_STAT_PORT_CNTR_FAIL},
	});
}

TEST_F(ApiStatTest, ByteCountersFillFourWordsPacketCountersOne)
{
	rtl8309n_sim_mib_set_bytes(&sim(), 3, RTK_MIB_RX_BYTES, 0x0123456789ABCDEFull);
	rtl8309n_sim_mib_set(&sim(), 3, 15, 0xDEADBEEF);

	u32 v[4] = {7, 7, 7, 7};
	ASSERT_EQ(RT_ERR_OK, rtk_mib_get(3, RTK_MIB_RX_BYTES, v));
	EXPECT_EQ((std::vector<u32>{0xCDEF, 0x89AB, 0x4567, 0x0123}), std::vector<u32>(v, v + 4));

	u32 p[4] = {7, 7, 7, 7};
	ASSERT_EQ(RT_ERR_OK, rtk_mib_get(3, 15, p));
	EXPECT_EQ((std::vector<u32>{0xDEADBEEF, 7, 7, 7}), std::vector<u32>(p, p + 4));
	ASSERT_EQ(RT_ERR_OK, rtk_mib_get(3, 3, p));
	EXPECT_EQ(0xDEADBEEF, p[0]) << "ids 1 and 3 store nothing";

	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 4, 15, 18, 0x8000, SIM_FOREVER);
	EXPECT_EQ(RT_ERR_FAILED, rtk_mib_get(3, 5, p));
}

TEST_F(ApiStatTest, PortResetClearsOnePortAndLeavesCountingOn)
{
	rtl8309n_sim_mib_set(&sim(), 3, 6, 42);
	rtl8309n_sim_mib_set(&sim(), 0, 6, 17);
	ASSERT_EQ(RT_ERR_OK, rtk_stat_port_reset(3));
	EXPECT_EQ(0u, sim().mib[3][6]);
	EXPECT_EQ(17u, sim().mib[0][6]);
	EXPECT_EQ(0x8008, sw(4, 15, 16));

	// The driver's own paths call the inner step with their chosen port.
	ASSERT_EQ(RT_ERR_OK, rtk_stat_portCntr_reset(0));
	EXPECT_EQ(0u, sim().mib[0][6]);
	EXPECT_EQ(0x8009, sw(4, 15, 16));
}

}  // namespace
