// What tests rely on in the doubles beyond the contracts.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "tests/contract/file_system_contract.h"
#include "tests/doubles/memory_file_system.h"
#include "tests/doubles/scripted_services.h"

namespace zentar {

TEST(MemoryFileSystem, AFullDriveKeepsWhatWasWrittenSoFar) {
    MemoryFileSystem files;
    files.AddFile("C:\\there.txt", "0123456789");
    files.SetFreeSpace("C:\\", 5);
    const auto file = files.OpenForWriting("C:\\a.txt", WriteMode::Truncate);
    ASSERT_TRUE(file.Ok());
    EXPECT_TRUE(Succeeded(file.Value()->Write("abc")));
    EXPECT_TRUE(FailedWith(file.Value()->Write("defg"), FileError::NoSpace));
    EXPECT_TRUE(Succeeded(file.Value()->Close()));
    EXPECT_EQ(files.Contents("C:\\a.txt"), "abc");
    EXPECT_EQ(files.FreeSpace("C:\\").ValueOr(99), 2U);
    EXPECT_TRUE(FailedWith(files.Copy("C:\\there.txt", "C:\\b.txt", false), FileError::NoSpace));
    EXPECT_FALSE(files.Exists("C:\\b.txt"));
    EXPECT_TRUE(Succeeded(files.Delete("C:\\there.txt")));
    EXPECT_EQ(files.FreeSpace("C:\\").ValueOr(99), 12U);
}

TEST(MemoryFileSystem, ACopyOverAFileThatDoesNotFitLosesThatFileAsOnWindows) {
    MemoryFileSystem files;
    files.AddFile("C:\\long.txt", "0123456789");
    files.AddFile("C:\\short.txt", "abc");
    files.SetFreeSpace("C:\\", 5);
    EXPECT_TRUE(FailedWith(files.Copy("C:\\long.txt", "C:\\short.txt", true), FileError::NoSpace));
    EXPECT_FALSE(files.Exists("C:\\short.txt"));
}

TEST(MemoryFileSystem, FoldersAreEnumeratedInNoUsefulButAlwaysTheSameOrder) {
    const auto order = [] {
        MemoryFileSystem files;
        std::string names;
        for (const char* name : {"a", "b", "c", "d", "e", "f"}) {
            files.AddFile(std::string("C:\\x\\") + name, "");
        }
        EXPECT_TRUE(Succeeded(files.Enumerate(
            "C:\\x\\", [&](const FolderEntry& entry) { names += entry.name + " "; })));
        return names;
    };
    EXPECT_EQ(order(), order());
    EXPECT_EQ(order().find("a b c d e f"), std::string::npos);
}

TEST(MemoryFileSystem, ReadsAreCountedByPathWhateverItsCase) {
    MemoryFileSystem files;
    files.AddFile("C:\\Demo.dm2", "0123456789");
    std::string bytes(8, '\0');
    const auto file = files.OpenForReading("c:\\demo.DM2");
    ASSERT_TRUE(file.Ok());
    EXPECT_EQ(file.Value()->ReadAt(5, std::as_writable_bytes(std::span(bytes))).ValueOr(0), 5U);
    EXPECT_EQ(files.Reads("C:\\Demo.dm2").opens, 1);
    EXPECT_EQ(files.Reads("C:\\Demo.dm2").reads, 1);
    EXPECT_EQ(files.Reads("C:\\Demo.dm2").bytes, 5U);
    EXPECT_EQ(files.TotalOpens(), 1);
}

TEST(MemoryFileSystem, ProtectedFilesAndFoldersRefuseAccess) {
    MemoryFileSystem files;
    files.AddFile("C:\\Windows\\a.txt", "a");
    files.SetWritingDenied("C:\\Windows");
    EXPECT_FALSE(files.OpenForWriting("C:\\Windows\\b.txt", WriteMode::Truncate).Ok());
    EXPECT_TRUE(FailedWith(files.Delete("C:\\Windows\\a.txt"), FileError::AccessDenied));
    EXPECT_TRUE(FailedWith(files.CreateFolder("C:\\Windows\\x"), FileError::AccessDenied));
    files.SetReadingDenied("C:\\Windows\\a.txt");
    EXPECT_FALSE(files.OpenForReading("C:\\Windows\\a.txt").Ok());
    files.RemoveDrive("C:\\");
    EXPECT_TRUE(FailedWith(files.Enumerate("C:\\Windows\\", {}), FileError::NotFound));
}

TEST(ScriptedWindows, ABoxThatIsNotAsExpectedFailsTheTest) {
    const Message expected{"Confirm", "Really?", MessageIcon::Question, MessageButtons::YesNo,
                           DefaultButton::Second};
    Message other = expected;
    other.defaultButton = DefaultButton::First;
    ScriptedWindows windows;
    windows.Expect(expected, Answer::Yes);
    EXPECT_EQ(windows.Ask(expected), Answer::Yes);
    windows.Expect(expected, Answer::Yes);
    EXPECT_NONFATAL_FAILURE(windows.Ask(other), "first button is the default");
    EXPECT_NONFATAL_FAILURE(windows.Ask(other), "nobody expected");
    windows.Expect(expected, Answer::Yes);
    EXPECT_NONFATAL_FAILURE(windows.Verify(), "never came");
}

TEST(ScriptedWindows, AnInputBoxThatIsNotAsExpectedFailsTheTest) {
    const TextQuestion expected{"Rename Demo", "New name?", "duel"};
    TextQuestion other = expected;
    other.answer = "dual";
    EventLog log;
    ScriptedWindows windows(&log);
    bool meanwhile = false;
    windows.ExpectText(expected, "final", [&] { meanwhile = true; });
    windows.ExpectText(expected, std::nullopt);
    EXPECT_EQ(windows.AskText(expected), "final");
    EXPECT_TRUE(meanwhile);
    EXPECT_EQ(windows.AskText(expected), std::nullopt);
    windows.ExpectText(expected, "final");
    EXPECT_NONFATAL_FAILURE(windows.AskText(other), "the text question");
    EXPECT_NONFATAL_FAILURE(windows.AskText(expected), "nobody expected");
    windows.ExpectText(expected, "final");
    EXPECT_NONFATAL_FAILURE(windows.Verify(), "never came");
    EXPECT_EQ(log.Count("AskText Rename Demo"), 4U);
}

TEST(ScriptedWindows, AFileDialogThatIsNotAsExpectedFailsTheTest) {
    const FileQuestion expected{"Open", "C:\\Zentar\\data", "", {{"Texts (*.txt)", "*.txt"}}};
    FileQuestion other = expected;
    other.kinds[0].patterns = "*.text";
    EventLog log;
    ScriptedWindows windows(&log);
    bool meanwhile = false;
    windows.ExpectFileToOpen(expected, "C:\\a.txt", [&] { meanwhile = true; });
    windows.ExpectFileToOpen(expected, std::nullopt);
    windows.ExpectFileToSave(expected, "C:\\b.txt");
    EXPECT_EQ(windows.ChooseFileToSave(expected), "C:\\b.txt");
    EXPECT_FALSE(meanwhile);
    EXPECT_EQ(windows.ChooseFileToOpen(expected), "C:\\a.txt");
    EXPECT_TRUE(meanwhile);
    EXPECT_EQ(windows.ChooseFileToOpen(expected), std::nullopt);
    windows.ExpectFileToOpen(expected, "C:\\a.txt");
    EXPECT_NONFATAL_FAILURE(windows.ChooseFileToOpen(other), "[*.text]");
    EXPECT_NONFATAL_FAILURE(windows.ChooseFileToOpen(expected), "nobody expected");
    EXPECT_NONFATAL_FAILURE(windows.ChooseFileToSave(expected), "nobody expected");
    windows.ExpectFileToOpen(expected, "C:\\a.txt");
    EXPECT_NONFATAL_FAILURE(windows.Verify(), "file to open that never came");
    windows.ExpectFileToSave(expected, "C:\\a.txt");
    EXPECT_NONFATAL_FAILURE(windows.Verify(), "file to save that never came");
    EXPECT_EQ(log.Count("ChooseFileToOpen Open"), 4U);
    EXPECT_EQ(log.Count("ChooseFileToSave Open"), 2U);
}

TEST(ScriptedWindows, AColourDialogThatIsNotAsExpectedFailsTheTest) {
    ScriptedWindows windows;
    windows.ExpectColour(0x0000FF, 0x00FF00);
    windows.ExpectColour(0x0000FF, std::nullopt);
    EXPECT_EQ(windows.ChooseColour(0x0000FF), 0x00FF00U);
    EXPECT_EQ(windows.ChooseColour(0x0000FF), std::nullopt);
    windows.ExpectColour(0x0000FF, 0x00FF00);
    EXPECT_NONFATAL_FAILURE(windows.ChooseColour(0xFF0000), "0x00FF0000");
    EXPECT_NONFATAL_FAILURE(windows.ChooseColour(0xFF0000), "nobody expected");
    windows.ExpectColour(0x0000FF, 0x00FF00);
    EXPECT_NONFATAL_FAILURE(windows.Verify(), "never came");
}

TEST(ScriptedWindows, AClipboardThatFailsKeepsWhatItHeld) {
    EventLog log;
    ScriptedWindows windows(&log);
    EXPECT_TRUE(Succeeded(windows.PutOnClipboard("bind pause")));
    EXPECT_EQ(windows.clipboard, "bind pause");
    windows.clipboardAnswer = FileError::InUse;
    EXPECT_TRUE(FailedWith(windows.PutOnClipboard("name"), FileError::InUse));
    EXPECT_EQ(windows.clipboard, "bind pause");
    EXPECT_TRUE(log.Ordered({"PutOnClipboard bind pause", "PutOnClipboard name"}));
}

TEST(ScriptedWindows, AWindowIsKnownByItsWholeTitle) {
    ScriptedWindows windows;
    EXPECT_FALSE(windows.HasWindowTitled("Quake 2"));
    windows.SetWindowTitles({"Quake 2"});
    EXPECT_TRUE(windows.HasWindowTitled("Quake 2"));
    EXPECT_FALSE(windows.HasWindowTitled("quake 2"));
    EXPECT_FALSE(windows.HasWindowTitled("Quake"));
}

TEST(ScriptedWindows, AHeldKeyWasPressedOnlyOnce) {
    ScriptedWindows windows;
    windows.SetKeyState(PollKey::Shift, 0x8001);
    EXPECT_EQ(windows.KeyState(PollKey::Shift), 0x8001);
    EXPECT_EQ(windows.KeyState(PollKey::Shift), 0x8000);
    EXPECT_EQ(windows.KeyState(PollKey::Control), 0);
}

TEST(ScriptedShell, AFolderDialogThatIsNotAsExpectedFailsTheTest) {
    ScriptedShell shell;
    EXPECT_NONFATAL_FAILURE(static_cast<void>(shell.PickFolder("Where?")), "nobody expected");
    shell.ExpectPick("Where?", "C:\\Games");
    EXPECT_EQ(shell.PickFolder("Where?"), "C:\\Games");
    shell.ExpectPick("Where?", std::nullopt);
    EXPECT_NONFATAL_FAILURE(shell.Verify(), "never came");
}

TEST(ScriptedShell, AProgramThatIsNotAsExpectedFailsTheTest) {
    const ProgramStart expected{"C:\\Quake2\\", "quake2.exe", " +map a"};
    ProgramStart other = expected;
    other.arguments = " +map b";
    EventLog log;
    ScriptedShell shell(&log);
    shell.ExpectStart(expected);
    shell.ExpectStart(other, FileError::NotFound);
    EXPECT_TRUE(Succeeded(shell.StartProgram(expected)));
    EXPECT_TRUE(FailedWith(shell.StartProgram(other), FileError::NotFound));
    EXPECT_EQ(shell.Started(), (std::vector<ProgramStart>{expected, other}));
    shell.ExpectStart(expected);
    EXPECT_NONFATAL_FAILURE(IgnoreFailure(shell.StartProgram(other)), "[ +map b]");
    EXPECT_NONFATAL_FAILURE(IgnoreFailure(shell.StartProgram(other)), "nobody expected");
    shell.ExpectStart(expected);
    other = expected;
    other.window = StartWindow::Maximised;
    EXPECT_NONFATAL_FAILURE(IgnoreFailure(shell.StartProgram(other)), "maximised");
    shell.ExpectStart(expected);
    EXPECT_NONFATAL_FAILURE(shell.Verify(), "never came");
    EXPECT_TRUE(log.Has("StartProgram C:\\Quake2\\quake2.exe +map a"));
}

TEST(ScriptedShell, AnAddressThatIsNotAsExpectedFailsTheTest) {
    EventLog log;
    ScriptedShell shell(&log);
    shell.ExpectOpen("https://a.example/");
    shell.ExpectOpen("https://b.example/", FileError::Other);
    EXPECT_TRUE(Succeeded(shell.OpenAddress("https://a.example/")));
    EXPECT_TRUE(FailedWith(shell.OpenAddress("https://b.example/"), FileError::Other));
    shell.ExpectOpen("https://a.example/");
    EXPECT_NONFATAL_FAILURE(IgnoreFailure(shell.OpenAddress("https://c.example/")), "c.example");
    EXPECT_NONFATAL_FAILURE(IgnoreFailure(shell.OpenAddress("https://a.example/")),
                            "nobody expected");
    shell.ExpectOpen("https://a.example/");
    EXPECT_NONFATAL_FAILURE(shell.Verify(), "never opened");
    EXPECT_TRUE(log.Has("OpenAddress https://a.example/"));
}

TEST(ScriptedShell, AFileOpenedThatIsNotAsExpectedFailsTheTest) {
    EventLog log;
    ScriptedShell shell(&log);
    shell.ExpectOpenFile("C:\\out\\a.htm", "C:\\Zentar");
    shell.ExpectOpenFile("C:\\out\\b.htm", "C:\\Zentar", FileError::NotFound);
    EXPECT_TRUE(Succeeded(shell.OpenFile("C:\\out\\a.htm", "C:\\Zentar")));
    EXPECT_TRUE(FailedWith(shell.OpenFile("C:\\out\\b.htm", "C:\\Zentar"), FileError::NotFound));
    shell.ExpectOpenFile("C:\\out\\a.htm", "C:\\Zentar");
    EXPECT_NONFATAL_FAILURE(IgnoreFailure(shell.OpenFile("C:\\out\\a.htm", "C:\\out")),
                            "in [C:\\\\out]");
    EXPECT_NONFATAL_FAILURE(IgnoreFailure(shell.OpenFile("C:\\out\\a.htm", "C:\\Zentar")),
                            "nobody expected");
    shell.ExpectOpenFile("C:\\out\\a.htm", "C:\\Zentar");
    EXPECT_NONFATAL_FAILURE(shell.Verify(), "never opened");
    EXPECT_TRUE(log.Has("OpenFile C:\\out\\a.htm"));
}

TEST(EventLog, StepsOutOfTheirOrderAreTold) {
    EventLog log;
    log.Add("a");
    log.Add("b");
    EXPECT_TRUE(log.Ordered({"a", "b"}));
    EXPECT_FALSE(log.Ordered({"b", "a"}));
    EXPECT_FALSE(log.Ordered({"c"}));
}

}  // namespace zentar
