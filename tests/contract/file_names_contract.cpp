// Names and paths: all that users have, and those that Windows cannot hold.
#include <algorithm>
#include <map>

#include "tests/contract/file_system_contract.h"

namespace zentar {
namespace {

std::string Repeated(std::string_view text, int count) {
    std::string repeated;
    for (int i = 0; i < count; ++i)
        repeated += text;
    return repeated;
}

}  // namespace

TEST_P(FileNamesContract, NamesOfEveryScriptComeBackAsTheyWereGiven) {
    const std::vector<std::string> names = {"Größe [q2dm1].dm2",
                                            "дуэль.dm2",
                                            "ελλάδα.dm2",
                                            "決闘.dm2",
                                            "\xF0\x9F\x98\x80 demo.dm2",
                                            "  two blanks first.dm2",
                                            "100% & more; (1) 'x' #!~$^`{}@+,=.dm2",
                                            ".dm2"};
    for (const std::string& name : names)
        Write(In(name), name);
    for (const std::string& name : names)
        EXPECT_EQ(Read(In(name)), name);
    std::vector<std::string> sorted = names;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(Names(World().Folder()), sorted);
}

TEST_P(FileNamesContract, CaseDoesNotCountAndIsKept) {
    const std::map<std::string, std::string> pairs = {{"Demo One.DM2", "demo one.dm2"},
                                                      {"GRÖSSE ÄÉÑ.dm2", "grösse äéñ.DM2"},
                                                      {"ДУЭЛЬ Ё.dm2", "дуэль ё.dm2"},
                                                      {"ΕΛΛΑΣ.dm2", "ελλασ.dm2"},
                                                      {"ŁÓDŹ Ÿ.dm2", "łódź ÿ.dm2"}};
    std::vector<std::string> stored;
    for (const auto& [name, other] : pairs) {
        Write(In(name), name);
        stored.push_back(name);
        EXPECT_EQ(Read(In(other)), name);
        EXPECT_EQ(WriteError(In(other), WriteMode::CreateNew), FileError::AlreadyExists) << other;
    }
    EXPECT_EQ(Names(World().Folder()), stored);
}

TEST_P(FileNamesContract, LettersThatOnlyLookAlikeAreDifferentNames) {
    Write(In("a.txt"), "Latin");
    Write(In("а.txt"), "Cyrillic");
    Write(In("ä.txt"), "with dots");
    EXPECT_EQ(Read(In("a.txt")), "Latin");
    EXPECT_EQ(Names(World().Folder()).size(), 3U);
}

TEST_P(FileNamesContract, WritingToAFileKeepsTheSpellingOfItsName) {
    Write(In("Demo.DM2"), "old");
    Write(In("demo.dm2"), "new");
    EXPECT_EQ(Names(World().Folder()), std::vector<std::string>{"Demo.DM2"});
    EXPECT_EQ(Read(In("Demo.DM2")), "new");
}

TEST_P(FileNamesContract, RenameCanChangeTheCaseOfAName) {
    Write(In("DEMO.DM2"), "a");
    EXPECT_TRUE(Succeeded(Files().Rename(In("DEMO.DM2"), In("Demo.dm2"))));
    EXPECT_EQ(Names(World().Folder()), std::vector<std::string>{"Demo.dm2"});
    EXPECT_EQ(Read(In("Demo.dm2")), "a");
    EXPECT_TRUE(Succeeded(Files().Rename(In("Demo.dm2"), In("Demo.dm2"))));
}

TEST_P(FileNamesContract, ANameMayHave255UnitsAndNoMore) {
    const std::string longest = std::string(251, 'n') + ".dm2";
    Write(In(longest), "a");
    EXPECT_EQ(Read(In(longest)), "a");
    EXPECT_EQ(Names(World().Folder()), std::vector<std::string>{longest});
    EXPECT_EQ(WriteError(In("n" + longest), WriteMode::Truncate), FileError::BadName);
    EXPECT_TRUE(FailedWith(Files().Rename(In(longest), In("n" + longest)), FileError::BadName));
    EXPECT_TRUE(FailedWith(Files().CreateFolder(In("n" + longest)), FileError::BadName));
    EXPECT_EQ(Read(In(longest)), "a");
}

TEST_P(FileNamesContract, PathsLongerThan260CharactersWork) {
    std::string folder = World().Folder();
    for (const char c : {'a', 'b', 'c', 'd'}) {
        folder += std::string(100, c);
        ASSERT_TRUE(Succeeded(Files().CreateFolder(folder)));
        folder += '\\';
    }
    Write(folder + "one.txt", "deep");
    EXPECT_EQ(Read(folder + "one.txt"), "deep");
    EXPECT_TRUE(Succeeded(Files().Copy(folder + "one.txt", folder + "two.txt", false)));
    EXPECT_TRUE(Succeeded(Files().Rename(folder + "two.txt", folder + "three.txt")));
    EXPECT_TRUE(Succeeded(Files().Replace(folder + "three.txt", folder + "one.txt")));
    EXPECT_EQ(Names(folder), std::vector<std::string>{"one.txt"});
    EXPECT_TRUE(Succeeded(Files().Delete(folder + "one.txt")));
    EXPECT_FALSE(Exists(folder + "one.txt"));
}

TEST_P(FileNamesContract, NamesThatWindowsCannotHoldAreBadNamesAndCreateNothing) {
    Write(In("a.txt"), "a");
    const std::vector<std::string> impossible = {
        "con",      "CON.txt",   "nul",    "aux.cfg", "PRN",     "com1",      "Lpt9.dm2",
        "con .txt", "trailing.", "blank ", "dots...", "a:b",     "what?.dm2", "star*.dm2",
        "\"q\"",    "a<b",       "a>b",    "a|b",     "tab\t.x", "line\n.x"};
    for (const std::string& name : impossible) {
        EXPECT_EQ(WriteError(In(name), WriteMode::Truncate), FileError::BadName) << name;
        EXPECT_EQ(WriteError(In(name), WriteMode::CreateNew), FileError::BadName) << name;
        EXPECT_EQ(WriteError(In(name), WriteMode::Append), FileError::BadName) << name;
        EXPECT_TRUE(FailedWith(Files().Rename(In("a.txt"), In(name)), FileError::BadName)) << name;
        EXPECT_TRUE(FailedWith(Files().Replace(In("a.txt"), In(name)), FileError::BadName)) << name;
        EXPECT_TRUE(FailedWith(Files().Copy(In("a.txt"), In(name), true), FileError::BadName))
            << name;
        EXPECT_TRUE(FailedWith(Files().CreateFolder(In(name)), FileError::BadName)) << name;
    }
    EXPECT_EQ(Names(World().Folder()), std::vector<std::string>{"a.txt"});
    EXPECT_EQ(Read(In("a.txt")), "a");
}

TEST_P(FileNamesContract, AnImpossibleNameNeverMeansAnotherFile) {
    Write(In("a.txt"), "a");
    for (const char* name : {"a.txt.", "a.txt ", "a.tx?", "*", "a.txt:hidden"}) {
        EXPECT_FALSE(Files().Info(In(name)).Ok()) << name;
        EXPECT_EQ(Read(In(name)), "(missing)") << name;
        EXPECT_FALSE(Files().Delete(In(name)).Ok()) << name;
    }
    EXPECT_EQ(Read(In("a.txt")), "a");
    EXPECT_FALSE(Files().Info(In("a.txt\\")).Ok());
}

TEST_P(FileNamesContract, NamesThatOnlyRemindOfDevicesAreFine) {
    for (const char* name : {"console.txt", "com.txt", "com10", "lpt", "null.dm2", "auxiliary"}) {
        Write(In(name), name);
        EXPECT_EQ(Read(In(name)), name);
    }
}

TEST_P(FileNamesContract, ARelativePathNamesNothing) {
    for (const char* path : {"", "a.txt", "C:", "C:a.txt", "\\a.txt", ".\\a.txt", "a\\b.txt"}) {
        EXPECT_FALSE(Files().Info(path).Ok()) << path;
        EXPECT_EQ(Read(path), "(missing)") << path;
        EXPECT_FALSE(Files().OpenForWriting(path, WriteMode::CreateNew).Ok()) << path;
        EXPECT_FALSE(Files().CreateFolder(path).Ok()) << path;
        EXPECT_FALSE(Files().Delete(path).Ok()) << path;
    }
}

TEST_P(FileNamesContract, DotsAndDoubleBackslashesInAPathAreResolved) {
    ASSERT_TRUE(Succeeded(Files().CreateFolder(In("folder"))));
    Write(In("folder\\a.txt"), "a");
    EXPECT_EQ(Read(In("folder\\\\a.txt")), "a");
    EXPECT_EQ(Read(In("folder\\.\\a.txt")), "a");
    EXPECT_EQ(Read(In("folder\\..\\folder\\a.txt")), "a");
    EXPECT_EQ(Read(In("folder/a.txt")), "a");
}

TEST_P(FileNamesContract, EveryEntryOfAFolderIsVisitedOnceWithItsInfo) {
    ASSERT_TRUE(Succeeded(Files().CreateFolder(In("baseq2"))));
    Write(In("b.dm2"), "bb");
    Write(In("A.dm2"), "");
    World().SetReadOnly(In("b.dm2"));
    std::map<std::string, FileInfo> entries;
    int visits = 0;
    EXPECT_TRUE(Succeeded(Files().Enumerate(World().Folder(), [&](const FolderEntry& entry) {
        ++visits;
        entries[entry.name] = entry.info;
    })));
    EXPECT_EQ(visits, 5);
    ASSERT_EQ(entries.size(), 5U);
    EXPECT_TRUE(entries["."].isFolder);
    EXPECT_TRUE(entries[".."].isFolder);
    EXPECT_TRUE(entries["baseq2"].isFolder);
    EXPECT_EQ(entries["b.dm2"].length, 2U);
    EXPECT_TRUE(entries["b.dm2"].readOnly);
    EXPECT_FALSE(entries["A.dm2"].readOnly);
    EXPECT_EQ(entries["A.dm2"].length, 0U);
    EXPECT_EQ(entries["A.dm2"].lastWrite, Files().Info(In("A.dm2")).ValueOr({}).lastWrite);
}

TEST_P(FileNamesContract, FilesMayBeReadAndRenamedWhileTheirFolderIsEnumerated) {
    for (int i = 0; i < 300; ++i) {
        Write(In("demo" + std::to_string(i) + ".dm2"), std::to_string(i));
    }
    int visited = 0;
    EXPECT_TRUE(Succeeded(Files().Enumerate(World().Folder(), [&](const FolderEntry& entry) {
        if (entry.info.isFolder || !entry.name.starts_with("demo"))
            return;
        ++visited;
        EXPECT_NE(Read(In(entry.name)), "(missing)");
        EXPECT_TRUE(Succeeded(Files().Rename(In(entry.name), In("x" + entry.name))));
    })));
    EXPECT_EQ(visited, 300);
    EXPECT_EQ(Names(World().Folder()).size(), 300U);
}

TEST_P(FileNamesContract, AnEmojiNameCountsTwoUnitsACharacter) {
    const std::string longest = Repeated("\xF0\x9F\x98\x80", 60) + ".dm2";
    Write(In(longest), "a");
    EXPECT_EQ(Names(World().Folder()), std::vector<std::string>{longest});
    const std::string tooLong = Repeated("\xF0\x9F\x98\x80", 128);
    EXPECT_EQ(WriteError(In(tooLong), WriteMode::Truncate), FileError::BadName);
}

}  // namespace zentar
