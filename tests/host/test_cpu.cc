// CPU port block: field placement and polarity, the port-9 cases and the
// composite CPU port set-up.
#include "regfield_check.h"

namespace {

class CpuTest : public FieldTest {};

TEST_F(CpuTest, FieldsSitWhereTheChipHasThem)
{
	std::vector<FieldRow> rows = {
		{"enable", ACCESSORS(cpu_enable), 2, 16, 17, 0, 1, true, 0},
		{"aware", ACCESSORS(cpu_cpuTagAwareEnable), 2, 16, 17, 5, 1, false, 0},
		{"insert", ACCESSORS(cpu_tagInsertEnable), 2, 16, 17, 6, 1, false, 0},
		{"remove", ACCESSORS(cpu_tagRemoveEnable), 2, 16, 17, 7, 1, false, 0},
		{"learn", ACCESSORS(cpu_learnEnable), 2, 16, 17, 9, 1, false, 0},
		{"check CRC", ACCESSORS(cpu_checkCrcEnable), 2, 16, 17, 10, 1, true, 0},
		{"port number", ACCESSORS(cpu_portNumber), 2, 16, 17, 1, 4, false, 9},
	};
	for (u32 p : {0u, 4u, 8u})
		rows.push_back({"mask " + std::to_string(p), ACCESSORS(cpu_tagInsertMask, p), 2,
				17, 17, p, 1, false, 0});
	CheckAll(rows);
}

TEST_F(CpuTest, ActionCodesAndBitlessPortNine)
{
	u32 v = 9;

	CheckCodeBit(ACCESSORS(cpu_nonCpuPortRxCpuTag), 2, 16, 17, 8, 0, 3);
	CheckBitless(ACCESSORS(cpu_tagInsertMask, 9u));
	CheckRefused({
		{"action 1", [] { return rtl8309n_cpu_nonCpuPortRxCpuTag_set(1); }},
		{"action 2", [] { return rtl8309n_cpu_nonCpuPortRxCpuTag_set(2); }},
		{"mask port 10", [] { return rtl8309n_cpu_tagInsertMask_set(10, 1); }},
		{"port_set port 9", [] { return rtl8309n_cpu_port_set(9, 1); }},
		{"port_get null", [&] { return rtl8309n_cpu_port_get(&v, nullptr); }},
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
			u16 expect = (bg & 0xF900) | 0x02A0 | 8 << 1 | (tag ? 0x40 : 0);
			EXPECT_EQ(expect, sw(2, 17, 16));
			EXPECT_EQ(bg & ~0x0009, sw(8, 3, 16)) << "802.1X off on the CPU port";

			u32 port = 0, insert = 9;
			ASSERT_EQ(RT_ERR_OK, rtl8309n_cpu_port_get(&port, &insert));
			EXPECT_EQ(8u, port);
			EXPECT_EQ(tag ? 1u : 0u, insert);
		}
	}
}

}  // namespace
