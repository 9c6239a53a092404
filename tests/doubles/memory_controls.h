// The controls of a window in memory: the same events under the same conditions as the real ones.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/form_table.h"

namespace zentar {

class ControlCore;

// How a call reads in the log: "SetBackground(Window)", "SetBackground(0x006cd8)".
std::string CallWith(const char* name, Colour colour);

// What a control needs of its window.
class ControlHost {
  public:
    virtual ~ControlHost() = default;
    virtual void RunProcedure(const std::function<void()>& procedure) = 0;
    virtual void Log(int id, const std::string& call) = 0;
    virtual ControlCore* Focused() const = 0;
    virtual void MoveFocus(ControlCore* to) = 0;
    // The control is about to be disabled or hidden: when the focus is in it, it moves on.
    virtual void LeaveFocus(const ControlCore& going) = 0;
    virtual std::vector<ControlCore*> ChildrenOf(int parent) const = 0;
};

// What every control has, whatever its kind.
class ControlCore {
  public:
    ControlCore(ControlHost& host, const ControlRow& row, ControlCore* parent);
    virtual ~ControlCore() = default;
    ControlCore(const ControlCore&) = delete;
    ControlCore& operator=(const ControlCore&) = delete;

    virtual Control& AsControl() = 0;
    // What a left click does to the control, beyond giving it the focus.
    virtual void Clicked() {}
    // Whether it shows a colour that the program gave to it.
    virtual bool Shows(ColourRef /*colour*/) const { return false; }
    // Takes the other buttons' selection away, without an event.
    virtual void ClearSelection() {}

    const ControlRow& Row() const { return row_; }
    int TopTwips() const { return topTwips_; }
    bool EffectivelyEnabled() const;
    // Shown as far as this window goes: neither it nor an ancestor is hidden or on a page behind.
    bool EffectivelyVisible() const;
    // As the window may be hidden itself: it gives the focus once it is shown.
    bool CanTakeFocus() const;
    bool IsWithin(const ControlCore& ancestor) const;
    // Whether the Tab key stops here.
    virtual bool IsTabStop() const { return CanTakeFocus(); }
    const std::string& Tooltip() const { return tooltip_; }
    const ControlEvents& Events() const { return events_; }
    void Raise(const char* name, std::function<void()> ControlEvents::*event);

  protected:
    virtual bool InFront() const { return true; }
    void StoreEvents(ControlEvents events) { events_ = std::move(events); }
    void StoreEnabled(bool enabled);
    void StoreVisible(bool visible);
    void StoreTop(int twips);
    void StoreText(const std::string& text);
    void StoreTooltip(const std::string& text);
    void TakeFocus();
    void Log(const std::string& call);

    ControlHost& host_;
    const ControlRow& row_;
    ControlCore* parent_;
    ControlEvents events_;
    std::string text_;
    std::string tooltip_;
    bool enabled_;
    bool visible_;
    int topTwips_;
};

template <typename Interface>
class MemoryControl : public Interface, public ControlCore {
  public:
    using ControlCore::ControlCore;

    Control& AsControl() override { return *this; }
    void SetEvents(ControlEvents events) override { StoreEvents(std::move(events)); }
    void SetEnabled(bool enabled) override { StoreEnabled(enabled); }
    bool Enabled() const override { return enabled_; }
    void SetVisible(bool visible) override { StoreVisible(visible); }
    bool Visible() const override { return visible_; }
    void SetText(const std::string& text) override { StoreText(text); }
    std::string Text() const override { return text_; }
    void SetFocus() override { TakeFocus(); }
    bool HasFocus() const override { return host_.Focused() == this; }
    void SetTop(int twips) override { StoreTop(twips); }
    void SetTooltip(const std::string& text) override { StoreTooltip(text); }
};

using MemoryLabel = MemoryControl<Label>;
using MemoryFrame = MemoryControl<Frame>;
using MemoryPicture = MemoryControl<Picture>;

class MemoryImageBox : public MemoryControl<ImageBox> {
  public:
    using MemoryControl::MemoryControl;
    void Clicked() override { Raise("click", &ControlEvents::click); }
    void SetImage(BitmapPtr image) override;
    BitmapPtr Image() const override { return image_; }
    void SetPointer(BoxPointer pointer) override { pointer_ = pointer; }
    BoxPointer ShownPointer() const override { return pointer_; }

  private:
    BitmapPtr image_;
    BoxPointer pointer_ = BoxPointer::Default;
};

class MemoryPictureBox : public MemoryControl<PictureBox> {
  public:
    using MemoryControl::MemoryControl;
    void SetMouseEvents(MouseEvents events) override { mouse_ = std::move(events); }
    void SetImage(BitmapPtr image) override { image_ = std::move(image); }
    BitmapPtr Image() const override { return image_; }
    void MoveImage(Point to) override;
    Point ImagePlace() const override { return place_; }
    Size View() const override { return view_; }
    void SetPointer(BoxPointer pointer) override { pointer_ = pointer; }
    BoxPointer ShownPointer() const override { return pointer_; }

    void SetView(Size view) { view_ = view; }
    int Moves() const { return moves_; }
    // The user's mouse.
    void Press(MouseButton button, Point at);
    void Drag(Point to);
    void Release();

  private:
    MouseEvents mouse_;
    BitmapPtr image_;
    Point place_;
    Size view_{1024, 768};
    BoxPointer pointer_ = BoxPointer::Default;
    bool leftDown_ = false;
    int moves_ = 0;
};

class MemoryButton : public MemoryControl<Button> {
  public:
    using MemoryControl::MemoryControl;
    void Clicked() override { Raise("click", &ControlEvents::click); }
    bool Shows(ColourRef colour) const override {
        return Row().kind == ControlKind::ColourButton && Row().colour == colour;
    }
};

class MemoryCheckBox : public MemoryControl<CheckBox> {
  public:
    MemoryCheckBox(ControlHost& host, const ControlRow& row, ControlCore* parent);
    void Clicked() override { Change(!checked_); }
    void SetChecked(bool checked) override;
    bool Checked() const override { return checked_; }

  private:
    void Change(bool checked);
    bool checked_;
};

class MemoryOptionButton : public MemoryControl<OptionButton> {
  public:
    MemoryOptionButton(ControlHost& host, const ControlRow& row, ControlCore* parent);
    void Clicked() override { Change(true); }
    void ClearSelection() override { selected_ = false; }
    void SetSelected(bool selected) override;
    bool Selected() const override { return selected_; }
    void SetCaptionColour(CaptionColour colour) override;
    CaptionColour ShownCaptionColour() const override { return captionColour_; }
    // Of a group, only the selected button, or the first while none is.
    bool IsTabStop() const override;

  private:
    void Change(bool selected);
    bool selected_;
    CaptionColour captionColour_ = CaptionColour::Normal;
};

class MemoryTextBox : public MemoryControl<TextBox> {
  public:
    MemoryTextBox(ControlHost& host, const ControlRow& row, ControlCore* parent);
    void SetText(const std::string& text) override;
    void SelectAll() override;
    void PutCaretFirst() override;
    void SetForeground(Colour colour) override;
    Colour Foreground() const override { return foreground_; }
    void SetBackground(Colour colour) override;
    Colour Background() const override { return background_; }
    bool Shows(ColourRef colour) const override;

    bool AllSelected() const { return allSelected_; }
    // What the user's keys do at the end of the text, or where the program put the caret, or to the
    // whole text when it is selected. A box that is read-only does nothing.
    void TypeCharacter(const std::string& character);
    void Erase(Key key);

  private:
    bool ReadOnlyBox() const { return (row_.flags & ReadOnly) != 0; }
    void Change(const std::string& text);
    Colour foreground_ = SystemColour::WindowText;
    Colour background_;
    bool allSelected_ = false;
    std::size_t caret_ = 0;
};

class MemoryListBox : public MemoryControl<ListBox> {
  public:
    MemoryListBox(ControlHost& host, const ControlRow& row, ControlCore* parent);
    void SetItems(const std::vector<std::string>& items) override;
    void UpdateItems(const std::vector<std::string>& items) override { SetItems(items); }
    int Count() const override { return static_cast<int>(items_.size()); }
    std::string Item(int index) const override;
    int SelectedIndex() const override { return selected_; }
    void Select(int index) override;
    void SelectAtPointer() override;
    void ShowFirst(int index) override;
    void SetBackground(SystemColour colour) override;
    SystemColour Background() const override { return background_; }

    const std::vector<std::string>& Items() const { return items_; }
    // The entry that ShowFirst named last, as if the list were high enough for one; filling the
    // list anew shows the first one.
    int FirstShown() const { return firstShown_; }
    // Which entry the mouse pointer is over, -1 for none.
    void SetEntryAtPointer(int index) { entryAtPointer_ = index; }
    // As Select, but by the user.
    void Change(int index);

  private:
    void CheckIndex(int index) const;

    SystemColour background_;
    std::vector<std::string> items_;
    int selected_ = -1;
    int entryAtPointer_ = -1;
    int firstShown_ = 0;
};

class MemoryTab : public MemoryControl<TabControl> {
  public:
    using MemoryControl::MemoryControl;
    int SelectedTab() const override { return selected_; }
    void SelectTab(int index) override;
    void Change(int index);
    int PageCount() const { return static_cast<int>(host_.ChildrenOf(row_.id).size()); }

  private:
    int selected_ = 0;
};

// A page counts as shown while its tab is in front.
class MemoryTabPage : public MemoryControl<Control> {
  public:
    MemoryTabPage(ControlHost& host, const ControlRow& row, ControlCore* parent);

  protected:
    bool InFront() const override { return tab_.SelectedTab() == index_; }

  private:
    const MemoryTab& tab_;
    int index_;
};

std::unique_ptr<ControlCore> MakeMemoryControl(ControlHost& host, const ControlRow& row,
                                               ControlCore* parent);

}  // namespace zentar
