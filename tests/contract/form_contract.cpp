// Windows, their menus and timers.
#include "tests/contract/controls_contract.h"

namespace zentar {

TEST_P(FormContract, AWindowIsActivatedFromTheMessageLoopNotInsideAProcedure) {
    bool inside = false;
    FormEvents events;
    events.activate = [&] { NoteActivation(inside ? "inside, main" : "main"); };
    Main().SetEvents(events);
    const std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    FormEvents dialogEvents;
    dialogEvents.activate = [&] { NoteActivation(inside ? "inside, dialog" : "dialog"); };
    dialog->SetEvents(dialogEvents);
    ShowMain();
    EXPECT_EQ(Events(), Noted{"main activated"});
    ControlEvents button;
    button.click = [&] {
        inside = true;
        dialog->Show();
        World().PumpPending();
        inside = false;
        Note("procedure done");
    };
    Main().GetButton(kButton).SetEvents(button);
    World().Click(Main(), kButton);
    EXPECT_EQ(Events(), (Noted{"procedure done", "dialog activated"}));
    EXPECT_TRUE(World().Shown(*dialog));
}

TEST_P(FormContract, AWindowThatRefusesToGoStays) {
    bool goes = false;
    FormEvents events;
    events.queryUnload = [&] {
        Note("asked");
        return goes;
    };
    Main().SetEvents(events);
    ShowMain();
    World().CloseWindow(Main());
    EXPECT_EQ(Events(), Noted{"asked"});
    EXPECT_TRUE(World().Shown(Main()));
    Main().Close();
    EXPECT_EQ(Events(), Noted{"asked"});
    EXPECT_TRUE(World().Shown(Main()));
    goes = true;
    World().CloseWindow(Main());
    EXPECT_EQ(Events(), Noted{"asked"});
    EXPECT_FALSE(World().Shown(Main()));
}

TEST_P(FormContract, AWindowClosedInsideAProcedureGoesAfterIt) {
    FormEvents events;
    events.queryUnload = [&] {
        Note("asked");
        return true;
    };
    Main().SetEvents(events);
    ControlEvents button;
    button.click = [&] {
        Main().Close();
        Main().Close();
        World().PumpPending();
        Note(World().Shown(Main()) ? "still there" : "gone");
    };
    Main().GetButton(kButton).SetEvents(button);
    ShowMain();
    World().Click(Main(), kButton);
    World().Settle();
    EXPECT_EQ(Events(), (Noted{"still there", "asked"}));
    EXPECT_FALSE(World().Shown(Main()));
}

TEST_P(FormContract, AWindowClosedInAProcedureInsideAnotherWaitsForTheOutermost) {
    FormEvents events;
    events.queryUnload = [&] {
        Note("asked");
        return true;
    };
    Main().SetEvents(events);
    ControlEvents inner;
    inner.click = [&] {
        Main().Close();
        Note("inner done");
    };
    Main().GetCheckBox(kCheck).SetEvents(inner);
    ControlEvents outer;
    outer.click = [&] {
        Main().GetCheckBox(kCheck).SetChecked(true);
        World().PumpPending();
        Note("outer done");
    };
    Main().GetButton(kButton).SetEvents(outer);
    ShowMain();
    World().Click(Main(), kButton);
    World().Settle();
    EXPECT_EQ(Events(), (Noted{"inner done", "outer done", "asked"}));
}

TEST_P(FormContract, AWindowThatIsNoMoreWhenItsTurnComesIsForgotten) {
    std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    FormEvents events;
    events.activate = [&] { Note("activated"); };
    events.queryUnload = [&] {
        Note("asked");
        return true;
    };
    dialog->SetEvents(events);
    ControlEvents button;
    button.click = [&] {
        dialog->Show();
        dialog->Close();
        dialog.reset();
        Note("done");
    };
    Main().GetButton(kButton).SetEvents(button);
    ShowMain();
    World().Click(Main(), kButton);
    World().Settle();
    EXPECT_EQ(Events(), Noted{"done"});
}

TEST_P(FormContract, AClosedDialogMayBeShownAgainWithWhatItHeld) {
    const std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    dialog->Show();
    World().Settle();
    dialog->GetTextBox(kDialogText).SetText("kept");
    World().CloseWindow(*dialog);
    EXPECT_FALSE(World().Shown(*dialog));
    dialog->Show();
    World().Settle();
    EXPECT_TRUE(World().Shown(*dialog));
    EXPECT_EQ(dialog->GetTextBox(kDialogText).Text(), "kept");
}

TEST_P(FormContract, AModalWindowReturnsOnceItIsClosedAndKeepsTheUserFromTheOthers) {
    const std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    FormEvents events;
    events.activate = [&] { NoteActivation("dialog"); };
    dialog->SetEvents(events);
    ControlEvents close;
    close.click = [&] {
        dialog->Close();
        Note(World().Shown(*dialog) ? "dialog still there" : "dialog gone");
    };
    dialog->GetButton(kDialogClose).SetEvents(close);
    ShowMain();
    World().InModal(*dialog, [&] {
        Note(World().TakesInput(Main(), kButton) ? "main takes input" : "main waits");
        World().Click(*dialog, kDialogClose);
    });
    ControlEvents button;
    button.click = [&] {
        dialog->ShowModal();
        Note("back");
    };
    Main().GetButton(kButton).SetEvents(button);
    World().Click(Main(), kButton);
    EXPECT_EQ(Events(), (Noted{"dialog activated", "main waits", "dialog still there", "back"}));
    EXPECT_FALSE(World().Shown(*dialog));
    EXPECT_TRUE(World().TakesInput(Main(), kButton));
}

TEST_P(FormContract, TheWindowBelowIsActivatedAgainAfterAModalOneAndItsProcedure) {
    const std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    FormEvents events;
    events.activate = [&] { NoteActivation("main"); };
    Main().SetEvents(events);
    events.activate = [&] { NoteActivation("dialog"); };
    dialog->SetEvents(events);
    ControlEvents button;
    button.click = [&] {
        dialog->ShowModal();
        Note("procedure done");
    };
    Main().GetButton(kButton).SetEvents(button);
    ShowMain();
    Events();
    World().InModal(*dialog, [&] { World().CloseWindow(*dialog); });
    World().Click(Main(), kButton);
    World().Settle();
    EXPECT_EQ(Events(), (Noted{"dialog activated", "procedure done", "main activated"}));
}

TEST_P(FormContract, AModalWindowThatRefusesStaysUntilItAgrees) {
    const std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    bool goes = false;
    FormEvents events;
    events.queryUnload = [&] {
        Note(goes ? "agrees" : "refuses");
        return goes;
    };
    dialog->SetEvents(events);
    ShowMain();
    World().InModal(*dialog, [&] {
        World().CloseWindow(*dialog);
        Note(World().Shown(*dialog) ? "still there" : "gone");
        goes = true;
        World().CloseWindow(*dialog);
    });
    dialog->ShowModal();
    EXPECT_EQ(Events(), (Noted{"refuses", "still there", "agrees"}));
    EXPECT_FALSE(World().Shown(*dialog));
}

TEST_P(FormContract, AMenuEntryRunsItsProcedureAndKeepsItsMark) {
    for (const int id : {kMenuOpen, kMenuDeep}) {
        Main().GetMenu(id).SetClick([this, id] { Note(id == kMenuOpen ? "open" : "deep"); });
    }
    ShowMain();
    World().PickMenu(Main(), kMenuOpen);
    World().PickMenu(Main(), kMenuDeep);
    EXPECT_EQ(Events(), (Noted{"open", "deep"}));
    MenuEntry& open = Main().GetMenu(kMenuOpen);
    EXPECT_FALSE(open.Checked());
    open.SetChecked(true);
    EXPECT_TRUE(open.Checked());
    EXPECT_TRUE(open.Enabled());
    open.SetEnabled(false);
    EXPECT_FALSE(open.Enabled());
    EXPECT_TRUE(open.Checked());
    EXPECT_EQ(Events(), Noted{});
    EXPECT_FALSE(Main().GetMenu(kMenuGrey).Enabled());
    Main().GetMenu(kMenuGrey).SetEnabled(true);
    EXPECT_TRUE(Main().GetMenu(kMenuGrey).Enabled());
    Main().GetMenu(kMenuMore).SetEnabled(false);
    EXPECT_FALSE(Main().GetMenu(kMenuMore).Enabled());
    EXPECT_TRUE(Main().GetMenu(kMenuDeep).Enabled());
}

TEST_P(FormContract, APopupRunsTheEntryThatTheUserPicks) {
    for (const int id : {kPopupPlay, kPopupDelete}) {
        Main().GetMenu(id).SetClick([this, id] { Note(id == kPopupPlay ? "play" : "delete"); });
    }
    ControlEvents events;
    events.click = [&] {
        Main().ShowPopup(kPopup);
        Note("closed");
    };
    Main().GetButton(kButton).SetEvents(events);
    ShowMain();
    World().PickFromPopup(Main(), 2, kPopupDelete);
    World().Click(Main(), kButton);
    EXPECT_EQ(Events(), (Noted{"delete", "closed"}));
    World().DismissPopup(Main());
    World().Click(Main(), kButton);
    EXPECT_EQ(Events(), Noted{"closed"});
}

TEST_P(FormContract, ATimerTicksUntilItIsDisabled) {
    Timer& timer = Main().GetTimer(kTimer);
    int ticks = 0;
    timer.SetTick([&] {
        ++ticks;
        if (ticks == 3)
            timer.SetEnabled(false);
    });
    ShowMain();
    EXPECT_EQ(ticks, 0);
    timer.SetEnabled(true);
    EXPECT_TRUE(timer.Enabled());
    World().SettleUntil(Main(), kTimer, [&] { return ticks == 3; });
    World().Settle();
    EXPECT_EQ(ticks, 3);
    EXPECT_FALSE(timer.Enabled());
}

}  // namespace zentar
