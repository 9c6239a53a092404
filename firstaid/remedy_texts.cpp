// What First Aid says about each symptom, whole.

#include "firstaid/symptoms.h"

namespace zentar {
namespace {

std::string SettingsNotSaved(const SymptomSituation& now) {
    return "All your current game settings are saved to a special config file by Quake 1/2/3 but "
           "these get overwritten every time you quit the games.  Therefore, to save your own "
           "custom settings, you need to put them in another file called \"autoexec.cfg\".  This "
           "remedy will create a blank \"autoexec.cfg\" file in your " +
           now.game + now.base +
           " folder that you can edit with settings to keep.  Don't forget that a copy of this "
           "file must also go into each mod folder of " +
           now.game + " (assuming you intend to play mods).";
}

constexpr std::string_view kDemosPlayBadly =
    "If a demo refuses to play or has items (such as images or sounds) missing during playback, "
    "then it's usually due to one of these two situations:\r\n"
    "\r\n"
    "(1) The demo is installed in the wrong mod folder for the Quake game.  For example, a demo "
    "that was recorded in the CTF mod must be in the CTF mod folder to play properly.  If you are "
    "not sure which mod a demo belongs to, then click the \"Misc\" tab and then the \"Install "
    "Demos Into Game\" button.  This puts the demos of a folder into their correct mod folders, "
    "but works only for Quake 2 and Quake 3 because Quake 1 demos do not record the mod that they "
    "were made with.\r\n"
    "\r\n"
    "(2) You do not have the correct map installed that the demo was recorded on.  To find such a "
    "map on the Internet, click the \"Demos\" tab, right-click the demo in question and select "
    "\"Search Internet For Map\" from the pop-up menu.";

std::string FreezesOnline(const SymptomSituation& now) {
    const std::string cause =
        "This is most likely due to you using the firewall program \"ZoneAlarm\" ";
    if (!now.zoneAlarm) {
        return cause +
               "but since you don't have it installed then other factors beyond Zentar's help are "
               "involved.  Sorry!";
    }
    return cause + "and since you have this installed you should press the \"Y\" key when " +
           now.game + " seems to lock up.  This tells ZoneAlarm that " + now.game +
           " is permitted to access the Internet and " + now.game +
           " will then \"unfreeze\" and continue normally from then on.  Note that if you modify "
           "your " +
           now.game +
           " executable (such as with Zentar) then ZoneAlarm will re-prompt you for online "
           "permission again because " +
           now.game + " is thus a \"different\" program.";
}

constexpr std::string_view kMousewheelDead =
    "This is caused by a default setting in the Logitech drivers.  The remedy depends on which "
    "version of the Logitech drivers you are using:\r\n"
    "\r\n"
    "Versions less than 8.4: Fix the problem by opening the Mouse Properties icon of your Control "
    "Panel and changing the third/middle button setting to the \"Middle Button\" value (click "
    "\"Apply Remedy #1\" to open your Mouse Properties icon).\r\n"
    "\r\n"
    "Version 8.4 and higher: A system Registry setting needs to be changed to fix it, so click "
    "\"Apply Remedy #2\" to make the change.  Don't fret: You can later undo the change by again "
    "clicking \"Apply Remedy #2\".";

// Before what changes a game's executable.
std::string Warning(const std::string& game) {
    return "WARNING: This remedy will irreversibly modify your " + game +
           " game executable, and please read the First Aid item about freezes/lock-ups if you "
           "apply this modification.\r\n"
           "\r\n";
}

std::string ExecingMessages(const SymptomSituation& now) {
    return Warning(now.game) +
           "This remedy will stop all \"execing\" messages appearing whenever you \"exec\" a "
           "config from within " +
           now.game + ".  This can be visually pleasing for a variety of reasons.";
}

constexpr std::string_view kDriver =
    "This error usually occurs when you have switched from using a Voodoo graphics card to a "
    "non-Voodoo card; however, several other factors could be the cause.  Click \"Apply Remedy "
    "#1\" to let Zentar try to fix the problem (if disabled, it has been applied), and if this "
    "fails then click \"Apply Remedy #2\" to restore the fix back to normal (whereupon you'll have "
    "to contact Tech Support from Quake3's publishers).\r\n"
    "\r\n"
    "NOTE: If both remedy buttons are disabled, then Zentar can't fix the problem at all.";

constexpr std::string_view kStrays =
    "This is caused by having a file (or files) inside your \"players\" folder.  Such files must "
    "be removed because only folders can exist inside there.  This remedy will move any such stray "
    "files to a new folder called \"Zentar Strays\" inside your Quake2 folder.";

constexpr std::string_view kCrashOnScreenshot =
    "This is caused by Quake 2 not having a \"scrnshot\" folder for every mod that you have "
    "installed.  This remedy will have Zentar create such folders for you.";

constexpr std::string_view kSoundBufferMessages =
    "This remedy will stop the annoying \"Creating DS buffer / ...using primary buffer\" message "
    "pair appearing whenever you give your Quake2 window the focus.";

constexpr std::string_view kVersionMismatch =
    "This error is caused by the server using a different version of Quake 3 to the version that "
    "you currently have installed.  Usually this means that your version of Quake 3 needs "
    "updating, so please click \"Apply Remedy #1\" to check if a newer version of Quake 3 exists "
    "that you may not be aware of.";

constexpr std::string_view kCouldntWriteMessages =
    "This remedy will stop the annoying \"Couldn't write X\" message appearing whenever you change "
    "various in-game options.  Note that X refers to either \"baseq3\" or the name of the mod "
    "currently being played.";

constexpr std::string_view kTeamArena =
    "This error occurs when you try to install Team Arena but you do not have Quake 3 installed, "
    "or the Registry files for Quake 3 are missing (usually due to a re-install of Windows).  "
    "Thus, install Quake 3 if not currently done, or click \"Apply Remedy #1\" to restore the "
    "Quake 3 Registry settings if it is.";

}  // namespace

std::string RemedyText(Symptom symptom, const SymptomSituation& situation) {
    switch (symptom) {
        case Symptom::SettingsNotSaved:
            return SettingsNotSaved(situation);
        case Symptom::DemosPlayBadly:
            return std::string(kDemosPlayBadly);
        case Symptom::FreezesOnline:
            return FreezesOnline(situation);
        case Symptom::MousewheelDead:
            return std::string(kMousewheelDead);
        case Symptom::ExecingMessages:
            return ExecingMessages(situation);
        case Symptom::GlideMissing:
        case Symptom::SoftwareMode:
        case Symptom::OpenGLMissing:
            return std::string(kDriver);
        case Symptom::ModelNotSelectable:
        case Symptom::CrashOnModelChange:
            return std::string(kStrays);
        case Symptom::CrashOnScreenshot:
            return std::string(kCrashOnScreenshot);
        case Symptom::SoundBufferMessages:
            return Warning("Quake2").append(kSoundBufferMessages);
        case Symptom::UnknownToAuth:
        case Symptom::ProtocolVersion:
            return std::string(kVersionMismatch);
        case Symptom::CouldntWriteMessages:
            return Warning("Quake3").append(kCouldntWriteMessages);
        case Symptom::TeamArenaInstallation:
            break;
    }
    return std::string(kTeamArena);
}

}  // namespace zentar
