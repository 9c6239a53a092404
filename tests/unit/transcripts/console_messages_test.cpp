// Everything that a console says and nobody spoke.
#include <gtest/gtest.h>

#include "transcripts/speech_line.h"

namespace zentar {
namespace {

std::string Speaker(const std::string& line, bool quake3) {
    return SpeakerOf(line, quake3).value_or("(nobody)");
}

const std::vector<std::string> kBeginnings = {
    "...",
    "** author",
    "** max fps capped at  ",
    "** max rate capped at ",
    "** running",
    "** web",
    "[bw-admin]",
    "adding maps to cycle",
    "bind <key> [command]",
    "blaster   ",
    "bonus",
    "can't find pic",
    "cash giveaway",
    "cbuf_",
    "cdaudio_init",
    "chaingun  ",
    "cl_",
    "client",
    "cm_",
    "com_",
    "compiled vertex arrays",
    "compressed textures",
    "cpu",
    "enemy flag carrier killed",
    "error",
    "exe",
    "failed to load skin file",
    "fs_",
    "g.launcher",
    "gamedate",
    "gamename",
    "gamma",
    "gl_",
    "gl pfd",
    "grenades  ",
    "handle ",
    "head skin load failure",
    "hostname",
    "hunk_",
    "in_",
    "infostring",
    "ip",
    "item",
    "leg skin load failure",
    "loopback",
    "machinegun",
    "map",
    "multitexture",
    "mode",
    "msg_",
    "net_",
    "opening ip socket",
    "out of item",
    "picmip",
    "pixelformat",
    "ps_",
    "r.launcher",
    "r_",
    "railgun   ",
    "ref_",
    "rendering primitives",
    "requesting download",
    "s_",
    "s.shotgun ",
    "server",
    "set primary sound buffer format",
    "setting mode",
    "sound sampling rate",
    "sv_",
    "texenv add",
    "texture bits",
    "texturemode",
    "torso skin load failure",
    "total damage given",
    "total damage rcvd ",
    "type",
    "unknown item",
    "unknown command",
    "usage",
    "warning",
    "wipx_init",
    "working directory",
    "z_",
};

std::string Upper(std::string text) {
    for (char& c : text) {
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    }
    return text;
}

TEST(ConsoleMessages, AreKnownByEachOfTheirBeginningsInWhateverCase) {
    ASSERT_EQ(kBeginnings.size(), 83U);
    for (const std::string& beginning : kBeginnings) {
        for (const bool quake3 : {false, true}) {
            EXPECT_EQ(Speaker(beginning + ": 1", quake3), "(nobody)") << beginning;
            EXPECT_EQ(Speaker(beginning + "x: 1", quake3), "(nobody)") << beginning;
            EXPECT_EQ(Speaker(Upper(beginning) + ": 1", quake3), "(nobody)") << beginning;
        }
    }
}

TEST(ConsoleMessages, BeginThatWayWhole) {
    for (const std::string& beginning : kBeginnings) {
        const std::string shorter = beginning.substr(0, beginning.size() - 1);
        EXPECT_NE(Speaker(shorter + "~: 1", false), "(nobody)") << beginning;
        const std::string later = "q" + beginning;
        EXPECT_EQ(Speaker(later + ": 1", false), later) << beginning;
    }
}

TEST(ConsoleMessages, OfTheWeaponsNeedTheirBlanks) {
    EXPECT_EQ(Speaker("Blaster: hi", false), "Blaster");
    EXPECT_EQ(Speaker("Blaster  : hi", false), "Blaster  ");
    EXPECT_EQ(Speaker("Blaster   : 3", false), "(nobody)");
    EXPECT_EQ(Speaker("Railgun: hi", false), "Railgun");
    EXPECT_EQ(Speaker("S.Shotgun : 3", false), "(nobody)");
}

TEST(ConsoleMessages, AreKnownByTheEndOfTheirLine) {
    for (const bool quake3 : {false, true}) {
        EXPECT_EQ(Speaker("Bob: hi: print", quake3), "(nobody)");
        EXPECT_EQ(Speaker("Bob: print", quake3), "(nobody)");
        EXPECT_EQ(Speaker("Bob: challenge", quake3), "(nobody)");
        EXPECT_EQ(Speaker("Bob: client_connect", quake3), "(nobody)");
        EXPECT_EQ(Speaker("Bob: print ", quake3), "Bob");
        EXPECT_EQ(Speaker("Bob: Print", quake3), "Bob");
        EXPECT_EQ(Speaker("Bob: hi print", quake3), "Bob");
        EXPECT_EQ(Speaker("Bob: challenge me", quake3), "Bob");
    }
}

TEST(ConsoleMessages, OfQuake3AreKnownByMoreThanThat) {
    for (const std::string& line : std::vector<std::string>{
             "Bob: ping time 30", "  3:11 ClientThing: 0", "  3:11 Kill: 3 2 10", "a Killer: hi",
             "  3:11 Item: 2 weapon", "  3:11 ClientBegin: 0", "  3:11 ClientConnect: 0",
             "  3:11 ClientDisconnect: 0", "  3:11 ClientUserinfoChanged: 0 n",
             "  0:00 InitGame: \\x\\y"}) {
        EXPECT_EQ(Speaker(line, true), "(nobody)") << line;
        EXPECT_NE(Speaker(line, false), "(nobody)") << line;
    }
    EXPECT_EQ(Speaker("  3:11 Item x: 2", true), "  3:11 Item x");
    EXPECT_EQ(Speaker("Kill: 1", true), "Kill");
    EXPECT_EQ(Speaker("Bob: the ping time 30", true), "Bob");
    EXPECT_EQ(Speaker("InitGame: 1", true), "InitGame");
}

// The line loses its first marker of each kind, one kind after the other.
TEST(ConsoleMessages, OfALogLoseTheirMarkersInOrder) {
    EXPECT_EQ(WithoutSpeechMarkers("1:02 say: Bob: hi"), "Bob: hi");
    EXPECT_EQ(WithoutSpeechMarkers("1:02 sayteam: Bob: they say: hi"), "hi");
    EXPECT_EQ(WithoutSpeechMarkers("a say: b sayteam: c"), "c");
    EXPECT_EQ(WithoutSpeechMarkers("a tell: b vtell: c"), "c");
    EXPECT_EQ(WithoutSpeechMarkers("a vtell: b tell: c"), "c");
    EXPECT_EQ(WithoutSpeechMarkers("a say: b say: c"), "b say: c");
    EXPECT_EQ(WithoutSpeechMarkers("a say: b sayteam: c say: d"), "d");
    EXPECT_EQ(WithoutSpeechMarkers("a vtell: b say: c vtell: d"), "d");
    EXPECT_EQ(WithoutSpeechMarkers("a tell: b vtell: c tell: d"), "d");
    EXPECT_EQ(WithoutSpeechMarkers("a sayteam: b say: c sayteam: d"), "c sayteam: d");
    EXPECT_EQ(WithoutSpeechMarkers("a say: b vtell: c say: d"), "c say: d");
    EXPECT_EQ(WithoutSpeechMarkers("a vtell: b tell: c vtell: d"), "c vtell: d");
    EXPECT_EQ(WithoutSpeechMarkers("a SAY: b"), "a SAY: b");
    EXPECT_EQ(WithoutSpeechMarkers("say: b"), "say: b");
    EXPECT_EQ(WithoutSpeechMarkers("a say:b"), "a say:b");
    EXPECT_EQ(WithoutSpeechMarkers(""), "");
}

// ---- Names that look odd ----

TEST(SpeakersName, LosesOnePrefixOnly) {
    EXPECT_EQ(Speaker("\1<RED> Bob: hi", false), "<RED> Bob");
    EXPECT_EQ(Speaker("<RED> \1Bob: hi", false), "\1Bob");
    EXPECT_EQ(Speaker("<BLUE> <RED> Bob: hi", false), "<RED> Bob");
    EXPECT_EQ(Speaker("<red> Bob: hi", false), "<red> Bob");
    EXPECT_EQ(Speaker("<RED>Bob: hi", false), "<RED>Bob");
    EXPECT_EQ(Speaker("Bob<RED> : hi", false), "Bob<RED> ");
}

TEST(SpeakersName, LosesItsParentheses) {
    EXPECT_EQ(Speaker("(Bob): hi", false), "Bob");
    EXPECT_EQ(Speaker("<RED> (Bob): hi", false), "Bob");
    EXPECT_EQ(Speaker("((Bob)): hi", false), "(Bob)");
    EXPECT_EQ(Speaker("(Bob: hi", false), "(Bob");
    EXPECT_EQ(Speaker("Bob): hi", false), "Bob)");
    EXPECT_EQ(Speaker("(): hi", false), "");
    EXPECT_EQ(Speaker("(: hi", false), "(");
    EXPECT_EQ(Speaker("): hi", false), ")");
    EXPECT_EQ(Speaker("(Bob) (Base): hi", false), "(Bob) (Base)");
}

TEST(SpeakersName, InQuake3LosesThePlaceOfATeamLine) {
    EXPECT_EQ(Speaker("(Bob) (Base): hi", true), "Bob");
    EXPECT_EQ(Speaker("(Bob) (Base) (Red): hi", true), "Bob");
    EXPECT_EQ(Speaker("(^1Bob^7) (^3Base^7): hi", true), "Bob");
    EXPECT_EQ(Speaker(" (Bob) (Base): hi", true), " (Bob) (Base)");
    EXPECT_EQ(Speaker("( (Base): hi", true), "");
    EXPECT_EQ(Speaker("() (Base): hi", true), "");
    EXPECT_EQ(Speaker("(B (Base): hi", true), "");
}

TEST(SpeakersName, InQuake3EndsBeforeWhomItTells) {
    EXPECT_EQ(Speaker("Bob to Ann: hi", true), "Bob");
    EXPECT_EQ(Speaker("Bob to Ann to Carl: hi", true), "Bob");
    EXPECT_EQ(Speaker("^1Bob^7 to ^2Ann^7: hi", true), "Bob");
    EXPECT_EQ(Speaker("Tomato: hi", true), "Tomato");
    EXPECT_EQ(Speaker("Bob to Ann: hi", false), "Bob to Ann");
}

// Each step works on what the one before it left.
TEST(SpeakersName, InQuake3LosesOneThingAfterTheOther) {
    EXPECT_EQ(Speaker("<RED> Bob: hi", true), "Bob");
    EXPECT_EQ(Speaker("^1<RED> Bob: hi", true), "Bob");
    EXPECT_EQ(Speaker("Bob t^1o Ann: hi", true), "Bob");
    EXPECT_EQ(Speaker("<RED> to Bob: hi", true), "<RED>");
    EXPECT_EQ(Speaker("(Bob Item): hi", true), "(nobody)");
    EXPECT_EQ(Speaker("(Bob InitGame): hi", true), "(nobody)");
}

TEST(SpeakersName, MayHoldAnyByteButNul) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string name = std::string("P") + static_cast<char>(byte) + "x";
        EXPECT_EQ(Speaker(name + ": hi", false), name) << byte;
    }
    EXPECT_EQ(Speaker(std::string("P\0x: hi", 7), false), "(nobody)");
}

}  // namespace
}  // namespace zentar
