// The names found in consoles that players logged, where such logs are at hand. Whom a person sees
// in a log and the scan does not find, or finds without being anybody, is told beside its name.
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/memory_file_system.h"
#include "transcripts/name_scan.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const fs::path kLogs = fs::path(ZENTAR_TEST_SOURCE_DIR) / ".." / "shared" / "data" / "logs";

class RealLogsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!fs::exists(kLogs)) {
            GTEST_SKIP() << "no real logs here";
        }
    }

    static std::vector<std::string> Quake1(const std::string& name) { return NamesIn(name, false); }
    static std::vector<std::string> Quake3(const std::string& name) { return NamesIn(name, true); }

  private:
    static std::vector<std::string> NamesIn(const std::string& name, bool quake3) {
        std::ifstream real(kLogs / name, std::ios::binary);
        std::ostringstream bytes;
        bytes << real.rdbuf();
        MemoryFileSystem files;
        files.AddFile("C:\\qconsole.log", bytes.str());
        const auto file = files.OpenForReading("C:\\qconsole.log");
        ConsoleLines lines(*file.Value());
        return ScanForNames(lines, quake3);
    }
};

// ---- Quake 1 ----

TEST_F(RealLogsTest, OfQuake1WithoutSpeech) {
    EXPECT_THAT(Quake1("Jason2Brownlee__QuakeBotArchive__bbot_b11.zip_QCONSOLE.LOG"), IsEmpty());
}

TEST_F(RealLogsTest, OfQuake1WithGoldenNames) {
    EXPECT_THAT(Quake1("Jason2Brownlee__QuakeBotArchive__elfbot.zip_Qconsole.log"),
                ElementsAre(
                    // A bot's message, which begins as none of the known ones.
                    "waypoints set",
                    "\x90"
                    "E\xCC"
                    "F\x91"
                    "Gimbo",
                    "\x90"
                    "E\xCC"
                    "F\x91"
                    "Death Breath",
                    "\x90"
                    "E\xCC"
                    "F\x91"
                    "Harbofish",
                    "\x90"
                    "E\xCC"
                    "F\x91"
                    "EJP_Tank"));
}

// Nobody speaks; the players "4gado, o quaker" and PablotheBot are only spoken of.
TEST_F(RealLogsTest, OfQuake1WithMessagesThatLookLikeSpeech) {
    EXPECT_THAT(Quake1("Jason2Brownlee__QuakeBotArchive__pablothebot1on1.zip_qconsole.log"),
                ElementsAre("Average leafs visible / hearable / total", "4gado, o quaker WARNING",
                            "*** ERROR"));
}

// ---- Quake 3 ----

TEST_F(RealLogsTest, OfQuake3WithoutSpeech) {
    EXPECT_THAT(Quake3("Steffkn__Quake-configs__games_07d7715.log"), IsEmpty());
}

// UnnamedPlayer says nothing.
TEST_F(RealLogsTest, OfQuake3WithSpeech) {
    EXPECT_THAT(Quake3("evilru__quake3-vsp-stats__baseq3.log"),
                ElementsAre("Orbb", "Daemia", "Hossman"));
}

TEST_F(RealLogsTest, OfQuake3WithTeamSpeech) {
    EXPECT_THAT(Quake3("neomuheng__Qu3_BrawlStars__games.log"), ElementsAre("NooB", "Biker"));
}

// How a game ended and who had which score begins with the time, so no known beginning fits.
TEST_F(RealLogsTest, OfQuake3WithScores) {
    EXPECT_THAT(
        Quake3("gabrielcicero45__quake_log_parser__games.log"),
        ElementsAre(" 15:00 Exit", " 11:57 Exit", " 11:57 score", " 27:14 Exit", " 11:15 Exit",
                    " 11:15 score", " 16:19 Exit", " 16:19 score", " 10:12 Exit", " 10:12 score",
                    " 16:41 Exit", " 16:41 score", " 31:53 Exit", "Oootsimo", "Isgalamido",
                    "  5:54 Exit", "  5:54 score", " 13:55 Exit", " 13:55 score"));
}

// This engine puts the time before each line, so that the messages of its start look like speech
// and take all the boxes. keklover, Sokaries, ZOLTAN, m0rtician, Nipos, cosmoelektrik and
// [z..:..s], who speak later, find none free.
TEST_F(RealLogsTest, OfQuake3WithTimesBeforeEachLine) {
    EXPECT_THAT(
        Quake3("thr0ned__qlcfg__condump_afa0ed3.txt"),
        ElementsAre(
            "rotation file not found", "[0:00.000] ...setting mode -1", "[0:00.000] ...getting DC",
            "[0:00.000] ...creating GL context", "[0:00.000] ...making context current",
            "[0:00.000] GL_RENDERER", "[0:00.000] GL_VERSION", "[0:00.000] GL_EXTENSIONS",
            "[0:00.000] GL_MAX_ACTIVE_TEXTURES_ARB", "[0:00.000] MODE", "[0:00.000] GAMMA",
            "[0:00.000] CPU", "[0:00.000] rendering primitives", "[0:00.000] texturemode",
            "[0:00.000] picmip", "[0:00.000] texture bits", "[0:00.000] multitexture",
            "[0:00.000] compiled vertex arrays", "[0:00.000] texenv add",
            "[0:00.000] compressed textures", "[0:00.000] Opening IP socket", "[0:00.000] Hostname",
            "[0:00.000] IP", "[0:00.000] Server requires the following workshop items"));
}

}  // namespace
}  // namespace zentar
