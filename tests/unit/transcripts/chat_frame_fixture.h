// The frame for chat transcripts on the Misc tab, in memory, with a user in front of it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/program_state.h"
#include "tests/doubles/memory_platform.h"
#include "transcripts/chat_frame.h"
#include "ui/form_bindings.h"
#include "ui/form_tables.h"
#include "ui/resource.h"

namespace zentar {

class ChatFrameTest : public ::testing::Test {
  protected:
    // Quake 2 with the mod "ctf"; somebody who knows that a scan may err.
    ChatFrameTest();

    void UseGame(std::string_view game);
    // "C:\Quake2\ctf\"
    std::string Folder() const { return "C:\\" + state.settings.Game + "\\ctf\\"; }
    // A console dump or log in that folder; gives its path.
    std::string AddLog(const std::string& name, const std::string& bytes);

    // The next dialog for a log to scan is whole, and the user picks this one, or cancels.
    void ExpectLogToScan(std::optional<std::string> picked, std::function<void()> meanwhile = {});
    // The same of a log for a transcript.
    void ExpectLogToTranscribe(std::optional<std::string> picked,
                               std::function<void()> meanwhile = {});
    // The next box says so and asks whether the log without names may go.
    void ExpectNoNames(const std::string& path, Answer answer,
                       std::function<void()> meanwhile = {});
    // What opens a transcript as text.
    static ProgramStart Notepad(const std::string& transcript);
    static Message Failure(const std::string& text);

    // The user.
    void Scan(const std::string& path);
    // Scans a log of these bytes; gives the names found.
    std::vector<std::string> NamesIn(const std::string& bytes);
    void Clear() { form->UserClick(IDC_cmdClearNames); }
    void ClearWithShift();
    void Create() { form->UserClick(IDC_cmdCreateTranscript); }
    // Creates a transcript of a log, picked where none is remembered; gives its text.
    std::string CreateText(const std::string& log, const std::string& transcript);
    void TypeName(std::size_t box, const std::string& name);
    void DoubleClick(std::size_t box) { form->UserDoubleClick(BoxId(box)); }
    void UseHtml(bool html = true) { HtmlBox().SetChecked(html); }

    // Boxes are counted from 1, as their numbers are.
    static int BoxId(std::size_t box) { return IDC_txtPlayer1 + static_cast<int>(box) - 1; }
    TextBox& Box(std::size_t box) { return form->GetTextBox(BoxId(box)); }
    TextBox& MessagesBox() { return form->GetTextBox(IDC_txtTranscriptMessages); }
    CheckBox& HtmlBox() { return form->GetCheckBox(IDC_chkTranscriptHTML); }
    CheckBox& GameplayBox() { return form->GetCheckBox(IDC_chkTranscriptGameplay); }
    // The texts of the boxes up to the last one that holds any.
    std::vector<std::string> Names();
    bool Enabled(int id) { return form->AnyControl(id).Enabled(); }

    MemoryPlatform os;
    ProgramState state;
    std::unique_ptr<Form> window;
    MemoryForm* form = nullptr;
    std::unique_ptr<ChatFrame> frame;
};

}  // namespace zentar
