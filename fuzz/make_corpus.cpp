// Writes the seeds of the fuzz targets: make_corpus <folder>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "platform/rtf/rtf_writer.h"
#include "samples/demo_maker.h"
#include "samples/shot_maker.h"
#include "screenshots/busy_image.h"
#include "tests/unit/nviewlib/image_maker.h"

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

// Small, so that a fuzz target tries many.
constexpr int kWidth = 9;
constexpr int kHeight = 4;

void WriteTga(const std::filesystem::path& folder) {
    using nviewlib::testing::MakeTga;
    const auto view = nviewlib::testing::GameView(kWidth, kHeight);
    const auto few = nviewlib::testing::FewColours(kWidth, kHeight, 5);
    for (const int packets : {0, 8}) {
        const std::string how = packets == 0 ? "raw_" : "packets_";
        for (const int bits : {15, 16, 24, 32}) {
            const std::string colours = how + "colours_";
            const std::string map = how + "map_";
            Write(folder, colours + std::to_string(bits),
                  MakeTga(view, {.type = 2 + packets, .bits = bits, .fromRight = bits == 24}));
            Write(folder, map + std::to_string(bits),
                  MakeTga(few, {.type = 1 + packets, .bits = 8, .mapBits = bits, .mapFirst = 3}));
        }
        Write(folder, how + "indexes_16", MakeTga(few, {.type = 1 + packets, .bits = 16}));
        Write(folder, how + "grey_8", MakeTga(view, {.type = 3 + packets, .bits = 8}));
        Write(folder, how + "grey_16", MakeTga(view, {.type = 3 + packets, .bits = 16}));
        Write(folder, how + "all_else",
              MakeTga(few, {.type = 2 + packets,
                            .fromTop = true,
                            .id = "id",
                            .needlessMap = true,
                            .footer = true}));
    }
}

void WritePcx(const std::filesystem::path& folder) {
    using nviewlib::testing::MakePcx;
    const auto view = nviewlib::testing::GameView(kWidth, kHeight);
    for (const int encoding : {0, 1}) {
        const std::string how = encoding == 0 ? "raw_" : "runs_";
        for (const auto& [bits, planes] :
             {std::pair(1, 1), {1, 2}, {1, 3}, {1, 4}, {2, 1}, {4, 1}, {8, 1}}) {
            const auto few = nviewlib::testing::FewColours(kWidth, kHeight, 1 << (bits * planes));
            Write(folder, how + std::to_string(bits) + "x" + std::to_string(planes),
                  MakePcx(few, {.bits = bits, .planes = planes, .encoding = encoding}));
        }
        Write(folder, how + "8x3", MakePcx(view, {.planes = 3, .encoding = encoding}));
        Write(folder, how + "8x4", MakePcx(view, {.planes = 4, .encoding = encoding}));
    }
    const auto few = nviewlib::testing::FewColours(kWidth, kHeight, 5);
    Write(folder, "runs_across_lines", MakePcx(few, {.padding = 2, .cross = true}));
    Write(folder, "bytes_behind", MakePcx(few, {.behind = "behind"}));
}

// What the system decodes: the headers, with some of what follows them.
void WriteSystemImages(const std::filesystem::path& folder) {
    constexpr std::size_t kJpgBeginning = 900;
    Write(folder, "jpg", zentar::samples::MakeJpgShot().substr(0, kJpgBeginning));
    Write(folder, "gif", std::string(zentar::BusyImage()));
    const std::string size{'\3', '\0', '\0', '\0', '\2', '\0', '\0', '\0'};
    const std::string file = "BM" + std::string(8, '\0') + '\66' + std::string(3, '\0') + '\50' +
                             std::string(3, '\0') + size + '\1' + '\0';
    Write(folder, "bmp_24", file + '\30' + std::string(25, '\0') + "123456789...123456789...");
    Write(folder, "bmp_8", file + '\10' + std::string(25, '\0') + "123.123.");
    Write(folder, "bmp_runs", file + '\10' + '\0' + '\1' + std::string(23, '\0') + "\3a\3b");
}

void WriteRichTexts(const std::filesystem::path& folder) {
    const std::vector<zentar::ColouredRun> runs = {{"Bo{b}", 0x0000FF},
                                                   {" Gr\u00F6\u00DFe \U0001F600", 0}};
    Write(folder, "ours", zentar::WriteRtf(runs));
    Write(
        folder, "table_from_zero",
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss MS Sans Serif;}}{\\colortbl\\red0\\green0"
        "\\blue0;\\red255\\green0\\blue0;}\r\n\\pard\\plain\\f0\\fs17\\cf1 Bo\\plain\\f0 b\\par }");
    Write(folder, "groups",
          "{\\rtf1{\\*\\generator x;}\\uc2{\\field{\\*\\fldinst x}{\\fldrslt y}}\\u-10179\\'3f?"
          "\\u-8704??\\bin3 {}{z\\v v\\v0\\emdash\\~\\line}");
}

void WriteConsoles(const std::filesystem::path& corpus) {
    const std::string log =
        "  0:12 say: ^1Bob^7: hi\r\n  0:13 Kill: 1 2 10: Bob killed Ann by MOD_RAILGUN\r\n"
        "(Bob) (Base): quad\n<RED> Ann: ^^0<b>\n\1map: no\rAnn to Bob: gg\nBob was railgunned\n"
        "  0:14 vtell: Ann to Bob: x: print\n  0:15 sayteam: Bob: a\n  1:00 Item: 2 item_quad\n";
    Write(corpus / "fuzz_speech", "log", "\1\7\20\377" + log);
    for (const char form : {'0', '1', '2', '3', '4', '5', '6', '7'}) {
        Write(corpus / "fuzz_transcript", std::string("log_") + form,
              form + std::string("Bob\0Ann\0<x>\n", 12) + log);
    }
    Write(corpus / "fuzz_colour_codes", "name", "^1B^2o^^0b^8 ^^1^7");
}

void WriteConfigs(const std::filesystem::path& folder) {
    const std::string lines =
        "// generated by quake, do not modify\nseta name \"Bob\"\nSETA g_spScores1 \"\\q3dm0\\1\""
        "\r\nseta r_railwidth \"16\"\rbind x \"y\"\n\nseta g_spSkill \"2\"";
    Write(folder, "config", '\0' + lines);
    Write(folder, "config_all", '\1' + lines);
    Write(folder, "converted", "\1// generated by zentar, feel free to modify\r\nbind x \"y\"\r\n");
    Write(folder, "game", "\220execing %scode.execing %s\nmore");
}

void WriteSettings(const std::filesystem::path& folder) {
    Write(folder, "settings",
          "// Zentar\r\nGame=Quake3\r\nRemote=c:\\Remote\\\r\nPreset1=7\r\nDemoFilter= = \r\n");
    Write(folder, "odd",
          "Game=\nGame=1\rRemote=True\n\n=\nNobody=2\nPreset1= 255 \nDemoFilter=False");
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
    WriteTga(corpus / "fuzz_tga");
    WritePcx(corpus / "fuzz_pcx");
    WriteSystemImages(corpus / "fuzz_bmp_jpg_gif");
    WriteRichTexts(corpus / "fuzz_rtf");
    WriteConsoles(corpus);
    WriteConfigs(corpus / "fuzz_config");
    WriteSettings(corpus / "fuzz_settings");
    return 0;
}
