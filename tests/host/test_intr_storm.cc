// Interrupt controller and storm filters.
#include "regfield_check.h"

namespace {

class IntrStormTest : public FieldTest {};

TEST_F(IntrStormTest, InterruptEnableMaskAndStatus)
{
	u32 flag = 9, mask = 9;

	set_sw(0, 17, 16, 0x8000);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_enable_set(2, 0x1FFF));
	EXPECT_EQ(0x9FFF, sw(0, 17, 16)) << "flag 2 leaves the global enable alone";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_enable_set(0, 0x0005));
	EXPECT_EQ(0x0005, sw(0, 17, 16));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_enable_set(1, 0x1000));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_enable_get(&flag, &mask));
	EXPECT_EQ(std::make_pair(1u, 0x1000u), std::make_pair(flag, mask));

	set_sw(0, 17, 17, 0xE000);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_status_set(0x0123));
	EXPECT_EQ(0x0123, sw(0, 17, 17)) << "the whole register is written";
	set_sw(0, 17, 17, 0xF00F);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_intr_status_get(&mask));
	EXPECT_EQ(0x100Fu, mask);
}

// Control, rate and second value register of each storm type, page 8.
TEST_F(IntrStormTest, AttributesLandInTheTypesBlockInOrder)
{
	const u32 blocks[4][3] = {{22, 23, 24}, {19, 20, 21}, {19, 20, 21}, {16, 17, 18}};
	const rtl8309n_storm_attr in = {5, 0x1ABCD, 0x1234, 1};

	for (u32 type = 0; type < 4; type++) {
		SCOPED_TRACE("type " + std::to_string(type));
		const u32 ctrl = blocks[type][0];
		rtl8309n_storm_attr out = {};

		rtl8309n_sim_init(&sim());
		set_sw(7, 8, ctrl, type == 1 ? 0x0008 : 0x0000);
		ClearTrace();
		ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterAttr_set(7, type, &in));
		EXPECT_EQ(type == 2 ? 0x800A : 0x8002, sw(7, 8, ctrl))
			<< "ctrlFlag at bit 1, rate bit 16 at bit 15, type select for 1 and 2";
		EXPECT_EQ(0xABCD, sw(7, 8, blocks[type][1]));
		EXPECT_EQ(0x1234, sw(7, 8, blocks[type][2]));
		EXPECT_EQ(0x0001, sw(6, 14, 16));
		std::vector<std::pair<u32, u32>> order = {{7, ctrl}, {7, ctrl}, {7, ctrl + 1}};
		if (ctrl == 19)
			order.emplace_back(7, 19);
		order.insert(order.end(), {{7, ctrl + 2}, {6, 16}});
		EXPECT_EQ(order, DataWrites());

		ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterAttr_get(7, type, &out));
		EXPECT_EQ((std::vector<u32>{1, 0x1ABCD, 0x1234, 1}),
			  (std::vector<u32>{out.ctrlFlag, out.rate, out.param, out.globalFlag}));
	}
}

TEST_F(IntrStormTest, TypesOneAndTwoShareOneFilter)
{
	const rtl8309n_storm_attr attr = {0, 0, 0, 0};
	u32 one = 9, two = 9;

	ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterEnable_set(4, 2, 1));
	EXPECT_EQ(0x0009, sw(4, 8, 19));
	rtl8309n_storm_filterEnable_get(4, 1, &one);
	rtl8309n_storm_filterEnable_get(4, 2, &two);
	EXPECT_EQ(std::make_pair(0u, 1u), std::make_pair(one, two)) << "type 1 is not served";

	ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterStatus_set(4, 1, 1));
	EXPECT_EQ(0x000D, sw(4, 8, 19)) << "status leaves the type select alone";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_storm_filterAttr_set(4, 1, &attr));
	EXPECT_EQ(0x0005, sw(4, 8, 19)) << "type 1 attributes take the filter over";
	rtl8309n_storm_filterEnable_get(4, 1, &one);
	rtl8309n_storm_filterEnable_get(4, 2, &two);
	EXPECT_EQ(std::make_pair(1u, 0u), std::make_pair(one, two));
}

TEST_F(IntrStormTest, OwnBlockBitsAndRefusals)
{
	for (u32 type : {0u, 3u}) {
		const u32 ctrl = type ? 16 : 22;
		u32 en = 9, st = 9;

		set_sw(8, 8, ctrl, 0x8000);
		rtl8309n_storm_filterEnable_set(8, type, 1);
		rtl8309n_storm_filterStatus_set(8, type, 2);  // only exactly 1 sets
		EXPECT_EQ(0x8001, sw(8, 8, ctrl)) << "type " << type;
		rtl8309n_storm_filterEnable_get(8, type, &en);
		rtl8309n_storm_filterStatus_get(8, type, &st);
		EXPECT_EQ(std::make_pair(1u, 0u), std::make_pair(en, st));
	}

	u32 v;
	CheckRefused({
		{"intr mask 0x2000", [] { return rtl8309n_intr_enable_set(1, 0x2000); }},
		{"intr get null mask", [&] { return rtl8309n_intr_enable_get(&v, nullptr); }},
		{"status 0x2000", [] { return rtl8309n_intr_status_set(0x2000); }},
		{"enable port 9", [] { return rtl8309n_storm_filterEnable_set(9, 0, 1); }},
		{"attr type 4", [] { return rtl8309n_storm_filterAttr_set(0, 4, nullptr); }},
		{"status get port 9", [&] { return rtl8309n_storm_filterStatus_get(9, 0, &v); }},
	});
}

}  // namespace
