// The system's rich text editor, made to be one of characters and their colours.
//
// All text but what is typed gets into it as Rich Text Format of the program's own making: the
// system's reader, which knows objects, links and pictures, never sees what came from elsewhere.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <vector>

#include "platform/rich_text.h"
#include "platform/win32/control_window.h"

namespace zentar {

// The first runs of a text, as many UTF-16 units of them as there is room for.
std::vector<ColouredRun> FirstRuns(const std::vector<ColouredRun>& runs, int room);

class RichTextEditor {
  public:
    // Its class is null where the system has no such editor.
    static ControlStyle Style();

    // Sets up a window of that style, to which this object is a reference.
    explicit RichTextEditor(HWND window);

    // Neither what is selected nor what is shown moves.
    RichText Content() const;
    std::vector<ColouredRun> Selected() const { return StreamOut(SFF_SELECTION); }
    // Afterwards nothing can be undone, and the caret stands first.
    void SetContent(const std::vector<ColouredRun>& runs);
    // Puts the runs in the place of what is selected, and the caret behind them: one step for the
    // user who undoes it.
    void Insert(const std::vector<ColouredRun>& runs);
    // With nothing selected, the colour of what is typed next.
    void ColourSelection(ColourRef colour);
    ColourRef TypingColour() const;
    LONG Length() const;  // in UTF-16 units
    // Ends at the text's end at the latest.
    CHARRANGE Selection() const;
    void Select(CHARRANGE range);
    // All characters get the font that the window was given last; nothing can be undone afterwards.
    void UseItsFont();
    void SetBackground(COLORREF colour);

  private:
    class DrawingStopped;
    class UndoPaused;

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(window_, message, wParam, lParam);
    }
    std::vector<ColouredRun> StreamOut(WPARAM how) const;
    void StreamIn(const std::vector<ColouredRun>& runs, WPARAM how);
    void SetFormat(CHARFORMAT2W format, WPARAM which);
    CHARFORMAT2W Format(WPARAM which) const;
    CHARFORMAT2W FontFormat() const;

    HWND window_;
};

}  // namespace zentar
