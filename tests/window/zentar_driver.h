// Starts the program, finds its windows and controls, and ends it.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/window/message_box.h"
#include "tests/window/started_program.h"
#include "tests/window/window_probe_client.h"
#include "tests/window/windows_of.h"
#include "tests/window/zentar_home.h"

namespace zentar::window_tests {

// The tabs of the main window, as ShowTab counts them.
enum Tab : int { kShotsTab, kDemosTab, kMiscTab, kQ3TextTab, kFirstAidTab };

class ZentarDriver {
  public:
    // Starts the program of that folder and waits for its main window. Unless a first run is
    // expected, waits until the first activation is over as well.
    enum class Start { Normal, FirstRun };
    explicit ZentarDriver(const ZentarHome& home, Start start = Start::Normal);

    HWND Main() const { return main_; }
    HWND Control(int id) const;
    // What the control says, lists, and so on.
    std::string Text(int id) const;
    std::vector<std::string> Items(int id) const;
    std::string Selected(int id) const;
    bool Checked(int id) const;
    bool Usable(int id) const;
    bool Visible(int id) const;
    MenuLine Menu(int id) const { return probe_->LookAt(main_, id); }

    // Makes the main window that big, in pixels. Its place on the screen is settled with the
    // desktop only after a while, which may undo a new size; so asks again until the size stays.
    void Resize(SIZE size) const;
    SIZE CaptionSize(HWND control) const { return probe_->CaptionSize(control); }
    // As when a window is moved to a screen of another resolution.
    void ChangeDpi(HWND window, int dpi) const { probe_->ChangeDpi(window, dpi); }

    // The window that has the keyboard.
    HWND Focused() const;
    // Waits until a control has it.
    bool GetsFocus(int id) const;
    // The window that shows a caret; null when none does.
    HWND Caret() const;

    // Comes back once the program has handled all input so far and waits for more.
    void Settle() const;
    // The user's ways to do it; each waits until the program has dealt with it. What takes the
    // keyboard waits for that first, and what takes an entry waits until the list holds it. These
    // and the others below throw std::runtime_error when what they wait for never comes.
    void ClickOn(int id) const;
    // A control of another window of the program.
    void ClickIn(HWND window, int id) const;
    void ClickItem(int listBox, const std::string& item) const;
    void PressKey(WORD key) const;
    void PressKeyWith(WORD modifier, WORD key) const;
    void TypeText(const std::string& text) const;
    // What comes of keeping it down.
    void RepeatKey(WORD key) const;
    // A tab of the main window, by its position.
    void ShowTab(int index) const;
    // Alt and a letter; gives the menu's window.
    HWND OpenMenu(char menu) const;
    // Leaves the menu bar as well.
    void CloseMenu(HWND menu) const;
    // Opens a menu and picks an entry by its letter.
    void OpenMenuEntry(char menu, char entry) const;
    // Closes a window by a key, Enter or Escape for instance.
    void LeaveBy(WORD key, HWND window) const;
    // Waits until a window has gone and another one of the program has the keyboard.
    void WaitUntilLeft(HWND window) const;

    // Waits for a window: a dialog of the program, a message box, an opened menu. It is ready for
    // the user then.
    HWND WaitForWindow(const std::string& windowClass, const std::string& title) const;
    HWND WaitForForm(const std::string& title) const { return WaitForWindow(kFormClass, title); }
    HWND WaitForBox(const std::string& title) const { return WaitForWindow(kDialogClass, title); }
    // Presses a key that opens one of the program's own windows.
    HWND OpenForm(WORD key, const std::string& title) const;
    // Waits for an input box that asks for a text, replaces the one in it, and presses Enter.
    void AnswerInputBox(const std::string& title, const std::string& text) const;
    BoxContents Read(HWND box) const { return ReadBox(box, *probe_); }
    bool HasBox() const;
    // The system's folder picker, which shows `title` above the folders.
    HWND WaitForPicker(const std::string& title) const;
    // Picks a folder in it.
    void PickFolder(const std::string& title, const std::filesystem::path& folder) const;
    // Opens a list's popup menu with the right mouse button on an entry; gives the menu's window.
    HWND OpenPopup(int listBox, const std::string& item) const;
    HWND OpenPopupBelowItems(int listBox) const;
    MenuLine PopupLine(HWND popup, int id) const;
    void ClosePopup(HWND popup) const;
    // Opens the popup menu on an entry and picks a command by the letter that its caption
    // underlines.
    void Choose(int listBox, const std::string& item, char letter) const;
    // The same with the arrow keys, by the command's number: for menus that underline a letter
    // twice.
    void ChooseCommand(int listBox, const std::string& item, int command) const;
    // Walks down an opened popup menu of the main window to a command, and picks it.
    void WalkTo(HWND popup, int command) const;

    // Closes the main window as its close button does. The exit code, or -1 if it does not end.
    int Close() const;
    int WaitForExit() const { return program_.WaitForExit(); }
    void Kill() const { program_.Kill(); }
    bool Running() const { return program_.Running(); }
    DWORD Process() const { return program_.Id(); }

  private:
    GUITHREADINFO Keyboard() const;
    // Waits until the list holds the entry. The marker of a shot may come and go meanwhile, so it
    // does not count.
    int IndexOf(int listBox, const std::string& item) const;
    // Clicks with the right button until a menu opens.
    HWND OpenPopupAt(POINT place) const;

    StartedProgram program_;
    HWND main_ = nullptr;
    std::unique_ptr<WindowProbe> probe_;
};

}  // namespace zentar::window_tests
