// Test bench shared by the host tests: the chip model behind the library's
// two SMI hooks, wired the way the kernel module's MDIO bridge wires them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <vector>

extern "C" {
#include "rtl8309n_asicdrv.h"
#include "rtl8309n_internal.h"
#include "rtl8309n_regs.h"
#include "rtk_api.h"
#include "rtl8309n_sim.h"
}

// One bus transaction as the library issued it: writes carry the hook's raw
// 32-bit argument, reads the value the hook stored.
struct Txn {
	char op;  // 'R' or 'W'
	uint32_t addr, reg, value;
	bool operator==(const Txn &o) const
	{
		return op == o.op && addr == o.addr && reg == o.reg && value == o.value;
	}
};
std::ostream &operator<<(std::ostream &os, const Txn &t);
using Trace = std::vector<Txn>;

inline Txn W(uint32_t a, uint32_t r, uint32_t v) { return {'W', a, r, v}; }
inline Txn R(uint32_t a, uint32_t r, uint32_t v) { return {'R', a, r, v}; }

class ChipTest : public ::testing::Test {
protected:
	void SetUp() override;
	void TearDown() override;

	rtl8309n_sim &sim() { return *sim_; }
	// Transactions since the last ClearTrace().
	const Trace &trace() const;
	void ClearTrace();

	uint16_t sw(uint32_t addr, uint32_t page, uint32_t reg)
	{
		return rtl8309n_sim_peek(sim_, SIM_SPACE_SWITCH, addr, page, reg);
	}
	void set_sw(uint32_t addr, uint32_t page, uint32_t reg, uint16_t v)
	{
		rtl8309n_sim_poke(sim_, SIM_SPACE_SWITCH, addr, page, reg, v);
	}
	uint16_t phy(uint32_t addr, uint32_t page, uint32_t reg)
	{
		return rtl8309n_sim_peek(sim_, SIM_SPACE_PHY, addr, page, reg);
	}
	void set_phy(uint32_t addr, uint32_t page, uint32_t reg, uint16_t v)
	{
		rtl8309n_sim_poke(sim_, SIM_SPACE_PHY, addr, page, reg, v);
	}

private:
	rtl8309n_sim *sim_ = nullptr;
};
