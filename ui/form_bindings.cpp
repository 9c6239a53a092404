#include "ui/form_bindings.h"

#include <array>

#include "ui/resource.h"

namespace zentar {
namespace {

std::array<TextBox*, kPlayerBoxes> PlayerBoxesOf(Form& Form2) {
    std::array<TextBox*, kPlayerBoxes> boxes{};
    for (std::size_t box = 0; box < boxes.size(); ++box) {
        boxes[box] = &Form2.GetTextBox(IDC_txtPlayer1 + static_cast<int>(box));
    }
    return boxes;
}

std::array<OptionButton*, kQ3TextTypes> Q3TextTypesOf(Form& Form2) {
    return {
        &Form2.GetOptionButton(IDC_optQ3TextName),     &Form2.GetOptionButton(IDC_optQ3TextServer),
        &Form2.GetOptionButton(IDC_optQ3TextPublic),   &Form2.GetOptionButton(IDC_optQ3TextTeam),
        &Form2.GetOptionButton(IDC_optQ3TextAttacker), &Form2.GetOptionButton(IDC_optQ3TextTarget)};
}

}  // namespace

GameSelectionControls GameSelectionControlsOf(Form& Form2) {
    return {
        .optGame = {&Form2.GetOptionButton(IDC_optGameQuake1),
                    &Form2.GetOptionButton(IDC_optGameQuake2),
                    &Form2.GetOptionButton(IDC_optGameQuake3)},
        .mnuGame = {&Form2.GetMenu(IDM_mnuGameQuake1), &Form2.GetMenu(IDM_mnuGameQuake2),
                    &Form2.GetMenu(IDM_mnuGameQuake3)},
        .mnuGameGetFolder = Form2.GetMenu(IDM_mnuGameGetFolder),
        .mnuGameCurrentFolders = Form2.GetMenu(IDM_mnuGameCurrentFolders),
        .labMod = Form2.GetLabel(IDC_labMod),
        .lstMods = Form2.GetListBox(IDC_lstMods),
        .chkShowAllDemos = Form2.GetCheckBox(IDC_chkShowAllDemos),
    };
}

SettingsControls SettingsControlsOf(Form& Form2) {
    return {
        .optModePreview = Form2.GetOptionButton(IDC_optModePreview),
        .optModeReal = Form2.GetOptionButton(IDC_optModeReal),
        .chkShowAllDemos = Form2.GetCheckBox(IDC_chkShowAllDemos),
        .optTextNo = Form2.GetOptionButton(IDC_optTextNo),
        .optTextYes = Form2.GetOptionButton(IDC_optTextYes),
        .txtDemoFilter = Form2.GetTextBox(IDC_txtDemoFilter),
        .chkBackupAll = Form2.GetCheckBox(IDC_chkBackupAll),
        .chkTranscriptHTML = Form2.GetCheckBox(IDC_chkTranscriptHTML),
        .chkTranscriptGameplay = Form2.GetCheckBox(IDC_chkTranscriptGameplay),
        .txtPlayer = PlayerBoxesOf(Form2),
        .optQ3Text = Q3TextTypesOf(Form2),
        .chkQ3TextKeyfox = Form2.GetCheckBox(IDC_chkQ3TextKeyfox),
        .chkQ3TextOSP = Form2.GetCheckBox(IDC_chkQ3TextOSP),
    };
}

DemosTabControls DemosTabControlsOf(Form& Form2) {
    return {
        .lstDemos = Form2.GetListBox(IDC_lstDemos),
        .labNumDemos = Form2.GetLabel(IDC_labNumDemos),
        .fraDemos = Form2.GetFrame(IDC_fraDemos),
        .fraTextContain = Form2.GetFrame(IDC_fraTextContain),
        .optTextNo = Form2.GetOptionButton(IDC_optTextNo),
        .optTextYes = Form2.GetOptionButton(IDC_optTextYes),
        .chkShowAllDemos = Form2.GetCheckBox(IDC_chkShowAllDemos),
        .txtDemoFilter = Form2.GetTextBox(IDC_txtDemoFilter),
        .lstDemoFilter = Form2.GetListBox(IDC_lstDemoFilter),
        .cmdFilter = Form2.GetButton(IDC_cmdFilter),
        .labDemo1 = Form2.GetLabel(IDC_labDemo1),
        .labDemo2 = Form2.GetLabel(IDC_labDemo2),
        .labFilterInfo = Form2.GetLabel(IDC_labFilterInfo),
        .fraDemoProperties = Form2.GetFrame(IDC_fraDemoProperties),
        .labDemoVersion = Form2.GetLabel(IDC_labDemoVersion),
        .labDemoName = Form2.GetLabel(IDC_labDemoName),
        .labDemoMap = Form2.GetLabel(IDC_labDemoMap),
        .labDemoSize = Form2.GetLabel(IDC_labDemoSize),
        .labDemoDate = Form2.GetLabel(IDC_labDemoDate),
        .mnuDemosPlay = Form2.GetMenu(IDM_mnuDemosPlay),
        .mnuDemosDelete = Form2.GetMenu(IDM_mnuDemosDelete),
        .mnuDemosRename = Form2.GetMenu(IDM_mnuDemosRename),
        .mnuDemosRenameMap = Form2.GetMenu(IDM_mnuDemosRenameMap),
        .mnuDemosCopy = Form2.GetMenu(IDM_mnuDemosCopy),
        .mnuDemosMove = Form2.GetMenu(IDM_mnuDemosMove),
        .mnuDemosDeleteAll = Form2.GetMenu(IDM_mnuDemosDeleteAll),
        .mnuDemosSearch = Form2.GetMenu(IDM_mnuDemosSearch),
        .mnuDemosSearchAll = Form2.GetMenu(IDM_mnuDemosSearchAll),
        .mnuDemosSearchDesc = Form2.GetMenu(IDM_mnuDemosSearchDesc),
        .mnuDemosSearchMap = Form2.GetMenu(IDM_mnuDemosSearchMap),
        .mnuDemosRefresh = Form2.GetMenu(IDM_mnuDemosRefresh),
        .tmrQ3Game = Form2.GetTimer(IDC_tmrQ3Game),
    };
}

ShotsTabControls ShotsTabControlsOf(Form& Form2) {
    return {
        .lstScreenshots = Form2.GetListBox(IDC_lstScreenshots),
        .labNumShots = Form2.GetLabel(IDC_labNumShots),
        .imgShotView = Form2.GetImageBox(IDC_imgShotView),
        .optModePreview = Form2.GetOptionButton(IDC_optModePreview),
        .optModeReal = Form2.GetOptionButton(IDC_optModeReal),
        .mnuScreenshotShowFull = Form2.GetMenu(IDM_mnuScreenshotShowFull),
        .mnuScreenshotProperties = Form2.GetMenu(IDM_mnuScreenshotProperties),
        .mnuScreenshotMakeJPEGOnly = Form2.GetMenu(IDM_mnuScreenshotMakeJPEGOnly),
        .mnuScreenshotMakeJPEGAndKill = Form2.GetMenu(IDM_mnuScreenshotMakeJPEGAndKill),
        .mnuScreenshotSetWallpaper = Form2.GetMenu(IDM_mnuScreenshotSetWallpaper),
        .mnuScreenshotDelete = Form2.GetMenu(IDM_mnuScreenshotDelete),
        .mnuScreenshotDeletePreview = Form2.GetMenu(IDM_mnuScreenshotDeletePreview),
        .mnuScreenshotRename = Form2.GetMenu(IDM_mnuScreenshotRename),
        .mnuScreenshotCopy = Form2.GetMenu(IDM_mnuScreenshotCopy),
        .mnuScreenshotMove = Form2.GetMenu(IDM_mnuScreenshotMove),
        .mnuScreenshotDeleteAllWallpaper = Form2.GetMenu(IDM_mnuScreenshotDeleteAllWallpaper),
        .mnuScreenshotDeleteAll = Form2.GetMenu(IDM_mnuScreenshotDeleteAll),
        .mnuScreenshotDeleteAllPreview = Form2.GetMenu(IDM_mnuScreenshotDeleteAllPreview),
        .mnuScreenshotDeleteAllJPG = Form2.GetMenu(IDM_mnuScreenshotDeleteAllJPG),
        .mnuScreenshotDeleteAllTGA = Form2.GetMenu(IDM_mnuScreenshotDeleteAllTGA),
        .mnuScreenshotDeleteAllPCX = Form2.GetMenu(IDM_mnuScreenshotDeleteAllPCX),
        .mnuScreenshotRefresh = Form2.GetMenu(IDM_mnuScreenshotRefresh),
    };
}

DemoInstallerControls DemoInstallerControlsOf(Form& Form2) {
    return {
        .fraDemoInstaller = Form2.GetFrame(IDC_fraDemoInstaller),
        .picDemoInstaller = Form2.GetPicture(IDC_picDemoInstaller),
        .labDemoInstaller = Form2.GetLabel(IDC_labDemoInstaller),
        .cmdDemoInstaller = Form2.GetButton(IDC_cmdDemoInstaller),
    };
}

ChatFrameControls ChatFrameControlsOf(Form& Form2) {
    return {
        .fraChat = Form2.GetFrame(IDC_fraChat),
        .txtPlayer = PlayerBoxesOf(Form2),
        .cmdScanForNames = Form2.GetButton(IDC_cmdScanForNames),
        .cmdClearNames = Form2.GetButton(IDC_cmdClearNames),
        .cmdCreateTranscript = Form2.GetButton(IDC_cmdCreateTranscript),
        .chkTranscriptHTML = Form2.GetCheckBox(IDC_chkTranscriptHTML),
        .chkTranscriptGameplay = Form2.GetCheckBox(IDC_chkTranscriptGameplay),
        .txtTranscriptMessages = Form2.GetTextBox(IDC_txtTranscriptMessages),
        .labColourUsed = Form2.GetLabel(IDC_labColourUsed),
    };
}

Q3TextControls Q3TextControlsOf(Form& Form2) {
    return {
        .rtbQ3Text = Form2.GetRichTextBox(IDC_rtbQ3Text),
        .cmdColour = {&Form2.GetButton(IDC_cmdQ3TextBlack), &Form2.GetButton(IDC_cmdQ3TextRed),
                      &Form2.GetButton(IDC_cmdQ3TextGreen), &Form2.GetButton(IDC_cmdQ3TextYellow),
                      &Form2.GetButton(IDC_cmdQ3TextBlue), &Form2.GetButton(IDC_cmdQ3TextCyan),
                      &Form2.GetButton(IDC_cmdQ3TextMagenta), &Form2.GetButton(IDC_cmdQ3TextWhite)},
        .optQ3Text = Q3TextTypesOf(Form2),
        .chkQ3TextKeyfox = Form2.GetCheckBox(IDC_chkQ3TextKeyfox),
        .chkQ3TextOSP = Form2.GetCheckBox(IDC_chkQ3TextOSP),
        .txtQ3TextCode = Form2.GetTextBox(IDC_txtQ3TextCode),
        .cmdQ3TextSave = Form2.GetButton(IDC_cmdQ3TextSave),
        .cmdQ3TextOpen = Form2.GetButton(IDC_cmdQ3TextOpen),
        .cmdQ3TextClipboard = Form2.GetButton(IDC_cmdQ3TextClipboard),
        .cmdQ3TextQ3Config = Form2.GetButton(IDC_cmdQ3TextQ3Config),
        .chkQ3TextAddSlash = Form2.GetCheckBox(IDC_chkQ3TextAddSlash),
    };
}

Q3ConfigControls Q3ConfigControlsOf(Form& Form2) {
    return {
        .cmdQ3Backup = Form2.GetButton(IDC_cmdQ3Backup),
        .cmdQ3Restore = Form2.GetButton(IDC_cmdQ3Restore),
        .chkBackupAll = Form2.GetCheckBox(IDC_chkBackupAll),
        .cmdQ3ConfigEdit = Form2.GetButton(IDC_cmdQ3ConfigEdit),
    };
}

FirstAidControls FirstAidControlsOf(Form& Form2) {
    return {
        .lstSymptoms = Form2.GetListBox(IDC_lstSymptoms),
        .txtRemedy = Form2.GetTextBox(IDC_txtRemedy),
        .cmdRemedy1 = Form2.GetButton(IDC_cmdRemedy1),
        .cmdRemedy2 = Form2.GetButton(IDC_cmdRemedy2),
    };
}

HelpControls HelpControlsOf(Form& Form9) {
    return {
        .lstQuestions = Form9.GetListBox(IDC_lstQuestions),
        .txtAnswer = Form9.GetTextBox(IDC_txtAnswer),
        .labHeader = Form9.GetLabel(IDC_labHeader),
        .cmdBack = Form9.GetButton(IDC_cmdBack),
    };
}

PreferencesControls PreferencesControlsOf(Form& Form4) {
    return {
        .txtRemote = Form4.GetTextBox(IDC_txtRemote),
        .cmdRemote = Form4.GetButton(IDC_cmdRemote),
        .chkExpert = Form4.GetCheckBox(IDC_chkExpert),
        .chkAutoShowAll = Form4.GetCheckBox(IDC_chkAutoShowAll),
        .chkAutoNextShot = Form4.GetCheckBox(IDC_chkAutoNextShot),
        .chkAutoNextDemo = Form4.GetCheckBox(IDC_chkAutoNextDemo),
    };
}

}  // namespace zentar
