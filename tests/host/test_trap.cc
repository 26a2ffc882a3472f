// Reserved-multicast slots, IGMP enables and trap actions.
#include "regfield_check.h"

namespace {

class TrapTest : public FieldTest {};

// Register (2, 15, reg) before and after rtl8309n_rma_entry_set, and what
// rtl8309n_rma_entry_get reports back.
struct RmaCase {
	const char *name;
	u32 index;
	rtl8309n_rma_entry entry;
	u32 reg;
	u16 before, after;
	rtl8309n_rma_entry readback;
};

TEST_F(TrapTest, RmaSlotPlacementMappingAndSpill)
{
	const RmaCase cases[] = {
		{"odd index: high slot, rest kept", 3, {2, 1, 1}, 17, 0xE0FF, 0xEEFF, {2, 1, 1}},
		{"even index: low slot", 4, {3, 0, 2}, 18, 0xFFFF, 0xFFF3, {3, 0, 2}},
		{"18: low slot of 25, user slot kept", 18, {1, 1, 3}, 25, 0x1F00, 0x1F1D, {1, 1, 3}},
		{"action 7 becomes forward", 0, {7, 0, 0}, 16, 0x0003, 0x0000, {0, 0, 0}},
		{"flag other than 1 is clear", 1, {0, 2, 0}, 16, 0x0400, 0x0000, {0, 0, 0}},
		{"even value 4 spills to bit 5", 2, {1, 0, 4}, 17, 0x0000, 0x0021, {1, 0, 0}},
		{"odd value 5 spills to bit 13", 5, {0, 0, 5}, 18, 0x0000, 0x2800, {0, 0, 1}},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.name);
		rtl8309n_rma_entry got = {9, 9, 9};

		set_sw(2, 15, c.reg, c.before);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_rma_entry_set(c.index, &c.entry));
		EXPECT_EQ(c.after, sw(2, 15, c.reg));
		ASSERT_EQ(RT_ERR_OK, rtl8309n_rma_entry_get(c.index, &got));
		EXPECT_EQ((std::vector<u32>{c.readback.action, c.readback.flag, c.readback.value}),
			  (std::vector<u32>{got.action, got.flag, got.value}));
	}
}

TEST_F(TrapTest, UserEntryIsUnmappedAndIgmpControlUsesEntriesTwelveOn)
{
	const rtl8309n_rma_entry e = {7, 0, 1};  // action 7 runs into the flag bit
	const u16 words[3] = {0x2301, 0x6745, 0xAB89};
	rtl8309n_rma_entry got = {};
	u8 mac[6] = {};
	u32 action = 0;

	set_sw(2, 15, 25, 0x00FF);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rma_userentry_set(&e, words));
	EXPECT_EQ(0x0FFF, sw(2, 15, 25)) << "low slot (entry 18) kept";
	EXPECT_EQ(0xAB89, sw(2, 15, 28));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rma_userentry_get(&got, mac));
	EXPECT_EQ((std::vector<u32>{3, 1, 1}), (std::vector<u32>{got.action, got.flag, got.value}));
	EXPECT_EQ((std::vector<u8>{0x01, 0x23, 0x45, 0x67, 0x89, 0xAB}), std::vector<u8>(mac, mac + 6));

	set_sw(2, 15, 23, 0x1F1F);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_trap_igmpCtrlPktAction_set(2, 3));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_trap_igmpCtrlPktAction_set(3, 5));
	EXPECT_EQ(0x0003, sw(2, 15, 23)) << "entries 14 and 15; action 5 is stored as 0";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_trap_igmpCtrlPktAction_get(2, &action));
	EXPECT_EQ(3u, action);
}

TEST_F(TrapTest, BitPlacementAndPolarity)
{
	// Per type: address, page, bit, the action a set bit means, the other one.
	const u32 mc[2][5] = {{6, 15, 9, 3, 0}, {6, 15, 10, 3, 0}};
	const u32 ab[4][5] = {{0, 16, 2, 2, 3}, {0, 15, 0, 2, 3}, {6, 15, 8, 3, 2}, {6, 15, 7, 3, 2}};
	std::vector<FieldRow> igmp;

	for (u32 t = 0; t < 2; t++) {
		SCOPED_TRACE("unknown mc type " + std::to_string(t));
		CheckCodeBit([t](u32 v) { return rtl8309n_trap_unknownIPMcastPktAction_set(t, v); },
			     [t](u32 *p) { return rtl8309n_trap_unknownIPMcastPktAction_get(t, p); },
			     mc[t][0], 16, mc[t][1], mc[t][2], mc[t][3], mc[t][4]);
	}
	for (u32 t = 0; t < 4; t++) {
		SCOPED_TRACE("abnormal type " + std::to_string(t));
		CheckCodeBit([t](u32 v) { return rtl8309n_trap_abnormalPktAction_set(t, v); },
			     [t](u32 *p) { return rtl8309n_trap_abnormalPktAction_get(t, p); },
			     ab[t][0], 16, ab[t][1], ab[t][2], ab[t][3], ab[t][4]);
		igmp.push_back({"igmp " + std::to_string(t),
				[t](u32 v) { return rtl8309n_igmp_enable_set(t, v); },
				[t](u32 *p) { return rtl8309n_igmp_enable_get(t, p); }, 1, 16, 15,
				t < 2 ? t : 2, 1, t >= 2, 0});
	}
	CheckAll(igmp);

	u32 v = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_igmp_enable_set(2, 1));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_igmp_enable_get(3, &v));
	EXPECT_EQ(1u, v) << "types 2 and 3 share the disable bit";
}

TEST_F(TrapTest, RefusalsAndTheBitlessAbnormalType)
{
	rtl8309n_rma_entry e = {};
	u32 v = 42;

	ClearTrace();
	EXPECT_EQ(RT_ERR_OK, rtl8309n_trap_abnormalPktAction_set(4, 2));
	EXPECT_EQ(RT_ERR_OK, rtl8309n_trap_abnormalPktAction_get(4, &v));
	EXPECT_EQ(42u, v);
	EXPECT_TRUE(trace().empty());

	CheckRefused({
		{"rma set index 19", [&] { return rtl8309n_rma_entry_set(19, &e); }},
		{"user set null mac", [&] { return rtl8309n_rma_userentry_set(&e, nullptr); }},
		{"igmp type 4", [] { return rtl8309n_igmp_enable_set(4, 1); }},
		{"unknown mc type 2", [] { return rtl8309n_trap_unknownIPMcastPktAction_set(2, 3); }},
		{"unknown mc action 2", [] { return rtl8309n_trap_unknownIPMcastPktAction_set(0, 2); }},
		{"abnormal type 5", [] { return rtl8309n_trap_abnormalPktAction_set(5, 2); }},
		{"abnormal type 4 action 0", [] { return rtl8309n_trap_abnormalPktAction_set(4, 0); }},
		{"igmp ctrl action 6", [] { return rtl8309n_trap_igmpCtrlPktAction_set(0, 6); }},
	});
}

}  // namespace
