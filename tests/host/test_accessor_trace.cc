// Named accessors against the raw primitive calls they stand for: from the
// same chip state, each pair must put the same transactions on the bus, in
// the same order, return the same result and leave the same register value.
#include "chip_fixture.h"

namespace {

struct TracePair {
	std::string name;
	std::function<s32()> accessor, raw;
	u32 addr, page, reg;	// the switch register both update
	u16 bit;		// the one bit of it they change
	bool set;		// ... to 1, else to 0
};

class AccessorTraceTest : public ChipTest {
protected:
	// @call's trace and result, run on a copy of @start.
	std::pair<Trace, s32> Run(const rtl8309n_sim &start, const std::function<s32()> &call)
	{
		sim() = start;
		ClearTrace();
		s32 ret = call();
		return {trace(), ret};
	}
};

TEST_F(AccessorTraceTest, SameTraceAsTheRawBitWrite)
{
	std::vector<TracePair> rows = {
		{"cpu_enable_set(1): clears the CPU-port disable bit",
		 [] { return rtl8309n_cpu_enable_set(RTL8309N_ENABLED); },
		 [] { return rtl8309n_regbit_set(2, 16, 0, 17, 0); }, 2, 17, 16, 0x0001, false},
		{"vlan_igrFilterEnable_set(1): clears the filter-off bit",
		 [] { return rtl8309n_vlan_igrFilterEnable_set(RTL8309N_ENABLED); },
		 [] { return rtl8309n_regbit_set(0, 16, 1, 16, 0); }, 0, 16, 16, 0x0002, false},
		{"dot1x_macBased_set(1): sets the MAC-based direction bit",
		 [] { return rtl8309n_dot1x_macBased_set(1); },
		 [] { return rtl8309n_regbit_set(0, 16, 1, 15, 1); }, 0, 15, 16, 0x0002, true},
	};
	for (u32 p : {0u, 5u, 8u})
		rows.push_back({"dot1x_macBasedEnable_set(" + std::to_string(p) + ", 1)",
				[p] { return rtl8309n_dot1x_macBasedEnable_set(p, RTL8309N_ENABLED); },
				[p] { return rtl8309n_regbit_set(p, 16, 3, 3, 1); }, p, 3, 16, 0x0008, true});

	for (const auto &r : rows) {
		// Power-on page selection, then a switch page and PHY pages left
		// behind by earlier traffic: page reads must agree too.
		for (bool scrambled : {false, true}) {
			for (u16 bg : {0x0000, 0xFFFF}) {
				SCOPED_TRACE(testing::Message() << r.name << " scrambled " << scrambled << " bg " << bg);
				rtl8309n_sim start;
				rtl8309n_sim_init(&start);
				if (scrambled) {
					start.pagectl = 0x3405;
					for (u16 &pg : start.phy_page)
						pg = 0x1203;
				}
				start.sw[r.addr][r.page][r.reg] = bg;
				const u16 want = r.set ? bg | r.bit : bg & ~r.bit;

				auto [named, named_ret] = Run(start, r.accessor);
				EXPECT_EQ(want, sw(r.addr, r.page, r.reg));
				auto [raw, raw_ret] = Run(start, r.raw);
				EXPECT_EQ(want, sw(r.addr, r.page, r.reg));
				EXPECT_EQ(raw, named);
				EXPECT_EQ(Pair(RT_ERR_OK, RT_ERR_OK), Pair(named_ret, raw_ret));
				ASSERT_FALSE(named.empty());
				EXPECT_EQ(W(r.addr, r.reg, want), named.back());
			}
		}
	}
}

// Port 9 has no SMI address: neither call reaches the bus, but the 802.1X
// enable accepts the port while the primitive refuses it.
TEST_F(AccessorTraceTest, PortNineDiffersOnlyInTheResult)
{
	ExpectChecks({
		{"dot1x_macBasedEnable_set(9, 1)",
		 [] { return rtl8309n_dot1x_macBasedEnable_set(9, RTL8309N_ENABLED); }, RT_ERR_OK},
		{"regbit_set(9, 16, 3, 3, 1)", [] { return rtl8309n_regbit_set(9, 16, 3, 3, 1); }},
	});
}

}  // namespace
