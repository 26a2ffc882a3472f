// Table-driven check of register-layer accessors that own one field of one
// switch register: where the value lands, what it leaves alone, its
// polarity, the one-read-one-write bus sequence and the range check.
#pragma once

#include "chip_fixture.h"

struct FieldRow {
	std::string name;
	std::function<s32(u32)> set;
	std::function<s32(u32 *)> get;
	u32 addr, reg, page, lsb, width;
	bool inverted = false;	// one-bit enable flag whose bit set means "off"
	u32 max = 0;		// highest accepted value; 0: the field's own maximum
};

class FieldTest : public ChipTest {
protected:
	// A one-bit row is an enable flag: exactly 1 enables, anything else
	// disables.  A wider row takes values up to its maximum and refuses the
	// next one without bus traffic.
	void Check(const FieldRow &r)
	{
		SCOPED_TRACE(r.name);
		const u32 mask = (1u << r.width) - 1;
		const u32 max = r.max ? r.max : mask;
		std::vector<std::pair<u32, u32>> cases;  // value written, field expected

		if (r.width == 1) {
			cases = {{1, !r.inverted}, {0, r.inverted}, {2, r.inverted}};
		} else {
			for (u32 v : {max, 0u, 0x5555u & mask, 0xAAAAu & mask})
				if (v <= max)
					cases.push_back({v, v});
		}
		for (u16 bg : {0x0000, 0xFFFF}) {
			for (auto [value, field] : cases) {
				SCOPED_TRACE(testing::Message() << "bg " << bg << " value " << value);
				u16 expect = static_cast<u16>((bg & ~(mask << r.lsb)) | (field << r.lsb));
				set_sw(r.addr, r.page, r.reg, bg);
				ClearTrace();
				ASSERT_EQ(RT_ERR_OK, r.set(value));
				EXPECT_EQ(expect, sw(r.addr, r.page, r.reg));
				ASSERT_EQ(9u, trace().size()) << "one reg_get, one reg_set";
				EXPECT_EQ(W(r.addr, r.reg, expect), trace().back());

				u32 out = 0xDEAD;
				ClearTrace();
				ASSERT_EQ(RT_ERR_OK, r.get(&out));
				EXPECT_EQ(r.width == 1 ? u32(value == 1) : value, out);
				EXPECT_EQ(3u, trace().size()) << "one reg_get";
			}
		}
		ClearTrace();
		if (r.width > 1) {
			EXPECT_EQ(RT_ERR_FAILED, r.set(max + 1));
		}
		EXPECT_EQ(RT_ERR_FAILED, r.get(nullptr));
		EXPECT_TRUE(trace().empty());
	}

	void CheckAll(const std::vector<FieldRow> &rows)
	{
		for (const auto &r : rows)
			Check(r);
	}

	// A bit that selects between two codes: @code_set sets it, @code_clear
	// clears it, the getter maps it back; nothing else in the register moves.
	void CheckCodeBit(std::function<s32(u32)> set, std::function<s32(u32 *)> get, u32 addr,
			  u32 reg, u32 page, u32 bit, u32 code_set, u32 code_clear)
	{
		for (auto [code, on] : {std::pair{code_set, true}, {code_clear, false}}) {
			for (u16 bg : {0x0000, 0xFFFF}) {
				SCOPED_TRACE(testing::Message() << "code " << code << " bg " << bg);
				set_sw(addr, page, reg, bg);
				ASSERT_EQ(RT_ERR_OK, set(code));
				u16 b = static_cast<u16>(1u << bit);
				EXPECT_EQ(on ? bg | b : bg & ~b, sw(addr, page, reg));
				u32 out = 0xDEAD;
				ASSERT_EQ(RT_ERR_OK, get(&out));
				EXPECT_EQ(code, out);
			}
		}
	}

	// A selector the chip accepts but keeps no bit for: the setter changes
	// nothing, the getter reports 0, and neither touches the bus.
	void CheckBitless(std::function<s32(u32)> set, std::function<s32(u32 *)> get)
	{
		u32 out = 9;
		ClearTrace();
		EXPECT_EQ(RT_ERR_OK, set(1));
		EXPECT_EQ(RT_ERR_OK, get(&out));
		EXPECT_EQ(0u, out);
		EXPECT_TRUE(trace().empty());
	}
};

// An accessor with its leading arguments bound: Bound(f, port)(v) is f(port, v).
template <typename F, typename... A>
auto Bound(F f, A... a)
{
	return [=](auto v) { return f(a..., v); };
}

// The set and get functions of FieldRow for rtl8309n_<name>_set/_get, with
// leading arguments bound.
#define ACCESSORS(name, ...) \
	Bound(rtl8309n_##name##_set, ##__VA_ARGS__), Bound(rtl8309n_##name##_get, ##__VA_ARGS__)
