#include "firstaid/symptoms.h"

#include <algorithm>

namespace zentar {
namespace {

constexpr std::array<std::string_view, kSymptomCount> kTexts = {
    "[ALL] Custom settings are not being saved between games.",
    "[ALL] Demos are not playing back correctly.",
    "[ALL] Freezes or lock-ups occur whenever trying to play online.",
    "[ALL] Logitech mousewheel binds aren't working.",
    R"([ALL] Removing "execing" messages during gameplay.)",
    R"([Q1] Startup error: "A required .DLL file, GLIDE2X.DLL, was not found".)",
    "[Q2] Can't select a custom player model that I've installed.",
    "[Q2] Game crashes or gives an error when changing player models.",
    "[Q2] Game crashes when taking a screenshot.",
    "[Q2] Game starts in software mode even though it's set to hardware.",
    R"([Q2] Removing "Creating DS buffers / ...using primary buffer" messages.)",
    R"([Q3] Multiplayer connection error: "Client_unknown_to_auth".)",
    R"([Q3] Multiplayer connection error: "Server uses protocol version X".)",
    R"([Q3] Removing "Couldn't write X" messages during gameplay.)",
    R"([Q3] Startup error: "GLW_StartOpenGL() - could not load OpenGL subsystem".)",
    R"([Q3] Team Arena error: "Quake III: Team Arena REQUIRES a valid installation...")",
};

}  // namespace

const std::array<std::string_view, kSymptomCount>& SymptomTexts() { return kTexts; }

std::optional<Symptom> SymptomWithText(std::string_view text) {
    const auto* const found = std::find(kTexts.begin(), kTexts.end(), text);
    if (found == kTexts.end()) {
        return std::nullopt;
    }
    return static_cast<Symptom>(found - kTexts.begin());
}

std::optional<std::size_t> DriverGameOf(Symptom symptom) {
    switch (symptom) {
        case Symptom::GlideMissing:
            return 0;
        case Symptom::SoftwareMode:
            return 1;
        case Symptom::OpenGLMissing:
            return 2;
        default:
            return std::nullopt;
    }
}

RemedyButtons ButtonsFor(Symptom symptom, const SymptomSituation& situation) {
    if (DriverGameOf(symptom)) {
        if (situation.driverStands == situation.driverIsSetAside) {
            return RemedyButtons::None;
        }
        return situation.driverStands ? RemedyButtons::First : RemedyButtons::Second;
    }
    switch (symptom) {
        case Symptom::DemosPlayBadly:
        case Symptom::FreezesOnline:
            return RemedyButtons::None;
        case Symptom::MousewheelDead:
            return RemedyButtons::Both;
        default:
            return RemedyButtons::First;
    }
}

}  // namespace zentar
