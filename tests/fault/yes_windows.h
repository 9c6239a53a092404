// A user who wants the command done, whatever is asked.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/doubles/scripted_services.h"

namespace zentar {

class YesWindows : public ScriptedWindows {
  public:
    Answer Ask(const Message& message) override {
        said.push_back(message);
        return message.buttons == MessageButtons::Ok ? Answer::Ok : Answer::Yes;
    }
    std::optional<std::string> AskText(const TextQuestion& /*question*/) override {
        return "renamed";
    }

    std::vector<Message> said;  // every message box, in this order
};

}  // namespace zentar
