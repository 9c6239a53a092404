#include "help/help_topics.h"

#include "help/answers.h"

namespace zentar {
namespace {

constexpr std::string_view kIndent = "     ";
constexpr std::string_view kSeparator = " ";

constexpr std::string_view kReadFirst = "READ THESE FIRST ";
constexpr std::string_view kScreenshots = "SCREENSHOTS ";
constexpr std::string_view kDemos = "DEMOS ";
constexpr std::string_view kMiscTools = "MISCELLANEOUS TOOLS ";
constexpr std::string_view kColouredText = "QUAKE 3 COLOURED TEXT ";
constexpr std::string_view kFirstAid = "FIRST AID ";
constexpr std::string_view kTroubleshooting = "TROUBLESHOOTING ";

// Of the main window, in their order.
constexpr std::array<std::string_view, 5> kTabs = {kScreenshots, kDemos, kMiscTools, kColouredText,
                                                   kFirstAid};

}  // namespace

std::array<HelpSection, kHelpSections> HelpSections() {
    return {{{kReadFirst, ReadFirstTopics()},
             {kScreenshots, ScreenshotTopics()},
             {kDemos, DemoTopics()},
             {kMiscTools, MiscToolTopics()},
             {kColouredText, ColouredTextTopics()},
             {kFirstAid, FirstAidTopics()},
             {kTroubleshooting, TroubleshootingTopics()}}};
}

std::vector<std::string> HelpEntries() {
    std::vector<std::string> entries;
    for (const HelpSection& section : HelpSections()) {
        if (!entries.empty()) {
            entries.emplace_back(kSeparator);
        }
        entries.emplace_back(section.heading);
        for (const HelpTopic& topic : section.topics) {
            entries.push_back(EntryOfTopic(topic.title));
        }
    }
    return entries;
}

std::string EntryOfTopic(std::string_view title) { return std::string(kIndent).append(title); }

const HelpTopic* TopicOfEntry(std::string_view entry) {
    if (entry.empty() || entry.ends_with(' ')) {
        return nullptr;
    }
    return FindHelpTopic(entry.substr(entry.find_first_not_of(' ')));
}

const HelpTopic* FindHelpTopic(std::string_view title) {
    for (const HelpSection& section : HelpSections()) {
        for (const HelpTopic& topic : section.topics) {
            if (topic.title == title) {
                return &topic;
            }
        }
    }
    return nullptr;
}

std::string_view HeadingForTab(int tab) {
    const auto index = static_cast<std::size_t>(tab);
    return tab >= 0 && index < kTabs.size() ? kTabs[index] : kReadFirst;
}

}  // namespace zentar
