// Searching the web for a demo's map.

#include "demos/map_search.h"

#include "tests/unit/demos/demos_tab_fixture.h"

namespace zentar {
namespace {

using samples::DemoKind;

const std::string kPrefix = ZENTAR_MAP_SEARCH;

class MapSearchTest : public DemosTabTest {
  protected:
    MapSearchTest() {
        Use(kQuake2, "ctf");
        AddDemo("cap.dm2", DemoKind::Dm2,
                {.map = "q2ctf1", .levelName = "McKinley Revival - Part Two"});
        tab->RefreshDemoList();
    }
};

TEST_F(MapSearchTest, EachEntrySearchesForItsWords) {
    os.shell.ExpectOpen(kPrefix + "q2ctf1+McKinley+Revival+++Part+Two");
    Pick("cap", IDM_mnuDemosSearchAll);
    os.shell.ExpectOpen(kPrefix + "McKinley+Revival+++Part+Two");
    Pick("cap", IDM_mnuDemosSearchDesc);
    os.shell.ExpectOpen(kPrefix + "q2ctf1");
    Pick("cap", IDM_mnuDemosSearchMap);
}

TEST_F(MapSearchTest, ABrowserThatDoesNotOpenIsTold) {
    os.shell.ExpectOpen(kPrefix + "q2ctf1", FileError::NotFound);
    os.windows.Expect(
        Failure("Zentar couldn't open your web browser.\r\n\r\nPlease make sure that "
                "Windows has one set for web pages."));
    Pick("cap", IDM_mnuDemosSearchMap);
}

TEST(MapSearchAddressTest, NoByteOfADemoAddsAParameterOrAnotherAddress) {
    EXPECT_EQ(MapSearchAddress("a&b=c#d?e/f%g\\h\"i'j k\r\nl"),
              kPrefix + "a%26b%3Dc%23d%3Fe%2Ff%25g%5Ch%22i%27j%20k%0D%0Al");
    for (int byte = 0; byte < 256; ++byte) {
        const std::string address = MapSearchAddress(std::string(1, static_cast<char>(byte)));
        ASSERT_TRUE(address.starts_with(kPrefix));
        EXPECT_EQ(address.find_first_not_of("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                            "abcdefghijklmnopqrstuvwxyz-._~+%",
                                            kPrefix.size()),
                  std::string::npos)
            << byte;
    }
}

TEST(MapSearchAddressTest, LettersOfTheSecondHalfAreSentAsUtf8) {
    EXPECT_EQ(MapSearchAddress("Gr\xF6\xDF"
                               "e"),
              kPrefix + "Gr%C3%B6%C3%9Fe");
}

TEST(MapSearchAddressTest, AnEndlessNameIsCutBetweenCharacters) {
    const std::string address = MapSearchAddress(std::string(65'536, '\xF6'));
    EXPECT_LT(address.size(), 2000U);
    EXPECT_TRUE(address.ends_with("%C3%B6"));
}

}  // namespace
}  // namespace zentar
