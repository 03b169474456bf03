#include "notes/source_table.h"

#include <gtest/gtest.h>

#include <set>

namespace tarn::test {
namespace {

using namespace notes;
using enum notes::Source;

TEST(SourceTable, AttributesHaveNamesAndTheRestHasWords) {
    std::set<std::string_view> names;
    for (std::size_t i = 0; i < sourceCount; ++i) {
        const SourceRow& row = rowOf(static_cast<Source>(i));
        EXPECT_EQ(row.name.empty(), i >= attributeCount) << i;
        EXPECT_EQ(row.words.empty(), i < attributeCount) << i;
        if (!row.name.empty()) {
            EXPECT_TRUE(names.insert(row.name).second) << row.name << " twice";
        }
    }
    EXPECT_EQ(names.size(), 119U);  // 46 of the head, 36 of its parcels, 12, 2 and 23 of an item
}

TEST(SourceTable, TheAttributesOfAParcelFollowEachOther) {
    for (int parcel = 1; parcel <= mostParcels; ++parcel) {
        const std::string number = std::to_string(parcel);
        EXPECT_EQ(rowOf(ofParcel(NR_DOC1, parcel)).name, "NR_DOC" + number);
        EXPECT_EQ(rowOf(ofParcel(VL_PRN_DOC1, parcel)).name, "VL_PRN_DOC" + number);
        EXPECT_EQ(rowOf(ofParcel(DT_VNC_DOC1, parcel)).name, "DT_VNC_DOC" + number);
    }
}

// The two that the server spells in small letters too.
TEST(SourceTable, NamesAreTheServers) {
    EXPECT_EQ(rowOf(Ent_Sai).name, "Ent_Sai");
    EXPECT_EQ(rowOf(NatOper).name, "NatOper");
    EXPECT_EQ(rowOf(VALOR_BAS_ICMS_RTD).name, "VALOR_BAS_ICMS_RTD");
    EXPECT_EQ(rowOf(VL_LIQ_IT).name, "VL_LIQ_IT");
}

TEST(SourceTable, ARuleFitsItsOwnSourceAndPlainOnesFitAnyAttribute) {
    EXPECT_TRUE(fits(CFOP, Rule::AsText));
    EXPECT_TRUE(fits(ICMS, Rule::AsAmount));
    EXPECT_TRUE(fits(QTDE, Rule::General));
    EXPECT_FALSE(fits(ICMS, Rule::General));
    EXPECT_FALSE(fits(NR_DOC, Rule::AsText));
    EXPECT_FALSE(fits(ServiceSum, Rule::Masked));
    EXPECT_FALSE(fits(VALOR_TOTAL, Rule::ProductTotal));
}

TEST(SourceTable, WhatBelongsToAnItemOrAParcel) {
    EXPECT_TRUE(isOfItem(CD_PRO));
    EXPECT_TRUE(isOfItem(LineTotal));
    EXPECT_FALSE(isOfItem(QuantitySum));
    EXPECT_FALSE(isOfItem(VALOR_TOTAL));
    EXPECT_TRUE(isOfParcel(rowOf(DT_VNC_DOC).rule));
    EXPECT_FALSE(isOfParcel(rowOf(NoteNumber).rule));
}

}  // namespace
}  // namespace tarn::test
