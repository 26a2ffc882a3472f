// MIB counters: latch sequences, poll bounds, flags and the port reset; the
// rtk_ counter API over them.
#include "chip_fixture.h"

#include <array>
#include <iterator>

namespace {

using Words = std::array<u32, 4>;

class MibTest : public ChipTest {
protected:
	Trace Selects()
	{
		Trace out;
		std::copy_if(trace().begin(), trace().end(), std::back_inserter(out),
			     [](const Txn &t) { return t.op == 'W' && t.addr == 4 && t.reg == 18; });
		return out;
	}
};

TEST_F(MibTest, CounterReadsSelectThenLatch)
{
	Words w{};
	u32 pkts = 0;
	rtl8309n_sim_mib_set_bytes(&sim(), 8, 2, 0x1122334455667788ull);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mib_byteCnt_get(8, 2, w.data()));
	EXPECT_EQ((Words{0x7788, 0x5566, 0x3344, 0x1122}), w);
	EXPECT_EQ((Trace{W(4, 18, 0x8082), W(4, 18, 0x8083)}), Selects());
	rtl8309n_sim_mib_set(&sim(), 3, 15, 0xABCD1234);
	ClearTrace();
	ExpectGot(rtl8309n_mib_pktCnt_get(3, 15, &pkts), pkts, 0xABCD1234u);
	EXPECT_EQ((Trace{W(4, 18, 0x803F)}), Selects());
}

// Each latch polls up to 100 reads afresh; a timeout stores nothing.
TEST_F(MibTest, LatchPollBound)
{
	for (u32 busy_reads : {99u, 100u}) {
		SCOPED_TRACE(busy_reads);
		const bool ok = busy_reads < 100;
		Words w{7, 7, 7, 7};
		u32 pkts = 7;
		rtl8309n_sim_mib_set_bytes(&sim(), 0, 0, 0x0001000200030004ull);
		rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 4, 15, 18, 0x8000, busy_reads);
		ClearTrace();
		EXPECT_EQ(ok ? RT_ERR_OK : RT_ERR_FAILED, rtl8309n_mib_byteCnt_get(0, 0, w.data()));
		EXPECT_EQ(ok ? 200 : 100, Count('R', 4, 18));
		EXPECT_EQ((ok ? Words{4, 3, 2, 1} : Words{7, 7, 7, 7}), w);
		ClearTrace();
		EXPECT_EQ(ok ? RT_ERR_OK : RT_ERR_FAILED, rtl8309n_mib_pktCnt_get(0, 4, &pkts));
		EXPECT_EQ(100, Count('R', 4, 18));
		EXPECT_EQ(ok ? 0u : 7u, pkts);
	}
}

TEST_F(MibTest, BadArgumentsEnableStartStopAndOverflowBits)
{
	u32 v[4] = {};
	for (u32 c : {1u, 3u, 4u})
		EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mib_byteCnt_get(0, c, v)) << c;
	for (u32 c : {0u, 1u, 16u})
		EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mib_pktCnt_get(0, c, v)) << c;
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mib_byteCnt_get(9, 0, v));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mib_byteCnt_get(0, 2, nullptr));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mib_overFlowFlag_set(9, 1));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mib_enable_set(2));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mib_reset(9));
	EXPECT_TRUE(trace().empty());
	v[0] = 9;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mib_enable_set(1));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_mib_enable_get(v)) << "always reports failure";
	EXPECT_EQ(1u, v[0]) << "... but delivers the flag";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mib_start(8));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mib_start(9)) << "port not range-checked";
	ExpectSet(rtl8309n_mib_stop(9), 4, 15, 16, 0x8100);
	for (u32 flag : {1u, 0u, 2u}) {
		ExpectSet(rtl8309n_mib_overFlowFlag_set(8, flag), 4, 15, 23, flag == 1 ? 0x100 : 0);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_mib_overFlowFlag_get(8, v));
		EXPECT_EQ(flag == 1 ? 1u : 0u, v[0]);
	}
}

// The reset waits as long as the chip takes, far past the counter polls'
// bound, and leaves counting on globally and for the port.
TEST_F(MibTest, ResetWaitsWithoutBound)
{
	rtl8309n_sim_mib_set(&sim(), 0, 5, 42);
	rtl8309n_sim_mib_set(&sim(), 1, 5, 43);
	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 4, 15, 17, 0x0001, 500);
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mib_reset(0));
	EXPECT_EQ(1 + 501, Count('R', 4, 17)) << "one bit update, then 501 polls";
	EXPECT_EQ(0x8001, sw(4, 15, 16));
	EXPECT_EQ(Pair(0, 43), Pair(sim().mib[0][5], sim().mib[1][5]));
}

// A chip stuck for good that recovers in mid-wait: the command in flight
// finishes at its next poll, and the wait ends there.
namespace {
rtl8309n_sim *g_stuck;
int g_polls;

int lift_fault_at_poll_300(u32 phyad, u32 regad, u32 *value)
{
	*value = static_cast<u32>(rtl8309n_sim_mdio_read(g_stuck, phyad, regad));
	if (phyad == 4 && regad == 17 && ++g_polls == 300)
		rtl8309n_sim_fault_busy(g_stuck, SIM_SPACE_SWITCH, 0, 0, 0, 0, 0);
	return 0;
}
}  // namespace

TEST_F(MibTest, StuckResetEndsWhenTheChipRecovers)
{
	g_stuck = &sim();
	g_polls = 0;
	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 4, 15, 17, 0x0001, SIM_FOREVER);
	register_smiRead(lift_fault_at_poll_300);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_mib_reset(0));
	EXPECT_EQ(301, g_polls) << "the bit update's read, 299 stuck polls, the recovered one";
}

class ApiStatTest : public ChipTest {};

TEST_F(ApiStatTest, ChecksInOrderBeforeAnyChipAccess)
{
	static u32 v[4];
	ExpectChecks({
		{"port 9 before counter and pointer", [] { return rtk_mib_get(9, 16, nullptr); }, RT_ERR_PORT_ID},
		{"counter 16 before pointer", [] { return rtk_mib_get(0, 16, nullptr); }, RT_ERR_INPUT},
		{"null result", [] { return rtk_mib_get(0, 4, nullptr); }, RT_ERR_NULL_POINTER},
		{"upper half of tx bytes", [] { return rtk_mib_get(0, 1, v); }, RT_ERR_OK},
		{"reset port 9", [] { return rtk_stat_port_reset(9); }, RT_ERR_PORT_ID},
		{"inner reset reports its own code", [] { return rtk_stat_portCntr_reset(9); }, RT_ERR_STAT_PORT_CNTR_FAIL},
	});
}

TEST_F(ApiStatTest, CountersAndPortReset)
{
	rtl8309n_sim_mib_set_bytes(&sim(), 3, RTK_MIB_RX_BYTES, 0x0123456789ABCDEFull);
	rtl8309n_sim_mib_set(&sim(), 3, 15, 0xDEADBEEF);
	Words v{7, 7, 7, 7}, p{7, 7, 7, 7};
	ASSERT_EQ(RT_ERR_OK, rtk_mib_get(3, RTK_MIB_RX_BYTES, v.data()));
	EXPECT_EQ((Words{0xCDEF, 0x89AB, 0x4567, 0x0123}), v);
	ASSERT_EQ(RT_ERR_OK, rtk_mib_get(3, 15, p.data()));
	EXPECT_EQ((Words{0xDEADBEEF, 7, 7, 7}), p);
	ASSERT_EQ(RT_ERR_OK, rtk_mib_get(3, 3, p.data()));
	EXPECT_EQ(0xDEADBEEF, p[0]) << "ids 1 and 3 store nothing";
	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 4, 15, 18, 0x8000, SIM_FOREVER);
	EXPECT_EQ(RT_ERR_FAILED, rtk_mib_get(3, 5, p.data()));
	rtl8309n_sim_mib_set(&sim(), 3, 6, 42);
	rtl8309n_sim_mib_set(&sim(), 0, 6, 17);
	ASSERT_EQ(RT_ERR_OK, rtk_stat_port_reset(3));
	EXPECT_EQ(Pair(0, 17), Pair(sim().mib[3][6], sim().mib[0][6]));
	EXPECT_EQ(0x8008, sw(4, 15, 16));
	// The driver's own paths call the inner step with their chosen port.
	ExpectGot(rtk_stat_portCntr_reset(0), sim().mib[0][6], 0u);
	EXPECT_EQ(0x8009, sw(4, 15, 16));
}

}  // namespace
