// Shared by the rtk_ API tests: tables of calls whose argument checks must
// fail with a given code before the chip is touched, and L2 entry access
// through the chip model's table storage.
#pragma once

#include "chip_fixture.h"

#include <functional>
#include <vector>

struct ApiCheck {
	const char *name;
	std::function<s32()> call;
	s32 expected;
};

// The L2 test addresses and the buckets the chip's hash (mode 0) gives them.
inline u8 kMacA[6] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};	// fid 1: bucket 254
inline u8 kMacB[6] = {0x88, 0x75, 0x34, 0xA2, 0x0F, 0x0B};	// fid 0: bucket 96
inline u8 kMcast[6] = {0x01, 0x00, 0x5E, 0x00, 0x00, 0x01};
constexpr u32 kBucketA = 254, kBucketB = 96;
constexpr u32 Way(u32 bucket, u32 way) { return bucket + 512 * way; }

class ApiTest : public ChipTest {
protected:
	void ExpectChecks(const std::vector<ApiCheck> &cases)
	{
		for (const auto &c : cases) {
			SCOPED_TRACE(c.name);
			ClearTrace();
			EXPECT_EQ(c.expected, c.call());
			EXPECT_TRUE(trace().empty());
		}
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
};
