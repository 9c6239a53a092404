// What pictures look like, and what tooltips say.
#include "tests/contract/controls_contract.h"

namespace zentar {

TEST_P(LooksContract, APictureLosesItsColoursWhileItIsDisabled) {
    ShowMain();
    EXPECT_TRUE(Main().GetPicture(kPicture).Enabled());
    EXPECT_FALSE(World().ShownGrey(Main(), kPicture));
    Main().GetPicture(kPicture).SetEnabled(false);
    EXPECT_FALSE(Main().GetPicture(kPicture).Enabled());
    EXPECT_TRUE(World().ShownGrey(Main(), kPicture));
    Main().GetPicture(kPicture).SetEnabled(true);
    EXPECT_FALSE(World().ShownGrey(Main(), kPicture));
}

TEST_P(LooksContract, APictureThatStartsDisabledStartsGrey) {
    ShowMain();
    EXPECT_FALSE(Main().GetPicture(kGreyPicture).Enabled());
    EXPECT_TRUE(World().ShownGrey(Main(), kGreyPicture));
    Main().GetPicture(kGreyPicture).SetEnabled(true);
    EXPECT_FALSE(World().ShownGrey(Main(), kGreyPicture));
}

TEST_P(LooksContract, APictureInADisabledFrameIsGreyHoweverDeepItStands) {
    ShowMain();
    for (const int frame : {kFrame, kInnerFrame}) {
        EXPECT_FALSE(World().ShownGrey(Main(), kPicture));
        Main().GetFrame(frame).SetEnabled(false);
        EXPECT_TRUE(Main().GetPicture(kPicture).Enabled());
        EXPECT_TRUE(World().ShownGrey(Main(), kPicture));
        Main().GetFrame(frame).SetEnabled(true);
    }
    EXPECT_FALSE(World().ShownGrey(Main(), kPicture));
    EXPECT_TRUE(World().ShownGrey(Main(), kGreyPicture));
}

TEST_P(LooksContract, APictureBehindADialogKeepsItsColours) {
    ShowMain();
    const std::unique_ptr<Form> dialog = World().Create(ContractDialogTable());
    bool looked = false;
    World().InModal(*dialog, [&] {
        EXPECT_FALSE(World().TakesInput(Main(), kPicture));
        EXPECT_FALSE(World().ShownGrey(Main(), kPicture));
        looked = true;
        World().CloseWindow(*dialog);
    });
    dialog->ShowModal();
    EXPECT_TRUE(looked);
}

TEST_P(LooksContract, WhatIsOnlyLookedAtTakesNoFocus) {
    ShowMain();
    Main().GetCheckBox(kCheck).SetFocus();
    for (const int id : {kPicture, kLabel, kFrame, kPageOne}) {
        Main().AnyControl(id).SetFocus();
        EXPECT_FALSE(Main().AnyControl(id).HasFocus());
        EXPECT_TRUE(Main().GetCheckBox(kCheck).HasFocus());
    }
}

TEST_P(LooksContract, ATooltipSaysWhatTheTableSaysUntilItIsChanged) {
    ShowMain();
    EXPECT_EQ(World().Tooltip(Main(), kButton), "Click here.");
    EXPECT_EQ(World().Tooltip(Main(), kCheck), "");
    Main().GetButton(kButton).SetTooltip("Не нажимать.");
    EXPECT_EQ(World().Tooltip(Main(), kButton), "Не нажимать.");
    Main().GetCheckBox(kCheck).SetTooltip("Tick & go.");
    EXPECT_EQ(World().Tooltip(Main(), kCheck), "Tick & go.");
}

TEST_P(LooksContract, ATooltipMayChangeBeforeTheMouseEverCame) {
    Main().GetButton(kButton).SetTooltip("Wait.");
    Main().GetCheckBox(kCheck).SetTooltip("Tick.");
    ShowMain();
    EXPECT_EQ(World().Tooltip(Main(), kButton), "Wait.");
    EXPECT_EQ(World().Tooltip(Main(), kCheck), "Tick.");
}

TEST_P(LooksContract, AnEmptyTextIsNoTooltip) {
    ShowMain();
    Main().GetButton(kButton).SetTooltip("");
    EXPECT_EQ(World().Tooltip(Main(), kButton), "");
    Main().GetButton(kButton).SetTooltip("Click again.");
    EXPECT_EQ(World().Tooltip(Main(), kButton), "Click again.");
    Main().GetButton(kButton).SetTooltip("");
    EXPECT_EQ(World().Tooltip(Main(), kButton), "");
}

}  // namespace zentar
