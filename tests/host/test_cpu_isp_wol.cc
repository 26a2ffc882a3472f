// CPU port block (field placement and polarity, the port-9 cases, the
// composite set-up), the ISP/WAN block and the wake-up block.
#include "regfield_check.h"

namespace {

class CpuTest : public FieldTest {};

TEST_F(CpuTest, FieldsSitWhereTheChipHasThem)
{
	std::vector<FieldRow> rows = {
		{"enable", ACCESSORS(cpu_enable), 2, 16, 17, 0, 1, true},
		{"aware", ACCESSORS(cpu_cpuTagAwareEnable), 2, 16, 17, 5, 1},
		{"insert", ACCESSORS(cpu_tagInsertEnable), 2, 16, 17, 6, 1},
		{"remove", ACCESSORS(cpu_tagRemoveEnable), 2, 16, 17, 7, 1},
		{"learn", ACCESSORS(cpu_learnEnable), 2, 16, 17, 9, 1},
		{"check CRC", ACCESSORS(cpu_checkCrcEnable), 2, 16, 17, 10, 1, true},
		{"port number", ACCESSORS(cpu_portNumber), 2, 16, 17, 1, 4, false, 9},
	};
	for (u32 p : {0u, 4u, 8u})
		rows.push_back({"mask " + std::to_string(p), ACCESSORS(cpu_tagInsertMask, p), 2, 17, 17, p, 1});
	CheckAll(rows);
	CheckCodeBit(ACCESSORS(cpu_nonCpuPortRxCpuTag), 2, 16, 17, 8, 0, 3);
	CheckBitless(ACCESSORS(cpu_tagInsertMask, 9u));
	ExpectChecks({
		{"action 1", [] { return rtl8309n_cpu_nonCpuPortRxCpuTag_set(1); }},
		{"mask port 10", [] { return rtl8309n_cpu_tagInsertMask_set(10, 1); }},
		{"port_set port 9", [] { return rtl8309n_cpu_port_set(9, 1); }},
	});
}

TEST_F(CpuTest, PortSetConfiguresTheWholeBlock)
{
	for (u16 bg : {0x0000, 0xFFFF}) {
		for (u32 tag : {0u, 5u}) {
			SCOPED_TRACE(testing::Message() << "bg " << bg << " tag " << tag);
			set_sw(2, 17, 16, bg);
			set_sw(8, 3, 16, bg);
			ASSERT_EQ(RT_ERR_OK, rtl8309n_cpu_port_set(8, tag));
			// on: 5 aware, 7 remove, 9 learn; off: 0 disable, 10 no-CRC;
			// port 8 in bits 4..1; bits 15..11 and 8 untouched
			EXPECT_EQ((bg & 0xF900) | 0x02A0 | 8 << 1 | (tag ? 0x40 : 0), sw(2, 17, 16));
			EXPECT_EQ(bg & ~0x0009, sw(8, 3, 16)) << "802.1X off on the CPU port";
			u32 port = 0, insert = 9;
			ASSERT_EQ(RT_ERR_OK, rtl8309n_cpu_port_get(&port, &insert));
			EXPECT_EQ(Pair(8, tag ? 1 : 0), Pair(port, insert));
		}
	}
}

class IspWolTest : public FieldTest {};

TEST_F(IspWolTest, IspAndWakeUpRegisters)
{
	const u16 words[3] = {0x1100, 0x3322, 0x5544};
	u8 mac[6] = {};
	u32 port = 0;
	Check({"isp enable", ACCESSORS(isp_enable), 1, 16, 17, 0, 1});
	ExpectSet(rtl8309n_isp_wanPort_set(9), 1, 17, 17, 0x0009);
	set_sw(1, 17, 17, 0xFFF7);
	ExpectGot(rtl8309n_isp_wanPort_get(&port), port, 7u, "bits 3..0");
	ExpectSet(rtl8309n_isp_mac_set(words), 1, 17, 20, 0x5544);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_isp_mac_get(mac));
	EXPECT_EQ((std::vector<u8>{0x00, 0x11, 0x22, 0x33, 0x44, 0x55}), std::vector<u8>(mac, mac + 6));
	u32 en = 9, m1 = 9, m2 = 9, f1 = 9, f2 = 9;
	set_sw(7, 14, 20, 0xFFF0);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_enable_set(0, 1));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_linkchngEnable_set(1, 0x1FF));
	EXPECT_EQ(Pair(0xFFF6, 0x01FF), Pair(sw(7, 14, 20), sw(7, 14, 21)));
	set_sw(7, 14, 25, 0x0004);  // frame wake-up status, read only
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_frameEnable_set(1, 0x101, 0x0F0, 1, 0));
	EXPECT_EQ((std::vector<Pair>{{7, 20}, {7, 23}, {7, 24}, {7, 25}}), DataWrites());
	EXPECT_EQ(Pair(0xFFFE, 0x0005), Pair(sw(7, 14, 20), sw(7, 14, 25)));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_wkp_frameEnable_get(&en, &m1, &m2, &f1, &f2));
	EXPECT_EQ((Vals{1, 0x101, 0x0F0, 1, 0}), (Vals{en, m1, m2, f1, f2}));
	ExpectGot(rtl8309n_wkp_frameStatus_get(&en), en, 1u);
	ExpectChecks({
		{"wan port 10", [] { return rtl8309n_isp_wanPort_set(10); }},
		{"wkp enable 2", [] { return rtl8309n_wkp_enable_set(0, 2); }},
		{"link mask 0x200", [] { return rtl8309n_wkp_linkchngEnable_set(1, 0x200); }},
	});
}

}  // namespace
