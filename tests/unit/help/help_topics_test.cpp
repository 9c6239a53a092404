// The list of the help window, entry by entry, and the way from an entry to its topic.

#include "help/help_topics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zentar {
namespace {

using ::testing::ElementsAreArray;

const std::vector<std::string> kEntries = {
    "READ THESE FIRST ",
    "     Author Details And Program Legal Information",
    "     Which games does Zentar support?",
    " ",
    "SCREENSHOTS ",
    "     Refreshing The Screenshots List",
    "     Viewing Your Game Screenshots",
    "     Converting A Screenshot To JPG Format",
    "     Setting A Screenshot As The System Wallpaper",
    "     Renaming A Screenshot",
    "     Deleting A Screenshot (Or Its Preview Image)",
    "     Deleting All Screenshots Of A Certain Type",
    "     Deleting All Wallpaper Images",
    "     Copying/Moving A Screenshot To Remote Folder",
    " ",
    "DEMOS ",
    "     Refreshing The Demos List",
    "     Viewing A Demo's Properties (Map, Name, etc)",
    "     Listing All Demos That Meet A Specific Criteria",
    "     Playing Back A Demo",
    "     Renaming A Demo",
    "     Renaming A Demo With Its Map As Prefix",
    "     Deleting A Demo",
    "     Deleting All Listed Demos",
    "     Copying/Moving A Demo To The Remote Folder",
    "     Installing A Folder Of Demos To Its Quake Folder",
    "     Finding A Map Needed To Play Back A Demo",
    " ",
    "MISCELLANEOUS TOOLS ",
    "     Creating A Chat Transcript",
    "     User-Friendly \"Q3Config.cfg\" Editing",
    "     Backing Up A Quake 3 Single-Player Game",
    "     Restoring A Backed-Up Quake 3 Single-Player Game",
    "     Renaming A Backed-Up Quake 3 Single-Player Game",
    "     Deleting A Backed-Up Quake 3 Single-Player Game",
    " ",
    "QUAKE 3 COLOURED TEXT ",
    "     Creating A Coloured Name Or Speech Message",
    "     Saving Your Coloured Text For Later Editing",
    "     Opening Your Saved Coloured Text For Re-Editing",
    "     Renaming Your Saved Coloured Text",
    "     Deleting Unwanted Saved Coloured Text",
    " ",
    "FIRST AID ",
    "     Introduction To First Aid",
    "     How To Use First Aid",
    " ",
    "TROUBLESHOOTING ",
    "     Zentar Seems Very Slow To Start When Launching",
    "     Zentar Seems Very Slow When Switching Mods",
    "     No Screenshots Or Demos Are Being Listed",
    "     Screenshots Are Not Being Shown In Their Entirety",
    "     Screenshot Previews Sometimes Look Scrambled",
    "     'List All Available Demos' Keeps Turning On By Itself",
    "     Black Characters In Your Quake 3 Player Name",
};

TEST(HelpTopicsTest, TheListIsAsUsersKnowIt) {
    EXPECT_EQ(kEntries.size(), 55U);
    EXPECT_THAT(HelpEntries(), ElementsAreArray(kEntries));
}

TEST(HelpTopicsTest, EveryIndentedEntryHasATopicAndNoOtherHas) {
    int topics = 0;
    for (const std::string& entry : HelpEntries()) {
        const HelpTopic* topic = TopicOfEntry(entry);
        EXPECT_EQ(topic != nullptr, entry.starts_with("     ")) << entry;
        if (topic != nullptr) {
            ++topics;
            EXPECT_EQ(EntryOfTopic(topic->title), entry);
        }
    }
    EXPECT_EQ(topics, 42);
}

TEST(HelpTopicsTest, AnEntryThatIsNotInTheListHasNoTopic) {
    EXPECT_EQ(TopicOfEntry(""), nullptr);
    EXPECT_EQ(TopicOfEntry("     "), nullptr);
    EXPECT_EQ(TopicOfEntry("     Renaming A Demo "), nullptr);
    EXPECT_EQ(TopicOfEntry("     Renaming"), nullptr);
    EXPECT_NE(TopicOfEntry("Renaming A Demo"), nullptr);
}

TEST(HelpTopicsTest, ATitleIsFoundOnlyAsItIsWritten) {
    ASSERT_NE(FindHelpTopic("Renaming A Demo"), nullptr);
    EXPECT_EQ(FindHelpTopic("Renaming A Demo")->title, "Renaming A Demo");
    EXPECT_EQ(FindHelpTopic("renaming a demo"), nullptr);
    EXPECT_EQ(FindHelpTopic(" Renaming A Demo"), nullptr);
    EXPECT_EQ(FindHelpTopic("DEMOS "), nullptr);
    EXPECT_EQ(FindHelpTopic(""), nullptr);
}

TEST(HelpTopicsTest, EachTabHasItsSection) {
    EXPECT_EQ(HeadingForTab(0), "SCREENSHOTS ");
    EXPECT_EQ(HeadingForTab(1), "DEMOS ");
    EXPECT_EQ(HeadingForTab(2), "MISCELLANEOUS TOOLS ");
    EXPECT_EQ(HeadingForTab(3), "QUAKE 3 COLOURED TEXT ");
    EXPECT_EQ(HeadingForTab(4), "FIRST AID ");
    EXPECT_EQ(HeadingForTab(5), "READ THESE FIRST ");
    EXPECT_EQ(HeadingForTab(-1), "READ THESE FIRST ");
}

}  // namespace
}  // namespace zentar
