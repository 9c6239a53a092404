// The buttons that give the code away: to the clipboard and to the game's configuration.

#include <algorithm>

#include "q3tools/colour_codes.h"
#include "tests/doubles/faulty_file_system.h"
#include "tests/unit/q3tools/q3_text_fixture.h"

namespace zentar {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// ---- Clipboard ----

class Q3TextClipboardTest : public Q3TextTabTest {
  protected:
    Q3TextClipboardTest() { TypeTwoColours(); }

    const Message really_ = Confirm("Really copy the code to the Windows clipboard?");
};

TEST_F(Q3TextClipboardTest, TheCodeIsCopiedOnYesOnly) {
    os.windows.clipboard = "before";
    os.windows.Expect(really_, Answer::No);
    Click(IDC_cmdQ3TextClipboard);
    EXPECT_EQ(os.windows.clipboard, "before");
    os.windows.Expect(really_, Answer::Yes);
    Click(IDC_cmdQ3TextClipboard);
    EXPECT_EQ(os.windows.clipboard, "seta name \"^1A^7b\"");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(Q3TextClipboardTest, InExpertModeNobodyIsAsked) {
    state.settings.Expert = 1;
    Click(IDC_cmdQ3TextClipboard);
    EXPECT_EQ(os.windows.clipboard, "seta name \"^1A^7b\"");
}

TEST_F(Q3TextClipboardTest, ABackslashStandsBeforeItOnRequestWhateverItIsFor) {
    state.settings.Expert = 1;
    Click(IDC_chkQ3TextAddSlash);
    const std::vector<std::pair<int, std::string>> uses = {
        {IDC_optQ3TextServer, "\\seta sv_hostname \"^1A^7b\""},
        {IDC_optQ3TextPublic, "\\bind pause \"say ^1A^7b\""},
        {IDC_optQ3TextTeam, "\\bind pause \"say_team ^1A^7b\""},
        {IDC_optQ3TextAttacker, "\\bind pause \"tell_attacker ^1A^7b\""},
        {IDC_optQ3TextTarget, "\\bind pause \"tell_target ^1A^7b\""},
        {IDC_optQ3TextName, "\\seta name \"^1A^7b\""}};
    for (const auto& [button, copied] : uses) {
        Click(button);
        Click(IDC_cmdQ3TextClipboard);
        EXPECT_EQ(os.windows.clipboard, copied);
    }
    EXPECT_EQ(Code(), "seta name \"^1A^7b\"");
    Click(IDC_chkQ3TextAddSlash);
    Click(IDC_cmdQ3TextClipboard);
    EXPECT_EQ(os.windows.clipboard, "seta name \"^1A^7b\"");
}

TEST_F(Q3TextClipboardTest, ACopyThatFailsIsToldOf) {
    state.settings.Expert = 1;
    os.windows.clipboardAnswer = FileError::InUse;
    os.windows.Expect(
        Failure("The code couldn't be copied to the Windows clipboard.\r\n\r\n"
                "Another program is using it at the moment."));
    Click(IDC_cmdQ3TextClipboard);
    EXPECT_EQ(os.windows.clipboard, "");
}

// ---- The configuration ----

class Q3ConfigTest : public Q3TextTabTest {
  protected:
    Q3ConfigTest() {
        TypeTwoColours();
        os.files.AddFile(config_, "seta x \"1\"\r\n");
    }

    void Add() { Click(IDC_cmdQ3TextQ3Config); }
    // What the file holds after the code was added to these bytes.
    std::string AfterAddingTo(const std::string& bytes) {
        state.settings.Expert = 1;
        os.files.AddFile(config_, bytes);
        Add();
        return os.files.Contents(config_);
    }

    const std::string config_ = "C:\\Quake3\\baseq3\\q3config.cfg";
    const std::string line_ = "seta name \"^1A^7b\"\r\n";
    const Message noFolder_ = {"Folder Error",
                               "The correct folder for Quake3 is not specified!\r\n\r\n"
                               "Zentar can't carry out the requested task because it doesn't\r\n"
                               "know where Quake3 is.  Ensure that Quake3 is selected under\r\n"
                               "the \"Game\" menu, followed by \"Specify Folder\".  Then browse\r\n"
                               "to your Quake3 folder and try this function again.  Good luck!",
                               MessageIcon::Exclamation};
    const Message really_ = Confirm("Really add the code to \"q3config.cfg\" ?");
    const Message readOnly_ = Question(
        "Couldn't add to \"q3config.cfg\" due to it being set as read-only.\r\n"
        "Would you like me to remove this setting to force the addition?");
};

TEST_F(Q3ConfigTest, TheCodeIsAppendedOnYesOnly) {
    os.windows.Expect(really_, Answer::No);
    Add();
    EXPECT_EQ(os.files.Contents(config_), "seta x \"1\"\r\n");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    os.windows.Expect(really_, Answer::Yes);
    os.log.Clear();
    Add();
    EXPECT_EQ(os.files.Contents(config_), "seta x \"1\"\r\n" + line_);
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information));
    EXPECT_TRUE(os.log.Ordered({"Ask Confirm", "ClearAttributes " + config_,
                                "OpenForWriting " + config_, "Sound Information"}));
}

// What is missing first is told first.
TEST_F(Q3ConfigTest, WithoutTheGameNobodyLooksForItsFile) {
    os.files.Remove("C:\\Quake3\\quake3.exe");
    os.files.Remove(config_);
    os.windows.Expect(noFolder_);
    Add();
}

// A power cut can leave the config under the name that its conversion gave it.
TEST_F(Q3ConfigTest, AConfigLostBetweenItsTwoNamesIsThereAgain) {
    const std::string converted = "// generated by zentar, feel free to modify\r\n";
    os.files.Remove(config_);
    os.files.AddFile(config_ + "-", converted);
    state.settings.Expert = 1;
    Add();
    EXPECT_EQ(os.files.Contents(config_), converted + line_);
}

TEST_F(Q3ConfigTest, TwiceIsTwoLines) {
    state.settings.Expert = 1;
    Add();
    Click(IDC_optQ3TextPublic);
    Add();
    EXPECT_EQ(os.files.Contents(config_),
              "seta x \"1\"\r\n" + line_ + "bind pause \"say ^1A^7b\"\r\n");
    EXPECT_THAT(os.windows.Sounds(), ElementsAre(Beep::Information, Beep::Information));
}

TEST_F(Q3ConfigTest, TheSlashIsForTheClipboardOnly) {
    Click(IDC_chkQ3TextAddSlash);
    EXPECT_EQ(AfterAddingTo(""), line_);
}

TEST_F(Q3ConfigTest, ALastLineWithoutAnEndGetsOne) {
    EXPECT_EQ(AfterAddingTo("seta x \"1\""), "seta x \"1\"\r\n" + line_);
    EXPECT_EQ(AfterAddingTo("seta x \"1\"\n"), "seta x \"1\"\n" + line_);
    EXPECT_EQ(AfterAddingTo("seta x \"1\"\r"), "seta x \"1\"\r" + line_);
    EXPECT_EQ(AfterAddingTo(""), line_);
}

// Where the file's end cannot be seen, an empty line does no harm, but a joined one would.
TEST_F(Q3ConfigTest, ALastLineThatCannotBeReadIsNotJoined) {
    state.settings.Expert = 1;
    FaultyFileSystem faulty(os.files);
    tab = std::make_unique<Q3TextTab>(state, os.Services(faulty), Q3TextControlsOf(*window));
    for (const std::string& bytes : std::vector<std::string>{"seta x \"1\"", "seta x \"1\"\r\n"}) {
        for (const std::string call : {"OpenForReading ", "Length ", "ReadAt "}) {
            os.files.AddFile(config_, bytes);
            faulty.Restart();
            Add();
            const std::vector<std::string> calls = faulty.Calls();
            const auto at = std::find(calls.begin(), calls.end(), call + config_);
            ASSERT_NE(at, calls.end()) << call;
            os.files.AddFile(config_, bytes);
            faulty.Restart();
            faulty.FailAt(static_cast<int>(at - calls.begin()) + 1, FileError::InUse);
            Add();
            EXPECT_EQ(os.files.Contents(config_), bytes + "\r\n" + line_) << call;
        }
    }
}

TEST_F(Q3ConfigTest, LettersAreTheGamesOwnBytes) {
    Editor().Select(0, 2);
    Editor().Paste({{"\xC3\xA9\xE2\x82\xAC\xC2\x81\xC3\xBF", kQ3White}, {"\xD0\xB4", kQ3White}});
    EXPECT_EQ(AfterAddingTo(""), "seta name \"^7\xE9\x80\x81\xFF\xD0\xB4\"\r\n");
}

TEST_F(Q3ConfigTest, AllBytesFrom128To255AreWrittenAsSuch) {
    std::string bytes;
    std::string text;
    const std::string unassigned = "\x81\x8D\x8F\x90\x9D";
    for (int byte = 0xA0; byte <= 0xFF; ++byte) {
        bytes += static_cast<char>(byte);
        text += byte < 0xC0 ? '\xC2' : '\xC3';
        text += static_cast<char>(byte < 0xC0 ? byte : byte - 0x40);
    }
    for (const char byte : unassigned) {
        bytes += byte;
        text += '\xC2';
        text += byte;
    }
    Editor().Select(0, 2);
    Editor().Paste({{text, kQ3White}});
    EXPECT_EQ(AfterAddingTo(""), "seta name \"^7" + bytes + "\"\r\n");
}

TEST_F(Q3ConfigTest, AReadOnlyFileAsksInExpertModeToo) {
    state.settings.Expert = 1;
    os.files.SetReadOnly(config_);
    os.windows.Expect(readOnly_, Answer::No);
    Add();
    EXPECT_EQ(os.files.Contents(config_), "seta x \"1\"\r\n");
    EXPECT_TRUE(os.files.IsReadOnly(config_));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    os.windows.Expect(readOnly_, Answer::Yes);
    Add();
    EXPECT_EQ(os.files.Contents(config_), "seta x \"1\"\r\n" + line_);
    EXPECT_FALSE(os.files.IsReadOnly(config_));
}

TEST_F(Q3ConfigTest, AReadOnlyFileAsksTwiceOtherwise) {
    os.files.SetReadOnly(config_);
    os.windows.Expect(really_, Answer::Yes);
    os.windows.Expect(readOnly_, Answer::Yes);
    Add();
    EXPECT_EQ(os.files.Contents(config_), "seta x \"1\"\r\n" + line_);
}

TEST_F(Q3ConfigTest, WithoutTheFileTheUserIsToldHowToGetOne) {
    const Message none = Failure(
        "There is no \"q3config.cfg\" file to add to!\r\n\r\n"
        "For some strange reason, this file doesn't currently exist.\r\n"
        "You should start Quake 3 so that it can create this file,\r\n"
        "and then come back and select this option again.");
    os.files.Remove(config_);
    os.windows.Expect(none);
    Add();
    os.files.AddFolder(config_ + "\\");
    os.windows.Expect(none);
    Add();
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(Q3ConfigTest, TheFolderIsThatOfQuake3WhateverTheCurrentGame) {
    state.settings.Expert = 1;
    os.files.Remove("C:\\Quake3\\quake3.exe");
    for (const std::string game : {"Quake1", "Quake2", "Quake3", "Quake4"}) {
        state.settings.Game = game;
        os.windows.Expect(noFolder_);
        Add();
    }
    EXPECT_EQ(os.files.Contents(config_), "seta x \"1\"\r\n");
    os.files.AddFile("C:\\Quake3\\quake3.exe", "game");
    for (const std::string game : {"Quake1", "Quake2", "Quake3", "Quake4"}) {
        state.settings.Game = game;
        EXPECT_EQ(AfterAddingTo(""), line_) << game;
    }
}

TEST_F(Q3ConfigTest, AnAdditionThatFailsIsToldOf) {
    state.settings.Expert = 1;
    const Message failure = Failure(
        "The code couldn't be added to \"q3config.cfg\".\r\n\r\n"
        "The file may be in use, or its drive may be full.");
    os.files.SetLocked(config_);
    os.windows.Expect(failure);
    Add();
    os.files.SetLocked(config_, false);
    EXPECT_EQ(os.files.Contents(config_), "seta x \"1\"\r\n");
    os.files.SetFreeSpace("C:\\", 0);
    os.windows.Expect(failure);
    Add();
    EXPECT_EQ(os.files.Contents(config_), "seta x \"1\"\r\n");
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
}

TEST_F(Q3ConfigTest, TheLineIsOnTheDiskBeforeTheBeep) {
    state.settings.Expert = 1;
    FaultyFileSystem faulty(os.files);
    tab = std::make_unique<Q3TextTab>(state, os.Services(faulty), Q3TextControlsOf(*window));
    faulty.Restart();
    Add();
    const std::vector<std::string>& calls = faulty.Calls();
    ASSERT_GE(calls.size(), 4U);
    EXPECT_THAT(std::vector<std::string>(calls.end() - 4, calls.end()),
                ElementsAre("OpenForWriting " + config_, "Write " + config_, "Flush " + config_,
                            "Close " + config_));
    for (std::size_t back = 0; back < 4; ++back) {
        os.windows.Expect(
            Failure("The code couldn't be added to \"q3config.cfg\".\r\n\r\n"
                    "The file may be in use, or its drive may be full."));
        const int call = static_cast<int>(faulty.Calls().size() - back);
        faulty.Restart();
        faulty.FailAt(call, FileError::Other);
        Add();
        faulty.Restart();
        Add();
    }
    EXPECT_EQ(os.windows.Sounds().size(), 5U);
}

// ---- Both ----

TEST_F(Q3ConfigTest, AClickWhileAQuestionStandsDoesNothing) {
    int clicks = 0;
    os.windows.Expect(really_, Answer::No, [this, &clicks] {
        ++clicks;
        Add();
        Click(IDC_cmdQ3TextClipboard);
        Click(IDC_cmdQ3TextSave);
        Click(IDC_cmdQ3TextOpen);
    });
    Add();
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace zentar
