// VLAN and CPU-port API: check order, VLAN table management, port settings.
#include "api_test.h"

#include <algorithm>

namespace {

class ApiVlanTest : public ApiTest {
protected:
	// VLAN table entry @i: VID and FID at address 1, masks at 2 and 3 (page 16).
	void put_entry(u32 i, u16 vid, u16 mbr)
	{
		set_sw(1, 16, 16 + i, vid);
		set_sw(2, 16, 16 + i, mbr);
	}
	std::vector<u16> entry(u32 i)
	{
		return {sw(1, 16, 16 + i), sw(2, 16, 16 + i), sw(3, 16, 16 + i)};
	}
};

u32 g_a, g_b, g_c;

TEST_F(ApiVlanTest, ChecksComeFirstInOrderWithoutBusTraffic)
{
	ExpectChecks({
		{"set vid 0", [] { return rtk_vlan_set(0, 1, 0, 0); }, RT_ERR_VLAN_VID},
		{"set vid 4095 before fid", [] { return rtk_vlan_set(4095, 1, 0, 4); }, RT_ERR_VLAN_VID},
		{"set untag mask", [] { return rtk_vlan_set(1, 0, 0x200, 0); }, RT_ERR_PORT_MASK},
		{"set member mask before fid", [] { return rtk_vlan_set(1, 0x200, 0, 4); }, RT_ERR_PORT_MASK},
		{"set fid 4", [] { return rtk_vlan_set(4094, 0x1FF, 0x1FF, 4); }, RT_ERR_INPUT},
		{"get vid before pointers", [] { return rtk_vlan_get(0, nullptr, nullptr, nullptr); },
		 RT_ERR_VLAN_VID},
		{"get null fid", [] { return rtk_vlan_get(1, &g_a, &g_b, nullptr); }, RT_ERR_NULL_POINTER},
		{"destroy vid 4095", [] { return rtk_vlan_destroy(4095); }, RT_ERR_VLAN_VID},
		{"pvid_set port before vid", [] { return rtk_vlan_portPvid_set(9, 0, 4); }, RT_ERR_PORT_ID},
		{"pvid_set vid before priority", [] { return rtk_vlan_portPvid_set(8, 0, 4); },
		 RT_ERR_VLAN_VID},
		{"pvid_set priority 4", [] { return rtk_vlan_portPvid_set(8, 1, 4); }, RT_ERR_VLAN_PRIORITY},
		{"pvid_get null priority", [] { return rtk_vlan_portPvid_get(0, &g_a, nullptr); },
		 RT_ERR_NULL_POINTER},
		{"ifilter_set port 9", [] { return rtk_vlan_portIFilterEnable_set(9, 1); }, RT_ERR_PORT_ID},
		{"accept_set type 3", [] { return rtk_vlan_portAcceptFrameType_set(0, 3); },
		 RT_ERR_VLAN_ACCEPT_FRAME_TYPE},
		{"accept_get port before pointer",
		 [] { return rtk_vlan_portAcceptFrameType_get(9, nullptr); }, RT_ERR_PORT_ID},
		{"tagPort_set port 9", [] { return rtk_cpu_tagPort_set(9, 1); }, RT_ERR_PORT_ID},
		{"tagPort_get null mode", [] { return rtk_cpu_tagPort_get(&g_a, nullptr); },
		 RT_ERR_NULL_POINTER},
	});
}

TEST_F(ApiVlanTest, TableSearchAllocationAndDeletion)
{
	for (u32 i = 0; i < 16; i++)
		put_entry(i, static_cast<u16>(10 + i), 1);

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
	EXPECT_EQ((std::vector<u32>{0x109, 0x9, 1}), (std::vector<u32>{g_a, g_b, g_c}));

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
	EXPECT_EQ(2, sw(3, 10, 18)) << "802.1Q port priority";
	ASSERT_EQ(RT_ERR_OK, rtk_vlan_portPvid_get(3, &pvid, &pri));
	EXPECT_EQ((std::vector<u32>{100, 2}), (std::vector<u32>{pvid, pri}));

	ClearTrace();
	EXPECT_EQ(RT_ERR_VLAN_ENTRY_NOT_FOUND, rtk_vlan_portPvid_set(3, 200, 0));
	EXPECT_EQ(0, std::count_if(trace().begin(), trace().end(),
				   [](const Txn &t) { return t.op == 'W' && t.reg != 31; }));

	ASSERT_EQ(RT_ERR_OK, rtk_vlan_destroy(100));
	set_sw(3, 10, 18, 0x0005);
	EXPECT_EQ(RT_ERR_FAILED, rtk_vlan_portPvid_get(3, &pvid, &pri));
	EXPECT_EQ((std::vector<u32>{0, 2}), (std::vector<u32>{pvid, pri}))
		<< "the freed entry's VID is stored before the priority read fails";
}

TEST_F(ApiVlanTest, PortAndCpuSettings)
{
	u32 v = 9, port = 0;

	ASSERT_EQ(RT_ERR_OK, rtk_vlan_portIFilterEnable_set(3, 1));
	EXPECT_EQ(0, sw(0, 16, 16) & 0x2) << "one filter for all ports";
	ASSERT_EQ(RT_ERR_OK, rtk_vlan_portIFilterEnable_get(7, &v));
	EXPECT_EQ(1u, v);

	for (u32 type = 0; type < 3; type++) {
		ASSERT_EQ(RT_ERR_OK, rtk_vlan_portAcceptFrameType_set(4, type));
		EXPECT_EQ(3 - type, sw(0, 16, 21) & 0x3u);
		ASSERT_EQ(RT_ERR_OK, rtk_vlan_portAcceptFrameType_get(4, &v));
		EXPECT_EQ(type, v);
	}
	set_sw(0, 16, 21, 0);
	EXPECT_EQ(RT_ERR_VLAN_ACCEPT_FRAME_TYPE, rtk_vlan_portAcceptFrameType_get(4, &v));
	EXPECT_EQ(2u, v) << "nothing stored";

	ASSERT_EQ(RT_ERR_OK, rtk_cpu_tagPort_set(8, CPU_INSERT_TO_ALL));
	ASSERT_EQ(RT_ERR_OK, rtk_cpu_tagPort_get(&port, &v));
	EXPECT_EQ((std::vector<u32>{8, CPU_INSERT_TO_ALL}), (std::vector<u32>{port, v}));
	ASSERT_EQ(RT_ERR_OK, rtk_cpu_tagPort_set(2, 2));
	ASSERT_EQ(RT_ERR_OK, rtk_cpu_tagPort_get(&port, &v));
	EXPECT_EQ((std::vector<u32>{2, CPU_INSERT_TO_NONE}), (std::vector<u32>{port, v}));
	set_sw(2, 17, 16, 9 << 1);
	v = 7;
	EXPECT_EQ(RT_ERR_FAILED, rtk_cpu_tagPort_get(&port, &v)) << "no CPU port";
	EXPECT_EQ((std::vector<u32>{9, 7}), (std::vector<u32>{port, v}));

	EXPECT_EQ(RT_ERR_OK, rtk_cpu_enable_set(2));
	EXPECT_EQ(1, sw(2, 17, 16) & 1) << "anything but 1 disables";
	ASSERT_EQ(RT_ERR_OK, rtk_cpu_enable_get(&v));
	EXPECT_EQ(0u, v);
}

}  // namespace
