// The answers: what holds for each of them, and the names that they give to what is on the screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "core/program_info.h"
#include "core/text.h"
#include "help/help_topics.h"
#include "ui/form_tables.h"

namespace zentar {
namespace {

using ::testing::HasSubstr;
using ::testing::IsSubsetOf;
using ::testing::StartsWith;

std::vector<HelpTopic> AllTopics() {
    std::vector<HelpTopic> topics;
    for (const HelpSection& section : HelpSections()) {
        topics.insert(topics.end(), section.topics.begin(), section.topics.end());
    }
    return topics;
}

std::string AnswerTo(std::string_view title) {
    const HelpTopic* topic = FindHelpTopic(title);
    return topic == nullptr ? "no such topic" : std::string(topic->answer);
}

std::vector<std::string> LinesOf(const HelpTopic& topic) {
    constexpr std::string_view kEnd = "\r\n";
    std::vector<std::string> lines;
    std::string_view rest = topic.answer;
    for (std::size_t at = rest.find(kEnd); at != std::string_view::npos; at = rest.find(kEnd)) {
        lines.emplace_back(rest.substr(0, at));
        rest.remove_prefix(at + kEnd.size());
    }
    lines.emplace_back(rest);
    return lines;
}

// Whether the answer tells how to do something.
bool IsHowTo(const HelpSection& section, const HelpTopic& topic) {
    static const std::set<std::string_view> explaining = {"READ THESE FIRST ", "TROUBLESHOOTING "};
    return !explaining.contains(section.heading) && topic.title != "Introduction To First Aid";
}

bool IsPrintableAscii(char c) { return c >= ' ' && c <= '~'; }

TEST(AnswersTest, EveryTopicHasOne) {
    EXPECT_EQ(AllTopics().size(), 42U);
    for (const HelpTopic& topic : AllTopics()) {
        EXPECT_GT(topic.answer.size(), 100U) << topic.title;
    }
}

TEST(AnswersTest, NoTwoTopicsShareOne) {
    std::set<std::string> titles;
    std::set<std::string> answers;
    for (const HelpTopic& topic : AllTopics()) {
        EXPECT_TRUE(titles.emplace(topic.title).second) << topic.title;
        EXPECT_TRUE(answers.emplace(topic.answer).second) << topic.title;
    }
}

TEST(AnswersTest, HoldNothingThatATextBoxWouldShowWrongly) {
    for (const HelpTopic& topic : AllTopics()) {
        const std::vector<std::string> lines = LinesOf(topic);
        EXPECT_FALSE(lines.front().empty()) << topic.title;
        EXPECT_FALSE(lines.back().empty()) << topic.title;
        for (const std::string& line : lines) {
            EXPECT_TRUE(std::all_of(line.begin(), line.end(), IsPrintableAscii)) << line;
            EXPECT_FALSE(line.starts_with(' ') || line.ends_with(' ')) << line;
            EXPECT_EQ(line.find("   "), std::string_view::npos) << line;
        }
    }
}

// Two blanks stand between two sentences, as in all of the program's texts.
TEST(AnswersTest, SentencesAreSetApartAsInTheMessages) {
    const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
    for (const HelpTopic& topic : AllTopics()) {
        for (const std::string& line : LinesOf(topic)) {
            for (std::size_t at = line.find(". "); at != std::string_view::npos;
                 at = line.find(". ", at + 1)) {
                EXPECT_FALSE(at + 2 < line.size() && isCapital(line[at + 2])) << line;
            }
        }
    }
}

TEST(AnswersTest, HowToAnswersAreNumberedStepByStep) {
    for (const HelpSection& section : HelpSections()) {
        for (const HelpTopic& topic : section.topics) {
            if (!IsHowTo(section, topic)) {
                continue;
            }
            const std::vector<std::string> steps = LinesOf(topic);
            EXPECT_GE(steps.size(), 3U) << topic.title;
            for (std::size_t step = 0; step < steps.size(); ++step) {
                EXPECT_THAT(steps[step], StartsWith("(" + std::to_string(step + 1) + ") "))
                    << topic.title;
            }
        }
    }
}

TEST(AnswersTest, OtherAnswersAreParagraphs) {
    for (const HelpSection& section : HelpSections()) {
        for (const HelpTopic& topic : section.topics) {
            if (!IsHowTo(section, topic)) {
                EXPECT_EQ(topic.answer.find("(1) "), std::string_view::npos) << topic.title;
            }
        }
    }
}

TEST(AnswersTest, NoStepIsLongerThanAReaderKeepsInMind) {
    for (const HelpSection& section : HelpSections()) {
        for (const HelpTopic& topic : section.topics) {
            const std::size_t longest = IsHowTo(section, topic) ? 200 : 400;
            for (const std::string& line : LinesOf(topic)) {
                EXPECT_LE(line.size(), longest) << line;
            }
        }
    }
}

TEST(AnswersTest, TheTopicsOfATabBeginWithIt) {
    const auto expectFirstStep = [](const HelpSection& section, const std::string& tab) {
        for (const HelpTopic& topic : section.topics) {
            if (IsHowTo(section, topic)) {
                EXPECT_EQ(LinesOf(topic).front(), "(1) Click the \"" + tab + "\" tab.")
                    << topic.title;
            }
        }
    };
    expectFirstStep(HelpSections()[1], "Shots");
    expectFirstStep(HelpSections()[4], "Q3 Text");
    expectFirstStep(HelpSections()[5], "First Aid");
}

TEST(AnswersTest, NothingListedIsAnsweredInAFewWords) {
    EXPECT_EQ(AnswerTo("No Screenshots Or Demos Are Being Listed"),
              "This is because you have not yet specified the correct path for your game folder.  "
              "Simply select \"Specify Folder...\" from the \"Game\" menu and all screenshots and "
              "demos will then be available for listing.");
}

TEST(AnswersTest, TheAuthorDetailsTellWhoMadeTheProgramAndWhereItLives) {
    const std::string answer = AnswerTo(kAuthorDetails);
    EXPECT_THAT(answer, StartsWith(std::string(kVersionLine) + "\r\n"));
    EXPECT_THAT(answer, HasSubstr("Made by:\r\n" + std::string(kAuthors) + "\r\n"));
    EXPECT_THAT(answer, HasSubstr("Web site:\r\n" + std::string(kWebSite) + "\r\n"));
    EXPECT_THAT(answer, HasSubstr("without warranty of any kind"));
    EXPECT_THAT(answer, HasSubstr("belong to their respective owners"));
}

// As it is seen: without the mark of its mnemonic, and without blanks around it.
std::string SeenCaption(std::string_view caption) {
    std::string seen(caption);
    std::erase(seen, '&');
    return TrimBlanks(seen);
}

std::set<std::string> CaptionsOfWindows() {
    std::set<std::string> captions;
    for (const FormTable* table : {&MainWindowTable(), &PreferencesTable(), &HelpTable()}) {
        for (const ControlRow& row : table->controls) {
            captions.insert(SeenCaption(row.caption));
        }
        for (const MenuRow& row : table->menus) {
            captions.insert(SeenCaption(row.caption));
        }
    }
    captions.erase("");
    return captions;
}

// What stands in double quotes and is neither a caption nor the title of a topic.
const std::set<std::string> kOtherNames = {
    // Buttons of message boxes and of the system's dialogs.
    "Cancel",
    "No",
    "OK",
    "Open",
    "Save",
    "Yes",
    // Executables and packs of the games.
    "glquake.exe",
    "pak4.pk3",
    "pak6.pk3",
    "quake2.exe",
    "quake3-117.exe",
    "quake3-127h.exe",
    "quake3.exe",
    // Other files, folders and extensions.
    "(transcript)",
    ".cfg",
    ".dem",
    ".dm2",
    ".dm3",
    ".dm_48",
    ".dm_66",
    ".ini",
    ".zentar",
    "Single-Player Backups",
    "[Zentar] shot0001.bmp",
    "baseq3",
    "demos",
    "q3config.cfg",
    // What is typed to a game.
    "-condebug",
    R"(\condump chat.txt)",
    "condump chat",
    // A symptom in its list.
    "[ALL] Demos are not playing back correctly.",
};

// What stands in double quotes in a line, which has an even number of them.
std::vector<std::string> QuotedIn(std::string_view line) {
    EXPECT_EQ(std::count(line.begin(), line.end(), '"') % 2, 0) << line;
    std::vector<std::string> quoted;
    std::size_t open = line.find('"');
    while (open != std::string_view::npos) {
        const std::size_t close = line.find('"', open + 1);
        if (close == std::string_view::npos) {
            break;
        }
        quoted.emplace_back(line.substr(open + 1, close - open - 1));
        open = line.find('"', close + 1);
    }
    return quoted;
}

std::set<std::string> QuotedInAnswers() {
    std::set<std::string> quoted;
    for (const HelpTopic& topic : AllTopics()) {
        for (const std::string& line : LinesOf(topic)) {
            const std::vector<std::string> names = QuotedIn(line);
            quoted.insert(names.begin(), names.end());
        }
    }
    return quoted;
}

TEST(AnswersTest, WhatTheyNameIsOnTheScreenUnderThatName) {
    std::set<std::string> known = CaptionsOfWindows();
    for (const HelpTopic& topic : AllTopics()) {
        known.emplace(topic.title);
    }
    known.insert(kOtherNames.begin(), kOtherNames.end());
    EXPECT_THAT(QuotedInAnswers(), IsSubsetOf(known));
}

TEST(AnswersTest, NoOtherNameIsKeptThatNoAnswerUses) {
    EXPECT_THAT(kOtherNames, IsSubsetOf(QuotedInAnswers()));
}

const MenuRow& RootOf(const MenuRow& row) {
    if (row.parent == 0) {
        return row;
    }
    const auto menus = MainWindowTable().menus;
    return RootOf(*std::find_if(menus.begin(), menus.end(), [&row](const MenuRow& other) {
        return other.id == row.parent && other.kind != MenuKind::Separator;
    }));
}

// The commands of both lists, which can be found nowhere else.
TEST(AnswersTest, EveryCommandOfAPopupMenuIsExplained) {
    const std::set<std::string> named = QuotedInAnswers();
    int commands = 0;
    for (const MenuRow& row : MainWindowTable().menus) {
        if (row.kind == MenuKind::Entry && RootOf(row).kind == MenuKind::Popup) {
            ++commands;
            EXPECT_TRUE(named.contains(SeenCaption(row.caption))) << row.caption;
        }
    }
    EXPECT_GT(commands, 20);
}

}  // namespace
}  // namespace zentar
