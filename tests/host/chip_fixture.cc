#include "chip_fixture.h"

namespace {

rtl8309n_sim *g_sim;
Trace g_trace;

// As the kernel module's bridge: the value goes out as 16 bits.
int bridge_write(u32 phyad, u32 regad, u32 value)
{
	g_trace.push_back(W(phyad, regad, value));
	return rtl8309n_sim_mdio_write(g_sim, phyad, regad, static_cast<u16>(value));
}

// As the kernel module's bridge: the bus result is stored as it stands,
// a negative errno included, and the call itself always succeeds.
int bridge_read(u32 phyad, u32 regad, u32 *value)
{
	*value = static_cast<u32>(rtl8309n_sim_mdio_read(g_sim, phyad, regad));
	g_trace.push_back(R(phyad, regad, *value));
	return 0;
}

}  // namespace

std::ostream &operator<<(std::ostream &os, const Txn &t)
{
	return os << t.op << '(' << t.addr << ',' << t.reg << ",0x" << std::hex << t.value << std::dec << ')';
}

void ChipTest::SetUp()
{
	sim_ = new rtl8309n_sim;
	rtl8309n_sim_init(sim_);
	g_sim = sim_;
	g_trace.clear();
	register_smiwrite(bridge_write);
	register_smiRead(bridge_read);
}

void ChipTest::TearDown()
{
	register_smiwrite(nullptr);
	register_smiRead(nullptr);
	g_sim = nullptr;
	delete sim_;
}

const Trace &ChipTest::trace() const { return g_trace; }

void ChipTest::ClearTrace()
{
	g_trace.clear();
	rtl8309n_sim_log_clear(sim_);
}
