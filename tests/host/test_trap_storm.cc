// Reserved-multicast slots, IGMP enables, trap actions, the interrupt
// controller and storm filters; the rtk_ STP, trap and storm API over them.
#include "regfield_check.h"

namespace {

template <typename A> Vals Attr(const A &a) { return {a.ctrlFlag, a.rate, a.param, a.globalFlag}; }

class TrapTest : public FieldTest {
protected:
	static Vals Rma(const rtl8309n_rma_entry &e) { return {e.action, e.flag, e.value}; }
};

TEST_F(TrapTest, RmaSlotPlacementMappingAndSpill)
{
	// Register (2, 15, reg) before and after rtl8309n_rma_entry_set, and what
	// rtl8309n_rma_entry_get reports back.
	const struct { const char *name; u32 index; rtl8309n_rma_entry entry; u32 reg; u16 before, after;
		       rtl8309n_rma_entry readback; } cases[] = {
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
		ExpectSet(rtl8309n_rma_entry_set(c.index, &c.entry), 2, 15, c.reg, c.after);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_rma_entry_get(c.index, &got));
		EXPECT_EQ(Rma(c.readback), Rma(got));
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
	ExpectSet(rtl8309n_rma_userentry_set(&e, words), 2, 15, 25, 0x0FFF, "low slot (entry 18) kept");
	EXPECT_EQ(0xAB89, sw(2, 15, 28));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rma_userentry_get(&got, mac));
	EXPECT_EQ((Vals{3, 1, 1}), Rma(got));
	EXPECT_EQ((std::vector<u8>{0x01, 0x23, 0x45, 0x67, 0x89, 0xAB}), std::vector<u8>(mac, mac + 6));
	set_sw(2, 15, 23, 0x1F1F);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_trap_igmpCtrlPktAction_set(2, 3));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_trap_igmpCtrlPktAction_set(3, 5));
	EXPECT_EQ(0x0003, sw(2, 15, 23)) << "entries 14 and 15; action 5 is stored as 0";
	ExpectGot(rtl8309n_trap_igmpCtrlPktAction_get(2, &action), action, 3u);
}

TEST_F(TrapTest, BitPlacementPolarityAndRefusals)
{
	// Per type: address, page, bit, the action a set bit means, the other one.
	const u32 mc[2][5] = {{6, 15, 9, 3, 0}, {6, 15, 10, 3, 0}};
	const u32 ab[4][5] = {{0, 16, 2, 2, 3}, {0, 15, 0, 2, 3}, {6, 15, 8, 3, 2}, {6, 15, 7, 3, 2}};
	std::vector<FieldRow> igmp;
	for (u32 t = 0; t < 2; t++) {
		SCOPED_TRACE("unknown mc type " + std::to_string(t));
		CheckCodeBit(ACCESSORS(trap_unknownIPMcastPktAction, t), mc[t][0], 16, mc[t][1], mc[t][2], mc[t][3],
			     mc[t][4]);
	}
	for (u32 t = 0; t < 4; t++) {
		SCOPED_TRACE("abnormal type " + std::to_string(t));
		CheckCodeBit(ACCESSORS(trap_abnormalPktAction, t), ab[t][0], 16, ab[t][1], ab[t][2], ab[t][3], ab[t][4]);
		igmp.push_back({"igmp " + std::to_string(t), Bound(rtl8309n_igmp_enable_set, t),
				Bound(rtl8309n_igmp_enable_get, t), 1, 16, 15, t < 2 ? t : 2, 1, t >= 2});
	}
	CheckAll(igmp);
	u32 v = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_igmp_enable_set(2, 1));
	ExpectGot(rtl8309n_igmp_enable_get(3, &v), v, 1u, "types 2 and 3 share the disable bit");
	rtl8309n_rma_entry e = {};
	v = 42;
	ExpectChecks({
		{"abnormal type 4 has no bit", [] { return rtl8309n_trap_abnormalPktAction_set(4, 2); }, RT_ERR_OK},
		{"abnormal get type 4", [&] { return rtl8309n_trap_abnormalPktAction_get(4, &v); }, RT_ERR_OK},
		{"rma set index 19", [&] { return rtl8309n_rma_entry_set(19, &e); }},
		{"unknown mc action 2", [] { return rtl8309n_trap_unknownIPMcastPktAction_set(0, 2); }},
		{"abnormal type 4 action 0", [] { return rtl8309n_trap_abnormalPktAction_set(4, 0); }},
		{"igmp ctrl action 6", [] { return rtl8309n_trap_igmpCtrlPktAction_set(0, 6); }},
	});
	EXPECT_EQ(42u, v);
}

class IntrStormTest : public FieldTest {};

TEST_F(IntrStormTest, InterruptEnableMaskAndStatus)
{
	u32 flag = 9, mask = 9;
	set_sw(0, 17, 16, 0x8000);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_enable_set(2, 0x1FFF));
	EXPECT_EQ(0x9FFF, sw(0, 17, 16)) << "flag 2 leaves the global enable alone";
	ExpectSet(rtl8309n_intr_enable_set(0, 0x0005), 0, 17, 16, 0x0005);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_enable_set(1, 0x1000));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_enable_get(&flag, &mask));
	EXPECT_EQ(Pair(1, 0x1000), Pair(flag, mask));
	set_sw(0, 17, 17, 0xE000);
	ExpectSet(rtl8309n_intr_status_set(0x0123), 0, 17, 17, 0x0123, "the whole register is written");
	set_sw(0, 17, 17, 0xF00F);
	ExpectGot(rtl8309n_intr_status_get(&mask), mask, 0x100Fu);
}

// Control, rate and second value register of each storm type, page 8.
TEST_F(IntrStormTest, AttributesLandInTheTypesBlockInOrder)
{
	const u32 blocks[4][3] = {{22, 23, 24}, {19, 20, 21}, {19, 20, 21}, {16, 17, 18}};
	const rtl8309n_storm_attr in = {5, 0x1ABCD, 0x1234, 1};
	for (u32 type = 0; type < 4; type++) {
		SCOPED_TRACE("type " + std::to_string(type));
		const u32 ctrl = blocks[type][0];
		rtl8309n_storm_attr out = {};
		rtl8309n_sim_init(&sim());
		set_sw(7, 8, ctrl, type == 1 ? 0x0008 : 0x0000);
		ClearTrace();
		ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterAttr_set(7, type, &in));
		EXPECT_EQ(type == 2 ? 0x800A : 0x8002, sw(7, 8, ctrl))
			<< "ctrlFlag at bit 1, rate bit 16 at bit 15, type select for 1 and 2";
		EXPECT_EQ(std::make_tuple(0xABCD, 0x1234, 0x0001),
			  std::make_tuple(sw(7, 8, blocks[type][1]), sw(7, 8, blocks[type][2]), sw(6, 14, 16)));
		std::vector<Pair> order = {{7, ctrl}, {7, ctrl}, {7, ctrl + 1}};
		if (ctrl == 19)
			order.emplace_back(7, 19);
		order.insert(order.end(), {{7, ctrl + 2}, {6, 16}});
		EXPECT_EQ(order, DataWrites());
		ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterAttr_get(7, type, &out));
		EXPECT_EQ((Vals{1, 0x1ABCD, 0x1234, 1}), Attr(out));
	}
}

TEST_F(IntrStormTest, SharedFilterOwnBlockBitsAndRefusals)
{
	const rtl8309n_storm_attr attr = {0, 0, 0, 0};
	u32 one = 9, two = 9;
	ExpectSet(rtl8309n_storm_filterEnable_set(4, 2, 1), 4, 8, 19, 0x0009);
	rtl8309n_storm_filterEnable_get(4, 1, &one);
	rtl8309n_storm_filterEnable_get(4, 2, &two);
	EXPECT_EQ(Pair(0, 1), Pair(one, two)) << "type 1 is not served";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterStatus_set(4, 1, 1));
	EXPECT_EQ(0x000D, sw(4, 8, 19)) << "status leaves the type select alone";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterAttr_set(4, 1, &attr));
	EXPECT_EQ(0x0005, sw(4, 8, 19)) << "type 1 attributes take the filter over";
	rtl8309n_storm_filterEnable_get(4, 1, &one);
	rtl8309n_storm_filterEnable_get(4, 2, &two);
	EXPECT_EQ(Pair(1, 0), Pair(one, two));
	ExpectChecks({
		{"intr mask 0x2000", [] { return rtl8309n_intr_enable_set(1, 0x2000); }},
		{"status 0x2000", [] { return rtl8309n_intr_status_set(0x2000); }},
		{"enable port 9", [] { return rtl8309n_storm_filterEnable_set(9, 0, 1); }},
		{"attr type 4", [] { return rtl8309n_storm_filterAttr_set(0, 4, nullptr); }},
	});
}

class ApiStpTrapStormTest : public ChipTest {};

TEST_F(ApiStpTrapStormTest, ChecksInOrderBeforeAnyChipAccess)
{
	ExpectChecks({
		{"stp port before state", [] { return rtk_stp_mstpState_set(0, 9, 4); }, RT_ERR_PORT_ID},
		{"stp state 4", [] { return rtk_stp_mstpState_set(0, 0, 4); }, RT_ERR_MSTP_STATE},
		{"mcast port 9 though unused", [] { return rtk_trap_unknownMcastPktAction_set(9, 0, 2); }, RT_ERR_PORT_ID},
		{"mcast type 0", [] { return rtk_trap_unknownMcastPktAction_set(0, 0, 0); }, RT_ERR_INPUT},
		{"igmp get type before null", [] { return rtk_trap_igmpCtrlPktAction_get(4, nullptr); }, RT_ERR_INPUT},
		{"storm port before type", [] { return rtk_storm_filterEnable_set(9, 4, 1); }, RT_ERR_PORT_ID},
		{"storm get type before null", [] { return rtk_storm_filterEnable_get(0, 4, nullptr); }, RT_ERR_INPUT},
		{"storm attr null", [] { return rtk_storm_filterAttr_set(8, 3, nullptr); }, RT_ERR_NULL_POINTER},
	});
}

TEST_F(ApiStpTrapStormTest, StpStateOnlyWhenTheRegisterHoldsOne)
{
	u32 state = 9;
	ExpectSet(rtk_stp_mstpState_set(0, 4, RTK_STP_STATE_FORWARDING), 4, 2, 16, 3);
	ExpectGot(rtk_stp_mstpState_get(5, 4, &state), state, 3u);
	set_sw(4, 2, 16, 0x0006);
	state = 9;
	EXPECT_EQ(RT_ERR_OK, rtk_stp_mstpState_get(0, 4, &state));
	EXPECT_EQ(9u, state);
}

TEST_F(ApiStpTrapStormTest, TrapTypesAndActionsAreTranslated)
{
	u32 action = 9;
	// IGMP types 1 and 2 swap: API type 1 is reserved-multicast entry 14,
	// the low slot of register 23.
	ExpectSet(rtk_trap_igmpCtrlPktAction_set(1, RTK_TRAP_IGMP_TRAP_CPU), 2, 15, 23, 0x0002);
	ExpectGot(rtk_trap_igmpCtrlPktAction_get(1, &action), action, 2u);
	ASSERT_EQ(RT_ERR_OK, rtk_trap_igmpCtrlPktAction_set(2, RTK_TRAP_IGMP_DROP));
	EXPECT_EQ(0x0300, sw(2, 15, 22)) << "API type 2 is entry 13";
	ExpectSet(rtk_trap_igmpCtrlPktAction_set(1, RTK_TRAP_IGMP_FORWARD_ALT), 2, 15, 23, 0x0000);
	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_set(0, 1, RTK_TRAP_MCAST_DROP));
	ExpectSet(rtk_trap_unknownMcastPktAction_set(0, 2, RTK_TRAP_MCAST_DROP), 6, 15, 16, 0x0600);
	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_set(0, 1, RTK_TRAP_MCAST_FORWARD));
	u32 a1 = 9, a2 = 9;
	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_get(8, 1, &a1));
	ASSERT_EQ(RT_ERR_OK, rtk_trap_unknownMcastPktAction_get(8, 2, &a2));
	EXPECT_EQ(Pair(0, 1), Pair(a1, a2));
}

}  // namespace
