#include "tests/unit/rtf/plain_rtf_reader.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>

#include "platform/code_page.h"
#include "platform/rtf/unicode.h"
#include "platform/utf8.h"

namespace zentar::testing {
namespace {

// A brace, a control ("\\cf" and its number) or a byte of the text (an empty word).
struct Piece {
    char brace = 0;
    std::string word;
    long number = 0;
    bool hasNumber = false;
    unsigned char byte = 0;
    bool dead = false;  // belongs to a fallback
    bool isDestination = false;
    long depth = 0;  // how many braces are open before it

    long NumberOr(long other) const { return hasNumber ? number : other; }
};

const std::map<std::string, char32_t> kCharacters = {
    {"\\\t", '\t'},        {"\\\n", '\n'},          {"\\\r", '\n'},          {"\\-", 0xAD},
    {"\\_", 0x2011},       {"\\bullet", 0x2022},    {"\\cell", '\n'},        {"\\column", '\n'},
    {"\\emdash", 0x2014},  {"\\emspace", 0x2003},   {"\\endash", 0x2013},    {"\\enspace", 0x2002},
    {"\\line", '\n'},      {"\\ldblquote", 0x201C}, {"\\lquote", 0x2018},    {"\\ltrmark", 0x200E},
    {"\\nestcell", '\n'},  {"\\nestrow", '\n'},     {"\\page", '\n'},        {"\\par", '\n'},
    {"\\qmspace", 0x2005}, {"\\row", '\n'},         {"\\rdblquote", 0x201D}, {"\\rquote", 0x2019},
    {"\\rtlmark", 0x200F}, {"\\sect", '\n'},        {"\\tab", '\t'},         {"\\zwj", 0x200D},
    {"\\zwnj", 0x200C},    {"\\~", 0xA0},
};

const std::set<std::string> kOther = {
    "\\*",         "\\aftncn",    "\\aftnsep",    "\\aftnsepc",   "\\annotation",
    "\\bkmkend",   "\\bkmkstart", "\\filetbl",    "\\fldinst",    "\\fonttbl",
    "\\footer",    "\\footerf",   "\\footerl",    "\\footerr",    "\\footnote",
    "\\ftncn",     "\\ftnsep",    "\\ftnsepc",    "\\header",     "\\headerf",
    "\\headerl",   "\\headerr",   "\\info",       "\\generator",  "\\listoverridetable",
    "\\listtable", "\\listtext",  "\\nextfile",   "\\nonshppict", "\\objdata",
    "\\object",    "\\pict",      "\\pntext",     "\\private",    "\\revtbl",
    "\\rxe",       "\\shp",       "\\stylesheet", "\\tc",         "\\tcn",
    "\\template",  "\\xe",        "\\colortbl"};

class PlainReader {
  public:
    explicit PlainReader(std::string_view bytes) {
        Cut(std::string(bytes));
        KillFallbacks();
        MarkTables();
    }

    std::vector<ColouredRun> Read() const {
        std::vector<std::pair<char32_t, ColourRef>> units;
        for (std::size_t at = 0; at < pieces_.size(); ++at) {
            if (!pieces_[at].dead && UnitOf(pieces_[at]) >= 0 && !IsOther(at) && !IsHidden(at)) {
                units.emplace_back(static_cast<char32_t>(UnitOf(pieces_[at])), ColourOf(at));
            }
        }
        return Join(units);
    }

  private:
    // Into pieces, up to the brace that closes the first one.
    void Cut(const std::string& text) {
        long depth = 0;
        std::size_t at = 0;
        while (at < text.size()) {
            Piece piece;
            piece.depth = depth;
            const char c = text[at];
            if (c == '{' || c == '}') {
                piece.brace = c;
                depth += c == '{' ? 1 : -1;
                ++at;
            } else if (c == '\\') {
                if (at + 1 == text.size()) {
                    return;
                }
                at = CutControl(text, at + 1, piece);
            } else {
                piece.byte = static_cast<unsigned char>(c);
                ++at;
                if (c == '\r' || c == '\n' || c == '\0') {
                    continue;
                }
            }
            piece.isDestination = kOther.count(piece.word) != 0;
            pieces_.push_back(piece);
            if (depth == 0) {
                return;
            }
        }
    }

    static std::size_t CutControl(const std::string& text, std::size_t at, Piece& piece) {
        const auto is = [&](auto test) {
            return at < text.size() && test(static_cast<unsigned char>(text[at])) != 0;
        };
        const auto letter = [](int c) { return c < 0x80 ? std::isalpha(c) : 0; };
        const auto digit = [](int c) { return c >= '0' && c <= '9' ? 1 : 0; };
        if (!is(letter)) {
            return CutSymbol(text, at, piece);
        }
        piece.word = "\\";
        while (is(letter)) {
            piece.word += text[at++];
        }
        const bool minus = at < text.size() && text[at] == '-';
        at += minus ? 1 : 0;
        piece.hasNumber = is(digit);
        at -= minus && !piece.hasNumber ? 1 : 0;
        while (is(digit)) {
            piece.number = std::min(piece.number * 10 + (text[at++] - '0'), 0x7FFFFFFFL);
        }
        piece.number *= minus ? -1 : 1;
        at += at < text.size() && text[at] == ' ' ? 1 : 0;
        if (piece.word == "\\bin" && piece.number > 0) {
            at = std::min(text.size(), at + static_cast<std::size_t>(piece.number));
        }
        return at;
    }

    static std::size_t CutSymbol(const std::string& text, std::size_t at, Piece& piece) {
        const char c = text[at];
        const std::string hex = text.substr(at + 1, 2);
        if (c == '\\' || c == '{' || c == '}') {
            piece.byte = static_cast<unsigned char>(c);
        } else if (c == '\'' && hex.size() == 2 &&
                   hex.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos) {
            piece.byte = static_cast<unsigned char>(std::stoi(hex, nullptr, 16));
            return at + 3;
        } else {
            piece.word = std::string("\\") + c;
        }
        return at + 1;
    }

    void KillFallbacks() {
        for (std::size_t at = 0; at < pieces_.size(); ++at) {
            if (pieces_[at].dead || pieces_[at].word != "\\u" || IsOther(at)) {
                continue;
            }
            const std::size_t found = Find(at, [](const Piece& p) { return p.word == "\\uc"; });
            const long count = found == kNone ? 1 : std::max(0L, pieces_[found].NumberOr(1));
            for (std::size_t next = at + 1; next < pieces_.size(); ++next) {
                if (next - at > static_cast<std::size_t>(count) || pieces_[next].brace != 0) {
                    break;
                }
                pieces_[next].dead = true;
            }
        }
    }

    // The last piece before a place, in its group or one around it, of which the test holds.
    template <typename Test>
    std::size_t Find(std::size_t before, Test test) const {
        long inner = 0;
        for (std::size_t at = before; at-- > 0;) {
            if (pieces_[at].brace == '}') {
                ++inner;
            } else if (pieces_[at].brace == '{') {
                inner = std::max(0L, inner - 1);
            } else if (inner == 0 && !pieces_[at].dead && test(pieces_[at])) {
                return at;
            }
        }
        return kNone;
    }

    // Where the destination of a piece was named; kNone for text.
    std::size_t Destination(std::size_t place) const {
        for (std::size_t at = place; at != kNone;) {
            at = Find(at, [](const Piece& p) { return p.isDestination; });
            if (at != kNone && pieces_[at].depth > 1) {
                return at;
            }
        }
        return kNone;
    }
    bool IsOther(std::size_t place) const { return Destination(place) != kNone; }

    bool IsHidden(std::size_t place) const {
        const std::size_t found =
            Find(place, [](const Piece& p) { return p.word == "\\v" || p.word == "\\plain"; });
        return found != kNone && pieces_[found].word == "\\v" && pieces_[found].NumberOr(1) != 0;
    }

    // -1 for what is no character.
    static long UnitOf(const Piece& piece) {
        if (piece.brace != 0) {
            return -1;
        }
        if (piece.word.empty()) {
            return static_cast<long>(CodePointOfByte(piece.byte));
        }
        if (piece.word == "\\u") {
            const long number = piece.number;
            if (number < -65536) {
                return kReplacementCharacter;
            }
            return number < 0 ? number + 65536 : number;
        }
        const auto found = kCharacters.find(piece.word);
        return found == kCharacters.end() ? -1 : static_cast<long>(found->second);
    }

    ColourRef ColourOf(std::size_t place) const {
        const std::size_t found =
            Find(place, [](const Piece& p) { return p.word == "\\cf" || p.word == "\\plain"; });
        if (found == kNone || pieces_[found].word == "\\plain") {
            return 0;
        }
        return Colour(place, pieces_[found].number);
    }

    // As the tables before a place say. A destination inside another means nothing.
    ColourRef Colour(std::size_t place, long index) const {
        long entry = 0;
        std::map<std::string, long> channels;
        for (std::size_t at = 0; at < place; ++at) {
            const Piece& piece = pieces_[at];
            if (!isInTable_[at]) {
                continue;
            }
            if (piece.byte == ';') {
                ++entry;
            } else if (entry == index) {
                channels[piece.word] = std::clamp(piece.number, 0L, 255L);
            }
        }
        return static_cast<ColourRef>(channels["\\red"] + 256 * channels["\\green"] +
                                      65536 * channels["\\blue"]);
    }
    void MarkTables() {
        for (std::size_t at = 0; at < pieces_.size(); ++at) {
            std::size_t outermost = kNone;
            for (std::size_t next = Destination(at); next != kNone; next = Destination(next)) {
                outermost = next;
            }
            isInTable_.push_back(!pieces_[at].dead && outermost != kNone &&
                                 pieces_[outermost].word == "\\colortbl");
        }
    }

    static std::vector<ColouredRun> Join(std::vector<std::pair<char32_t, ColourRef>> units) {
        while (!units.empty() && IsBreak(units.back().first)) {
            units.pop_back();
        }
        std::vector<ColouredRun> runs;
        for (std::size_t i = 0; i < units.size(); ++i) {
            char32_t point = units[i].first;
            if (IsFirst(point) && i + 1 < units.size() && IsSecond(units[i + 1].first)) {
                ++i;
                point = 0x10000 + (point - 0xD800) * 0x400 + (units[i].first - 0xDC00);
            } else if (IsFirst(point) || IsSecond(point) || point > 0x10FFFF) {
                point = kReplacementCharacter;
            }
            if (runs.empty() || runs.back().colour != units[i].second) {
                runs.push_back({"", units[i].second});
            }
            AppendUtf8(runs.back().text, IsBreak(point) ? U' ' : point);
        }
        return runs;
    }
    static bool IsBreak(char32_t point) {
        return point < 32 || point == 127 || point == 0x2028 || point == 0x2029;
    }
    static bool IsFirst(char32_t unit) { return unit / 0x400 == 0xD800 / 0x400; }
    static bool IsSecond(char32_t unit) { return unit / 0x400 == 0xDC00 / 0x400; }

    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    std::vector<Piece> pieces_;
    std::vector<bool> isInTable_;
};

}  // namespace

std::vector<ColouredRun> PlainReadRtf(std::string_view bytes) { return PlainReader(bytes).Read(); }

}  // namespace zentar::testing
