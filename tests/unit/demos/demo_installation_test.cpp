// Moving a folder of demos into their mods.

#include "demos/demo_installation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "samples/demo_maker.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

using samples::DemoKind;
using samples::MakeDemo;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kQuake2Folder = "C:\\Games\\Quake2\\";
const std::string kQuake3Folder = "C:\\Games\\Quake3\\";

// The downloads lie on another drive than the games, or on the same one.
class DemoInstallation : public ::testing::TestWithParam<std::string> {
  protected:
    DemoInstallation() {
        files.AddFolder(from);
        files.AddFolder(kQuake2Folder + "baseq2\\");
        files.AddFolder(kQuake2Folder + "ctf\\");
        files.AddFolder(kQuake3Folder + "baseq3\\demos\\");
        files.AddFolder(kQuake3Folder + "osp\\");
    }

    void Add(const std::string& name, DemoKind kind, const std::string& mod) {
        files.AddFile(from + name, MakeDemo(kind, {.mod = mod}));
    }

    std::string Install2() { return Install(1, kQuake2Folder); }
    std::string Install3() { return Install(2, kQuake3Folder); }

    std::string Install(std::size_t game, const std::string& folder) {
        const InstallCount count = InstallDemos(files, AllGames()[game], folder, from);
        return std::to_string(count.installed) + " out of " + std::to_string(count.found);
    }

    const std::string from = GetParam();
    MemoryFileSystem files;
};

TEST_P(DemoInstallation, AQuake2DemoGoesToTheModThatItNames) {
    Add("base.dm2", DemoKind::Dm2, "");
    Add("CAP.DM2", DemoKind::Dm2, "CTF");
    const std::string bytes = files.Contents(from + "CAP.DM2");
    EXPECT_EQ(Install2(), "2 out of 2");
    EXPECT_THAT(files.Names(kQuake2Folder + "baseq2\\demos\\"), ElementsAre("base.dm2"));
    EXPECT_THAT(files.Names(kQuake2Folder + "ctf\\demos\\"), ElementsAre("CAP.DM2"));
    EXPECT_EQ(files.Contents(kQuake2Folder + "ctf\\demos\\CAP.DM2"), bytes);
    EXPECT_THAT(files.Names(from), IsEmpty());
}

TEST_P(DemoInstallation, ADemoOfAModThatIsNotThereStays) {
    Add("far.dm2", DemoKind::Dm2, "lithium");
    Add("base.dm2", DemoKind::Dm2, "");
    EXPECT_EQ(Install2(), "1 out of 2");
    EXPECT_THAT(files.Names(from), ElementsAre("far.dm2"));
    EXPECT_FALSE(files.Exists(kQuake2Folder + "lithium"));
}

TEST_P(DemoInstallation, AnEmptyQuake2DemoStays) {
    files.AddFile(from + "empty.dm2", "");
    EXPECT_EQ(Install2(), "0 out of 1");
    EXPECT_THAT(files.Names(from), ElementsAre("empty.dm2"));
}

TEST_P(DemoInstallation, Quake3DemosGoToTheirModsAndCompressedOnesToTheBaseFolder) {
    Add("a.dm3", DemoKind::Dm3, "osp");
    Add("b.DM_48", DemoKind::Dm48, "baseq3");
    Add("c.dm_66", DemoKind::Dm66, "osp");
    files.AddFile(from + "d.dm3", "no settings in here");
    EXPECT_EQ(Install3(), "4 out of 4");
    EXPECT_THAT(files.Names(kQuake3Folder + "osp\\demos\\"), ElementsAre("a.dm3"));
    EXPECT_THAT(files.Names(kQuake3Folder + "baseq3\\demos\\"),
                ElementsAre("b.DM_48", "c.dm_66", "d.dm3"));
    EXPECT_THAT(files.Names(from), IsEmpty());
}

TEST_P(DemoInstallation, OtherFilesAreNeitherCountedNorTouched) {
    files.AddFile(from + "readme.txt", "text");
    files.AddFile(from + "q1.dem", "demo");
    Add("q2.dm2", DemoKind::Dm2, "");
    files.AddFolder(from + "sub.dm3\\");
    EXPECT_EQ(Install3(), "0 out of 0");
    EXPECT_THAT(files.Names(from), ElementsAre("q1.dem", "q2.dm2", "readme.txt", "sub.dm3"));
}

TEST_P(DemoInstallation, AFolderThatIsNotThereHoldsNoDemos) {
    const InstallCount count = InstallDemos(files, AllGames()[1], kQuake2Folder, "C:\\Gone\\");
    EXPECT_EQ(count.found, 0U);
    EXPECT_EQ(count.installed, 0U);
}

TEST_P(DemoInstallation, NothingIsWrittenOutsideTheGamesFolder) {
    files.AddFolder("C:\\Games\\demos\\");
    files.AddFolder("C:\\Windows\\demos\\");
    int number = 0;
    for (const std::string& mod :
         {std::string(".."), std::string("..\\..\\Windows"), std::string("../../Windows"),
          std::string("C:\\Windows"), std::string("C:"), std::string("\\Windows"),
          std::string(300, 'm'), std::string("con"), std::string("baseq3/../..")}) {
        const std::string name = std::to_string(++number);
        files.AddFile(from + name + ".dm2", std::string(14, 'x') + mod + '\0' + "rest");
        files.AddFile(from + name + ".dm3",
                      "\\gamename\\" + mod.substr(0, mod.find('\\')) + "\\mapname\\q3dm1\\");
    }
    const std::map<std::string, std::string> before = files.AllFiles();
    EXPECT_EQ(Install2(), "0 out of 9");
    // Cut at their backslashes, two of the names are empty or plain: those are of the base game.
    const std::string installed = Install3();
    EXPECT_THAT(files.Names("C:\\Games\\demos\\"), IsEmpty());
    EXPECT_THAT(files.Names("C:\\Windows\\demos\\"), IsEmpty());
    for (const auto& [path, bytes] : files.AllFiles()) {
        EXPECT_TRUE(path.starts_with(from) || path.starts_with(kQuake3Folder + "baseq3\\demos\\"))
            << path;
    }
    EXPECT_EQ(files.AllFiles().size(), before.size());
    EXPECT_EQ(installed, "1 out of 9");
}

TEST_P(DemoInstallation, FoldersThatHoldNoModGetNoDemos) {
    files.AddFolder(kQuake3Folder + "Docs\\");
    Add("duel.dm3", DemoKind::Dm3, "docs");
    EXPECT_EQ(Install3(), "0 out of 1");
    EXPECT_THAT(files.Names(kQuake3Folder + "docs\\"), IsEmpty());
    EXPECT_THAT(files.Names(from), ElementsAre("duel.dm3"));
}

TEST_P(DemoInstallation, AnotherDemoOfThatNameIsNeverReplaced) {
    Add("duel.dm2", DemoKind::Dm2, "ctf");
    files.AddFile(kQuake2Folder + "ctf\\demos\\duel.dm2", "precious");
    EXPECT_EQ(Install2(), "0 out of 1");
    EXPECT_EQ(files.Contents(kQuake2Folder + "ctf\\demos\\duel.dm2"), "precious");
    EXPECT_THAT(files.Names(from), ElementsAre("duel.dm2"));
}

TEST_P(DemoInstallation, TheSameDemoIsInstalledAlready) {
    Add("duel.dm2", DemoKind::Dm2, "ctf");
    const std::string bytes = files.Contents(from + "duel.dm2");
    files.AddFile(kQuake2Folder + "ctf\\demos\\duel.dm2", bytes);
    EXPECT_EQ(Install2(), "1 out of 1");
    EXPECT_EQ(files.Contents(kQuake2Folder + "ctf\\demos\\duel.dm2"), bytes);
    EXPECT_THAT(files.Names(from), IsEmpty());
}

TEST_P(DemoInstallation, AReadOnlyDemoGetsThereToo) {
    Add("duel.dm2", DemoKind::Dm2, "ctf");
    files.SetReadOnly(from + "duel.dm2");
    EXPECT_EQ(Install2(), "1 out of 1");
    EXPECT_TRUE(files.Exists(kQuake2Folder + "ctf\\demos\\duel.dm2"));
}

TEST_P(DemoInstallation, ALockedDemoStays) {
    Add("duel.dm2", DemoKind::Dm2, "ctf");
    files.SetLocked(from + "duel.dm2");
    EXPECT_EQ(Install2(), "0 out of 1");
    EXPECT_TRUE(files.Exists(from + "duel.dm2"));
}

TEST_P(DemoInstallation, WithoutRoomADemoStays) {
    Add("duel.dm2", DemoKind::Dm2, "ctf");
    files.SetFreeSpace("C:\\", 10);
    const bool sameDrive = from.starts_with("C:");
    EXPECT_EQ(Install2(), sameDrive ? "1 out of 1" : "0 out of 1");
    EXPECT_EQ(files.Exists(from + "duel.dm2"), !sameDrive);
    EXPECT_EQ(files.Exists(kQuake2Folder + "ctf\\demos\\duel.dm2"), sameDrive);
}

TEST_P(DemoInstallation, TheGamesOwnFolderMayBeChosen) {
    const std::string own = kQuake2Folder + "ctf\\demos\\";
    files.AddFile(own + "duel.dm2", MakeDemo(DemoKind::Dm2, {.mod = "ctf"}));
    const InstallCount count = InstallDemos(files, AllGames()[1], kQuake2Folder, own);
    EXPECT_EQ(count.installed, 1U);
    EXPECT_THAT(files.Names(own), ElementsAre("duel.dm2"));
}

TEST_P(DemoInstallation, AndSoMayADriveThatStandsForIt) {
    const std::string own = kQuake2Folder + "ctf\\demos\\";
    files.AddFile(own + "duel.dm2", MakeDemo(DemoKind::Dm2, {.mod = "ctf"}));
    files.AddDriveFor("S:\\", own);
    const InstallCount count = InstallDemos(files, AllGames()[1], kQuake2Folder, "S:\\");
    EXPECT_EQ(count.installed, 1U);
    EXPECT_THAT(files.Names(own), ElementsAre("duel.dm2"));
}

INSTANTIATE_TEST_SUITE_P(Drives, DemoInstallation,
                         ::testing::Values("D:\\Unzipped\\", "C:\\Unzipped\\"),
                         [](const auto& drive) {
                             return std::string(drive.param.starts_with("D:") ? "Other" : "Same");
                         });

}  // namespace
}  // namespace zentar
