// How a new settings file takes the place of the old one.
#include "core/settings_storage.h"

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "tests/doubles/faulty_file_system.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

const std::string kFolder = "C:\\Program Files\\Zentar\\";
const std::string kIni = kFolder + "zentar.ini";
const std::string kSpare = kFolder + "data\\zentar.ini.new";
const std::string kOld = "Game=Quake1\r\n" + std::string(kSettingsEnd);
const std::string kNew = "Game=Quake3\r\nCurMod3=osp\r\n" + std::string(kSettingsEnd);

class SettingsStorage : public ::testing::Test {
  protected:
    SettingsStorage() {
        files.AddFile(kIni, kOld);
        files.AddFolder(kFolder + "data\\");
    }

    // As an installation for all users leaves it.
    void Protect() { files.SetWritingDenied(kFolder); }
    std::string Read() {
        const auto file = OpenSettings(files, kFolder);
        std::string text(
            static_cast<std::size_t>(file.Ok() ? file.Value()->Length().ValueOr(0) : 0), '\0');
        if (file.Ok()) {
            const auto into = std::as_writable_bytes(std::span(text));
            EXPECT_EQ(file.Value()->ReadAt(0, into).ValueOr(0), text.size());
        }
        return text;
    }

    MemoryFileSystem files;
};

TEST_F(SettingsStorage, TheNewTextTakesThePlaceOfTheOldOne) {
    EXPECT_TRUE(StoreSettings(files, kFolder, kNew).Ok());
    EXPECT_EQ(files.Contents(kIni), kNew);
    EXPECT_EQ(files.AllFiles().size(), 1U);
}

TEST_F(SettingsStorage, InAProtectedFolderItIsWrittenOverTheOldOne) {
    Protect();
    EXPECT_TRUE(StoreSettings(files, kFolder, kNew).Ok());
    EXPECT_EQ(files.Contents(kIni), kNew);
    EXPECT_EQ(Read(), kNew);
    EXPECT_EQ(files.AllFiles().size(), 1U);
}

TEST_F(SettingsStorage, AReadOnlyFileStaysAsItIs) {
    files.SetReadOnly(kIni);
    EXPECT_TRUE(StoreSettings(files, kFolder, kNew).Ok());
    Protect();
    EXPECT_TRUE(StoreSettings(files, kFolder, kNew).Ok());
    EXPECT_EQ(files.Contents(kIni), kOld);
    EXPECT_EQ(files.AllFiles().size(), 1U);
}

TEST_F(SettingsStorage, WithoutAFileAProtectedFolderGetsNone) {
    files.Remove(kIni);
    Protect();
    EXPECT_EQ(StoreSettings(files, kFolder, kNew).Error(), FileError::AccessDenied);
    EXPECT_TRUE(files.AllFiles().empty());
}

TEST_F(SettingsStorage, WithoutTheFolderOfDataTheOldTextStays) {
    MemoryFileSystem bare;
    bare.AddFile(kIni, kOld);
    bare.SetWritingDenied(kFolder);
    EXPECT_FALSE(StoreSettings(bare, kFolder, kNew).Ok());
    EXPECT_EQ(bare.Contents(kIni), kOld);
}

TEST_F(SettingsStorage, AFullDriveLeavesTheOldText) {
    for (const bool isProtected : {false, true}) {
        files.SetWritingDenied(kFolder, isProtected);
        files.SetFreeSpace("C:\\", 20);
        EXPECT_FALSE(StoreSettings(files, kFolder, kNew).Ok());
        EXPECT_EQ(Read(), kOld);
        EXPECT_EQ(files.AllFiles().size(), 1U);
    }
}

TEST_F(SettingsStorage, KilledAnywhereTheTextIsTheOldOneOrTheNewOne) {
    for (const bool isProtected : {false, true}) {
        for (const Unflushed unflushed : {Unflushed::Kept, Unflushed::Halved, Unflushed::Lost}) {
            int kills = 0;
            for (int call = 1;; ++call) {
                files = MemoryFileSystem();
                files.AddFile(kIni, kOld);
                files.AddFolder(kFolder + "data\\");
                files.SetWritingDenied(kFolder, isProtected);
                FaultyFileSystem faulty(files);
                faulty.KillAt(call, unflushed);
                IgnoreFailure(StoreSettings(faulty, kFolder, kNew));
                if (!faulty.Killed()) {
                    break;
                }
                ++kills;
                const std::string read = Read();
                EXPECT_TRUE(read == kOld || read == kNew) << faulty.CallName(call) << "\n" << read;
                files.SetWritingDenied(kFolder, isProtected);
                EXPECT_TRUE(StoreSettings(files, kFolder, kNew).Ok());
                EXPECT_EQ(Read(), kNew);
            }
            EXPECT_GT(kills, 4);
        }
    }
}

TEST_F(SettingsStorage, WhateverFailsTheTextIsTheOldOneOrTheNewOne) {
    for (const FileError error : {FileError::NoSpace, FileError::InUse, FileError::AccessDenied}) {
        for (int call = 1; call < 20; ++call) {
            files.AddFile(kIni, kOld);
            Protect();
            FaultyFileSystem faulty(files);
            faulty.FailAt(call, error);
            IgnoreFailure(StoreSettings(faulty, kFolder, kNew));
            const std::string read = Read();
            EXPECT_TRUE(read == kOld || read == kNew) << faulty.CallName(call) << "\n" << read;
        }
    }
}

// Two attempts, both of them cut off somewhere.
TEST_F(SettingsStorage, CutOffTwiceTheTextIsOneOfThem) {
    const std::string third = "Game=Quake2\r\nThis one is longer than both\r\n" + kNew;
    int kills = 0;
    for (int call = 1; call < 40; ++call) {
        files = MemoryFileSystem();
        files.AddFolder(kFolder + "data\\");
        files.AddFile(kIni, kNew.substr(0, 7) + std::string(3, '\0'));
        files.AddFile(kSpare, kNew);
        Protect();
        ASSERT_EQ(Read(), kNew);
        FaultyFileSystem faulty(files);
        faulty.KillAt(call, Unflushed::Halved);
        IgnoreFailure(StoreSettings(faulty, kFolder, third));
        kills += faulty.Killed() ? 1 : 0;
        const std::string read = Read();
        EXPECT_TRUE(read == kNew || read == third) << faulty.CallName(call) << "\n" << read;
    }
    EXPECT_GT(kills, 8);
}

// Another program holds what an earlier attempt left.
TEST_F(SettingsStorage, WhatIsHeldAfterACutStaysUntilItCanBeRead) {
    for (const std::string& held : {kIni, kSpare}) {
        files = MemoryFileSystem();
        files.AddFolder(kFolder + "data\\");
        files.AddFile(kIni, kNew.substr(0, 7));
        files.AddFile(kSpare, kNew);
        Protect();
        files.SetLocked(held);
        EXPECT_EQ(OpenSettings(files, kFolder).Error(), FileError::InUse);
        EXPECT_EQ(StoreSettings(files, kFolder, kOld).Error(), FileError::InUse);
        files.SetLocked(held, false);
        EXPECT_EQ(Read(), kNew) << held;
    }
}

// It could not be deleted, and the file itself has been written since.
TEST_F(SettingsStorage, AStaleSpareIsOfNoUse) {
    files.AddFile(kSpare, kOld);
    files.AddFile(kIni, kNew);
    EXPECT_EQ(Read(), kNew);
    files.AddFile(kIni, "Game=Quake2\r\n");  // by hand
    EXPECT_EQ(Read(), "Game=Quake2\r\n");
    files.Remove(kIni);
    EXPECT_FALSE(OpenSettings(files, kFolder).Ok());
}

TEST_F(SettingsStorage, ASpareThatIsCutOffIsOfNoUse) {
    files.AddFile(kSpare, kNew.substr(0, kNew.size() - 1));
    files.AddFile(kIni, kNew.substr(0, 7));
    EXPECT_EQ(Read(), kNew.substr(0, 7));
}

// Where the folder takes new files again.
TEST_F(SettingsStorage, AStaleSpareGoes) {
    files.AddFile(kSpare, kOld);
    EXPECT_TRUE(StoreSettings(files, kFolder, kNew).Ok());
    EXPECT_FALSE(files.Exists(kSpare));
}

}  // namespace
}  // namespace zentar
