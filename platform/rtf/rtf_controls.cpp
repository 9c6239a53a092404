#include "platform/rtf/rtf_controls.h"

#include <algorithm>
#include <array>

namespace zentar {
namespace {

struct Character {
    std::string_view name;
    char32_t character;
};

constexpr bool IsBefore(const Character& one, const Character& other) {
    return one.name < other.name;
}

// A backslash before the end of a line means a paragraph, one before a tab a tab.
constexpr std::array kCharacters = {
    Character{"\t", '\t'},          Character{"\n", '\n'},       Character{"\r", '\n'},
    Character{"-", 0xAD},           Character{"_", 0x2011},      Character{"bullet", 0x2022},
    Character{"cell", '\n'},        Character{"column", '\n'},   Character{"emdash", 0x2014},
    Character{"emspace", 0x2003},   Character{"endash", 0x2013}, Character{"enspace", 0x2002},
    Character{"ldblquote", 0x201C}, Character{"line", '\n'},     Character{"lquote", 0x2018},
    Character{"ltrmark", 0x200E},   Character{"nestcell", '\n'}, Character{"nestrow", '\n'},
    Character{"page", '\n'},        Character{"par", '\n'},      Character{"qmspace", 0x2005},
    Character{"rdblquote", 0x201D}, Character{"row", '\n'},      Character{"rquote", 0x2019},
    Character{"rtlmark", 0x200F},   Character{"sect", '\n'},     Character{"tab", '\t'},
    Character{"zwj", 0x200D},       Character{"zwnj", 0x200C},   Character{"~", 0xA0},
};
static_assert(std::is_sorted(kCharacters.begin(), kCharacters.end(), IsBefore));

// What an asterisk marks is passed over whatever its name is.
constexpr std::array<std::string_view, 41> kOtherThanText = {
    "aftncn",     "aftnsep",  "aftnsepc", "annotation", "bkmkend", "bkmkstart",
    "filetbl",    "fldinst",  "fonttbl",  "footer",     "footerf", "footerl",
    "footerr",    "footnote", "ftncn",    "ftnsep",     "ftnsepc", "generator",
    "header",     "headerf",  "headerl",  "headerr",    "info",    "listoverridetable",
    "listtable",  "listtext", "nextfile", "nonshppict", "objdata", "object",
    "pict",       "pntext",   "private",  "revtbl",     "rxe",     "shp",
    "stylesheet", "tc",       "tcn",      "template",   "xe"};
static_assert(std::is_sorted(kOtherThanText.begin(), kOtherThanText.end()));

}  // namespace

char32_t CharacterOfControl(std::string_view name) {
    const auto* const found =
        std::lower_bound(kCharacters.begin(), kCharacters.end(), Character{name, 0}, IsBefore);
    return found != kCharacters.end() && found->name == name ? found->character : 0;
}

bool BeginsOtherThanText(std::string_view name) {
    return std::binary_search(kOtherThanText.begin(), kOtherThanText.end(), name);
}

}  // namespace zentar
