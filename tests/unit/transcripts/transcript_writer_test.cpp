// What a transcript says, to the byte.
#include <gtest/gtest.h>

#include "transcripts/transcript_writer.h"

namespace zentar {
namespace {

class TranscriptWriterTest : public ::testing::Test {
  protected:
    TranscriptWriterTest() {
        options.source = "C:\\Quake2\\ctf\\chat.txt";
        options.webSite = "https://zentar.example/";
        options.players[0] = {"Bob", std::nullopt};
        options.players[2] = {"<Ann>", ColourRef{0x0000FF}};
    }

    std::string Write(const std::vector<std::string>& lines) {
        std::string written;
        TranscriptWriter writer(options, [&written](std::string_view text) { written += text; });
        writer.Begin();
        for (const std::string& line : lines) {
            writer.Add(line);
        }
        writer.End();
        return written;
    }

    // Whether the transcript of no lines holds these texts in a row.
    bool Writes(std::initializer_list<std::string_view> texts) {
        std::string wanted;
        for (const std::string_view text : texts) {
            wanted += text;
        }
        return Write({}).find(wanted) != std::string::npos;
    }

    // What stands between the beginning and the end of the transcript.
    std::string Body(const std::vector<std::string>& lines) {
        const std::string empty = Write({});
        const std::string all = Write(lines);
        const std::string_view end = options.html ? "<p>\r\n<b><i>END" : "\r\n=====";
        const std::size_t at = empty.find(end);
        return all.substr(at, all.size() - empty.size());
    }

    TranscriptOptions options;
};

TEST_F(TranscriptWriterTest, PlainTextHasItsHeaderAndFooter) {
    EXPECT_EQ(Write({"Bob: hi"}),
              "Zentar v0.99 BETA Chat Transcript\r\n"
              "Web Site: https://zentar.example/\r\n"
              "-------------------------------\r\n"
              "\r\n"
              "Chat transcript of \"C:\\Quake2\\ctf\\chat.txt\".\r\n"
              "\r\n"
              "The following players were chosen to be part of this transcript:\r\n"
              "\r\n"
              "Bob, <Ann>.\r\n"
              "\r\n"
              "------------------------ START OF TRANSCRIPT -------------------------\r\n"
              "\r\n"
              "Bob: hi\r\n"
              "\r\n"
              "========================= END OF TRANSCRIPT ==========================\r\n");
}

TEST_F(TranscriptWriterTest, HtmlHasItsHeaderAndFooter) {
    options.html = true;
    options.background = 0x0080FF;
    EXPECT_EQ(Write({"Bob: <hi> & bye", "<Ann>: yo"}),
              "<html>\r\n"
              "<body bgcolor=\"ff8000\" text=\"000000\">\r\n"
              "<h3>\r\n"
              "Zentar v0.99 BETA Chat Transcript<br>\r\n"
              "Web Site: <a href=\"https://zentar.example/\">zentar.example/</a>\r\n"
              "</h3>\r\n"
              "<p>\r\n"
              "Chat transcript of \"C:\\Quake2\\ctf\\chat.txt\".\r\n"
              "<p>\r\n"
              "The following players were chosen to be part of this transcript:<br>\r\n"
              "Bob, &lt;Ann&gt;.\r\n"
              "<p>\r\n"
              "<b><i>START OF TRANSCRIPT</i></b>\r\n"
              "<p>\r\n"
              "Bob: &lt;hi&gt; & bye<br>\r\n"
              "<font color=\"ff0000\">&lt;Ann&gt;: yo</font><br>\r\n"
              "<p>\r\n"
              "<b><i>END OF TRANSCRIPT</i></b>\r\n"
              "</body>\r\n"
              "</html>\r\n");
}

TEST_F(TranscriptWriterTest, SpeechIsBoldWhereMessagesStandBesideIt) {
    options.html = true;
    options.gameMessages = true;
    EXPECT_EQ(Body({"<Ann>: yo", "Bob: hi", "Ann was <railed>", ""}),
              "<font color=\"ff0000\"><b>&lt;Ann&gt;: yo</b></font><br>\r\n"
              "Bob: hi<br>\r\n"
              "Ann was &lt;railed&gt;<br>\r\n");
}

TEST_F(TranscriptWriterTest, OnlyChosenPlayersSpeakAndTheFirstBoxWins) {
    options.gameMessages = true;
    EXPECT_EQ(Body({"Carl: hi", "(Bob): team", "Bobby: yes", "hi: Bob", "\1Bob: gold", "fight!"}),
              "(Bob): team\r\nBobby: yes\r\nBob: gold\r\nfight!\r\n");
    options.gameMessages = false;
    EXPECT_EQ(Body({"fight!", ""}), "");
}

TEST_F(TranscriptWriterTest, Quake3LosesItsCodesAndMarkers) {
    options.quake3 = true;
    EXPECT_EQ(Body({"  0:12 say: ^1Bob^7: ^2hi", "  0:13 sayteam: Bob: go"}),
              "Bob: hi\r\nBob: go\r\n");
    options.quake3 = false;
    EXPECT_EQ(Body({"^1Bob^7: hi"}), "^1Bob^7: hi\r\n");
}

TEST_F(TranscriptWriterTest, OfTwoBoxesInANameTheEarlierGivesTheColour) {
    options.html = true;
    options.players = {};
    options.players[3] = {"Bob", ColourRef{0x0000FF}};
    options.players[5] = {"Bobby", ColourRef{0x00FF00}};
    options.players[23] = {"x", ColourRef{0xFF0000}};
    EXPECT_EQ(Body({"Bobby: hi", "bobby: ho", "x: yo", "Bobby x: so"}),
              "<font color=\"ff0000\">Bobby: hi</font><br>\r\n"
              "<font color=\"0000ff\">x: yo</font><br>\r\n"
              "<font color=\"ff0000\">Bobby x: so</font><br>\r\n");
}

TEST_F(TranscriptWriterTest, InPlainTextThereAreNoColours) {
    EXPECT_EQ(Body({"<Ann>: <yo> & so"}), "<Ann>: <yo> & so\r\n");
}

TEST_F(TranscriptWriterTest, OneLeadingCtrlAGoes) {
    options.gameMessages = true;
    EXPECT_EQ(Body({"\1\1Bob: hi", "\1fight!", "\1", "a\1b"}), "\1Bob: hi\r\nfight!\r\na\1b\r\n");
}

TEST_F(TranscriptWriterTest, InQuake3ItGoesBehindTheCodesAndMarkers) {
    options.quake3 = true;
    EXPECT_EQ(Body({"  1:02 say: \1Bob: hi", "^1\1Bob: hi"}), "Bob: hi\r\nBob: hi\r\n");
}

// So that a marker counts though a code stands in it; the scan, which looks for names alone, takes
// the codes off later.
TEST_F(TranscriptWriterTest, InQuake3TheCodesGoBeforeTheMarkers) {
    options.quake3 = true;
    EXPECT_EQ(Body({"  1:02 say^7: Bob: hi", "  1:02 tell: Bob to Ann: psst"}),
              "Bob: hi\r\nBob to Ann: psst\r\n");
    options.quake3 = false;
    EXPECT_EQ(Body({"  1:02 say: Bob: hi"}), "");
}

TEST_F(TranscriptWriterTest, ALineOfSpeechByNobodyIsNoMessageOfTheGame) {
    options.gameMessages = true;
    EXPECT_EQ(Body({"Carl: hi", ": hi", "hostname: x", "fight!"}), "fight!\r\n");
}

TEST_F(TranscriptWriterTest, ColoursHaveSixDigits) {
    options.html = true;
    options.background = 0xFFFFFF;
    options.messages = 0x0A0B0C;
    EXPECT_TRUE(Writes({"<body bgcolor=\"ffffff\" text=\"0c0b0a\">\r\n"}));
    options.background.reset();
    options.messages.reset();
    EXPECT_TRUE(Writes({"<body bgcolor=\"ffffff\" text=\"000000\">\r\n"}));
}

TEST_F(TranscriptWriterTest, AnAddressWithoutASchemeStaysWhole) {
    options.html = true;
    options.webSite = "zentar.example";
    EXPECT_TRUE(Writes({"<a href=\"zentar.example\">zentar.example</a>\r\n"}));
}

TEST_F(TranscriptWriterTest, TheListOfPlayersWraps) {
    options.players = {};
    options.players[0].name = std::string(40, 'a');
    options.players[5].name = std::string(26, 'b');
    const std::string& as = options.players[0].name;
    const std::string& bs = options.players[5].name;
    EXPECT_TRUE(Writes({as, ", ", bs, ".\r\n"}));
    options.players[5].name += 'b';
    EXPECT_TRUE(Writes({as, ", \r\n", bs, ".\r\n"}));
    options.players[0].name = std::string(80, 'a');
    EXPECT_TRUE(Writes({"transcript:\r\n\r\n\r\n", as, ", \r\n"}));
    options.html = true;
    EXPECT_TRUE(Writes({as, ", ", bs, ".\r\n"}));
}

TEST_F(TranscriptWriterTest, InHtmlTheListIsLongerAndCountsWhatItEscapes) {
    options.html = true;
    options.players = {};
    options.players[0].name = std::string(500, 'a');
    options.players[1].name = "<" + std::string(490, 'b');
    const std::string as = options.players[0].name;
    const std::string bs = "&lt;" + std::string(490, 'b');
    EXPECT_TRUE(Writes({"<br>\r\n", as, ", ", bs, ".\r\n"}));
    options.players[1].name += 'b';
    EXPECT_TRUE(Writes({"<br>\r\n", as, ", <br>\r\n", bs, "b.\r\n"}));
    options.players[0].name = std::string(997, 'a');
    EXPECT_TRUE(Writes({"part of this transcript:<br>\r\n<br>\r\naaa"}));
}

TEST_F(TranscriptWriterTest, WithoutPlayersThereIsNoList) {
    options.players = {};
    EXPECT_NE(Write({"Bob: hi"}).find("transcript:\r\n\r\n\r\n-----"), std::string::npos);
    EXPECT_EQ(Body({"Bob: hi"}), "");
}

}  // namespace
}  // namespace zentar
