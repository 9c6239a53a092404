// Reads demos that players recorded, where such are at hand, and compares with what a person reads
// in their bytes.
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "core/text.h"
#include "demos/demo_header.h"
#include "demos/demo_name.h"
#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

const fs::path kData = fs::path(ZENTAR_TEST_SOURCE_DIR) / ".." / "shared" / "data";

std::string Slurp(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

// What the index says of one file.
struct Described {
    std::string kind;
    std::string file;
    std::string words;

    // The text in quotes behind `label`, with line feeds in place of their escapes.
    std::string Quoted(const std::string& label) const {
        const std::size_t begin = words.find(label + "'") + label.size() + 1;
        std::string text = words.substr(begin, words.find('\'', begin) - begin);
        for (std::size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n")) {
            text.replace(at, 2, 1, '\n');
        }
        return text;
    }
    bool Says(const std::string& what) const { return words.find(what) != std::string::npos; }
    std::string Map(const std::string& label) const {
        std::string map = LowerAscii(Quoted(label));
        if (map.starts_with("maps/")) {
            map = map.substr(5, map.size() - 5 - 4);
        }
        return map;
    }
};

std::vector<Described> IndexOf(const std::string& kind) {
    std::vector<Described> described;
    std::ifstream index(kData / "INDEX.md");
    for (std::string line; std::getline(index, line);) {
        const std::string start = "- " + kind + " | ";
        if (line.starts_with(start)) {
            const std::size_t end = line.find(" | ", start.size());
            described.push_back(
                {kind, line.substr(start.size(), end - start.size()), line.substr(end)});
        }
    }
    return described;
}

std::optional<DemoHeader> ReadAs(const Described& demo, std::string_view game,
                                 const std::string& extension) {
    MemoryFileSystem files;
    const std::string path = "C:\\demo" + extension;
    files.AddFile(path, Slurp(kData / demo.kind / demo.file));
    return ReadDemoHeader(files, path, game).Value();
}

class RealDemos : public testing::Test {
  protected:
    void SetUp() override {
        if (!fs::exists(kData / "INDEX.md")) {
            GTEST_SKIP() << "there are no real demos here";
        }
    }
};

TEST_F(RealDemos, Quake1DemosShowWhatAPersonReads) {
    const std::vector<Described> demos = IndexOf("q1dem");
    EXPECT_FALSE(demos.empty());
    for (const Described& demo : demos) {
        const auto header = ReadAs(demo, kQuake1, ".dem");
        ASSERT_TRUE(header) << demo.file;
        EXPECT_EQ(header->Map, demo.Map("map ")) << demo.file;
        EXPECT_EQ(header->Name, demo.Quoted("level name ")) << demo.file;
    }
}

TEST_F(RealDemos, Quake2DemosShowWhatAPersonReads) {
    const std::vector<Described> demos = IndexOf("q2dm2");
    EXPECT_FALSE(demos.empty());
    for (const Described& demo : demos) {
        const auto header = ReadAs(demo, kQuake2, ".dm2");
        // A sound demo whose models stand behind the block is called none all the same.
        if (demo.Says("OUTSIDE the first 5120 bytes")) {
            EXPECT_FALSE(header) << demo.file;
            continue;
        }
        ASSERT_TRUE(header) << demo.file;
        const std::size_t offset = demo.words.find("first \"maps/\" at offset ");
        const std::size_t colon = demo.words.find(": '", offset);
        const Described rest{demo.kind, demo.file, demo.words.substr(colon)};
        EXPECT_EQ(header->Map, rest.Map(": ")) << demo.file;
        EXPECT_EQ(header->Name, demo.Quoted("level name ")) << demo.file;
    }
}

TEST_F(RealDemos, OldQuake3DemosShowWhatAPersonReads) {
    int seen = 0;
    for (const Described& demo : IndexOf("q3dem")) {
        if (!demo.Says("\\mapname\\ at ")) {
            continue;
        }
        ++seen;
        const auto header = ReadAs(demo, kQuake3, fs::path(demo.file).extension().string());
        ASSERT_TRUE(header) << demo.file;
        EXPECT_EQ(header->Map, demo.Map("map ")) << demo.file;
        EXPECT_EQ(header->Name, demo.Quoted("level name ")) << demo.file;
        EXPECT_EQ(header->Generation, demo.Says("\\g_syncronousClients\\ at ")
                                          ? Q3Generation::V117
                                          : Q3Generation::V127h)
            << demo.file;
    }
    EXPECT_GT(seen, 0);
}

TEST_F(RealDemos, CompressedQuake3DemosAreDemosUnderTheirExtensionOnly) {
    int seen = 0;
    for (const Described& demo : IndexOf("q3dem")) {
        if (!demo.Says("\\mapname\\ absent")) {
            continue;
        }
        ++seen;
        EXPECT_FALSE(ReadAs(demo, kQuake3, ".dm3")) << demo.file;
        const auto header = ReadAs(demo, kQuake3, ".dm_66");
        ASSERT_TRUE(header) << demo.file;
        EXPECT_EQ(header->Generation, Q3Generation::V129f) << demo.file;
    }
    EXPECT_GT(seen, 0);
}

}  // namespace
}  // namespace zentar
