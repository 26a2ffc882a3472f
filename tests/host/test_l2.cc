// L2 address table: hash, entry packing, commands, bucket scans, controls.
#include "chip_fixture.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Mac = std::array<u8, 6>;
constexpr Mac kMacA = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
constexpr Mac kMcast = {0x01, 0x00, 0x5E, 0x01, 0x02, 0x03};
constexpr u32 kNone = 10000;
constexpr u16 kStatic = 0x100, kAuth = 0x800, kAge1 = 0x40;

class L2Test : public ChipTest {
protected:
	u32 Hash(const Mac &m, u32 fid)
	{
		u32 h = 0;
		EXPECT_EQ(RT_ERR_OK, rtl8309n_l2_MacToIdx_get(m.data(), fid, &h));
		return h;
	}
	// Straight into the chip's table: control word, MAC 4/5, 2/3, 0/1.
	void Put(u32 idx, u16 word, const Mac &m)
	{
		u16 *e = sim().l2[idx];
		e[0] = word;
		e[1] = m[4] | m[5] << 8;
		e[2] = m[2] | m[3] << 8;
		e[3] = m[0] | m[1] << 8;
	}
	static Mac Other(u8 n) { return {0x00, 0xAA, 0, 0, 0, n}; }
	void BusyReads(u32 reads)
	{
		rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 6, 15, 18, reads ? 0x0800 : 0, reads);
	}
	long CmdReads()
	{
		return std::count_if(trace().begin(), trace().end(),
				     [](const Txn &t) { return t.op == 'R' && t.addr == 6 && t.reg == 18; });
	}
};

TEST_F(L2Test, HashExamples)
{
	const struct { Mac mac; u32 fid, mode, hash; } rows[] = {
		{kMacA, 1, 0, 254}, {kMacA, 1, 1, 93}, {{0x88, 0x75, 0x34, 0xA2, 0x0F, 0x0B}, 0, 0, 96},
		{{}, 0, 0, 0}, {{}, 0, 1, 0}, {{}, 1, 0, 1u << 5}, {{}, 1, 1, 1u << 0},
		{{}, 2, 0, 1u << 4}, {{}, 2, 1, 1u << 8},
	};
	for (const auto &r : rows) {
		ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_hashmode_set(r.mode));
		EXPECT_EQ(r.hash, Hash(r.mac, r.fid)) << "fid " << r.fid << " mode " << r.mode;
	}
	u32 h = 7;
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_MacToIdx_get(kMacA.data(), 4, &h));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_MacToIdx_get(nullptr, 0, &h));
	EXPECT_EQ(7u, h);
}

// Each hash bit is the XOR of exactly the listed inputs ("k.n" = bit n of MAC
// byte k, F0/F1 the FID bits): flipping one input flips exactly the hash
// bits whose list names it.
TEST_F(L2Test, HashBitsDependOnExactlyTheListedInputs)
{
	const char *table[2][9] = {
		{"4.4 5.3 2.6 3.5 1.7", "4.5 5.4 3.6 0.0 2.7", "4.6 5.5 0.1 1.0 3.7",
		 "2.0 4.7 0.2 1.1 5.6", "1.2 2.1 0.3 3.0 5.7 F1", "2.2 3.1 4.0 0.4 1.3 F0",
		 "1.4 2.3 3.2 4.1 5.0 0.5", "4.2 5.1 2.4 3.3 0.6 1.5", "4.3 5.2 2.5 3.4 1.6 0.7"},
		{"1.0 2.0 3.0 4.0 F0 1.7", "0.0 5.0 1.1 2.1 3.1 4.1", "0.1 1.2 2.2 3.2 4.2 5.1",
		 "0.2 1.3 2.3 3.3 4.3 5.2", "0.3 1.4 2.4 3.4 5.3", "0.4 1.5 2.5 4.4 5.4",
		 "0.5 1.6 3.5 4.5 5.5", "0.6 2.6 3.6 4.6 5.6", "0.7 1.7 2.7 3.7 5.7 F1"},
	};
	for (u32 mode = 0; mode < 2; mode++) {
		ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_hashmode_set(mode));
		for (u32 in = 0; in < 50; in++) {
			Mac m{};
			u32 fid = in < 48 ? 0 : 1u << (in - 48), expected = 0;
			std::string name = in < 48 ? std::to_string(in / 8) + "." + std::to_string(in % 8)
						   : "F" + std::to_string(in - 48);
			if (in < 48)
				m[in / 8] = 1u << (in % 8);
			for (u32 bit = 0; bit < 9; bit++) {
				std::istringstream terms(table[mode][bit]);
				for (std::string t; terms >> t;)
					expected ^= (t == name) << bit;
			}
			EXPECT_EQ(expected, Hash(m, fid)) << "mode " << mode << " input " << name;
		}
	}
}

TEST_F(L2Test, EntryPackingGrayAgeAndPoll)
{
	rtl8309n_l2_ucastEntry u{1, 0, 1, 0, 2, 8, 3, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}}, o{};
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastEntry_set(0xFFF, &u));  // index cut to 11 bits
	EXPECT_EQ((std::array<u16, 4>{0x0400 | 0x0100 | 0x00C0 | 8 << 2 | 3, 0x5544, 0x3322, 0x1100}),
		  (std::array<u16, 4>{sim().l2[0x7FF][0], sim().l2[0x7FF][1], sim().l2[0x7FF][2],
				      sim().l2[0x7FF][3]}));
	EXPECT_EQ(0, sw(6, 15, 16) & 1) << "access bit dropped after the command";
	const u16 stored_age[] = {0, 1, 3, 2};
	for (u32 age = 0; age < 4; age++) {
		u.age = age;
		ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastEntry_set(5, &u));
		EXPECT_EQ(stored_age[age], (sim().l2[5][0] >> 6) & 3);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastEntry_get(5, &o));
		EXPECT_EQ(std::make_tuple(1u, 0u, 1u, 0u, age, 8u, 3u, 0),
			  std::make_tuple(o.isStatic, o.auth, o.block10, o.block9, o.age, o.port,
					  o.fid, memcmp(o.mac, u.mac, 6)));
	}
	rtl8309n_l2_mcastEntry m{1, 2, 0x155, {0x01, 0, 0x5E, 0, 0, 1}}, mo{};
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_mcastEntry_set(9, &m));
	EXPECT_EQ(0x0800 | 0x155 << 2 | 2, sim().l2[9][0]);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_mcastEntry_get(9, &mo));
	EXPECT_EQ(std::make_tuple(1u, 2u, 0x155u, 0), std::make_tuple(mo.valid, mo.fid,
		  mo.portMask, memcmp(mo.mac, m.mac, 6)));
	u.fid = 4;  // carried unmasked: spills into the port field
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastEntry_set(6, &u));
	EXPECT_EQ(9, (sim().l2[6][0] >> 2) & 0xF);

	// Busy clearing on the 100th poll read is in time; 100 busy reads fail
	// and leave the access bit set.  Two bit updates precede the poll.
	for (u32 busy_reads : {99u, 100u}) {
		BusyReads(busy_reads);
		ClearTrace();
		EXPECT_EQ(busy_reads < 100 ? RT_ERR_OK : RT_ERR_FAILED,
			  rtl8309n_l2_ucastEntry_set(1, &u));
		EXPECT_EQ(2 + 100, CmdReads());
		EXPECT_EQ(busy_reads < 100 ? 0 : 1, sw(6, 15, 16) & 1);
	}
	BusyReads(0);
	Mac mac{};
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_macAddr_get(6, mac.data()));
	EXPECT_EQ(0, memcmp(mac.data(), u.mac, 6));
	EXPECT_EQ(1, sw(6, 15, 16) & 1) << "the MAC-only read keeps the access bit";
}

TEST_F(L2Test, UnicastAddPicksMatchingThenReplaceableWay)
{
	const u32 h = Hash(kMacA, 1);
	rtl8309n_l2_ucastEntry e{1, 0, 0, 0, 3, 4, 1, {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}};
	u32 idx = 0;
	const struct {
		const char *name;
		std::array<u16, 4> words;  // ways 0..3
		int match_way, mc_way;     // way holding kMacA / a multicast MAC, or -1
		s32 ret;
		u32 index;
	} rows[] = {
		{"dynamic only: way 3", {kAge1, kAge1, kAge1, kAge1}, -1, -1, RT_ERR_OK, h + 1536},
		{"static/auth/multicast kept", {kAge1, kAge1, kAuth, kStatic}, -1, 1, RT_ERR_OK, h},
		{"all static", {kStatic, kStatic, kStatic, kStatic}, -1, -1, RTL8309N_L2_BUCKET_FULL,
		 kNone},
		{"match rewritten in place", {0, kStatic | kAuth, 0, 0}, 1, -1, RT_ERR_OK, h + 512},
	};
	for (const auto &r : rows) {
		for (int w = 0; w < 4; w++)
			Put(h + 512 * w, r.words[w],
			    w == r.match_way ? kMacA : w == r.mc_way ? kMcast : Other(w));
		EXPECT_EQ(r.ret, rtl8309n_l2_ucastAddr_add(kMacA.data(), 1, &e, &idx)) << r.name;
		EXPECT_EQ(r.index, idx) << r.name;
		if (r.index != kNone) {
			EXPECT_EQ(0x0100 | 0x80 | 4 << 2 | 1, sim().l2[r.index][0]) << r.name;
		}
	}
}

TEST_F(L2Test, UnicastGetAndDelete)
{
	const u32 h = Hash(kMacA, 0);
	rtl8309n_l2_ucastEntry out{};
	u32 idx = 1;
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_ucastAddr_get(kMacA.data(), 0, &out, &idx));
	EXPECT_EQ(kNone, idx);

	Put(h + 1024, 0x0004, kMacA);  // aged out, dynamic: an empty slot
	Put(h + 512, kStatic | kAge1, kMacA);
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_ucastAddr_get(kMacA.data(), 0, &out, &idx));
	EXPECT_EQ(0u, idx);
	Put(h + 1024, kAuth | 0x0004, kMacA);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastAddr_get(kMacA.data(), 0, &out, &idx));
	EXPECT_EQ(std::make_tuple(h + 1024, 1u, 1u), std::make_tuple(idx, out.auth, out.port));

	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastAddr_del(kMacA.data(), 0, &idx));
	EXPECT_EQ(h + 512, idx) << "the last duplicate cleared";
	for (u32 w : {1u, 2u})
		EXPECT_EQ(0, sim().l2[h + 512 * w][0] | sim().l2[h + 512 * w][3]);
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_ucastAddr_del(kMacA.data(), 0, &idx));
	EXPECT_EQ(kNone, idx);
}

TEST_F(L2Test, MulticastAddGetDelete)
{
	const u32 h = Hash(kMcast, 2);
	u32 idx = 0, mask = 0;
	for (u32 w = 0; w < 4; w++)
		Put(h + 512 * w, kStatic, Other(w));
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_mcastAddr_add(kMcast.data(), 2, 0x3, &idx))
		<< "a full bucket reports not-found";
	EXPECT_EQ(kNone, idx);

	Put(h + 512, kAge1, Other(1));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_mcastAddr_add(kMcast.data(), 2, 0x3, &idx));
	EXPECT_EQ(h + 512, idx);
	EXPECT_EQ(0x0800 | 0x3 << 2 | 2, sim().l2[idx][0]);
	sim().l2[idx][0] = 0x0001;  // stored FID 1, not valid: FID kept, made valid
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_mcastAddr_add(kMcast.data(), 2, 0x1FF, &idx));
	EXPECT_EQ(0x0800 | 0x1FF << 2 | 1, sim().l2[h + 512][0]);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_mcastAddr_get(kMcast.data(), 2, &mask, &idx));
	EXPECT_EQ(0x1FFu, mask);

	Put(h + 1536, 0, kMcast);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_mcastAddr_del(kMcast.data(), 2, &idx));
	EXPECT_EQ(h + 512, idx);
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_mcastAddr_get(kMcast.data(), 2, &mask, &idx));
	EXPECT_EQ(kNone, idx);
}

TEST_F(L2Test, BadArgumentsAndFailedReads)
{
	rtl8309n_l2_ucastEntry e{};
	u32 idx = 0, v = 0;
	const std::function<s32(const Mac &, u32)> ops[] = {
		[&](const Mac &m, u32 f) { return rtl8309n_l2_ucastAddr_add(m.data(), f, &e, &idx); },
		[&](const Mac &m, u32 f) { return rtl8309n_l2_ucastAddr_get(m.data(), f, &e, &idx); },
		[&](const Mac &m, u32 f) { return rtl8309n_l2_ucastAddr_del(m.data(), f, &idx); },
		[&](const Mac &m, u32 f) { return rtl8309n_l2_mcastAddr_add(m.data(), f, 1, &idx); },
		[&](const Mac &m, u32 f) { return rtl8309n_l2_mcastAddr_get(m.data(), f, &v, &idx); },
		[&](const Mac &m, u32 f) { return rtl8309n_l2_mcastAddr_del(m.data(), f, &idx); },
	};
	for (size_t i = 0; i < 6; i++) {
		const Mac &good = i < 3 ? kMacA : kMcast, &wrong = i < 3 ? kMcast : kMacA;
		ClearTrace();
		EXPECT_EQ(RT_ERR_FAILED, ops[i](good, 4)) << i;
		EXPECT_EQ(RT_ERR_FAILED, ops[i](wrong, 0)) << i;
		EXPECT_TRUE(trace().empty());
		BusyReads(SIM_FOREVER);
		EXPECT_EQ(RT_ERR_FAILED, ops[i](good, 0)) << "failed way read " << i;
		BusyReads(0);
	}
	rtl8309n_l2_ucastEntry bad_u[] = {{0, 0, 0, 0, 4, 0, 0, {}}, {0, 0, 0, 0, 0, 9, 0, {}},
					  {0, 0, 0, 0, 0, 0, 0, {1}}};
	rtl8309n_l2_mcastEntry bad_m[] = {{1, 0, 1, {0}}, {1, 0, 512, {1}}};
	ClearTrace();
	for (const auto &b : bad_u)
		EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_ucastEntry_set(0, &b));
	for (const auto &b : bad_m)
		EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_mcastEntry_set(0, &b));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_mcastAddr_add(kMcast.data(), 0, 512, &idx));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_portMacLimit_set(8, 32));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_systemMacLimit_set(256, 0));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_systemMacLimit_set(0, 512));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_portlearningCnt_get(9, &v));
	EXPECT_TRUE(trace().empty());
}

// One-bit controls: setter value -> chip bit -> getter value, for inputs
// {1, 0, 2} (enables) or {2, 3} (trap/drop actions, which refuse 0, 1, 4).
TEST_F(L2Test, ControlPolarities)
{
	using Set = s32 (*)(u32);
	using Get = s32 (*)(u32 *);
	const struct { Set set; Get get; u32 addr, page, reg, bit; bool action, bit_for_1; } rows[] = {
		{rtl8309n_l2_lruEnable_set, rtl8309n_l2_lruEnable_get, 6, 15, 16, 4, false, true},
		{rtl8309n_l2_camEnable_set, rtl8309n_l2_camEnable_get, 6, 15, 16, 3, false, false},
		{rtl8309n_l2_flushEnable_set, rtl8309n_l2_flushEnable_get, 6, 15, 16, 6, false, true},
		{rtl8309n_l2_agingEnable_set, rtl8309n_l2_agingEnable_get, 6, 15, 16, 11, false, true},
		{rtl8309n_l2_fastAgingEnable_set, rtl8309n_l2_fastAgingEnable_get, 6, 15, 16, 5, false,
		 true},
		{rtl8309n_l2_dpMskEnable_set, rtl8309n_l2_dpMskEnable_get, 6, 15, 16, 12, false, true},
		{rtl8309n_l2_unkownDaDropEnable_set, rtl8309n_l2_unkownDaDropEnable_get, 6, 15, 16, 13,
		 false, false},
		{rtl8309n_l2_hashmode_set, rtl8309n_l2_hashmode_get, 6, 15, 16, 1, false, true},
		{rtl8309n_l2_systemMacLimitEnable_set, rtl8309n_l2_systemMacLimitEnable_get, 6, 15, 23,
		 8, false, true},
		// for actions, bit_for_1: the bit stands for trap (2) rather than drop (3)
		{rtl8309n_l2_macLimitAction_set, rtl8309n_l2_macLimitAction_get, 6, 15, 17, 9, true,
		 true},
		{rtl8309n_l2_sablockAction_set, rtl8309n_l2_sablockAction_get, 6, 15, 16, 8, true, false},
		{rtl8309n_l2_dablockAction_set, rtl8309n_l2_dablockAction_get, 6, 15, 16, 7, true, false},
	};
	for (const auto &r : rows) {
		rtl8309n_sim_init(&sim());
		const std::vector<u32> ins = r.action ? std::vector<u32>{2, 3} : std::vector<u32>{1, 0, 2};
		for (u32 in : ins) {
			const bool on = r.action ? in == 2 : in == 1;
			u32 v = 99;
			ASSERT_EQ(RT_ERR_OK, r.set(in));
			EXPECT_EQ((on == r.bit_for_1 ? 1u : 0u) << r.bit, sw(r.addr, r.page, r.reg))
				<< "reg " << r.reg << " bit " << r.bit << " in " << in;
			ASSERT_EQ(RT_ERR_OK, r.get(&v));
			EXPECT_EQ(r.action ? in : on, v) << "bit " << r.bit;
		}
		for (u32 bad : {0u, 1u, 4u})
			EXPECT_EQ(r.action ? RT_ERR_FAILED : RT_ERR_OK, r.set(bad)) << "bit " << r.bit;
		EXPECT_EQ(RT_ERR_FAILED, r.get(nullptr));
	}
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_portMacLimitEnable_set(8, 1));
	EXPECT_EQ(0x0002, sw(8, 5, 16));
}

TEST_F(L2Test, LimitsAndCounters)
{
	u32 a = 0, b = 0;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_portMacLimit_set(8, 31));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_portMacLimit_get(8, &a));
	EXPECT_EQ(std::make_tuple(0xF800, 31u), std::make_tuple(sw(8, 5, 16), a));
	set_sw(6, 15, 17, 0x0200);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_systemMacLimit_set(255, 511));
	EXPECT_EQ(std::make_tuple(0x00FF, 0x03FF), std::make_tuple(sw(6, 15, 23), sw(6, 15, 17)));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_systemMacLimit_get(&a, &b));
	EXPECT_EQ(std::make_tuple(255u, 511u), std::make_tuple(a, b));
	set_sw(6, 15, 24, 0xFFFF);
	set_sw(3, 5, 17, 0x8123);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_systemLearningCnt_get(&a));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_portlearningCnt_get(3, &b));
	EXPECT_EQ(std::make_tuple(0x7FFu, 0x123u), std::make_tuple(a, b));
}

}  // namespace
