#include "core/game_text.h"

#include <gtest/gtest.h>

namespace zentar {
namespace {

TEST(GameTextTest, EveryByteGoesToTheScreenAndBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    EXPECT_EQ(Utf8ToGameText(GameTextToUtf8(all)), all);
}

TEST(GameTextTest, BytesShowAsWindows1252) {
    EXPECT_EQ(GameTextToUtf8("\xE9\x80\x9F\x81"), "é€Ÿ\xC2\x81");
}

TEST(GameTextTest, ACharacterWithoutAByteBecomesItsUtf8) {
    EXPECT_EQ(Utf8ToGameText("aд\xF0\x9F\x98\x80"), "aд\xF0\x9F\x98\x80");
}

TEST(GameTextTest, BrokenUtf8LosesNoByte) {
    EXPECT_EQ(Utf8ToGameText("\xF0\x9F"), "\xF0\x9F");
    EXPECT_EQ(Utf8ToGameText("a\xC3"), "a\xC3");
}

TEST(GameTextTest, ALevelNameWithLineFeedsStaysOnOneLine) {
    EXPECT_EQ(GameTextOnOneLine("Terminal\nby WizardExt\t\x7F"), "Terminal by WizardExt  ");
}

}  // namespace
}  // namespace zentar
