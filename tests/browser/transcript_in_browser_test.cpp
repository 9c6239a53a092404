// What a real browser makes of a transcript in HTML: the text that can be seen, and its colours.
#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "q3tools/colour_codes.h"
#include "transcripts/transcript_writer.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

// Lists each piece of text with its colour and weight, then the page's own; a script that came with
// the text of the page would have left its mark.
constexpr std::string_view kProbe = R"(<script>
const seen = [];
const texts = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
while (texts.nextNode()) {
  const text = texts.currentNode.nodeValue.trim();
  const parent = texts.currentNode.parentElement;
  if (text && parent.tagName != 'SCRIPT') {
    const style = getComputedStyle(parent);
    seen.push(style.color + (style.fontWeight >= 700 ? ' bold ' : ' plain ') + text);
  }
}
seen.push('page ' + getComputedStyle(document.body).backgroundColor);
seen.push('scripts ' + (window.mark === undefined ? 'none' : 'ran'));
const shown = document.createElement('pre');
shown.textContent = 'SEEN\n' + seen.join('\n') + '\nEND';
document.body.replaceChildren(shown);
</script>)";

std::string Run(const std::string& command) {
    std::string output;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 4096> block{};
    for (std::size_t got = 0; (got = fread(block.data(), 1, block.size(), pipe)) > 0;) {
        output.append(block.data(), got);
    }
    pclose(pipe);
    return output;
}

bool HasChromium() { return !Run("command -v chromium").empty(); }

std::string Chromium(const std::string& options, const fs::path& page) {
    return Run(
        "timeout 60 chromium --headless --no-sandbox --disable-gpu --no-first-run "
        "--user-data-dir='" +
        (page.parent_path() / "profile").string() + "' " + options + " 'file://" + page.string() +
        "' 2>/dev/null");
}

void Replace(std::string& text, std::string_view what, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
        text.replace(at, what.size(), by);
    }
}

class TranscriptInBrowser : public ::testing::Test {
  protected:
    TranscriptInBrowser()
        : folder_(fs::temp_directory_path() / ("zentar browser " + std::to_string(getpid()))) {
        fs::create_directories(folder_);
        options_.html = true;
        options_.source = "C:\\Quake2\\baseq2\\condump.txt";
        options_.webSite = "https://zentar.example/";
        options_.players[0] = {"Fred", kQ3Red};
        options_.players[1] = {"<script>Bob", ColourRef{0x804020}};
        options_.players[2] = {"\"O'Neill\"", std::nullopt};
    }
    ~TranscriptInBrowser() override { fs::remove_all(folder_); }

    void SetUp() override {
        if (!HasChromium()) {
            GTEST_SKIP() << "there is no chromium";
        }
    }

    void WritePage(const std::vector<std::string>& lines, std::string_view more) {
        std::ofstream file(Page(), std::ios::binary);
        TranscriptWriter writer(options_, [&file](std::string_view text) { file << text; });
        writer.Begin();
        for (const std::string& line : lines) {
            writer.Add(line);
        }
        writer.End();
        file << more;
    }

    // What the user sees of the lines between the marks, and of the page.
    std::vector<std::string> Seen(const std::vector<std::string>& lines) {
        WritePage(lines, kProbe);
        std::string dom = Chromium("--dump-dom", Page());
        Replace(dom, "&lt;", "<");
        Replace(dom, "&gt;", ">");
        Replace(dom, "&amp;", "&");
        std::istringstream listed(dom.substr(std::min(dom.size(), dom.find("SEEN\n"))));
        std::vector<std::string> seen;
        for (std::string line; std::getline(listed, line) && !line.starts_with("END");) {
            if (!seen.empty() || line.ends_with("START OF TRANSCRIPT")) {
                seen.push_back(line);
            }
        }
        return seen;
    }

    fs::path Page() const { return folder_ / "condump (transcript).htm"; }

    fs::path folder_;
    TranscriptOptions options_;
};

TEST_F(TranscriptInBrowser, ShowsSpeechInItsColoursAndMessagesInTheirs) {
    options_.gameMessages = true;
    options_.background = 0x002000;
    options_.messages = 0x00FFFF;
    EXPECT_EQ(
        Seen({"Fred: gl & hf", "<script>Bob: <script>mark = 1</script>",
              "\"O'Neill\": \"quoted\" &amp; <b>not bold</b>", "Fred was <railed>",
              "Carl: nobody asked me", "Fred: \x02\x1D\x1F tabs\tand marks"}),
        (std::vector<std::string>{
            "rgb(255, 255, 0) bold START OF TRANSCRIPT", "rgb(255, 0, 0) bold Fred: gl & hf",
            "rgb(32, 64, 128) bold <script>Bob: <script>mark = 1</script>",
            "rgb(255, 255, 0) plain \"O'Neill\": \"quoted\" & <b>not bold</b>",
            "rgb(255, 255, 0) plain Fred was <railed>",
            "rgb(255, 0, 0) bold Fred: \x02\x1D\x1F tabs\tand marks",
            "rgb(255, 255, 0) bold END OF TRANSCRIPT", "page rgb(0, 32, 0)", "scripts none"}));
}

TEST_F(TranscriptInBrowser, IsBlackOnWhiteAndPlainWithoutColoursAndMessages) {
    EXPECT_EQ(Seen({"Fred: hi", "\"O'Neill\": yo", "Fred was railed"}),
              (std::vector<std::string>{
                  "rgb(0, 0, 0) bold START OF TRANSCRIPT", "rgb(255, 0, 0) plain Fred: hi",
                  "rgb(0, 0, 0) plain \"O'Neill\": yo", "rgb(0, 0, 0) bold END OF TRANSCRIPT",
                  "page rgb(255, 255, 255)", "scripts none"}));
}

// For somebody to look at.
TEST_F(TranscriptInBrowser, CanBeLookedAt) {
    options_.gameMessages = true;
    options_.background = 0x402000;
    options_.messages = 0xC0C0C0;
    WritePage({"Fred entered the game", "Fred: gl & hf", "<script>Bob: you too",
               "Fred was railed by <script>Bob", "\"O'Neill\": ouch"},
              "");
    const fs::path picture = fs::path(ZENTAR_PICTURES) / "transcript in a browser.png";
    fs::create_directories(picture.parent_path());
    fs::remove(picture);
    Chromium("--window-size=800,600 --screenshot='" + picture.string() + "'", Page());
    ASSERT_TRUE(fs::exists(picture));
    EXPECT_GT(fs::file_size(picture), 5'000U);
}

}  // namespace
}  // namespace zentar
