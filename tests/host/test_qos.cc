// QoS: priority field placement (reversed queue map, interleaved weights,
// per-source disable bits), queue count and soft reset, the 802.1Q port and
// IP-address priority quirks, bandwidth and flow control fields; the rtk_
// QoS and rate API over them.
#include "regfield_check.h"

#include <cstring>

namespace {

class QosPriTest : public FieldTest {};

TEST_F(QosPriTest, FieldsSitWhereTheChipHasThem)
{
	std::vector<FieldRow> rows;
	auto add = [&rows](std::string name, u32 i, auto set, auto get, u32 addr, u32 reg, u32 page, u32 lsb,
			   u32 width, bool inverted = false) {
		rows.push_back({name + " " + std::to_string(i), set, get, addr, reg, page, lsb, width, inverted});
	};
	const u32 src_bit[8] = {0, 3, 4, 2, 1, 0, 0, 0};  // by code; codes 0, 5, 6 have none
	for (u32 p : {0u, 8u}) {
		add("remark enable, port", p, ACCESSORS(qos_1pRemarkEnable, p), p, 16, 10, 5, 1);
		add("port priority, port", p, ACCESSORS(qos_portPri, p), p, 17, 10, 0, 2);
		for (u32 i = 0; i < 4; i++) {  // queue map: priority 0 in the top bits
			add("map of priority", i, ACCESSORS(qos_priToQueMap, p, i), 6, 17 + p, 16, 6 - 2 * i, 2);
			add("strict queue", i, ACCESSORS(qos_queueStrictPriEnable, p, i), p, 17 + i / 2, 9,
			    7 + 8 * (i % 2), 1);
		}
		for (u32 code : {1u, 2u, 3u, 4u, 7u})
			add("source", code, ACCESSORS(qos_priSrcEnable, p, code), p, 16, 10, src_bit[code], 1, true);
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
	ExpectChecks({
		{"map port 9", [] { return rtl8309n_qos_priToQueMap_set(9, 0, 0); }},
		{"source code 8", [] { return rtl8309n_qos_priSrcEnable_set(0, 8, 1); }},
		{"dscp 64", [] { return rtl8309n_qos_dscpPriRemap_set(64, 0); }},
		{"0 queues", [] { return rtl8309n_qos_queueNum_set(0); }},
		{"5 queues", [] { return rtl8309n_qos_queueNum_set(5); }},
		{"1Q port 9", [] { return rtl8309n_qos_1QPortPri_set(9, 0); }},
		{"ip address get null", [&] { return rtl8309n_qos_ipAddr_get(0, &v, nullptr); }},
	});
}

TEST_F(QosPriTest, QueueCountEndsWithSelfClearingSoftReset)
{
	u32 n = 0;
	set_sw(5, 16, 16, 0xFFF0);
	ExpectSet(rtl8309n_qos_queueNum_set(4), 5, 16, 16, 0xFFF3);
	EXPECT_EQ(W(0, 16, 0x0002), trace().back()) << "soft reset is the last write";
	EXPECT_EQ(0x0002, sw(0, 14, 16));
	ExpectGot(rtl8309n_qos_queueNum_get(&n), n, 4u);
	ExpectGot(rtl8309n_regbit_get(0, 16, 1, 14, &n), n, 0u, "the chip clears the reset bit");
}

TEST_F(QosPriTest, DotQPortPriorityAndIpEntryQuirks)
{
	u32 pri = 9;
	set_sw(3, 10, 18, 0xFFFF);
	ExpectSet(rtl8309n_qos_1QPortPri_set(3, 2), 3, 10, 18, 0xFFFA);
	ASSERT_EQ(18u, trace().size()) << "two separate updates";
	EXPECT_EQ(W(3, 18, 0xFFFB), trace()[8]) << "bit 2 cleared first, on its own";
	ExpectGot(rtl8309n_qos_1QPortPri_get(3, &pri), pri, 2u);
	// The priority is OR-ed in unmasked: 5 lands on bit 2, which the getter
	// then refuses to interpret.
	ExpectSet(rtl8309n_qos_1QPortPri_set(3, 5), 3, 10, 18, 0xFFFD);
	ClearTrace();
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_qos_1QPortPri_get(3, &pri));
	EXPECT_EQ(3u, trace().size()) << "fails after reading";
	set_sw(4, 16, 22, 0x000F);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_ipAddrPri_set(RTL8309N_QOS_IP_ENTRY_B, -1));
	EXPECT_EQ(0xFFFF, sw(4, 16, 22)) << "compared signed: a negative priority spills over";
	ClearTrace();
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_ipAddr_set(1, 0xC0A80001, 0xFFFFFF00));  // entry B
	EXPECT_EQ((std::vector<Pair>{{4, 27}, {4, 28}, {4, 29}, {4, 30}}), DataWrites());
	EXPECT_EQ((std::vector<u16>{0x0001, 0xC0A8, 0xFF00, 0xFFFF}),
		  (std::vector<u16>{sw(4, 16, 27), sw(4, 16, 28), sw(4, 16, 29), sw(4, 16, 30)}));
	u32 addr = 0, mask = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_ipAddr_get(RTL8309N_QOS_IP_ENTRY_B, &addr, &mask));
	EXPECT_EQ(Pair(0xC0A80001, 0xFFFFFF00), Pair(addr, mask));
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
	ExpectChecks({
		{"arbitration weight 4", [&] { return rtl8309n_qos_priSrcArbit_set(&bad_arb); }},
		{"WRR weight 128", [&] { return rtl8309n_qos_queueWrr_set(0, bad_wrr); }},
	});
}

class QosBwTest : public FieldTest {};

// Rate fields and bounds, leaky-bucket and IFG polarity per direction, queue
// flow control bit layout (port 8 in register 24).
TEST_F(QosBwTest, FieldsSitWhereTheChipHasThem)
{
	const u32 IN = RTL8309N_QOS_INGRESS, EG = RTL8309N_QOS_EGRESS;
	std::vector<FieldRow> rows = {{"ingress flow control", ACCESSORS(qos_igrFlcEnable), 7, 18, 16, 0, 1}};
	u32 port = 0;
	auto add = [&rows, &port](std::string name, auto set, auto get, u32 addr, u32 reg, u32 page, u32 lsb,
				  bool inverted, u32 width = 1, u32 max = 0) {
		rows.push_back({name + " port " + std::to_string(port), set, get, addr, reg, page, lsb, width,
				inverted, max});
	};
	for (u32 p : {0u, 1u, 8u}) {
		port = p;
		for (u32 dir : {IN, EG})  // rate calls take (port, value, direction)
			add("rate", [p, dir](u32 v) { return rtl8309n_qos_portRate_set(p, v, dir); },
			    [p, dir](u32 *o) { return rtl8309n_qos_portRate_get(p, o, dir); }, p, dir == IN ? 28 : 26, 9, 0,
			    false, 12, p == 1 ? 1600 : 3200);
		add("in IFG", ACCESSORS(qos_portRate_IfgIncludeEnable, IN, p), p, 27, 9, 1, false);
		add("eg IFG", ACCESSORS(qos_portRate_IfgIncludeEnable, EG, p), p, 16, 9, 3, true);
		add("in bucket", ACCESSORS(qos_portLeakyBktEnable, p, IN), p, 27, 9, 0, true);
		add("eg bucket", ACCESSORS(qos_portLeakyBktEnable, p, EG), p, 16, 9, 2, false);
		add("q2 bucket", ACCESSORS(qos_queueLeakyBktEnable, p, 2u), p, 16, 9, 0, false);
		add("q3 bucket", ACCESSORS(qos_queueLeakyBktEnable, p, 3u), p, 16, 9, 1, false);
		add("dsc flc", ACCESSORS(qos_portDscFlcEnable, p), 7, 23, 16, p, true);
		add("egr flc", ACCESSORS(qos_egrFlcEnable, p), 7, 24, 16, p, true);
	}
	// Queue flow control: four disable bits per port.
	const struct { u32 port, reg, lsb; } flc[] = {
		{0, 25, 0}, {3, 25, 12}, {4, 26, 0}, {6, 26, 8}, {7, 26, 12}, {8, 24, 12}};
	for (const auto &f : flc) {
		port = f.port;
		for (u32 q = 0; q < 4; q++)
			add("queue flc " + std::to_string(q), ACCESSORS(qos_queueFlcEnable, f.port, q), 7, f.reg, 16,
			    f.lsb + q, true);
	}
	CheckAll(rows);
	ExpectChecks({
		{"rate port 9", [] { return rtl8309n_qos_portRate_set(9, 0, 0); }},
		{"rate direction 2", [] { return rtl8309n_qos_portRate_set(0, 0, 2); }},
		{"bucket queue 1", [] { return rtl8309n_qos_queueLeakyBktEnable_set(0, 1, 1); }},
		{"flow control queue 4", [] { return rtl8309n_qos_queueFlcEnable_set(0, 4, 1); }},
	});
}

// Queue rates and thresholds own their registers: plain writes, no read.
TEST_F(QosBwTest, WholeRegisterWrites)
{
	const struct { u32 port, q, kind, value, reg, page, read_mask; } cases[] = {  // kind 9: a queue rate
		{3, 2, 9, 1600, 21, 9, 0x0FFF}, {8, 3, 9, 3200, 22, 9, 0x0FFF},
		{5, 2, 1, 127, 21, 11, 0xFFFF}, {5, 3, 3, 127, 23, 12, 0xFFFF},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.reg);
		set_sw(c.port, c.page, c.reg, 0xF000);
		ClearTrace();
		ASSERT_EQ(RT_ERR_OK, c.kind == 9 ? rtl8309n_qos_queueRate_set(c.port, c.q, c.value)
						 : rtl8309n_qos_queueFlcThr_set(c.port, c.q, c.kind, c.value));
		EXPECT_EQ(c.value, sw(c.port, c.page, c.reg));
		EXPECT_EQ(6u, trace().size());
		set_sw(c.port, c.page, c.reg, 0xBEEF);
		u32 out = 0;
		ASSERT_EQ(RT_ERR_OK, c.kind == 9 ? rtl8309n_qos_queueRate_get(c.port, c.q, &out)
						 : rtl8309n_qos_queueFlcThr_get(c.port, c.q, c.kind, &out));
		EXPECT_EQ(0xBEEF & c.read_mask, out);
	}
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_portFlcThr_set(2, 0x12345, 0x0678, 1));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_portFlcThr_set(2, 1, 2, 0));
	EXPECT_EQ((std::vector<u16>{0x2345, 0x0678, 1, 2}),
		  (std::vector<u16>{sw(2, 11, 24), sw(2, 11, 25), sw(2, 13, 17), sw(2, 13, 18)}));
	ExpectChecks({
		{"rate port 3 1601", [] { return rtl8309n_qos_queueRate_set(3, 2, 1601); }},
		{"threshold 128", [] { return rtl8309n_qos_queueFlcThr_set(0, 0, 0, 128); }},
		{"port kind 2", [] { return rtl8309n_qos_portFlcThr_set(0, 1, 1, 2); }},
	});
}

class ApiQosTest : public ChipTest {};

rtk_priority_select_t g_sel;
rtk_qos_pri2queue_t g_map;
u32 g_a;

TEST_F(ApiQosTest, ChecksComeFirstInOrderWithoutBusTraffic)
{
	ExpectChecks({
		{"init 0 queues writes nothing", [] { return rtk_qos_init(0); }},
		{"priSrc port before type", [] { return rtk_qos_priSrcEnable_set(9, 5, 1); }, RT_ERR_PORT_ID},
		{"priSrc type 5", [] { return rtk_qos_priSrcEnable_set(8, 5, 1); }, RT_ERR_INPUT},
		{"priSel weight 4", [] { g_sel = {0, 0, 0, 4}; return rtk_qos_priSel_set(&g_sel); }, RT_ERR_INPUT},
		{"1pRemap priority before tag", [] { return rtk_qos_1pPriRemap_set(8, 4); }, RT_ERR_QOS_1P_PRIORITY},
		{"1pRemap tag 8", [] { return rtk_qos_1pPriRemap_set(8, 3); }, RT_ERR_VLAN_PRIORITY},
		{"1pRemap_get tag 8 passes to the layer", [] { return rtk_qos_1pPriRemap_get(8, &g_a); }},
		{"dscpRemap dscp before priority", [] { return rtk_qos_dscpPriRemap_set(64, 5); }, RT_ERR_QOS_DSCP_VALUE},
		{"priMap 0 queues before pointer", [] { return rtk_qos_priMap_set(0, 0, nullptr); }, RT_ERR_QUEUE_NUM},
		{"remark priority before value", [] { return rtk_qos_1pRemark_set(4, 9); }, RT_ERR_QOS_1P_PRIORITY},
		{"igr rate before flag", [] { return rtk_rate_igrBandwidthCtrlRate_set(3, 1601, 2); }, RT_ERR_INBW_RATE},
		{"igr flag 2", [] { return rtk_rate_igrBandwidthCtrlRate_set(3, 1600, 2); }, RT_ERR_ENABLE},
		{"egr port 0 over 3200", [] { return rtk_rate_egrBandwidthCtrlRate_set(0, 3201, 0); }, RT_ERR_QOS_EBW_RATE},
	});
}

// Queue count, even priority maps on all ports, flow control, soft reset last.
TEST_F(ApiQosTest, InitWritesTheWholeQosSetup)
{
	const struct { u32 n; s32 ret; u16 qnum, map, reg24, reg25, on; } cases[] = {
		{0, RT_ERR_FAILED, 0, 0x00, 0xFFFF, 0xFFFF, 0},  // the kernel module's call
		{2, RT_ERR_OK, 1, 0x05, 0xCE00, 0xCCCC, 1},
		{4, RT_ERR_OK, 3, 0x1B, 0x0E00, 0x0000, 1},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.n);
		rtl8309n_sim_init(&sim());
		for (u32 reg : {24, 25, 26})
			set_sw(7, 16, reg, 0xFFFF);
		set_sw(7, 16, 23, 0x01FF);
		ClearTrace();
		EXPECT_EQ(c.ret, rtk_qos_init(c.n));
		EXPECT_EQ(c.qnum, sw(5, 16, 16) & 0x3);
		for (u32 port = 0; port <= 8; port++)
			EXPECT_EQ(c.map, sw(6, 16, 17 + port)) << "port " << port;
		EXPECT_EQ(c.on ? 0 : 0x1FF, sw(7, 16, 23)) << "descriptor flow control";
		EXPECT_EQ(c.reg24, sw(7, 16, 24)) << "egress and port 8 queue flow control";
		EXPECT_EQ(std::make_pair(c.reg25, c.reg25), std::make_pair(sw(7, 16, 25), sw(7, 16, 26)));
		EXPECT_EQ(c.on, sw(7, 16, 18) & 1) << "ingress flow control";
		EXPECT_EQ(c.on << 1, sw(0, 14, 16) & 2) << "soft reset";
		if (c.ret == RT_ERR_OK)
			EXPECT_EQ(W(0, 16, sw(0, 14, 16)), trace().back()) << "soft reset last";
		else
			EXPECT_TRUE(trace().empty());
	}
}

TEST_F(ApiQosTest, PriorityMapStopsAtTheFirstBadQueue)
{
	set_sw(6, 16, 21, 0xFF);
	g_map = {{0, 1, 2, 0}};
	EXPECT_EQ(RT_ERR_QUEUE_ID, rtk_qos_priMap_set(4, 2, &g_map));
	EXPECT_EQ(1, sw(5, 16, 16) & 0x3) << "two queues stay set";
	EXPECT_EQ(0x1F, sw(6, 16, 21)) << "priorities 0 and 1 written, 2 and 3 not";
	ASSERT_EQ(RT_ERR_OK, rtk_qos_priMap_get(4, 1, &g_map));
	EXPECT_EQ((Vals{0, 1, 3, 3}), Vals(g_map.pri2queue, g_map.pri2queue + 4));
}

TEST_F(ApiQosTest, SourcesWeightsRemapsReachTheirFields)
{
	u32 v = 9;
	for (u32 type = 0; type < PRI_SRC_END; type++) {
		SCOPED_TRACE(type);
		ASSERT_EQ(RT_ERR_OK, rtk_qos_priSrcEnable_set(6, type, 0));
		EXPECT_EQ(1u << type, sw(6, 10, 16)) << "source type t is disable bit t";
		ExpectGot(rtk_qos_priSrcEnable_get(6, type, &v), v, 0u);
		ExpectSet(rtk_qos_priSrcEnable_set(6, type, 1), 6, 10, 16, 0u);
	}
	g_sel = {1, 2, 3, 0};
	ExpectSet(rtk_qos_priSel_set(&g_sel), 5, 16, 17, 0xE1, "weights 0..3 in record order");
}

// The rate API switches the leaky bucket on and maps the gap flag per direction.
TEST_F(ApiQosTest, RateLimits)
{
	set_sw(8, 9, 27, 0x0001);
	ASSERT_EQ(RT_ERR_OK, rtk_rate_igrBandwidthCtrlRate_set(8, 3200, 1));
	EXPECT_EQ(Pair(3200, 0x0002), Pair(sw(8, 9, 28) & 0xFFF, sw(8, 9, 27)));
	ASSERT_EQ(RT_ERR_OK, rtk_rate_egrBandwidthCtrlRate_set(3, 1600, 1));
	EXPECT_EQ(Pair(1600, 0x0004), Pair(sw(3, 9, 26) & 0xFFF, sw(3, 9, 16)));
}

}  // namespace
