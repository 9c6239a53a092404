#include "demos/phrase_search.h"

#include <cstring>
#include <random>

#include <gtest/gtest.h>

#include "tests/doubles/memory_file_system.h"

namespace zentar {
namespace {

constexpr std::size_t kBlock = PhraseSearch::kBlockSize;

class PhraseSearchTest : public testing::Test {
  protected:
    bool Found(const std::string& phrase, const std::string& bytes) {
        PhraseSearch search(phrase);
        return Found(search, bytes);
    }
    bool Found(PhraseSearch& search, const std::string& bytes) {
        files.AddFile("C:\\demo.dm2", bytes);
        return search.FoundIn(*files.OpenForReading("C:\\demo.dm2").Value()).Value();
    }

    MemoryFileSystem files;
};

TEST_F(PhraseSearchTest, FindsAPhraseAtTheStartInTheMiddleAndAtTheEnd) {
    EXPECT_TRUE(Found("Fred", "Fred was here"));
    EXPECT_TRUE(Found("Fred", "here was Fred, too"));
    EXPECT_TRUE(Found("Fred", "here was Fred"));
    EXPECT_TRUE(Found("Fred", "Fred"));
}

TEST_F(PhraseSearchTest, CaseCounts) { EXPECT_FALSE(Found("Fred", "here was fred, and FRED")); }

TEST_F(PhraseSearchTest, APhraseThatTheFileBreaksOffIsNotFound) {
    EXPECT_FALSE(Found("Fred", "here was Fre"));
    EXPECT_FALSE(Found("Fred", ""));
}

TEST_F(PhraseSearchTest, OneByteIsAPhrase) {
    EXPECT_TRUE(Found("q", std::string(500, '.') + "q"));
    EXPECT_FALSE(Found("q", std::string(500, '.')));
}

TEST_F(PhraseSearchTest, BytesAbove127AndZeroesCount) {
    const std::string golden("\xC6\0\xE4", 3);
    EXPECT_TRUE(Found(golden, "..." + golden));
    EXPECT_FALSE(Found(golden, std::string("\x46\0\x64", 3)));
}

TEST_F(PhraseSearchTest, APhraseAcrossTwoBlocksIsFoundWhereverItLies) {
    const std::string phrase = "g_synchronousClients";
    for (std::size_t at = kBlock - phrase.size() - 1; at <= kBlock + 1; ++at) {
        std::string bytes(3 * kBlock, 'g');
        bytes.replace(at, phrase.size(), phrase);
        EXPECT_TRUE(Found(phrase, bytes)) << at;
    }
}

TEST_F(PhraseSearchTest, APhraseAtTheEndOfAFileOfWholeBlocksIsFound) {
    std::string bytes(2 * kBlock, '.');
    bytes.replace(bytes.size() - 4, 4, "Fred");
    EXPECT_TRUE(Found("Fred", bytes));
}

TEST_F(PhraseSearchTest, APhraseLongerThanABlockIsFound) {
    std::string phrase(2 * kBlock + 17, 'a');
    phrase.back() = 'b';
    EXPECT_TRUE(Found(phrase, std::string(kBlock - 5, 'a') + phrase + "cc"));
    EXPECT_FALSE(Found(phrase, std::string(kBlock - 5, 'a') + phrase.substr(1, kBlock) + "b"));
}

TEST_F(PhraseSearchTest, TheEndOfOneFileAndTheStartOfTheNextMakeNoPhrase) {
    PhraseSearch search("Fred");
    EXPECT_FALSE(Found(search, std::string(kBlock, '.') + "Fr"));
    EXPECT_FALSE(Found(search, "ed"));
    EXPECT_TRUE(Found(search, "Fred"));
}

TEST_F(PhraseSearchTest, TheFileIsReadNoFurtherThanTheFirstOccurrence) {
    EXPECT_TRUE(Found("Fred", "Fred" + std::string(10 * kBlock, '.')));
    EXPECT_EQ(files.Reads("C:\\demo.dm2").reads, 1);
}

TEST_F(PhraseSearchTest, AgreesWithAPlainSearchOnRandomBytes) {
    std::mt19937 random(1);  // the same bytes in every run
    const auto letters = [&random](std::size_t count) {
        std::string text(count, 'a');
        for (char& c : text)
            c = static_cast<char>('a' + random() % 2);
        return text;
    };
    for (int round = 0; round < 5000; ++round) {
        const std::string text = letters(random() % 90);
        const std::string phrase = letters(1 + random() % 20);
        EXPECT_EQ(FindPhrase(text, phrase), text.find(phrase)) << text << " / " << phrase;
    }
}

// 4 GiB and some zeros, then the phrase; no such file is made.
class GiantFile : public ReadableFile {
  public:
    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        const std::uint64_t left = kLength - offset;
        const std::size_t count = left < into.size() ? static_cast<std::size_t>(left) : into.size();
        if (!zeroed_) {
            std::memset(into.data(), 0, into.size());
            zeroed_ = true;
        }
        if (left <= into.size()) {
            std::memcpy(into.data() + count - 4, "Fred", 4);
        }
        return count;
    }
    Result<std::uint64_t> Length() override { return kLength; }

  private:
    static constexpr std::uint64_t kLength = (std::uint64_t{1} << 32U) + 12345;
    bool zeroed_ = false;
};

TEST_F(PhraseSearchTest, APhraseBehindFourGigabytesIsFound) {
    GiantFile file;
    PhraseSearch search("Fred");
    EXPECT_TRUE(search.FoundIn(file).Value());
}

TEST_F(PhraseSearchTest, AFailureWhileReadingIsNeitherFoundNorNotFound) {
    class FailsLater : public ReadableFile {
        Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
            if (offset > 0)
                return FileError::Other;
            std::memset(into.data(), 0, into.size());
            return into.size();
        }
        Result<std::uint64_t> Length() override { return std::uint64_t{1} << 20U; }
    } file;
    PhraseSearch search("Fred");
    const Result<bool> found = search.FoundIn(file);
    ASSERT_FALSE(found.Ok());
    EXPECT_EQ(found.Error(), FileError::Other);
}

}  // namespace
}  // namespace zentar
