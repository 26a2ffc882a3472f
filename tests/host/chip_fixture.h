// Test bench shared by the host tests: the chip model behind the library's
// two SMI hooks, wired the way the kernel module's MDIO bridge wires them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

extern "C" {
#include "rtl8309n_asicdrv.h"
#include "rtl8309n_internal.h"
#include "rtk_api.h"
#include "rtl8309n_sim.h"
}

// One bus transaction as the library issued it: writes carry the hook's raw
// 32-bit argument, reads the value the hook stored.
struct Txn {
	char op;  // 'R' or 'W'
	uint32_t addr, reg, value;
	bool operator==(const Txn &o) const { return op == o.op && addr == o.addr && reg == o.reg && value == o.value; }
};
std::ostream &operator<<(std::ostream &os, const Txn &t);
using Trace = std::vector<Txn>;
using Pair = std::pair<u32, u32>;
using Vals = std::vector<u32>;

inline Txn W(uint32_t a, uint32_t r, uint32_t v) { return {'W', a, r, v}; }
inline Txn R(uint32_t a, uint32_t r, uint32_t v) { return {'R', a, r, v}; }

// A call that must return @expected before any bus traffic.
struct ArgCheck {
	std::string name;
	std::function<s32()> call;
	s32 expected = RT_ERR_FAILED;
};

// L2 test addresses and the buckets the chip's hash (mode 0) gives them.
inline u8 kMacA[6] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};	// fid 1: bucket 254
inline u8 kMacB[6] = {0x88, 0x75, 0x34, 0xA2, 0x0F, 0x0B};	// fid 0: bucket 96
inline u8 kMcast[6] = {0x01, 0x00, 0x5E, 0x00, 0x00, 0x01};
constexpr u32 kBucketA = 254, kBucketB = 96;
constexpr u32 Way(u32 bucket, u32 way) { return bucket + 512 * way; }

class ChipTest : public ::testing::Test {
protected:
	void SetUp() override;
	void TearDown() override;

	rtl8309n_sim &sim() { return *sim_; }
	// Transactions since the last ClearTrace().
	const Trace &trace() const;
	void ClearTrace();

	// Register storage of the chip model, switch and PHY space.
	u16 sw(u32 addr, u32 page, u32 reg) { return rtl8309n_sim_peek(sim_, SIM_SPACE_SWITCH, addr, page, reg); }
	void set_sw(u32 addr, u32 page, u32 reg, u16 v) { rtl8309n_sim_poke(sim_, SIM_SPACE_SWITCH, addr, page, reg, v); }
	u16 phy(u32 addr, u32 page, u32 reg) { return rtl8309n_sim_peek(sim_, SIM_SPACE_PHY, addr, page, reg); }
	void set_phy(u32 addr, u32 page, u32 reg, u16 v) { rtl8309n_sim_poke(sim_, SIM_SPACE_PHY, addr, page, reg, v); }

	void ExpectChecks(const std::vector<ArgCheck> &checks)
	{
		for (const auto &c : checks) {
			SCOPED_TRACE(c.name);
			ClearTrace();
			EXPECT_EQ(c.expected, c.call());
			EXPECT_TRUE(trace().empty());
		}
	}
	// @ret is a setter's result: it must succeed and leave @want in switch
	// register (@addr, @page, @reg).
	void ExpectSet(s32 ret, u32 addr, u32 page, u32 reg, u32 want, const char *why = "")
	{
		EXPECT_EQ(RT_ERR_OK, ret) << why;
		EXPECT_EQ(want, sw(addr, page, reg)) << why;
	}
	// @ret is a call's result: it must succeed and leave @want in @out (a
	// getter's output or a location of the chip model, read after the call).
	template <typename T, typename U>
	void ExpectGot(s32 ret, const T &out, const U &want, const char *why = "")
	{
		EXPECT_EQ(RT_ERR_OK, ret) << why;
		EXPECT_EQ(want, out) << why;
	}
	// Transactions @op on (@addr, @reg) since ClearTrace().
	long Count(char op, u32 addr, u32 reg) const
	{
		return std::count_if(trace().begin(), trace().end(), [&](const Txn &t) {
			return t.op == op && t.addr == addr && t.reg == reg;
		});
	}
	// (address, register) of each data write since ClearTrace(): the order
	// in which a call touches the chip, page selection left out.
	std::vector<std::pair<u32, u32>> DataWrites() const
	{
		std::vector<std::pair<u32, u32>> out;
		for (const auto &t : trace())
			if (t.op == 'W' && t.reg != RTL8309N_PAGE_REG)
				out.emplace_back(t.addr, t.reg);
		return out;
	}

	// An L2 entry as the chip stores it: control word, then MAC bytes
	// 4/5, 2/3, 0/1 with the lower-numbered byte low.
	void PutL2(u32 idx, u16 ctrl, const u8 *mac)
	{
		u16 *e = sim().l2[idx];
		e[0] = ctrl;
		for (int i = 0; i < 3; i++)
			e[1 + i] = static_cast<u16>(mac[4 - 2 * i] | mac[5 - 2 * i] << 8);
	}
	u16 L2Ctrl(u32 idx) { return sim().l2[idx][0]; }

private:
	rtl8309n_sim *sim_ = nullptr;
};
