// ACL table: entry packing, the action translation, the command poll; the
// rtk_ ingress ACL over it (rule add, update, delete, a full table).
#include "chip_fixture.h"

namespace {

class AclTest : public ChipTest {};

TEST_F(AclTest, FreeEntryPackingKeepsUpperFieldBits)
{
	set_sw(3, 15, 19, 0xFC00);
	set_sw(2, 17, 16, 0x0102);
	const acl_entry free_entry{0, 3, 9, 0, 0};
	ExpectGot(rtl8309n_acl_entry_set(15, &free_entry), sim().acl_fields[15], 0x024);
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
	const acl_entry ok{0, 0, 0, 0, 0}, edge{3, 4, 10, 3, 0};
	const acl_entry bad[] = {{0, 0, 11, 0, 0}, {0, 5, 0, 0, 0}, {0, 0, 0, 4, 0}, {4, 0, 0, 0, 0}};
	acl_entry out{};
	ClearTrace();
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
		for (bool get : {false, true}) {
			ClearTrace();
			EXPECT_EQ(want, get ? rtl8309n_acl_entry_get(2, &out) : rtl8309n_acl_entry_set(2, &e));
			EXPECT_EQ(3 + 100, Count('R', 3, 17));
			EXPECT_EQ(want == RT_ERR_OK ? 0 : 1, sw(3, 15, 16) & 1);
		}
	}
}

// Chip fields register layout: protocol 1..0, port 5..2, action 7..6,
// priority 9..8.
constexpr u16 Fields(u32 port, u32 proto, u32 prio, u32 chip_action)
{
	return static_cast<u16>(proto | port << 2 | chip_action << 6 | prio << 8);
}
constexpr u16 kFree = Fields(9, 0, 0, 0);

class ApiAclTest : public ChipTest {};

TEST_F(ApiAclTest, ChecksInOrderBeforeAnyChipAccess)
{
	auto rule = [](u32 port, u32 proto, u32 prio, u32 act) { return acl_rule{port, proto, 0x800, prio, act}; };
	auto add = [](acl_rule x) { return [x]() mutable { return rtk_filter_igrAcl_rule_add(&x); }; };
	auto get = [](acl_rule x) { return [x]() mutable { return rtk_filter_igrAcl_rule_get(&x); }; };
	auto del = [](acl_rule x) { return [x]() mutable { return rtk_filter_igrAcl_rule_del(&x); }; };
	ExpectChecks({
		{"add null", [] { return rtk_filter_igrAcl_rule_add(nullptr); }, RT_ERR_NULL_POINTER},
		{"add action 4", add(rule(0, 0, 0, 4)), RT_ERR_INPUT},
		{"add priority 4", add(rule(0, 0, 4, 0)), RT_ERR_INPUT},
		{"get refuses port 9 that add takes", get(rule(9, 0, 0, 0)), RT_ERR_INPUT},
		{"del refuses port 10 that add takes", del(rule(10, 0, 0, 0)), RT_ERR_INPUT},
		{"del priority 4", del(rule(0, 0, 4, 0)), RT_ERR_INPUT},
	});
}

TEST_F(ApiAclTest, RulesAreKeyedByPortProtocolData)
{
	sim().acl_fields[5] = Fields(1, 1, 1, 1);
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_init());
	for (u32 i = 0; i < 16; i++)
		EXPECT_EQ(kFree, sim().acl_fields[i]) << "entry " << i;
	acl_rule r{2, 1, 0x0800, 1, RTK_ACL_ACT_TRAP_CPU};
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&r));
	EXPECT_EQ(Pair(Fields(2, 1, 1, 2), 0x0800), Pair(sim().acl_fields[0], sim().acl_data[0]));
	// Same key, other priority and action: entry 0 is rewritten in place.
	r.priority = 3;
	r.action = RTK_ACL_ACT_MIRROR;
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&r));
	EXPECT_EQ(Pair(Fields(2, 1, 3, 3), kFree), Pair(sim().acl_fields[0], sim().acl_fields[1]));
	acl_rule q{2, 1, 0x0800, 0, RTK_ACL_ACT_DROP};
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_get(&q));
	EXPECT_EQ(Pair(3, RTK_ACL_ACT_MIRROR), Pair(q.priority, q.action));
	for (u32 i = 1; i < 16; i++) {
		acl_rule n{3, 0, i, 0, RTK_ACL_ACT_PERMIT};
		ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&n)) << i;
		EXPECT_EQ(Fields(3, 0, 0, 1), sim().acl_fields[i]);
	}
	acl_rule full{3, 0, 99, 0, RTK_ACL_ACT_PERMIT}, gone{3, 0, 7, 0, RTK_ACL_ACT_PERMIT};
	EXPECT_EQ(RT_ERR_TBL_FULL, rtk_filter_igrAcl_rule_add(&full));
	EXPECT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&r)) << "an existing key still updates";
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_del(&gone));
	EXPECT_EQ(Pair(kFree, 0), Pair(sim().acl_fields[7], sim().acl_data[7]));
	EXPECT_EQ(RT_ERR_INPUT, rtk_filter_igrAcl_rule_del(&gone)) << "unknown key";
	EXPECT_EQ(RT_ERR_FAILED, rtk_filter_igrAcl_rule_get(&gone));
	ExpectGot(rtk_filter_igrAcl_rule_add(&full), sim().acl_data[7], 99, "the freed entry is reused");
}

}  // namespace
