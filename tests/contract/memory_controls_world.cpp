// The controls contract, kept by the doubles.
#include "tests/contract/controls_contract.h"
#include "tests/contract/full_screen_contract.h"
#include "tests/doubles/memory_platform.h"

namespace zentar {
namespace {

MemoryForm& InMemory(Form& form) { return dynamic_cast<MemoryForm&>(form); }

class MemoryControlsWorld : public ControlsWorld {
  public:
    std::unique_ptr<Form> Create(const FormTable& table) override {
        return platform_.forms.Create(table);
    }
    void PumpPending() override { platform_.windows.PumpPending(); }

    // Shown windows come to the front here, as Windows brings them there.
    void Settle() override {
        for (const int id : {kMainForm, kDialogForm, kFullForm}) {
            if (!platform_.forms.Exists(id))
                continue;
            MemoryForm& form = platform_.forms.Get(id);
            if (form.Shown() && !activated_[id])
                form.Activate();
            activated_[id] = form.Shown();
        }
    }

    void SettleUntil(Form& form, int timer, const std::function<bool()>& condition) override {
        for (int round = 0; round < 100 && !condition(); ++round)
            InMemory(form).FireTimer(timer);
        EXPECT_TRUE(condition());
    }

    void Click(Form& form, int id) override {
        InMemory(form).UserClick(id);
        Settle();
    }
    void ClickEntry(Form& form, int list, int index) override {
        InMemory(form).UserSelect(list, index);
    }
    void DoubleClickEntry(Form& form, int list, int index) override {
        InMemory(form).UserDoubleClick(list, index);
    }
    void RightClickEntry(Form& form, int list, int index) override {
        InMemory(form).UserRightClick(list, index);
    }
    void ClickTab(Form& form, int tab, int index) override {
        InMemory(form).UserSelectTab(tab, index);
    }
    void Type(Form& form, std::string_view text) override { InMemory(form).UserType(text); }
    void Press(Form& form, Key key) override { InMemory(form).UserKey(key); }
    void PickMenu(Form& form, int id) override { InMemory(form).UserPickMenu(id); }
    void CloseWindow(Form& form) override {
        InMemory(form).UserClose();
        Settle();
    }

    void RightClick(Form& form, int id) override { InMemory(form).UserRightClick(id); }
    void DoubleClick(Form& form, int id) override { InMemory(form).UserDoubleClick(id); }
    void PressMouse(Form& form, int id, MouseButton button, Point at) override {
        InMemory(form).UserMouseOn(id).Press(button, at);
    }
    void DragMouse(Form& form, int id, Point to) override {
        InMemory(form).UserMouseOn(id).Drag(to);
    }
    void ReleaseMouse(Form& form, int id) override { InMemory(form).UserMouseOn(id).Release(); }

    void SelectText(Form& form, int rich, int from, int to) override {
        InMemory(form).UserIn(rich).Select(from, to);
    }
    void Paste(Form& form, int rich, const std::vector<ColouredRun>& runs) override {
        InMemory(form).UserIn(rich).Paste(runs);
    }
    void Undo(Form& form, int rich) override { InMemory(form).UserIn(rich).Undo(); }

    void PickFromPopup(Form& form, int /*downs*/, int id) override {
        InMemory(form).SetPopupUser([&form, id](int) { InMemory(form).UserPickMenu(id); });
    }
    void DismissPopup(Form& form) override { InMemory(form).SetPopupUser({}); }
    void InModal(Form& form, std::function<void()> user) override {
        platform_.forms.SetUser(InMemory(form).Table().id, [user](MemoryForm&) { user(); });
    }

    bool TakesInput(Form& form, int id) override { return InMemory(form).CanReach(id); }
    bool Seen(Form& form, int id) override { return InMemory(form).EffectivelyVisible(id); }
    bool Shown(Form& form) override { return InMemory(form).Shown(); }
    bool ShownGrey(Form& form, int picture) override {
        return !InMemory(form).EffectivelyEnabled(picture);
    }
    bool Shows(Form& form, int textBox, ColourRef colour) override {
        return InMemory(form).Shows(textBox, colour);
    }
    std::string Tooltip(Form& form, int id) override { return InMemory(form).Tooltip(id); }
    int FirstShown(Form& form, int list) override {
        return dynamic_cast<MemoryListBox&>(form.GetListBox(list)).FirstShown();
    }
    int TopTwips(Form& form, int id) override { return InMemory(form).TopTwips(id); }

    BitmapPtr MakeBitmap(Size size) override {
        return std::make_shared<MemoryBitmap>(size, "something");
    }

  private:
    MemoryPlatform platform_;
    std::map<int, bool> activated_;
};

std::unique_ptr<ControlsWorld> MakeMemoryControlsWorld() {
    return std::make_unique<MemoryControlsWorld>();
}

const auto kMemory = testing::Values(&MakeMemoryControlsWorld);

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, ButtonsContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, TextAndListContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, FocusContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, FormContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, LooksContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, ImageControlsContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, TextColourContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, PageBehindContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, RichTextContract, kMemory);
INSTANTIATE_TEST_SUITE_P(Memory, FullScreenContract, kMemory);

}  // namespace zentar
