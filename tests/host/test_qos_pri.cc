// QoS priorities: field placement (reversed queue map, interleaved weights,
// per-source disable bits), the queue count and soft reset, and the quirks of
// the 802.1Q port priority and the IP-address priority.
#include "regfield_check.h"

#include <cstring>

namespace {

class QosPriTest : public FieldTest {};

TEST_F(QosPriTest, FieldsSitWhereTheChipHasThem)
{
	std::vector<FieldRow> rows;
	auto add = [&rows](std::string name, u32 i, auto set, auto get, u32 addr, u32 reg,
			   u32 page, u32 lsb, u32 width, bool inverted = false) {
		rows.push_back({name + " " + std::to_string(i), set, get, addr, reg, page, lsb,
				width, inverted, 0});
	};
	const u32 src_bit[8] = {0, 3, 4, 2, 1, 0, 0, 0};  // by code; codes 0, 5, 6 have none
	for (u32 p : {0u, 8u}) {
		add("remark enable, port", p, ACCESSORS(qos_1pRemarkEnable, p), p, 16, 10, 5, 1);
		add("port priority, port", p, ACCESSORS(qos_portPri, p), p, 17, 10, 0, 2);
		for (u32 i = 0; i < 4; i++) {  // queue map: priority 0 in the top bits
			add("map of priority", i, ACCESSORS(qos_priToQueMap, p, i), 6, 17 + p, 16,
			    6 - 2 * i, 2);
			add("strict queue", i, ACCESSORS(qos_queueStrictPriEnable, p, i), p,
			    17 + i / 2, 9, 7 + 8 * (i % 2), 1);
		}
		for (u32 code : {1u, 2u, 3u, 4u, 7u})
			add("source", code, ACCESSORS(qos_priSrcEnable, p, code), p, 16, 10,
			    src_bit[code], 1, true);
	}
	for (u32 i = 0; i < 4; i++)
		add("remark", i, ACCESSORS(qos_1pRemark, i), 6, 16, 16, 3 * i, 3);
	for (u32 t : {0u, 5u, 7u})
		add("1p remap", t, ACCESSORS(qos_1pPriRemap, t), 5, 18, 16, 2 * t, 2);
	for (u32 d : {0u, 7u, 8u, 42u, 63u})
		add("dscp", d, ACCESSORS(qos_dscpPriRemap, d), 5, 19 + d / 8, 16, 2 * (d % 8), 2);
	for (u32 e : {0u, 1u}) {
		add("ip enable", e, ACCESSORS(qos_ipAddrPriEnable, e), 4, 22, 16, 2 + 4 * e, 1);
		add("ip priority", e, ACCESSORS(qos_ipAddrPri, e), 4, 22, 16, 4 * e, 2);
	}
	CheckAll(rows);
	for (u32 code : {0u, 5u, 6u})
		CheckBitless(ACCESSORS(qos_priSrcEnable, 8u, code));

	u32 v = 9;
	CheckRefused({
		{"map port 9", [] { return rtl8309n_qos_priToQueMap_set(9, 0, 0); }},
		{"map priority 4", [] { return rtl8309n_qos_priToQueMap_set(0, 4, 0); }},
		{"source code 8", [] { return rtl8309n_qos_priSrcEnable_set(0, 8, 1); }},
		{"source port 9", [] { return rtl8309n_qos_priSrcEnable_set(9, 0, 1); }},
		{"1p remap tag 8", [&] { return rtl8309n_qos_1pPriRemap_get(8, &v); }},
		{"dscp 64", [] { return rtl8309n_qos_dscpPriRemap_set(64, 0); }},
		{"remark priority 4", [] { return rtl8309n_qos_1pRemark_set(4, 0); }},
		{"ip entry 2", [] { return rtl8309n_qos_ipAddrPriEnable_set(2, 1); }},
		{"strict queue 4", [] { return rtl8309n_qos_queueStrictPriEnable_set(0, 4, 1); }},
	});
}

TEST_F(QosPriTest, QueueCountEndsWithSelfClearingSoftReset)
{
	CheckRefused({
		{"0 queues", [] { return rtl8309n_qos_queueNum_set(0); }},
		{"5 queues", [] { return rtl8309n_qos_queueNum_set(5); }},
	});
	set_sw(5, 16, 16, 0xFFF0);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_queueNum_set(4));
	EXPECT_EQ(0xFFF3, sw(5, 16, 16));
	EXPECT_EQ(W(0, 16, 0x0002), trace().back()) << "soft reset is the last write";
	EXPECT_EQ(0x0002, sw(0, 14, 16));

	u32 n = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_queueNum_get(&n));
	EXPECT_EQ(4u, n);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_regbit_get(0, 16, 1, 14, &n));
	EXPECT_EQ(0u, n) << "the chip clears the reset bit";
}

TEST_F(QosPriTest, DotQPortPriorityClearsBitTwoFirst)
{
	u32 pri = 9;

	set_sw(3, 10, 18, 0xFFFF);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_1QPortPri_set(3, 2));
	EXPECT_EQ(0xFFFA, sw(3, 10, 18));
	ASSERT_EQ(18u, trace().size()) << "two separate updates";
	EXPECT_EQ(W(3, 18, 0xFFFB), trace()[8]) << "bit 2 cleared first, on its own";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_1QPortPri_get(3, &pri));
	EXPECT_EQ(2u, pri);

	// The priority is OR-ed in unmasked: 5 lands on bit 2, which the
	// getter then refuses to interpret.
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_1QPortPri_set(3, 5));
	EXPECT_EQ(0xFFFD, sw(3, 10, 18));
	ClearTrace();
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_qos_1QPortPri_get(3, &pri));
	EXPECT_EQ(3u, trace().size()) << "fails after reading";
	CheckRefused({
		{"port 9", [] { return rtl8309n_qos_1QPortPri_set(9, 0); }},
		{"get port 9", [&] { return rtl8309n_qos_1QPortPri_get(9, &pri); }},
	});
}

TEST_F(QosPriTest, IpEntries)
{
	set_sw(4, 16, 22, 0x000F);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_ipAddrPri_set(RTL8309N_QOS_IP_ENTRY_B, -1));
	EXPECT_EQ(0xFFFF, sw(4, 16, 22)) << "compared signed: a negative priority spills over";

	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_ipAddr_set(1, 0xC0A80001, 0xFFFFFF00));  // entry B
	Trace data;
	for (const Txn &t : trace())
		if (t.op == 'W' && t.reg != 31)
			data.push_back(t);
	EXPECT_EQ((Trace{W(4, 27, 0x0001), W(4, 28, 0xC0A8), W(4, 29, 0xFF00), W(4, 30, 0xFFFF)}),
		  data);
	u32 addr = 0, mask = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_ipAddr_get(RTL8309N_QOS_IP_ENTRY_B, &addr, &mask));
	EXPECT_EQ(0xC0A80001u, addr);
	EXPECT_EQ(0xFFFFFF00u, mask);
	CheckRefused({
		{"priority 4", [] { return rtl8309n_qos_ipAddrPri_set(0, 4); }},
		{"address entry 2", [] { return rtl8309n_qos_ipAddr_set(2, 0, 0); }},
		{"address get null", [&] { return rtl8309n_qos_ipAddr_get(0, &addr, nullptr); }},
	});
}

TEST_F(QosPriTest, MultiFieldWeights)
{
	rtl8309n_qos_priArbitPara_t arb = {{1, 2, 3, 0}}, arb_out = {{9, 9, 9, 9}};
	set_sw(5, 16, 17, 0xAB00);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_priSrcArbit_set(&arb));
	EXPECT_EQ(0xAB00 | 1 | 0 << 2 | 2 << 4 | 3 << 6, sw(5, 16, 17)) << "slots: 0, 3, 1, 2";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_priSrcArbit_get(&arb_out));
	EXPECT_EQ(0, memcmp(&arb, &arb_out, sizeof(arb)));

	rtl8309n_qos_queueWeight wrr = {{127, 0, 1, 2}};
	for (u16 bg : {0x0000, 0xFFFF}) {
		set_sw(6, 9, 17, bg);
		set_sw(6, 9, 18, bg);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_queueWrr_set(6, wrr));
		EXPECT_EQ((bg & 0x8080) | 0x007F, sw(6, 9, 17)) << "strict flags kept";
		EXPECT_EQ((bg & 0x8080) | 0x0201, sw(6, 9, 18));
		rtl8309n_qos_queueWeight out = {{9, 9, 9, 9}};
		ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_queueWrr_get(6, &out));
		EXPECT_EQ(0, memcmp(&wrr, &out, sizeof(wrr)));
	}

	rtl8309n_qos_priArbitPara_t bad_arb = {{0, 0, 0, 4}};
	rtl8309n_qos_queueWeight bad_wrr = {{127, 0, 1, 128}};
	CheckRefused({
		{"arbitration weight 4", [&] { return rtl8309n_qos_priSrcArbit_set(&bad_arb); }},
		{"arbitration null", [] { return rtl8309n_qos_priSrcArbit_set(nullptr); }},
		{"WRR weight 128", [&] { return rtl8309n_qos_queueWrr_set(0, bad_wrr); }},
		{"WRR port 9", [&] { return rtl8309n_qos_queueWrr_set(9, wrr); }},
	});
}

}  // namespace
