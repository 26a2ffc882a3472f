// QoS and rate API: check order, QoS initialisation, queue maps, rate limits.
#include "api_test.h"

namespace {

class ApiQosTest : public ApiTest {};

rtk_priority_select_t g_sel;
rtk_qos_pri2queue_t g_map;
u32 g_a;

TEST_F(ApiQosTest, ChecksComeFirstInOrderWithoutBusTraffic)
{
	ExpectChecks({
		{"init 0 queues writes nothing", [] { return rtk_qos_init(0); }, RT_ERR_FAILED},
		{"priSrc port before type", [] { return rtk_qos_priSrcEnable_set(9, 5, 1); }, RT_ERR_PORT_ID},
		{"priSrc type 5", [] { return rtk_qos_priSrcEnable_set(8, 5, 1); }, RT_ERR_INPUT},
		{"priSrc_get null left to the layer", [] { return rtk_qos_priSrcEnable_get(0, 4, nullptr); },
		 RT_ERR_FAILED},
		{"priSel null", [] { return rtk_qos_priSel_set(nullptr); }, RT_ERR_NULL_POINTER},
		{"priSel weight 4", [] { g_sel = {0, 0, 0, 4}; return rtk_qos_priSel_set(&g_sel); },
		 RT_ERR_INPUT},
		{"1pRemap priority before tag", [] { return rtk_qos_1pPriRemap_set(8, 4); },
		 RT_ERR_QOS_1P_PRIORITY},
		{"1pRemap tag 8", [] { return rtk_qos_1pPriRemap_set(8, 3); }, RT_ERR_VLAN_PRIORITY},
		{"1pRemap_get pointer before tag", [] { return rtk_qos_1pPriRemap_get(9, nullptr); },
		 RT_ERR_NULL_POINTER},
		{"1pRemap_get tag 9", [] { return rtk_qos_1pPriRemap_get(9, &g_a); }, RT_ERR_VLAN_PRIORITY},
		{"1pRemap_get tag 8 passes to the layer", [] { return rtk_qos_1pPriRemap_get(8, &g_a); },
		 RT_ERR_FAILED},
		{"dscpRemap dscp before priority", [] { return rtk_qos_dscpPriRemap_set(64, 5); },
		 RT_ERR_QOS_DSCP_VALUE},
		{"dscpRemap priority 5", [] { return rtk_qos_dscpPriRemap_set(63, 5); },
		 RT_ERR_QOS_1P_PRIORITY},
		{"dscpRemap priority 4 passes to the layer", [] { return rtk_qos_dscpPriRemap_set(63, 4); },
		 RT_ERR_FAILED},
		{"dscpRemap_get dscp before pointer", [] { return rtk_qos_dscpPriRemap_get(64, nullptr); },
		 RT_ERR_QOS_DSCP_VALUE},
		{"portPri port 9", [] { return rtk_qos_portPri_set(9, 4); }, RT_ERR_PORT_ID},
		{"portPri priority 4", [] { return rtk_qos_portPri_set(8, 4); }, RT_ERR_QOS_1P_PRIORITY},
		{"priMap 0 queues before pointer", [] { return rtk_qos_priMap_set(0, 0, nullptr); },
		 RT_ERR_QUEUE_NUM},
		{"priMap null", [] { return rtk_qos_priMap_set(0, 4, nullptr); }, RT_ERR_NULL_POINTER},
		{"priMap_get 0 queues", [] { return rtk_qos_priMap_get(0, 0, &g_map); }, RT_ERR_QUEUE_NUM},
		{"remarkEnable port 9", [] { return rtk_qos_1pRemarkEnable_set(9, 1); }, RT_ERR_PORT_ID},
		{"remark priority before value", [] { return rtk_qos_1pRemark_set(4, 9); },
		 RT_ERR_QOS_1P_PRIORITY},
		{"remark value 9", [] { return rtk_qos_1pRemark_set(3, 9); }, RT_ERR_VLAN_PRIORITY},
		{"remark value 8 passes to the layer", [] { return rtk_qos_1pRemark_set(3, 8); },
		 RT_ERR_FAILED},
		{"igr port 9", [] { return rtk_rate_igrBandwidthCtrlRate_set(9, 0, 0); }, RT_ERR_PORT_ID},
		{"igr rate before flag", [] { return rtk_rate_igrBandwidthCtrlRate_set(3, 1601, 2); },
		 RT_ERR_INBW_RATE},
		{"igr port 8 over 3200", [] { return rtk_rate_igrBandwidthCtrlRate_set(8, 3201, 0); },
		 RT_ERR_INBW_RATE},
		{"igr flag 2", [] { return rtk_rate_igrBandwidthCtrlRate_set(3, 1600, 2); }, RT_ERR_ENABLE},
		{"egr port 0 over 3200", [] { return rtk_rate_egrBandwidthCtrlRate_set(0, 3201, 0); },
		 RT_ERR_QOS_EBW_RATE},
		{"egr flag 2", [] { return rtk_rate_egrBandwidthCtrlRate_set(0, 3200, 2); }, RT_ERR_ENABLE},
		{"egr_get null flag", [] { return rtk_rate_egrBandwidthCtrlRate_get(1, &g_a, nullptr); },
		 RT_ERR_NULL_POINTER},
	});
}

// Queue count, even priority maps on all ports, flow control, soft reset last.
TEST_F(ApiQosTest, InitWritesTheWholeQosSetup)
{
	const struct {
		u32 n;
		s32 ret;
		u16 qnum, map, reg24, reg25, on_bits;
	} cases[] = {
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
		EXPECT_EQ(c.on_bits ? 0 : 0x1FF, sw(7, 16, 23)) << "descriptor flow control";
		EXPECT_EQ(c.reg24, sw(7, 16, 24)) << "egress and port 8 queue flow control";
		EXPECT_EQ(c.reg25, sw(7, 16, 25));
		EXPECT_EQ(c.reg25, sw(7, 16, 26));
		EXPECT_EQ(c.on_bits, sw(7, 16, 18) & 1) << "ingress flow control";
		EXPECT_EQ(c.on_bits << 1, sw(0, 14, 16) & 2) << "soft reset";
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
	EXPECT_EQ((std::vector<u32>{0, 1, 3, 3}), std::vector<u32>(g_map.pri2queue, g_map.pri2queue + 4));
}

TEST_F(ApiQosTest, SourcesWeightsRemapsReachTheirFields)
{
	u32 v = 9;

	for (u32 type = 0; type < PRI_SRC_END; type++) {
		SCOPED_TRACE(type);
		ASSERT_EQ(RT_ERR_OK, rtk_qos_priSrcEnable_set(6, type, 0));
		EXPECT_EQ(1u << type, sw(6, 10, 16)) << "source type t is disable bit t";
		ASSERT_EQ(RT_ERR_OK, rtk_qos_priSrcEnable_get(6, type, &v));
		EXPECT_EQ(0u, v);
		ASSERT_EQ(RT_ERR_OK, rtk_qos_priSrcEnable_set(6, type, 1));
		EXPECT_EQ(0u, sw(6, 10, 16));
	}

	g_sel = {1, 2, 3, 0};
	ASSERT_EQ(RT_ERR_OK, rtk_qos_priSel_set(&g_sel));
	EXPECT_EQ(0xE1, sw(5, 16, 17)) << "weights 0..3 in record order";
	rtk_priority_select_t got = {};
	ASSERT_EQ(RT_ERR_OK, rtk_qos_priSel_get(&got));
	EXPECT_EQ(3u, got.dscp_pri);

	const struct {
		const char *name;
		std::function<s32()> set;
		std::function<s32(u32 *)> get;
		u32 addr, page, reg, shift, value;
	} rows[] = {
		{"1p remap tag 7 -> 2", [] { return rtk_qos_1pPriRemap_set(7, 2); },
		 [](u32 *p) { return rtk_qos_1pPriRemap_get(7, p); }, 5, 16, 18, 14, 2},
		{"dscp 63 -> 3", [] { return rtk_qos_dscpPriRemap_set(63, 3); },
		 [](u32 *p) { return rtk_qos_dscpPriRemap_get(63, p); }, 5, 16, 26, 14, 3},
		{"remark priority 3 -> 7", [] { return rtk_qos_1pRemark_set(3, 7); },
		 [](u32 *p) { return rtk_qos_1pRemark_get(3, p); }, 6, 16, 16, 9, 7},
		{"port 2 remark on", [] { return rtk_qos_1pRemarkEnable_set(2, 1); },
		 [](u32 *p) { return rtk_qos_1pRemarkEnable_get(2, p); }, 2, 10, 16, 5, 1},
	};
	for (const auto &r : rows) {
		SCOPED_TRACE(r.name);
		ASSERT_EQ(RT_ERR_OK, r.set());
		EXPECT_EQ(r.value << r.shift, sw(r.addr, r.page, r.reg));
		ASSERT_EQ(RT_ERR_OK, r.get(&v));
		EXPECT_EQ(r.value, v);
	}
}

TEST_F(ApiQosTest, RateLimits)
{
	u32 rate = 0, ifg = 9;

	set_sw(8, 9, 27, 0x0001);
	ASSERT_EQ(RT_ERR_OK, rtk_rate_igrBandwidthCtrlRate_set(8, 3200, 1));
	EXPECT_EQ(3200, sw(8, 9, 28) & 0xFFF);
	EXPECT_EQ(0x0002, sw(8, 9, 27)) << "bucket on, gap included";
	ASSERT_EQ(RT_ERR_OK, rtk_rate_igrBandwidthCtrlRate_get(8, &rate, &ifg));
	EXPECT_EQ((std::vector<u32>{3200, 1}), (std::vector<u32>{rate, ifg}));

	ASSERT_EQ(RT_ERR_OK, rtk_rate_egrBandwidthCtrlRate_set(3, 1600, 1));
	EXPECT_EQ(1600, sw(3, 9, 26) & 0xFFF);
	EXPECT_EQ(0x0004, sw(3, 9, 16)) << "bucket on, the exclude-gap bit clear";
	ASSERT_EQ(RT_ERR_OK, rtk_rate_egrBandwidthCtrlRate_get(3, &rate, &ifg));
	EXPECT_EQ((std::vector<u32>{1600, 1}), (std::vector<u32>{rate, ifg}));
}

}  // namespace
