// The topics of each section of the help, with their answers.
//
// An answer that tells how to do something is a numbered step a line. Names of controls, menu
// entries and files stand in double quotes, as they are on the screen.
#pragma once

#include <span>

#include "help/help_topics.h"

namespace zentar {

std::span<const HelpTopic> ReadFirstTopics();
std::span<const HelpTopic> ScreenshotTopics();
std::span<const HelpTopic> DemoTopics();
std::span<const HelpTopic> MiscToolTopics();
std::span<const HelpTopic> ColouredTextTopics();
std::span<const HelpTopic> FirstAidTopics();
std::span<const HelpTopic> TroubleshootingTopics();

}  // namespace zentar
