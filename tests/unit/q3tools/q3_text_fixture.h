// The Q3 Text tab in memory, with a user in front of it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/program_state.h"
#include "q3tools/q3_text_tab.h"
#include "tests/doubles/memory_platform.h"
#include "ui/form_bindings.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {

class Q3TextTabTest : public ::testing::Test {
  protected:
    // Quake 2 is the current game; Quake 3 is there, too.
    Q3TextTabTest();

    // Makes the tab anew, as in the next run of the program.
    void Restart();
    // The user.
    MemoryRichTextBox& Editor() { return form->UserIn(IDC_rtbQ3Text); }
    void Type(const std::string& text);
    void Colour(int from, int to, int button);
    void Click(int id) { form->UserClick(id); }
    // Types a text of two colours, "Ab" in red and white.
    void TypeTwoColours();

    static Message Confirm(const std::string& text);
    static Message Question(const std::string& text);  // about a read-only file
    static Message Failure(const std::string& text);

    std::string Code() { return form->AnyControl(IDC_txtQ3TextCode).Text(); }
    RichText Content() { return form->GetRichTextBox(IDC_rtbQ3Text).Content(); }
    std::string Text() { return form->GetRichTextBox(IDC_rtbQ3Text).Text(); }
    int Caret() { return form->GetRichTextBox(IDC_rtbQ3Text).Caret(); }
    bool Enabled(int id) { return form->AnyControl(id).Enabled(); }

    const std::string folder_ = "c:\\zentar\\data\\q3text\\";
    MemoryPlatform os;
    ProgramState state;
    std::unique_ptr<Form> window;
    MemoryForm* form = nullptr;
    std::unique_ptr<Q3TextTab> tab;
};

}  // namespace zentar
