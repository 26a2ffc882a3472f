// VLAN block: field placement and polarity, action codes, table entries and
// the default layout.
#include "regfield_check.h"

namespace {

class VlanTest : public FieldTest {
protected:
	void ExpectEntry(u32 index, u32 vid, u32 mbr, u32 untag, u32 fid)
	{
		u32 out[4] = {9, 9, 9, 9};
		ASSERT_EQ(RT_ERR_OK,
			  rtl8309n_vlan_entry_get(index, &out[0], &out[1], &out[2], &out[3]));
		EXPECT_EQ(vid, out[0]);
		EXPECT_EQ(mbr, out[1]);
		EXPECT_EQ(untag, out[2]);
		EXPECT_EQ(fid, out[3]);
	}
};

TEST_F(VlanTest, FieldsSitWhereTheChipHasThem)
{
	std::vector<FieldRow> rows = {
		{"enable", ACCESSORS(vlan_enable), 0, 16, 16, 0, 1, false, 0},
		{"ingress filter", ACCESSORS(vlan_igrFilterEnable), 0, 16, 16, 1, 1, true, 0},
		{"fixed FID enable", ACCESSORS(vlan_fixMcastFidEnable), 0, 16, 16, 8, 1, false, 0},
		{"fixed FID", ACCESSORS(vlan_fixMcastFid), 0, 16, 16, 9, 2, false, 0},
	};
	for (u32 t = 0; t < 5; t++)
		rows.push_back({"leaky " + std::to_string(t), ACCESSORS(vlan_leakyEnable, t), 0,
				16, 16, 3 + t, 1, true, 0});

#define FNS(name) rtl8309n_vlan_##name##_set, rtl8309n_vlan_##name##_get
	const struct {
		s32 (*set)(u32, u32);
		s32 (*get)(u32, u32 *);
		bool tag;  // in (port, 16, 6) rather than (0, 17 + port, 16)
		u32 lsb, width;
	} per_port[] = {
		{FNS(portAcceptFrameType), false, 0, 2},  {FNS(tagAwareEnable), false, 2, 1},
		{FNS(discardNonPvidPktEnable), false, 3, 1}, {FNS(portPvidIndex), false, 4, 4},
		{FNS(nullVidReplaceEnable), true, 0, 1},  {FNS(tagInsertRemove), true, 1, 2},
		{FNS(igrPortTagInsertEnable), true, 3, 1}, {FNS(igrPortTagInsert), true, 7, 9},
	};
#undef FNS
	Refusals port9;
	for (const auto &f : per_port) {
		std::string name = (f.tag ? "tag bit " : "vlan bit ") + std::to_string(f.lsb);
		for (u32 p : {0u, 5u, 8u})
			rows.push_back({name + " port " + std::to_string(p), Bound(f.set, p),
					Bound(f.get, p), f.tag ? p : 0, f.tag ? 16 : 17 + p,
					f.tag ? 6u : 16u, f.lsb, f.width, false, 0});
		port9.push_back({name + " port 9", [f] { return f.set(9, 0); }});
	}
	CheckAll(rows);
	CheckRefused(port9);
}

TEST_F(VlanTest, ActionCodesAndBitlessLeakyType)
{
	u32 v = 0;

	CheckCodeBit(ACCESSORS(vlan_unmatchVidAction), 0, 16, 16, 2, 2, 3);
	CheckBitless(ACCESSORS(vlan_leakyEnable, 5u));

	CheckRefused({
		{"action 1", [] { return rtl8309n_vlan_unmatchVidAction_set(1); }},
		{"action 4", [] { return rtl8309n_vlan_unmatchVidAction_set(4); }},
		{"leaky type 6", [] { return rtl8309n_vlan_leakyEnable_set(6, 1); }},
		{"leaky get type 6", [&] { return rtl8309n_vlan_leakyEnable_get(6, &v); }},
	});
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
	ExpectEntry(4, 0x123, 0x005, 0, 1);

	set_sw(1, 16, 31, 0x0ABC);
	for (u32 p = 0; p <= 8; p++)
		set_sw(0, 16, 17 + p, 0xFFF0);  // PVID index 15, other bits set
	set_sw(0, 16, 16, 0);
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_vlan_init());
	EXPECT_EQ(W(0, 16, 0x0003), trace().back()) << "filtering off, VLAN on last";
	ExpectEntry(0, 1, 0x1FF, 0, 0);
	ExpectEntry(15, 0, 0, 0, 0);
	for (u32 p = 0; p <= 8; p++)
		EXPECT_EQ(0xFF07, sw(0, 16, 17 + p)) << "port " << p << ": type 3, aware, index 0";

	u32 v;
	CheckRefused({
		{"index 16", [] { return rtl8309n_vlan_entry_set(16, 1, 0, 0, 0); }},
		{"VID 4096", [] { return rtl8309n_vlan_entry_set(0, 4096, 0, 0, 0); }},
		{"member mask", [] { return rtl8309n_vlan_entry_set(0, 1, 0x200, 0, 0); }},
		{"untag mask", [] { return rtl8309n_vlan_entry_set(0, 1, 0, 0x200, 0); }},
		{"FID 4", [] { return rtl8309n_vlan_entry_set(0, 1, 0, 0, 4); }},
		{"get index 16", [&] { return rtl8309n_vlan_entry_get(16, &v, &v, &v, &v); }},
		{"get null FID", [&] { return rtl8309n_vlan_entry_get(0, &v, &v, &v, nullptr); }},
	});
}

}  // namespace
