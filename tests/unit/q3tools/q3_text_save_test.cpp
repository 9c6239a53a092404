// Saving coloured texts and opening them again.

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/rtf/rtf_reader.h"
#include "q3tools/colour_codes.h"
#include "q3tools/q3_text_files.h"
#include "tests/unit/q3tools/q3_text_fixture.h"

namespace zentar {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

using Runs = std::vector<ColouredRun>;

// ---- The name that is suggested ----

TEST(SuggestedFileName, HasWordsForWhatNoNameMayHold) {
    EXPECT_EQ(SuggestedFileName("\""), "'");
    EXPECT_EQ(SuggestedFileName("\\"), "[BS]");
    EXPECT_EQ(SuggestedFileName("/"), "[FS]");
    EXPECT_EQ(SuggestedFileName(":"), "[C]");
    EXPECT_EQ(SuggestedFileName("?"), "[Q]");
    EXPECT_EQ(SuggestedFileName("*"), "[A]");
    EXPECT_EQ(SuggestedFileName("<"), "[LB]");
    EXPECT_EQ(SuggestedFileName(">"), "[RB]");
    EXPECT_EQ(SuggestedFileName("|"), "[P]");
    EXPECT_EQ(SuggestedFileName("a/b:c"), "a[FS]b[C]c");
    EXPECT_EQ(SuggestedFileName("??|[Q]"), "[Q][Q][P][Q]");
    EXPECT_EQ(SuggestedFileName("Gr\xC3\xB6\xC3\x9F"
                                "e '^1"),
              "Gr\xC3\xB6\xC3\x9F"
              "e '^1");
    EXPECT_EQ(SuggestedFileName(""), "");
}

TEST(LoadColouredText, TakesOfPlainTextWhatItTakesOfRichText) {
    MemoryFileSystem files;
    files.AddFile("C:\\a.ini", std::string(1024 * 1024, 'x'));
    const auto runs = LoadColouredText(files, "C:\\a.ini");
    ASSERT_TRUE(runs.Ok());
    ASSERT_EQ(runs.Value().size(), 1U);
    EXPECT_EQ(runs.Value().front().text.size(), 65'536U);
    EXPECT_EQ(runs.Value().front().colour, kQ3Black);
}

TEST(LoadColouredText, TellsWhyThereIsNone) {
    MemoryFileSystem files;
    files.AddFile("C:\\a.ini", std::string(1024 * 1024 + 1, 'x'));
    EXPECT_EQ(LoadColouredText(files, "C:\\a.ini").Error(), FileError::NoSpace);
    EXPECT_EQ(LoadColouredText(files, "C:\\b.ini").Error(), FileError::NotFound);
}

class Q3TextSaveTest : public Q3TextTabTest {
  protected:
    void ExpectSaveDialog(const std::string& name, std::optional<std::string> chosen) {
        os.windows.ExpectFileToSave({.title = "Save Quake 3 coloured text",
                                     .folder = folder_,
                                     .name = name,
                                     .kinds = {{"Quake 3 coloured text (*.ini)", "*.ini"}}},
                                    std::move(chosen));
    }
    void ExpectOpenDialog(std::optional<std::string> chosen) {
        os.windows.ExpectFileToOpen({.title = "Open Quake 3 coloured text",
                                     .folder = folder_,
                                     .name = "",
                                     .kinds = {{"Quake 3 coloured text (*.ini)", "*.ini"}}},
                                    std::move(chosen));
    }
    void Save(const std::string& name, const std::string& path) {
        ExpectSaveDialog(name, path);
        Click(IDC_cmdQ3TextSave);
    }
    void Open(const std::string& path) {
        ExpectOpenDialog(path);
        Click(IDC_cmdQ3TextOpen);
    }
    // What a file holds now, as the editor would show it.
    Runs Saved(const std::string& path) {
        return ReadRtf(os.files.Contents(path)).value_or(Runs{{"(no rich text)", 0}});
    }

    const std::string path_ = "c:\\zentar\\data\\q3text\\Ab.ini";
    const Message overwrite_ = Confirm("Really overwrite the existing \"Ab\" coloured text file?");
    const Message readOnly_ = Question(
        "Couldn't overwrite the file due to it being set as read-only.\r\n"
        "Would you like me to remove this setting to force the overwrite?");
    const Runs twoColours_ = {{"A", kQ3Red}, {"b", kQ3White}};
};

// ---- Saving ----

TEST_F(Q3TextSaveTest, AFileHoldsTheCharactersAndTheirColours) {
    TypeTwoColours();
    Save("Ab", path_);
    EXPECT_EQ(Saved(path_), twoColours_);
    EXPECT_EQ(state.settings.Q3TextText, path_);
    EXPECT_THAT(os.files.Names(folder_), ElementsAre("Ab.ini"));
    EXPECT_THAT(os.windows.Sounds(), IsEmpty());
    EXPECT_EQ(Content().runs, twoColours_);
}

TEST_F(Q3TextSaveTest, TheNameIsSuggested) {
    Type("\"a\"\\/:?*<>|z");
    ExpectSaveDialog("'a'[BS][FS][C][Q][A][LB][RB][P]z", std::nullopt);
    Click(IDC_cmdQ3TextSave);
}

TEST_F(Q3TextSaveTest, CancelAndAnEmptyPathEndIt) {
    TypeTwoColours();
    ExpectSaveDialog("Ab", std::nullopt);
    Click(IDC_cmdQ3TextSave);
    ExpectSaveDialog("Ab", "");
    Click(IDC_cmdQ3TextSave);
    EXPECT_THAT(os.files.Names(folder_), IsEmpty());
    EXPECT_EQ(state.settings.Q3TextText, "");
}

TEST_F(Q3TextSaveTest, AFileThatIsThereIsOverwrittenOnYesOnly) {
    TypeTwoColours();
    os.files.AddFile(path_, "older");
    os.windows.Expect(overwrite_, Answer::No);
    Save("Ab", path_);
    EXPECT_EQ(os.files.Contents(path_), "older");
    EXPECT_EQ(state.settings.Q3TextText, "");
    os.windows.Expect(overwrite_, Answer::Yes);
    Save("Ab", path_);
    EXPECT_EQ(Saved(path_), twoColours_);
    EXPECT_EQ(state.settings.Q3TextText, path_);
}

TEST_F(Q3TextSaveTest, TheQuestionNamesTheFileWithoutItsLastFourCharacters) {
    TypeTwoColours();
    for (const auto& [name, shown] :
         std::vector<std::pair<std::string, std::string>>{{"my.best.ini", "my.best"},
                                                          {"x.text", "x."},
                                                          {"abc", ""},
                                                          {"abcd", ""},
                                                          {"Gr\xC3\xB6\xC3\x9F"
                                                           "e.\xD0\xB4\xD1\x83\xD1\x8D",
                                                           "Gr\xC3\xB6\xC3\x9F"
                                                           "e"}}) {
        os.files.AddFile("D:\\" + name, "older");
        os.windows.Expect(
            Confirm("Really overwrite the existing \"" + shown + "\" coloured text file?"),
            Answer::No);
        Save("Ab", "D:\\" + name);
    }
}

TEST_F(Q3TextSaveTest, AReadOnlyFileAsksTwice) {
    TypeTwoColours();
    os.files.AddFile(path_, "older");
    os.files.SetReadOnly(path_);
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(readOnly_, Answer::No);
    Save("Ab", path_);
    EXPECT_EQ(os.files.Contents(path_), "older");
    EXPECT_TRUE(os.files.IsReadOnly(path_));
    EXPECT_EQ(state.settings.Q3TextText, "");
    os.windows.Expect(overwrite_, Answer::Yes);
    os.windows.Expect(readOnly_, Answer::Yes);
    Save("Ab", path_);
    EXPECT_EQ(Saved(path_), twoColours_);
    EXPECT_FALSE(os.files.IsReadOnly(path_));
}

TEST_F(Q3TextSaveTest, InExpertModeOnlyTheReadOnlyOneAsks) {
    state.settings.Expert = 1;
    TypeTwoColours();
    os.files.AddFile(path_, "older");
    Save("Ab", path_);
    EXPECT_EQ(Saved(path_), twoColours_);
    os.files.SetReadOnly(path_);
    os.windows.Expect(readOnly_, Answer::Yes);
    Save("Ab", path_);
}

TEST_F(Q3TextSaveTest, AnOlderFileLosesItsAttributesBeforeItIsReplaced) {
    state.settings.Expert = 1;
    TypeTwoColours();
    os.files.AddFile(path_, "older");
    os.files.SetHidden(path_);
    Save("Ab", path_);
    EXPECT_TRUE(
        os.log.Ordered({"ClearAttributes " + path_, "OpenForWriting " + path_ + ".zentar-new",
                        "Replace " + path_ + ".zentar-new -> " + path_}));
}

TEST_F(Q3TextSaveTest, ASaveThatFailsIsToldOfAndLeavesTheOlderFile) {
    state.settings.Expert = 1;
    TypeTwoColours();
    os.files.AddFile(path_, "older");
    os.files.SetFreeSpace("C:\\", 10);
    const Message failure = Failure(
        "This coloured text couldn't be saved.\r\n\r\n"
        "The folder may be protected, or its drive may be full.");
    os.windows.Expect(failure);
    Save("Ab", path_);
    EXPECT_EQ(os.files.Contents(path_), "older");
    EXPECT_THAT(os.files.Names(folder_), ElementsAre("Ab.ini"));
    os.windows.Expect(failure);
    Save("Ab", "E:\\no such drive\\a.ini");
    os.windows.Expect(failure);
    Save("Ab", "c:\\zentar\\data\\q3text");
    EXPECT_EQ(state.settings.Q3TextText, "c:\\zentar\\data\\q3text");
}

TEST_F(Q3TextSaveTest, TheCurrentOneIsWrittenOnlyUnderItsName) {
    TypeTwoColours();
    Save("Ab", path_);
    Open(path_);
    EXPECT_FALSE(os.files.Exists(folder_ + "current.ini"));
    Save("Ab", folder_ + "current.ini");
    Type("c");
    state.settings.Q3TextText = "";
    Restart();
    EXPECT_EQ(Content().runs, twoColours_);
}

// ---- Opening ----

TEST_F(Q3TextSaveTest, WhatWasSavedIsOpenedAgain) {
    TypeTwoColours();
    Save("Ab", path_);
    Type("cd");
    Open(path_);
    EXPECT_EQ(Content().runs, twoColours_);
    EXPECT_EQ(Code(), "seta name \"^1A^7b\"");
    EXPECT_EQ(state.settings.Q3TextText, path_);
}

TEST_F(Q3TextSaveTest, AllCharactersComeBack) {
    Editor().Paste({{"{\\rtf1} \xC3\xA4\xE2\x82\xAC\xD0\xB4", kQ3Red},
                    {"\xF0\x9F\x98\x80 ^1'\xC2\x81", kQ3Black},
                    {" ", 0x123456}});
    const Runs typed = Content().runs;
    ExpectSaveDialog(SuggestedFileName(Text()), path_);
    Click(IDC_cmdQ3TextSave);
    Open(path_);
    EXPECT_EQ(Content().runs, typed);
}

// The most that the editor holds, as long as a file can be with the colours of its buttons.
TEST_F(Q3TextSaveTest, TheLongestTextInTurningColoursIsOpenedAgain) {
    Runs longest;
    for (int i = 0; i < kMostRichText; ++i) {
        longest.push_back({"\xE8\x80\x80", i % 2 == 0 ? kQ3Red : kQ3White});
    }
    Editor().Paste(longest);
    ASSERT_EQ(Content().runs.size(), longest.size());
    ExpectSaveDialog(Text(), path_);
    Click(IDC_cmdQ3TextSave);
    Type("x");
    Open(path_);
    EXPECT_TRUE(Content().runs == longest);
}

TEST_F(Q3TextSaveTest, CancelAndAnEmptyPathOpenNothing) {
    Type("x");
    ExpectOpenDialog(std::nullopt);
    Click(IDC_cmdQ3TextOpen);
    Open("");
    EXPECT_EQ(Text(), "x");
    EXPECT_EQ(state.settings.Q3TextText, "");
}

TEST_F(Q3TextSaveTest, AFileOfPlainTextIsShownInBlackOnOneLine) {
    os.files.AddFile(path_, "say \"hi\"\r\n^1\xE9\t\x80");
    Open(path_);
    EXPECT_EQ(Text(), "say 'hi'  ^1\xC3\xA9 \xE2\x82\xAC");
    EXPECT_EQ(Code(), "seta name \"^^0say 'hi'  ^1\xC3\xA9 \xE2\x82\xAC^7\"");
}

TEST_F(Q3TextSaveTest, AnEmptyFileEmptiesTheEditor) {
    os.files.AddFile(path_, "");
    Type("x");
    Open(path_);
    EXPECT_EQ(Text(), "");
    EXPECT_FALSE(Enabled(IDC_cmdQ3TextSave));
}

TEST_F(Q3TextSaveTest, BrokenRichTextIsReadAsFarAsItMakesSense) {
    for (const auto& [bytes, text] :
         std::vector<std::pair<std::string, std::string>>{{"{\\rtf1 \\cf77 hi}}}}", "hi"},
                                                          {"{\\rtf1{{{{ hi", " hi"},
                                                          {"{\\rtf1 a\\bin99999999 hi", "a"},
                                                          {"{\\rtf1 a\\'", "a"},
                                                          {"{\\rtf1 a\\u-", "a"}}) {
        os.files.AddFile(path_, bytes);
        Open(path_);
        EXPECT_EQ(Text(), text) << bytes;
    }
    os.files.AddFile(path_, "{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;}\\cf1 hi");
    Open(path_);
    EXPECT_EQ(Code(), "seta name \"^1hi^7\"");
}

TEST_F(Q3TextSaveTest, OneThatCannotBeReadIsToldOfAndLeavesTheText) {
    const Message failure = Failure(
        "This coloured text couldn't be opened.\r\n\r\n"
        "The file may be in use, or be no coloured text.");
    Type("x");
    os.windows.Expect(failure);
    Open(path_);
    os.files.AddFile(path_, std::string(1024 * 1024 + 1, 'x'));
    os.windows.Expect(failure);
    Open(path_);
    EXPECT_EQ(os.files.Reads(path_).reads, 0);
    os.files.AddFile(path_, "y");
    os.files.SetLocked(path_);
    os.windows.Expect(failure);
    Open(path_);
    EXPECT_EQ(Text(), "x");
    EXPECT_EQ(state.settings.Q3TextText, path_);
}

TEST_F(Q3TextSaveTest, AMegabyteOfTextIsCutToWhatTheEditorHolds) {
    os.files.AddFile(path_, std::string(1024 * 1024, 'x'));
    Open(path_);
    EXPECT_TRUE(Text() == std::string(kMostRichText, 'x'));
}

// Written by a rich text editor, with the game's codes as its text and a NUL at its end.
TEST_F(Q3TextSaveTest, ARealFileIsOpened) {
    const std::filesystem::path real = std::filesystem::path(ZENTAR_TEST_SOURCE_DIR) / ".." /
                                       "shared" / "data" / "q3config" /
                                       "Steffkn__Quake-configs__names_gth2.cfg";
    if (!std::filesystem::exists(real)) {
        GTEST_SKIP() << "no real files here";
    }
    std::ifstream file(real, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    os.files.AddFile(path_, bytes.str());
    Open(path_);
    EXPECT_THAT(Text(),
                AllOf(StartsWith("seta name '^f^7^0^r*^F^7^0^R*^s^x720303^x750000\xC3\xA7^x79"),
                      HasSubstr("^x750000\xC3\xA6' bind . 'say &gen_sorry.wav ^2*^7+t#"),
                      EndsWith("^8+p#+v# ^7! ^7]^1:^7>'"), Not(HasSubstr("\""))));
    EXPECT_EQ(Code(), "seta name \"^^0" + Text() + "^7\"");
}

}  // namespace
}  // namespace zentar
