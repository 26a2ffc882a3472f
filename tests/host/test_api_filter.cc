// rtk_ ingress ACL: argument checks, and the chip's table after rule
// add, update, delete and a full table.
#include "api_test.h"

namespace {

// Chip fields register layout: protocol 1..0, port 5..2, action 7..6,
// priority 9..8.
constexpr u16 Fields(u32 port, u32 proto, u32 prio, u32 chip_action)
{
	return static_cast<u16>(proto | port << 2 | chip_action << 6 | prio << 8);
}
constexpr u16 kFree = Fields(9, 0, 0, 0);

class ApiAclTest : public ApiTest {};

TEST_F(ApiAclTest, ChecksInOrderBeforeAnyChipAccess)
{
	auto rule = [](u32 port, u32 proto, u32 prio, u32 act) {
		return acl_rule{port, proto, 0x800, prio, act};
	};
	auto add = [](acl_rule x) { return [x]() mutable { return rtk_filter_igrAcl_rule_add(&x); }; };
	auto get = [](acl_rule x) { return [x]() mutable { return rtk_filter_igrAcl_rule_get(&x); }; };
	auto del = [](acl_rule x) { return [x]() mutable { return rtk_filter_igrAcl_rule_del(&x); }; };

	ExpectChecks({
		{"add null", [] { return rtk_filter_igrAcl_rule_add(nullptr); }, RT_ERR_NULL_POINTER},
		{"add action 4", add(rule(0, 0, 0, 4)), RT_ERR_INPUT},
		{"add port 11", add(rule(11, 0, 0, 0)), RT_ERR_INPUT},
		{"add priority 4", add(rule(0, 0, 4, 0)), RT_ERR_INPUT},
		{"add protocol 4", add(rule(0, 4, 0, 0)), RT_ERR_INPUT},
		{"get null", [] { return rtk_filter_igrAcl_rule_get(nullptr); }, RT_ERR_NULL_POINTER},
		{"get refuses port 9 that add takes", get(rule(9, 0, 0, 0)), RT_ERR_INPUT},
		{"get protocol 4", get(rule(0, 4, 0, 0)), RT_ERR_INPUT},
		{"del null", [] { return rtk_filter_igrAcl_rule_del(nullptr); }, RT_ERR_NULL_POINTER},
		{"del refuses port 10 that add takes", del(rule(10, 0, 0, 0)), RT_ERR_INPUT},
		{"del action 4", del(rule(0, 0, 0, 4)), RT_ERR_INPUT},
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
	EXPECT_EQ(Fields(2, 1, 1, 2), sim().acl_fields[0]);
	EXPECT_EQ(0x0800, sim().acl_data[0]);

	// Same key, other priority and action: entry 0 is rewritten in place.
	r.priority = 3;
	r.action = RTK_ACL_ACT_MIRROR;
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&r));
	EXPECT_EQ(Fields(2, 1, 3, 3), sim().acl_fields[0]);
	EXPECT_EQ(kFree, sim().acl_fields[1]);

	acl_rule q{2, 1, 0x0800, 0, RTK_ACL_ACT_DROP};
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_get(&q));
	EXPECT_EQ(3u, q.priority);
	EXPECT_EQ(u32{RTK_ACL_ACT_MIRROR}, q.action);

	for (u32 i = 1; i < 16; i++) {
		acl_rule n{3, 0, i, 0, RTK_ACL_ACT_PERMIT};
		ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&n)) << i;
		EXPECT_EQ(Fields(3, 0, 0, 1), sim().acl_fields[i]);
	}
	acl_rule full{3, 0, 99, 0, RTK_ACL_ACT_PERMIT};
	EXPECT_EQ(RT_ERR_TBL_FULL, rtk_filter_igrAcl_rule_add(&full));
	EXPECT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&r)) << "an existing key still updates";

	acl_rule gone{3, 0, 7, 0, RTK_ACL_ACT_PERMIT};
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_del(&gone));
	EXPECT_EQ(kFree, sim().acl_fields[7]);
	EXPECT_EQ(0, sim().acl_data[7]);
	EXPECT_EQ(RT_ERR_INPUT, rtk_filter_igrAcl_rule_del(&gone)) << "unknown key";
	EXPECT_EQ(RT_ERR_FAILED, rtk_filter_igrAcl_rule_get(&gone));
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&full));
	EXPECT_EQ(99, sim().acl_data[7]) << "the freed entry is reused";
}

TEST_F(ApiAclTest, FreePatternKeyAndWideData)
{
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_init());
	// Key (9, 0, 0) is the free pattern's: it updates entry 0, which stays free.
	acl_rule free_key{9, 0, 0, 2, RTK_ACL_ACT_PERMIT};
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&free_key));
	EXPECT_EQ(Fields(9, 0, 2, 1), sim().acl_fields[0]);

	acl_rule wide{4, 0, 0x10800, 0, RTK_ACL_ACT_DROP};
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&wide));
	EXPECT_EQ(Fields(4, 0, 0, 0), sim().acl_fields[0]);
	ASSERT_EQ(RT_ERR_OK, rtk_filter_igrAcl_rule_add(&wide));
	EXPECT_EQ(Fields(4, 0, 0, 0), sim().acl_fields[1]) << "data above 16 bits never matches";

	rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 3, 15, 17, 0x8000, SIM_FOREVER);
	EXPECT_EQ(RT_ERR_FAILED, rtk_filter_igrAcl_rule_add(&wide)) << "a failed read";
}

}  // namespace
