// The problems of the games that First Aid knows, and what it says about each.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zentar {

// In the order of the list.
enum class Symptom : std::uint8_t {
    SettingsNotSaved,
    DemosPlayBadly,
    FreezesOnline,
    MousewheelDead,
    ExecingMessages,
    GlideMissing,
    ModelNotSelectable,
    CrashOnModelChange,
    CrashOnScreenshot,
    SoftwareMode,
    SoundBufferMessages,
    UnknownToAuth,
    ProtocolVersion,
    CouldntWriteMessages,
    OpenGLMissing,
    TeamArenaInstallation,
};
inline constexpr std::size_t kSymptomCount = 16;

// What the list shows; the texts are the keys by which a symptom is known.
const std::array<std::string_view, kSymptomCount>& SymptomTexts();
std::optional<Symptom> SymptomWithText(std::string_view text);

// Which of the two buttons can be clicked.
enum class RemedyButtons : std::uint8_t { None = 0, First = 1, Both = 2, Second = 3 };

// What a remedy depends on.
struct SymptomSituation {
    std::string game;  // the current one: "Quake2"
    std::string base;  // its base mod as its command line takes it: one blank, and in double quotes
    bool zoneAlarm = false;         // that firewall is installed
    bool driverStands = false;      // "opengl32.dll" is in the folder of the symptom's game
    bool driverIsSetAside = false;  // and so is what it is renamed to
};

std::string RemedyText(Symptom symptom, const SymptomSituation& situation);
RemedyButtons ButtonsFor(Symptom symptom, const SymptomSituation& situation);

// The game in whose folder a symptom's OpenGL driver stands, by its position among the games;
// nothing for the symptoms that have to do with no driver.
std::optional<std::size_t> DriverGameOf(Symptom symptom);

}  // namespace zentar
