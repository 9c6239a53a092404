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
    EXPECT_EQ(
        messages::NoSpaceFor(
            TransferVerb::Move,
            {.thing = "demo", .drive = "E", .length = 4'294'967'296, .space = 0, .separator = "."}),
        expected);
}

TEST(TransferMessagesTest, EachNamesWhatIsCarriedAndWhereTheOriginalIs) {
    EXPECT_EQ(messages::ExistsInRemoteFolder("log").text,
              "Log already exists in Remote Folder -- Overwrite?");
    EXPECT_EQ(messages::OverwriteReadOnly("log").text,
              "Can't overwrite existing log due to it being read-only.\r\n"
              "Would you like me to remove this setting to force the overwrite?");
    EXPECT_EQ(messages::NotTransferred(TransferVerb::Move, "log", "ctf").text,
              "Log could not be moved to Remote Folder for some reason.\r\n"
              "This is most probably due to a lack of available disk space,\r\n"
              "and the original log still remains in its ctf sub-folder.");
    EXPECT_EQ(messages::PartlyTransferred(TransferVerb::Move, "Too little.", "log", "ctf").text,
              "Too little.\r\nThe partial move has been deleted and the original log remains in "
              "its\r\nctf sub-folder.");
    EXPECT_EQ(messages::MovedNotDeleted("log", "ctf").text,
              "Log was copied to Remote Folder, but could not be deleted\r\n"
              "and so the original log still remains in its ctf sub-folder.");
}

}  // namespace
}  // namespace zentar
