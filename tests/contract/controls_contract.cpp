#include "tests/contract/controls_contract.h"

#include <array>
#include <utility>

namespace zentar {
namespace {

using Kind = ControlKind;

constexpr ControlRow Row(int id, Kind kind, int parent, Rect rect, const char* caption,
                         std::uint16_t flags = 0) {
    ControlRow row;
    row.id = id;
    row.kind = kind;
    row.parent = parent;
    row.rect = rect;
    row.caption = caption;
    row.flags = flags;
    return row;
}

constexpr ControlRow PictureRow(int id, int parent, Rect rect, std::uint16_t flags = 0) {
    ControlRow row = Row(id, Kind::Picture, parent, rect, "", flags);
    row.icon = 1;
    return row;
}

constexpr ControlRow ColourRow(int id, int parent, Rect rect, ColourRef colour) {
    ControlRow row = Row(id, Kind::ColourButton, parent, rect, "");
    row.colour = colour;
    return row;
}

constexpr ControlRow WithCursor(ControlRow row) {
    row.cursor = 1;
    return row;
}

constexpr ControlRow Explained(ControlRow row, const char* tooltip) {
    row.tooltip = tooltip;
    return row;
}

constexpr ControlRow TimerRow(int id, int interval) {
    ControlRow row = Row(id, Kind::Timer, 0, {}, "");
    row.interval = interval;
    return row;
}

constexpr std::array kControls = {
    Row(kCheck, Kind::CheckBox, 0, {10, 10, 120, 20}, "Check"),
    Row(kTicked, Kind::CheckBox, 0, {140, 10, 120, 20}, "Ticked", StartsChecked),
    Row(kText, Kind::TextBox, 0, {10, 40, 120, 22}, ""),
    Row(kOtherText, Kind::TextBox, 0, {140, 40, 120, 22}, "", StartsGrey),
    Row(kList, Kind::ListBox, 0, {10, 70, 120, 120}, ""),
    Row(kGreyList, Kind::ListBox, 0, {140, 70, 120, 120}, "", StartsGrey),
    Explained(Row(kButton, Kind::Button, 0, {10, 200, 120, 24}, "Button"), "Click here."),
    Row(kDefaultButton, Kind::Button, 0, {140, 200, 120, 24}, "Go", PressedByEnter),
    Row(kDisabledButton, Kind::Button, 0, {10, 230, 120, 24}, "Disabled", StartsDisabled),
    Row(kHiddenButton, Kind::Button, 0, {140, 230, 120, 24}, "Hidden", StartsHidden),
    Row(kLabel, Kind::Label, 0, {10, 260, 250, 20}, "Total listed: 0 of 0."),
    Row(kFrame, Kind::Frame, 0, {280, 10, 300, 120}, "Frame"),
    Row(kChild, Kind::CheckBox, kFrame, {10, 20, 120, 20}, "Child"),
    Row(kOptionA, Kind::OptionButton, kFrame, {10, 44, 80, 20}, "A", StartsChecked),
    Row(kOptionB, Kind::OptionButton, kFrame, {10, 66, 80, 20}, "B"),
    Row(kOptionC, Kind::OptionButton, kFrame, {10, 88, 80, 20}, "C"),
    Row(kInnerFrame, Kind::Frame, kFrame, {150, 20, 140, 90}, "", Borderless),
    Row(kOptionD, Kind::OptionButton, kInnerFrame, {10, 10, 80, 20}, "D"),
    Row(kOptionE, Kind::OptionButton, kInnerFrame, {10, 32, 80, 20}, "E"),
    PictureRow(kPicture, kInnerFrame, {100, 10, 32, 32}),
    PictureRow(kGreyPicture, kInnerFrame, {100, 50, 32, 32}, StartsDisabled),
    Row(kTabs, Kind::Tab, 0, {280, 140, 300, 150}, ""),
    Row(kPageOne, Kind::TabPage, kTabs, {}, "One"),
    Row(kButtonOne, Kind::Button, kPageOne, {10, 10, 120, 24}, "First"),
    WithCursor(Row(kImage, Kind::ImageBox, kPageOne, {10, 40, 120, 60}, "")),
    Row(kPageTwo, Kind::TabPage, kTabs, {}, "Two"),
    Row(kButtonTwo, Kind::Button, kPageTwo, {10, 10, 120, 24}, "Second"),
    Explained(Row(kBehindCheck, Kind::CheckBox, kPageTwo, {10, 36, 60, 18}, "Check", StartsChecked),
              "Tick here."),
    Row(kBehindOptionA, Kind::OptionButton, kPageTwo, {10, 56, 60, 18}, "A", StartsChecked),
    Row(kBehindOptionB, Kind::OptionButton, kPageTwo, {10, 76, 60, 18}, "B"),
    Row(kBehindText, Kind::TextBox, kPageTwo, {10, 98, 60, 20}, "text"),
    Row(kBehindList, Kind::ListBox, kPageTwo, {80, 36, 60, 82}, ""),
    Row(kBehindFrame, Kind::Frame, kPageTwo, {150, 10, 60, 50}, "Frame"),
    Row(kBehindLabel, Kind::Label, kBehindFrame, {6, 16, 30, 20}, "Label"),
    PictureRow(kBehindPicture, kBehindFrame, {38, 16, 16, 16}),
    WithCursor(Row(kBehindImage, Kind::ImageBox, kPageTwo, {150, 66, 60, 52}, "")),
    Row(kBehindRich, Kind::RichTextBox, kPageTwo, {216, 10, 60, 80}, "", Heading),
    ColourRow(kBehindColour, kPageTwo, {216, 94, 60, 24}, 0x123456),
    Row(kPageThree, Kind::TabPage, kTabs, {}, "Three"),
    Row(kButtonThree, Kind::Button, kPageThree, {10, 10, 120, 24}, "Third"),
    TimerRow(kTimer, 20),
    Row(kRich, Kind::RichTextBox, 0, {10, 300, 250, 90}, "", Heading),
    Row(kReadOnlyText, Kind::TextBox, 0, {280, 300, 140, 22}, "read only", ReadOnly | Monospaced),
    Row(kManyLines, Kind::TextBox, 0, {280, 330, 140, 60}, "", ManyLines),
};

constexpr std::array kMenus = {
    MenuRow{kMenuFile, MenuKind::Menu, 0, "&File"},
    MenuRow{kMenuOpen, MenuKind::Entry, kMenuFile, "&Open"},
    MenuRow{0, MenuKind::Separator, kMenuFile},
    MenuRow{kMenuMore, MenuKind::Menu, kMenuFile, "&More"},
    MenuRow{kMenuDeep, MenuKind::Entry, kMenuMore, "&Deep"},
    MenuRow{kMenuGrey, MenuKind::Entry, kMenuFile, "&Grey", true},
    MenuRow{kPopup, MenuKind::Popup, 0, "Demos"},
    MenuRow{kPopupPlay, MenuKind::Entry, kPopup, "&Play"},
    MenuRow{0, MenuKind::Separator, kPopup},
    MenuRow{kPopupDelete, MenuKind::Entry, kPopup, "&Delete"},
};

constexpr std::array kDialogControls = {
    Row(kDialogText, Kind::TextBox, 0, {10, 10, 200, 22}, ""),
    Row(kDialogClose, Kind::Button, 0, {10, 40, 120, 24}, "Close"),
};

constexpr ControlRow FullPictureRow() {
    ControlRow row = WithCursor(Row(kFullPicture, Kind::PictureBox, 0, {0, 0, 320, 200}, ""));
    row.anchors = AnchorAll;
    return row;
}

constexpr std::array kFullControls = {FullPictureRow()};

}  // namespace

const FormTable& ContractMainTable() {
    static const FormTable table{kMainForm,  FormKind::Main, "Contract window",
                                 {600, 400}, kControls,      kMenus};
    return table;
}

const FormTable& ContractDialogTable() {
    static const FormTable table{kDialogForm, FormKind::Dialog, "Contract dialog",
                                 {220, 80},   kDialogControls,  {}};
    return table;
}

const FormTable& ContractFullScreenTable() {
    static const FormTable table{kFullForm,  FormKind::FullScreen, "Contract screen",
                                 {320, 200}, kFullControls,        {}};
    return table;
}

ControlsContract::ControlsContract() : form_(world_->Create(ContractMainTable())) {}

void ControlsContract::ShowMain() {
    Main().Show();
    World().Settle();
}

ControlEvents ControlsContract::Noting(const std::string& name) {
    ControlEvents events;
    events.click = [this, name] { Note(name + " click"); };
    events.doubleClick = [this, name] { Note(name + " doubleClick"); };
    events.change = [this, name] { Note(name + " change"); };
    events.gotFocus = [this, name] { Note(name + " gotFocus"); };
    events.menuRequested = [this, name] { Note(name + " menuRequested"); };
    return events;
}

void ControlsContract::NoteClicks(int id, const std::string& name) {
    Main().AnyControl(id).SetEvents(Noting(name));
}

void ControlsContract::NoteActivation(const std::string& window) {
    if (window != front_)
        Note(window + " activated");
    front_ = window;
}

std::vector<std::string> ControlsContract::Events() { return std::exchange(events_, {}); }

}  // namespace zentar
