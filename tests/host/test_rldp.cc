// Loop detection: RLDP control bits, attributes and the RLPP action.
#include "regfield_check.h"

#include <cstring>

namespace {

class RldpTest : public FieldTest {};

TEST_F(RldpTest, ControlBitsPlacementAndPolarity)
{
	CheckAll({
		{"enable (disable bit)", rtl8309n_rldp_enable_set, rtl8309n_rldp_enable_get,
		 4, 19, 14, 0, 1, true, 0},
		{"priority", rtl8309n_rldp_priEnable_set, rtl8309n_rldp_priEnable_get, 4, 19, 14, 4, 1, false, 0},
		{"ttl", rtl8309n_rldp_ttlEnable_set, rtl8309n_rldp_ttlEnable_get, 4, 19, 14, 7, 1, false, 0},
		{"storm filter (disable bit)", rtl8309n_rldp_stormFilterEnable_set,
		 rtl8309n_rldp_stormFilterEnable_get, 4, 19, 14, 12, 1, true, 0},
		{"vlan tag", rtl8309n_rldp_vlanTagEnable_set, rtl8309n_rldp_vlanTagEnable_get,
		 4, 19, 14, 13, 1, false, 0},
	});
	CheckCodeBit(rtl8309n_rlpp_action_set, rtl8309n_rlpp_action_get, 4, 19, 14, 1, 0, 2);

	// Unlike its siblings, the identifier flag takes any non-zero value.
	set_sw(4, 14, 19, 0x0000);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_identifierEnable_set(2));
	EXPECT_EQ(0x4000, sw(4, 14, 19));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_identifierEnable_set(0));
	EXPECT_EQ(0x0000, sw(4, 14, 19));
}

TEST_F(RldpTest, ControlAttributesAndTheSixteenQuirk)
{
	rtl8309n_rldp_controlAttr in = {3, 2, 9, {0x00, 0x11, 0x22, 0x33, 0x44, 0x55}};
	rtl8309n_rldp_controlAttr out = {};
	u32 v = 9;

	set_sw(4, 14, 19, 0x7FFF);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_controlAttr_set(&in));
	EXPECT_EQ(0x79DF, sw(4, 14, 19)) << "bits 3-2, 6-5, 11-8 replaced, the rest kept";
	EXPECT_EQ(0x1100, sw(4, 14, 16));
	EXPECT_EQ(0x5544, sw(4, 14, 18));
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_controlAttr_get(&out));
	EXPECT_EQ((std::vector<u32>{3, 2, 9}), (std::vector<u32>{out.attr1, out.attr2, out.attr3}));
	EXPECT_EQ(0, memcmp(in.mac, out.mac, 6));

	set_sw(4, 14, 19, 0x0000);
	in.attr3 = 16;
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_controlAttr_set(&in));
	EXPECT_EQ(0x1000, sw(4, 14, 19) & 0x1F00) << "16 lands on bit 12, field left 0";
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_stormFilterEnable_get(&v));
	EXPECT_EQ(0u, v) << "which reads as the storm filter disabled";

	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_protocol_set(0x1A5));
	EXPECT_EQ(0x00A5, sw(4, 14, 21)) << "8 bits written";
	set_sw(4, 14, 20, 0x8001);
	ASSERT_EQ(RT_ERR_OK, rtl8309n_rldp_loopStatus_get(&v));
	EXPECT_EQ(0x8001u, v);

	rtl8309n_rldp_controlAttr bad[] = {{0, 0, 17, {}}, {4, 0, 0, {}}, {0, 4, 0, {}}};
	CheckRefused({
		{"rlpp action 1", [] { return rtl8309n_rlpp_action_set(1); }},
		{"rlpp action 3", [] { return rtl8309n_rlpp_action_set(3); }},
		{"attr3 17", [&] { return rtl8309n_rldp_controlAttr_set(&bad[0]); }},
		{"attr1 4", [&] { return rtl8309n_rldp_controlAttr_set(&bad[1]); }},
		{"attr2 4", [&] { return rtl8309n_rldp_controlAttr_set(&bad[2]); }},
		{"attr get null", [] { return rtl8309n_rldp_controlAttr_get(nullptr); }},
		{"status get null", [] { return rtl8309n_rldp_loopStatus_get(nullptr); }},
	});
}

}  // namespace
