// What the help window lists, and its answers.
//
// All texts are ASCII: the window's list and text box take them as they stand.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zentar {

struct HelpTopic {
    std::string_view title;
    std::string_view answer;  // its lines joined by CR LF, as a text box takes them
};

struct HelpSection {
    std::string_view heading;  // in capitals; the blank at its end tells it from a topic
    std::span<const HelpTopic> topics;
};

inline constexpr std::size_t kHelpSections = 7;

// What stands above the list.
inline constexpr const char* kHelpPrompt = "Please select a help topic from the list:";

// What a new user reads first.
inline constexpr std::string_view kAuthorDetails = "Author Details And Program Legal Information";

// In the order of the list.
std::array<HelpSection, kHelpSections> HelpSections();

// The whole list: each heading with its indented topics below, and an entry of one blank between
// two sections.
std::vector<std::string> HelpEntries();

// A topic as the list shows it.
std::string EntryOfTopic(std::string_view title);

// The topic of a list entry; null for headings and for what stands between sections.
const HelpTopic* TopicOfEntry(std::string_view entry);

// The topic with exactly this title; null when there is none.
const HelpTopic* FindHelpTopic(std::string_view title);

// The heading of the section about a tab of the main window, counted from 0; any other number gives
// that of the first section.
std::string_view HeadingForTab(int tab);

}  // namespace zentar
