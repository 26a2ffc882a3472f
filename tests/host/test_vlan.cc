// VLAN block: field placement and polarity, action codes, table entries and
// the default layout; the VLAN and CPU-port API over it.
#include "regfield_check.h"

namespace {

class VlanTest : public FieldTest {
protected:
	// VID, member mask, untag mask and FID of entry @i, as the layer reads them.
	Vals Entry(u32 i)
	{
		u32 o[4] = {9, 9, 9, 9};
		EXPECT_EQ(RT_ERR_OK, rtl8309n_vlan_entry_get(i, &o[0], &o[1], &o[2], &o[3]));
		return {o, o + 4};
	}
};

TEST_F(VlanTest, FieldsSitWhereTheChipHasThem)
{
	std::vector<FieldRow> rows = {
		{"enable", ACCESSORS(vlan_enable), 0, 16, 16, 0, 1},
		{"ingress filter", ACCESSORS(vlan_igrFilterEnable), 0, 16, 16, 1, 1, true},
		{"fixed FID enable", ACCESSORS(vlan_fixMcastFidEnable), 0, 16, 16, 8, 1},
		{"fixed FID", ACCESSORS(vlan_fixMcastFid), 0, 16, 16, 9, 2},
	};
	for (u32 t = 0; t < 5; t++)
		rows.push_back({"leaky " + std::to_string(t), ACCESSORS(vlan_leakyEnable, t), 0, 16, 16, 3 + t, 1, true});

#define FNS(name) rtl8309n_vlan_##name##_set, rtl8309n_vlan_##name##_get
	// tag: in (port, 16, 6) rather than (0, 17 + port, 16)
	const struct { s32 (*set)(u32, u32); s32 (*get)(u32, u32 *); bool tag; u32 lsb, width; } per_port[] = {
		{FNS(portAcceptFrameType), false, 0, 2},  {FNS(tagAwareEnable), false, 2, 1},
		{FNS(discardNonPvidPktEnable), false, 3, 1}, {FNS(portPvidIndex), false, 4, 4},
		{FNS(nullVidReplaceEnable), true, 0, 1},  {FNS(tagInsertRemove), true, 1, 2},
		{FNS(igrPortTagInsertEnable), true, 3, 1}, {FNS(igrPortTagInsert), true, 7, 9},
	};
#undef FNS
	std::vector<ArgCheck> port9;
	for (const auto &f : per_port) {
		std::string name = (f.tag ? "tag bit " : "vlan bit ") + std::to_string(f.lsb);
		for (u32 p : {0u, 5u, 8u})
			rows.push_back({name + " port " + std::to_string(p), Bound(f.set, p), Bound(f.get, p),
					f.tag ? p : 0, f.tag ? 16 : 17 + p, f.tag ? 6u : 16u, f.lsb, f.width});
		port9.push_back({name + " port 9", [f] { return f.set(9, 0); }});
	}
	CheckAll(rows);
	ExpectChecks(port9);
	CheckCodeBit(ACCESSORS(vlan_unmatchVidAction), 0, 16, 16, 2, 2, 3);
	CheckBitless(ACCESSORS(vlan_leakyEnable, 5u));
}

TEST_F(VlanTest, EntriesAndDefaultLayout)
{
	// Entry 15 is register 31: three plain writes, VID word first.
	ASSERT_EQ(RT_ERR_OK, rtl8309n_vlan_entry_set(15, 4095, 0x1FF, 0x101, 3));
	ASSERT_EQ(18u, trace().size());
	EXPECT_EQ(W(1, 31, 0x3FFF), trace()[5]);
	EXPECT_EQ(W(2, 31, 0x01FF), trace()[11]);
	EXPECT_EQ(W(3, 31, 0x0101), trace()[17]);
	set_sw(1, 16, 20, 0xD123);  // bits outside the entry are dropped
	set_sw(2, 16, 20, 0xFE05);
	EXPECT_EQ((Vals{0x123, 0x005, 0, 1}), Entry(4));
	set_sw(1, 16, 31, 0x0ABC);
	for (u32 p = 0; p <= 8; p++)
		set_sw(0, 16, 17 + p, 0xFFF0);  // PVID index 15, other bits set
	set_sw(0, 16, 16, 0);
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_vlan_init());
	EXPECT_EQ(W(0, 16, 0x0003), trace().back()) << "filtering off, VLAN on last";
	EXPECT_EQ((Vals{1, 0x1FF, 0, 0}), Entry(0));
	EXPECT_EQ((Vals{0, 0, 0, 0}), Entry(15));
	for (u32 p = 0; p <= 8; p++)
		EXPECT_EQ(0xFF07, sw(0, 16, 17 + p)) << "port " << p << ": type 3, aware, index 0";
	ExpectChecks({
		{"index 16", [] { return rtl8309n_vlan_entry_set(16, 1, 0, 0, 0); }},
		{"VID 4096", [] { return rtl8309n_vlan_entry_set(0, 4096, 0, 0, 0); }},
		{"FID 4", [] { return rtl8309n_vlan_entry_set(0, 1, 0, 0, 4); }},
		{"action 1", [] { return rtl8309n_vlan_unmatchVidAction_set(1); }},
		{"leaky type 6", [] { return rtl8309n_vlan_leakyEnable_set(6, 1); }},
	});
}

class ApiVlanTest : public ChipTest {
protected:
	// VLAN table entry @i: VID and FID at address 1, masks at 2 and 3 (page 16).
	std::vector<u16> entry(u32 i) { return {sw(1, 16, 16 + i), sw(2, 16, 16 + i), sw(3, 16, 16 + i)}; }
};

u32 g_a, g_b, g_c;

TEST_F(ApiVlanTest, ChecksComeFirstInOrderWithoutBusTraffic)
{
	ExpectChecks({
		{"set vid 4095 before fid", [] { return rtk_vlan_set(4095, 1, 0, 4); }, RT_ERR_VLAN_VID},
		{"set member mask before fid", [] { return rtk_vlan_set(1, 0x200, 0, 4); }, RT_ERR_PORT_MASK},
		{"set fid 4", [] { return rtk_vlan_set(4094, 0x1FF, 0x1FF, 4); }, RT_ERR_INPUT},
		{"get vid before pointers", [] { return rtk_vlan_get(0, nullptr, nullptr, nullptr); }, RT_ERR_VLAN_VID},
		{"pvid_set port before vid", [] { return rtk_vlan_portPvid_set(9, 0, 4); }, RT_ERR_PORT_ID},
		{"pvid_set vid before priority", [] { return rtk_vlan_portPvid_set(8, 0, 4); }, RT_ERR_VLAN_VID},
		{"pvid_set priority 4", [] { return rtk_vlan_portPvid_set(8, 1, 4); }, RT_ERR_VLAN_PRIORITY},
		{"accept_set type 3", [] { return rtk_vlan_portAcceptFrameType_set(0, 3); }, RT_ERR_VLAN_ACCEPT_FRAME_TYPE},
		{"accept_get port before pointer", [] { return rtk_vlan_portAcceptFrameType_get(9, nullptr); }, RT_ERR_PORT_ID},
	});
}

TEST_F(ApiVlanTest, TableSearchAllocationAndDeletion)
{
	for (u32 i = 0; i < 16; i++) {
		set_sw(1, 16, 16 + i, static_cast<u16>(10 + i));
		set_sw(2, 16, 16 + i, 1);
	}
	EXPECT_EQ(RT_ERR_TBL_FULL, rtk_vlan_set(100, 1, 0, 0));
	EXPECT_EQ(RT_ERR_OK, rtk_vlan_set(12, 0x1FF, 0x100, 3)) << "updates work in a full table";
	EXPECT_EQ((std::vector<u16>{0x300C, 0x1FF, 0x100}), entry(2));
	EXPECT_EQ(RT_ERR_OK, rtk_vlan_destroy(19));
	EXPECT_EQ((std::vector<u16>{0, 0, 0}), entry(9));
	EXPECT_EQ(RT_ERR_OK, rtk_vlan_set(13, 0, 0, 1)) << "empty masks delete";
	EXPECT_EQ((std::vector<u16>{0x1000, 0, 0}), entry(3));
	EXPECT_EQ(RT_ERR_VLAN_ENTRY_NOT_FOUND, rtk_vlan_get(13, &g_a, &g_b, &g_c));
	EXPECT_EQ(RT_ERR_VLAN_ENTRY_NOT_FOUND, rtk_vlan_destroy(13));
	EXPECT_EQ(RT_ERR_OK, rtk_vlan_set(12, 3, 0, 0)) << "found before a free entry is taken";
	EXPECT_EQ((std::vector<u16>{12, 3, 0}), entry(2));
	EXPECT_EQ((std::vector<u16>{0x1000, 0, 0}), entry(3));
	EXPECT_EQ(RT_ERR_OK, rtk_vlan_set(100, 0x109, 0x9, 1)) << "lowest free of 3 and 9";
	EXPECT_EQ((std::vector<u16>{0x1064, 0x109, 0x9}), entry(3));
	EXPECT_EQ(RT_ERR_OK, rtk_vlan_get(100, &g_a, &g_b, &g_c));
	EXPECT_EQ((Vals{0x109, 0x9, 1}), (Vals{g_a, g_b, g_c}));
	EXPECT_EQ(RT_ERR_OK, rtk_vlan_set(101, 0, 0, 2)) << "creates nothing";
	EXPECT_EQ((std::vector<u16>{0x2000, 0, 0}), entry(9));
	EXPECT_EQ(RT_ERR_OK, rtk_vlan_set(102, 0, 1, 0)) << "an untag mask alone creates";
	EXPECT_EQ((std::vector<u16>{102, 0, 1}), entry(9));
	EXPECT_EQ(RT_ERR_TBL_FULL, rtk_vlan_set(103, 1, 0, 0));
}

TEST_F(ApiVlanTest, PortVlanIdNamesATableEntry)
{
	u32 pvid = 0, pri = 9;
	rtk_vlan_init();
	ASSERT_EQ(RT_ERR_OK, rtk_vlan_set(100, 0x109, 0x109, 1));
	ASSERT_EQ(RT_ERR_OK, rtk_vlan_portPvid_set(3, 100, 2));
	EXPECT_EQ(1, (sw(0, 16, 20) >> 4) & 0xF) << "index of VLAN 100's entry";
	ASSERT_EQ(RT_ERR_OK, rtk_vlan_portPvid_get(3, &pvid, &pri));
	EXPECT_EQ(std::make_pair(100u, 2u), std::make_pair(pvid, pri));
	ClearTrace();
	EXPECT_EQ(RT_ERR_VLAN_ENTRY_NOT_FOUND, rtk_vlan_portPvid_set(3, 200, 0));
	EXPECT_TRUE(DataWrites().empty());
	ASSERT_EQ(RT_ERR_OK, rtk_vlan_destroy(100));
	set_sw(3, 10, 18, 0x0005);
	EXPECT_EQ(RT_ERR_FAILED, rtk_vlan_portPvid_get(3, &pvid, &pri));
	EXPECT_EQ(std::make_pair(0u, 2u), std::make_pair(pvid, pri)) << "VID stored before the priority read fails";
}

TEST_F(ApiVlanTest, PortAndCpuSettings)
{
	u32 v = 9, port = 0;
	ASSERT_EQ(RT_ERR_OK, rtk_vlan_portIFilterEnable_set(3, 1));
	EXPECT_EQ(0, sw(0, 16, 16) & 0x2) << "one filter for all ports";
	for (u32 type = 0; type < 3; type++) {
		ASSERT_EQ(RT_ERR_OK, rtk_vlan_portAcceptFrameType_set(4, type));
		EXPECT_EQ(3 - type, sw(0, 16, 21) & 0x3u);
		ExpectGot(rtk_vlan_portAcceptFrameType_get(4, &v), v, type);
	}
	const u32 modes[][3] = {{8, CPU_INSERT_TO_ALL, CPU_INSERT_TO_ALL}, {2, 2, CPU_INSERT_TO_NONE}};
	for (const auto &m : modes) {
		ASSERT_EQ(RT_ERR_OK, rtk_cpu_tagPort_set(m[0], m[1]));
		ASSERT_EQ(RT_ERR_OK, rtk_cpu_tagPort_get(&port, &v));
		EXPECT_EQ(std::make_pair(m[0], m[2]), std::make_pair(port, v));
	}
	set_sw(2, 17, 16, 9 << 1);
	v = 7;
	EXPECT_EQ(RT_ERR_FAILED, rtk_cpu_tagPort_get(&port, &v)) << "no CPU port";
	EXPECT_EQ(std::make_pair(9u, 7u), std::make_pair(port, v));
	EXPECT_EQ(RT_ERR_OK, rtk_cpu_enable_set(2));
	EXPECT_EQ(1, sw(2, 17, 16) & 1) << "anything but 1 disables";
}

}  // namespace
