// The controls of a window, as the program's event procedures see them.
//
// A change made by the program raises the same event as one made by the user, since the program's
// rules are written on that: changing a check box runs its click procedure, selecting an option
// button that was not selected or another list entry does, and changing a text runs its change
// procedure. A change that changes nothing raises nothing. An event procedure can therefore run
// inside another.
//
// Texts are UTF-8.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/bitmap.h"
#include "platform/colour.h"
#include "platform/geometry.h"
#include "platform/rich_text.h"

namespace zentar {

// The keys that event procedures ask about; every other key stays with the control.
enum class Key : std::uint8_t {
    F1,
    F2,
    F4,
    F5,
    Delete,
    Backspace,
    Enter,
    Space,
    Escape,
    Left,
    Right,
    Up,
    Down
};

// The event procedures of one control. A control raises only those that its class names; one that
// is not set is simply not run.
struct ControlEvents {
    std::function<void()> click;
    std::function<void()> doubleClick;
    std::function<void()> change;
    std::function<void()> gotFocus;
    // The right mouse button went down on the control, or the keyboard asked for its menu.
    std::function<void()> menuRequested;
    // Gives true when it used the key up; the control then does not see it.
    std::function<bool(Key)> keyDown;
};

inline ControlEvents OnClick(std::function<void()> procedure) {
    ControlEvents events;
    events.click = std::move(procedure);
    return events;
}

class Control {
  public:
    virtual ~Control() = default;

    virtual void SetEvents(ControlEvents events) = 0;
    // Whether the control itself is enabled; inside a disabled frame it still takes no input.
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual bool Visible() const = 0;
    // The caption, or a text box's content.
    virtual void SetText(const std::string& text) = 0;
    virtual std::string Text() const = 0;
    virtual void SetFocus() = 0;
    virtual bool HasFocus() const = 0;
    // Moves the control's upper edge inside its parent, in twips (15 of them are one unit of the
    // control table, a pixel at 96 dpi).
    virtual void SetTop(int twips) = 0;
    // What is explained when the mouse rests on the control; at first what its table row says. An
    // empty text is no tooltip.
    virtual void SetTooltip(const std::string& text) = 0;
};

class Label : public Control {};

// The pointer over a control that shows a picture; the custom one is the cursor of its table row.
enum class BoxPointer : std::uint8_t { Default, Custom };

// Shows a bitmap, scaled to fit with its proportions kept. Raises click and menuRequested.
class ImageBox : public Control {
  public:
    virtual void SetImage(BitmapPtr image) = 0;
    virtual BitmapPtr Image() const = 0;
    virtual void SetPointer(BoxPointer pointer) = 0;
    virtual BoxPointer ShownPointer() const = 0;
};

enum class MouseButton : std::uint8_t { Left, Right };

// What the mouse does to a picture box. Places are in the box, in pixels, wherever the image
// stands.
struct MouseEvents {
    std::function<void(MouseButton, Point)> down;
    std::function<void(Point)> drag;  // moved while the left button is down
    std::function<void()> up;         // the left button is no longer down
};

// Fills its parent and shows a bitmap in it, each of its pixels as one of the screen, on black.
// Raises doubleClick and keyDown besides the mouse's events.
class PictureBox : public Control {
  public:
    virtual void SetMouseEvents(MouseEvents events) = 0;
    virtual void SetImage(BitmapPtr image) = 0;
    virtual BitmapPtr Image() const = 0;
    // Where the image's upper left corner stands, also outside of what can be seen.
    virtual void MoveImage(Point to) = 0;
    virtual Point ImagePlace() const = 0;
    // What can be seen at a time, in pixels.
    virtual Size View() const = 0;
    virtual void SetPointer(BoxPointer pointer) = 0;
    virtual BoxPointer ShownPointer() const = 0;
};

// Shows the icon of its table row; greyed while it is disabled, or inside a disabled frame.
class Picture : public Control {};

// A container that draws a caption and a border around its controls. Disabling it keeps input from
// all of them.
class Frame : public Control {};

// Raises click.
class Button : public Control {};

// Raises click when the tick changes, by the user or by the program.
class CheckBox : public Control {
  public:
    virtual void SetChecked(bool checked) = 0;
    virtual bool Checked() const = 0;
};

enum class CaptionColour : std::uint8_t {
    Normal,
    Vanished,  // that of the button's face, so that nothing can be read
    Red,
};

// One of the option buttons that share a parent, of which at most one is selected. Raises click
// when it becomes selected, by the user or by the program; being cleared raises nothing.
class OptionButton : public Control {
  public:
    // Selecting clears the others of the same parent.
    virtual void SetSelected(bool selected) = 0;
    virtual bool Selected() const = 0;
    virtual void SetCaptionColour(CaptionColour colour) = 0;
    virtual CaptionColour ShownCaptionColour() const = 0;
};

// Raises change, gotFocus, doubleClick and keyDown. Its text has its own colour while the box is
// enabled.
class TextBox : public Control {
  public:
    virtual void SelectAll() = 0;
    // Puts the caret before the first character, with nothing selected.
    virtual void PutCaretFirst() = 0;
    virtual void SetForeground(Colour colour) = 0;
    virtual Colour Foreground() const = 0;
    virtual void SetBackground(Colour colour) = 0;
    virtual Colour Background() const = 0;
};

// Text that the user edits, each character of it in a colour. It is broken into lines by the
// control; a character that would break one stands as a blank. What is typed has the colour of the
// character before it, or in an empty box black, until it is given another. Rich text that is
// pasted keeps its colours and nothing else. Of what is too long for the box the end is left out.
//
// Raises change when its text changes, or its colours by the user, who takes back what was done;
// and whenever the program sets its content; gotFocus and keyDown. Setting the text makes all of it
// black.
class RichTextBox : public Control {
  public:
    // Neighbours of one colour are one run.
    virtual RichText Content() const = 0;
    // The caret comes to stand first, and the user cannot take back what was done before.
    virtual void SetContent(const std::vector<ColouredRun>& runs) = 0;
    // Colours what is selected, which stays selected; with nothing selected, what is typed next
    // until the caret moves. No event.
    virtual void ColourSelection(ColourRef colour) = 0;
    // Where the selection ends, in UTF-16 units from the beginning of the text.
    virtual int Caret() const = 0;
    // Selects nothing; a place behind the text is the text's end. Where the caret stands there with
    // nothing selected, nothing changes: the colour of what is typed next stays.
    virtual void PutCaret(int place) = 0;
    virtual void SetBackground(Colour colour) = 0;
};

// A list of texts with at most one selected; it shows them in the order given. Raises click when
// another entry becomes selected, by the user or by the program, and doubleClick, menuRequested and
// keyDown.
class ListBox : public Control {
  public:
    // Replaces all entries and shows the first ones; none is selected afterwards, and no event is
    // raised.
    virtual void SetItems(const std::vector<std::string>& items) = 0;
    // The same, but the list stays where it is scrolled to, as far as the new entries allow.
    virtual void UpdateItems(const std::vector<std::string>& items) = 0;
    virtual int Count() const = 0;
    // The text of an entry, 0 to Count()-1.
    virtual std::string Item(int index) const = 0;
    virtual int SelectedIndex() const = 0;  // -1 when none is selected
    virtual void Select(int index) = 0;     // scrolls it into view; -1 selects none, without event
    // Selects the entry under the mouse pointer, as a left click there would; nothing happens where
    // there is none.
    virtual void SelectAtPointer() = 0;
    // Scrolls so that this entry is the first one that is seen, as far as there are entries to fill
    // the list below it.
    virtual void ShowFirst(int index) = 0;
    virtual void SetBackground(SystemColour colour) = 0;
    virtual SystemColour Background() const = 0;
};

// Raises click when another tab comes to the front, by the user or by the program.
class TabControl : public Control {
  public:
    virtual int SelectedTab() const = 0;
    virtual void SelectTab(int index) = 0;
};

// Disabled at first; while enabled, runs its procedure every interval of its table row.
class Timer {
  public:
    virtual ~Timer() = default;
    virtual void SetTick(std::function<void()> tick) = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Enabled() const = 0;
};

// An entry that has no procedure is shown greyed, whatever else is said of it: a command that
// nobody carries out is not offered.
class MenuEntry {
  public:
    virtual ~MenuEntry() = default;
    virtual void SetClick(std::function<void()> click) = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetChecked(bool checked) = 0;
    virtual bool Checked() const = 0;
};

}  // namespace zentar
