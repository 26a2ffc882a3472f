// L2 address table: hash, entry packing, commands, bucket scans, controls;
// the rtk_ L2 API over it.
#include "regfield_check.h"

#include <array>
#include <cstring>
#include <sstream>

namespace {

using Mac = std::array<u8, 6>;
constexpr u32 kNone = 10000;
constexpr u16 kStatic = 0x100, kAuth = 0x800, kAge1 = 0x40;

class L2Test : public FieldTest {
protected:
	u32 Hash(const u8 *m, u32 fid)
	{
		u32 h = 0;
		EXPECT_EQ(RT_ERR_OK, rtl8309n_l2_MacToIdx_get(m, fid, &h));
		return h;
	}
	static Mac Other(u8 n) { return {0x00, 0xAA, 0, 0, 0, n}; }
	void BusyReads(u32 reads)
	{
		rtl8309n_sim_fault_busy(&sim(), SIM_SPACE_SWITCH, 6, 15, 18, reads ? 0x0800 : 0, reads);
	}
	std::vector<u16> Entry(u32 idx) { return {sim().l2[idx], sim().l2[idx] + 4}; }
};

// Examples worked out by hand from the bit lists, in both hash modes.
TEST_F(L2Test, HashExamplesAndRefusals)
{
	const struct { const u8 *mac; u32 fid, mode, hash; } rows[] = {
		{kMacA, 1, 0, 254}, {kMacA, 1, 1, 93}, {kMacB, 0, 0, 96}};
	for (const auto &r : rows) {
		ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_hashmode_set(r.mode));
		EXPECT_EQ(r.hash, Hash(r.mac, r.fid)) << "fid " << r.fid << " mode " << r.mode;
	}
	u32 h = 7;
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_MacToIdx_get(kMacA, 4, &h));
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
			EXPECT_EQ(expected, Hash(m.data(), fid)) << "mode " << mode << " input " << name;
		}
	}
}

TEST_F(L2Test, EntryPackingGrayAgeAndPoll)
{
	rtl8309n_l2_ucastEntry u{1, 0, 1, 0, 2, 8, 3, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}}, o{};
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastEntry_set(0xFFF, &u));  // index cut to 11 bits
	EXPECT_EQ((std::vector<u16>{0x0400 | 0x0100 | 0x00C0 | 8 << 2 | 3, 0x5544, 0x3322, 0x1100}), Entry(0x7FF));
	EXPECT_EQ(0, sw(6, 15, 16) & 1) << "access bit dropped after the command";
	const u16 stored_age[] = {0, 1, 3, 2};
	for (u32 age = 0; age < 4; age++) {
		u.age = age;
		ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastEntry_set(5, &u));
		EXPECT_EQ(stored_age[age], (sim().l2[5][0] >> 6) & 3);
		ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastEntry_get(5, &o));
		EXPECT_EQ(std::make_tuple(1u, 0u, 1u, 0u, age, 8u, 3u, 0),
			  std::make_tuple(o.isStatic, o.auth, o.block10, o.block9, o.age, o.port, o.fid,
					  memcmp(o.mac, u.mac, 6)));
	}
	u.fid = 4;  // carried unmasked: spills into the port field
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastEntry_set(6, &u));
	EXPECT_EQ(9, (sim().l2[6][0] >> 2) & 0xF);

	// Busy clearing on the 100th poll read is in time; 100 busy reads fail
	// and leave the access bit set.  Two bit updates precede the poll.
	for (u32 busy_reads : {99u, 100u}) {
		BusyReads(busy_reads);
		ClearTrace();
		EXPECT_EQ(busy_reads < 100 ? RT_ERR_OK : RT_ERR_FAILED, rtl8309n_l2_ucastEntry_set(1, &u));
		EXPECT_EQ(2 + 100, Count('R', 6, 18));
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
	// Control words of ways 0..3, the ways holding kMacA / a multicast MAC (or -1), the outcome.
	const struct { const char *name; std::array<u16, 4> words; int match_way, mc_way; s32 ret; u32 index; } rows[] = {
		{"dynamic only: way 3", {kAge1, kAge1, kAge1, kAge1}, -1, -1, RT_ERR_OK, h + 1536},
		{"static/auth/multicast kept", {kAge1, kAge1, kAuth, kStatic}, -1, 1, RT_ERR_OK, h},
		{"all static", {kStatic, kStatic, kStatic, kStatic}, -1, -1, RTL8309N_L2_BUCKET_FULL, kNone},
		{"match rewritten in place", {0, kStatic | kAuth, 0, 0}, 1, -1, RT_ERR_OK, h + 512},
	};
	for (const auto &r : rows) {
		for (u8 w = 0; w < 4; w++)
			PutL2(h + 512 * w, r.words[w], w == r.match_way ? kMacA : w == r.mc_way ? kMcast : Other(w).data());
		EXPECT_EQ(r.ret, rtl8309n_l2_ucastAddr_add(kMacA, 1, &e, &idx)) << r.name;
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
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_ucastAddr_get(kMacA, 0, &out, &idx));
	EXPECT_EQ(kNone, idx);
	PutL2(h + 1024, 0x0004, kMacA);  // aged out, dynamic: an empty slot
	PutL2(h + 512, kStatic | kAge1, kMacA);
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_ucastAddr_get(kMacA, 0, &out, &idx));
	EXPECT_EQ(0u, idx);
	PutL2(h + 1024, kAuth | 0x0004, kMacA);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_ucastAddr_get(kMacA, 0, &out, &idx));
	EXPECT_EQ(std::make_tuple(h + 1024, 1u, 1u), std::make_tuple(idx, out.auth, out.port));
	ExpectGot(rtl8309n_l2_ucastAddr_del(kMacA, 0, &idx), idx, h + 512, "the last duplicate cleared");
	for (u32 w : {1u, 2u})
		EXPECT_EQ(0, sim().l2[h + 512 * w][0] | sim().l2[h + 512 * w][3]);
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_ucastAddr_del(kMacA, 0, &idx));
	EXPECT_EQ(kNone, idx);
}

TEST_F(L2Test, MulticastAddGetDelete)
{
	const u32 h = Hash(kMcast, 2);
	u32 idx = 0, mask = 0;
	for (u8 w = 0; w < 4; w++)
		PutL2(h + 512 * w, kStatic, Other(w).data());
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_mcastAddr_add(kMcast, 2, 0x3, &idx)) << "full bucket";
	EXPECT_EQ(kNone, idx);
	PutL2(h + 512, kAge1, Other(1).data());
	ExpectGot(rtl8309n_l2_mcastAddr_add(kMcast, 2, 0x3, &idx), idx, h + 512);
	EXPECT_EQ(0x0800 | 0x3 << 2 | 2, sim().l2[idx][0]);
	sim().l2[idx][0] = 0x0001;  // stored FID 1, not valid: FID kept, made valid
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_mcastAddr_add(kMcast, 2, 0x1FF, &idx));
	EXPECT_EQ(0x0800 | 0x1FF << 2 | 1, sim().l2[h + 512][0]);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_l2_mcastAddr_get(kMcast, 2, &mask, &idx));
	EXPECT_EQ(0x1FFu, mask);
	PutL2(h + 1536, 0, kMcast);
	ExpectGot(rtl8309n_l2_mcastAddr_del(kMcast, 2, &idx), idx, h + 512);
	EXPECT_EQ(RTL8309N_L2_NOT_FOUND, rtl8309n_l2_mcastAddr_get(kMcast, 2, &mask, &idx));
	EXPECT_EQ(kNone, idx);
}

TEST_F(L2Test, BadArgumentsAndFailedReads)
{
	rtl8309n_l2_ucastEntry e{};
	u32 idx = 0, v = 0;
	const std::function<s32(const u8 *, u32)> ops[] = {
		[&](const u8 *m, u32 f) { return rtl8309n_l2_ucastAddr_add(m, f, &e, &idx); },
		[&](const u8 *m, u32 f) { return rtl8309n_l2_ucastAddr_get(m, f, &e, &idx); },
		[&](const u8 *m, u32 f) { return rtl8309n_l2_ucastAddr_del(m, f, &idx); },
		[&](const u8 *m, u32 f) { return rtl8309n_l2_mcastAddr_add(m, f, 1, &idx); },
		[&](const u8 *m, u32 f) { return rtl8309n_l2_mcastAddr_get(m, f, &v, &idx); },
		[&](const u8 *m, u32 f) { return rtl8309n_l2_mcastAddr_del(m, f, &idx); },
	};
	for (size_t i = 0; i < 6; i++) {
		const u8 *good = i < 3 ? kMacA : kMcast, *wrong = i < 3 ? kMcast : kMacA;
		ClearTrace();
		EXPECT_EQ(RT_ERR_FAILED, ops[i](good, 4)) << i;
		EXPECT_EQ(RT_ERR_FAILED, ops[i](wrong, 0)) << i;
		EXPECT_TRUE(trace().empty());
		BusyReads(SIM_FOREVER);
		EXPECT_EQ(RT_ERR_FAILED, ops[i](good, 0)) << "failed way read " << i;
		BusyReads(0);
	}
	rtl8309n_l2_ucastEntry bad_u[] = {{0, 0, 0, 0, 4, 0, 0, {}}, {0, 0, 0, 0, 0, 9, 0, {}}, {0, 0, 0, 0, 0, 0, 0, {1}}};
	rtl8309n_l2_mcastEntry bad_m[] = {{1, 0, 1, {0}}, {1, 0, 512, {1}}};
	ClearTrace();
	for (const auto &b : bad_u)
		EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_ucastEntry_set(0, &b));
	for (const auto &b : bad_m)
		EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_mcastEntry_set(0, &b));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_mcastAddr_add(kMcast, 0, 512, &idx));
	EXPECT_EQ(RT_ERR_FAILED, rtl8309n_l2_systemMacLimit_set(256, 0));
	for (auto set : {rtl8309n_l2_macLimitAction_set, rtl8309n_l2_sablockAction_set, rtl8309n_l2_dablockAction_set})
		for (u32 bad : {0u, 1u, 4u})
			EXPECT_EQ(RT_ERR_FAILED, set(bad)) << "action " << bad;
	EXPECT_TRUE(trace().empty());
}

TEST_F(L2Test, ControlsLimitsAndCounters)
{
	CheckAll({
		{"hash mode", ACCESSORS(l2_hashmode), 6, 16, 15, 1, 1},
		{"cam (disable bit)", ACCESSORS(l2_camEnable), 6, 16, 15, 3, 1, true},
		{"lru", ACCESSORS(l2_lruEnable), 6, 16, 15, 4, 1},
		{"fast aging", ACCESSORS(l2_fastAgingEnable), 6, 16, 15, 5, 1},
		{"flush", ACCESSORS(l2_flushEnable), 6, 16, 15, 6, 1},
		{"aging", ACCESSORS(l2_agingEnable), 6, 16, 15, 11, 1},
		{"dp mask", ACCESSORS(l2_dpMskEnable), 6, 16, 15, 12, 1},
		{"unknown DA drop (keep bit)", ACCESSORS(l2_unkownDaDropEnable), 6, 16, 15, 13, 1, true},
		{"system limit enable", ACCESSORS(l2_systemMacLimitEnable), 6, 23, 15, 8, 1},
		{"port limit enable", ACCESSORS(l2_portMacLimitEnable, 8u), 8, 16, 5, 1, 1},
		{"port limit", ACCESSORS(l2_portMacLimit, 8u), 8, 16, 5, 11, 5},
	});
	CheckCodeBit(ACCESSORS(l2_macLimitAction), 6, 17, 15, 9, 2, 3);  // 2 trap, 3 drop
	CheckCodeBit(ACCESSORS(l2_sablockAction), 6, 16, 15, 8, 3, 2);
	CheckCodeBit(ACCESSORS(l2_dablockAction), 6, 16, 15, 7, 3, 2);
	u32 a = 0, b = 0;
	rtl8309n_sim_init(&sim());
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

class ApiL2Test : public L2Test {};

rtk_l2_ucastAddr_t Addr(u8 port, u8 fid, u32 age, u8 is_static, const u8 *mac)
{
	rtk_l2_ucastAddr_t a{0, 0, 0, is_static, port, fid, age, {}};
	std::copy(mac, mac + 6, a.mac);
	return a;
}

TEST_F(ApiL2Test, ChecksInOrderBeforeAnyChipAccess)
{
	static rtk_l2_ucastAddr_t a;
	auto add = [](void (*tweak)(rtk_l2_ucastAddr_t &), u32 fid = 1) {
		return [tweak, fid] {
			rtk_l2_ucastAddr_t r = Addr(1, 1, 300, 1, kMacA);
			tweak(r);
			return rtk_l2_addr_add(kMacA, fid, &r);
		};
	};
	ExpectChecks({
		{"add null mac", [] { return rtk_l2_addr_add(nullptr, 0, &a); }, RT_ERR_NULL_POINTER},
		{"add multicast key", [] { return rtk_l2_addr_add(kMcast, 9, &a); }, RT_ERR_MAC},
		{"add fid 4 before record", add([](auto &r) { r.port = 9; }, 4), RT_ERR_L2_FID},
		{"add isStatic 2 before port", add([](auto &r) { r.isStatic = 2; r.port = 9; }), RT_ERR_INPUT},
		{"add port 9 before record fid", add([](auto &r) { r.port = 9; r.fid = 4; }), RT_ERR_PORT_ID},
		{"add record multicast", add([](auto &r) { r.mac[0] = 1; }), RT_ERR_MAC},
		{"get kind before null record", [] { return rtk_l2_addr_get(kMcast, 9, nullptr); }, RT_ERR_MAC},
		{"get fid 4 before null", [] { return rtk_l2_addr_get(kMacA, 4, nullptr); }, RT_ERR_L2_FID},
		{"del null mac is a MAC error", [] { return rtk_l2_addr_del(nullptr, 0); }, RT_ERR_MAC},
		{"del admits fid 4, the chip refuses", [] { return rtk_l2_addr_del(kMacA, 4); }},
		{"mc add mask 0x200", [] { return rtk_l2_mcastAddr_add(kMcast, 3, 0x200); }, RT_ERR_PORT_MASK},
		{"mc get null out before kind", [] { return rtk_l2_mcastAddr_get(kMacA, 0, nullptr); }, RT_ERR_NULL_POINTER},
		{"mc del null mac is a plain failure", [] { return rtk_l2_mcastAddr_del(nullptr, 0); }},
		{"port limit port before limit", [] { return rtk_l2_limitLearningCnt_set(9, 32); }, RT_ERR_PORT_ID},
		{"port limit 32", [] { return rtk_l2_limitLearningCnt_set(0, 32); }, RT_ERR_LIMITED_L2ENTRY_NUM},
		{"limit action 1", [] { return rtk_l2_limitLearningCntAction_set(0, 1); }, RT_ERR_NOT_ALLOWED},
	});
}

TEST_F(ApiL2Test, UnicastAddAgeGetDelete)
{
	rtk_l2_ucastAddr_t in = Addr(5, 1, 200, 1, kMacA), out{};
	in.block9 = 1;
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_add(kMacA, 1, &in));
	// fid 1, port 5, age 2 (stored 0b11), static, block9
	EXPECT_EQ(0x3D5, L2Ctrl(Way(kBucketA, 3)));
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_get(kMacA, 1, &out));
	EXPECT_EQ(0, memcmp(&in, &out, sizeof(in)));
	in.age = 150;	// no chip age: stored as aged out
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_add(kMacA, 1, &in));
	EXPECT_EQ(0x315, L2Ctrl(Way(kBucketA, 3)));
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_get(kMacA, 1, &out));
	EXPECT_EQ(0u, out.age);
	ASSERT_EQ(RT_ERR_OK, rtk_l2_addr_del(kMacA, 1));
	EXPECT_EQ(0, L2Ctrl(Way(kBucketA, 3)));
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_l2_addr_del(kMacA, 1));
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_l2_addr_get(kMacA, 1, &out));
}

TEST_F(ApiL2Test, MulticastRoundTripFullBucketsAndTheGlobalLimitAction)
{
	u32 mask = 0;
	for (u8 w = 0; w < 4; w++) {
		PutL2(Way(kBucketB, w), kStatic, Other(w).data());
		PutL2(Way(Hash(kMcast, 0), w), kStatic, Other(w).data());
	}
	rtk_l2_ucastAddr_t in = Addr(2, 0, 300, 0, kMacB);
	EXPECT_EQ(RT_ERR_L2_NO_EMPTY_ENTRY, rtk_l2_addr_add(kMacB, 0, &in));
	EXPECT_EQ(RT_ERR_OK, rtk_l2_mcastAddr_add(kMcast, 0, 0x003));
	EXPECT_EQ(RT_ERR_L2_ENTRY_NOTFOUND, rtk_l2_mcastAddr_get(kMcast, 0, &mask)) << "nothing written";
	for (auto [action, reg17] : {Pair(RTK_L2_LIMIT_ACT_TRAP_CPU, 0x0200), Pair(RTK_L2_LIMIT_ACT_DROP, 0)}) {
		u32 back = 9;
		ASSERT_EQ(RT_ERR_OK, rtk_l2_limitLearningCntAction_set(7, action));
		ASSERT_EQ(RT_ERR_OK, rtk_l2_limitLearningCntAction_get(3, &back));
		EXPECT_EQ(Pair(reg17, action), Pair(sw(6, 15, 17), back));
	}
}

}  // namespace
