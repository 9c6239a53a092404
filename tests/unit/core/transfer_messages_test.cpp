#include "core/transfer_messages.h"

#include <gtest/gtest.h>

namespace zentar {
namespace {

TEST(TransferMessagesTest, TheVerbsAreWhole) {
    EXPECT_EQ(messages::VerbOf(TransferVerb::Copy), "copy");
    EXPECT_EQ(messages::VerbOf(TransferVerb::Move), "move");
    EXPECT_EQ(messages::PastOf(TransferVerb::Copy), "copied");
    EXPECT_EQ(messages::PastOf(TransferVerb::Move), "moved");
}

TEST(TransferMessagesTest, AShortageOfSpaceNamesBothSizes) {
    const Message expected = {"Error",
                              "No space on your E drive to move this demo!\r\n\r\n"
                              "Demo's file size (bytes):\t4.294.967.296\r\n"
                              "Disk space free (bytes):\t0",
                              MessageIcon::Exclamation};
    EXPECT_EQ(messages::NoSpaceFor(TransferVerb::Move, {.thing = "demo",
                                                        .owner = "Demo's",
                                                        .drive = "E",
                                                        .length = 4'294'967'296,
                                                        .space = 0,
                                                        .separator = "."}),
              expected);
}

}  // namespace
}  // namespace zentar
