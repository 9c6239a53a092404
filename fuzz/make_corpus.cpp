// Writes the seeds of the fuzz targets: make_corpus <folder>
#include <filesystem>
#include <fstream>
#include <string>

#include "samples/demo_maker.h"

namespace {

using zentar::samples::DemoContents;
using zentar::samples::DemoKind;
using zentar::samples::MakeDemo;

// Just behind the block that the readers search.
constexpr std::size_t kBlockEnd = 5120;

void Write(const std::filesystem::path& folder, const std::string& name, const std::string& bytes) {
    std::filesystem::create_directories(folder);
    std::ofstream(folder / name, std::ios::binary) << bytes;
}

void WriteQuake1(const std::filesystem::path& folder) {
    Write(folder, "plain", MakeDemo(DemoKind::Dem, {.map = "E1M1", .levelName = "Slipgate"}));
    Write(folder, "no_name", MakeDemo(DemoKind::Dem, {.map = "dm1", .levelName = ""}));
    Write(folder, "across_block",
          MakeDemo(DemoKind::Dem, {.map = "start",
                                   .levelName = "Intro",
                                   .earlyText = "progs/player.mdl",
                                   .mapAt = kBlockEnd - 7}));
}

void WriteQuake2(const std::filesystem::path& folder) {
    Write(folder, "plain", MakeDemo(DemoKind::Dm2, {.map = "q2dm1", .levelName = "The Edge"}));
    Write(folder, "mod",
          MakeDemo(DemoKind::Dm2, {.map = "q2ctf1", .levelName = "McKinley", .mod = "ctf"}));
    Write(folder, "across_block",
          MakeDemo(DemoKind::Dm2, {.map = "base1",
                                   .levelName = "Outer",
                                   .earlyText = "models/weapons/v_blast/tris.md2",
                                   .mapAt = kBlockEnd - 7}));
}

void WriteQuake3(const std::filesystem::path& folder) {
    const DemoContents contents{.map = "Q3DM17", .levelName = "The Longest Yard"};
    Write(folder, "dm3", MakeDemo(DemoKind::Dm3, contents));
    Write(folder, "dm_48", MakeDemo(DemoKind::Dm48, contents));
    Write(folder, "dm_66", MakeDemo(DemoKind::Dm66, contents).substr(0, 600));
    Write(folder, "across_block",
          MakeDemo(DemoKind::Dm48,
                   {.map = "q3dm6", .levelName = "Camp", .levelNameAt = kBlockEnd - 6}));
}

void WriteMods(const std::filesystem::path& folder) {
    Write(folder, "quake2", MakeDemo(DemoKind::Dm2, {.mod = "ctf"}).substr(0, 400));
    Write(folder, "quake3", MakeDemo(DemoKind::Dm3, {.mod = "osp"}).substr(0, 1000));
    Write(folder, "hostile", std::string(14, 'x') + "..\\..\\a:b" + '\0' + "\\gamename\\../con\\");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        return 1;
    }
    const std::filesystem::path corpus(argv[1]);
    WriteQuake1(corpus / "fuzz_quake1_demo");
    WriteQuake2(corpus / "fuzz_quake2_demo");
    WriteQuake3(corpus / "fuzz_quake3_demo");
    WriteMods(corpus / "fuzz_demo_mod");
    return 0;
}
