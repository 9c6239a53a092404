#include "core/settings_values.h"

#include <gtest/gtest.h>

namespace zentar {
namespace {

TEST(ParseByteTest, TakesWholeNumbersThatFitAByte) {
    EXPECT_EQ(ParseByte("0"), 0);
    EXPECT_EQ(ParseByte("255"), 255);
    EXPECT_EQ(ParseByte(" 7 "), 7);
    EXPECT_EQ(ParseByte("01"), 1);
}

TEST(ParseByteTest, AnythingElseDoesNotConvert) {
    for (const char* text : {"", " ", "256", "-1", "+1", "1x", "x", "1.5", "0x1", "1 1"}) {
        EXPECT_EQ(ParseByte(text), std::nullopt) << text;
    }
}

TEST(ParseTickTest, OnlyZeroAndOneTickABox) {
    EXPECT_EQ(ParseTick("0"), false);
    EXPECT_EQ(ParseTick("1"), true);
    EXPECT_EQ(ParseTick("2"), std::nullopt);
    EXPECT_EQ(ParseTick("yes"), std::nullopt);
}

TEST(ParseTruthTest, OnlyTheTwoWordsAreTruthValues) {
    EXPECT_EQ(ParseTruth("True"), true);
    EXPECT_EQ(ParseTruth("False"), false);
    EXPECT_EQ(ParseTruth("TRUE"), true);
    EXPECT_EQ(ParseTruth(" false "), false);
    EXPECT_EQ(ParseTruth("1"), std::nullopt);
    EXPECT_EQ(ParseTruth(""), std::nullopt);
    EXPECT_EQ(ParseTruth("Truely"), std::nullopt);
}

TEST(ParseLeadingNumberTest, TakesTheNumberThatTheTextBeginsWith) {
    EXPECT_EQ(ParseLeadingNumber("255"), 255);
    EXPECT_EQ(ParseLeadingNumber("-1"), -1);
    EXPECT_EQ(ParseLeadingNumber("+12"), 12);
    EXPECT_EQ(ParseLeadingNumber("  16711680 blue"), 16711680);
    EXPECT_EQ(ParseLeadingNumber("12.9"), 12);
    EXPECT_EQ(ParseLeadingNumber("-2147483648"), INT32_MIN);
}

TEST(ParseLeadingNumberTest, TextWithoutANumberIsZero) {
    EXPECT_EQ(ParseLeadingNumber(""), 0);
    EXPECT_EQ(ParseLeadingNumber("blue"), 0);
    EXPECT_EQ(ParseLeadingNumber("+-1"), 0);
}

TEST(ParseLeadingNumberTest, ANumberThatDoesNotFitDoesNotConvert) {
    EXPECT_EQ(ParseLeadingNumber("2147483648"), std::nullopt);
    EXPECT_EQ(ParseLeadingNumber("-99999999999"), std::nullopt);
}

}  // namespace
}  // namespace zentar
