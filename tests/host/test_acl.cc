// ACL table: entry packing, the action translation, the command poll.
#include "chip_fixture.h"

#include <algorithm>

namespace {

class AclTest : public ChipTest {
protected:
	size_t Reads(u32 addr, u32 reg)
	{
		return std::count_if(trace().begin(), trace().end(), [&](const Txn &t) {
			return t.op == 'R' && t.addr == addr && t.reg == reg;
		});
	}
};

TEST_F(AclTest, FreeEntryPackingKeepsUpperFieldBits)
{
	set_sw(3, 15, 19, 0xFC00);
	set_sw(2, 17, 16, 0x0102);
	const acl_entry free_entry{0, 3, 9, 0, 0};
	ASSERT_EQ(RT_ERR_OK, rtl8309n_acl_entry_set(15, &free_entry));
	EXPECT_EQ(0x024, sim().acl_fields[15]);
	EXPECT_EQ(0xFC24, sw(3, 15, 19)) << "bits 10-15 kept";
	EXPECT_EQ(0x01E3, sw(2, 17, 16)) << "bits 0, 5, 6, 7 set, others kept";
	EXPECT_EQ(0, sw(3, 15, 16) & 1) << "access bit dropped";
}

// Codes 0..4 go to chip values 1,0,2,0,3 and come back as 0,3,2,3,4.
TEST_F(AclTest, ActionTranslationIsNotItsOwnInverse)
{
	const u16 chip[] = {1, 0, 2, 0, 3};
	const u32 back[] = {0, 3, 2, 3, 4};
	for (u32 code = 0; code <= 4; code++) {
		SCOPED_TRACE(code);
		const acl_entry in{code % 4, code, code + 4, 3 - code % 4, 0xABCD0000u + code};
		acl_entry out{};
		ASSERT_EQ(RT_ERR_OK, rtl8309n_acl_entry_set(code, &in));
		EXPECT_EQ(chip[code], (sim().acl_fields[code] >> 6) & 3);
		EXPECT_EQ(code, sim().acl_data[code]) << "data cut to 16 bits";
		ASSERT_EQ(RT_ERR_OK, rtl8309n_acl_entry_get(code, &out));
		EXPECT_EQ(std::make_tuple(back[code], in.priority, in.port, in.protocol, code),
			  std::make_tuple(out.action, out.priority, out.port, out.protocol, out.data));
		EXPECT_EQ(0, sw(3, 15, 16) & 1);
	}
}

TEST_F(AclTest, BadArgumentsFailWithoutBusTraffic)
{
	const acl_entry ok{0, 0, 0, 0, 0}, edge{3, 4, 10, 3, 0};
	const acl_entry bad[] = {{0, 0, 11, 0, 0}, {0, 5, 0, 0, 0}, {0, 0, 0, 4, 0}, {4, 0, 0, 0, 0}};
	acl_entry out{};
	for (const auto &e : bad)
		EXPECT_EQ(RT_ERR_FAILED, rtl8309n_acl_entry_set(0, &e));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_acl_entry_set(16, &ok));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_acl_entry_set(0, nullptr));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_acl_entry_get(16, &out));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_acl_entry_get(0, nullptr));
	EXPECT_TRUE(trace().empty());
	EXPECT_EQ(RT_ERR_OK, rtl8309n_acl_entry_set(15, &edge));
}

// Busy clearing on the 100th poll read is in time; 100 busy reads fail and
// leave the access bit set.  Three command-register reads precede the poll.
TEST_F(AclTest, PollBoundLeavesAccessBitOnTimeout)
{
	const acl_entry e{1, 2, 3, 1, 0x0800};
	acl_entry out{};
	for (u32 busy_reads : {99u, 100u}) {
		SCOPED_TRACE(busy_reads);
		const s32 want = busy_reads < 100 ? RT_ERR_OK : RT_ERR_FAILED;
		rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 3, 15, 17, 0x8000, busy_reads);
		ClearTrace();
		EXPECT_EQ(want, rtl8309n_acl_entry_set(2, &e));
		EXPECT_EQ(3u + 100, Reads(3, 17));
		EXPECT_EQ(want == RT_ERR_OK ? 0 : 1, sw(3, 15, 16) & 1);
		ClearTrace();
		EXPECT_EQ(want, rtl8309n_acl_entry_get(2, &out));
		EXPECT_EQ(3u + 100, Reads(3, 17));
		EXPECT_EQ(want == RT_ERR_OK ? 0 : 1, sw(3, 15, 16) & 1);
	}
}

}  // namespace
