// Shows pixel by pixel what ImageMagick, netpbm and the pictures that came with files show. All
// three without alpha.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

#include "tests/unit/nviewlib/real_images.h"

namespace nviewlib::testing {
namespace {

namespace fs = std::filesystem;

enum class Program : std::uint8_t { ImageMagick, Netpbm };

std::string OutputOf(const std::string& command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 65536> block{};
    for (std::size_t count = 1; pipe != nullptr && count > 0;) {
        count = std::fread(block.data(), 1, block.size(), pipe.get());
        output.append(block.data(), count);
    }
    return output;
}

bool IsInstalled(const std::string& command) {
    return !OutputOf("command -v " + command + " 2>/dev/null").empty();
}

std::string ConvertCommand() {
    return IsInstalled("convert-im6.q16") ? "convert-im6.q16" : "convert";
}

// Reads a number of a PPM file's head; comments may stand before it.
int Number(const std::string& ppm, std::size_t* at) {
    while (*at < ppm.size() && (ppm[*at] == '#' || ppm[*at] <= ' ')) {
        *at = ppm[*at] == '#' ? std::min(ppm.find('\n', *at), ppm.size()) : *at + 1;
    }
    int number = 0;
    for (; *at < ppm.size() && ppm[*at] >= '0' && ppm[*at] <= '9'; ++*at) {
        number = number * 10 + (ppm[*at] - '0');
    }
    return number;
}

// None when the program refused the file, or wrote a part of it only.
std::optional<Picture> FromPpm(const std::string& ppm) {
    if (!ppm.starts_with("P6")) {
        return std::nullopt;
    }
    std::size_t at = 2;
    Picture picture;
    picture.width = Number(ppm, &at);
    picture.height = Number(ppm, &at);
    const int most = Number(ppm, &at);
    ++at;
    const auto count =
        static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    if (most < 1 || most > 255 || ppm.size() - at != count * 3) {
        return std::nullopt;
    }
    // netpbm leaves five bits as they are.
    const auto value = [&](std::size_t offset) {
        return static_cast<std::uint8_t>(static_cast<unsigned char>(ppm[offset]) * 255 / most);
    };
    for (; at < ppm.size(); at += 3) {
        picture.pixels.push_back({value(at), value(at + 1), value(at + 2)});
    }
    return picture;
}

std::optional<Picture> ShownBy(Program program, const fs::path& path) {
    const std::string file = "'" + path.string() + "'";
    if (program == Program::Netpbm) {
        const bool tga = path.extension() == ".tga";
        return FromPpm(OutputOf((tga ? "tgatoppm " : "pcxtoppm ") + file + " 2>/dev/null"));
    }
    // Without "-auto-orient" the corner from which a TGA file is written is told, but not heeded.
    const std::string kind = path.extension() == ".png" ? "" : path.extension().string().substr(1);
    return FromPpm(OutputOf(ConvertCommand() + " " + kind + (kind.empty() ? "" : ":") + file +
                            " -auto-orient -alpha off -depth 8 ppm:- 2>/dev/null"));
}

int GreatestDifference(const Picture& one, const Picture& other) {
    if (one.width != other.width || one.height != other.height) {
        return 256;
    }
    int greatest = 0;
    for (std::size_t i = 0; i < one.pixels.size(); ++i) {
        const Rgb& a = one.pixels[i];
        const Rgb& b = other.pixels[i];
        greatest = std::max({greatest, std::abs(a.red - b.red), std::abs(a.green - b.green),
                             std::abs(a.blue - b.blue)});
    }
    return greatest;
}

std::string NameOf(Program program) {
    return program == Program::ImageMagick ? "ImageMagick" : "netpbm";
}

class OtherDecoders : public ::testing::TestWithParam<Program> {
  protected:
    void SetUp() override {
        const bool netpbm = GetParam() == Program::Netpbm;
        if (!(netpbm ? IsInstalled("tgatoppm") && IsInstalled("pcxtoppm")
                     : IsInstalled(ConvertCommand()))) {
            GTEST_SKIP() << NameOf(GetParam()) << " is not installed";
        }
        folder_ = fs::temp_directory_path() / ("zentar_images_" + std::to_string(getpid()));
        fs::create_directories(folder_);
    }
    void TearDown() override { fs::remove_all(folder_); }

    void ExpectSame(const std::string& extension, const std::string& bytes,
                    const std::string& what) {
        const fs::path path = folder_ / ("image." + extension);
        std::ofstream(path, std::ios::binary) << bytes;
        ASSERT_TRUE(Decode(DecoderOf(extension), bytes).picture) << what;
        ExpectSameAs(path, what);
    }

    void ExpectSameAs(const fs::path& path, const std::string& what) {
        const std::string kind = path.extension() == ".tga" ? "tga" : "pcx";
        const std::optional<Picture> ours = Decode(DecoderOf(kind), Slurp(path)).picture;
        const std::optional<Picture> theirs = ShownBy(GetParam(), path);
        ASSERT_EQ(ours.has_value(), theirs.has_value()) << what;
        if (ours) {
            EXPECT_EQ(GreatestDifference(*ours, *theirs), 0) << what;
        }
    }

    bool WithNetpbm() const { return GetParam() == Program::Netpbm; }

  private:
    fs::path folder_;
};

TEST_P(OtherDecoders, ShowTheSameOfRealTgaFiles) {
    for (const fs::path& path : FilesOf("tga")) {
        const std::string bytes = Slurp(path);
        const bool grey16 = bytes[2] % 8 == 3 && bytes[16] == 16;
        const bool fromRight = (bytes[17] & 0x10) != 0;
        // Neither knows grey with alpha: both take it for five bits of each colour. The pictures
        // that came with these files show grey.
        // netpbm does not heed from which side lines are written.
        if (!grey16 && !(fromRight && WithNetpbm())) {
            ExpectSameAs(path, path.filename().string());
        }
    }
}

TEST_P(OtherDecoders, ShowTheSameOfRealPcxFiles) {
    for (const fs::path& path : FilesOf("pcx")) {
        if (path.extension() == ".bin") {
            continue;
        }
        const std::string bytes = Slurp(path);
        const bool blackAndWhite = bytes[3] == 1 && bytes[65] == 1;
        // ImageMagick shows 0 as white and 1 as black whatever the palette says, which makes of
        // pil184.pcx a negative.
        if (!(blackAndWhite && !WithNetpbm())) {
            ExpectSameAs(path, path.filename().string());
        }
    }
}

TEST_P(OtherDecoders, ShowTheSameOfMadeTgaFiles) {
    const Picture view = GameView(37, 23);
    const Picture few = FewColours(37, 23, 100);
    for (const bool fromTop : {false, true}) {
        for (const int packets : {0, 8}) {
            const std::string what =
                "packets " + std::to_string(packets) + ", from top " + std::to_string(fromTop);
            for (const int bits : {15, 16, 24, 32}) {
                const std::string depth = what + ", bits " + std::to_string(bits);
                ExpectSame("tga",
                           MakeTga(view, {.type = 2 + packets, .bits = bits, .fromTop = fromTop}),
                           depth);
                ExpectSame("tga",
                           MakeTga(few, {.type = 1 + packets,
                                         .bits = 8,
                                         .fromTop = fromTop,
                                         .id = "made",
                                         .mapBits = bits,
                                         .mapFirst = 9,
                                         .footer = true}),
                           depth + ", mapped");
            }
            ExpectSame("tga", MakeTga(view, {.type = 3 + packets, .bits = 8, .fromTop = fromTop}),
                       what + ", grey");
            ExpectSame("tga", MakeTga(view, {.type = 2 + packets, .bits = 8, .fromTop = fromTop}),
                       what + ", colours of eight bits");
        }
    }
}

TEST_P(OtherDecoders, ShowTheSameOfTgaFilesFromTheRight) {
    if (WithNetpbm()) {
        GTEST_SKIP() << "netpbm does not heed from which side lines are written";
    }
    for (const bool fromTop : {false, true}) {
        for (const int type : {2, 10}) {
            ExpectSame(
                "tga",
                MakeTga(GameView(37, 23), {.type = type, .fromTop = fromTop, .fromRight = true}),
                "type " + std::to_string(type) + ", from top " + std::to_string(fromTop));
        }
    }
}

TEST_P(OtherDecoders, ShowTheSameOfTgaFilesWithIndexesOfTwoBytes) {
    if (!WithNetpbm()) {
        GTEST_SKIP() << "ImageMagick takes indexes of two bytes for five bits of each colour";
    }
    ExpectSame("tga", MakeTga(FewColours(37, 23, 700), {.type = 1, .bits = 16}), "raw");
    ExpectSame("tga", MakeTga(FewColours(37, 23, 700), {.type = 9, .bits = 16}), "packets");
}

TEST_P(OtherDecoders, ShowTheSameOfTgaFilesWithAMapThatIsNotUsed) {
    if (!WithNetpbm()) {
        GTEST_SKIP() << "ImageMagick takes colours for indexes where there is a map";
    }
    ExpectSame("tga", MakeTga(FewColours(37, 23, 50), {.needlessMap = true}), "raw");
    ExpectSame("tga", MakeTga(FewColours(37, 23, 50), {.type = 10, .needlessMap = true}),
               "packets");
}

TEST_P(OtherDecoders, ShowTheSameOfMadePcxFiles) {
    for (const bool cross : {false, true}) {
        for (const int padding : {0, 1, 6}) {
            for (const int width : {37, 40}) {
                const std::string what = "cross " + std::to_string(cross) + ", padding " +
                                         std::to_string(padding) + ", width " +
                                         std::to_string(width);
                const auto expectSame = [&](const Picture& picture, PcxKind kind) {
                    kind.cross = cross;
                    kind.padding = padding;
                    ExpectSame("pcx", MakePcx(picture, kind),
                               what + ", bits " + std::to_string(kind.bits) + ", planes " +
                                   std::to_string(kind.planes));
                };
                for (const int planes : {2, 3, 4}) {
                    expectSame(FewColours(width, 23, 1 << planes), {.bits = 1, .planes = planes});
                }
                expectSame(FewColours(width, 23, 4), {.bits = 2});
                expectSame(FewColours(width, 23, 16), {.bits = 4});
                expectSame(FewColours(width, 23, 256), {});
                expectSame(GameView(width, 23), {.planes = 3, .left = 5, .top = 7});
            }
        }
    }
}

TEST_P(OtherDecoders, ShowTheSameOfPcxFilesThatNotAllCanRead) {
    const Picture two = FewColours(37, 23, 2);
    const Picture many = FewColours(37, 23, 256);
    if (WithNetpbm()) {
        // See above for what ImageMagick makes of two colours.
        ExpectSame("pcx", MakePcx(two, {.bits = 1}), "two colours");
        std::string empty = MakePcx(two, {.bits = 1});
        empty.replace(16, 48, 48, '\0');
        ExpectSame("pcx", empty, "black and white");
    } else {
        // netpbm refuses bytes without runs, and shows colours with alpha in stripes.
        ExpectSame("pcx", MakePcx(many, {.encoding = 0}), "without runs");
        ExpectSame("pcx", MakePcx(GameView(37, 23), {.planes = 4}), "with alpha");
    }
    ExpectSame("pcx", MakePcx(many, {.behind = std::string(99, '\0')}), "with bytes behind");
}

INSTANTIATE_TEST_SUITE_P(Programs, OtherDecoders,
                         ::testing::Values(Program::ImageMagick, Program::Netpbm),
                         [](const auto& program) { return NameOf(program.param); });

// The picture that came with a TGA file, if one did. Those of one set serve several files.
fs::path PictureOf(const fs::path& tga) {
    std::string name = tga.stem().string();
    const fs::path folder = tga.parent_path() / "ref";
    for (const char* end : {"_bl_raw", "_bl_rle", "_tl_raw", "_tl_rle"}) {
        if (name.ends_with(end)) {
            name.resize(name.size() - std::string(end).size());
        }
    }
    return folder / (name + ".png");
}

TEST(PicturesOfTgaFiles, ShowTheSame) {
    if (!IsInstalled(ConvertCommand())) {
        GTEST_SKIP() << "ImageMagick is not installed";
    }
    int seen = 0;
    for (const fs::path& path : FilesOf("tga")) {
        if (!fs::exists(PictureOf(path))) {
            continue;
        }
        ++seen;
        const std::string bytes = Slurp(path);
        const std::optional<Picture> ours = Decode(DecodeTga, bytes).picture;
        const std::optional<Picture> theirs = ShownBy(Program::ImageMagick, PictureOf(path));
        ASSERT_TRUE(ours && theirs) << path;
        // Their makers stretched five bits in other ways, each of them by one more at most.
        const bool fiveBits = bytes[2] % 8 == 2 && (bytes[16] == 15 || bytes[16] == 16);
        EXPECT_LE(GreatestDifference(*ours, *theirs), fiveBits ? 1 : 0) << path;
    }
    if (seen == 0) {
        GTEST_SKIP() << "there are no real images here";
    }
}

}  // namespace
}  // namespace nviewlib::testing

#endif
