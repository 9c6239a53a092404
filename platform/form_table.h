// A window described as data: its controls with their places, captions and tooltips, and its menus.
//
// The same table builds the real window and the one that tests keep in memory. Rectangles are in
// units of a pixel at 96 dpi, relative to the parent's client area at the window's designed size.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "platform/colour.h"
#include "platform/geometry.h"

namespace zentar {

enum class ControlKind : std::uint8_t {
    Label,
    Button,
    ColourButton,  // a button whose face is the row's colour
    CheckBox,
    OptionButton,
    TextBox,
    RichTextBox,
    ListBox,
    Frame,
    Picture,  // `icon` fills its rectangle
    ImageBox,
    PictureBox,  // fills its parent, whatever its rectangle says
    Tab,         // the tab control
    TabPage,  // a page of the tab control that is its parent; fills it, whatever its rectangle says
    Timer,    // no window; `interval` milliseconds
};

// Which edges keep their distance to the parent's edge when the window grows. Both edges of an axis
// make the control grow; neither is taken as the left or the upper one.
enum Anchors : std::uint8_t {
    AnchorLeft = 1,
    AnchorTop = 2,
    AnchorRight = 4,
    AnchorBottom = 8,
    AnchorTopLeft = AnchorTop | AnchorLeft,
    AnchorAll = AnchorTopLeft | AnchorRight | AnchorBottom,
};

// How a control starts out; without any it is enabled, visible, cleared and a tab stop where its
// kind takes input.
enum ControlFlags : std::uint16_t {
    StartsDisabled = 1,
    StartsHidden = 2,
    StartsChecked = 4,    // check boxes and option buttons
    StartsGrey = 8,       // list and text boxes: button-face background
    Borderless = 16,      // frames: neither border nor caption
    PressedByEnter = 32,  // buttons
    Centred = 64,         // labels
    Heading = 128,        // labels and rich text boxes: larger type
    BreaksWords = 256,    // labels: a word that is wider than the label goes on in the next line
    ReadOnly = 512,       // text boxes: the user selects and copies, but does not edit
    ManyLines = 1024,     // text boxes: breaks lines, and scrolls up and down
    Monospaced = 2048,    // text boxes: Courier New
    PairsOfAmpersands = 4096,  // labels: two ampersands stand for one
};

struct ControlRow {
    int id = 0;
    ControlKind kind = ControlKind::Label;
    int parent = 0;  // 0 for the window itself; parents stand before their children
    Rect rect{};
    std::uint8_t anchors = AnchorTopLeft;
    const char* caption = "";
    const char* tooltip = "";
    std::uint16_t flags = 0;
    // What a screen reader calls the control, where no caption or label says it.
    const char* name = "";
    int icon = 0;          // tab pages and pictures: number of an icon resource
    int interval = 0;      // timers: milliseconds
    ColourRef colour = 0;  // colour buttons: of the face
    int cursor = 0;        // image and picture boxes: number of the resource of the custom pointer
};

enum class MenuKind : std::uint8_t { Menu, Popup, Entry, Separator };

// A line of a menu. A Menu whose parent is 0 stands in the menu bar; one whose parent is another
// menu is a sub-menu. A Popup opens at the pointer on request.
struct MenuRow {
    int id = 0;
    MenuKind kind = MenuKind::Entry;
    int parent = 0;
    const char* caption = "";
    bool startsDisabled = false;
};

enum class FormKind : std::uint8_t {
    Main,
    Dialog,
    Splash,
    FullScreen,  // covers the screen that the window in front is on, black where it shows nothing
    // Stands beside the main window, at first in the screen's upper right corner, and can be made
    // larger; Escape closes it.
    Companion,
};

struct FormTable {
    int id = 0;
    FormKind kind = FormKind::Main;
    const char* caption = "";
    Size clientSize{};  // designed size; also the smallest of a Main or Companion window
    std::span<const ControlRow> controls{};
    std::span<const MenuRow> menus{};
    Size outerSize{};  // of the whole window at first; empty: as clientSize asks for
};

// Gives each row's rectangle in pixels, relative to its parent's client area, for a window of the
// given client size in pixels at the given dpi. Timers get an empty rectangle.
using LayoutFunction = std::function<std::vector<Rect>(
    const FormTable& table, std::span<const ControlRow> rows, Size client, int dpi)>;

}  // namespace zentar
