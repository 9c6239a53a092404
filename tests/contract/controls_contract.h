// What windows and controls promise, as assertions on any implementation of them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "platform/form.h"

namespace zentar {

// A windowing system, and a user in front of it.
class ControlsWorld {
  public:
    virtual ~ControlsWorld() = default;
    virtual std::unique_ptr<Form> Create(const FormTable& table) = 0;
    // What an event procedure calls so that windows repaint.
    virtual void PumpPending() = 0;
    // The message loop, until nothing waits.
    virtual void Settle() = 0;
    // The message loop, until the condition holds. A timer's interval passes meanwhile.
    virtual void SettleUntil(Form& form, int timer, const std::function<bool()>& condition) = 0;

    // The user. What they do is handled when the call returns.
    virtual void Click(Form& form, int id) = 0;
    virtual void ClickEntry(Form& form, int list, int index) = 0;
    virtual void DoubleClickEntry(Form& form, int list, int index) = 0;
    virtual void RightClickEntry(Form& form, int list, int index) = 0;  // -1: below the last one
    virtual void ClickTab(Form& form, int tab, int index) = 0;
    virtual void Type(Form& form, std::string_view text) = 0;
    virtual void Press(Form& form, Key key) = 0;
    virtual void PickMenu(Form& form, int id) = 0;
    virtual void CloseWindow(Form& form) = 0;
    virtual void RightClick(Form& form, int id) = 0;
    virtual void DoubleClick(Form& form, int id) = 0;
    virtual void PressMouse(Form& form, int id, MouseButton button, Point at) = 0;
    virtual void DragMouse(Form& form, int id, Point to) = 0;
    virtual void ReleaseMouse(Form& form, int id) = 0;
    // In a box of rich text. Places are in UTF-16 units.
    virtual void SelectText(Form& form, int rich, int from, int to) = 0;
    virtual void Paste(Form& form, int rich, const std::vector<ColouredRun>& runs) = 0;
    virtual void Undo(Form& form, int rich) = 0;
    // In the next popup menu, goes down so many lines and picks that one, `id`; or none.
    virtual void PickFromPopup(Form& form, int downs, int id) = 0;
    virtual void DismissPopup(Form& form) = 0;
    // What the user does once the form is shown modally.
    virtual void InModal(Form& form, std::function<void()> user) = 0;

    // What the user sees: shown with all that it stands in, and ready for the mouse.
    virtual bool TakesInput(Form& form, int id) = 0;
    virtual bool Seen(Form& form, int id) = 0;
    virtual bool Shown(Form& form) = 0;
    // Whether a picture has lost its colours.
    virtual bool ShownGrey(Form& form, int picture) = 0;
    // Whether something of a text box, or the face of a button, has exactly that colour.
    virtual bool Shows(Form& form, int id, ColourRef colour) = 0;
    // What the mouse finds out about the control.
    virtual std::string Tooltip(Form& form, int id) = 0;
    // The entry at the upper edge of a list.
    virtual int FirstShown(Form& form, int list) = 0;
    // The control's upper edge in its parent, in twips.
    virtual int TopTwips(Form& form, int id) = 0;

    virtual BitmapPtr MakeBitmap(Size size) = 0;
};

using ControlsWorldMaker = std::unique_ptr<ControlsWorld> (*)();

// The numbers of the window under test.
enum ContractId {
    kMainForm = 9000,
    kChild,  // a check box in kFrame
    kFrame,
    kOptionA,  // A, B and C share kFrame
    kOptionB,
    kOptionC,
    kInnerFrame,  // in kFrame, with the options D and E
    kOptionD,
    kOptionE,
    kPicture,  // in kInnerFrame
    kGreyPicture,
    kCheck,
    kTicked,
    kButton,
    kDefaultButton,
    kDisabledButton,
    kHiddenButton,
    kText,
    kOtherText,
    kList,
    kGreyList,
    kLabel,
    kTabs,
    kPageOne,
    kPageTwo,
    kButtonOne,
    kImage,      // on kPageOne
    kButtonTwo,  // this and the next ones on kPageTwo
    kBehindCheck,
    kBehindOptionA,
    kBehindOptionB,
    kBehindText,
    kBehindList,
    kBehindFrame,
    kBehindLabel,    // in kBehindFrame
    kBehindPicture,  // likewise
    kBehindImage,
    kBehindRich,
    kBehindColour,  // a button
    kPageThree,
    kButtonThree,
    kTimer,
    kRich,
    kReadOnlyText,
    kManyLines,
    kMenuFile,
    kMenuOpen,
    kMenuMore,
    kMenuDeep,
    kMenuGrey,
    kPopup,
    kPopupPlay,
    kPopupDelete,
    kDialogForm,
    kDialogText,
    kDialogClose,
    kFullForm,
    kFullPicture,
};

const FormTable& ContractMainTable();
const FormTable& ContractDialogTable();
const FormTable& ContractFullScreenTable();

class ControlsContract : public testing::TestWithParam<ControlsWorldMaker> {
  protected:
    ControlsContract();

    ControlsWorld& World() { return *world_; }
    Form& Main() { return *form_; }
    void ShowMain();

    // Notes each click, change, and so on of a control in Events(), as "name" says.
    void NoteClicks(int id, const std::string& name);
    ControlEvents Noting(const std::string& name);
    void Note(const std::string& what) { events_.push_back(what); }
    static std::string NoteOf(Key key) { return "key " + std::to_string(static_cast<int>(key)); }
    // The window came to the front. A window manager may bring it there twice in a row.
    void NoteActivation(const std::string& window);
    // What was noted since the last call.
    std::vector<std::string> Events();

    using Noted = std::vector<std::string>;

  private:
    std::unique_ptr<ControlsWorld> world_ = GetParam()();
    std::unique_ptr<Form> form_;
    std::vector<std::string> events_;
    std::string front_;
};

// The suites; each is instantiated for every implementation.
using ButtonsContract = ControlsContract;
using TextAndListContract = ControlsContract;
using FocusContract = ControlsContract;
using FormContract = ControlsContract;
using LooksContract = ControlsContract;
using ImageControlsContract = ControlsContract;
using TextColourContract = ControlsContract;
using PageBehindContract = ControlsContract;
using RichTextContract = ControlsContract;

}  // namespace zentar
