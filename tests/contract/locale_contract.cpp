#include "tests/contract/locale_contract.h"

#include "tests/doubles/scripted_services.h"

namespace zentar {

TEST_P(LocaleContract, TheSeparatorIsAtMostACharacterAndNoDigit) {
    const std::string separator = locale_->ThousandsSeparator();
    EXPECT_LE(separator.size(), 4U);
    EXPECT_EQ(separator.find_first_of("0123456789"), std::string::npos);
}

TEST_P(LocaleContract, ADateHasItsYearABlankAndItsTimeToTheSecond) {
    // Whatever the time zone, noon in July is in that month, and no zone shifts the seconds.
    const std::string date = locale_->GeneralDate(MakeFileTime(2003, 7, 15, 12, 34, 56));
    EXPECT_NE(date.find("03"), std::string::npos) << date;
    EXPECT_NE(date.find(' '), std::string::npos) << date;
    EXPECT_NE(date.find("56", date.find(' ')), std::string::npos) << date;
}

TEST_P(LocaleContract, MomentsASecondApartReadDifferently) {
    const FileTime moment = MakeFileTime(2003, 7, 15, 12, 34, 56);
    EXPECT_NE(locale_->GeneralDate(moment), locale_->GeneralDate(moment + 10'000'000));
    EXPECT_EQ(locale_->GeneralDate(moment), locale_->GeneralDate(moment + 1));
}

TEST_P(LocaleContract, NoMomentIsTooOddToBeShown) {
    for (const FileTime moment : {FileTime{0}, FileTime{1}, MakeFileTime(1980, 1, 1)}) {
        EXPECT_LT(locale_->GeneralDate(moment).size(), 100U);
    }
}

namespace {

std::unique_ptr<Locale> MakeFixedLocale() { return std::make_unique<FixedLocale>(); }

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, LocaleContract, testing::Values(&MakeFixedLocale));

TEST(FixedLocale, DatesAreReadable) {
    FixedLocale locale;
    EXPECT_EQ(locale.GeneralDate(MakeFileTime(2026, 11, 21, 13, 5, 9)), "2026-11-21 13:05:09");
    EXPECT_EQ(locale.GeneralDate(0), "1601-01-01 00:00:00");
}

}  // namespace zentar
