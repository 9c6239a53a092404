// An evening: the transcripts.
#include "tests/window/colour_dialog.h"
#include "tests/window/evening_fixture.h"
#include "tests/window/notepad.h"
#include "tests/window/program_texts.h"
#include "tests/window/user_input.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"
#include "ui/resource.h"

namespace zentar::window_tests {
namespace {

// As a page of HTML shows a text.
std::string OnAPage(const std::string& text) {
    std::string shown;
    for (const char c : text) {
        shown += c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
    }
    return shown;
}

// The first player's colour, which stands out among the game's messages.
std::string Coloured(const std::string& text, bool bold) {
    return "<font color=\"008000\">" + (bold ? "<b>" + text + "</b>" : text) + "</font>";
}

std::string Listed(const std::vector<std::string>& players) {
    std::string text;
    for (const std::string& player : players) {
        text += (text.empty() ? "" : ", ") + player;
    }
    return text + ".";
}

}  // namespace

// In the second half the dialogs are left without a choice: the colours stay.
void EveningTest::ChooseColours() {
    const auto choose = [this](int box, COLORREF colour) {
        WaitForKeyboard(zentar_->Process());
        DoubleClick(CentreOf(zentar_->Control(box)));
        const HWND dialog = WaitForColourDialog(zentar_->Process());
        if (pass_ == 1) {
            ChooseColour(dialog, colour);
        } else {
            CancelColourDialog(dialog);
        }
        zentar_->Settle();
    };
    choose(IDC_txtPlayer1, RGB(255, 255, 192));  // it is empty: the background
    choose(IDC_txtTranscriptMessages, RGB(0, 0, 128));
    zentar_->ClickOn(IDC_txtPlayer1);
    zentar_->TypeText("somebody");
    EXPECT_SOON(zentar_->Text(IDC_txtPlayer1), "somebody");
    choose(IDC_txtPlayer1, RGB(0, 128, 0));
}

void EveningTest::Transcribe(const EveningGame& game) {
    SwitchTo(game);
    ClickOn(IDC_cmdScanForNames);
    AnswerNext("Information", IDOK);
    ChooseIn("Open a " + game.name + " condump/logfile for name scanning",
             game.log.substr(game.log.rfind('/') + 1));
    EXPECT_SOON(zentar_->Text(IDC_txtPlayer1), game.players.front());
    ClickOn(IDC_chkTranscriptGameplay);
    gameMessages_ = !gameMessages_;
    const std::size_t opened = viewer_.Opened().size();
    ClickOn(IDC_cmdCreateTranscript);
    EXPECT_SOON(viewer_.Opened().size(), opened + 1);
    TranscriptIs(game, true);
    zentar_->Settle();
    ClickOn(IDC_chkTranscriptHTML);
    ClickOn(IDC_cmdCreateTranscript);
    EXPECT_NE(CloseNotepad("(transcript)").title, "");
    TranscriptIs(game, false);
    zentar_->Settle();
    ClickOn(IDC_chkTranscriptHTML);
    ClickOn(IDC_cmdClearNames);
    EXPECT_SOON(zentar_->Text(IDC_txtPlayer1), "");
}

void EveningTest::TranscriptIs(const EveningGame& game, bool html) {
    Lines lines;
    for (const LogLine& line : game.said) {
        if (line.speaker == 0 && !gameMessages_) {
            continue;
        }
        const std::string shown = html ? OnAPage(line.text) : line.text;
        lines.push_back(html && line.speaker == 1 ? Coloured(shown, gameMessages_) : shown);
        lines.back() += html ? "<br>" : "";
    }
    const std::string said = FileOf(lines);
    const std::string path = game.log.substr(0, game.log.rfind('.')) + " (transcript)";
    const std::string source = "Chat transcript of \"" + Name(game.log) + "\".";
    const std::string players = Listed(game.players);
    const std::string site = ZENTAR_WEB_SITE;
    if (html) {
        expected_[path + ".htm"] =
            FileOf(
                {"<html>", R"(<body bgcolor="ffffc0" text="000080">)", "<h3>",
                 "Zentar v0.99 BETA Chat Transcript<br>",
                 "Web Site: <a href=\"" + site + "\">" + site.substr(site.find("://") + 3) + "</a>",
                 "</h3>", "<p>", source, "<p>",
                 "The following players were chosen to be part of this transcript:<br>",
                 OnAPage(players), "<p>", "<b><i>START OF TRANSCRIPT</i></b>", "<p>"}) +
            said + FileOf({"<p>", "<b><i>END OF TRANSCRIPT</i></b>", "</body>", "</html>"});
    } else {
        expected_[path + ".txt"] = kTranscriptHead + FileOf({source, ""}) + kTranscriptChosen +
                                   FileOf({players, ""}) + kTranscriptStart + said + kTranscriptEnd;
    }
    // Each transcript ends the log's last line once more.
    Appends(game.log, "\r\n");
}

}  // namespace zentar::window_tests
