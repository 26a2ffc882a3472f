// QoS bandwidth: rate fields and bounds, leaky-bucket and IFG polarity per
// direction, queue flow control bit layout (port 8 in register 24) and the
// whole-register thresholds.
#include "regfield_check.h"

namespace {

class QosBwTest : public FieldTest {};

TEST_F(QosBwTest, FieldsSitWhereTheChipHasThem)
{
	const u32 IN = RTL8309N_QOS_INGRESS, EG = RTL8309N_QOS_EGRESS;
	std::vector<FieldRow> rows = {
		{"ingress flow control", ACCESSORS(qos_igrFlcEnable), 7, 18, 16, 0, 1, false, 0},
	};
	u32 port = 0;
	auto add = [&rows, &port](std::string name, auto set, auto get, u32 addr, u32 reg,
				  u32 page, u32 lsb, bool inverted, u32 width = 1, u32 max = 0) {
		rows.push_back({name + " port " + std::to_string(port), set, get, addr, reg, page,
				lsb, width, inverted, max});
	};
	for (u32 p : {0u, 1u, 8u}) {
		port = p;
		for (u32 dir : {IN, EG})  // rate calls take (port, value, direction)
			add("rate",
			    [p, dir](u32 v) { return rtl8309n_qos_portRate_set(p, v, dir); },
			    [p, dir](u32 *o) { return rtl8309n_qos_portRate_get(p, o, dir); }, p,
			    dir == IN ? 28 : 26, 9, 0, false, 12, p == 1 ? 1600 : 3200);
		add("in IFG", ACCESSORS(qos_portRate_IfgIncludeEnable, IN, p), p, 27, 9, 1, false);
		add("eg IFG", ACCESSORS(qos_portRate_IfgIncludeEnable, EG, p), p, 16, 9, 3, true);
		add("in bucket", ACCESSORS(qos_portLeakyBktEnable, p, IN), p, 27, 9, 0, true);
		add("eg bucket", ACCESSORS(qos_portLeakyBktEnable, p, EG), p, 16, 9, 2, false);
		add("q2 bucket", ACCESSORS(qos_queueLeakyBktEnable, p, 2u), p, 16, 9, 0, false);
		add("q3 bucket", ACCESSORS(qos_queueLeakyBktEnable, p, 3u), p, 16, 9, 1, false);
		add("dsc flc", ACCESSORS(qos_portDscFlcEnable, p), 7, 23, 16, p, true);
		add("egr flc", ACCESSORS(qos_egrFlcEnable, p), 7, 24, 16, p, true);
	}
	// Queue flow control: four disable bits per port; port 8 in register 24.
	const struct { u32 port, reg, lsb; } flc[] = {
		{0, 25, 0}, {3, 25, 12}, {4, 26, 0}, {6, 26, 8}, {7, 26, 12}, {8, 24, 12},
	};
	for (const auto &f : flc) {
		port = f.port;
		for (u32 q = 0; q < 4; q++)
			add("queue flc " + std::to_string(q),
			    ACCESSORS(qos_queueFlcEnable, f.port, q), 7, f.reg, 16, f.lsb + q,
			    true);
	}
	CheckAll(rows);

	u32 v;
	CheckRefused({
		{"rate port 9", [] { return rtl8309n_qos_portRate_set(9, 0, 0); }},
		{"rate direction 2", [] { return rtl8309n_qos_portRate_set(0, 0, 2); }},
		{"IFG direction 2",
		 [] { return rtl8309n_qos_portRate_IfgIncludeEnable_set(2, 0, 1); }},
		{"IFG port 9", [] { return rtl8309n_qos_portRate_IfgIncludeEnable_set(0, 9, 1); }},
		{"bucket queue 1", [] { return rtl8309n_qos_queueLeakyBktEnable_set(0, 1, 1); }},
		{"flow control queue 4", [] { return rtl8309n_qos_queueFlcEnable_set(0, 4, 1); }},
		{"flow control port 9", [&] { return rtl8309n_qos_queueFlcEnable_get(9, 0, &v); }},
		{"egress port 9", [] { return rtl8309n_qos_egrFlcEnable_set(9, 1); }},
	});
}

// Queue rates and thresholds own their registers: plain writes, no read.
TEST_F(QosBwTest, WholeRegisterWrites)
{
	const struct {
		u32 port, q, kind, value, reg, page, read_mask;  // kind 9: a queue rate
	} cases[] = {
		{3, 2, 9, 1600, 21, 9, 0x0FFF}, {8, 3, 9, 3200, 22, 9, 0x0FFF},
		{5, 0, 0, 127, 16, 11, 0xFFFF}, {5, 2, 1, 127, 21, 11, 0xFFFF},
		{5, 1, 2, 127, 18, 12, 0xFFFF}, {5, 3, 3, 127, 23, 12, 0xFFFF},
	};
	for (const auto &c : cases) {
		SCOPED_TRACE(c.reg);
		auto set = [&c] {
			return c.kind == 9 ? rtl8309n_qos_queueRate_set(c.port, c.q, c.value)
					   : rtl8309n_qos_queueFlcThr_set(c.port, c.q, c.kind, c.value);
		};
		set_sw(c.port, c.page, c.reg, 0xF000);
		ClearTrace();
		ASSERT_EQ(RT_ERR_OK, set());
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
	EXPECT_EQ(0x2345, sw(2, 11, 24));
	EXPECT_EQ(0x0678, sw(2, 11, 25));
	EXPECT_EQ(1, sw(2, 13, 17));
	EXPECT_EQ(2, sw(2, 13, 18));
	u32 a = 0, b = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_qos_portFlcThr_get(2, &a, &b, 1));
	EXPECT_EQ(0x2345u, a);
	EXPECT_EQ(0x0678u, b);

	CheckRefused({
		{"rate queue 1", [] { return rtl8309n_qos_queueRate_set(0, 1, 1); }},
		{"rate port 3 1601", [] { return rtl8309n_qos_queueRate_set(3, 2, 1601); }},
		{"rate port 9", [] { return rtl8309n_qos_queueRate_set(9, 2, 1); }},
		{"threshold 128", [] { return rtl8309n_qos_queueFlcThr_set(0, 0, 0, 128); }},
		{"kind 4", [] { return rtl8309n_qos_queueFlcThr_set(0, 0, 4, 1); }},
		{"threshold get null", [] { return rtl8309n_qos_queueFlcThr_get(0, 0, 0, nullptr); }},
		{"port kind 2", [] { return rtl8309n_qos_portFlcThr_set(0, 1, 1, 2); }},
		{"port get null", [&] { return rtl8309n_qos_portFlcThr_get(0, &a, nullptr, 0); }},
	});
}

}  // namespace
